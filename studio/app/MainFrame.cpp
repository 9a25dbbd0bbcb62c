#include "studio/app/MainFrame.h"

#include "core/Geometry.h"
#include "studio/app/Commands.h"
#include "studio/app/PageCommands.h"
#include "studio/app/Painting.h"

#include "window/DeferWindow.h"
#include "window/Tools.h"

#include <algorithm>

namespace Studio {

namespace {

const CRect kFrame(40, 40, 40 + 1320, 40 + 860);
// Everything has its place, and some of the page is seen.
constexpr POINT kLeastSize = {760, 520};
constexpr WCHAR kSection[] = L"Frame";  // of the settings file, for the frame's place

}  // namespace

BEGIN_MESSAGE_MAP(MainFrame, CFrameWnd)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_COMMAND(ID_FILE_NEW, &MainFrame::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &MainFrame::OnFileOpen)
    ON_COMMAND(ID_FILE_SAVE, &MainFrame::OnFileSave)
    ON_COMMAND(ID_FILE_SAVE_AS, &MainFrame::OnFileSaveAs)
    ON_COMMAND(ID_DOCUMENT_EXPORT, &MainFrame::OnExportPage)
    ON_COMMAND(ID_DOCUMENT_DEMO, &MainFrame::OnOpenDemo)
    ON_COMMAND_RANGE(ID_PAGES_FIRST, ID_PAGES_LAST, &MainFrame::OnPagesCommand)
    ON_UPDATE_COMMAND_UI_RANGE(ID_PAGES_FIRST, ID_PAGES_LAST, &MainFrame::OnUpdatePagesCommand)
    ON_COMMAND(ID_VIEW_SYMBOLS, &MainFrame::OnViewSymbols)
    ON_UPDATE_COMMAND_UI(ID_VIEW_SYMBOLS, &MainFrame::OnUpdateViewSymbols)
    ON_COMMAND(ID_INSERT_EMBEDDED, &MainFrame::OnInsertEmbedded)
    ON_COMMAND(ID_RUN_PAGES, &MainFrame::OnRun)
    ON_COMMAND(ID_RUN_ESCAPE, &MainFrame::OnRunEscape)
    ON_COMMAND(ID_APP_EXIT, &MainFrame::OnExit)
    ON_COMMAND(ID_APP_ABOUT, &MainFrame::OnAbout)
    ON_COMMAND(Lumo::ID_DOCUMENT_LOAD, &MainFrame::OnFileOpen)
    ON_COMMAND(Lumo::ID_DOCUMENT_SAVE, &MainFrame::OnFileSave)
    ON_COMMAND(ID_VIEW_PROPERTIES, &MainFrame::OnViewProperties)
    ON_UPDATE_COMMAND_UI(ID_VIEW_PROPERTIES, &MainFrame::OnUpdateViewProperties)
    ON_COMMAND(Lumo::ID_OBJECT_PROPERTIES, &MainFrame::OnProperties)
    ON_UPDATE_COMMAND_UI(Lumo::ID_OBJECT_PROPERTIES, &MainFrame::OnUpdateProperties)
    ON_WM_MOUSEWHEEL()
    ON_COMMAND_RANGE(Lumo::ID_TOOL_SELECT, Lumo::ID_OBJECT_PROPERTIES, &MainFrame::OnPageCommand)
    ON_COMMAND_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &MainFrame::OnPageCommand)
    ON_UPDATE_COMMAND_UI_RANGE(Lumo::ID_TOOL_SELECT, Lumo::ID_OBJECT_REDO, &MainFrame::OnUpdatePageCommand)
    ON_UPDATE_COMMAND_UI_RANGE(Lumo::ID_OBJECT_PROPERTIES, Lumo::ID_OBJECT_PROPERTIES,
                               &MainFrame::OnUpdatePageCommand)
    ON_UPDATE_COMMAND_UI_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &MainFrame::OnUpdatePageCommand)
END_MESSAGE_MAP()

MainFrame::~MainFrame() {
    if (m_document)
        m_document->Release();
    for (HACCEL keys : {m_keys, m_runKeys}) {
        if (keys)
            ::DestroyAcceleratorTable(keys);
    }
}

bool MainFrame::CreateFrame() {
    Lumo::CUIToolBase::run_drawshape = Lumo::DS_SELECT;
    const LPCWSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), nullptr,
                                                    ::LoadIcon(nullptr, IDI_APPLICATION));
    if (!Create(windowClass, GetText(Text::kAppName), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, kFrame))
        return false;
    m_menuBar = CreateMenuBar();
    ::SetMenu(m_hWnd, m_menuBar);
    m_hAccelTable = m_keys = CreateAccelerators();
    m_runKeys = CreateRunAccelerators();
    m_document = new StudioDocument(*this, *this);
    if (!m_toolbox.Create(*this) || !m_status.Create(*this) || !m_properties.Create(*this) ||
        !CreatePageParts() || !m_document->NewFile())
        return false;
    ShowPage();
    return true;
}

void MainFrame::ShowWhereItWas(int show) {
    const CString folder = Autosave::DefaultFolder();
    if (!folder.IsEmpty()) {
        ::CreateDirectory(folder, nullptr);
        m_placement.SetPath(folder + L"\\Studio.ini");
        show = Lumo::Tools::LoadPlacement(m_hWnd, m_placement, kSection, show);
    }
    ShowWindow(show);
}

void MainFrame::OnSize(UINT type, int cx, int cy) {
    CFrameWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED)
        LayOut();
}

void MainFrame::OnGetMinMaxInfo(MINMAXINFO* info) {
    CFrameWnd::OnGetMinMaxInfo(info);
    info->ptMinTrackSize = kLeastSize;
}

// Toolbox and symbols at the left, properties at the right, status bar at the bottom, tabs below the page.
void MainFrame::LayOut() {
    if (!m_toolbox.m_hWnd || !m_status.m_hWnd || !m_properties.m_hWnd || !m_tabs.Window().m_hWnd)
        return;
    CRect client;
    GetClientRect(client);
    const int bottom = client.bottom - StatusBar::kHeight;
    const bool running = IsRunning();
    const int tools = Toolbox::WidthFor(bottom);
    const int left = running ? 0 : tools + (m_showSymbols ? SymbolPanel::kWidth : 0);
    const int right = client.Width() - (m_showProperties && !running ? PropertyPanel::kWidth : 0);
    const int tabs = bottom - m_tabs.Height();
    Lumo::DeferWindow layout;
    layout.Move(m_toolbox, CRect(0, 0, tools, bottom));
    layout.Move(m_symbols, CRect(tools, 0, tools + SymbolPanel::kWidth, bottom));
    layout.Move(m_properties, CRect(client.Width() - PropertyPanel::kWidth, 0, client.Width(), bottom));
    layout.Move(m_tabs.Window(), CRect(left, tabs, std::max(left, right), bottom));
    layout.Move(m_status, CRect(0, bottom, client.Width(), client.bottom));
    if (StudioCanvas* page = Page())
        layout.Move(*page, CRect(left, 0, std::max(left, right), tabs));
}

void MainFrame::ShowPage() {
    StudioCanvas* current = Page();
    for (const Studio::Page& page : m_document->Pages()) {
        if (page.canvas.get() != current)
            page.canvas->ShowWindow(SW_HIDE);
    }
    LayOut();
    if (current) {
        current->ShowWindow(SW_SHOW);
        current->SetFocus();
    }
    m_run.PageShown();
    RefreshTitle();
    RefreshStatus();
}

// The bars and the page cover the client area.
BOOL MainFrame::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void MainFrame::OnSetFocus(CWnd* old) {
    CFrameWnd::OnSetFocus(old);
    if (StudioCanvas* page = Page())
        page->SetFocus();
}

void MainFrame::FinishEditing() {
    m_tabs.FinishRename();
    m_properties.CommitEditing();
    if (StudioCanvas* page = Page())
        page->FinishEditing();
}

void MainFrame::OnClose() {
    SetRunning(false);
    if (!MayDiscard())
        return;
    m_autosave->Discard();
    if (!m_placement.GetPath().IsEmpty())
        Lumo::Tools::SavePlacement(m_hWnd, m_placement, kSection);
    DestroyWindow();
}

void MainFrame::OnDestroy() {
    // The pages go before the windows they are children of.
    m_run.Stop();
    if (!::GetMenu(m_hWnd))
        ::DestroyMenu(m_menuBar);
    m_autosave.reset();
    if (m_document)
        m_document->Release();
    m_document = nullptr;
    CFrameWnd::OnDestroy();
}

void MainFrame::OnPageCommand(UINT command) {
    m_properties.CommitEditing();
    if (StudioCanvas* page = Page())
        RunPageCommand(*page, command);
}

void MainFrame::OnUpdatePageCommand(CCmdUI* ui) {
    StudioCanvas* page = Page();
    ui->Enable(page && IsPageCommandEnabled(*page, ui->m_nID));
    ui->SetCheck(page && IsPageCommandChecked(*page, ui->m_nID));
    if (const CString text = page ? PageCommandText(*page, ui->m_nID) : CString(); !text.IsEmpty())
        ui->SetText(text);
}

void MainFrame::OnCanvasState(StudioCanvas& canvas) {
    if (&canvas != Page())
        return;
    RefreshTitle();
    RefreshStatus();
}

void MainFrame::OnCanvasPointer(StudioCanvas&, const CPoint* at) {
    CString text;
    if (at)
        text.Format(L"%d, %d", static_cast<int>(at->x), static_cast<int>(at->y));
    m_status.SetPane(StatusBar::kPointer, text);
}

void MainFrame::OnCanvasMenu(StudioCanvas& canvas, CPoint screen) {
    TranslateMenu(canvas.m_contextMenu);
    ::TrackPopupMenu(canvas.m_contextMenu, TPM_LEFTALIGN | TPM_RIGHTBUTTON, screen.x, screen.y, 0, m_hWnd,
                     nullptr);
}

void MainFrame::RefreshTitle() {
    CString title;
    title.Format(L"%s%s - %s", FileName().GetString(), m_document->GetModifiedFlag() ? L"*" : L"",
                 GetText(Text::kAppName));
    if (IsRunning())
        title += CString(L" - ") + GetText(Text::kRunTitle);
    if (title == m_title)
        return;
    m_title = title;
    SetWindowText(title);
}

void MainFrame::RefreshStatus() {
    StudioCanvas* page = Page();
    if (!page)
        return;
    if (IsRunning()) {
        RefreshRunStatus();
        return;
    }
    m_properties.RefreshSoon();
    const ToolInfo& tool = ToolOfKind(Lumo::CUIToolBase::run_drawshape);
    m_toolbox.SetCurrent(tool.kind);
    m_status.SetPane(StatusBar::kMode,
                     GetPlainText(page->m_nMode == Lumo::CM_POLY ? Text::kModePoly : Text::kModeDraw));
    m_status.SetPane(StatusBar::kHint,
                     m_refusal.IsEmpty() ? GetPlainText(tool.name) + L":  " + GetText(tool.hint) : m_refusal);
    m_status.SetPane(StatusBar::kSelection, SelectionText());
    m_status.SetPane(StatusBar::kModified,
                     m_document->GetModifiedFlag() ? GetText(Text::kStatusModified) : L"");
}

CString MainFrame::SelectionText() {
    const auto& selection = Page()->m_selection;
    CString text;
    if (selection.empty())
        return GetText(Text::kStatusNothing);
    if (selection.size() > 1) {
        text.Format(GetText(Text::kStatusMany), static_cast<int>(selection.size()));
        return text;
    }
    Lumo::CUIObject& object = *selection.front();
    const CRect bounds = Lumo::RectAtlFromGdi(object.GetPosition());
    text.Format(L"%s   %d, %d   %d \x00D7 %d", object.GetShapeName().GetString(),
                static_cast<int>(bounds.left), static_cast<int>(bounds.top), static_cast<int>(bounds.Width()),
                static_cast<int>(bounds.Height()));
    return text;
}

}  // namespace Studio
