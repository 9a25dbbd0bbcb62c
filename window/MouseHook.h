// Listens to the mouse of a thread, ahead of its windows.
#pragma once

#include "core/Platform.h"

#include <functional>
#include <memory>

namespace Lumo {

struct HookEntry;

/// A mouse message that a window of the thread is about to get.
struct HookedMouse {
    UINT message;  ///< `WM_MOUSEMOVE`, `WM_LBUTTONDOWN`, `WM_NCLBUTTONDOWN`, ...
    CPoint point;  ///< in screen coordinates
    HWND window;   ///< the window that gets it
    UINT hitTest;  ///< the part of the window: `HTCLIENT` or another one
    int wheel;     ///< the turn of a wheel, 120 a notch, 0 in other messages
};

/// One listener to the mouse of the thread that starts it, for what shall end with a press elsewhere. Order,
/// starting, stopping and exceptions are as for `KeyboardHook`.
class TESSEL_API MouseHook {
public:
    /// Answers whether the message is swallowed: neither the other listeners nor the window get it then.
    using Listener = std::function<bool(const HookedMouse&)>;

    MouseHook() = default;
    ~MouseHook();
    MouseHook(const MouseHook&) = delete;
    MouseHook& operator=(const MouseHook&) = delete;

    /// Calls `listener` for what this thread gets from now on, in the place of the one that was started
    /// before. False when there is no function or the system refuses.
    bool Start(Listener listener);
    /// As `Start`, for presses of a button alone that are not for `window`, one within it or a menu:
    /// `pressed` is called before the press goes on to its window.
    bool StartElsewhere(HWND window, std::function<void()> pressed);
    /// Ends the calls, as `KeyboardHook::Stop` does.
    void Stop();
    /// Whether it was started and not stopped.
    bool IsRunning() const { return m_entry != nullptr; }

private:
    std::shared_ptr<HookEntry> m_entry;
};

}  // namespace Lumo
