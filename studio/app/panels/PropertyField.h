// An editor in the property panel.
#pragma once

#include "studio/properties/PropertyEdits.h"

#include <memory>

namespace Studio {

class PropertyField;

/// What a field asks of the panel it stands in.
class PropertyHost {
public:
    /// Writes a value to the selected objects. A `mergeKey` that is not 0 joins a burst of changes to one
    /// step. Why the value is refused; empty when it is not.
    virtual CString WriteValue(const Property& property, const PropertyValue& value, DWORD mergeKey) = 0;
    /// Shows why the value typed into the field is refused; an empty reason takes the last one away.
    virtual void ShowRefusal(PropertyField& field, const CString& reason) = 0;
    /// A control of the field has got the focus.
    virtual void OnFieldFocus(PropertyField& field) = 0;

protected:
    ~PropertyHost() = default;
};

/// A window with the controls of one property and a frame around them. It shows the state it is given, and
/// writes what its user enters; text that is being typed is left alone until it is committed or reverted.
class PropertyField : public CWnd {
public:
    static constexpr int kHeight = 24;

    /// Both outlive the field.
    PropertyField(PropertyHost& host, const Property& property) : m_host(host), m_property(property) {}

    const Property& GetProperty() const { return m_property; }

    using CWnd::Create;

    /// Makes the window, hidden, as a child of `parent`.
    bool Create(CWnd& parent);
    /// Shows the state; does nothing when it is the one that is shown.
    void Show(const PropertyState& state);
    /// The state that is shown.
    const PropertyState& State() const { return m_state; }

    /// Writes text that was typed; false when it is refused, the text stays then. Nothing to do is success.
    virtual bool Commit() { return true; }
    /// Takes typed text back.
    virtual void Revert() { ShowState(); }
    /// Whether text was typed that is neither written nor taken back.
    virtual bool IsEdited() const { return false; }
    /// A key for one of the controls; false leaves it to the control.
    virtual bool OnKey(UINT key);
    /// Takes the mark of a refusal away.
    void EndRefusal() { Refuse(CString()); }
    /// The controls that take the focus, in their order.
    const std::vector<CWnd*>& Controls() const { return m_controls; }

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);

    /// Makes the controls.
    virtual bool CreateControls() = 0;
    /// Puts the controls where they belong in `client`.
    virtual void LayOut(const CRect& client) = 0;
    /// Brings the controls in line with the state.
    virtual void ShowState() = 0;
    /// Paints what is not a control; the frame and the ground are there already.
    virtual void Paint(CDC&, const CRect&) {}
    /// Whether a frame is painted around the field.
    virtual bool IsFramed() const { return true; }

    /// Registers a control that was made: font, focus order.
    void Adopt(CWnd& control);
    /// Writes a value and reports a refusal at the field; true when it was taken.
    bool Write(const PropertyValue& value, DWORD mergeKey = 0);
    /// Reports a refusal and marks the field; an empty reason ends it.
    void Refuse(const CString& reason);
    /// To be called when a control gets or loses the focus.
    void OnControlFocus(bool has);

    PropertyHost& m_host;
    const Property& m_property;
    PropertyState m_state;
    bool m_focused = false;
    bool m_refused = false;

private:
    std::vector<CWnd*> m_controls;
};

/// A field of the kind that the property asks for.
std::unique_ptr<PropertyField> MakeField(PropertyHost& host, const Property& property);

}  // namespace Studio
