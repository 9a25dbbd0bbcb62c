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
    /// Opens over `rect` with the whole text selected.
    bool Open(const CRect& rect, const CString& text, HFONT font);

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
