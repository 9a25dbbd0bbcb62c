// The note that says at a field why its text is refused.
#pragma once

#include <afxwin.h>

namespace Studio {

/// A little window over the fields. It takes neither focus nor clicks.
class RefusalNote : public CWnd {
public:
    using CWnd::Create;

    /// Makes the hidden window as a child of `parent`.
    bool Create(CWnd& parent);
    /// Shows the reason under `field` (client coordinates of the parent), or above it where there is no room.
    void Show(const CRect& field, const CString& reason);
    void Hide();
    /// Whether the note lies over a window.
    bool Covers(const CWnd& window) const;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnNcHitTest(CPoint point);

private:
    CString m_reason;
};

}  // namespace Studio
