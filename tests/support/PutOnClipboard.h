// Bytes on the real clipboard.
#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

/// Replaces the clipboard's contents by `bytes` in `format`; `owner` may be null. No bytes become a zero
/// byte, as the clipboard takes no empty block. False when another program holds the clipboard for a second.
inline bool PutOnClipboard(HWND owner, UINT format, const std::vector<BYTE>& bytes) {
    constexpr DWORD kPatience = 1000;
    for (const DWORD start = ::GetTickCount(); !::OpenClipboard(owner);) {
        if (::GetTickCount() - start > kPatience)
            return false;
        ::SwitchToThread();
    }
    ::EmptyClipboard();
    HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, std::max<size_t>(bytes.size(), 1));
    std::copy(bytes.begin(), bytes.end(), static_cast<BYTE*>(::GlobalLock(memory)));
    ::GlobalUnlock(memory);
    const bool put = ::SetClipboardData(format, memory) != nullptr;
    ::CloseClipboard();
    return put;
}
