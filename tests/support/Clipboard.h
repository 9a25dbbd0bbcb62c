// The real clipboard, which another program may be looking at just now.
#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

/// Opens the clipboard for `owner`, which may be null. False when another program holds it for a second.
inline bool OpenClipboardPatiently(HWND owner) {
    constexpr DWORD kPatience = 1000;
    for (const DWORD start = ::GetTickCount(); !::OpenClipboard(owner);) {
        if (::GetTickCount() - start > kPatience)
            return false;
        ::SwitchToThread();
    }
    return true;
}

/// Replaces the clipboard's contents by `bytes` in `format`; `owner` may be null. No bytes become a zero
/// byte, as the clipboard takes no empty block. False when another program holds the clipboard for a second.
inline bool PutOnClipboard(HWND owner, UINT format, const std::vector<BYTE>& bytes) {
    if (!OpenClipboardPatiently(owner))
        return false;
    ::EmptyClipboard();
    HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, std::max<size_t>(bytes.size(), 1));
    std::copy(bytes.begin(), bytes.end(), static_cast<BYTE*>(::GlobalLock(memory)));
    ::GlobalUnlock(memory);
    const bool put = ::SetClipboardData(format, memory) != nullptr;
    ::CloseClipboard();
    return put;
}
