#include "window/Timer.h"

#include "Callback.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace Lumo {

namespace {

// A tick that waits in the queue names its timer by address; only one that is listed here still exists.
std::mutex g_lock;
std::vector<Timer*> g_running;

bool IsListed(Timer* timer) {
    const std::lock_guard guard(g_lock);
    return std::find(g_running.begin(), g_running.end(), timer) != g_running.end();
}

}  // namespace

Timer::~Timer() {
    Stop();
}

bool Timer::Start(CWnd& owner, UINT milliseconds, std::function<void()> tick) {
    Stop();
    if (!owner.m_hWnd || !tick ||
        !::SetTimer(owner.m_hWnd, reinterpret_cast<UINT_PTR>(this), milliseconds, &Timer::OnTick))
        return false;
    m_window = owner.m_hWnd;
    m_tick = std::move(tick);
    const std::lock_guard guard(g_lock);
    g_running.push_back(this);
    return true;
}

void Timer::Stop() {
    if (!m_window)
        return;
    ::KillTimer(m_window, reinterpret_cast<UINT_PTR>(this));
    m_window = nullptr;
    const std::lock_guard guard(g_lock);
    std::erase(g_running, this);
}

void CALLBACK Timer::OnTick(HWND window, UINT message, UINT_PTR id, DWORD) {
    auto* timer = reinterpret_cast<Timer*>(id);
    if (!IsListed(timer) || timer->m_window != window)
        return;
    // A copy, for a tick that starts the timer anew or destroys it.
    const auto tick = timer->m_tick;
    CallGuarded(tick, window, message, id);
}

}  // namespace Lumo
