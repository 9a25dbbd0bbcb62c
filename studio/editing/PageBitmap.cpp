#include "studio/editing/PageBitmap.h"

#include "studio/editing/Pixels.h"

#include <algorithm>

namespace Studio {

namespace {

constexpr int kDash = 3;  // pixels of one colour

}  // namespace

void PageBitmap::Begin(const CRect& part, DWORD ground) {
    m_part = part;
    m_width = static_cast<size_t>(part.Width());
    m_pixels.assign(m_width * static_cast<size_t>(part.Height()), ground);
    Wrap();
}

void PageBitmap::Begin(const CRect& part, const PageBitmap& other) {
    m_part = part;
    m_width = static_cast<size_t>(part.Width());
    m_pixels.resize(m_width * static_cast<size_t>(part.Height()));
    const DWORD* row = other.m_pixels.data() +
                       static_cast<size_t>(part.top - other.m_part.top) * other.m_width +
                       (part.left - other.m_part.left);
    for (DWORD* to = m_pixels.data(); to != m_pixels.data() + m_pixels.size(); to += m_width) {
        std::copy_n(row, m_width, to);
        row += other.m_width;
    }
    Wrap();
}

void PageBitmap::Wrap() {
    m_bitmap = std::make_unique<Gdiplus::Bitmap>(
        m_part.Width(), m_part.Height(), static_cast<INT>(m_width * sizeof(DWORD)), PixelFormat32bppPARGB,
        reinterpret_cast<BYTE*>(m_pixels.data()));
}

std::unique_ptr<Gdiplus::Graphics> PageBitmap::MakeGraphics() {
    auto graphics = std::make_unique<Gdiplus::Graphics>(m_bitmap.get());
    graphics->TranslateTransform(static_cast<float>(-m_part.left), static_cast<float>(-m_part.top));
    return graphics;
}

void PageBitmap::DottedFrame(const CRect& frame, DWORD first, DWORD second) {
    const auto color = [&](int along) { return along / kDash % 2 == 0 ? first : second; };
    const int left = std::max(frame.left, m_part.left);
    const int right = std::min(frame.right, m_part.right - 1);
    const int top = std::max(frame.top, m_part.top);
    const int bottom = std::min(frame.bottom, m_part.bottom - 1);
    for (int x = left; x <= right; ++x) {
        Dot(x, frame.top, color(x - frame.left));
        Dot(x, frame.bottom, color(x - frame.left));
    }
    for (int y = top; y <= bottom; ++y) {
        Dot(frame.left, y, color(y - frame.top));
        Dot(frame.right, y, color(y - frame.top));
    }
}

void PageBitmap::Show(HDC dc, CPoint origin) const {
    const BITMAPINFO info = PixelInfo(m_part.Width(), m_part.Height());
    ::SetDIBitsToDevice(dc, m_part.left - origin.x, m_part.top - origin.y, m_part.Width(), m_part.Height(), 0,
                        0, 0, m_part.Height(), m_pixels.data(), &info, DIB_RGB_COLORS);
}

}  // namespace Studio
