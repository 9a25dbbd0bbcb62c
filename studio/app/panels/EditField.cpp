#include "studio/app/panels/EditField.h"

namespace Studio {

namespace {

constexpr int kPadding = 4;
constexpr int kTextHeight = 16;

}  // namespace

bool EditField::CreateControls() {
    if (!m_edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | EditStyle(), CRect(0, 0, 0, 0), this, 1))
        return false;
    Adopt(m_edit);
    return true;
}

CRect EditField::EditRoom(const CRect& client) const {
    const int top = (kHeight - kTextHeight) / 2;
    return CRect(client.left + kPadding, client.top + top, client.right - kPadding, client.bottom - top);
}

void EditField::LayOut(const CRect& client) {
    m_edit.MoveWindow(EditRoom(client), FALSE);
}

CString EditField::Typed() const {
    CString text;
    m_edit.GetWindowText(text);
    return text;
}

bool EditField::IsEdited() const {
    return m_edit.m_hWnd && Typed() != m_shown;
}

void EditField::SetText(const CString& text) {
    m_setting = true;
    m_shown = text;
    if (Typed() != text)
        m_edit.SetWindowText(text);
    m_setting = false;
}

void EditField::ShowState() {
    SetText(m_state.value ? Format(*m_state.value) : CString());
    if (m_focused)
        SelectAll();
}

bool EditField::Commit() {
    if (!IsEdited())
        return true;
    CString refusal;
    const auto value = Parse(Typed(), refusal);
    if (!value) {
        Refuse(refusal);
        return false;
    }
    if (!Write(*value))
        return false;
    // The text becomes the value as it is written: "07" becomes "7".
    ShowState();
    return true;
}

void EditField::Revert() {
    Refuse(CString());
    ShowState();
}

bool EditField::OnKey(UINT key) {
    if (key == VK_RETURN) {
        if (Commit())
            SelectAll();
        return true;
    }
    if (key == VK_ESCAPE && (IsEdited() || m_refused)) {
        Revert();
        return true;
    }
    return PropertyField::OnKey(key);
}

BOOL EditField::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (reinterpret_cast<HWND>(lParam) != m_edit.m_hWnd)
        return PropertyField::OnCommand(wParam, lParam);
    switch (HIWORD(wParam)) {
        case EN_SETFOCUS:
            Refuse(CString());
            OnControlFocus(true);
            SelectAll();
            break;
        case EN_KILLFOCUS:
            OnControlFocus(false);
            if (!Commit())
                ShowState();
            m_edit.SetSel(0, 0);
            break;
        case EN_CHANGE:
            if (!m_setting)
                Refuse(CString());
            break;
    }
    return TRUE;
}

}  // namespace Studio
