// Bitmaps of 32 bits a pixel, the first row on top.
#pragma once

#include "core/Platform.h"

namespace Studio {

/// What the system has to be told about such pixels.
inline BITMAPINFO PixelInfo(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    return info;
}

/// A bitmap whose pixels are 0 and stand at `pixels`; the caller deletes it. Raises a `CMemoryException`.
inline HBITMAP MakePixels(int width, int height, void*& pixels) {
    const BITMAPINFO info = PixelInfo(width, height);
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (!bitmap)
        AfxThrowMemoryException();
    return bitmap;
}

}  // namespace Studio
