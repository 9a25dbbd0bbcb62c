// The parent's part: starts processes that feed inputs, watches them, and keeps what ends them.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

struct Assignment {
    uint64_t seed = 1;
    uint64_t inputs = 0;  // in all
    double minutes = 0;   // instead, when it is not 0
    std::string only;     // one loader; empty: all
    std::string folder;   // where failing inputs are kept
};

/// Feeds inputs and prints what came of them. 0 when nothing failed.
int Supervise(const Assignment& assignment);

/// Runs this program with other arguments to its end, or for so many milliseconds; gives its exit code.
DWORD RunSelf(const std::wstring& arguments, DWORD milliseconds);
