// A field that is on or off.
#pragma once

#include "studio/app/panels/PropertyField.h"

namespace Studio {

/// A check box, or a toggle that stays down with a letter or word on it. Objects that differ show a dash.
class CheckField : public PropertyField {
public:
    using PropertyField::PropertyField;

    bool OnKey(UINT key) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnDrawItem(int control, LPDRAWITEMSTRUCT item);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    bool CreateControls() override;
    void LayOut(const CRect& client) override;
    void ShowState() override { m_button.Invalidate(FALSE); }
    bool IsFramed() const override { return false; }

private:
    void Toggle();
    void DrawBox(CDC& dc, const CRect& rect, bool focus) const;
    void DrawToggle(CDC& dc, const CRect& rect, bool focus) const;

    CButton m_button;
};

}  // namespace Studio
