// Fields for one line of text and for the path of a file.
#pragma once

#include "studio/app/panels/EditField.h"

namespace Studio {

/// One line of text.
class TextField : public EditField {
public:
    using EditField::EditField;

protected:
    CString Format(const PropertyValue& value) const override { return std::get<CString>(value); }
    std::optional<PropertyValue> Parse(const CString& text, CString&) const override { return text; }
};

/// A path, with a button that asks for a picture file.
class FileField : public TextField {
public:
    using TextField::TextField;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnDrawItem(int control, LPDRAWITEMSTRUCT item);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    bool CreateControls() override;
    void LayOut(const CRect& client) override;
    CRect EditRoom(const CRect& client) const override;

private:
    void AskForFile();

    CButton m_button;
};

}  // namespace Studio
