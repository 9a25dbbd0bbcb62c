// The tabs of the document's pages, below the canvas.
#pragma once

#include "studio/document/StudioDocument.h"
#include "window/TabCtrl.h"

namespace Studio {

/// Shows the document's pages as tabs, and turns what the user does to a tab into page commands. The frame
/// passes its notifications on.
class PageTabs {
public:
    static constexpr UINT kId = 120;

    /// Makes the window as a child of `frame`.
    bool Create(CWnd& frame);
    /// Shows the pages as they are now; a tab that is the same stays untouched.
    void Refresh(StudioDocument& document);
    /// Carries out a notification. The result is for the control: not 0 refuses. `before` is called ahead of
    /// everything that shows or changes a page, `menu` shows the menu of pages at a point of the screen.
    LRESULT Handle(const Lumo::TabNotify& notify, StudioDocument& document,
                   const std::function<void()>& before, const std::function<void(CPoint)>& menu);
    /// Opens the editor on the current tab.
    void Rename() { m_tabs.BeginRename(m_tabs.GetCurrent()); }
    /// Stores the name in an open editor.
    void FinishRename() { m_tabs.EndRename(true); }
    /// Locks what changes pages; choosing one stays possible.
    void SetLocked(bool locked);

    Lumo::TabCtrl& Window() { return m_tabs; }
    int Height() const { return m_tabs.GetHeight(); }

private:
    void GiveFocusTo(StudioCanvas* page) const;
    bool Rename(const Lumo::TabNotify& notify, StudioDocument& document);

    Lumo::TabCtrl m_tabs;
    bool m_locked = false;
};

}  // namespace Studio
