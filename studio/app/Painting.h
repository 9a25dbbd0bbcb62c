// Painting of Studio's own bars: off-screen, with one palette and one font.
#pragma once

#include "core/Platform.h"

#include <functional>
#include <memory>

namespace Studio {

/// Colours of the frame (ARGB).
namespace Palette {
inline constexpr DWORD kBar = 0xFFF3F4F7;
inline constexpr DWORD kEdge = 0xFFCBD0D9;
inline constexpr DWORD kText = 0xFF2B313C;
inline constexpr DWORD kQuietText = 0xFF6B7482;
inline constexpr DWORD kHover = 0xFFE2E7F0;
inline constexpr DWORD kPressed = 0xFFC3D3F0;
inline constexpr DWORD kChosen = 0xFFD3E1FA;
inline constexpr DWORD kAccent = 0xFF2F6BD8;
inline constexpr DWORD kMark = 0xFFD9731A;
}  // namespace Palette

/// Paints a window's client area in one piece. Lives for the length of a paint message.
class BufferedPaint {
public:
    explicit BufferedPaint(CWnd& window);
    ~BufferedPaint();
    BufferedPaint(const BufferedPaint&) = delete;
    BufferedPaint& operator=(const BufferedPaint&) = delete;

    /// Graphics on the whole client area.
    Gdiplus::Graphics& Graphics() { return *m_graphics; }
    /// Whether the rectangle has to be painted at all.
    bool Needs(const CRect& rect) const;
    /// The client rectangle.
    const CRect& Client() const { return m_client; }

private:
    CPaintDC m_dc;
    CRect m_client;
    std::unique_ptr<Gdiplus::Bitmap> m_bitmap;
    std::unique_ptr<Gdiplus::Graphics> m_graphics;
};

/// A picture of `width` by `height` pixels with smooth edges, also where the graphics library does not smooth
/// them: drawn four times as large and averaged. `draw` draws in pixels of the result.
std::unique_ptr<Gdiplus::Bitmap> DrawSmooth(int width, int height,
                                            const std::function<void(Gdiplus::Graphics&)>& draw);

/// The font of bars, one for the program.
HFONT BarFont();

}  // namespace Studio
