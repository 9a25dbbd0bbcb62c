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

/// A part of the picture turned by 270 degrees clockwise, so many times.
BitmapPixels Turned(const BitmapPixels& picture, const CRect& part, int times = 1);

/// Pixels with a device context that paints on them.
class PixelCanvas {
public:
    explicit PixelCanvas(const BitmapPixels& picture);
    ~PixelCanvas();
    PixelCanvas(const PixelCanvas&) = delete;
    PixelCanvas& operator=(const PixelCanvas&) = delete;

    CDC& Dc() { return m_dc; }
    /// What has been painted.
    BitmapPixels Pixels() const;
    /// Gives the bitmap to the caller, who deletes it; null when there was no memory for it. Nothing is
    /// painted any more.
    HBITMAP Detach();

private:
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_old = nullptr;
    int m_width, m_height;
    DWORD* m_bits = nullptr;
};

}  // namespace Lumo
