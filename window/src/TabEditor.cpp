#include "TabEditor.h"

namespace Lumo {

namespace {

constexpr UINT kEditorId = 1;
constexpr UINT kLongestText = 64;

}  // namespace

BEGIN_MESSAGE_MAP(TabCtrl::Editor, CEdit)
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

bool TabCtrl::Editor::Open(const CRect& rect, bool popup, const CString& text, HFONT font) {
    const DWORD style = (popup ? WS_POPUP : WS_CHILD) | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL;
    if (!CreateEx(0, L"EDIT", nullptr, style, rect, &m_owner, popup ? 0 : kEditorId))
        return false;
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SetLimitText(kLongestText);
    SetWindowText(text);
    SetSel(0, -1);
    SetFocus();
    // Not every window takes the keyboard when it is pressed.
    m_elsewhere.StartElsewhere(m_hWnd, [this] { Leave(); });
    return true;
}

// Keys are for the editor: the frame's shortcuts would take them.
BOOL TabCtrl::Editor::PreTranslateMessage(MSG* msg) {
    if (msg->message < WM_KEYFIRST || msg->message > WM_KEYLAST || msg->message == WM_SYSKEYDOWN)
        return CEdit::PreTranslateMessage(msg);
    if (msg->message == WM_KEYDOWN && (msg->wParam == VK_RETURN || msg->wParam == VK_ESCAPE)) {
        m_owner.EndRename(msg->wParam == VK_RETURN);
        return TRUE;
    }
    ::TranslateMessage(msg);
    ::DispatchMessage(msg);
    return TRUE;
}

void TabCtrl::Editor::OnKillFocus(CWnd* next) {
    CEdit::OnKillFocus(next);
    Leave();
}

// Not at once: the window must outlive its own message.
void TabCtrl::Editor::Leave() {
    m_owner.PostMessage(kEditorLeft, 0, reinterpret_cast<LPARAM>(this));
}

}  // namespace Lumo
