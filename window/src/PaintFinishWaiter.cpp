#include "window/PaintFinishWaiter.h"

#include <algorithm>
#include <vector>

namespace Lumo {

namespace {

constexpr ULONGLONG kPause = 10;  // milliseconds between two looks at the windows of other threads

bool IsInvalid(HWND window) {
    return ::IsWindowVisible(window) && ::GetUpdateRect(window, nullptr, FALSE);
}

BOOL CALLBACK AddInvalid(HWND window, LPARAM list) {
    if (IsInvalid(window))
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

// Those in `top`, and itself, that have something to paint.
std::vector<HWND> InvalidWindows(HWND top) {
    std::vector<HWND> windows;
    if (!::IsWindow(top) || ::IsIconic(::GetAncestor(top, GA_ROOT)))
        return windows;
    if (IsInvalid(top))
        windows.push_back(top);
    ::EnumChildWindows(top, &AddInvalid, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

// Handles what other threads have sent, which may be what their painting waits for, and nothing else.
void AnswerSentMessages() {
    MSG none;
    ::PeekMessage(&none, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

}  // namespace

bool PaintFinishWaiter::IsFinished() const {
    return InvalidWindows(m_window).empty();
}

bool PaintFinishWaiter::Wait(UINT milliseconds) const {
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    for (;;) {
        // The window of another thread is not asked: if that thread does not answer, the limit would not
        // hold.
        for (HWND window : InvalidWindows(m_window)) {
            if (::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId())
                ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_NOCHILDREN);
        }
        ::GdiFlush();
        if (IsFinished())
            return true;
        const ULONGLONG now = ::GetTickCount64();
        if (now >= end)
            return false;
        const auto pause = static_cast<DWORD>((std::min)(end - now, kPause));
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, pause, QS_SENDMESSAGE);
        AnswerSentMessages();
    }
}

}  // namespace Lumo
