#include "studio/runtime/NumberEntry.h"

#include "studio/app/Painting.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

namespace Studio {

BEGIN_MESSAGE_MAP(NumberEntry, CEdit)
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

bool NumberEntry::Open(CWnd& parent, CRect area, double number, std::function<void(double)> done) {
    constexpr int kHeight = 24;
    constexpr int kLeast = 72;
    Close();
    const CPoint middle = area.CenterPoint();
    const int half = std::max(kLeast, std::min<int>(area.Width(), 2 * kLeast)) / 2;
    const CRect place(middle.x - half, middle.y - kHeight / 2, middle.x + half, middle.y + kHeight / 2);
    if (!Create(WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL | ES_CENTER, place, &parent, 1))
        return false;
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(BarFont()), FALSE);
    CString text;
    text.Format(L"%.6g", number);
    SetWindowText(text);
    SetSel(0, -1);
    SetFocus();
    // Not every part of the window takes the keyboard when it is pressed.
    m_elsewhere.StartElsewhere(m_hWnd, [this] { Close(); });
    m_done = std::move(done);
    return true;
}

void NumberEntry::Close() {
    m_done = nullptr;
    m_elsewhere.Stop();
    if (m_hWnd)
        DestroyWindow();
}

void NumberEntry::Accept() {
    CString text;
    GetWindowText(text);
    WCHAR* end = nullptr;
    const double number = std::wcstod(text, &end);
    CString rest = end;
    rest.Trim();
    if (end == text.GetString() || !rest.IsEmpty() || !std::isfinite(number)) {
        ::MessageBeep(MB_ICONWARNING);
        SetSel(0, -1);
        return;
    }
    const auto done = std::move(m_done);
    CWnd* parent = GetParent();
    Close();
    parent->SetFocus();
    if (done)
        done(number);
}

void NumberEntry::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (key == VK_RETURN)
        Accept();
    else
        CEdit::OnKeyDown(key, repeat, flags);
}

// The field would beep at the return key.
void NumberEntry::OnChar(UINT character, UINT repeat, UINT flags) {
    if (character != L'\r')
        CEdit::OnChar(character, repeat, flags);
}

void NumberEntry::OnKillFocus(CWnd* next) {
    CEdit::OnKillFocus(next);
    Close();
}

}  // namespace Studio
