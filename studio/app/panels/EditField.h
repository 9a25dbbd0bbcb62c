// A field around one edit control.
#pragma once

#include "studio/app/panels/PropertyField.h"

namespace Studio {

/// Typed text is written by Enter and when the focus goes, and taken back by Escape. What is refused stays to
/// be corrected while the field has the focus; afterwards the old value is shown again.
class EditField : public PropertyField {
public:
    using PropertyField::PropertyField;

    bool Commit() override;
    void Revert() override;
    bool IsEdited() const override;
    bool OnKey(UINT key) override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    bool CreateControls() override;
    void LayOut(const CRect& client) override;
    void ShowState() override;

    /// The text that stands for a value.
    virtual CString Format(const PropertyValue& value) const = 0;
    /// The value of a typed text; otherwise why it is refused.
    virtual std::optional<PropertyValue> Parse(const CString& text, CString& refusal) const = 0;
    /// Style bits of the edit control beside the common ones.
    virtual DWORD EditStyle() const { return ES_AUTOHSCROLL; }
    /// The room of the edit control in the field.
    virtual CRect EditRoom(const CRect& client) const;

    void SelectAll() { m_edit.SetSel(0, -1); }

    CEdit m_edit;

private:
    CString Typed() const;
    void SetText(const CString& text);

    CString m_shown;
    bool m_setting = false;
};

}  // namespace Studio
