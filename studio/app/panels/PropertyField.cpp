#include "studio/app/panels/PropertyField.h"

#include "studio/app/Painting.h"
#include "studio/app/panels/CaptionField.h"
#include "studio/app/panels/CheckField.h"
#include "studio/app/panels/ChoiceField.h"
#include "studio/app/panels/ColorField.h"
#include "studio/app/panels/FieldPainting.h"
#include "studio/app/panels/NumberField.h"
#include "studio/app/panels/TextField.h"

namespace Studio {

BEGIN_MESSAGE_MAP(PropertyField, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

bool PropertyField::Create(CWnd& parent) {
    const LPCWSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CreateEx(0, windowClass, L"Field", WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0),
                  &parent, 0))
        return false;
    if (!CreateControls())
        return false;
    ShowState();
    return true;
}

void PropertyField::Adopt(CWnd& control) {
    control.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(BarFont()), FALSE);
    control.EnableWindow(m_state.enabled);
    m_controls.push_back(&control);
}

void PropertyField::Show(const PropertyState& state) {
    if (state == m_state)
        return;
    const bool enabling = state.enabled != m_state.enabled;
    m_state = state;
    if (enabling) {
        for (CWnd* control : m_controls)
            control->EnableWindow(state.enabled);
    }
    // Text that is being typed outlives changes from elsewhere, but not the end of the property.
    if (!IsEdited() || !state.enabled) {
        Refuse(CString());
        ShowState();
    }
    Invalidate(FALSE);
}

bool PropertyField::OnKey(UINT) {
    return false;
}

bool PropertyField::Write(const PropertyValue& value, DWORD mergeKey) {
    const CString reason = m_host.WriteValue(m_property, value, mergeKey);
    Refuse(reason);
    return reason.IsEmpty();
}

void PropertyField::Refuse(const CString& reason) {
    const bool refused = !reason.IsEmpty();
    if (!refused && !m_refused)
        return;
    m_refused = refused;
    m_host.ShowRefusal(*this, reason);
    Invalidate(FALSE);
}

void PropertyField::OnControlFocus(bool has) {
    m_focused = has;
    Invalidate(FALSE);
    if (has)
        m_host.OnFieldFocus(*this);
}

void PropertyField::OnSize(UINT, int cx, int cy) {
    LayOut(CRect(0, 0, cx, cy));
    Invalidate(FALSE);
}

BOOL PropertyField::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void PropertyField::OnPaint() {
    BufferedDC paint(*this);
    const CRect& client = paint.Client();
    CDC& dc = paint.Dc();
    dc.FillSolidRect(client, ToColorRef(Palette::kBar));
    if (IsFramed())
        PaintFrame(dc, client,
                   m_refused         ? FrameLook::kRefused
                   : m_focused       ? FrameLook::kFocused
                   : m_state.enabled ? FrameLook::kNormal
                                     : FrameLook::kDisabled);
    Paint(dc, client);
}

HBRUSH PropertyField::OnCtlColor(CDC* dc, CWnd*, UINT) {
    dc->SetTextColor(ToColorRef(m_state.enabled ? Palette::kText : Palette::kQuietText));
    dc->SetBkColor(GroundColor(m_state.enabled));
    return GroundBrush(m_state.enabled);
}

std::unique_ptr<PropertyField> MakeField(PropertyHost& host, const Property& property) {
    switch (property.kind) {
        case FieldKind::kText:
            return std::make_unique<TextField>(host, property);
        case FieldKind::kFile:
            return std::make_unique<FileField>(host, property);
        case FieldKind::kValue:
            return std::make_unique<ValueField>(host, property);
        case FieldKind::kCaption:
            return std::make_unique<CaptionField>(host, property);
        case FieldKind::kNumber:
            return std::make_unique<NumberField>(host, property);
        case FieldKind::kChoice:
            return std::make_unique<ChoiceField>(host, property);
        case FieldKind::kColor:
            return std::make_unique<ColorField>(host, property);
        case FieldKind::kCheck:
        case FieldKind::kToggle:
            return std::make_unique<CheckField>(host, property);
    }
    return nullptr;
}

}  // namespace Studio
