#include "studio/app/ToolIcons.h"

#include "studio/app/ControlIcons.h"
#include "studio/controls/GraphicsStateScope.h"
#include "studio/editing/PageTool.h"

#include <iterator>

namespace Studio {

using namespace Gdiplus;

namespace {

// All pictures are drawn on a field of 24 by 24.
constexpr float kField = 24.0f;

// An accent fill as thin as that of the shapes themselves.
Color Thin(DWORD color) {
    return Color((color & 0x00FFFFFF) | 0x38000000);
}

void DrawArrow(Graphics& g, Color color) {
    const PointF outline[] = {{6, 3},      {6, 18.5f},  {9.8f, 15},    {12.4f, 20.8f},
                              {15, 19.7f}, {12.4f, 14}, {17.5f, 13.6f}};
    SolidBrush brush(color);
    g.FillPolygon(&brush, outline, static_cast<INT>(std::size(outline)));
}

void DrawBox(Graphics& g, const Pen& pen, const Brush& fill) {
    g.FillRectangle(&fill, 4.0f, 6.0f, 16.0f, 12.0f);
    g.DrawRectangle(&pen, 4.0f, 6.0f, 16.0f, 12.0f);
}

void DrawOval(Graphics& g, const Pen& pen, const Brush& fill) {
    g.FillEllipse(&fill, 3.5f, 5.5f, 17.0f, 13.0f);
    g.DrawEllipse(&pen, 3.5f, 5.5f, 17.0f, 13.0f);
}

void DrawKnot(Graphics& g, Color color, const PointF& at) {
    SolidBrush brush(color);
    g.FillEllipse(&brush, at.X - 2.4f, at.Y - 2.4f, 4.8f, 4.8f);
}

void DrawFigure(Graphics& g, const Pen& pen, Color color, const PointF* points, int count) {
    g.DrawLines(&pen, points, count);
    for (int i = 0; i < count; ++i)
        DrawKnot(g, color, points[i]);
}

void DrawLetter(Graphics& g, const Pen& frame, Color color) {
    g.DrawRectangle(&frame, 3.5f, 4.5f, 17.0f, 15.0f);
    Pen stem(color, 2.2f);
    g.DrawLine(&stem, 7.5f, 8.6f, 16.5f, 8.6f);
    g.DrawLine(&stem, 12.0f, 8.6f, 12.0f, 16.5f);
}

void DrawLandscape(Graphics& g, const Pen& frame, Color color) {
    g.DrawRectangle(&frame, 3.5f, 4.5f, 17.0f, 15.0f);
    const PointF hills[] = {{4.5f, 18.5f}, {9.5f, 11}, {12.5f, 15}, {15, 12.5f}, {19.5f, 18.5f}};
    SolidBrush brush(color);
    g.FillPolygon(&brush, hills, static_cast<INT>(std::size(hills)));
    g.FillEllipse(&brush, 14.0f, 6.8f, 3.6f, 3.6f);
}

}  // namespace

void DrawToolIcon(Graphics& g, Lumo::DrawShape kind, float x, float y, float size, DWORD argb) {
    GraphicsStateScope state(g);
    g.TranslateTransform(x, y);
    g.ScaleTransform(size / kField, size / kField);
    const Color color(argb);
    const SolidBrush fill(Thin(argb));
    Pen pen(color, 1.8f);
    pen.SetLineJoin(LineJoinRound);
    Pen frame(color, 1.2f);
    const PointF line[] = {{5, 19}, {19, 5}};
    const PointF polyline[] = {{4, 18}, {9, 7}, {14.5f, 16}, {20, 5.5f}};
    switch (kind) {
        case Lumo::DS_SELECT:
            DrawArrow(g, color);
            break;
        case Lumo::DS_RECTANGLE:
            DrawBox(g, pen, fill);
            break;
        case Lumo::DS_ELLIPSE:
            DrawOval(g, pen, fill);
            break;
        case Lumo::DS_LINE:
            DrawFigure(g, pen, color, line, static_cast<int>(std::size(line)));
            break;
        case Lumo::DS_POLYLINE:
            DrawFigure(g, pen, color, polyline, static_cast<int>(std::size(polyline)));
            break;
        case Lumo::DS_TEXTEDIT:
            DrawLetter(g, frame, color);
            break;
        default:
            if (kind == kPictureTool)
                DrawLandscape(g, frame, color);
            else
                DrawControlIcon(g, kind, color, fill);
            break;
    }
}

}  // namespace Studio
