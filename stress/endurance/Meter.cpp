#include "stress/endurance/Meter.h"

#include <psapi.h>

#include <cstdio>

namespace endurance {

namespace {

// What the platform itself moves by: a process that only fills a window moves by less.
constexpr size_t kBytes = 512 * 1024;
constexpr int kObjects = 4;

BOOL CALLBACK CountChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM count) {
    ::EnumChildWindows(window, &CountChild, count);
    return CountChild(window, count);
}

// Where the system does not tell the number, the table of all graphics objects does, which it shows to every
// process.
int GraphicsObjects() {
    if (const DWORD count = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(count);
    struct Entry {
        ULONGLONG object;
        USHORT owner, uses, generation;
        BYTE type, flags;
        ULONGLONG user;
    };
    constexpr size_t kTableInBlock = 0xF8;
    constexpr int kEntries = 0x10000;
    const auto* block = reinterpret_cast<const BYTE*>(__readgsqword(0x60));
    const auto* table = *reinterpret_cast<const Entry* const*>(block + kTableInBlock);
    int count = 0;
    for (int i = 0; table && i < kEntries; ++i)
        count += table[i].type != 0;
    return count;
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

}  // namespace

Holdings Holdings::Now() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    int windows = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), &CountWindow, reinterpret_cast<LPARAM>(&windows));
    return {counters.PagefileUsage, GraphicsObjects(), windows, Handles()};
}

bool Endure(const char* what, int rounds, const std::function<void(int round)>& action) {
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
    const Holdings after = repeat(rounds);
    const bool flat = after.bytes <= before.bytes + kBytes && after.graphics <= before.graphics + kObjects &&
                      after.windows <= before.windows && after.handles <= before.handles + kObjects;
    std::printf(
        "%-44s %6d x  %7zu -> %7zu KB  graphics %4d -> %4d  windows %3d -> %3d  handles %3d -> %3d  %s\n",
        what, rounds, before.bytes / 1024, after.bytes / 1024, before.graphics, after.graphics,
        before.windows, after.windows, before.handles, after.handles, flat ? "flat" : "GROWS");
    std::fflush(stdout);
    return flat;
}

}  // namespace endurance
