#include "studio/editing/TextBox.h"

#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "studio/controls/GraphicsStateScope.h"
#include "studio/editing/StyledShapes.h"

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;

namespace {

constexpr float kPadding = 4.0f;
// No page is as high. The graphics library takes sizes that are no numbers, draws nothing and loses a font.
constexpr float kLargestFont = 32767.0f;

}  // namespace

void TextBox::Draw(Gdiplus::Graphics* g) {
    const RectF bounds = Lumo::Normalised(GetPosition());
    if (Lumo::PaintScope::Misses(*g, Lumo::Inflated(bounds, GetLineWidth() + 1.0f)))
        return;
    DrawGround(*g, bounds);
    DrawText(*g, bounds);
}

void TextBox::DrawGround(Gdiplus::Graphics& g, const RectF& bounds) const {
    const auto& fill = m_coordinate.Format<Lumo::CUIShapeFormatFill>();
    if (fill.m_bEnabled && (fill.m_nShapeMode == 1 || fill.m_nShapeMode == 2)) {
        Gdiplus::SolidBrush brush{Gdiplus::Color(fill.GetBrushColor())};
        g.FillRectangle(&brush, bounds);
    }
    if (fill.m_bEnabled && fill.m_nShapeMode == 3) {
        // One unit more on both sides: the brush repeats itself at its ends.
        Gdiplus::LinearGradientBrush brush(
            PointF(0.0f, bounds.Y - 1.0f), PointF(0.0f, bounds.Y + bounds.Height + 1.0f),
            Gdiplus::Color(fill.m_dwColor), Gdiplus::Color(fill.m_dwGradientColor));
        g.FillRectangle(&brush, bounds);
    }
    DWORD color = 0;
    if (!DrawDashedOutline(g, m_coordinate, OutlineKind::kRectangle) &&
        m_coordinate.Format<Lumo::CUIShapeFormatLineColor>().GetPenColor(&color)) {
        const Gdiplus::Pen pen{Gdiplus::Color(color), GetLineWidth()};
        g.DrawRectangle(&pen, bounds);
    }
}

void TextBox::DrawText(Gdiplus::Graphics& g, const RectF& bounds) {
    const auto& format = m_coordinate.Format<Lumo::CUIShapeFormatText>();
    const RectF room = Lumo::Inflated(bounds, -kPadding);
    if (!format.m_bEnabled || format.m_strText.IsEmpty() || room.Width <= 0.0f || room.Height <= 0.0f ||
        !(format.m_fFontSize > 0.0f && format.m_fFontSize <= kLargestFont))
        return;
    const Gdiplus::FontFamily family(GetTextFontName());
    const Gdiplus::Font font(&family, format.m_fFontSize, format.m_nFontStyle, format.GetUnit());
    Gdiplus::StringFormat layout;
    layout.SetAlignment(format.GetAlignment());
    layout.SetLineAlignment(Gdiplus::StringAlignmentCenter);
    layout.SetTrimming(Gdiplus::StringTrimmingEllipsisCharacter);
    const Gdiplus::SolidBrush brush{Gdiplus::Color(format.m_dwTextColor)};
    GraphicsStateScope state(g);
    g.SetTextRenderingHint(format.GetRenderHint());
    // The editor ends a line with two characters, of which not every system draws only the line's end.
    CString text = format.m_strText;
    text.Replace(L"\r\n", L"\n");
    g.DrawString(text, text.GetLength(), &font, room, &layout, &brush);
}

}  // namespace Studio
