#include "canvas/UINotifyHandler.h"

#include "canvas/src/PackedPoint.h"

namespace Lumo {

namespace {

// A release this close to the press, in pixels, does not end a drag.
constexpr int kReleaseTolerance = 2;

bool IsOutsidePressBox(const CPoint& press, const CPoint& point) {
    CRect box(press, press);
    box.InflateRect(kReleaseTolerance, kReleaseTolerance);
    return !box.PtInRect(point);
}

}  // namespace

void CUINotifyBase::OnLButtonDown(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnLButtonUp(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnLButtonDblClk(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnRButtonDown(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnRButtonUp(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnRButtonDblClk(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnMButtonDown(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnMButtonUp(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnMButtonDblClk(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnMouseMove(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnMouseWheel(CWnd*, UINT, UINT, LPARAM) {}
void CUINotifyBase::OnDragEnter(CWnd*, UINT, const CPoint&) {}
void CUINotifyBase::OnDrag(CWnd*, UINT, const CPoint&) {}
void CUINotifyBase::OnDragLeave(CWnd*, UINT, const CPoint&) {}
void CUINotifyBase::OnKeyDown(CWnd*, UINT, UINT, LPARAM) {}

// Kept: the reserved words and the drag state are left as they come; the first press sets the state.
CUINotifyHandler::CUINotifyHandler() : m_ptPress(0, 0), m_ptLast(0, 0), m_ptCursor(0, 0) {}

void CUINotifyHandler::OnLButtonDown(CWnd*, UINT, UINT, LPARAM packed) {
    m_ptPress = m_ptLast = UnpackPoint(packed);
    ::GetCursorPos(&m_ptCursor);
    m_nDragState = DRAG_IDLE;
}

void CUINotifyHandler::OnMouseMove(CWnd* wnd, UINT, UINT flags, LPARAM packed) {
    const CPoint point = UnpackPoint(packed);
    const bool pressed = (flags & MK_LBUTTON) != 0;
    const bool idle = m_nDragState == DRAG_IDLE || m_nDragState == DRAG_ENDED;
    if (pressed && idle && point != m_ptPress) {
        m_nDragState = DRAG_STARTING;
        OnDragEnter(wnd, flags, m_ptPress);
        m_nDragState = DRAG_DRAGGING;
    }
    if (pressed && m_nDragState == DRAG_DRAGGING)
        OnDrag(wnd, flags, point);
    m_ptLast = point;
    ::GetCursorPos(&m_ptCursor);
}

void CUINotifyHandler::OnLButtonUp(CWnd* wnd, UINT, UINT flags, LPARAM packed) {
    m_ptLast = UnpackPoint(packed);
    // Kept: a release next to the press sends no end and leaves the drag open.
    if (m_nDragState == DRAG_DRAGGING && IsOutsidePressBox(m_ptPress, m_ptLast)) {
        m_nDragState = DRAG_ENDED;
        OnDragLeave(wnd, flags, m_ptLast);
    }
}

}  // namespace Lumo
