#include "BitmapPixels.h"

#include <algorithm>

namespace Lumo {

namespace {

// A description of pixels in the order in which they are kept.
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

// What was the right side is at the top.
BitmapPixels TurnedOnce(const BitmapPixels& picture, const CRect& part) {
    BitmapPixels turned = {part.Height(), part.Width(), picture.alpha, {}};
    turned.pixels.reserve(static_cast<size_t>(turned.width) * static_cast<size_t>(turned.height));
    for (int x = part.right - 1; x >= part.left; --x) {
        for (int y = part.top; y < part.bottom; ++y)
            turned.pixels.push_back(
                picture.pixels[static_cast<size_t>(y) * static_cast<size_t>(picture.width) +
                               static_cast<size_t>(x)]);
    }
    return turned;
}

}  // namespace

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

BitmapPixels Turned(const BitmapPixels& picture, const CRect& part, int times) {
    BitmapPixels turned = TurnedOnce(picture, part);
    for (int i = 1; i < times; ++i)
        turned = TurnedOnce(turned, CRect(0, 0, turned.width, turned.height));
    return turned;
}

PixelCanvas::PixelCanvas(const BitmapPixels& picture) : m_width(picture.width), m_height(picture.height) {
    const BITMAPINFO info = TopDownInfo(m_width, m_height);
    void* bits = nullptr;
    m_dc.CreateCompatibleDC(nullptr);
    if (!m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)))
        return;
    m_bits = static_cast<DWORD*>(bits);
    std::copy(picture.pixels.begin(), picture.pixels.end(), m_bits);
    m_old = ::SelectObject(m_dc, m_bitmap);
}

PixelCanvas::~PixelCanvas() {
    if (m_old)
        ::SelectObject(m_dc, m_old);
}

BitmapPixels PixelCanvas::Pixels() const {
    ::GdiFlush();
    BitmapPixels picture = {m_width, m_height, true, {}};
    const size_t count = static_cast<size_t>(m_width) * static_cast<size_t>(m_height);
    if (m_bits)
        picture.pixels.assign(m_bits, m_bits + count);
    else
        picture.pixels.resize(count);
    return picture;
}

HBITMAP PixelCanvas::Detach() {
    if (m_old)
        ::SelectObject(m_dc, m_old);
    m_old = nullptr;
    return static_cast<HBITMAP>(m_bitmap.Detach());
}

}  // namespace Lumo
