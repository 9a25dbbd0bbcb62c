// The program and its threads: CWinThread, CWinApp and the global functions around them. Included by
// afxwin.h.
#pragma once

#include <afxwnd_.h>

/// A thread that pumps messages. The program object is the one of the main thread.
class AFX_CLASS_EXPORT CWinThread : public CCmdTarget {
    DECLARE_DYNCREATE(CWinThread)
public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;  ///< the window whose end ends the pump; not owned
    DWORD m_nThreadID = 0;
    MSG m_msgCur{};  ///< the message the pump took last

    virtual BOOL InitInstance() { return TRUE; }
    /// Pumps messages with idle work in between until WM_QUIT; returns ExitInstance's result.
    virtual int Run();
    virtual int ExitInstance();
    /// Takes, pre-translates and dispatches one message; false for WM_QUIT.
    virtual BOOL PumpMessage();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Work while no message waits, counted from 0; false when there is none left.
    virtual BOOL OnIdle(LONG lCount);
    /// Whether a message gives reason for new idle work.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// An exception left the handler of pMsg: returns what the window answers instead. The caller deletes e.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    CWnd* GetMainWnd() { return m_pMainWnd; }
};

/// The program: one global object of a class derived from it.
class AFX_CLASS_EXPORT CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;  ///< command line without the program's name
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr;  ///< given to the constructor, else the title resource or the file's name
    LPCTSTR m_pszExeName = nullptr;

    virtual BOOL InitApplication() { return TRUE; }
    /// As CWinThread; ends at once when InitInstance made no main window.
    int Run() override;
    int ExitInstance() override;
    /// Shows an exception that no handler caught.
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;
    /// Shows a message box over the active window of the program.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// Nested wait cursor: 1 shows it, -1 takes one request back, 0 shows it again.
    virtual void DoWaitCursor(int nCode);

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCE(nIDResource)); }
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursor(nullptr, lpszCursorName); }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCE(nIDResource)); }
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(nullptr, lpszIconName); }

private:
    CString m_strAppName;
    CString m_strExeName;

    void SetInstance(HINSTANCE hInstance, LPTSTR lpCmdLine, int nCmdShow);
    friend AFX_API_EXPORT BOOL AFXAPI AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnAppExit();
};

/// A resource that is not there.
class AFX_CLASS_EXPORT CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

/// Ends an operation whose failure the user has been told already.
class AFX_CLASS_EXPORT CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
};

[[noreturn]] AFX_API_EXPORT void AFXAPI AfxThrowResourceException();
[[noreturn]] AFX_API_EXPORT void AFXAPI AfxThrowUserException();

/// The program object, null in a program without one.
AFX_API_EXPORT CWinApp* AFXAPI AfxGetApp();
/// The calling thread's object: the program object on the main thread, null where there is none.
AFX_API_EXPORT CWinThread* AFXAPI AfxGetThread();
/// The main window of the calling thread's object, or null.
AFX_API_EXPORT CWnd* AFXAPI AfxGetMainWnd();
/// The program's module.
AFX_API_EXPORT HINSTANCE AFXAPI AfxGetInstanceHandle();
/// The module that resources are looked for in first: the program's unless set otherwise.
AFX_API_EXPORT HINSTANCE AFXAPI AfxGetResourceHandle();
AFX_API_EXPORT void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
/// The first module with that resource: the resource handle's, then the extension DLLs, newest first; the
/// resource handle's when none has it.
AFX_API_EXPORT HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
/// A string resource cut to nMaxBuf characters with the terminator; returns its length, 0 for none.
AFX_API_EXPORT int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);
AFX_API_EXPORT LPCTSTR AFXAPI AfxGetAppName();

/// Starts the class library; console programs call it themselves with the module's handle.
AFX_API_EXPORT BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                                      int nCmdShow);
/// Runs the program object from start to end; the result is the process's exit code.
AFX_API_EXPORT int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                                     int nCmdShow);
AFX_API_EXPORT void AFXAPI AfxWinTerm();
AFX_API_EXPORT void AFXAPI AfxPostQuitMessage(int nExitCode);

/// Takes, pre-translates and dispatches one message; false for WM_QUIT. Works without a thread object.
AFX_API_EXPORT BOOL AFXAPI AfxPumpMessage();
/// True when an object swallowed the message.
AFX_API_EXPORT BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);

/// Shows a message box with the program's name as caption over the program's active window.
AFX_API_EXPORT int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_API_EXPORT int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK,
                                        UINT nIDHelp = static_cast<UINT>(-1));
