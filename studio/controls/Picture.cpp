#include "studio/controls/Picture.h"

#include "studio/editing/Pixels.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>

namespace Studio {

using namespace Gdiplus;

namespace {

constexpr LPCWSTR kFontName = L"Segoe UI";
HDC g_target = nullptr;

// Fonts live as long as the graphics library's session; they are few.
const Font& FontOf(float size, bool bold) {
    static std::map<std::pair<int, bool>, std::unique_ptr<Font>> fonts;
    auto& font = fonts[{static_cast<int>(size * 4.0f), bold}];
    if (!font) {
        const FontFamily family(kFontName);
        font = std::make_unique<Font>(&family, size, bold ? FontStyleBold : FontStyleRegular, UnitPixel);
    }
    return *font;
}

// One device context for all copies: pictures are selected into it for the length of one.
HDC SourceDc() {
    static const HDC dc = ::CreateCompatibleDC(nullptr);
    return dc;
}

float Clamped(float value) {
    return std::clamp(value, 0.0f, 1.0f);
}

// How far a point lies outside a rectangle with round corners, negative inside.
float RoundDistance(float x, float y, float left, float top, float right, float bottom, float radius) {
    const float dx = std::max({left + radius - x, 0.0f, x - (right - radius)});
    const float dy = std::max({top + radius - y, 0.0f, y - (bottom - radius)});
    return std::hypot(dx, dy) - radius;
}

}  // namespace

DirectPaint::DirectPaint(HDC dc) : m_outer(g_target) {
    g_target = dc;
}

DirectPaint::~DirectPaint() {
    g_target = m_outer;
}

HDC DirectPaint::Target() {
    return g_target;
}

Picture::Picture(int width, int height) : m_width(std::max(width, 1)), m_height(std::max(height, 1)) {
    void* pixels = nullptr;
    m_bitmap = MakePixels(m_width, m_height, pixels);
    m_pixels = static_cast<DWORD*>(pixels);
    m_wrapper = std::make_unique<Bitmap>(m_width, m_height, m_width * 4, PixelFormat32bppPARGB,
                                         static_cast<BYTE*>(pixels));
    m_graphics = std::make_unique<Gdiplus::Graphics>(m_wrapper.get());
    m_graphics->SetTextRenderingHint(TextRenderingHintAntiAlias);
}

Picture::~Picture() {
    m_graphics.reset();
    m_wrapper.reset();
    ::DeleteObject(m_bitmap);
}

void Picture::Clear(DWORD color) {
    std::fill(m_pixels, m_pixels + static_cast<size_t>(m_width) * m_height, color);
}

void Picture::CopyFrom(const Picture& source) {
    if (source.m_width == m_width && source.m_height == m_height)
        std::memcpy(m_pixels, source.m_pixels, sizeof(DWORD) * m_width * m_height);
}

void Picture::Blend(int x, int y, DWORD color, float coverage) {
    DWORD& pixel = m_pixels[static_cast<size_t>(y) * m_width + x];
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative, and for every pixel a call is slow
    const auto alpha = static_cast<unsigned>(static_cast<float>(color >> 24) * coverage + 0.5f);
    if (alpha == 0)
        return;
    const unsigned rest = 255 - alpha;
    DWORD result = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const unsigned source = shift == 24 ? 255 : color >> shift & 0xFF;
        const unsigned sum = source * alpha + (pixel >> shift & 0xFF) * rest;
        result |= std::min((sum + 127) / 255, 255u) << shift;
    }
    pixel = result;
}

// Blends every pixel of an area as far as `coverage` (of its middle) says.
template <class Coverage>
void Picture::Shade(float left, float top, float right, float bottom, DWORD color, Coverage coverage) {
    const int x0 = std::max(0, static_cast<int>(std::floor(left)));
    const int y0 = std::max(0, static_cast<int>(std::floor(top)));
    const int x1 = std::min(m_width, static_cast<int>(std::ceil(right)));
    const int y1 = std::min(m_height, static_cast<int>(std::ceil(bottom)));
    for (int y = y0; y < y1; ++y) {
        for (int x = x0; x < x1; ++x)
            Blend(x, y, color, coverage(static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f));
    }
}

void Picture::Fill(float left, float top, float right, float bottom, DWORD color) {
    Shade(left, top, right, bottom, color, [=](float x, float y) {
        const float across = Clamped(std::min(right, x + 0.5f) - std::max(left, x - 0.5f));
        const float down = Clamped(std::min(bottom, y + 0.5f) - std::max(top, y - 0.5f));
        return across * down;
    });
}

void Picture::FillRound(float left, float top, float right, float bottom, float radius, DWORD color) {
    Shade(left, top, right, bottom, color, [=](float x, float y) {
        return Clamped(0.5f - RoundDistance(x, y, left, top, right, bottom, radius));
    });
}

void Picture::FrameRound(float left, float top, float right, float bottom, float radius, DWORD face,
                         DWORD edge) {
    FillRound(left, top, right, bottom, radius, edge);
    FillRound(left + 1.0f, top + 1.0f, right - 1.0f, bottom - 1.0f, std::max(0.0f, radius - 1.0f), face);
}

void Picture::Disc(float x, float y, float radius, DWORD color) {
    Shade(x - radius - 1, y - radius - 1, x + radius + 1, y + radius + 1, color,
          [=](float px, float py) { return Clamped(radius + 0.5f - std::hypot(px - x, py - y)); });
}

void Picture::Ring(float x, float y, float radius, float width, DWORD color) {
    const float reach = radius + width;
    Shade(x - reach, y - reach, x + reach, y + reach, color, [=](float px, float py) {
        return Clamped(width * 0.5f + 0.5f - std::fabs(std::hypot(px - x, py - y) - radius));
    });
}

void Picture::Curve(int left, const float* ys, int count, float width, float top, float bottom, DWORD color) {
    for (int i = 0; i < count; ++i) {
        // A column covers what the curve does from half a pixel before to half a pixel behind it.
        const float before = i > 0 ? (ys[i - 1] + ys[i]) * 0.5f : ys[i];
        const float behind = i + 1 < count ? (ys[i] + ys[i + 1]) * 0.5f : ys[i];
        const float steep = std::hypot(1.0f, behind - before);
        // What is steep is thinner across, but nowhere shorter than the curve.
        const float half = std::max(0.0f, width * 0.5f * std::min(steep, 3.0f) - (steep - 1.0f) * 0.25f);
        const float upper = std::max(top, std::min({before, ys[i], behind}) - half);
        const float lower = std::min(bottom, std::max({before, ys[i], behind}) + half);
        const auto x = static_cast<float>(left + i);
        if (lower > upper)
            Fill(x, upper, x + 1.0f, lower, color);
    }
}

void Picture::Text(const CString& text, float left, float top, float right, float bottom, float size,
                   DWORD color, int align, bool bold) {
    static const StringFormat* const typographic = StringFormat::GenericTypographic();
    const std::unique_ptr<StringFormat> layout(typographic->Clone());
    layout->SetAlignment(static_cast<StringAlignment>(align));
    layout->SetLineAlignment(StringAlignmentCenter);
    layout->SetFormatFlags(StringFormatFlagsNoWrap | StringFormatFlagsNoClip);
    const SolidBrush brush{Color(color)};
    m_graphics->DrawString(text, text.GetLength(), &FontOf(size, bold),
                           RectF(left, top, right - left, bottom - top), layout.get(), &brush);
}

void Picture::Draw(Gdiplus::Graphics& g, float x, float y, const CRect* from) {
    const CRect whole(0, 0, m_width, m_height);
    const CRect part = from ? *from & whole : whole;
    if (part.IsRectEmpty())
        return;
    const HDC target = DirectPaint::Target();
    if (!target) {
        g.DrawImage(m_wrapper.get(), std::floor(x + 0.5f) + part.left, std::floor(y + 0.5f) + part.top,
                    static_cast<float>(part.left), static_cast<float>(part.top),
                    static_cast<float>(part.Width()), static_cast<float>(part.Height()), UnitPixel);
        return;
    }
    PointF corner(x, y);
    g.TransformPoints(CoordinateSpaceDevice, CoordinateSpaceWorld, &corner, 1);
    const HDC source = SourceDc();
    const HGDIOBJ before = ::SelectObject(source, m_bitmap);
    const BLENDFUNCTION over = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(target, static_cast<int>(std::floor(corner.X + 0.5f)) + part.left,
                    static_cast<int>(std::floor(corner.Y + 0.5f)) + part.top, part.Width(), part.Height(),
                    source, part.left, part.top, part.Width(), part.Height(), over);
    ::SelectObject(source, before);
}

}  // namespace Studio
