#include "studio/app/panels/TextField.h"

#include "studio/app/panels/FieldPainting.h"

#include <afxdlgs.h>

namespace Studio {

namespace {

constexpr int kButtonWidth = 24;

}  // namespace

BEGIN_MESSAGE_MAP(FileField, TextField)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

bool FileField::CreateControls() {
    if (!TextField::CreateControls() ||
        !m_button.Create(L"\x2026", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW | BS_NOTIFY,
                         CRect(0, 0, 0, 0), this, 2))
        return false;
    Adopt(m_button);
    return true;
}

void FileField::LayOut(const CRect& client) {
    TextField::LayOut(client);
    m_button.MoveWindow(client.right - kButtonWidth, 1, kButtonWidth - 1, client.Height() - 2, FALSE);
}

CRect FileField::EditRoom(const CRect& client) const {
    CRect room = TextField::EditRoom(client);
    room.right -= kButtonWidth - 4;
    return room;
}

void FileField::OnDrawItem(int, LPDRAWITEMSTRUCT item) {
    CDC& dc = *CDC::FromHandle(item->hDC);
    const CRect rect = item->rcItem;
    const bool down = (item->itemState & ODS_SELECTED) != 0;
    const bool focus = (item->itemState & ODS_FOCUS) != 0;
    dc.FillSolidRect(rect, ToColorRef(down ? Palette::kPressed : focus ? Palette::kChosen : Palette::kBar));
    dc.FillSolidRect(rect.left, rect.top, 1, rect.Height(), ToColorRef(Palette::kEdge));
    ::SelectObject(dc, BarFont());
    dc.SetBkMode(TRANSPARENT);
    PaintText(dc, L"\x2026", rect, m_state.enabled ? Palette::kText : Palette::kEdge, DT_CENTER);
}

BOOL FileField::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (reinterpret_cast<HWND>(lParam) != m_button.m_hWnd)
        return TextField::OnCommand(wParam, lParam);
    if (HIWORD(wParam) == BN_CLICKED)
        AskForFile();
    else if (HIWORD(wParam) == BN_SETFOCUS || HIWORD(wParam) == BN_KILLFOCUS)
        OnControlFocus(HIWORD(wParam) == BN_SETFOCUS);
    return TRUE;
}

void FileField::AskForFile() {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_FILEMUSTEXIST,
                       GetText(Text::kPropPictureFilter), GetTopLevelParent());
    if (dialog.DoModal() == IDOK && Write(dialog.GetPathName()))
        ShowState();
    m_button.SetFocus();
}

}  // namespace Studio
