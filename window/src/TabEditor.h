// The edit control that opens over a tab to rename it.
#pragma once

#include "window/MouseHook.h"
#include "window/TabCtrl.h"

namespace Lumo {

/// Posted to the tab control when its editor has lost the keyboard, or a press was elsewhere; the long
/// parameter names the editor.
inline constexpr UINT kEditorLeft = WM_USER + 1;

/// Takes the keyboard; Return, the loss of the keyboard and a press elsewhere accept, Escape does not.
class TabCtrl::Editor : public CEdit {
public:
    explicit Editor(TabCtrl& owner) : m_owner(owner) {}
    /// Opens with the whole text selected: a child in client coordinates, or with `popup` a window of its own
    /// in those of the screen, since a child would be cut off at the strip.
    bool Open(const CRect& rect, bool popup, const CString& text, HFONT font);

    BOOL PreTranslateMessage(MSG* msg) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnKillFocus(CWnd* next);

private:
    void Leave();

    TabCtrl& m_owner;
    MouseHook m_elsewhere;
};

}  // namespace Lumo
