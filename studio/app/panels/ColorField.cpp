#include "studio/app/panels/ColorField.h"

#include "studio/app/panels/FieldPainting.h"

#include <afxdlgs.h>

#include <cmath>

namespace Studio {

namespace {

constexpr int kPatchWidth = 30;
constexpr int kOpacityWidth = 50;
constexpr int kTextTop = 4;
constexpr int kTextHeight = 16;
constexpr int kSquare = 6;
constexpr COLORREF kLightSquare = RGB(0xFF, 0xFF, 0xFF);
constexpr COLORREF kDarkSquare = RGB(0xC8, 0xCC, 0xD2);

COLORREF Blend(COLORREF ground, DWORD rgb, int alpha) {
    const auto mix = [alpha](int over, int under) { return (over * alpha + under * (255 - alpha)) / 255; };
    return RGB(mix(rgb >> 16 & 0xFF, GetRValue(ground)), mix(rgb >> 8 & 0xFF, GetGValue(ground)),
               mix(rgb & 0xFF, GetBValue(ground)));
}

// The colour as it covers a chequered ground.
void PaintPatch(CDC& dc, const CRect& rect, DWORD rgb, int alpha) {
    for (int y = rect.top; y < rect.bottom; y += kSquare) {
        for (int x = rect.left; x < rect.right; x += kSquare) {
            const bool dark = (((x - rect.left) / kSquare + (y - rect.top) / kSquare) & 1) != 0;
            CRect square(x, y, x + kSquare, y + kSquare);
            square.IntersectRect(square, rect);
            dc.FillSolidRect(square, Blend(dark ? kDarkSquare : kLightSquare, rgb, alpha));
        }
    }
}

}  // namespace

BEGIN_MESSAGE_MAP(ColorField, PropertyField)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

CString ColorField::Part::Typed() const {
    CString text;
    edit.GetWindowText(text);
    return text;
}

bool ColorField::Part::IsEdited() const {
    return edit.m_hWnd && Typed() != shown;
}

bool ColorField::CreateControls() {
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    const CRect none(0, 0, 0, 0);
    if (!m_patch.Create(L"", kStyle | BS_OWNERDRAW | BS_NOTIFY, none, this, 1) ||
        !m_color.edit.Create(kStyle | ES_AUTOHSCROLL | ES_UPPERCASE, none, this, 2) ||
        !m_opacity.edit.Create(kStyle | ES_AUTOHSCROLL | ES_RIGHT, none, this, 3))
        return false;
    Adopt(m_patch);
    Adopt(m_color.edit);
    Adopt(m_opacity.edit);
    return true;
}

void ColorField::LayOut(const CRect& client) {
    m_patch.MoveWindow(4, 4, kPatchWidth - 4, client.Height() - 8, FALSE);
    const int split = client.right - kOpacityWidth;
    m_color.edit.MoveWindow(kPatchWidth + 6, kTextTop, split - kPatchWidth - 8, kTextHeight, FALSE);
    m_opacity.edit.MoveWindow(split + 4, kTextTop, kOpacityWidth - 10, kTextHeight, FALSE);
}

void ColorField::Paint(CDC& dc, const CRect& client) {
    dc.FillSolidRect(client.right - kOpacityWidth, 1, 1, client.Height() - 2, ToColorRef(Palette::kEdge));
}

ColorParts ColorField::Parts() const {
    return m_state.value ? std::get<ColorParts>(*m_state.value) : ColorParts();
}

void ColorField::SetText(Part& part, const CString& text) {
    m_setting = true;
    part.shown = text;
    if (part.Typed() != text)
        part.edit.SetWindowText(text);
    if (GetFocus() == &part.edit)
        part.edit.SetSel(0, -1);
    m_setting = false;
}

void ColorField::ShowState() {
    const ColorParts parts = Parts();
    CString color, opacity;
    if (parts.rgb)
        color.Format(L"%06X", static_cast<unsigned>(*parts.rgb));
    if (parts.alpha)
        opacity.Format(L"%d%%", static_cast<int>(std::lround(*parts.alpha / 2.55)));
    SetText(m_color, color);
    SetText(m_opacity, opacity);
    m_patch.Invalidate(FALSE);
}

bool ColorField::IsEdited() const {
    return m_color.IsEdited() || m_opacity.IsEdited();
}

bool ColorField::CommitColor() {
    if (!m_color.IsEdited())
        return true;
    const auto rgb = ParseColor(m_color.Typed());
    if (!rgb) {
        Refuse(GetText(Text::kRefuseColor));
        return false;
    }
    return Write(ColorParts{*rgb, std::nullopt});
}

bool ColorField::CommitOpacity() {
    if (!m_opacity.IsEdited())
        return true;
    CString refusal;
    const auto alpha = ParseOpacity(m_opacity.Typed(), refusal);
    if (!alpha) {
        Refuse(refusal);
        return false;
    }
    return Write(ColorParts{std::nullopt, *alpha});
}

bool ColorField::Commit() {
    if (!IsEdited())
        return true;
    if (!CommitColor() || !CommitOpacity())
        return false;
    ShowState();
    return true;
}

void ColorField::Revert() {
    Refuse(CString());
    ShowState();
}

bool ColorField::OnKey(UINT key) {
    if (key == VK_RETURN && GetFocus() == &m_patch) {
        AskForColor();
        return true;
    }
    if (key == VK_RETURN) {
        Commit();
        return true;
    }
    if (key == VK_ESCAPE && (IsEdited() || m_refused)) {
        Revert();
        return true;
    }
    return PropertyField::OnKey(key);
}

void ColorField::AskForColor() {
    const ColorParts parts = Parts();
    const COLORREF now = parts.rgb ? ToColorRef(*parts.rgb) : RGB(0xFF, 0xFF, 0xFF);
    CColorDialog dialog(now, CC_FULLOPEN | CC_ANYCOLOR, GetTopLevelParent());
    if (dialog.DoModal() == IDOK) {
        const COLORREF chosen = dialog.GetColor();
        const DWORD rgb = static_cast<DWORD>(GetRValue(chosen) << 16 | GetGValue(chosen) << 8) |
                          static_cast<DWORD>(GetBValue(chosen));
        Write(ColorParts{rgb, std::nullopt});
        ShowState();
    }
    m_patch.SetFocus();
}

void ColorField::OnEdit(Part& part, UINT event) {
    if (event == EN_SETFOCUS) {
        Refuse(CString());
        OnControlFocus(true);
        part.edit.SetSel(0, -1);
    } else if (event == EN_KILLFOCUS) {
        OnControlFocus(false);
        if (!Commit())
            ShowState();
        part.edit.SetSel(0, 0);
    } else if (event == EN_CHANGE && !m_setting) {
        Refuse(CString());
    }
}

BOOL ColorField::OnCommand(WPARAM wParam, LPARAM lParam) {
    const auto control = reinterpret_cast<HWND>(lParam);
    const UINT event = HIWORD(wParam);
    if (control == m_color.edit.m_hWnd)
        OnEdit(m_color, event);
    else if (control == m_opacity.edit.m_hWnd)
        OnEdit(m_opacity, event);
    else if (control == m_patch.m_hWnd && event == BN_CLICKED)
        AskForColor();
    else if (control == m_patch.m_hWnd && (event == BN_SETFOCUS || event == BN_KILLFOCUS))
        OnControlFocus(event == BN_SETFOCUS);
    else
        return PropertyField::OnCommand(wParam, lParam);
    return TRUE;
}

void ColorField::OnDrawItem(int, LPDRAWITEMSTRUCT item) {
    CDC& dc = *CDC::FromHandle(item->hDC);
    CRect rect = item->rcItem;
    const bool focus = (item->itemState & ODS_FOCUS) != 0;
    dc.FillSolidRect(rect, ToColorRef(focus ? Palette::kAccent : Palette::kEdge));
    rect.DeflateRect(1, 1);
    const ColorParts parts = Parts();
    if (parts.rgb)
        PaintPatch(dc, rect, *parts.rgb, parts.alpha.value_or(255));
    else
        dc.FillSolidRect(rect, GroundColor(m_state.enabled));
}

}  // namespace Studio
