// Frame windows and dialogs. Included by afxwin.h.
#pragma once

#include <afxapp_.h>
#include <afxctl_.h>

/// A top-level window with menu, accelerators and bars; destroys its object with the window.
class AFX_CLASS_EXPORT CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const RECT rectDefault;  ///< lets the system choose place and size

    /// Creates the frame; lpszClassName null takes the class library's own class.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr,
                        LPCTSTR lpszMenuName = nullptr, DWORD dwExStyle = 0,
                        CCreateContext* pContext = nullptr);
    /// Loads the accelerators that PreTranslateMessage translates; false when they are not found.
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    HACCEL m_hAccelTable = nullptr;  ///< a table made otherwise may be put here; not destroyed with the frame

    BOOL m_bAutoMenuEnable = TRUE;  ///< greys menu items that have no handler (the default)
    BOOL m_bHelpMode = FALSE;       ///< the frame waits for a click on what help is wanted for

    /// Disables the thread's other top-level windows until EndModalState; nests.
    virtual void BeginModalState();
    virtual void EndModalState();
    BOOL InModalState() const { return m_cModalStack != 0; }

    /// Lays out the bars and the pane AFX_IDW_PANE_FIRST.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    /// Text of the status bar's first pane; lpszText null shows nothing.
    void SetMessageText(LPCTSTR lpszText);
    BOOL IsFrameWnd() const override { return TRUE; }
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// The frame's own handlers, then the program's.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnInitMenuPopup(CMenu* pMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    UINT m_cModalStack = 0;

private:
    struct ModalState;
    ModalState* m_pModalState = nullptr;  // windows to enable again
};

/// A dialog box.
class AFX_CLASS_EXPORT CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog();
    /// A modal dialog from a template resource.
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    /// A modeless dialog; false when there is no template or no window.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);
    /// Sets the template in memory that DoModal shows; the caller keeps it until then.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);
    /// Shows the dialog and returns what ended it, IDOK and IDCANCEL among them; -1 when it could not be
    /// shown.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl) {
        ::SendMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
    }
    void SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    /// Controls are there: true lets the system set the focus. Shows the members' values; the dialog ends
    /// with -1 when that fails.
    virtual BOOL OnInitDialog();
    /// Takes the controls' values into the members and ends the dialog, which stays when an entry is not
    /// valid.
    virtual void OnOK();
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    /// Handles the message as a dialog does, that is with what DefDlgProc makes of it.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

    LPCTSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    CWnd* m_pParentWnd = nullptr;
};
