// The line at the bottom of the frame.
#pragma once

#include <afxwin.h>

#include <array>

namespace Studio {

/// Shows the panes mode, tool hint, selection, pointer and modified mark. Repaints a pane only when its text
/// changes.
class StatusBar : public CWnd {
public:
    enum Pane { kMode, kHint, kSelection, kPointer, kModified, kPaneCount };
    static constexpr int kHeight = 28;

    using CWnd::Create;

    /// Makes the window at the bottom of `parent`.
    bool Create(CWnd& parent);
    void SetPane(Pane pane, const CString& text);

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);

private:
    CRect PaneRect(int pane) const;

    std::array<CString, kPaneCount> m_texts;
};

}  // namespace Studio
