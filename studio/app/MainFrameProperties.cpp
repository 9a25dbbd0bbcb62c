// The frame's part in the property panel.
#include "studio/app/MainFrame.h"

namespace Studio {

void MainFrame::ShowProperties(bool show) {
    if (m_showProperties == show)
        return;
    m_showProperties = show;
    if (!show) {
        m_properties.CommitEditing();
        if (StudioCanvas* page = Page())
            page->SetFocus();
    }
    m_properties.ShowWindow(show ? SW_SHOW : SW_HIDE);
    LayOut();
    if (show)
        m_properties.Refresh();
}

void MainFrame::OnViewProperties() {
    ShowProperties(!m_showProperties);
}

void MainFrame::OnUpdateViewProperties(CCmdUI* ui) {
    ui->SetCheck(m_showProperties);
}

void MainFrame::OnProperties() {
    FinishEditing();
    ShowProperties(true);
    m_properties.FocusFirst();
}

void MainFrame::OnUpdateProperties(CCmdUI* ui) {
    ui->Enable(Page() && !Page()->m_selection.empty());
}

void MainFrame::OnPropertyRefused(const CString& reason) {
    m_refusal = reason;
    RefreshStatus();
}

// The wheel turns what the pointer is over, wherever the focus is.
BOOL MainFrame::OnMouseWheel(UINT flags, short turn, CPoint screen) {
    const auto isOver = [screen](CWnd& window) {
        CRect rect;
        window.GetWindowRect(rect);
        return window.IsWindowVisible() && rect.PtInRect(screen);
    };
    if (isOver(m_properties))
        m_properties.ScrollByWheel(turn);
    else if (isOver(m_symbols))
        m_symbols.ScrollByWheel(turn);
    else if (StudioCanvas* page = Page(); page && isOver(*page) && !IsRunning())
        page->ScrollByWheel(flags, turn);
    else
        return CFrameWnd::OnMouseWheel(flags, turn, screen);
    return TRUE;
}

}  // namespace Studio
