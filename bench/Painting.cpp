// Painting: a whole page against the same primitives by hand, one drag step, one skipped object.
#include "bench/Page.h"
#include "bench/Table.h"

#include "core/PaintScope.h"
#include "core/UIObjectPoly.h"

#include <string>

using namespace Lumo;

namespace bench {

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;
constexpr int kMixed = 1000;

DrawShape KindOf(int i) {
    return i % 4 == 3 ? DS_LINE : i % 4 == 1 ? DS_ELLIPSE : DS_RECTANGLE;
}

Gdiplus::RectF PlaceOf(int i) {
    const int row = i / 40;
    return {static_cast<float>(i % 40) * 48.0f, static_cast<float>(row) * 43.0f, 44.0f, 39.0f};
}

CString CaptionOf(int i) {
    CString caption;
    caption.Format(L"No %d", i % 100);
    return caption;
}

void FillMixed(Page& page) {
    for (int i = 0; i < kMixed; ++i) {
        const Gdiplus::RectF place = PlaceOf(i);
        CUIObject* object = page.Add(KindOf(i), place.X, place.Y, place.Width, place.Height);
        object->SetTextFontSize(10.0f);
        object->SetText(CaptionOf(i));
        if (auto* line = dynamic_cast<CUIObjectPoly*>(object)) {
            Gdiplus::PointF from(place.X, place.Y);
            Gdiplus::PointF to(place.GetRight(), place.GetBottom());
            line->AddPoint(from);
            line->AddPoint(to);
        }
    }
}

// A caption the way a program writes it that keeps nothing between two paints.
void DrawCaptionByHand(Gdiplus::Graphics& g, const Gdiplus::RectF& place, const CString& text) {
    const Gdiplus::GraphicsState state = g.Save();
    const Gdiplus::FontFamily family(L"Arial");
    Gdiplus::StringFormat format;
    format.SetLineAlignment(Gdiplus::StringAlignmentCenter);
    format.SetAlignment(Gdiplus::StringAlignmentCenter);
    const Gdiplus::SolidBrush brush(Gdiplus::Color(0x80FFFFFF));
    const Gdiplus::Font font(&family, 10.0f, Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    g.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    Gdiplus::RectF box;
    g.MeasureString(text, text.GetLength(), &font, Gdiplus::PointF(0, 0), &box);
    if (box.Width <= place.Width) {
        const Gdiplus::RectF at(place.X + (place.Width - box.Width) / 2,
                                place.Y + (place.Height - box.Height) / 2, box.Width, box.Height);
        g.DrawString(text, text.GetLength(), &font, at, &format, &brush);
    }
    g.Restore(state);
}

void DrawShapeByHand(Gdiplus::Graphics& g, const Gdiplus::RectF& place, bool ellipse) {
    Gdiplus::GraphicsState state = g.Save();
    const Gdiplus::Pen pen(Gdiplus::Color(0xFF0000FF), 2.0f);
    if (ellipse)
        g.DrawEllipse(&pen, place);
    else
        g.DrawRectangle(&pen, place);
    g.Restore(state);
    state = g.Save();
    const Gdiplus::SolidBrush brush(Gdiplus::Color(0x800000FF));
    if (ellipse)
        g.FillEllipse(&brush, place);
    else
        g.FillRectangle(&brush, place);
    g.Restore(state);
}

void DrawLineByHand(Gdiplus::Graphics& g, const Gdiplus::RectF& place) {
    const Gdiplus::GraphicsState state = g.Save();
    g.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    g.SetCompositingQuality(Gdiplus::CompositingQualityDefault);
    g.SetInterpolationMode(Gdiplus::InterpolationModeDefault);
    Gdiplus::Pen pen(Gdiplus::Color(0xFF0000FF), 6.0f);
    pen.SetStartCap(Gdiplus::LineCapRoundAnchor);
    pen.SetEndCap(Gdiplus::LineCapRoundAnchor);
    g.DrawLine(&pen, place.X, place.Y, place.GetRight(), place.GetBottom());
    g.Restore(state);
}

void DrawMixedByHand(Gdiplus::Graphics& g) {
    const Gdiplus::SolidBrush ground(Gdiplus::Color(0xFF000000));
    g.FillRectangle(&ground, 0, 0, kWidth, kHeight);
    for (int i = 0; i < kMixed; ++i) {
        if (KindOf(i) == DS_LINE) {
            DrawLineByHand(g, PlaceOf(i));
            continue;
        }
        DrawCaptionByHand(g, PlaceOf(i), CaptionOf(i));
        DrawShapeByHand(g, PlaceOf(i), KindOf(i) == DS_ELLIPSE);
    }
}

void MeasureFullPaint(std::vector<Line>& lines) {
    Page page(kWidth, kHeight);
    FillMixed(page);
    Gdiplus::Bitmap bitmap(kWidth, kHeight, PixelFormat32bppPARGB);
    Gdiplus::Graphics g(&bitmap);
    const Pair pair = SideBySide(
        15, [&] { page.canvas->Draw(&g, kWidth, kHeight); }, [&] { DrawMixedByHand(g); });
    lines.push_back({"full paint of 1,000 mixed objects, 1920x1080, against the same by hand",
                     pair.ours / pair.other, "x", 0.85, false,
                     std::to_string(static_cast<int>(pair.ours * 1e3)) + " ms against " +
                         std::to_string(static_cast<int>(pair.other * 1e3)) + " ms"});
}

// Drags the topmost object back and forth by one step, each with its paint.
constexpr int kUnderPointer = 10;

class Drag {
public:
    // Ten objects where the pointer is; the others lie above it.
    explicit Drag(int objects) : m_page(1280, 800, true) {
        for (int i = 0; i < objects; ++i) {
            const int row = i < kUnderPointer ? i / 4 : i / 125;
            const auto x = static_cast<float>(i < kUnderPointer ? 596 + i % 4 * 10 : i % 125 * 10);
            const float y =
                i < kUnderPointer ? 396.0f + static_cast<float>(row) * 9.0f : static_cast<float>(row) * 4.5f;
            m_page.Add(DS_RECTANGLE, x, y, 8.0f, 4.0f)->SetText(CString(L"1"));
        }
        CUIObject* top = m_page.Add(DS_RECTANGLE, 600, 400, 20, 20);
        m_page.canvas->Select(top, 0);
        m_page.canvas->UpdateWindow();
        Send(WM_LBUTTONDOWN, 610);
    }
    ~Drag() { Send(WM_LBUTTONUP, 610); }

    void Step() {
        m_right = !m_right;
        Send(WM_MOUSEMOVE, m_right ? 614 : 610);
        m_page.canvas->UpdateWindow();
    }

private:
    void Send(UINT message, int x) { m_page.canvas->SendMessage(message, MK_LBUTTON, MAKELPARAM(x, 410)); }

    Page m_page;
    bool m_right = false;
};

void Repeat(Drag& drag) {
    for (int i = 0; i < 20; ++i)
        drag.Step();
}

void MeasureDragStep(std::vector<Line>& lines) {
    // Ten objects where the pointer is, alone and among ten thousand. One capture at a time: the drags take
    // turns.
    std::vector<double> many;
    std::vector<double> few;
    for (int round = 0; round < 5; ++round) {
        {
            Drag drag(10000);
            Repeat(drag);
            many.push_back(Seconds([&] { Repeat(drag); }) / 20);
        }
        Drag drag(10);
        Repeat(drag);
        few.push_back(Seconds([&] { Repeat(drag); }) / 20);
    }
    lines.push_back({"drag step on 10,000 objects, against 10", Median(many) / Median(few), "x", 1.3, false,
                     std::to_string(static_cast<int>(Median(many) * 1e6)) + " us against " +
                         std::to_string(static_cast<int>(Median(few) * 1e6)) + " us"});
}

void MeasureSkipping(std::vector<Line>& lines) {
    constexpr int kObjects = 10000;
    Page page(400, 300);
    for (int i = 0; i < kObjects; ++i)
        page.Add(DS_RECTANGLE, 100.0f + static_cast<float>(i % 100), 100, 50, 50);
    Gdiplus::Bitmap bitmap(400, 300, PixelFormat32bppPARGB);
    Gdiplus::Graphics g(&bitmap);
    const Gdiplus::RectF update(0, 0, 10, 10);
    const PaintScope scope(g, update);
    std::vector<double> seconds(21);
    for (double& second : seconds)
        second = Seconds([&] { page.document->DrawCanvas(&g, page.canvas.get()); });
    lines.push_back({"skipping one object outside the update rectangle", Median(seconds) / kObjects * 1e9,
                     "ns", 60, false, ""});
}

}  // namespace

void MeasurePainting(std::vector<Line>& lines) {
    MeasureFullPaint(lines);
    MeasureDragStep(lines);
    MeasureSkipping(lines);
}

}  // namespace bench
