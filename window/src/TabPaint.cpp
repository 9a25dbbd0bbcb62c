// Painting the tabs off-screen in the style's look.
#include "window/TabCtrl.h"

#include "BitmapPixels.h"
#include "TabEditor.h"

namespace Lumo {

namespace {

constexpr int kTextInset = 4;  // at 96 dots per inch

constexpr struct {
    TabPart part;
    TabSign across, upright;
} kSigns[] = {
    {TabPart::kAdd, TabSign::kAdd, TabSign::kAdd},
    {TabPart::kScrollLeft, TabSign::kScrollLeft, TabSign::kScrollUp},
    {TabPart::kScrollRight, TabSign::kScrollRight, TabSign::kScrollDown},
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
    if (m_pageFrame) {
        CRect area;
        if (area.SubtractRect(client, StripRect()))
            m_style->DrawFrame(dc, area, m_side);
    }
    PaintStrip(dc);
    ::BitBlt(window, 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
    ::SelectObject(dc, oldFont);
    ::SelectObject(dc, oldBitmap);
}

void TabCtrl::PaintStrip(CDC& dc) const {
    const CRect strip = StripRect();
    m_style->DrawGround(dc, strip, m_side);
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(Cell(0, VisibleLength()));
    for (int index = 0; index < GetTabCount(); ++index) {
        if (index != m_current)
            PaintTab(dc, index);
    }
    if (m_current >= 0)
        PaintTab(dc, m_current);
    if (m_dragging && m_dropIndex >= 0)
        m_style->DrawDropMarkAt(dc, DropMark(), strip, m_side);
    dc.RestoreDC(saved);
    for (const auto& row : kSigns) {
        const CRect place = GetPartRect(row.part);
        if (!place.IsRectEmpty())
            m_style->DrawSign(dc, IsUpright() ? row.upright : row.across, place, SignState(row.part));
    }
}

void TabCtrl::PaintTab(CDC& dc, int index) const {
    const CRect bounds = GetTabRect(index);
    CRect seen;
    if (!seen.IntersectRect(bounds, Cell(0, VisibleLength())))
        return;
    TabState state;
    state.current = index == m_current;
    state.hover = index == GetHover();
    state.pressed = m_dragging && index == m_pressed.tab;
    state.focused = state.current && ::GetFocus() == m_hWnd && !m_dragging;
    m_style->DrawTab(dc, bounds, m_side, state);
    CRect left = bounds;
    left.DeflateRect(m_style->Scaled(kTextInset), m_style->Scaled(kTextInset));
    if (m_closeButtons) {
        const CRect close = GetPartRect(TabPart::kClose, index);
        m_style->DrawSign(dc, TabSign::kClose, close, SignState(TabPart::kClose, index));
        if (m_side == TabSide::kLeft)
            left.top = close.bottom;
        else if (m_side == TabSide::kRight)
            left.bottom = close.top;
        else
            left.right = close.left;
    }
    if (ImageLength(index) > 0)
        PaintImage(dc, m_tabs[index].image, left);
    PaintText(dc, index, left, state);
}

// Where the text begins, which gets what is `left`.
void TabCtrl::PaintImage(CDC& dc, int image, CRect& left) const {
    const HIMAGELIST list = IsUpright() ? m_turned.Get() : m_images;
    int width = 0, height = 0;
    ::ImageList_GetIconSize(list, &width, &height);
    const CPoint middle = left.CenterPoint();
    const int gap = m_style->Scaled(kTextInset);
    CPoint at(left.left + gap, middle.y - height / 2);
    if (m_side == TabSide::kLeft) {
        left.bottom -= gap + height;
        at = CPoint(middle.x - width / 2, left.bottom);
    } else if (m_side == TabSide::kRight) {
        at = CPoint(middle.x - width / 2, left.top + gap);
        left.top += gap + height;
    } else {
        left.left += gap + width;
    }
    ::ImageList_Draw(list, image, dc, at.x, at.y, ILD_NORMAL);
}

void TabCtrl::PaintText(CDC& dc, int index, const CRect& bounds, const TabState& state) const {
    if (!IsUpright()) {
        m_style->DrawText(dc, m_tabs[index].text, bounds, state);
        return;
    }
    if (bounds.IsRectEmpty())
        return;
    // The style paints upright on what is there, and that is turned: not every system turns texts as they are
    // placed and cut off.
    const int back = m_side == TabSide::kLeft ? 1 : 3;
    const CRect area(0, 0, bounds.Width(), bounds.Height());
    PixelCanvas there({area.Width(), area.Height(), true, {}});
    ::BitBlt(there.Dc(), 0, 0, area.right, area.bottom, dc, bounds.left, bounds.top, SRCCOPY);
    PixelCanvas upright(Turned(there.Pixels(), area, 4 - back));
    const CRect line(0, 0, area.bottom, area.right);
    // Letters smoothed for the columns of a screen would be so for its rows.
    LOGFONT look = {};
    ::GetObject(m_style->Font(), sizeof look, &look);
    look.lfQuality = ANTIALIASED_QUALITY;
    CFont font;
    font.CreateFontIndirect(&look);
    const HGDIOBJ old = ::SelectObject(upright.Dc(), font);
    upright.Dc().SetBkMode(TRANSPARENT);
    m_style->DrawText(upright.Dc(), m_tabs[index].text, line, state);
    ::SelectObject(upright.Dc(), old);
    PixelCanvas turned(Turned(upright.Pixels(), line, back));
    ::BitBlt(dc, bounds.left, bounds.top, area.right, area.bottom, turned.Dc(), 0, 0, SRCCOPY);
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
           (part == TabPart::kScrollRight && m_offset >= ContentLength() - VisibleLength());
}

// In the middle of the gap at which the dragged tab would go.
int TabCtrl::DropMark() const {
    const bool last = m_dropIndex == GetTabCount();
    const CRect tab = GetTabRect(last ? m_dropIndex - 1 : m_dropIndex);
    const int gap = m_style->Gap() / 2;
    if (IsUpright())
        return last ? tab.bottom + gap : tab.top - gap;
    return last ? tab.right + gap : tab.left - gap;
}

}  // namespace Lumo
