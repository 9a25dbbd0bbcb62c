#include "studio/app/Painting.h"

#include <algorithm>

namespace Studio {

BufferedPaint::BufferedPaint(CWnd& window) : m_dc(&window) {
    window.GetClientRect(m_client);
    m_bitmap = std::make_unique<Gdiplus::Bitmap>(std::max<int>(m_client.Width(), 1),
                                                 std::max<int>(m_client.Height(), 1), PixelFormat32bppPARGB);
    m_graphics = std::make_unique<Gdiplus::Graphics>(m_bitmap.get());
    m_graphics->SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
}

BufferedPaint::~BufferedPaint() {
    m_graphics.reset();
    Gdiplus::Graphics window(m_dc.m_hDC);
    window.DrawImage(m_bitmap.get(), 0, 0);
}

bool BufferedPaint::Needs(const CRect& rect) const {
    CRect common;
    return common.IntersectRect(rect, &m_dc.m_ps.rcPaint) != FALSE;
}

namespace {

constexpr int kOversampling = 4;

// Mean of a square of premultiplied pixels.
DWORD Average(const DWORD* pixel, int stride) {
    DWORD alpha = 0, red = 0, green = 0, blue = 0;
    for (int y = 0; y < kOversampling; ++y) {
        for (int x = 0; x < kOversampling; ++x) {
            const DWORD value = pixel[y * stride + x];
            alpha += value >> 24;
            red += value >> 16 & 0xFF;
            green += value >> 8 & 0xFF;
            blue += value & 0xFF;
        }
    }
    constexpr DWORD kCount = kOversampling * kOversampling;
    return alpha / kCount << 24 | red / kCount << 16 | green / kCount << 8 | blue / kCount;
}

void Reduce(Gdiplus::Bitmap& from, Gdiplus::Bitmap& to) {
    Gdiplus::Rect all(0, 0, from.GetWidth(), from.GetHeight());
    Gdiplus::Rect small(0, 0, to.GetWidth(), to.GetHeight());
    Gdiplus::BitmapData source, target;
    if (from.LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppPARGB, &source) != Gdiplus::Ok)
        return;
    if (to.LockBits(&small, Gdiplus::ImageLockModeWrite, PixelFormat32bppPARGB, &target) == Gdiplus::Ok) {
        const int sourceStride = source.Stride / static_cast<int>(sizeof(DWORD));
        const int targetStride = target.Stride / static_cast<int>(sizeof(DWORD));
        for (ptrdiff_t y = 0; y < small.Height; ++y) {
            for (ptrdiff_t x = 0; x < small.Width; ++x) {
                const auto* square =
                    static_cast<const DWORD*>(source.Scan0) + y * kOversampling * sourceStride;
                static_cast<DWORD*>(target.Scan0)[y * targetStride + x] =
                    Average(square + x * kOversampling, sourceStride);
            }
        }
        to.UnlockBits(&target);
    }
    from.UnlockBits(&source);
}

}  // namespace

std::unique_ptr<Gdiplus::Bitmap> DrawSmooth(int width, int height,
                                            const std::function<void(Gdiplus::Graphics&)>& draw) {
    Gdiplus::Bitmap large(width * kOversampling, height * kOversampling, PixelFormat32bppPARGB);
    {
        Gdiplus::Graphics g(&large);
        g.ScaleTransform(kOversampling, kOversampling);
        draw(g);
    }
    auto result = std::make_unique<Gdiplus::Bitmap>(width, height, PixelFormat32bppPARGB);
    Reduce(large, *result);
    return result;
}

HFONT BarFont() {
    static CFont font;
    if (!font.m_hObject)
        font.CreatePointFont(90, L"Segoe UI");
    return font;
}

}  // namespace Studio
