// Files: new, open, save, export, automatic saving and recovery.
#include "studio/app/MainFrame.h"

#include "studio/document/DemoProject.h"
#include "studio/document/PageFile.h"
#include "studio/document/PageImage.h"
#include "studio/document/Settings.h"

#include <afxdlgs.h>

namespace Studio {

namespace {

constexpr UINT kAutosavePause = 60'000;
constexpr WCHAR kStarted[] = L"Started";

}  // namespace

void MainFrame::OnFileNew() {
    if (!MayDiscard())
        return;
    if (!m_document->NewFile())
        AfxMessageBox(m_document->GetError(), MB_OK | MB_ICONERROR);
    else
        m_autosave->Discard();
}

void MainFrame::OnFileOpen() {
    CString path;
    if (MayDiscard() && AskForPath(true, path))
        OpenPath(path);
}

void MainFrame::OpenPath(const CString& path) {
    CString name = FullPath(path);
    if (RecoverFor(name))
        return;
    CWaitCursor wait;
    if (!m_document->Load(name))
        AfxMessageBox(m_document->GetError(), MB_OK | MB_ICONERROR);
    else
        m_autosave->Discard();
    ShowPage();
}

void MainFrame::OnOpenDemo() {
    if (MayDiscard())
        OpenDemo();
}

void MainFrame::OpenDemo() {
    DocumentContents demo;
    CString reason;
    if (!AttemptFile([&] { demo = MakeDemoProject(); }, reason) || !m_document->NewFile(std::move(demo)))
        AfxMessageBox(reason.IsEmpty() ? m_document->GetError() : reason, MB_OK | MB_ICONERROR);
    else
        m_autosave->Discard();
}

void MainFrame::Start(bool demo) {
    const bool first = ReadSetting(kStarted).IsEmpty();
    WriteSetting(kStarted, L"yes");
    if (!RecoverUntitled() && (first || demo))
        OpenDemo();
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
    else
        m_autosave->Discard();
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

void MainFrame::OnExportPage() {
    FinishEditing();
    const CString name = m_document->Pages()[m_document->CurrentIndex()].name + L".png";
    CFileDialog dialog(FALSE, L"png", name, OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_OVERWRITEPROMPT,
                       GetText(Text::kExportFilter), this);
    if (dialog.DoModal() != IDOK)
        return;
    const CString path = dialog.GetPathName();
    CString reason;
    CWaitCursor wait;
    if (AttemptFile([&] { WritePagePicture(*Page()->Objects(), path); }, reason))
        return;
    CString sentence;
    sentence.Format(GetText(Text::kErrorExport), path.GetString(), reason.GetString());
    AfxMessageBox(sentence, MB_OK | MB_ICONERROR);
}

void MainFrame::StartAutosave() {
    m_autosave = std::make_unique<Autosave>(*m_document, Autosave::DefaultFolder());
    m_autosaveTimer.Start(*this, kAutosavePause, [this] { AutosaveNow(); });
}

// What is half drawn is left to the next time.
void MainFrame::AutosaveNow() {
    StudioCanvas* page = Page();
    if (!page || page->CurrentGesture() || IsRunning())
        return;
    CString trouble;
    if (!m_autosave->Update())
        trouble.Format(GetText(Text::kErrorAutosave), m_autosave->GetReason().GetString());
    if (!trouble.IsEmpty() || m_refusal == m_autosaveTrouble)
        m_refusal = trouble;
    m_autosaveTrouble = trouble;
    RefreshStatus();
}

// Offers the changes that an earlier run could not save; true when they are open now.
bool MainFrame::RecoverFor(const CString& path) {
    const CString copy = Autosave::PathFor(path);
    if (!Autosave::IsLeftBehind(copy))
        return false;
    if (!AskRecover(path.Mid(path.ReverseFind(L'\\') + 1))) {
        ::DeleteFile(copy);
        return false;
    }
    return Recover(copy, path);
}

bool MainFrame::RecoverUntitled() {
    for (const CString& copy : m_autosave->FindLeftBehind()) {
        if (!AskRecover(GetText(Text::kUntitled)))
            ::DeleteFile(copy);
        else if (Recover(copy, L""))
            return true;
    }
    return false;
}

bool MainFrame::AskRecover(const CString& name) {
    CString question;
    question.Format(GetText(Text::kAskRecover), name.GetString());
    return AfxMessageBox(question, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

bool MainFrame::Recover(const CString& copy, const CString& path) {
    if (!m_document->Recover(copy, path)) {
        CString message;
        message.Format(GetText(Text::kErrorRecover), Autosave::PutAside(copy).GetString(),
                       m_document->GetReason().GetString());
        AfxMessageBox(message, MB_OK | MB_ICONERROR);
        return false;
    }
    // The document has a copy of its own before the old one goes.
    m_autosave->Discard();
    if (m_autosave->Update() && path.IsEmpty())
        ::DeleteFile(copy);
    ShowPage();
    return true;
}

}  // namespace Studio
