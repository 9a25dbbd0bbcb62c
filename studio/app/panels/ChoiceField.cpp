#include "studio/app/panels/ChoiceField.h"

#include "studio/app/panels/FieldPainting.h"

#include <algorithm>

namespace Studio {

namespace {

constexpr int kArrowWidth = 20;
constexpr int kMostRows = 16;
constexpr int kRowHeight = 20;

}  // namespace

BEGIN_MESSAGE_MAP(ChoiceBox, CComboBox)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

BOOL ChoiceBox::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void ChoiceBox::OnPaint() {
    BufferedDC paint(*this);
    CDC& dc = paint.Dc();
    CRect rect = paint.Client();
    const bool enabled = IsWindowEnabled() != FALSE;
    const bool focused = GetFocus() == this;
    PaintFrame(dc, rect, focused ? FrameLook::kFocused : enabled ? FrameLook::kNormal : FrameLook::kDisabled);
    PaintArrow(dc, CPoint(rect.right - kArrowWidth / 2 - 1, rect.CenterPoint().y), ArrowLook::kDown,
               enabled ? Palette::kQuietText : Palette::kEdge);
    CString text;
    if (const int chosen = GetCurSel(); chosen >= 0)
        GetLBText(chosen, text);
    rect.DeflateRect(7, 0, kArrowWidth, 0);
    PaintText(dc, text, rect, enabled ? Palette::kText : Palette::kQuietText);
}

// When the button goes up, the platform's box hands the mouse on to its list, also to one that is closed.
void ChoiceBox::LetGo() {
    if (GetCapture() != this)
        return;
    SendMessage(WM_LBUTTONUP);
    ::ReleaseCapture();
}

BEGIN_MESSAGE_MAP(ChoiceField, PropertyField)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

bool ChoiceField::CreateControls() {
    m_choices = m_property.choices();
    const int rows = std::min(static_cast<int>(m_choices.size()), kMostRows);
    const CRect dropped(0, 0, 100, kHeight + rows * kRowHeight + 4);
    if (!m_box.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST |
                          CBS_OWNERDRAWFIXED | CBS_HASSTRINGS,
                      dropped, this, 1))
        return false;
    Adopt(m_box);
    // The closed box is 6 pixels higher than its line of text.
    m_box.SendMessage(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), kHeight - 6);
    m_box.SendMessage(CB_SETITEMHEIGHT, 0, kRowHeight);
    for (const Choice& choice : m_choices)
        m_box.AddString(choice.text);
    return true;
}

void ChoiceField::Replace(std::vector<Choice> choices) {
    m_choices = std::move(choices);
    m_box.ResetContent();
    for (const Choice& choice : m_choices)
        m_box.AddString(choice.text);
    ShowState();
}

void ChoiceField::LayOut(const CRect& client) {
    const int rows = std::min(static_cast<int>(m_choices.size()), kMostRows);
    m_box.MoveWindow(0, 0, client.Width(), kHeight + rows * kRowHeight + 4, FALSE);
}

void ChoiceField::OnDrawItem(int, LPDRAWITEMSTRUCT item) {
    if (item->itemState & ODS_COMBOBOXEDIT) {
        m_box.Invalidate(FALSE);
        return;
    }
    CDC& dc = *CDC::FromHandle(item->hDC);
    CRect rect = item->rcItem;
    const bool chosen = (item->itemState & ODS_SELECTED) != 0;
    dc.FillSolidRect(rect, chosen ? ToColorRef(Palette::kChosen) : GroundColor(true));
    if (item->itemID >= m_choices.size())
        return;
    ::SelectObject(dc, BarFont());
    dc.SetBkMode(TRANSPARENT);
    rect.DeflateRect(6, 0, 2, 0);
    PaintText(dc, m_choices[item->itemID].text, rect, chosen ? Palette::kAccent : Palette::kText);
}

int ChoiceField::IndexOf(const PropertyValue& value) {
    const auto found = std::find_if(m_choices.begin(), m_choices.end(),
                                    [&](const Choice& choice) { return choice.value == value; });
    if (found != m_choices.end())
        return static_cast<int>(found - m_choices.begin());
    const auto* text = std::get_if<CString>(&value);
    if (!text || text->IsEmpty())
        return -1;
    m_choices.push_back({*text, *text});
    return m_box.AddString(*text);
}

void ChoiceField::ShowState() {
    m_box.SetCurSel(m_state.value ? IndexOf(*m_state.value) : -1);
    m_box.Invalidate(FALSE);
}

void ChoiceField::WriteChoice() {
    const int chosen = m_box.GetCurSel();
    if (chosen < 0)
        return;
    const PropertyValue& value = m_choices[static_cast<size_t>(chosen)].value;
    // Walking through the list with the arrow keys is one step to undo.
    if (m_state.value != value)
        Write(value, static_cast<DWORD>(reinterpret_cast<UINT_PTR>(&m_property)));
    ShowState();
}

bool ChoiceField::OnKey(UINT key) {
    const bool dropped = m_box.SendMessage(CB_GETDROPPEDSTATE) != 0;
    if (key != VK_RETURN || dropped)
        return PropertyField::OnKey(key);
    m_box.SendMessage(CB_SHOWDROPDOWN, TRUE);
    return true;
}

BOOL ChoiceField::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (reinterpret_cast<HWND>(lParam) != m_box.m_hWnd)
        return PropertyField::OnCommand(wParam, lParam);
    switch (HIWORD(wParam)) {
        case CBN_KILLFOCUS:
            m_box.LetGo();
            [[fallthrough]];
        case CBN_SETFOCUS:
            OnControlFocus(HIWORD(wParam) == CBN_SETFOCUS);
            m_box.Invalidate(FALSE);
            break;
        case CBN_DROPDOWN:
            m_cancelled = false;
            break;
        case CBN_SELENDCANCEL:
            m_cancelled = true;
            break;
        case CBN_CLOSEUP:
            if (m_cancelled)
                ShowState();
            break;
        case CBN_SELENDOK:
        case CBN_SELCHANGE:
            // In an open list the rows that are walked over are not chosen yet.
            if (HIWORD(wParam) == CBN_SELENDOK || !m_box.SendMessage(CB_GETDROPPEDSTATE))
                WriteChoice();
            break;
    }
    return TRUE;
}

}  // namespace Studio
