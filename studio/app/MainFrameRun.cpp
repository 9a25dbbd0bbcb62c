// Run mode in the frame: the page takes the whole window, and nothing can be edited.
#include "studio/app/MainFrame.h"

#include "studio/app/Commands.h"

#include <algorithm>
#include <iterator>

namespace Studio {

void MainFrame::SetRunning(bool running) {
    if (running == IsRunning() || !m_document || !Page())
        return;
    FinishEditing();
    if (running)
        m_run.Start(*this, *m_document);
    else
        m_run.Stop();
    m_hAccelTable = running ? m_runKeys : m_keys;
    ::SetMenu(m_hWnd, running ? nullptr : m_menuBar);
    m_tabs.SetLocked(running);
    // The page moves away under the pointer.
    m_status.SetPane(StatusBar::kPointer, CString());
    m_toolbox.ShowWindow(running ? SW_HIDE : SW_SHOWNA);
    m_symbols.ShowWindow(m_showSymbols && !running ? SW_SHOWNA : SW_HIDE);
    m_properties.ShowWindow(m_showProperties && !running ? SW_SHOWNA : SW_HIDE);
    ShowPage();
}

void MainFrame::OnRun() {
    SetRunning(!IsRunning());
}

void MainFrame::OnRunEscape() {
    if (!m_run.CancelEntry())
        SetRunning(false);
}

// Menus and keys offer nothing else then, but a command may come from anywhere.
BOOL MainFrame::OnCommand(WPARAM wParam, LPARAM lParam) {
    constexpr UINT kAllowed[] = {ID_RUN_PAGES, ID_RUN_ESCAPE, ID_APP_ABOUT, ID_APP_EXIT};
    const UINT* const end = std::end(kAllowed);
    if (IsRunning() && !lParam && std::find(kAllowed, end, LOWORD(wParam)) == end)
        return TRUE;
    return CFrameWnd::OnCommand(wParam, lParam);
}

void MainFrame::RefreshRunStatus() {
    CString live;
    live.Format(GetText(Text::kRunValues), static_cast<int>(m_run.Session()->LiveCount()));
    m_status.SetPane(StatusBar::kMode, GetText(Text::kRunTitle));
    m_status.SetPane(StatusBar::kHint, GetText(Text::kRunHint));
    m_status.SetPane(StatusBar::kSelection, live);
}

}  // namespace Studio
