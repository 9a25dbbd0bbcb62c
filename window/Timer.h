// A timer that ends with its object.
#pragma once

#include "core/Platform.h"

#include <functional>

namespace Lumo {

/// Calls a function again and again while a window's thread handles messages. Never calls after `Stop` or
/// after the timer's end, not even for a tick that was already under way. All calls come from the window's
/// thread. What a tick throws ends up where a message handler's exceptions do:
/// CWinThread::ProcessWndProcException.
class TESSEL_API Timer {
public:
    Timer() = default;
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    /// Calls `tick` every `milliseconds` (10 or more) from now on; a timer that runs is started anew. The
    /// timer stops when `owner` loses its window. False when it cannot be started.
    bool Start(CWnd& owner, UINT milliseconds, std::function<void()> tick);
    /// Ends the calls; may be called by the tick itself.
    void Stop();
    /// Whether the timer was started and not stopped, and its window is still there.
    bool IsRunning() const { return m_window && ::IsWindow(m_window); }

private:
    static void CALLBACK OnTick(HWND window, UINT message, UINT_PTR id, DWORD time);

    HWND m_window = nullptr;
    std::function<void()> m_tick;
};

}  // namespace Lumo
