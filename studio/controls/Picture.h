// A picture of a control in memory, drawn once and copied to the page as often as needed.
#pragma once

#include "core/Platform.h"

#include <memory>

namespace Studio {

/// Colours of the audio controls (ARGB), for a black page.
namespace Ink {
inline constexpr DWORD kCard = 0xFF12161D;
inline constexpr DWORD kWell = 0xFF0B0E13;
inline constexpr DWORD kEdge = 0xFF2B3441;
inline constexpr DWORD kGrid = 0xFF1E2530;
inline constexpr DWORD kGridStrong = 0xFF323D4C;
inline constexpr DWORD kText = 0xFFE3E9F2;
inline constexpr DWORD kQuiet = 0xFF8592A6;
inline constexpr DWORD kAccent = 0xFF4DA3FF;
inline constexpr DWORD kGreen = 0xFF35C46A;
inline constexpr DWORD kYellow = 0xFFF0C13C;
inline constexpr DWORD kRed = 0xFFF0524F;
inline constexpr DWORD kFace = 0xFF1B222C;
inline constexpr DWORD kFaceHover = 0xFF253040;
inline constexpr DWORD kFaceDown = 0xFF0F141B;
/// One colour per band of an equaliser.
inline constexpr DWORD kBands[] = {0xFFFF7A6B, 0xFFFFB454, 0xFFE9DC5A, 0xFF62D48A, 0xFF54B8FF, 0xFFB58CFF};
}  // namespace Ink

/// The colour with another alpha (0 to 255).
inline DWORD WithAlpha(DWORD color, int alpha) {
    return (color & 0x00FFFFFF) | static_cast<DWORD>(alpha) << 24;
}

/// Where `Picture::Draw` may copy pixels directly: set by whoever paints into a memory device context. Lives
/// as long as that painting.
class DirectPaint {
public:
    explicit DirectPaint(HDC dc);
    ~DirectPaint();
    DirectPaint(const DirectPaint&) = delete;
    DirectPaint& operator=(const DirectPaint&) = delete;

    /// The device context, null when there is none.
    static HDC Target();

private:
    HDC m_outer;
};

/// Premultiplied pixels with drawing operations of their own: their edges are smooth wherever the graphics
/// library does not smooth them. Coordinates are pixels; (0, 0) is the corner of the first pixel.
class Picture {
public:
    /// A transparent picture; at least 1 by 1.
    Picture(int width, int height);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    /// Graphics on the picture, for what this class does not offer.
    Gdiplus::Graphics& Graphics() { return *m_graphics; }

    void Clear(DWORD color);
    /// Takes over the pixels of a picture of the same size.
    void CopyFrom(const Picture& source);
    /// Fills a rectangle whose edges may lie within pixels.
    void Fill(float left, float top, float right, float bottom, DWORD color);
    void FillRound(float left, float top, float right, float bottom, float radius, DWORD color);
    /// The outline, one pixel wide, within the rectangle.
    void FrameRound(float left, float top, float right, float bottom, float radius, DWORD face, DWORD edge);
    void Disc(float x, float y, float radius, DWORD color);
    void Ring(float x, float y, float radius, float width, DWORD color);
    /// The curve through `ys` (one per pixel column from `left` on), `width` pixels thick, cut off at `top`
    /// and `bottom`.
    void Curve(int left, const float* ys, int count, float width, float top, float bottom, DWORD color);
    /// One line of text in a box, centred vertically; `align` is a `Gdiplus::StringAlignment` code.
    void Text(const CString& text, float left, float top, float right, float bottom, float size, DWORD color,
              int align = Gdiplus::StringAlignmentCenter, bool bold = false);

    /// Draws the picture with its corner at `x`, `y` (world units), or the part `from` of it at its place.
    void Draw(Gdiplus::Graphics& g, float x, float y, const CRect* from = nullptr);

private:
    void Blend(int x, int y, DWORD color, float coverage);
    template <class Coverage>
    void Shade(float left, float top, float right, float bottom, DWORD color, Coverage coverage);

    int m_width;
    int m_height;
    HBITMAP m_bitmap = nullptr;
    DWORD* m_pixels = nullptr;
    std::unique_ptr<Gdiplus::Bitmap> m_wrapper;
    std::unique_ptr<Gdiplus::Graphics> m_graphics;
};

/// Draws a picture of `width` by `height` into `picture` unless it has that size and `stale` is not set.
template <class Render>
void Refresh(std::unique_ptr<Picture>& picture, int width, int height, bool stale, Render render) {
    if (picture && !stale && picture->Width() == width && picture->Height() == height)
        return;
    if (!picture || picture->Width() != width || picture->Height() != height)
        picture = std::make_unique<Picture>(width, height);
    else
        picture->Clear(0);
    render(*picture);
}

}  // namespace Studio
