// A field for a colour with its opacity.
#pragma once

#include "studio/app/panels/PropertyField.h"

namespace Studio {

/// A patch that asks for a colour, the colour's six digits, and its opacity in per cent. Colour and opacity
/// are written apart: one of them can be given to objects that differ in the other.
class ColorField : public PropertyField {
public:
    using PropertyField::PropertyField;

    bool Commit() override;
    void Revert() override;
    bool IsEdited() const override;
    bool OnKey(UINT key) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnDrawItem(int control, LPDRAWITEMSTRUCT item);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    bool CreateControls() override;
    void LayOut(const CRect& client) override;
    void ShowState() override;
    void Paint(CDC& dc, const CRect& client) override;

private:
    struct Part {
        CEdit edit;
        CString shown;
        bool IsEdited() const;
        CString Typed() const;
    };

    ColorParts Parts() const;
    bool CommitColor();
    bool CommitOpacity();
    void SetText(Part& part, const CString& text);
    void AskForColor();
    void OnEdit(Part& part, UINT event);

    CButton m_patch;
    Part m_color;
    Part m_opacity;
    bool m_setting = false;
};

}  // namespace Studio
