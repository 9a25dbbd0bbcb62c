// What this process holds of the system.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

/// Objects of the graphics interface: pens, bitmaps, device contexts.
///
/// Where the system does not tell the number, its table of them does, which it shows to every process.
inline int GraphicsObjects() {
    if (const DWORD count = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(count);
    struct Entry {
        ULONGLONG object;
        USHORT owner, uses, generation;
        BYTE type, flags;
        ULONGLONG user;
    };
    constexpr int kEntries = 0x10000;
#ifdef _WIN64
    constexpr size_t kTableInBlock = 0xF8;
    const auto* block = reinterpret_cast<const BYTE*>(__readgsqword(0x60));
#else
    constexpr size_t kTableInBlock = 0x94;
    const auto* block = reinterpret_cast<const BYTE*>(__readfsdword(0x30));
#endif
    const auto* table = *reinterpret_cast<const Entry* const*>(block + kTableInBlock);
    int count = 0;
    for (int i = 0; table && i < kEntries; ++i)
        count += table[i].type != 0;
    return count;
}

/// Handles of movable global memory. A process can have 65,536 of them: the count is what is missing when no
/// more can be had.
inline int GlobalBlocks() {
    constexpr int kMost = 0x10000;
    static std::vector<HGLOBAL> taken(kMost);
    int count = 0;
    while (count < kMost && (taken[count] = ::GlobalAlloc(GMEM_MOVEABLE, 0)) != nullptr)
        ++count;
    for (int i = count; i-- > 0;)
        ::GlobalFree(taken[i]);
    return kMost - count;
}
