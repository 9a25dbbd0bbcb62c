// A bitmap to paint on and to read pixels from.
#pragma once

#include <afxwin.h>
#include <objidl.h>
#include <gdiplus.h>

#include <algorithm>
#include <cstdlib>

/// A white ARGB bitmap with a graphics object of one unit per pixel. GDI+ must have been started.
class Surface {
public:
    Surface(int width, int height) : m_bitmap(width, height, PixelFormat32bppARGB), m_graphics(&m_bitmap) {
        Clear();
    }

    void Clear() { m_graphics.Clear(Gdiplus::Color(kWhite)); }

    Gdiplus::Graphics& graphics() { return m_graphics; }
    operator Gdiplus::Graphics*() { return &m_graphics; }

    Gdiplus::ARGB At(int x, int y) {
        Gdiplus::Color color;
        m_bitmap.GetPixel(x, y, &color);
        return color.GetValue();
    }

    /// True when the pixel is, within rounding, `argb` blended onto the paper.
    bool Shows(int x, int y, Gdiplus::ARGB argb) {
        const Gdiplus::ARGB got = At(x, y);
        const int alpha = argb >> 24;
        for (int shift : {0, 8, 16}) {
            const int part = argb >> shift & 0xFF;
            const int blended = (part * alpha + 255 * (255 - alpha)) / 255;
            if (std::abs(static_cast<int>(got >> shift & 0xFF) - blended) > 2)
                return false;
        }
        return true;
    }

    /// Bounds of the pixels that are not white: left, top, right, bottom with the last two exclusive. Empty
    /// when nothing was painted.
    CRect Painted() {
        const int width = static_cast<int>(m_bitmap.GetWidth());
        const int height = static_cast<int>(m_bitmap.GetHeight());
        CRect bounds(width, height, 0, 0);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if (At(x, y) != kWhite) {
                    bounds.left = std::min<LONG>(bounds.left, x);
                    bounds.top = std::min<LONG>(bounds.top, y);
                    bounds.right = std::max<LONG>(bounds.right, x + 1);
                    bounds.bottom = std::max<LONG>(bounds.bottom, y + 1);
                }
        return bounds.right == 0 ? CRect(0, 0, 0, 0) : bounds;
    }

    static constexpr Gdiplus::ARGB kWhite = 0xFFFFFFFF;

private:
    Gdiplus::Bitmap m_bitmap;
    Gdiplus::Graphics m_graphics;
};
