// Pages and symbols: commands, tabs, the symbol panel.
#include "studio/app/MainFrame.h"

#include "studio/app/Commands.h"
#include "studio/document/Settings.h"
#include "studio/editing/ObjectClipboard.h"

namespace Studio {

namespace {

constexpr WCHAR kSymbolFolder[] = L"SymbolFolder";

}  // namespace

bool MainFrame::CreatePageParts() {
    if (!m_tabs.Create(*this) || !m_symbols.Create(*this))
        return false;
    m_document->onPages = [this] { OnPagesChanged(); };
    m_symbols.onInsert = [this](const CString& path, const CPoint* screen) { InsertSymbol(path, screen); };
    m_symbols.onFolder = [this] { WriteSetting(kSymbolFolder, m_symbols.Folder()); };
    const CString folder = ReadSetting(kSymbolFolder);
    m_symbols.ShowFolder(folder.IsEmpty() ? DefaultSymbolFolder() : folder);
    StartAutosave();
    return true;
}

void MainFrame::OnPagesChanged() {
    m_tabs.Refresh(*m_document);
    ShowPage();
}

BOOL MainFrame::OnNotify(WPARAM id, LPARAM notify, LRESULT* result) {
    const auto& header = *reinterpret_cast<const NMHDR*>(notify);
    if (header.hwndFrom != m_tabs.Window().m_hWnd || !m_document || header.code < Lumo::TABN_FIRST ||
        header.code > Lumo::TABN_LAST)
        return CFrameWnd::OnNotify(id, notify, result);
    *result = m_tabs.Handle(
        *reinterpret_cast<const Lumo::TabNotify*>(notify), *m_document, [this] { FinishEditing(); },
        [this](CPoint at) { ShowPagesMenu(at); });
    return TRUE;
}

void MainFrame::ShowPagesMenu(CPoint screen) {
    HMENU menu = CreatePagesMenu();
    ::TrackPopupMenu(menu, TPM_LEFTALIGN | TPM_RIGHTBUTTON, screen.x, screen.y, 0, m_hWnd, nullptr);
    ::DestroyMenu(menu);
}

void MainFrame::OnPagesCommand(UINT command) {
    FinishEditing();
    const int current = m_document->CurrentIndex();
    switch (command) {
        case ID_PAGES_ADD:
            m_document->AddPage(current);
            break;
        case ID_PAGES_DUPLICATE:
            if (!m_document->DuplicatePage(current))
                AfxMessageBox(m_document->GetError(), MB_OK | MB_ICONERROR);
            break;
        case ID_PAGES_REMOVE:
            m_document->RemovePage(current);
            break;
        case ID_PAGES_RENAME:
            m_tabs.Rename();
            break;
        case ID_PAGES_MOVE_LEFT:
            m_document->MovePage(current, current - 1);
            break;
        case ID_PAGES_MOVE_RIGHT:
            m_document->MovePage(current, current + 1);
            break;
        case ID_PAGES_PREVIOUS:
            m_document->ShowPage(current - 1);
            break;
        case ID_PAGES_NEXT:
            m_document->ShowPage(current + 1);
            break;
        default:
            break;
    }
}

void MainFrame::OnUpdatePagesCommand(CCmdUI* ui) {
    const int current = m_document->CurrentIndex();
    const int count = static_cast<int>(m_document->Pages().size());
    bool enabled = true;
    if (ui->m_nID == ID_PAGES_REMOVE)
        enabled = count > 1;
    else if (ui->m_nID == ID_PAGES_MOVE_LEFT || ui->m_nID == ID_PAGES_PREVIOUS)
        enabled = current > 0;
    else if (ui->m_nID == ID_PAGES_MOVE_RIGHT || ui->m_nID == ID_PAGES_NEXT)
        enabled = current + 1 < count;
    ui->Enable(enabled);
}

void MainFrame::OnViewSymbols() {
    m_showSymbols = !m_showSymbols;
    m_symbols.ShowWindow(m_showSymbols ? SW_SHOWNA : SW_HIDE);
    LayOut();
}

void MainFrame::OnUpdateViewSymbols(CCmdUI* ui) {
    ui->SetCheck(m_showSymbols);
}

// A clicked symbol goes to the middle of what is seen of the page, a dropped one under the pointer.
void MainFrame::InsertSymbol(const CString& path, const CPoint* screen) {
    FinishEditing();
    StudioCanvas* page = Page();
    CRect client;
    page->GetClientRect(client);
    CPoint at = client.CenterPoint();
    if (screen) {
        at = *screen;
        page->ScreenToClient(&at);
        if (!client.PtInRect(at))
            return;
    }
    std::vector<ObjectPtr> symbol;
    CString reason;
    if (!AttemptFile([&] { symbol.push_back(LoadSymbol(path)); }, reason)) {
        CString sentence;
        sentence.Format(GetText(Text::kErrorSymbol), SymbolName(path).GetString(), reason.GetString());
        AfxMessageBox(sentence, MB_OK | MB_ICONERROR);
        return;
    }
    page->ClientToDoc(at);
    const Gdiplus::RectF bounds = symbol.front()->GetPosition();
    const Gdiplus::PointF corner(static_cast<float>(static_cast<int>(at.x - bounds.Width / 2)),
                                 static_cast<float>(static_cast<int>(at.y - bounds.Height / 2)));
    InsertObjects(*page, std::move(symbol), corner, Text::kStepInsertSymbol);
    page->SetFocus();
}

}  // namespace Studio
