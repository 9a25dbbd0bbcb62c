// The pixels of a bitmap.
#pragma once

#include "core/Platform.h"

#include <vector>

namespace Lumo {

/// Pixels row by row from the top: blue in the lowest byte, then green, red, and alpha where there is one.
struct BitmapPixels {
    int width = 0;
    int height = 0;
    bool alpha = false;  ///< the bitmap has room for an alpha
    std::vector<DWORD> pixels;
};

/// The pixels of a bitmap that no device context holds; none when there is no bitmap.
BitmapPixels ReadPixels(HBITMAP bitmap);

/// A description of pixels in that order.
BITMAPINFO TopDownInfo(int width, int height);

}  // namespace Lumo
