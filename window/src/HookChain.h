// The listeners of each thread behind one hook of the system.
#pragma once

#include "core/Platform.h"

#include <atomic>
#include <functional>
#include <memory>
#include <utility>

namespace Lumo {

/// A listener that was started.
struct HookEntry {
    HookEntry(int kind, std::function<bool(WPARAM, LPARAM)> listener)
        : listener(std::move(listener)), kind(kind) {}

    /// Answers whether it swallows, from the parameters of the system's hook.
    std::function<bool(WPARAM, LPARAM)> listener;
    const int kind;  // WH_KEYBOARD or WH_MOUSE
    const DWORD thread = ::GetCurrentThreadId();
    std::atomic<bool> stopped = false;
};

/// Puts a listener in front of this thread's others of the same kind. Null when the system refuses.
std::shared_ptr<HookEntry> StartHook(int kind, std::function<bool(WPARAM, LPARAM)> listener);

/// Ends a listener; null is none.
void StopHook(const std::shared_ptr<HookEntry>& entry);

}  // namespace Lumo
