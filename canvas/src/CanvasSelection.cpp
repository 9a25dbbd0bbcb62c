// Selecting objects and the rectangles of the selection.
#include "canvas/UICanvas.h"

#include "core/Geometry.h"
#include "core/UIObject.h"
#include "core/internal/Destruction.h"

#include <algorithm>

namespace Lumo {

namespace {

// Some hosts mark an empty slot with all bits set.
bool IsObject(const CUIObject* object) {
    return object != nullptr && reinterpret_cast<UINT_PTR>(object) != ~UINT_PTR{0};
}

// Not `RectF::Union`: some platforms' headers compute it in integers.
Gdiplus::RectF United(const Gdiplus::RectF& a, const Gdiplus::RectF& b) {
    const float left = (std::min)(a.X, b.X);
    const float top = (std::min)(a.Y, b.Y);
    const float right = (std::max)(a.GetRight(), b.GetRight());
    const float bottom = (std::max)(a.GetBottom(), b.GetBottom());
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
    Destruction::Note(obj, this);
    InvalidateObject(obj);
}

void CUICanvas::Deselect(CUIObject* obj) {
    if (!obj || !IsSelected(obj))
        return;
    // Once it has left the selection, the room of its handles is no longer repainted with it.
    Repaint(*obj, true);
    std::erase(m_selection, obj);
    InvalidateObject(obj);
}

// A walk over the selection asks for its objects in order: the answer mostly stands where the last one stood,
// or next to it, or in front.
BOOL CUICanvas::IsSelected(const CUIObject* obj) {
    for (const size_t place : {m_nFound, m_nFound + 1, size_t{0}}) {
        if (place < m_selection.size() && m_selection[place] == obj) {
            m_nFound = place;
            return TRUE;
        }
    }
    const auto found = std::find(m_selection.begin(), m_selection.end(), obj);
    if (found == m_selection.end())
        return FALSE;
    m_nFound = static_cast<size_t>(found - m_selection.begin());
    return TRUE;
}

void CUICanvas::SelectWithinRect(CRect, int add, int) {
    // Kept: no object is a candidate, so the rubber band only empties the selection.
    if (!add)
        Select(nullptr, 0);
}

CRect CUICanvas::GetSelectionRect() {
    // Kept: the union starts from the origin.
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
