// Pictures of every look of a tab and of a sign, in every style.
#include "window/TabStyle.h"

#include "support/Golden.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace Lumo;

namespace {

struct PlainTabStyle : TabStyle {
    explicit PlainTabStyle(TabTheme theme) : TabStyle(TabColorsOf(theme)) {}
};

// Every look of a tab and of a sign, tabs without letters.
template <class Style>
Pixels Looks(TabTheme theme, TabSide side) {
    const Style style(theme);
    CWnd window;
    window.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 260, 180),
                    nullptr, 0);
    CClientDC dc(&window);
    const TabState states[] = {{},
                               {.hover = true},
                               {.pressed = true},
                               {.current = true},
                               {.current = true, .hover = true},
                               {.current = true, .focused = true}};
    dc.FillSolidRect(0, 0, 260, 180, RGB(9, 99, 199));
    dc.SetBkMode(TRANSPARENT);
    const TabColors& c = style.Colors();
    int left = 4;
    for (COLORREF color : {c.ground, c.tab, c.hover, c.current, c.text, c.currentText, c.edge, c.accent})
        dc.FillSolidRect(std::exchange(left, left + 20), 150, 16, 24, color);
    for (int row = 0; row < 2; ++row) {
        const int top = row * 72;
        style.DrawGround(dc, CRect(0, top, 260, top + style.Height()), side);
        for (int i = 0; i < 3; ++i) {
            const TabState& state = states[row * 3 + i];
            const CRect cell(6 + 70 * i, top, 6 + 70 * i + style.TabWidth(34), top + style.Height());
            const CRect bounds = style.TabBounds(cell, side);
            style.DrawTab(dc, bounds, side, state);
            style.DrawText(dc, L" ", bounds, state);
            dc.FillSolidRect(190 + 20 * i, 150 + 14 * row, 16, 10, style.TextColorOf(state));
        }
        style.DrawDropMark(dc, 240, CRect(0, top, 260, top + style.Height()));
        for (int sign = 0; sign < 4; ++sign) {
            TabState state;
            state.hover = sign % 2 == row;
            state.pressed = sign == 2;
            state.disabled = sign == 3 || (row == 1 && sign == 0);
            style.DrawSign(dc, static_cast<TabSign>(sign),
                           CRect(CPoint(10 + 50 * sign, top + 40), CSize(19, 21)), state);
        }
    }
    ::GdiFlush();
    return PixelsOf(window);
}

TEST(TabPictures, EveryStyleOnBothSides) {
    const struct {
        const char* name;
        Pixels (*paint)(TabTheme, TabSide);
        TabTheme theme;
    } rows[] = {{"tabs-plain", &Looks<PlainTabStyle>, TabTheme::kLight},
                {"tabs-flat", &Looks<FlatTabStyle>, TabTheme::kLight},
                {"tabs-bar", &Looks<BarTabStyle>, TabTheme::kDark},
                {"tabs-client", &Looks<ClientAreaTabStyle>, TabTheme::kBlue}};
    for (const auto& row : rows)
        for (TabSide side : {TabSide::kAbove, TabSide::kBelow})
            ExpectGolden(row.paint(row.theme, side), "window",
                         std::string(row.name) + (side == TabSide::kAbove ? "-above" : "-below"));
}

}  // namespace
