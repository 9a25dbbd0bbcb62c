#include "studio/runtime/BackBuffer.h"

#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "studio/controls/Picture.h"
#include "studio/editing/Pixels.h"

namespace Studio {

BackBuffer::~BackBuffer() {
    Drop();
}

void BackBuffer::Drop() {
    m_wrapper.reset();
    if (m_dc) {
        ::SelectObject(m_dc, m_before);
        ::DeleteDC(m_dc);
        ::DeleteObject(m_bitmap);
    }
    m_dc = nullptr;
    m_bitmap = nullptr;
}

bool BackBuffer::Fit(CSize size) {
    if (m_dc && size == m_size)
        return false;
    Drop();
    m_size = size;
    if (size.cx <= 0 || size.cy <= 0)
        return false;
    void* pixels = nullptr;
    m_bitmap = MakePixels(size.cx, size.cy, pixels);
    m_dc = ::CreateCompatibleDC(nullptr);
    m_before = ::SelectObject(m_dc, m_bitmap);
    m_wrapper = std::make_unique<Gdiplus::Bitmap>(size.cx, size.cy, size.cx * 4, PixelFormat32bppRGB,
                                                  static_cast<BYTE*>(pixels));
    return true;
}

void BackBuffer::Paint(const CRect& part, CPoint origin, const BackBuffer* ground,
                       const std::function<void(Gdiplus::Graphics&)>& draw) {
    const CRect area = part & CRect(CPoint(0, 0), m_size);
    if (!m_dc || area.IsRectEmpty())
        return;
    const int state = ::SaveDC(m_dc);
    ::IntersectClipRect(m_dc, area.left, area.top, area.right, area.bottom);
    if (ground)
        ground->Show(m_dc, area);
    else
        ::PatBlt(m_dc, area.left, area.top, area.Width(), area.Height(), BLACKNESS);
    {
        const Gdiplus::RectF shown = Lumo::RectGdiFromAtl(area + origin);
        const DirectPaint direct(m_dc);
        Gdiplus::Graphics g(m_wrapper.get());
        g.TranslateTransform(static_cast<float>(-origin.x), static_cast<float>(-origin.y));
        g.SetClip(shown);
        const Lumo::PaintScope scope(g, shown);
        draw(g);
    }
    ::RestoreDC(m_dc, state);
}

void BackBuffer::Show(HDC dc, const CRect& part) const {
    if (m_dc)
        ::BitBlt(dc, part.left, part.top, part.Width(), part.Height(), m_dc, part.left, part.top, SRCCOPY);
}

}  // namespace Studio
