#include "studio/app/panels/SectionHeader.h"

#include "studio/app/panels/FieldPainting.h"

namespace Studio {

bool SectionHeader::Create(CWnd& parent, Text title, UINT id) {
    m_title = title;
    return CButton::Create(GetText(title),
                           WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_TABSTOP | BS_OWNERDRAW,
                           CRect(0, 0, 0, 0), &parent, id) != FALSE;
}

void SectionHeader::Toggle() {
    m_open = !m_open;
    Invalidate(FALSE);
}

void SectionHeader::Draw(const DRAWITEMSTRUCT& item) const {
    CDC& dc = *CDC::FromHandle(item.hDC);
    CRect rect = item.rcItem;
    const bool focus = (item.itemState & ODS_FOCUS) != 0;
    dc.FillSolidRect(rect, ToColorRef(focus ? Palette::kChosen : Palette::kHover));
    dc.FillSolidRect(rect.left, rect.top, rect.Width(), 1, ToColorRef(Palette::kEdge));
    const DWORD color = focus ? Palette::kAccent : Palette::kText;
    PaintArrow(dc, CPoint(rect.left + 13, rect.CenterPoint().y),
               m_open ? ArrowLook::kDown : ArrowLook::kRight, color);
    ::SelectObject(dc, HeadingFont());
    dc.SetBkMode(TRANSPARENT);
    rect.left += 24;
    PaintText(dc, GetText(m_title), rect, color);
}

}  // namespace Studio
