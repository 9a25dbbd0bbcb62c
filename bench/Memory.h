// What this process holds of memory.
#pragma once

#include <windows.h>

#include <psapi.h>

#include <cstddef>

namespace bench {

/// Private memory of this process in bytes.
inline size_t PrivateBytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return counters.PagefileUsage;
}

}  // namespace bench
