// Waits until a window has painted what is invalid.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Waits until a window and the windows in it have painted what is invalid, for somebody who takes a picture
/// of them or measures. Mouse, keyboard, timers and posted messages stay in the queue, in their order.
class TESSEL_API PaintFinishWaiter {
public:
    /// Waits for `window` and everything in it, also for parts that belong to other threads.
    explicit PaintFinishWaiter(HWND window) : m_window(window) {}

    /// Lets everything be painted and waits at most `milliseconds` until nothing is invalid. False when
    /// something still is: a window that invalidates itself while it paints, or a thread that does not come
    /// to it. Nothing is invalid of a window that is hidden, minimised or gone.
    bool Wait(UINT milliseconds = 1000) const;
    /// Whether nothing is invalid now.
    bool IsFinished() const;

private:
    HWND m_window;
};

}  // namespace Lumo
