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

HFONT BarFont() {
    static CFont font;
    if (!font.m_hObject)
        font.CreatePointFont(90, L"Segoe UI");
    return font;
}

}  // namespace Studio
