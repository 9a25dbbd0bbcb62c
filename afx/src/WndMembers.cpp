// Members of CWnd that do more than pass a call on.
#include <afxwin.h>

#include "CommandMessages.h"

#include <vector>

namespace {

template <int index>
BOOL ChangeStyle(HWND window, DWORD remove, DWORD add, UINT flags) {
    auto before = static_cast<DWORD>(::GetWindowLongPtr(window, index));
    DWORD after = (before & ~remove) | add;
    if (after == before)
        return FALSE;
    ::SetWindowLongPtr(window, index, static_cast<LONG_PTR>(after));
    if (flags)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

HWND ParentOrOwner(HWND window) {
    bool isChild = ::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD;
    return isChild ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}

}  // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle<GWL_STYLE>(m_hWnd, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle<GWL_EXSTYLE>(m_hWnd, dwRemove, dwAdd, nFlags);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    HWND next = nullptr;
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = next) {
        next = ::GetNextWindow(child, GW_HWNDNEXT);
        CWnd* object = FromHandlePermanent(child);
        if (object)
            AfxCallWndProc(object, child, message, wParam, lParam);
        else if (!bOnlyPerm)
            ::SendMessage(child, message, wParam, lParam);
        if (bDeep && ::GetTopWindow(child))
            FromHandle(child)->SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
    }
}

void CWnd::GetWindowText(CString& rString) const {
    int length = ::GetWindowTextLength(m_hWnd);
    std::vector<TCHAR> text(static_cast<size_t>(length) + 1);
    length = ::GetWindowText(m_hWnd, text.data(), length + 1);
    rString = CString(text.data(), length);
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    HWND control = ::GetDlgItem(m_hWnd, nID);
    if (control)
        FromHandle(control)->GetWindowText(rString);
    return rString.GetLength();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont ? pFont->m_hObject : nullptr), bRedraw);
}

CMenu* CWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu) {
    return ::SetMenu(m_hWnd, pMenu ? pMenu->m_hMenu : nullptr);
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const {
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

CWnd* CWnd::GetTopLevelParent() const {
    HWND top = m_hWnd;
    while (HWND next = top ? ParentOrOwner(top) : nullptr)
        top = next;
    return FromHandle(top);
}

CFrameWnd* CWnd::GetParentFrame() const {
    for (HWND window = m_hWnd ? ::GetParent(m_hWnd) : nullptr; window; window = ::GetParent(window)) {
        CWnd* object = FromHandlePermanent(window);
        if (object && object->IsFrameWnd())
            return static_cast<CFrameWnd*>(object);
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const {
    auto* self = const_cast<CWnd*>(this);
    CFrameWnd* frame = IsFrameWnd() ? static_cast<CFrameWnd*>(self) : GetParentFrame();
    while (CFrameWnd* outer = frame ? frame->GetParentFrame() : nullptr)
        frame = outer;
    return frame;
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    if (HWND found = ::GetDlgItem(m_hWnd, nID)) {
        if (::GetTopWindow(found)) {
            CWnd* inside = FromHandle(found)->GetDescendantWindow(nID, bOnlyPerm);
            if (inside)
                return inside;
        }
        CWnd* object = bOnlyPerm ? FromHandlePermanent(found) : FromHandle(found);
        if (object)
            return object;
    }
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetNextWindow(child, GW_HWNDNEXT)) {
        if (CWnd* inside =
                ::GetTopWindow(child) ? FromHandle(child)->GetDescendantWindow(nID, bOnlyPerm) : nullptr)
            return inside;
    }
    return nullptr;
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBox(m_hWnd, lpszText, lpszCaption ? lpszCaption : AfxGetAppName(), nType);
}

void PositionWindow(BarLayout& layout, HWND window, const RECT& rect) {
    RECT now;
    ::GetWindowRect(window, &now);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<LPPOINT>(&now), 2);
    if (!layout.positions || ::EqualRect(&now, &rect))
        return;
    layout.positions =
        ::DeferWindowPos(layout.positions, window, nullptr, rect.left, rect.top, rect.right - rect.left,
                         rect.bottom - rect.top, SWP_NOACTIVATE | SWP_NOZORDER);
}

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlags, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch) {
    BarLayout layout{};
    layout.stretch = bStretch;
    if (lpRectClient)
        layout.rect = *lpRectClient;
    else
        GetClientRect(&layout.rect);
    if (nFlags != reposQuery)
        layout.positions = ::BeginDeferWindowPos(8);
    HWND leftOver = nullptr;
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetNextWindow(child, GW_HWNDNEXT)) {
        auto id = static_cast<UINT>(::GetDlgCtrlID(child)) & 0xFFFF;
        if (id == nIDLeftOver)
            leftOver = child;
        else if (id >= nIDFirst && id <= nIDLast && FromHandlePermanent(child))
            ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
    }
    if (nFlags == reposQuery) {
        if (lpRectParam)
            *lpRectParam = layout.rect;
        return;
    }
    if (leftOver)
        PositionWindow(layout, leftOver, layout.rect);
    if (layout.positions)
        ::EndDeferWindowPos(layout.positions);
}
