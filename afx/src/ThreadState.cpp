#include "ThreadState.h"

#include "WindowClasses.h"

#include <memory>
#include <set>

namespace {

/// All threads' states, so that unloading the DLL ends those of the threads that go on.
class ThreadStates {
public:
    ThreadStates() : m_slot(::TlsAlloc()) {}
    ~ThreadStates() {
        for (ThreadState* state : m_states)
            delete state;
        ::TlsFree(m_slot);
    }
    ThreadState* Find() const {
        DWORD error = ::GetLastError();
        auto* state = static_cast<ThreadState*>(::TlsGetValue(m_slot));
        ::SetLastError(error);  // TlsGetValue clears it, and callers look at it after window calls
        return state;
    }
    ThreadState& Make() {
        auto state = std::make_unique<ThreadState>();
        ExclusiveLock lock(m_lock);
        m_states.insert(state.get());
        ::TlsSetValue(m_slot, state.get());
        return *state.release();
    }
    void End() {
        std::unique_ptr<ThreadState> state(Find());
        if (!state)
            return;
        ::TlsSetValue(m_slot, nullptr);
        ExclusiveLock lock(m_lock);
        m_states.erase(state.get());
    }

private:
    DWORD m_slot;
    SRWLOCK m_lock = SRWLOCK_INIT;
    std::set<ThreadState*> m_states;
};

ThreadStates threadStates;

}  // namespace

void ThreadState::ClearTemporaries() {
    if (dispatchDepth > 0)
        return;
    windows.Clear();
    menus.Clear();
    graphics.Clear();
    contexts.Clear();
}

ThreadState& GetThreadState() {
    ThreadState* state = threadStates.Find();
    return state ? *state : threadStates.Make();
}

void EndThreadState() {
    threadStates.End();
}

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds) {
    if (reason == DLL_THREAD_DETACH)
        EndThreadState();
    if (reason == DLL_PROCESS_DETACH && !processEnds)
        UnregisterAllWindowClasses();
    return TRUE;
}
