// The pump of modal windows.
#include "ThreadState.h"

#include "CommandMessages.h"

namespace {

BOOL RunIdle(LONG count) {
    if (CWinThread* thread = AfxGetThread())
        return thread->OnIdle(count);
    return FALSE;
}

/// Whether the message just pumped gives reason for new idle work.
bool GivesIdleWork() {
    CWinThread* thread = AfxGetThread();
    return thread && thread->IsIdleMessage(&thread->m_msgCur);
}

}  // namespace

int CWnd::RunModalLoop(DWORD dwFlags) {
    bool isIdle = true;
    bool showsItself = (dwFlags & MLF_SHOWONIDLE) && !IsWindowVisible();
    LONG idleCount = 0;
    m_bContinueModal = true;
    while (ContinueModal()) {
        MSG next;
        while (isIdle && !::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE)) {
            if (showsItself) {
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
                showsItself = false;
            }
            isIdle = RunIdle(idleCount++);
        }
        do {
            if (!AfxPumpMessage()) {
                AfxPostQuitMessage(0);  // the outer pump has to end as well
                return -1;
            }
            if (showsItself && next.message == WM_SYSKEYDOWN) {
                ShowWindow(SW_SHOWNORMAL);
                showsItself = false;
            }
            if (!ContinueModal())
                break;
            if (GivesIdleWork()) {
                isIdle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE));
    }
    return m_nModalResult;
}

BOOL CWnd::ContinueModal() {
    return m_bContinueModal && ::IsWindow(m_hWnd);
}

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (!m_bContinueModal)
        return;
    m_bContinueModal = false;
    PostMessage(WM_NULL);
}
