// Painting a page off-screen, and asking for it.
#include "canvas/UITool.h"
#include "canvas/src/PagePixels.h"
#include "canvas/src/RepaintBatch.h"
#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "core/UIDocument.h"
#include "core/UIObject.h"

#include <iterator>

namespace Lumo {

namespace {

constexpr Gdiplus::ARGB kGround = 0xFF000000;
constexpr int kTrackerMargin = 4;  // room for the handles around a selected object
constexpr int kPlainMargin = 1;

// What shows of the page: filling the rest would be clipped away, pixel by pixel.
Gdiplus::Rect VisiblePart(Gdiplus::Graphics& g, int cx, int cy) {
    Gdiplus::Rect visible;
    if (g.GetVisibleClipBounds(&visible) != Gdiplus::Ok)
        return {0, 0, cx, cy};
    visible.Inflate(1, 1);
    visible.Intersect({0, 0, cx, cy});
    return visible;
}

}  // namespace

BOOL CUICanvas::OnEraseBkgnd(CDC*) {
    return FALSE;
}

void CUICanvas::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    CRect update;
    if (!update.IntersectRect(&client, &dc.m_ps.rcPaint))
        return;
    Gdiplus::Graphics window(dc.m_hDC);
    PagePixels pixels(client.Size());
    {
        Gdiplus::Graphics page(pixels.Whole());
        const Gdiplus::RectF painted = RectGdiFromAtl(update);
        const PaintScope scope(page, Inflated(painted, 1.0f));
        page.SetClip(painted);
        Draw(&page, client.Width(), client.Height());
    }
    // Only what was painted goes to the window.
    Gdiplus::Bitmap part(update.Width(), update.Height(), pixels.Stride(), PixelFormat32bppPARGB,
                         pixels.At(update.TopLeft()));
    Gdiplus::CachedBitmap cached(&part, &window);
    window.DrawCachedBitmap(&cached, update.left, update.top);
}

void CUICanvas::Draw(Gdiplus::Graphics* g, int cx, int cy) {
    const Gdiplus::SolidBrush ground{Gdiplus::Color(kGround)};
    g->FillRectangle(&ground, VisiblePart(*g, cx, cy));
    if (m_pDocument)
        m_pDocument->DrawCanvas(g, this);
    for (CUIObject* object : m_selection) {
        CUIToolBase::FindTool(DS_SELECT);  // Kept: the tool is looked up and the answer not used
        object->DrawTracker(g);
    }
}

void CUICanvas::OnPaintTest(HDC hdc) {
    Default();
    Gdiplus::Graphics g(hdc);
    const Gdiplus::Pen pen(Gdiplus::Color(0xFF90EE90), 1.0f);
    g.DrawBezier(&pen, 200, 400, 280, 380, 320, 360, 400, 200);
    const Gdiplus::Point spline[] = {{20, 50}, {100, 10}, {200, 100}, {300, 50}, {400, 80}};
    g.DrawCurve(&pen, spline, std::size(spline), 1.0f);
    Gdiplus::Image icon(L"res\\test.ico");
    g.DrawImage(&icon, 200, 200);
}

void CUICanvas::InvalidateObject(CUIObject* obj) {
    if (obj)
        Repaint(*obj, IsSelected(obj));
}

// Repaints an object with its outline and, when `tracked`, the handles around it.
void CUICanvas::Repaint(const CUIObject& object, bool tracked) {
    if (!m_hWnd)
        return;
    const int margin = TruncToInt(object.GetLineWidth() + (tracked ? kTrackerMargin : kPlainMargin));
    RepaintBatch batch(*this);
    m_pBatch->Add(RectAtlFromGdi(object.GetPosition()), margin);
}

void CUICanvas::InvalidateObjects(const std::deque<CUIObject*>& objects) {
    const RepaintBatch batch(*this);
    for (CUIObject* object : objects)
        InvalidateObject(object);
}

void CUICanvas::UpdateCanvas(CWnd*, long hint, void* data) {
    switch (hint) {
        case 0:
            if (m_hWnd)
                Invalidate(FALSE);
            break;
        case 1:
            InvalidateObject(static_cast<CUIObject*>(data));
            break;
        case 2:
            InvalidateObjects(m_selection);
            break;
        case 3:
            if (data && data != &m_selection)
                InvalidateObjects(*static_cast<std::deque<CUIObject*>*>(data));
            break;
        case 4:
            if (data && data != &m_selection)
                for (CUIObject* object : *static_cast<std::deque<CUIObject*>*>(data))
                    if (object && object->GetDrawShape() == DS_OLE)
                        InvalidateObject(object);
            break;
        case 5:
            if (m_hWnd)
                Invalidate(FALSE);
            m_selection.clear();
            break;
        default:
            break;
    }
}

void CUICanvas::MoveTo(const int& how, CPoint& from, CPoint& to, int) {
    const Gdiplus::PointF delta(static_cast<float>(to.x - from.x), static_cast<float>(to.y - from.y));
    if (delta.X == 0 && delta.Y == 0)
        return;
    const RepaintBatch batch(*this);
    for (CUIObject* object : m_selection) {
        InvalidateObject(object);
        object->MoveTo(how, delta);
        InvalidateObject(object);
    }
}

}  // namespace Lumo
