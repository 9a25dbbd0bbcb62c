// Messages that a parent gets about a control and that the control may handle itself.
#include "ThreadState.h"

#include "CommandMessages.h"

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG& message = GetThreadState().message;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* child = FromHandlePermanent(hWndChild);
    return child && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const WORD reflected = LOWORD(message + WM_REFLECT_BASE);
    LRESULT result = 0;
    BOOL isHandled = FALSE;
    if (message == WM_COMMAND) {
        isHandled = OnCmdMsg(0, static_cast<int>(MAKELONG(HIWORD(wParam), reflected)), nullptr, nullptr);
        result = TRUE;
    } else if (message == WM_NOTIFY) {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        NotifyMessage notify{&result, header};
        isHandled = OnCmdMsg(0, static_cast<int>(MAKELONG(header->code, reflected)), &notify, nullptr);
    } else {
        isHandled = OnWndMsg(reflected, wParam, lParam, &result);
    }
    if (isHandled && pResult)
        *pResult = result;
    return isHandled;
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT brush = 0;
    if (!pWnd || !ReflectLastMsg(pWnd->m_hWnd, &brush))
        brush = Default();
    return reinterpret_cast<HBRUSH>(brush);
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    const bool isMenu = lpDrawItemStruct->CtlType == ODT_MENU;
    if (isMenu || !ReflectLastMsg(lpDrawItemStruct->hwndItem))
        Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    const bool isMenu = lpMeasureItemStruct->CtlType == ODT_MENU;
    if (isMenu || !ReflectLastMsg(::GetDlgItem(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID))))
        Default();
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!pScrollBar || !ReflectLastMsg(pScrollBar->m_hWnd))
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!pScrollBar || !ReflectLastMsg(pScrollBar->m_hWnd))
        Default();
}
