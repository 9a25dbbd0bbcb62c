#include "BitmapPixels.h"

namespace Lumo {

BITMAPINFO TopDownInfo(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

BitmapPixels ReadPixels(HBITMAP bitmap) {
    BITMAP size = {};
    if (!::GetObject(bitmap, sizeof size, &size) || size.bmWidth <= 0 || size.bmHeight <= 0)
        return {};
    BitmapPixels read = {size.bmWidth, size.bmHeight, size.bmBitsPixel == 32, {}};
    read.pixels.resize(static_cast<size_t>(size.bmWidth) * static_cast<size_t>(size.bmHeight));
    BITMAPINFO info = TopDownInfo(read.width, read.height);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    if (!::GetDIBits(dc, bitmap, 0, static_cast<UINT>(read.height), read.pixels.data(), &info,
                     DIB_RGB_COLORS))
        return {};
    return read;
}

}  // namespace Lumo
