#include "studio/app/ControlIcons.h"

#include <iterator>

namespace Studio {

using namespace Gdiplus;

namespace {

void Bars(Graphics& g, const Brush& brush, float left, float pitch, float width,
          std::initializer_list<float> tops, float bottom) {
    for (float top : tops) {
        g.FillRectangle(&brush, left, top, width, bottom - top);
        left += pitch;
    }
}

void DrawCurve(Graphics& g, Color color, std::initializer_list<PointF> points) {
    Pen pen(color, 1.8f);
    pen.SetLineJoin(LineJoinRound);
    g.DrawCurve(&pen, points.begin(), static_cast<INT>(points.size()), 0.5f);
}

void DrawPeqChart(Graphics& g, Color color, const Brush& fill, const Pen& frame) {
    g.FillRectangle(&fill, 3.5f, 4.5f, 17.0f, 15.0f);
    g.DrawRectangle(&frame, 3.5f, 4.5f, 17.0f, 15.0f);
    DrawCurve(g, color, {{4, 13}, {7, 13}, {10, 7.5f}, {13, 12}, {16, 16}, {18, 12.5f}, {20, 12}});
    SolidBrush knob(color);
    g.FillEllipse(&knob, 8.0f, 5.5f, 4.0f, 4.0f);
}

void DrawBandButton(Graphics& g, Color color, const Brush& fill, const Pen& frame) {
    g.FillRectangle(&fill, 3.5f, 6.5f, 17.0f, 11.0f);
    g.DrawRectangle(&frame, 3.5f, 6.5f, 17.0f, 11.0f);
    DrawCurve(g, color, {{5, 15}, {9, 14.5f}, {12, 9}, {15, 14.5f}, {19, 15}});
}

void DrawDeviceChart(Graphics& g, const Brush& solid, const Brush& fill) {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            const bool on = row == column || (row == 0 && column == 2) || (row == 3 && column == 1);
            g.FillRectangle(on ? &solid : &fill, 3.5f + 4.5f * static_cast<float>(column),
                            3.5f + 4.5f * static_cast<float>(row), 3.5f, 3.5f);
        }
    }
}

void DrawDeviceButton(Graphics& g, const Brush& solid, const Brush& fill, const Pen& frame) {
    g.FillRectangle(&fill, 3.5f, 6.5f, 17.0f, 11.0f);
    g.DrawRectangle(&frame, 3.5f, 6.5f, 17.0f, 11.0f);
    g.FillEllipse(&solid, 9.5f, 9.5f, 5.0f, 5.0f);
}

void DrawLevelButton(Graphics& g, const Brush& solid, const Brush& fill, const Pen& frame) {
    g.FillRectangle(&fill, 3.5f, 6.5f, 17.0f, 11.0f);
    g.DrawRectangle(&frame, 3.5f, 6.5f, 17.0f, 11.0f);
    g.FillRectangle(&solid, 6.0f, 12.5f, 9.0f, 2.5f);
}

void DrawCrossover(Graphics& g, Color color) {
    DrawCurve(g, color, {{3, 8}, {8, 8}, {11, 12}, {14, 19}});
    DrawCurve(g, color, {{10, 19}, {13, 12}, {16, 8}, {21, 8}});
}

void DrawSliders(Graphics& g, const Brush& solid, const Pen& frame) {
    constexpr float kKnobs[] = {13.0f, 7.0f, 10.0f, 15.0f};
    for (size_t i = 0; i < std::size(kKnobs); ++i) {
        const float x = 4.5f + 5.0f * static_cast<float>(i);
        g.DrawLine(&frame, x, 4.0f, x, 20.0f);
        g.FillRectangle(&solid, x - 2.0f, kKnobs[i] - 1.5f, 4.0f, 3.0f);
    }
}

void DrawTable(Graphics& g, const Brush& solid, const Brush& fill, const Pen& frame) {
    g.FillRectangle(&fill, 3.5f, 4.5f, 17.0f, 15.0f);
    g.DrawRectangle(&frame, 3.5f, 4.5f, 17.0f, 15.0f);
    for (float y : {7.0f, 11.0f, 15.0f}) {
        g.FillEllipse(&solid, 5.5f, y, 2.6f, 2.6f);
        g.FillRectangle(&solid, 10.0f, y + 0.6f, 8.0f, 1.4f);
    }
}

}  // namespace

void DrawControlIcon(Graphics& g, Lumo::DrawShape kind, Color color, const Brush& fill) {
    const SolidBrush solid(color);
    const Pen frame(color, 1.2f);
    switch (kind) {
        case Lumo::DS_CHARTPEQ:
            DrawPeqChart(g, color, fill, frame);
            break;
        case Lumo::DS_BUTTONBAND:
            DrawBandButton(g, color, fill, frame);
            break;
        case Lumo::DS_CHARTDEVICE:
            DrawDeviceChart(g, solid, fill);
            break;
        case Lumo::DS_BUTTONDEVICE:
            DrawDeviceButton(g, solid, fill, frame);
            break;
        case Lumo::DS_CHARTLEVEL:
            Bars(g, fill, 4.0f, 4.5f, 3.0f, {4.0f, 4.0f, 4.0f, 4.0f}, 20.0f);
            Bars(g, solid, 4.0f, 4.5f, 3.0f, {9.0f, 6.0f, 12.0f, 8.0f}, 20.0f);
            break;
        case Lumo::DS_BUTTONLEVEL:
            DrawLevelButton(g, solid, fill, frame);
            break;
        case Lumo::DS_STATECROSSOVER:
            DrawCrossover(g, color);
            break;
        case Lumo::DS_STATEGEQ:
            DrawSliders(g, solid, frame);
            break;
        case Lumo::DS_STATEPEQ:
            DrawTable(g, solid, fill, frame);
            break;
        default:
            break;
    }
}

}  // namespace Studio
