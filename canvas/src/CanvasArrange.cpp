// Aligning, quarter turns and stacking.
#include "canvas/src/RepaintBatch.h"
#include "core/Geometry.h"
#include "core/UIDocument.h"
#include "core/UIObject.h"

#include <algorithm>

namespace Lumo {

namespace {

// The handle number that means the whole object.
constexpr int kWholeObject = 8;

Gdiplus::PointF CentreOf(const CRect& rect) {
    const auto middle = [](LONGLONG near_, LONGLONG far_) {
        const LONGLONG whole = (far_ - near_) / 2 + near_;
        return static_cast<float>(whole);
    };
    return {middle(rect.left, rect.right), middle(rect.top, rect.bottom)};
}

}  // namespace

// `shift` gives the displacement of an object's position that aligns it with the reference rectangle.
template <class Shift>
void CUICanvas::AlignSelection(Shift shift) {
    const CRect reference = GetSelectionLastRect();
    if (reference.IsRectEmpty())
        return;
    const RepaintBatch batch(*this);
    for (CUIObject* object : m_selection) {
        const Gdiplus::PointF delta = shift(reference, object->GetPosition());
        // A NaN must count as a displacement, hence the comparison with zero.
        if (delta.X == 0.0f && delta.Y == 0.0f)
            continue;
        InvalidateObject(object);
        object->MoveTo(kWholeObject, delta);
        InvalidateObject(object);
    }
}

void CUICanvas::OnToolsAlignLeft() {
    AlignSelection(
        [](const CRect& r, const Gdiplus::RectF& p) { return Gdiplus::PointF(r.left - p.X, 0.0f); });
}

void CUICanvas::OnToolsAlignRight() {
    AlignSelection([](const CRect& r, const Gdiplus::RectF& p) {
        return Gdiplus::PointF(r.right - (p.X + p.Width), 0.0f);
    });
}

void CUICanvas::OnToolsAlignTop() {
    AlignSelection(
        [](const CRect& r, const Gdiplus::RectF& p) { return Gdiplus::PointF(0.0f, r.top - p.Y); });
}

void CUICanvas::OnToolsAlignBottom() {
    AlignSelection([](const CRect& r, const Gdiplus::RectF& p) {
        return Gdiplus::PointF(0.0f, r.bottom - (p.Y + p.Height));
    });
}

void CUICanvas::OnToolsAlignVCenter() {
    AlignSelection([](const CRect& r, const Gdiplus::RectF& p) {
        return Gdiplus::PointF(CentreOf(r).X - Lumo::CentreOf(p).X, 0.0f);
    });
}

void CUICanvas::OnToolsAlignHCenter() {
    AlignSelection([](const CRect& r, const Gdiplus::RectF& p) {
        return Gdiplus::PointF(0.0f, CentreOf(r).Y - Lumo::CentreOf(p).Y);
    });
}

void CUICanvas::OnToolsAlignCenter() {
    AlignSelection([](const CRect& r, const Gdiplus::RectF& p) { return CentreOf(r) - Lumo::CentreOf(p); });
}

void CUICanvas::RotateSelection(float angle) {
    // Kept: the turning rectangle of several objects reaches to the origin.
    const Gdiplus::RectF bounds = RectGdiFromAtl(GetSelectionRect());
    const bool several = m_selection.size() > 1;
    if (several && bounds.IsEmptyArea())
        return;
    Gdiplus::PointF centre = Lumo::CentreOf(bounds);
    const RepaintBatch batch(*this);
    for (CUIObject* object : m_selection) {
        InvalidateObject(object);
        if (several) {
            Gdiplus::RectF position = object->GetPosition();
            object->Rotate(angle, position, centre);
            object->SetPosition(position);
        } else {
            object->Rotate(angle);
        }
        InvalidateObject(object);
    }
}

void CUICanvas::OnToolsRotateLeft() {
    RotateSelection(-90.0f);
}

void CUICanvas::OnToolsRotateRight() {
    RotateSelection(90.0f);
}

// `restack` moves the entry it gets within the page list and tells whether anything changed.
template <class Restack>
void CUICanvas::RestackFront(Restack restack) {
    if (m_selection.empty() || m_pDocument == nullptr)
        return;
    CUIObject* object = m_selection.front();
    CUIObjectDeque* page = m_pDocument->GetCanvasObjectList(this);
    if (page == nullptr)
        return;
    const auto place = std::find(page->begin(), page->end(), object);
    if (place == page->end() || !restack(*page, place))
        return;
    m_pDocument->SetModifiedFlag(1);
    InvalidateObject(object);
}

void CUICanvas::OnToolsPositionBack() {
    RestackFront([](CUIObjectDeque& page, CUIObjectDeque::iterator place) {
        std::rotate(page.begin(), place, place + 1);
        return place != page.begin();
    });
}

void CUICanvas::OnToolsPositionBackward() {
    RestackFront([](CUIObjectDeque& page, CUIObjectDeque::iterator place) {
        if (place == page.begin())
            return false;
        std::iter_swap(place, place - 1);
        return true;
    });
}

void CUICanvas::OnToolsPositionForward() {
    RestackFront([](CUIObjectDeque& page, CUIObjectDeque::iterator place) {
        if (place + 1 == page.end())
            return false;
        std::iter_swap(place, place + 1);
        return true;
    });
}

void CUICanvas::OnToolsPositionFront() {
    RestackFront([](CUIObjectDeque& page, CUIObjectDeque::iterator place) {
        std::rotate(place, place + 1, page.end());
        return place + 1 != page.end();
    });
}

}  // namespace Lumo
