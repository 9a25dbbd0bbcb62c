#include "stress/monkey/Clock.h"

#include "stress/support/Imports.h"

#include <algorithm>
#include <vector>

namespace monkey {

namespace {

struct RunningTimer {
    HWND window;
    UINT_PTR id;
    DWORD period;  // milliseconds
    TIMERPROC served;
    ULONGLONG due;
};

ULONGLONG g_now = 1'000'000;  // milliseconds
std::vector<RunningTimer> g_timers;

std::vector<RunningTimer>::iterator Find(HWND window, UINT_PTR id) {
    return std::find_if(g_timers.begin(), g_timers.end(),
                        [&](const RunningTimer& timer) { return timer.window == window && timer.id == id; });
}

ULONGLONG WINAPI TellTickCount() {
    return g_now;
}

BOOL WINAPI TellCounter(LARGE_INTEGER* counter) {
    LARGE_INTEGER frequency;
    ::QueryPerformanceFrequency(&frequency);
    counter->QuadPart = static_cast<LONGLONG>(g_now) * frequency.QuadPart / 1000;
    return TRUE;
}

UINT_PTR WINAPI KeepTimer(HWND window, UINT_PTR id, UINT period, TIMERPROC served) {
    auto timer = Find(window, id);
    if (timer == g_timers.end())
        timer = g_timers.insert(timer, RunningTimer{});
    *timer = {window, id, std::max<DWORD>(period, USER_TIMER_MINIMUM), served, 0};
    timer->due = g_now + timer->period;
    return id;
}

BOOL WINAPI ForgetTimer(HWND window, UINT_PTR id) {
    const auto timer = Find(window, id);
    if (timer == g_timers.end())
        return FALSE;
    g_timers.erase(timer);
    return TRUE;
}

// The timers that are due, which begin anew; those of windows that are gone went with them.
std::vector<RunningTimer> TakeDue() {
    std::erase_if(g_timers, [](const RunningTimer& timer) { return !::IsWindow(timer.window); });
    std::vector<RunningTimer> due;
    for (RunningTimer& timer : g_timers) {
        if (timer.due > g_now)
            continue;
        timer.due = g_now + timer.period;
        due.push_back(timer);
    }
    return due;
}

}  // namespace

void StartClock() {
    for (LPCWSTR module : {L"TesselAfx.dll", L"TesselCtrls.dll", LPCWSTR()}) {
        ReplaceImport(module, "GetTickCount64", &TellTickCount);
        ReplaceImport(module, "QueryPerformanceCounter", &TellCounter);
        ReplaceImport(module, "SetTimer", &KeepTimer);
        ReplaceImport(module, "KillTimer", &ForgetTimer);
    }
}

void PassTime(DWORD milliseconds) {
    g_now += milliseconds;
}

void RunDueTimers() {
    for (const RunningTimer& timer : TakeDue()) {
        if (Find(timer.window, timer.id) == g_timers.end())
            continue;
        if (timer.served)
            timer.served(timer.window, WM_TIMER, timer.id, static_cast<DWORD>(g_now));
        else
            ::SendMessage(timer.window, WM_TIMER, timer.id, 0);
    }
}

void PostDueTimers() {
    for (const RunningTimer& timer : TakeDue())
        ::PostMessage(timer.window, WM_TIMER, timer.id, reinterpret_cast<LPARAM>(timer.served));
}

}  // namespace monkey
