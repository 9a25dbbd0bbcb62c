#include "stress/endurance/Meter.h"

#include "tests/support/Holdings.h"

#include <psapi.h>

#include <algorithm>
#include <cstdio>

namespace endurance {

namespace {

// What the platform itself moves by: a process that only fills a window moves by less.
constexpr size_t kBytes = size_t{512} * 1024;
constexpr int kObjects = 4;

BOOL CALLBACK CountChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM count) {
    ::EnumChildWindows(window, &CountChild, count);
    return CountChild(window, count);
}

int Handles() {
    constexpr UINT_PTR kMost = 0x8000;
    int count = 0;
    for (UINT_PTR value = 4; value < kMost; value += 4) {
        DWORD flags;
        count += ::GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != FALSE;
    }
    return count;
}

struct Change {
    Holdings before, after;
};

Change Repeat(int rounds, const std::function<void(int round)>& action) {
    const auto repeat = [&](int count) {
        for (int round = 0; round < count; ++round) {
            action(round);
            MSG message;
            while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
                ::DispatchMessage(&message);
            AfxGetApp()->OnIdle(1);
        }
        return Holdings::Now();
    };
    const Holdings before = repeat(rounds / 5);
    return {before, repeat(rounds)};
}

void Print(const char* what, int rounds, const Change& held, const char* verdict) {
    std::printf("%-44s %6d x  %6zu -> %6zu KB  graphics %3d -> %3d  windows %d -> %d  handles %d -> %d  %s\n",
                what, rounds, held.before.bytes / 1024, held.after.bytes / 1024, held.before.graphics,
                held.after.graphics, held.before.windows, held.after.windows, held.before.handles,
                held.after.handles, verdict);
    std::fflush(stdout);
}

}  // namespace

Holdings Holdings::Now() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    int windows = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), &CountWindow, reinterpret_cast<LPARAM>(&windows));
    return {counters.PagefileUsage, GraphicsObjects(), windows, Handles()};
}

bool Endure(const char* what, int rounds, const std::function<void(int round)>& action, size_t platform) {
    const Change held = Repeat(rounds, action);
    const bool flat = held.after.bytes <= held.before.bytes + kBytes + platform &&
                      held.after.graphics <= held.before.graphics + kObjects &&
                      held.after.windows <= held.before.windows &&
                      held.after.handles <= held.before.handles + kObjects;
    Print(what, rounds, held, flat ? "flat" : "GROWS");
    return flat;
}

size_t GrowthOfPlatform(const char* what, int rounds, const std::function<void(int round)>& action) {
    const Change held = Repeat(rounds, action);
    Print(what, rounds, held, "(the platform alone)");
    return held.after.bytes - std::min(held.before.bytes, held.after.bytes);
}

}  // namespace endurance
