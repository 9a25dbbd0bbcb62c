// Selecting objects and the rectangles of the selection.
#include "canvas/UICanvas.h"

#include "core/Geometry.h"
#include "core/UIObject.h"

#include <algorithm>

namespace Lumo {

namespace {

// Some hosts mark an empty slot with all bits set.
bool IsObject(const CUIObject* object) {
    return object != nullptr && reinterpret_cast<UINT_PTR>(object) != ~UINT_PTR{0};
}

// Not `RectF::Union`: some platforms' headers compute it in integers.
Gdiplus::RectF United(const Gdiplus::RectF& a, const Gdiplus::RectF& b) {
    const float left = std::min(a.X, b.X);
    const float top = std::min(a.Y, b.Y);
    const float right = std::max(a.GetRight(), b.GetRight());
    const float bottom = std::max(a.GetBottom(), b.GetBottom());
    return {left, top, right - left, bottom - top};
}

}  // namespace

void CUICanvas::Select(CUIObject* obj, int add) {
    if (!add) {
        if (m_nMode == CM_POLY || m_nMode == CM_TEXT)
            m_nMode = CM_DRAW;
        UpdateCanvas(nullptr, 2, nullptr);
        m_selection.clear();
    }
    if (obj == nullptr || IsSelected(obj))
        return;
    m_selection.push_front(obj);
    InvalidateObject(obj);
}

void CUICanvas::Deselect(CUIObject* obj) {
    if (!IsSelected(obj))
        return;
    // Before it leaves the selection: afterwards the margin of its handles would not be repainted.
    InvalidateObject(obj);
    std::erase(m_selection, obj);
}

BOOL CUICanvas::IsSelected(const CUIObject* obj) {
    return std::find(m_selection.begin(), m_selection.end(), obj) != m_selection.end();
}

void CUICanvas::SelectWithinRect(CRect, int add, int) {
    // kept: no object is a candidate, so the rubber band only empties the selection.
    if (!add)
        Select(nullptr, 0);
}

CRect CUICanvas::GetSelectionRect() {
    // kept: the union starts from the origin.
    Gdiplus::RectF bounds(0.0f, 0.0f, 0.0f, 0.0f);
    for (CUIObject* object : m_selection)
        bounds = United(bounds, object->GetPosition());
    return RectAtlFromGdi(bounds);
}

CRect CUICanvas::GetSelectionLastRect() {
    if (m_selection.empty() || !IsObject(m_selection.front()))
        return CRect(0, 0, 0, 0);
    return RectAtlFromGdi(m_selection.front()->GetPosition());
}

BOOL CUICanvas::IsInRect(CRect outer, CRect inner) {
    return outer.PtInRect(inner.TopLeft()) && outer.PtInRect(inner.BottomRight());
}

}  // namespace Lumo
