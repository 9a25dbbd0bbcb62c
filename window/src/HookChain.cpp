#include "HookChain.h"

#include "Callback.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace Lumo {

namespace {

using Entries = std::vector<std::shared_ptr<HookEntry>>;

struct Chain {
    DWORD thread;
    int kind;
    HHOOK hook;
    Entries entries;  // the newest last
};

std::mutex g_lock;
std::vector<Chain> g_chains;

std::vector<Chain>::iterator Find(DWORD thread, int kind) {
    return std::find_if(g_chains.begin(), g_chains.end(),
                        [&](const Chain& chain) { return chain.thread == thread && chain.kind == kind; });
}

// Without the lock a listener may start and stop others; what it sees is a copy of the list.
Entries EntriesNow(int kind) {
    const std::lock_guard guard(g_lock);
    const auto chain = Find(::GetCurrentThreadId(), kind);
    return chain == g_chains.end() ? Entries() : chain->entries;
}

bool IsSwallowed(int kind, WPARAM wParam, LPARAM lParam) {
    const Entries entries = EntriesNow(kind);
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
        bool swallowed = false;
        if (!(*entry)->stopped)
            CallGuarded([&] { swallowed = (*entry)->listener(wParam, lParam); }, nullptr, WM_NULL, wParam);
        if (swallowed)
            return true;
    }
    return false;
}

// A message that is only looked at comes again when it is taken.
template <int kind>
LRESULT CALLBACK HookProc(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && IsSwallowed(kind, wParam, lParam))
        return 1;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

std::shared_ptr<HookEntry> StartHook(int kind, std::function<bool(WPARAM, LPARAM)> listener) {
    auto entry = std::make_shared<HookEntry>(kind, std::move(listener));
    const std::lock_guard guard(g_lock);
    auto chain = Find(entry->thread, kind);
    if (chain == g_chains.end()) {
        const HOOKPROC proc = kind == WH_MOUSE ? HookProc<WH_MOUSE> : HookProc<WH_KEYBOARD>;
        const HHOOK hook = ::SetWindowsHookEx(kind, proc, nullptr, entry->thread);
        if (!hook)
            return nullptr;
        chain = g_chains.insert(chain, {entry->thread, kind, hook, {}});
    }
    chain->entries.push_back(entry);
    return entry;
}

void StopHook(const std::shared_ptr<HookEntry>& entry) {
    if (!entry)
        return;
    entry->stopped = true;
    const std::lock_guard guard(g_lock);
    const auto chain = Find(entry->thread, entry->kind);
    if (chain == g_chains.end())
        return;
    std::erase(chain->entries, entry);
    if (!chain->entries.empty())
        return;
    ::UnhookWindowsHookEx(chain->hook);
    g_chains.erase(chain);
}

}  // namespace Lumo
