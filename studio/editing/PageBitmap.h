// The picture of a part of a page, off-screen.
#pragma once

#include "core/Platform.h"

#include <memory>
#include <vector>

namespace Studio {

/// Pixels that can be painted with GDI+ or set one by one, which is what makes a grid and thousands of
/// outlines cheap. Keeps its memory from one paint to the next.
class PageBitmap {
public:
    /// Starts a picture of `part` (page units, not empty) in one colour (opaque ARGB).
    void Begin(const CRect& part, DWORD ground);

    /// Starts a picture of `part` with what `other`, which covers it, shows there.
    void Begin(const CRect& part, const PageBitmap& other);

    /// Graphics over the picture in page units, clipped to it. Valid until the next `Begin`.
    std::unique_ptr<Gdiplus::Graphics> MakeGraphics();

    /// One pixel (page units); nothing happens outside.
    void Dot(int x, int y, DWORD color) {
        if (x >= m_part.left && x < m_part.right && y >= m_part.top && y < m_part.bottom)
            m_pixels[static_cast<size_t>(y - m_part.top) * m_width + (x - m_part.left)] = color;
    }
    /// A dotted outline, two colours in turn, so that it shows on any ground.
    void DottedFrame(const CRect& frame, DWORD first, DWORD second);

    /// Copies the picture to a window that has the page's point `origin` at its corner.
    void Show(HDC dc, CPoint origin) const;

private:
    void Wrap();

    CRect m_part;
    size_t m_width = 0;
    std::vector<DWORD> m_pixels;
    std::unique_ptr<Gdiplus::Bitmap> m_bitmap;  // over the pixels
};

}  // namespace Studio
