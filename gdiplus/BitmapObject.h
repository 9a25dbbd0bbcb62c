// Pictures that callers hold.
#pragma once

#include "gdiplus/Handles.h"
#include "raster/Surface.h"

#include <vector>

namespace flat {

/// Pixels of its own or of the caller's, in one of the formats that the renderer draws on.
struct BitmapObject final : Object {
    static constexpr Kind kFirst = Kind::Bitmap, kLast = Kind::Bitmap;

    /// NotImplemented for other formats. `pixels` are the caller's; null for own ones, all 0.
    BitmapObject(int across, int down, PixelFormat pixelFormat, INT rowBytes = 0, BYTE* pixels = nullptr);

    raster::Surface Surface() const;
    std::vector<uint32_t> Premultiplied() const;

    int width, height;
    PixelFormat format;
    INT stride;
    BYTE* bits;
    REAL dpiX = 96, dpiY = 96;
    bool locked = false;

private:
    std::vector<BYTE> m_own;
};

}  // namespace flat
