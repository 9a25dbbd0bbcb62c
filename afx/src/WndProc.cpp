// The way of a message: window procedure, object, message map, default handling.
#include "ThreadState.h"

#include "CommandMessages.h"

#include <new>

namespace {

/// Keeps the message being handled for Default and puts the outer one back.
class MessageScope {
public:
    MessageScope(ThreadState& state, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
        : m_state(state), m_outer(state.message) {
        m_state.message = {};
        m_state.message.hwnd = window;
        m_state.message.message = message;
        m_state.message.wParam = wParam;
        m_state.message.lParam = lParam;
        ++m_state.dispatchDepth;
    }
    ~MessageScope() {
        --m_state.dispatchDepth;
        m_state.message = m_outer;
    }
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;

private:
    ThreadState& m_state;
    MSG m_outer;
};

/// What a window answers whose handler threw.
LRESULT AnswerException(CException* exception, const MSG& message) {
    CWinThread* thread = AfxGetThread();
    LRESULT answer = thread ? thread->ProcessWndProcException(exception, &message)
                            : CWinThread().ProcessWndProcException(exception, &message);
    exception->Delete();
    return answer;
}

/// A window that is gone is in no map, whatever its handlers forgot to pass on.
void ForgetDestroyed(HWND window) {
    if (CWnd* left = CWnd::FromHandlePermanent(window))
        left->Detach();
}

}  // namespace

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    if (nMsg == WM_QUERYAFXWNDPROC)
        return 1;
    CWnd* object = CWnd::FromHandlePermanent(hWnd);
    if (!object)
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(object, hWnd, nMsg, wParam, lParam);
}

LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    MessageScope scope(GetThreadState(), hWnd, nMsg, wParam, lParam);
    LRESULT result = 0;
    try {
        result = pWnd->WindowProc(nMsg, wParam, lParam);
    } catch (CException* exception) {
        result = AnswerException(exception, GetThreadState().message);
    } catch (const std::bad_alloc&) {
        result = AnswerException(new CMemoryException, GetThreadState().message);
    }
    if (nMsg == WM_NCDESTROY)
        ForgetDestroyed(hWnd);
    return result;
}

const MSG* PASCAL CWnd::GetCurrentMessage() {
    return &GetThreadState().message;
}

LRESULT CWnd::Default() {
    const MSG& message = GetThreadState().message;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    WNDPROC super = *GetSuperWndProcAddr();
    if (super)
        return ::CallWindowProc(super, m_hWnd, message, wParam, lParam);
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND window = pMsg->hwnd; window; window = ::GetParent(window)) {
        CWnd* object = FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(pMsg))
            return TRUE;
        if (window == hWndStop)
            break;
    }
    return FALSE;
}

namespace {

/// Finds out whether a command is enabled, without showing it anywhere.
class EnabledTest : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        m_isEnabled = bOn != FALSE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}
    bool IsEnabled() const { return m_isEnabled; }

private:
    bool m_isEnabled = true;
};

}  // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    UINT id = LOWORD(wParam);
    if (lParam) {
        // Values that are being moved are not the user's entries.
        if (GetThreadState().exchanging == m_hWnd || ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
            return TRUE;
        return id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
    }
    if (id == 0)
        return FALSE;
    // The accelerator of a command that is disabled by now does nothing.
    EnabledTest test;
    test.m_nID = id;
    OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &test, nullptr);
    if (!test.IsEnabled())
        return TRUE;
    return OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (GetThreadState().exchanging == m_hWnd || ReflectLastMsg(header->hwndFrom, pResult))
        return TRUE;
    UINT id = static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom));
    NotifyMessage notify{pResult, header};
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}
