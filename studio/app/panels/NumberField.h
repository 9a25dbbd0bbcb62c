// A field for a number, with two arrows that step it.
#pragma once

#include "studio/app/panels/EditField.h"

namespace Studio {

/// A number. The arrow keys and the arrows at its right step it by one, with Shift by ten; steps that follow
/// each other quickly are undone together.
class NumberField : public EditField {
public:
    using EditField::EditField;

    bool OnKey(UINT key) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg void OnTimer(UINT_PTR timer);

    CString Format(const PropertyValue& value) const override;
    std::optional<PropertyValue> Parse(const CString& text, CString& refusal) const override;
    CRect EditRoom(const CRect& client) const override;
    void Paint(CDC& dc, const CRect& client) override;

private:
    void Step(int direction);

    int m_stepping = 0;  // direction of the arrow that is held down
};

}  // namespace Studio
