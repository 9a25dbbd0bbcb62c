// Windows and their objects: attaching, subclassing, finding.
#include "ThreadState.h"

#include "CommandMessages.h"

namespace {

PermanentMap<CWnd> permanentWindows;  // defined before the windows below, so that it outlives them

}  // namespace

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

CWnd::CWnd() : CWnd(static_cast<HWND>(nullptr)) {}

CWnd::CWnd(HWND hWnd) : m_hWnd(hWnd), m_pfnSuper(nullptr), m_nModalResult(0) {}

CWnd::~CWnd() {
    if (m_hWnd && FromHandlePermanent(m_hWnd) == this)
        DestroyWindow();
    ThreadState* state = FindThreadState();
    if (state && state->creating == this)
        state->creating = nullptr;
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    return hWnd ? permanentWindows.Find(hWnd) : nullptr;
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    if (!hWnd)
        return nullptr;
    if (CWnd* owner = permanentWindows.Find(hWnd))
        return owner;
    return GetThreadState().windows.Get(hWnd, [] { return new CWnd; });
}

void PASCAL CWnd::DeleteTempMap() {
    GetThreadState().windows.Clear();
}

BOOL CWnd::Attach(HWND hWndNew) {
    if (!hWndNew || m_hWnd || permanentWindows.Find(hWndNew))
        return FALSE;
    permanentWindows.Set(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach() {
    HWND window = m_hWnd;
    if (window) {
        permanentWindows.Remove(window, this);
        m_hWnd = nullptr;
    }
    return window;
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    auto before = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    if (!before) {
        Detach();
        return FALSE;
    }
    if (before != AfxWndProc)
        *GetSuperWndProcAddr() = before;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    return SubclassWindow(::GetDlgItem(pParent->m_hWnd, static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow() {
    WNDPROC* super = GetSuperWndProcAddr();
    // Who subclassed the window after us keeps his place.
    bool isFirst =
        m_hWnd && ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(AfxWndProc);
    if (isFirst && *super) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
        *super = nullptr;
    }
    return Detach();
}

void CWnd::PostNcDestroy() {}

void CWnd::OnNcDestroy() {
    CWinThread* thread = AfxGetThread();
    if (thread && thread->m_pMainWnd == this) {
        thread->m_pMainWnd = nullptr;
        AfxPostQuitMessage(0);
    }
    Default();
    UnsubclassWindow();
    PostNcDestroy();
}
