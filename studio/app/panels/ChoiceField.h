// A field for one of several values.
#pragma once

#include "studio/app/panels/PropertyField.h"

namespace Studio {

/// A drop-down list with a face of its own: the system's does not go with the other fields.
class ChoiceBox : public CComboBox {
public:
    /// Ends a press that is going on and gives the mouse back.
    void LetGo();

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
};

/// Writes what is chosen in a list. A value that is no choice is shown as nothing, a text that is none is
/// added to the list.
class ChoiceField : public PropertyField {
public:
    using PropertyField::PropertyField;

    /// Gives the list other texts for the same values.
    void Replace(std::vector<Choice> choices);
    bool OnKey(UINT key) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnDrawItem(int control, LPDRAWITEMSTRUCT item);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    bool CreateControls() override;
    void LayOut(const CRect& client) override;
    void ShowState() override;
    bool IsFramed() const override { return false; }

private:
    int IndexOf(const PropertyValue& value);
    void WriteChoice();

    ChoiceBox m_box;
    std::vector<Choice> m_choices;
    bool m_cancelled = false;
};

}  // namespace Studio
