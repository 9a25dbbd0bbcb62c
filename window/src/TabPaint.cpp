// Painting the tabs off-screen in the style's look.
#include "window/TabCtrl.h"

#include "TabEditor.h"

namespace Lumo {

namespace {

constexpr int kTextInset = 4;

constexpr struct {
    TabPart part;
    TabSign sign;
} kSigns[] = {
    {TabPart::kAdd, TabSign::kAdd},
    {TabPart::kScrollLeft, TabSign::kScrollLeft},
    {TabPart::kScrollRight, TabSign::kScrollRight},
};

}  // namespace

BOOL TabCtrl::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void TabCtrl::OnPaint() {
    CPaintDC window(this);
    CRect client;
    GetClientRect(client);
    if (client.IsRectEmpty())
        return;
    CDC dc;
    dc.CreateCompatibleDC(&window);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&window, client.Width(), client.Height());
    const HGDIOBJ oldBitmap = ::SelectObject(dc, bitmap);
    const HGDIOBJ oldFont = ::SelectObject(dc, m_style->Font());
    dc.SetBkMode(TRANSPARENT);
    PaintStrip(dc, client);
    ::BitBlt(window, 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
    ::SelectObject(dc, oldFont);
    ::SelectObject(dc, oldBitmap);
}

void TabCtrl::PaintStrip(CDC& dc, const CRect& client) const {
    m_style->DrawGround(dc, client, m_side);
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(0, 0, VisibleWidth(), client.bottom);
    for (int index = 0; index < GetTabCount(); ++index) {
        if (index != m_current)
            PaintTab(dc, index);
    }
    if (m_current >= 0)
        PaintTab(dc, m_current);
    if (m_dragging && m_dropIndex >= 0)
        m_style->DrawDropMark(dc, DropMarkX(), client);
    dc.RestoreDC(saved);
    for (const auto& row : kSigns) {
        if (!GetPartRect(row.part).IsRectEmpty())
            m_style->DrawSign(dc, row.sign, GetPartRect(row.part), SignState(row.part));
    }
}

void TabCtrl::PaintTab(CDC& dc, int index) const {
    const CRect bounds = GetTabRect(index);
    if (bounds.right <= 0 || bounds.left >= VisibleWidth())
        return;
    TabState state;
    state.current = index == m_current;
    state.hover = index == GetHover();
    state.pressed = m_dragging && index == m_pressed.tab;
    state.focused = state.current && ::GetFocus() == m_hWnd && !m_dragging;
    m_style->DrawTab(dc, bounds, m_side, state);
    CRect text = bounds;
    text.DeflateRect(kTextInset, kTextInset);
    if (m_closeButtons) {
        const CRect close = GetPartRect(TabPart::kClose, index);
        m_style->DrawSign(dc, TabSign::kClose, close, SignState(TabPart::kClose, index));
        text.right = close.left;
    }
    m_style->DrawText(dc, m_tabs[index].text, text, state);
}

TabState TabCtrl::SignState(TabPart part, int tab) const {
    const Place place{part, tab};
    TabState state;
    state.hover = m_hot == place;
    state.pressed = m_pressed == place;
    state.current = part == TabPart::kClose && tab == m_current;
    state.disabled = IsScrollEnd(part);
    return state;
}

bool TabCtrl::IsScrollEnd(TabPart part) const {
    return (part == TabPart::kScrollLeft && m_offset == 0) ||
           (part == TabPart::kScrollRight && m_offset >= ContentWidth() - VisibleWidth());
}

int TabCtrl::DropMarkX() const {
    if (m_dropIndex < GetTabCount())
        return GetTabRect(m_dropIndex).left - m_style->Gap() / 2;
    return GetTabRect(GetTabCount() - 1).right + m_style->Gap() / 2;
}

}  // namespace Lumo
