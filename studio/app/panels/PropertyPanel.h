// The panel at the right of the frame that shows and changes the properties of the selected objects.
#pragma once

#include "studio/app/panels/ChoiceField.h"
#include "studio/app/panels/RefusalNote.h"
#include "studio/app/panels/SectionHeader.h"
#include "studio/document/ObjectExtras.h"

namespace Lumo {
class DeferWindow;
}

namespace Studio {

/// The window that the panel stands in.
class PropertyPanelOwner {
public:
    /// The page whose selection is shown; null for none.
    virtual StudioCanvas* PropertyPage() = 0;
    /// A typed value was refused for this reason; empty when that is over.
    virtual void OnPropertyRefused(const CString& reason) = 0;

protected:
    ~PropertyPanelOwner() = default;
};

/// Rows of fields under headings that can be folded away. Every row is always there, whatever is selected, so
/// that nothing moves when the selection changes; what does not apply cannot be used. Tab and Shift+Tab walk
/// through the fields, Escape leads back to the page.
class PropertyPanel : public CWnd, private PropertyHost {
public:
    static constexpr int kWidth = 272;

    /// The owner outlives the panel.
    explicit PropertyPanel(PropertyPanelOwner& owner);

    using CWnd::Create;

    /// Makes the window at the right edge of `parent`.
    bool Create(CWnd& parent);
    /// The selection or its objects may have changed: the fields follow when there is time for it, however
    /// often this is called until then.
    void RefreshSoon();
    /// Brings all fields in line with the selection.
    void Refresh();
    /// Writes text that is being typed, or takes it back when it is refused: before any command.
    void CommitEditing();
    /// Gives the focus to the first field that can be used.
    void FocusFirst();
    /// Scrolls for a turn of the mouse wheel.
    void ScrollByWheel(short turn);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnDrawItem(int control, LPDRAWITEMSTRUCT item);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    struct Row {
        Text label;
        int top = 0;
        int height = 0;
        std::vector<std::unique_ptr<PropertyField>> fields;
    };
    struct Section {
        Text title;
        SectionHeader header;
        int top = 0;
        std::vector<Row> rows;
    };

    CString WriteValue(const Property& property, const PropertyValue& value, DWORD mergeKey) override;
    void ShowRefusal(PropertyField& field, const CString& reason) override;
    void OnFieldFocus(PropertyField& field) override;

    bool BuildSections();
    bool BuildBehaviourRows();
    PropertyField* AddField(Section& section, const Property& property);
    void ChooseBehaviour(int behaviour);
    void FollowSelection(const Lumo::CUIObjectDeque& objects);
    void RefreshChooser();
    void RefreshTitle();
    void FadeNote();
    Section& BehaviourSection() { return *m_sections.back(); }

    void LayOut();
    void PlaceRows();
    void LayOutRow(Lumo::DeferWindow& places, Row& row, int top, bool shown);
    void UpdateScrollBar();
    void ScrollTo(int position);
    void EnsureVisible(const CWnd& control);
    template <class Visit>
    void ForEachRow(Visit visit);

    bool OnKey(UINT key);
    bool IsForControl(const MSG& message) const;
    PropertyField* FocusedField();
    std::vector<CWnd*> FocusOrder();
    void MoveFocus(bool back);
    void LeaveToPage();

    PropertyPanelOwner& m_owner;
    std::vector<std::unique_ptr<Section>> m_sections;
    Property m_chooserProperty;
    ChoiceField* m_chooser = nullptr;
    Behaviour m_behaviour = Behaviour::kBlink;
    std::vector<const Lumo::CUIObject*> m_chosenFor;  // the selection the behaviour was chosen for
    DWORD m_behavioursOn = 0;
    RefusalNote m_note;
    PropertyField* m_refused = nullptr;
    CString m_title;
    bool m_refreshing = false;
    int m_scroll = 0;
    int m_height = 0;  // of everything
};

}  // namespace Studio
