// Where the rows of the property panel stand, how they scroll, and what is painted between them.
#include "studio/app/panels/CaptionField.h"
#include "studio/app/panels/FieldPainting.h"
#include "studio/app/panels/PropertyPanel.h"
#include "window/DeferWindow.h"

#include <algorithm>

namespace Studio {

namespace {

constexpr int kTitleHeight = 36;
constexpr int kMargin = 10;
constexpr int kLabelWidth = 82;
constexpr int kGap = 4;
constexpr int kRowGap = 5;
constexpr int kSectionPadding = 8;
constexpr int kWheelStep = 60;

int HeightOf(const Property& property) {
    return property.kind == FieldKind::kCaption ? CaptionField::kCaptionHeight : PropertyField::kHeight;
}

}  // namespace

void PropertyPanel::LayOut() {
    PlaceRows();
    UpdateScrollBar();
    // What is moved brings its old picture along, with what lay over it.
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

// Places everything from the top; what is folded away is hidden.
void PropertyPanel::PlaceRows() {
    CRect client;
    GetClientRect(client);
    Lumo::DeferWindow places;
    int top = kTitleHeight;
    for (auto& section : m_sections) {
        section->top = top;
        places.Move(section->header,
                    CRect(CPoint(0, top - m_scroll), CSize(client.Width(), SectionHeader::kHeight)));
        top += SectionHeader::kHeight;
        const bool open = section->header.IsOpen();
        if (open)
            top += kSectionPadding;
        for (Row& row : section->rows) {
            LayOutRow(places, row, top, open);
            if (open)
                top += row.height + kRowGap;
        }
        if (open)
            top += kSectionPadding - kRowGap;
    }
    // The rows of behaviours differ in number: with room for any of them nothing moves when another is
    // chosen.
    const Section& last = BehaviourSection();
    m_height = last.header.IsOpen() ? std::max<int>(top, last.top + client.Height()) : top;
}

void PropertyPanel::LayOutRow(Lumo::DeferWindow& places, Row& row, int top, bool shown) {
    CRect client;
    GetClientRect(client);
    row.top = top;
    row.height = HeightOf(row.fields.front()->GetProperty());
    const int left = kMargin + kLabelWidth;
    const int count = static_cast<int>(row.fields.size());
    const int room = client.Width() - kMargin - left + kGap;
    for (int i = 0; i < count; ++i) {
        PropertyField& field = *row.fields[static_cast<size_t>(i)];
        const int x = left + room * i / count;
        const int width = left + room * (i + 1) / count - kGap - x;
        if (shown)
            places.Show(field, CRect(CPoint(x, top - m_scroll), CSize(width, row.height)));
        else
            places.Hide(field);
    }
}

void PropertyPanel::UpdateScrollBar() {
    CRect client;
    GetClientRect(client);
    // The bar is always there: its coming and going would move the fields.
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    info.nMax = std::max(m_height - 1, 0);
    info.nPage = static_cast<UINT>(client.Height());
    info.nPos = m_scroll;
    SetScrollInfo(SB_VERT, &info);
    ScrollTo(m_scroll);
}

void PropertyPanel::ScrollTo(int position) {
    CRect client;
    GetClientRect(client);
    position = std::clamp(position, 0, std::max<int>(m_height - client.Height(), 0));
    const int delta = m_scroll - position;
    if (delta == 0)
        return;
    if (m_refused)
        m_refused->EndRefusal();
    m_scroll = position;
    SetScrollPos(SB_VERT, position);
    ::ScrollWindowEx(m_hWnd, 0, delta, nullptr, nullptr, nullptr, nullptr, SW_SCROLLCHILDREN | SW_INVALIDATE);
    UpdateWindow();
}

void PropertyPanel::EnsureVisible(const CWnd& control) {
    CRect rect, client;
    control.GetWindowRect(rect);
    ScreenToClient(rect);
    GetClientRect(client);
    if (rect.top < kMargin)
        ScrollTo(m_scroll + rect.top - kMargin);
    else if (rect.bottom > client.bottom - kMargin)
        ScrollTo(m_scroll + rect.bottom - client.bottom + kMargin);
}

void PropertyPanel::ScrollByWheel(short turn) {
    ScrollTo(m_scroll - turn * kWheelStep / WHEEL_DELTA);
}

void PropertyPanel::OnVScroll(UINT code, UINT, CScrollBar*) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    GetScrollInfo(SB_VERT, &info, SIF_ALL);
    const int page = static_cast<int>(info.nPage);
    switch (code) {
        case SB_LINEUP:
            return ScrollTo(m_scroll - kWheelStep / 2);
        case SB_LINEDOWN:
            return ScrollTo(m_scroll + kWheelStep / 2);
        case SB_PAGEUP:
            return ScrollTo(m_scroll - page);
        case SB_PAGEDOWN:
            return ScrollTo(m_scroll + page);
        case SB_TOP:
            return ScrollTo(0);
        case SB_BOTTOM:
            return ScrollTo(m_height);
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            return ScrollTo(info.nTrackPos);
    }
}

void PropertyPanel::OnSize(UINT, int, int) {
    if (m_sections.empty())
        return;
    LayOut();
}

BOOL PropertyPanel::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void PropertyPanel::OnPaint() {
    BufferedDC paint(*this);
    CDC& dc = paint.Dc();
    const CRect& client = paint.Client();
    dc.FillSolidRect(client, ToColorRef(Palette::kBar));
    for (auto& section : m_sections) {
        for (Row& row : section->rows) {
            const int top = row.top - m_scroll;
            if (!section->header.IsOpen() || top > client.bottom || top + row.height < 0)
                continue;
            const bool enabled = row.fields.front()->State().enabled;
            PaintText(dc, GetText(row.label),
                      CRect(kMargin, top, kMargin + kLabelWidth - kGap, top + PropertyField::kHeight),
                      enabled ? Palette::kText : Palette::kQuietText);
        }
    }
    ::SelectObject(dc, HeadingFont());
    PaintText(dc, m_title, CRect(kMargin, -m_scroll, client.right - kMargin, kTitleHeight - m_scroll),
              Palette::kText);
    dc.FillSolidRect(0, 0, 1, client.Height(), ToColorRef(Palette::kEdge));
}

void PropertyPanel::OnDrawItem(int, LPDRAWITEMSTRUCT item) {
    for (const auto& section : m_sections) {
        if (section->header.m_hWnd == item->hwndItem)
            section->header.Draw(*item);
    }
}

}  // namespace Studio
