// Threads: the message pump, idle work, exceptions that no handler caught.
#include "ThreadState.h"

#include "CommandMessages.h"

namespace {

constexpr UINT WM_SYSTIMER = 0x0118;  // caret blinking

BOOL PumpInto(MSG& message) {
    if (::GetMessage(&message, nullptr, 0, 0) <= 0)
        return FALSE;
    if (!AfxPreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

/// The objects on the way from the message's window to the main window, then the main window for others'.
BOOL PreTranslate(MSG* message) {
    CWnd* main = AfxGetMainWnd();
    HWND stop = main ? main->m_hWnd : nullptr;
    if (CWnd::WalkPreTranslateTree(stop, message))
        return TRUE;
    if (!main || !message->hwnd)
        return FALSE;
    CWnd* top = CWnd::FromHandle(message->hwnd)->GetTopLevelParent();
    return top != main && main->PreTranslateMessage(message);
}

bool IsNewMousePosition(const MSG& message) {
    ThreadState& state = GetThreadState();
    bool isNew = message.pt.x != state.idleCursor.x || message.pt.y != state.idleCursor.y;
    state.idleCursor = message.pt;
    return isNew;
}

void UpdateCommandUI(CWnd* window) {
    if (!window || !window->m_hWnd || !window->IsWindowVisible())
        return;
    AfxCallWndProc(window, window->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
    window->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
}

}  // namespace

IMPLEMENT_DYNCREATE(CWinThread, CCmdTarget)

CWinThread::CWinThread() = default;

CWinThread::~CWinThread() {
    ThreadState* state = FindThreadState();
    if (state && state->thread == this)
        state->thread = nullptr;
}

CWinThread* AFXAPI AfxGetThread() {
    return GetThreadState().thread;
}

CWnd* AFXAPI AfxGetMainWnd() {
    CWinThread* thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : nullptr;
}

BOOL AFXAPI AfxPumpMessage() {
    CWinThread* thread = AfxGetThread();
    return thread ? thread->PumpMessage() : PumpInto(GetThreadState().pumped);
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg) {
    CWinThread* thread = AfxGetThread();
    return thread ? thread->PreTranslateMessage(pMsg) : PreTranslate(pMsg);
}

void AFXAPI AfxPostQuitMessage(int nExitCode) {
    ::PostQuitMessage(nExitCode);
}

BOOL CWinThread::PumpMessage() {
    return PumpInto(m_msgCur);
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    return PreTranslate(pMsg);
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE)
        return IsNewMousePosition(*pMsg);
    return pMsg->message != WM_PAINT && pMsg->message != WM_SYSTIMER;
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount <= 0) {
        UpdateCommandUI(m_pMainWnd);
        return TRUE;
    }
    GetThreadState().ClearTemporaries();
    return FALSE;
}

int CWinThread::Run() {
    bool isIdle = true;
    LONG idleCount = 0;
    for (;;) {
        MSG next;
        while (isIdle && !::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE))
            isIdle = OnIdle(idleCount++);
        do {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur)) {
                isIdle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE));
    }
}

int CWinThread::ExitInstance() {
    return static_cast<int>(m_msgCur.wParam);
}

LRESULT CWinThread::ProcessWndProcException(CException*, const MSG* pMsg) {
    if (pMsg->message == WM_CREATE)
        return -1;
    if (pMsg->message == WM_PAINT) {
        // Or the same failing paint would come again at once. ValidateRect would leave a frame that was not
        // painted yet.
        PAINTSTRUCT paint;
        ::BeginPaint(pMsg->hwnd, &paint);
        ::EndPaint(pMsg->hwnd, &paint);
    }
    return 0;
}
