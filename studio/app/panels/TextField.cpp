#include "studio/app/panels/TextField.h"

#include "studio/app/panels/FieldPainting.h"
#include "studio/app/panels/ValueMenu.h"

#include <afxdlgs.h>

namespace Studio {

namespace {

constexpr int kButtonWidth = 24;

}  // namespace

BEGIN_MESSAGE_MAP(AidedField, TextField)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

bool AidedField::CreateControls() {
    if (!TextField::CreateControls() ||
        !m_button.Create(L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW | BS_NOTIFY,
                         CRect(0, 0, 0, 0), this, 2))
        return false;
    Adopt(m_button);
    return true;
}

void AidedField::LayOut(const CRect& client) {
    TextField::LayOut(client);
    m_button.MoveWindow(client.right - kButtonWidth, 1, kButtonWidth - 1, client.Height() - 2, FALSE);
}

CRect AidedField::EditRoom(const CRect& client) const {
    CRect room = TextField::EditRoom(client);
    room.right -= kButtonWidth - 4;
    return room;
}

void AidedField::OnDrawItem(int, LPDRAWITEMSTRUCT item) {
    CDC& dc = *CDC::FromHandle(item->hDC);
    const CRect rect = item->rcItem;
    const bool down = (item->itemState & ODS_SELECTED) != 0;
    const bool focus = (item->itemState & ODS_FOCUS) != 0;
    dc.FillSolidRect(rect, ToColorRef(down ? Palette::kPressed : focus ? Palette::kChosen : Palette::kBar));
    dc.FillSolidRect(rect.left, rect.top, 1, rect.Height(), ToColorRef(Palette::kEdge));
    DrawFace(dc, rect, m_state.enabled ? Palette::kText : Palette::kEdge);
}

BOOL AidedField::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (reinterpret_cast<HWND>(lParam) != m_button.m_hWnd)
        return TextField::OnCommand(wParam, lParam);
    if (HIWORD(wParam) == BN_CLICKED)
        Press();
    else if (HIWORD(wParam) == BN_SETFOCUS || HIWORD(wParam) == BN_KILLFOCUS)
        OnControlFocus(HIWORD(wParam) == BN_SETFOCUS);
    return TRUE;
}

bool AidedField::OnKey(UINT key) {
    if (key != VK_RETURN || GetFocus() != &m_button)
        return TextField::OnKey(key);
    Press();
    return true;
}

void AidedField::Press() {
    Assist();
    m_button.SetFocus();
}

void FileField::DrawFace(CDC& dc, const CRect& rect, DWORD color) const {
    ::SelectObject(dc, BarFont());
    dc.SetBkMode(TRANSPARENT);
    PaintText(dc, L"\x2026", rect, color, DT_CENTER);
}

void FileField::Assist() {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_FILEMUSTEXIST,
                       GetText(Text::kPropPictureFilter), GetTopLevelParent());
    if (dialog.DoModal() == IDOK && Write(dialog.GetPathName()))
        ShowState();
}

void ValueField::DrawFace(CDC& dc, const CRect& rect, DWORD color) const {
    PaintArrow(dc, rect.CenterPoint(), ArrowLook::kDown, color);
}

bool ValueField::OnKey(UINT key) {
    if (key != VK_DOWN)
        return AidedField::OnKey(key);
    if (Commit())
        Assist();
    return true;
}

void ValueField::Assist() {
    CRect rect;
    GetWindowRect(rect);
    const CString name = AskForValueName(*GetTopLevelParent(), rect, m_property.names == NameUse::kFront);
    if (name.IsEmpty())
        return;
    CString names = name;
    if (m_property.names == NameUse::kSeveral && m_state.value) {
        if (const CString before = Format(*m_state.value); !before.IsEmpty())
            names = before + L", " + name;
    }
    if (Write(names))
        ShowState();
}

}  // namespace Studio
