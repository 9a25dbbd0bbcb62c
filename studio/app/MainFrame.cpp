#include "studio/app/MainFrame.h"

#include "core/Geometry.h"
#include "studio/app/Commands.h"
#include "studio/app/PageCommands.h"
#include "studio/app/Painting.h"

#include <afxdlgs.h>

namespace Studio {

namespace {

const CRect kFrame(40, 40, 40 + 1320, 40 + 860);

}  // namespace

BEGIN_MESSAGE_MAP(MainFrame, CFrameWnd)
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_COMMAND(ID_FILE_NEW, &MainFrame::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &MainFrame::OnFileOpen)
    ON_COMMAND(ID_FILE_SAVE, &MainFrame::OnFileSave)
    ON_COMMAND(ID_FILE_SAVE_AS, &MainFrame::OnFileSaveAs)
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
    if (m_keys)
        ::DestroyAcceleratorTable(m_keys);
}

bool MainFrame::CreateFrame() {
    Lumo::CUIToolBase::run_drawshape = Lumo::DS_SELECT;
    const LPCWSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), nullptr,
                                                    ::LoadIcon(nullptr, IDI_APPLICATION));
    if (!Create(windowClass, GetText(Text::kAppName), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, kFrame))
        return false;
    ::SetMenu(m_hWnd, CreateMenuBar());
    m_hAccelTable = m_keys = CreateAccelerators();
    m_document = new StudioDocument(*this, *this);
    if (!m_toolbox.Create(*this) || !m_status.Create(*this) || !m_properties.Create(*this) || !m_document->NewFile())
        return false;
    ShowPage();
    return true;
}

void MainFrame::OnSize(UINT type, int cx, int cy) {
    CFrameWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED)
        LayOut();
}

// Toolbox at the left, properties at the right, status bar at the bottom, the page in between.
void MainFrame::LayOut() {
    if (!m_toolbox.m_hWnd || !m_status.m_hWnd || !m_properties.m_hWnd)
        return;
    CRect client;
    GetClientRect(client);
    const int bottom = client.bottom - StatusBar::kHeight;
    m_toolbox.MoveWindow(0, 0, Toolbox::kWidth, bottom);
    m_status.MoveWindow(0, bottom, client.Width(), StatusBar::kHeight);
    const int right = client.Width() - (m_showProperties ? PropertyPanel::kWidth : 0);
    m_properties.MoveWindow(client.Width() - PropertyPanel::kWidth, 0, PropertyPanel::kWidth, bottom);
    if (StudioCanvas* page = Page())
        page->MoveWindow(Toolbox::kWidth, 0, right - Toolbox::kWidth, bottom);
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
    m_properties.CommitEditing();
    if (StudioCanvas* page = Page())
        page->FinishEditing();
}

void MainFrame::OnClose() {
    if (MayDiscard())
        DestroyWindow();
}

void MainFrame::OnDestroy() {
    // The pages go before the windows they are children of.
    if (m_document)
        m_document->Release();
    m_document = nullptr;
    CFrameWnd::OnDestroy();
}

void MainFrame::OnFileNew() {
    if (!MayDiscard())
        return;
    if (!m_document->NewFile())
        AfxMessageBox(m_document->GetError(), MB_OK | MB_ICONERROR);
    ShowPage();
}

void MainFrame::OnFileOpen() {
    CString path;
    if (MayDiscard() && AskForPath(true, path))
        OpenPath(path);
}

void MainFrame::OpenPath(const CString& path) {
    CString name = path;
    CWaitCursor wait;
    if (!m_document->Load(name))
        AfxMessageBox(m_document->GetError(), MB_OK | MB_ICONERROR);
    ShowPage();
}

void MainFrame::OnFileSave() {
    SaveDocument();
}

void MainFrame::OnFileSaveAs() {
    FinishEditing();
    CString path;
    if (AskForPath(false, path))
        SaveTo(path);
}

void MainFrame::OnExit() {
    SendMessage(WM_CLOSE);
}

void MainFrame::OnAbout() {
    AfxMessageBox(GetText(Text::kAbout), MB_OK | MB_ICONINFORMATION);
}

bool MainFrame::AskForPath(bool open, CString& path) {
    const DWORD flags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | (open ? OFN_FILEMUSTEXIST : OFN_OVERWRITEPROMPT);
    const CString& current = m_document->GetPath();
    CFileDialog dialog(open, L"cbf", open || current.IsEmpty() ? nullptr : current.GetString(), flags,
                       GetText(Text::kFileFilter), this);
    if (dialog.DoModal() != IDOK)
        return false;
    path = dialog.GetPathName();
    return true;
}

bool MainFrame::SaveTo(CString path) {
    CWaitCursor wait;
    const bool saved = m_document->Save(path) != 0;
    if (!saved)
        AfxMessageBox(m_document->GetError(), MB_OK | MB_ICONERROR);
    RefreshTitle();
    RefreshStatus();
    return saved;
}

bool MainFrame::SaveDocument() {
    FinishEditing();
    CString path = m_document->GetPath();
    if (path.IsEmpty() && !AskForPath(false, path))
        return false;
    return SaveTo(path);
}

// Asks before unsaved changes are lost; true when they may be, or are saved.
bool MainFrame::MayDiscard() {
    FinishEditing();
    if (!m_document->GetModifiedFlag())
        return true;
    CString question;
    question.Format(GetText(Text::kAskSave), FileName().GetString());
    const int answer = AfxMessageBox(question, MB_YESNOCANCEL | MB_ICONQUESTION);
    return answer == IDNO || (answer == IDYES && SaveDocument());
}

CString MainFrame::FileName() const {
    const CString& path = m_document->GetPath();
    return path.IsEmpty() ? CString(GetText(Text::kUntitled)) : path.Mid(path.ReverseFind(L'\\') + 1);
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
    if (title == m_title)
        return;
    m_title = title;
    SetWindowText(title);
}

void MainFrame::RefreshStatus() {
    StudioCanvas* page = Page();
    if (!page)
        return;
    m_properties.RefreshSoon();
    const ToolInfo& tool = ToolOfKind(Lumo::CUIToolBase::run_drawshape);
    m_toolbox.SetCurrent(tool.kind);
    m_status.SetPane(StatusBar::kMode,
                     GetPlainText(page->m_nMode == Lumo::CM_POLY ? Text::kModePoly : Text::kModeDraw));
    m_status.SetPane(StatusBar::kHint, m_refusal.IsEmpty()
                                           ? GetPlainText(tool.name) + L":  " + GetText(tool.hint)
                                           : m_refusal);
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
