#include "window/TabStyle.h"

#include "window/Draw.h"
#include "window/Tools.h"

#include <algorithm>
#include <iterator>

namespace Lumo {

namespace {

void DrawLine(CDC& dc, CPoint from, CPoint to, COLORREF color, int width) {
    CPen pen;
    pen.CreatePen(PS_SOLID, width, color);
    const HGDIOBJ old = ::SelectObject(dc, pen);
    dc.MoveTo(from);
    dc.LineTo(to);
    ::SelectObject(dc, old);
}

void FillPolygon(CDC& dc, const POINT* points, int count, COLORREF color) {
    CBrush brush;
    brush.CreateSolidBrush(color);
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, color);
    const HGDIOBJ oldBrush = ::SelectObject(dc, brush);
    const HGDIOBJ oldPen = ::SelectObject(dc, pen);
    dc.Polygon(points, count);
    ::SelectObject(dc, oldPen);
    ::SelectObject(dc, oldBrush);
}

void FillRound(CDC& dc, const CRect& rect, int diameter, COLORREF fill, COLORREF edge) {
    CBrush brush;
    brush.CreateSolidBrush(fill);
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, edge);
    const HGDIOBJ oldBrush = ::SelectObject(dc, brush);
    const HGDIOBJ oldPen = ::SelectObject(dc, pen);
    ::RoundRect(dc, rect.left, rect.top, rect.right, rect.bottom, diameter, diameter);
    ::SelectObject(dc, oldPen);
    ::SelectObject(dc, oldBrush);
}

// A rectangle of the strip as it looks from the pages: how far along it, and how far out from their edge.
class Outward {
public:
    Outward(const CRect& rect, TabSide side) : m_rect(rect), m_side(side) {}
    int Length() const { return IsUpright() ? m_rect.Height() : m_rect.Width(); }
    int Depth() const { return IsUpright() ? m_rect.Width() : m_rect.Height(); }

    CRect Part(int along, int out, int length, int depth) const {
        const int left = m_rect.left + along;
        const int top = m_rect.top + along;
        switch (m_side) {
            case TabSide::kBelow:
                return CRect(CPoint(left, m_rect.top + out), CSize(length, depth));
            case TabSide::kLeft:
                return CRect(CPoint(m_rect.right - out - depth, top), CSize(depth, length));
            case TabSide::kRight:
                return CRect(CPoint(m_rect.left + out, top), CSize(depth, length));
            default:
                return CRect(CPoint(left, m_rect.bottom - out - depth), CSize(length, depth));
        }
    }
    CPoint At(int along, int out) const { return Part(along, out, 1, 1).TopLeft(); }
    // The pixels beside the pages.
    CRect PageEdge(int thickness) const { return Part(0, 0, Length(), thickness); }

private:
    bool IsUpright() const { return m_side == TabSide::kLeft || m_side == TabSide::kRight; }

    CRect m_rect;
    TabSide m_side;
};

// An index card that stands on the row `page` and ends in the row `outer`, with its two outer corners cut.
void FillCard(CDC& dc, const Outward& tab, int inset, int page, int outer, int cut, COLORREF color) {
    const int end = tab.Length() - 1;
    const POINT card[] = {tab.At(inset, page),
                          tab.At(inset, outer - cut),
                          tab.At(cut, outer - inset),
                          tab.At(end - cut, outer - inset),
                          tab.At(end - inset, outer - cut),
                          tab.At(end - inset, page)};
    FillPolygon(dc, card, static_cast<int>(std::size(card)), color);
}

// A line across the strip with a wedge at its outer end.
void DrawMark(CDC& dc, int along, const Outward& strip, COLORREF color, int dpi) {
    const auto scaled = [dpi](int pixels) { return Tools::Scale(pixels, dpi); };
    const int depth = strip.Depth();
    dc.FillSolidRect(strip.Part(along - scaled(1), scaled(2), scaled(2), depth - 2 * scaled(2)), color);
    const int outer = depth - 1 - scaled(2);
    const POINT wedge[] = {strip.At(along - scaled(4), outer), strip.At(along + scaled(4) - 1, outer),
                           strip.At(along, outer - scaled(4))};
    FillPolygon(dc, wedge, static_cast<int>(std::size(wedge)), color);
}

ArrowWay WayOf(TabSign sign) {
    switch (sign) {
        case TabSign::kScrollLeft:
            return ArrowWay::kLeft;
        case TabSign::kScrollUp:
            return ArrowWay::kUp;
        case TabSign::kScrollDown:
            return ArrowWay::kDown;
        default:
            return ArrowWay::kRight;
    }
}

COLORREF Blend(COLORREF from, COLORREF to, int percent) {
    const auto part = [&](int a, int b) { return a + (b - a) * percent / 100; };
    return RGB(part(GetRValue(from), GetRValue(to)), part(GetGValue(from), GetGValue(to)),
               part(GetBValue(from), GetBValue(to)));
}

}  // namespace

TabColors TabColorsOf(TabTheme theme) {
    switch (theme) {
        case TabTheme::kDark:
            return {RGB(0x20, 0x23, 0x29), RGB(0x2A, 0x2E, 0x36), RGB(0x38, 0x3D, 0x48),
                    RGB(0x12, 0x14, 0x18), RGB(0xB9, 0xC0, 0xCC), RGB(0xFF, 0xFF, 0xFF),
                    RGB(0x43, 0x49, 0x55), RGB(0x5B, 0x93, 0xF5)};
        case TabTheme::kBlue:
            return {RGB(0xD8, 0xE4, 0xF8), RGB(0xC4, 0xD6, 0xF4), RGB(0xE8, 0xF0, 0xFD),
                    RGB(0xFF, 0xFF, 0xFF), RGB(0x1F, 0x3B, 0x73), RGB(0x10, 0x24, 0x50),
                    RGB(0x8F, 0xAC, 0xDE), RGB(0x1D, 0x5F, 0xD0)};
        case TabTheme::kLight:
        default:
            return {RGB(0xF3, 0xF4, 0xF7), RGB(0xE7, 0xEA, 0xF0), RGB(0xE2, 0xE7, 0xF0),
                    RGB(0xFF, 0xFF, 0xFF), RGB(0x4C, 0x55, 0x63), RGB(0x1C, 0x22, 0x2C),
                    RGB(0xCB, 0xD0, 0xD9), RGB(0x2F, 0x6B, 0xD8)};
    }
}

TabStyle::TabStyle(const TabColors& colors) : m_colors(colors) {
    SetDpi(Tools::DpiOf(nullptr));
}

void TabStyle::SetDpi(int dpi) {
    m_dpi = dpi;
    LOGFONT font = {};
    font.lfHeight = -::MulDiv(9, dpi, 72);  // points
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpy(font.lfFaceName, L"Segoe UI");
    m_font.DeleteObject();
    m_font.CreateFontIndirect(&font);
}

int TabStyle::TabWidth(int textWidth) const {
    return std::clamp(textWidth + 2 * Padding(), Scaled(56), Scaled(240));
}

CRect TabStyle::TabBounds(const CRect& cell, TabSide) const {
    return cell;
}

COLORREF TabStyle::FaceOf(const TabState& state) const {
    if (state.current)
        return m_colors.current;
    return state.hover || state.pressed ? m_colors.hover : m_colors.tab;
}

void TabStyle::DrawGround(CDC& dc, const CRect& strip, TabSide) const {
    dc.FillSolidRect(strip, m_colors.ground);
}

void TabStyle::DrawTab(CDC& dc, const CRect& bounds, TabSide side, const TabState& state) const {
    const Outward tab(bounds, side);
    const int line = Scaled(1);
    dc.FillSolidRect(bounds, FaceOf(state));
    dc.FillSolidRect(tab.Part(tab.Length() - line, 0, line, tab.Depth()), m_colors.edge);
}

COLORREF TabStyle::TextColorOf(const TabState& state) const {
    return state.current ? m_colors.currentText : m_colors.text;
}

void TabStyle::DrawText(CDC& dc, const CString& text, const CRect& bounds, const TabState& state) const {
    CRect rect = bounds;
    dc.SetTextColor(TextColorOf(state));
    dc.DrawText(text, rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    if (state.focused)
        dc.DrawFocusRect(rect);
}

void TabStyle::DrawSign(CDC& dc, TabSign sign, const CRect& bounds, const TabState& state) const {
    if ((state.hover || state.pressed) && !state.disabled) {
        const COLORREF face = Blend(m_colors.hover, m_colors.text, state.pressed ? 24 : 10);
        FillRound(dc, bounds, Scaled(6), face, face);
    }
    const COLORREF color = state.disabled ? Blend(m_colors.ground, m_colors.text, 30) : m_colors.text;
    const CPoint c = bounds.CenterPoint();
    const int line = Scaled(1);
    switch (sign) {
        case TabSign::kClose: {
            const int half = Scaled(3);
            DrawLine(dc, {c.x - half, c.y - half}, {c.x + half + 1, c.y + half + 1}, color, line);
            DrawLine(dc, {c.x - half, c.y + half}, {c.x + half + 1, c.y - half - 1}, color, line);
            break;
        }
        case TabSign::kAdd: {
            const int half = Scaled(4);
            const int begin = half - (line - 1) / 2;
            dc.FillSolidRect(c.x - half, c.y - half + begin, 2 * half + 1, line, color);
            dc.FillSolidRect(c.x - half + begin, c.y - half, line, 2 * half + 1, color);
            break;
        }
        default:
            Draw::Arrow(dc, bounds, WayOf(sign), color);
    }
}

void TabStyle::DrawDropMark(CDC& dc, int x, const CRect& strip) const {
    DrawMark(dc, x - strip.left, Outward(strip, TabSide::kAbove), m_colors.accent, m_dpi);
}

void TabStyle::DrawDropMarkAt(CDC& dc, int at, const CRect& strip, TabSide side) const {
    if (side == TabSide::kAbove || side == TabSide::kBelow)
        DrawDropMark(dc, at, strip);
    else
        DrawMark(dc, at - strip.top, Outward(strip, side), m_colors.accent, m_dpi);
}

void TabStyle::DrawFrame(CDC& dc, const CRect& area, TabSide) const {
    dc.FillSolidRect(area, m_colors.current);
}

void FlatTabStyle::DrawGround(CDC& dc, const CRect& strip, TabSide side) const {
    TabStyle::DrawGround(dc, strip, side);
    dc.FillSolidRect(Outward(strip, side).PageEdge(Scaled(1)), Colors().edge);
}

void FlatTabStyle::DrawTab(CDC& dc, const CRect& bounds, TabSide side, const TabState& state) const {
    const Outward tab(bounds, side);
    const int line = Scaled(1);
    if (state.hover || state.pressed)
        dc.FillSolidRect(tab.Part(0, line, tab.Length(), tab.Depth() - line), Colors().hover);
    if (state.current)
        dc.FillSolidRect(tab.PageEdge(Scaled(3)), Colors().accent);
}

COLORREF FlatTabStyle::TextColorOf(const TabState& state) const {
    return state.current ? Colors().accent : Colors().text;
}

CRect BarTabStyle::TabBounds(const CRect& cell, TabSide side) const {
    const Outward tab(cell, side);
    const int back = Scaled(4);
    return tab.Part(0, back, tab.Length(), tab.Depth() - 2 * back);
}

void BarTabStyle::DrawTab(CDC& dc, const CRect& bounds, TabSide, const TabState& state) const {
    const COLORREF face = state.current ? Colors().accent : FaceOf(state);
    FillRound(dc, bounds, Scaled(8), face, state.current ? Colors().accent : Colors().edge);
}

COLORREF BarTabStyle::TextColorOf(const TabState& state) const {
    return state.current ? RGB(0xFF, 0xFF, 0xFF) : Colors().text;
}

// The tabs stay away from the strip's outer edge.
CRect ClientAreaTabStyle::TabBounds(const CRect& cell, TabSide side) const {
    const Outward tab(cell, side);
    return tab.Part(0, 0, tab.Length(), tab.Depth() - Scaled(3));
}

void ClientAreaTabStyle::DrawGround(CDC& dc, const CRect& strip, TabSide side) const {
    TabStyle::DrawGround(dc, strip, side);
    dc.FillSolidRect(Outward(strip, side).PageEdge(Scaled(1)), Colors().edge);
}

void ClientAreaTabStyle::DrawTab(CDC& dc, const CRect& bounds, TabSide side, const TabState& state) const {
    const Outward tab(bounds, side);
    const int cut = Scaled(3);
    const int line = Scaled(1);
    // A tab behind the current one stays outside the page's edge line and a little lower.
    const int page = state.current ? 0 : line;
    const int outer = tab.Depth() - 1 - (state.current ? 0 : Scaled(2));
    FillCard(dc, tab, 0, page, outer, cut, Colors().edge);
    FillCard(dc, tab, line, page, outer, cut, FaceOf(state));
    if (state.current) {
        const int bar = Scaled(2);
        dc.FillSolidRect(tab.Part(cut, outer + 1 - bar, tab.Length() - 2 * cut, bar), Colors().accent);
    }
}

// The strip's own line is the fourth side.
void ClientAreaTabStyle::DrawFrame(CDC& dc, const CRect& area, TabSide side) const {
    TabStyle::DrawFrame(dc, area, side);
    const Outward frame(area, side);
    const int line = Scaled(1);
    dc.FillSolidRect(frame.Part(0, 0, line, frame.Depth()), Colors().edge);
    dc.FillSolidRect(frame.Part(frame.Length() - line, 0, line, frame.Depth()), Colors().edge);
    dc.FillSolidRect(frame.PageEdge(line), Colors().edge);
}

}  // namespace Lumo
