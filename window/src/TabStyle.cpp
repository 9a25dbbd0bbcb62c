#include "window/TabStyle.h"

#include <algorithm>
#include <iterator>

namespace Lumo {

namespace {

constexpr int kSign = 4;  // half the size of a sign

void DrawLine(CDC& dc, CPoint from, CPoint to, COLORREF color, int width = 1) {
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

// A strip of `thickness` pixels along the edge of `rect` that the pages are at.
CRect PageEdge(const CRect& rect, TabSide side, int thickness) {
    return side == TabSide::kAbove ? CRect(rect.left, rect.bottom - thickness, rect.right, rect.bottom)
                                   : CRect(rect.left, rect.top, rect.right, rect.top + thickness);
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
    m_font.CreatePointFont(90, L"Segoe UI");
}

int TabStyle::TabWidth(int textWidth) const {
    constexpr int kLeast = 56;
    constexpr int kMost = 240;
    return std::clamp(textWidth + 2 * Padding(), kLeast, kMost);
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

void TabStyle::DrawTab(CDC& dc, const CRect& bounds, TabSide, const TabState& state) const {
    dc.FillSolidRect(bounds, FaceOf(state));
    dc.FillSolidRect(bounds.right - 1, bounds.top, 1, bounds.Height(), m_colors.edge);
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
        FillRound(dc, bounds, 6, face, face);
    }
    const COLORREF color = state.disabled ? Blend(m_colors.ground, m_colors.text, 30) : m_colors.text;
    const CPoint c = bounds.CenterPoint();
    switch (sign) {
        case TabSign::kClose:
            DrawLine(dc, {c.x - 3, c.y - 3}, {c.x + 4, c.y + 4}, color);
            DrawLine(dc, {c.x - 3, c.y + 3}, {c.x + 4, c.y - 4}, color);
            break;
        case TabSign::kAdd:
            dc.FillSolidRect(c.x - kSign, c.y, 2 * kSign + 1, 1, color);
            dc.FillSolidRect(c.x, c.y - kSign, 1, 2 * kSign + 1, color);
            break;
        default: {
            const int way = sign == TabSign::kScrollLeft ? -1 : 1;
            const POINT arrow[] = {
                {c.x - way * 2, c.y - kSign}, {c.x + way * 2, c.y}, {c.x - way * 2, c.y + kSign}};
            FillPolygon(dc, arrow, static_cast<int>(std::size(arrow)), color);
        }
    }
}

void TabStyle::DrawDropMark(CDC& dc, int x, const CRect& strip) const {
    dc.FillSolidRect(x - 1, strip.top + 2, 2, strip.Height() - 4, m_colors.accent);
    const POINT top[] = {{x - 4, strip.top + 2}, {x + 3, strip.top + 2}, {x, strip.top + 6}};
    FillPolygon(dc, top, static_cast<int>(std::size(top)), m_colors.accent);
}

void FlatTabStyle::DrawGround(CDC& dc, const CRect& strip, TabSide side) const {
    TabStyle::DrawGround(dc, strip, side);
    dc.FillSolidRect(PageEdge(strip, side, 1), Colors().edge);
}

void FlatTabStyle::DrawTab(CDC& dc, const CRect& bounds, TabSide side, const TabState& state) const {
    CRect face = bounds;
    if (side == TabSide::kAbove)
        --face.bottom;
    else
        ++face.top;
    if (state.hover || state.pressed)
        dc.FillSolidRect(face, Colors().hover);
    if (state.current)
        dc.FillSolidRect(PageEdge(bounds, side, 3), Colors().accent);
}

COLORREF FlatTabStyle::TextColorOf(const TabState& state) const {
    return state.current ? Colors().accent : Colors().text;
}

CRect BarTabStyle::TabBounds(const CRect& cell, TabSide) const {
    CRect bounds = cell;
    bounds.DeflateRect(0, 4);
    return bounds;
}

void BarTabStyle::DrawTab(CDC& dc, const CRect& bounds, TabSide, const TabState& state) const {
    const COLORREF face = state.current ? Colors().accent : FaceOf(state);
    FillRound(dc, bounds, 8, face, state.current ? Colors().accent : Colors().edge);
}

COLORREF BarTabStyle::TextColorOf(const TabState& state) const {
    return state.current ? RGB(0xFF, 0xFF, 0xFF) : Colors().text;
}

CRect ClientAreaTabStyle::TabBounds(const CRect& cell, TabSide side) const {
    constexpr int kBack = 3;  // how far the tabs stay away from the strip's outer edge
    CRect bounds = cell;
    (side == TabSide::kAbove ? bounds.top : bounds.bottom) += side == TabSide::kAbove ? kBack : -kBack;
    return bounds;
}

void ClientAreaTabStyle::DrawGround(CDC& dc, const CRect& strip, TabSide side) const {
    TabStyle::DrawGround(dc, strip, side);
    dc.FillSolidRect(PageEdge(strip, side, 1), Colors().edge);
}

void ClientAreaTabStyle::DrawTab(CDC& dc, const CRect& bounds, TabSide side, const TabState& state) const {
    constexpr int kCut = 3;
    const bool above = side == TabSide::kAbove;
    CRect rect = bounds;
    // A tab behind the current one stays outside the page's edge line and a little lower.
    if (!state.current && above)
        rect.top += 2, --rect.bottom;
    else if (!state.current)
        rect.bottom -= 2, ++rect.top;
    const int page = above ? rect.bottom - 1 : rect.top;
    const int outer = above ? rect.top : rect.bottom - 1;
    const int cut = above ? outer + kCut : outer - kCut;
    const int right = rect.right - 1;
    const POINT card[] = {{rect.left, page},     {rect.left, cut}, {rect.left + kCut, outer},
                          {right - kCut, outer}, {right, cut},     {right, page}};
    FillPolygon(dc, card, static_cast<int>(std::size(card)), FaceOf(state));
    for (size_t i = 0; i + 1 < std::size(card); ++i)
        DrawLine(dc, card[i], card[i + 1], Colors().edge);
    // A line leaves its last pixel out.
    dc.SetPixel(right, page, Colors().edge);
    if (state.current) {
        const int bar = above ? outer : outer - 1;
        dc.FillSolidRect(rect.left + kCut, bar, rect.Width() - 2 * kCut, 2, Colors().accent);
    }
}

}  // namespace Lumo
