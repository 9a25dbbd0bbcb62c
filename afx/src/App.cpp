// The program object and the program's start and end.
#include "ThreadState.h"

#include "CommandMessages.h"

#include <afxole.h>

namespace {

CWinApp* program = nullptr;
HINSTANCE programInstance = nullptr;
HINSTANCE resourceInstance = nullptr;

/// File name of the program without folder and extension.
CString ProgramFileTitle() {
    TCHAR path[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, path, ARRAYSIZE(path));
    TCHAR title[MAX_PATH] = {};
    ::GetFileTitle(path, title, ARRAYSIZE(title));
    CString name(title);
    int dot = name.ReverseFind(_T('.'));
    return dot > 0 ? name.Left(dot) : name;
}

/// The message box type with the icon that fits its buttons, when it names none.
UINT WithIcon(UINT type) {
    if (type & MB_ICONMASK)
        return type;
    switch (type & MB_TYPEMASK) {
        case MB_OK:
        case MB_OKCANCEL:
        case MB_RETRYCANCEL:
            return type | MB_ICONEXCLAMATION;
        case MB_YESNO:
        case MB_YESNOCANCEL:
            return type | MB_ICONQUESTION;
        default:
            return type;
    }
}

int ShowMessageBox(LPCTSTR text, UINT type) {
    CWnd* main = AfxGetMainWnd();
    HWND owner = main && main->m_hWnd ? ::GetLastActivePopup(main->m_hWnd) : ::GetActiveWindow();
    return ::MessageBox(owner, text, AfxGetAppName(), WithIcon(type));
}

}  // namespace

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CCmdTarget)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
END_MESSAGE_MAP()

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_strAppName(lpszAppName ? lpszAppName : _T("")) {
    if (lpszAppName)
        m_pszAppName = m_strAppName;
    m_nThreadID = ::GetCurrentThreadId();
    GetThreadState().thread = this;
    program = this;
}

CWinApp::~CWinApp() {
    if (program == this)
        program = nullptr;
}

void CWinApp::SetInstance(HINSTANCE hInstance, LPTSTR lpCmdLine, int nCmdShow) {
    m_hInstance = hInstance;
    m_lpCmdLine = lpCmdLine;
    m_nCmdShow = nCmdShow;
    m_strExeName = ProgramFileTitle();
    m_pszExeName = m_strExeName;
    if (m_pszAppName)
        return;
    if (!m_strAppName.LoadString(AFX_IDS_APP_TITLE))
        m_strAppName = m_strExeName;
    m_pszAppName = m_strAppName;
}

int CWinApp::Run() {
    if (!m_pMainWnd)
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

int CWinApp::ExitInstance() {
    return CWinThread::ExitInstance();
}

void CWinApp::OnAppExit() {
    if (m_pMainWnd)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (pMsg->message == WM_CREATE || pMsg->message == WM_PAINT)
        return CWinThread::ProcessWndProcException(e, pMsg);
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) {
        TCHAR text[512];
        if (!e->GetErrorMessage(text, ARRAYSIZE(text)))
            ::lstrcpyn(text, _T("The command could not be completed."), ARRAYSIZE(text));
        bool isMemory = e->IsKindOf(RUNTIME_CLASS(CMemoryException));
        DoMessageBox(text, MB_OK | (isMemory ? MB_ICONEXCLAMATION | MB_SYSTEMMODAL : MB_ICONSTOP), 0);
    }
    return pMsg->message == WM_COMMAND;  // a command that failed was still handled
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    return ShowMessageBox(lpszPrompt, nType);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

CWinApp* AFXAPI AfxGetApp() {
    return program;
}

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return programInstance ? programInstance : ::GetModuleHandle(nullptr);
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return resourceInstance ? resourceInstance : AfxGetInstanceHandle();
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    resourceInstance = hInstResource;
}

LPCTSTR AFXAPI AfxGetAppName() {
    if (program && program->m_pszAppName)
        return program->m_pszAppName;
    static const CString name = ProgramFileTitle();
    return name;
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    programInstance = hInstance;
    if (program)
        program->SetInstance(hInstance, lpCmdLine, nCmdShow);
    return TRUE;
}

void AFXAPI AfxWinTerm() {
    AfxOleTerm();
    GetThreadState().ClearTemporaries();
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    int exitCode = -1;
    CWinThread* thread = AfxGetThread();
    if (thread && AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) &&
        (!program || program->InitApplication())) {
        if (thread->InitInstance()) {
            exitCode = thread->Run();
        } else {
            if (thread->m_pMainWnd)
                thread->m_pMainWnd->DestroyWindow();
            exitCode = thread->ExitInstance();
        }
    }
    AfxWinTerm();
    return exitCode;
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    return program ? program->DoMessageBox(lpszText, nType, nIDHelp) : ShowMessageBox(lpszText, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    text.LoadString(nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}
