#include "ThreadState.h"

#include "WindowClasses.h"

#include <memory>
#include <set>
#include <utility>

namespace {

// No slot while the DLL is not loaded or already unloading: its own static windows end then and look for a
// state.
constinit DWORD slot = TLS_OUT_OF_INDEXES;

// All threads' states, so that unloading the DLL ends those of the threads that go on.
SRWLOCK statesLock = SRWLOCK_INIT;
std::set<ThreadState*> states;

ThreadState& MakeThreadState() {
    auto state = std::make_unique<ThreadState>();
    ExclusiveLock lock(statesLock);
    states.insert(state.get());
    ::TlsSetValue(slot, state.get());
    return *state.release();
}

void EndThreadState() {
    std::unique_ptr<ThreadState> state(FindThreadState());
    if (!state)
        return;
    ::TlsSetValue(slot, nullptr);
    ExclusiveLock lock(statesLock);
    states.erase(state.get());
}

void EndAllThreadStates() {
    ::TlsFree(std::exchange(slot, TLS_OUT_OF_INDEXES));
    for (ThreadState* state : states)
        delete state;
}

}  // namespace

void ThreadState::ClearTemporaries() {
    if (dispatchDepth > 0)
        return;
    windows.Clear();
    menus.Clear();
    graphics.Clear();
    contexts.Clear();
}

ThreadState* FindThreadState() {
    DWORD error = ::GetLastError();
    auto* state = static_cast<ThreadState*>(::TlsGetValue(slot));
    ::SetLastError(error);  // TlsGetValue clears it, and callers look at it after window calls
    return state;
}

ThreadState& GetThreadState() {
    ThreadState* state = FindThreadState();
    return state ? *state : MakeThreadState();
}

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds) {
    if (reason == DLL_PROCESS_ATTACH)
        slot = ::TlsAlloc();
    if (reason == DLL_THREAD_DETACH)
        EndThreadState();
    // At the end of the process the system takes everything back, and other threads may have been cut off
    // anywhere.
    if (reason == DLL_PROCESS_DETACH && !processEnds) {
        UnregisterAllWindowClasses();
        EndAllThreadStates();
    }
    return slot != TLS_OUT_OF_INDEXES || reason != DLL_PROCESS_ATTACH;
}
