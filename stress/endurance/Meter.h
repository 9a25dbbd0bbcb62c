// What this process holds of the system.
#pragma once

#include <afxwin.h>

#include <functional>

namespace endurance {

struct Holdings {
    size_t bytes;  // private memory
    int graphics;  // objects of the graphics interface
    int windows;
    int handles;

    static Holdings Now();
};

/// Does something `rounds` times after a fifth of that to warm up, and prints what was held before and after.
/// False when more is held afterwards than the tolerances allow; `platform` is how many bytes the system
/// alone grows by.
bool Endure(const char* what, int rounds, const std::function<void(int round)>& action, size_t platform = 0);

/// The same for what only the system does: prints and returns by how many bytes it grows.
size_t GrowthOfPlatform(const char* what, int rounds, const std::function<void(int round)>& action);

}  // namespace endurance
