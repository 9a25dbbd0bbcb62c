#include "studio/app/panels/CheckField.h"

#include "studio/app/panels/FieldPainting.h"

namespace Studio {

namespace {

constexpr int kBox = 16;

bool IsOn(const PropertyState& state) {
    return state.value && std::get<int>(*state.value) != 0;
}

// A tick of two strokes, 2 pixels wide.
void PaintTick(CDC& dc, CPoint at, DWORD color) {
    for (int i = 0; i < 4; ++i)
        dc.FillSolidRect(at.x + i, at.y + i, 1, 2, ToColorRef(color));
    for (int i = 0; i < 6; ++i)
        dc.FillSolidRect(at.x + 3 + i, at.y + 3 - i, 1, 2, ToColorRef(color));
}

}  // namespace

BEGIN_MESSAGE_MAP(CheckField, PropertyField)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

bool CheckField::CreateControls() {
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW | BS_NOTIFY;
    if (!m_button.Create(m_property.inside, kStyle, CRect(0, 0, 0, 0), this, 1))
        return false;
    Adopt(m_button);
    return true;
}

void CheckField::LayOut(const CRect& client) {
    m_button.MoveWindow(client, FALSE);
}

void CheckField::Toggle() {
    Write(IsOn(m_state) ? 0 : 1);
}

bool CheckField::OnKey(UINT key) {
    if (key != VK_RETURN)
        return PropertyField::OnKey(key);
    Toggle();
    return true;
}

BOOL CheckField::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (reinterpret_cast<HWND>(lParam) != m_button.m_hWnd)
        return PropertyField::OnCommand(wParam, lParam);
    // Quick clicks come in pairs: the second of a pair counts as well.
    if (HIWORD(wParam) == BN_CLICKED || HIWORD(wParam) == BN_DOUBLECLICKED)
        Toggle();
    else if (HIWORD(wParam) == BN_SETFOCUS || HIWORD(wParam) == BN_KILLFOCUS)
        OnControlFocus(HIWORD(wParam) == BN_SETFOCUS);
    return TRUE;
}

void CheckField::OnDrawItem(int, LPDRAWITEMSTRUCT item) {
    CDC& dc = *CDC::FromHandle(item->hDC);
    const CRect rect = item->rcItem;
    const bool focus = (item->itemState & ODS_FOCUS) != 0;
    ::SelectObject(dc, BarFont());
    dc.SetBkMode(TRANSPARENT);
    if (m_property.kind == FieldKind::kCheck)
        DrawBox(dc, rect, focus);
    else
        DrawToggle(dc, rect, focus);
}

void CheckField::DrawBox(CDC& dc, const CRect& rect, bool focus) const {
    dc.FillSolidRect(rect, ToColorRef(Palette::kBar));
    CRect box(CPoint(rect.left, rect.CenterPoint().y - kBox / 2), CSize(kBox, kBox));
    const bool on = IsOn(m_state);
    PaintFrame(dc, box,
               focus             ? FrameLook::kFocused
               : m_state.enabled ? FrameLook::kNormal
                                 : FrameLook::kDisabled);
    if (on) {
        box.DeflateRect(2, 2);
        dc.FillSolidRect(box, ToColorRef(m_state.enabled ? Palette::kAccent : Palette::kEdge));
        PaintTick(dc, CPoint(box.left + 1, box.top + 5), 0xFFFFFFFF);
    } else if (m_state.enabled && !m_state.value) {
        dc.FillSolidRect(box.left + 4, box.CenterPoint().y - 1, kBox - 8, 2, ToColorRef(Palette::kQuietText));
    }
    CRect text = rect;
    text.left = box.left + kBox + 6;
    PaintText(dc, m_property.inside, text, Palette::kText);
}

void CheckField::DrawToggle(CDC& dc, const CRect& rect, bool focus) const {
    const bool on = IsOn(m_state);
    PaintFrame(dc, rect,
               focus             ? FrameLook::kFocused
               : m_state.enabled ? FrameLook::kNormal
                                 : FrameLook::kDisabled);
    CRect face = rect;
    face.DeflateRect(1, 1);
    if (on)
        dc.FillSolidRect(face, ToColorRef(Palette::kChosen));
    const bool mixed = m_state.enabled && !m_state.value;
    const CString text = mixed ? m_property.inside + L" \x2013" : m_property.inside;
    PaintText(dc, text, rect,
              !m_state.enabled ? Palette::kEdge
              : on             ? Palette::kAccent
                               : Palette::kText,
              DT_CENTER);
}

}  // namespace Studio
