// Fields for one line of text, for the path of a file and for names of values.
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

/// One line of text with a button that helps to find it; Enter on the button presses it.
class AidedField : public TextField {
public:
    using TextField::TextField;

    bool OnKey(UINT key) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnDrawItem(int control, LPDRAWITEMSTRUCT item);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    bool CreateControls() override;
    void LayOut(const CRect& client) override;
    CRect EditRoom(const CRect& client) const override;

    /// Asks for a text and writes it.
    virtual void Assist() = 0;
    /// Draws what stands on the button.
    virtual void DrawFace(CDC& dc, const CRect& rect, DWORD color) const = 0;

private:
    void Press();

    CButton m_button;
};

/// A path, with a button that asks for a picture file.
class FileField : public AidedField {
public:
    using AidedField::AidedField;

protected:
    void Assist() override;
    void DrawFace(CDC& dc, const CRect& rect, DWORD color) const override;
};

/// Names of values, with a button that opens a menu of all that the device has; the arrow down opens it too.
class ValueField : public AidedField {
public:
    using AidedField::AidedField;

    bool OnKey(UINT key) override;

protected:
    void Assist() override;
    void DrawFace(CDC& dc, const CRect& rect, DWORD color) const override;
};

}  // namespace Studio
