// Listens to the keys of a thread, ahead of its windows.
#pragma once

#include "core/Platform.h"

#include <functional>
#include <memory>

namespace Lumo {

struct HookEntry;

/// A key that a window of the thread is about to get.
struct HookedKey {
    UINT key;       ///< the virtual key
    bool down;      ///< pressed or repeated, not released
    bool repeated;  ///< was down before
    bool alt;       ///< Alt is down
};

/// One listener to the keys of the thread that starts it. The thread's listeners are asked in turn, the one
/// started last first, when a key leaves the queue: also within menus and modal dialogs. Messages that a
/// program posts or sends are not listened to. A listener may start and stop any, itself included, while it
/// is called: one that was stopped is not called any more, one that was started begins with the next key.
/// The system's hook is there as long as the thread has a listener. What a listener throws ends up where a
/// message handler's exceptions do, and swallows nothing.
class TESSEL_API KeyboardHook {
public:
    /// Answers whether the key is swallowed: neither the other listeners nor the window get it then.
    using Listener = std::function<bool(const HookedKey&)>;

    KeyboardHook() = default;
    ~KeyboardHook();
    KeyboardHook(const KeyboardHook&) = delete;
    KeyboardHook& operator=(const KeyboardHook&) = delete;

    /// Calls `listener` for what this thread gets from now on, in the place of the one that was started
    /// before. False when there is no function or the system refuses.
    bool Start(Listener listener);
    /// Ends the calls, before the thread that has started it ends. Another thread may find one under way.
    void Stop();
    /// Whether it was started and not stopped.
    bool IsRunning() const { return m_entry != nullptr; }

private:
    std::shared_ptr<HookEntry> m_entry;
};

}  // namespace Lumo
