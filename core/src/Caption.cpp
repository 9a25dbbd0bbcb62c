#include "core/internal/Caption.h"

#include <algorithm>
#include <cmath>

#include "core/Geometry.h"
#include "core/internal/GraphicsStateScope.h"
#include "core/internal/CaptionCache.h"

namespace Lumo {

namespace {

// Line height of a tall font in ems, on the generous side.
constexpr float kTallLine = 3.0f;

// Page units in a unit of the font size, on the generous side: the resolution is not known here.
float LargestUnit(int unit) {
    switch (unit) {
        case Gdiplus::UnitPoint:
            return 8.0f;
        case Gdiplus::UnitInch:
            return 600.0f;
        case Gdiplus::UnitDocument:
            return 2.0f;
        case Gdiplus::UnitMillimeter:
            return 24.0f;
        default:
            return 1.0f;
    }
}

// The box that the text is laid out in. Not a point, off which the alignment would move the text; and with as
// much room again on the sides that the text is not aligned to, so that it never wraps.
Gdiplus::RectF CaptionBox(const Gdiplus::RectF& position, const Gdiplus::SizeF& size, int alignment) {
    const Gdiplus::PointF centre = CentreOf(position);
    const float room = size.Width;
    const float left = centre.X - size.Width * 0.5f - room * static_cast<float>(alignment) * 0.5f;
    return {left, centre.Y - size.Height * 0.5f, size.Width + room, size.Height};
}

// An area that is sure to hold the caption of an object at `position`, found without measuring the text.
Gdiplus::RectF CaptionBounds(const CUIShapeFormatText& text, const Gdiplus::RectF& position) {
    const LPCWSTR begin = text.m_strText;
    const auto lines = 1 + std::count_if(begin, begin + text.m_strText.GetLength(),
                                         [](wchar_t c) { return c == L'\n' || c == L'\r'; });
    const float em = std::fabs(text.m_fFontSize) * LargestUnit(text.m_nUnit);
    const float reach = static_cast<float>(lines) * em * kTallLine / 2.0f;
    const float middle = CentreOf(position).Y;
    return {position.X - em, middle - reach, position.Width + 2.0f * em, 2.0f * reach};
}

}  // namespace

bool HasCaption(const CUICoordinate& coordinate) {
    const auto& text = coordinate.Format<CUIShapeFormatText>();
    return text.m_bEnabled != 0 && !text.m_strText.IsEmpty();
}

void DrawCaption(Gdiplus::Graphics& graphics, const CUICoordinate& coordinate, const Gdiplus::RectF& part) {
    const auto& text = coordinate.Format<CUIShapeFormatText>();
    const Gdiplus::RectF position = coordinate.GetPosition();
    const Gdiplus::RectF bounds = CaptionBounds(text, position);
    if (!IsDrawable(bounds) || !Touches(part, bounds))
        return;
    CaptionCache& cache = CaptionCache::Get();
    const Gdiplus::Font* font = cache.FontOf(text);
    if (font == nullptr || position.Width <= 0.0f)
        return;
    const Gdiplus::SizeF size = cache.Measure(graphics, text, *font);
    // Nothing has been saved or changed yet, so there is nothing to restore on this path.
    if (size.Width > position.Width)
        return;
    const Gdiplus::StringAlignment alignment = text.GetAlignment();
    GraphicsStateScope state(graphics);
    graphics.SetTextRenderingHint(text.GetRenderHint());
    Gdiplus::SolidBrush brush{Gdiplus::Color(text.m_dwTextColor)};
    graphics.DrawString(text.m_strText, text.m_strText.GetLength(), font,
                        CaptionBox(position, size, alignment), cache.FormatOf(alignment), &brush);
}

}  // namespace Lumo
