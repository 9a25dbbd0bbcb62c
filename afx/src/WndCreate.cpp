// Creation of windows. A hook ties the object to its window before the first message arrives there.
#include "ThreadState.h"

#include "CommandMessages.h"

namespace {

bool IsInputMethodWindow(HWND window) {
    TCHAR name[8] = {};
    ::GetClassName(window, name, ARRAYSIZE(name));
    return (::GetClassLongPtr(window, GCL_STYLE) & CS_IME) || ::lstrcmpi(name, _T("ime")) == 0;
}

/// Sees every window that the thread creates; the first one belongs to the object that waits.
LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam) {
    ThreadState& state = GetThreadState();
    HWND window = reinterpret_cast<HWND>(wParam);
    // Windows of the input method come into being in between, with the first window of a thread.
    if (code == HCBT_CREATEWND && state.creating && !IsInputMethodWindow(window)) {
        CWnd* object = state.creating;
        state.creating = nullptr;
        // The number may have been that of a window whose object never heard of its end.
        if (CWnd* stale = CWnd::FromHandlePermanent(window))
            stale->Detach();
        object->SubclassWindow(window);
    }
    return ::CallNextHookEx(state.creationHook, code, wParam, lParam);
}

}  // namespace

void AfxHookWindowCreate(CWnd* pWnd) {
    ThreadState& state = GetThreadState();
    state.creating = pWnd;
    if (!state.creationHook)
        state.creationHook = ::SetWindowsHookEx(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
}

BOOL AfxUnhookWindowCreate() {
    ThreadState& state = GetThreadState();
    if (state.creationHook)
        ::UnhookWindowsHookEx(state.creationHook);
    state.creationHook = nullptr;
    bool wasTied = state.creating == nullptr;
    state.creating = nullptr;
    return wasTied;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    CREATESTRUCT cs{};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    HWND window =
        ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                         cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    // From here on the object may be gone: a refused window has deleted it in PostNcDestroy.
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return window != nullptr;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, pParentWnd ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    if (!m_hWnd)
        return FALSE;
    HWND window = m_hWnd;
    bool isOurs = FromHandlePermanent(window) == this;
    BOOL isDestroyed = ::DestroyWindow(window);
    // An object that is attached without its procedure taken over hears of nothing.
    if (isOurs && FromHandlePermanent(window) == this && !::IsWindow(window))
        Detach();
    return isDestroyed;
}
