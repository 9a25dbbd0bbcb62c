#include "canvas/UINotifyHandler.h"

#include "canvas/src/PackedPoint.h"

namespace Lumo {

namespace {

constexpr int kNoMarker = -1;

bool IsLeftButtonDown() {
    return ::GetAsyncKeyState(VK_LBUTTON) < 0;
}

}  // namespace

// Kept: marker, reserved word and drag state are left as they come; the first press sets the state.
CUINotifyHandlerEx::CUINotifyHandlerEx() : m_ptCurrent(0, 0), m_ptPrevious(0, 0) {}

void CUINotifyHandlerEx::OnLButtonDown(CWnd*, UINT, UINT, LPARAM) {
    m_ptPrevious = m_ptCurrent;
    m_nDragState = DRAG_IDLE;
    m_nMarker = kNoMarker;
}

void CUINotifyHandlerEx::OnMouseMove(CWnd* wnd, UINT, UINT flags, LPARAM packed) {
    const bool pressed = IsLeftButtonDown();
    if (pressed && m_nDragState == DRAG_IDLE && m_ptCurrent != m_ptPrevious) {
        m_nDragState = DRAG_STARTING;
        OnDragEnter(wnd, flags, m_ptCurrent);
        m_nDragState = DRAG_DRAGGING;
    }
    if (pressed && m_nDragState == DRAG_DRAGGING) {
        if (m_ptCurrent == m_ptPrevious)
            ::GetCursorPos(&m_ptPrevious);
        OnDrag(wnd, flags, UnpackPoint(packed));
    }
    ::GetCursorPos(&m_ptPrevious);
}

void CUINotifyHandlerEx::OnLButtonUp(CWnd* wnd, UINT, UINT flags, LPARAM) {
    if (m_nDragState == DRAG_DRAGGING) {
        if (m_ptCurrent == m_ptPrevious) {
            ::GetCursorPos(&m_ptCurrent);
            m_ptPrevious = m_ptCurrent;
            m_nMarker = kNoMarker;
        }
        m_nDragState = DRAG_ENDED;
        OnDragLeave(wnd, flags, m_ptPrevious);
    }
    ::GetCursorPos(&m_ptCurrent);
    m_ptPrevious = m_ptCurrent;
    m_nMarker = kNoMarker;
}

}  // namespace Lumo
