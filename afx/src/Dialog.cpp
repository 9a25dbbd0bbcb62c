#include <afxwin.h>

#include "CommandMessages.h"

namespace {

/// The dialog procedure behind every dialog: all work is done by the object.
INT_PTR CALLBACK DialogProc(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

/// The template resource in memory, or null.
LPCDLGTEMPLATE LoadTemplate(LPCTSTR name) {
    HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
    HRSRC resource = name ? ::FindResource(module, name, RT_DIALOG) : nullptr;
    HGLOBAL loaded = resource ? ::LoadResource(module, resource) : nullptr;
    return loaded ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
}

/// The window that a modal dialog lies over: the given one's outermost, else the program's active one.
HWND ModalOwner(CWnd* parent) {
    if (!parent || !parent->m_hWnd)
        parent = AfxGetMainWnd();
    if (!parent || !parent->m_hWnd)
        return nullptr;
    HWND top = parent->GetTopLevelParent()->m_hWnd;
    return ::GetLastActivePopup(top);
}

}  // namespace

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
END_MESSAGE_MAP()

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {}

CDialog::~CDialog() {
    if (m_hWnd)
        DestroyWindow();
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    LPCDLGTEMPLATE dialogTemplate = LoadTemplate(lpszTemplateName);
    return dialogTemplate && CreateIndirect(dialogTemplate, pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd) {
    if (!lpDialogTemplate)
        return FALSE;
    CWnd* parent = pParentWnd ? pParentWnd : AfxGetMainWnd();
    AfxHookWindowCreate(this);
    HWND window = ::CreateDialogIndirectParam(AfxGetResourceHandle(), lpDialogTemplate,
                                              parent ? parent->m_hWnd : nullptr, DialogProc, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return window != nullptr;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd) {
    m_lpDialogTemplate = lpDialogTemplate;
    if (pParentWnd)
        m_pParentWnd = pParentWnd;
    return lpDialogTemplate != nullptr;
}

INT_PTR CDialog::DoModal() {
    LPCDLGTEMPLATE dialogTemplate =
        m_lpDialogTemplate ? m_lpDialogTemplate : LoadTemplate(m_lpszTemplateName);
    if (!dialogTemplate)
        return -1;
    HWND owner = ModalOwner(m_pParentWnd);
    bool wasEnabled = owner && ::IsWindowEnabled(owner);
    if (wasEnabled)
        ::EnableWindow(owner, FALSE);
    m_nModalResult = -1;
    m_bContinueModal = true;
    INT_PTR result = -1;
    if (CreateIndirect(dialogTemplate, CWnd::FromHandle(owner)) && m_hWnd)
        result = m_bContinueModal ? RunModalLoop(MLF_SHOWONIDLE) : m_nModalResult;  // OnInitDialog may end it
    // The owner is enabled before the dialog goes, or another program would be activated.
    if (wasEnabled)
        ::EnableWindow(owner, TRUE);
    if (owner && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner);
    DestroyWindow();
    return result;
}

void CDialog::EndDialog(int nResult) {
    if (m_hWnd)
        ::ShowWindow(m_hWnd, SW_HIDE);
    EndModalLoop(nResult);
}

BOOL CDialog::OnInitDialog() {
    const BOOL isShown = UpdateData(FALSE);
    if (!isShown)
        EndDialog(-1);
    return isShown;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    // The dialog's own start comes first, so that the system's choice of focus stands when asked for.
    BOOL takesFocus = OnInitDialog();
    if (takesFocus && m_hWnd)
        Default();
    return takesFocus;
}

BOOL CDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    if (HIWORD(wParam) != BN_CLICKED)
        return FALSE;
    if (LOWORD(wParam) == IDOK) {
        OnOK();
        return TRUE;
    }
    if (LOWORD(wParam) == IDCANCEL) {
        OnCancel();
        return TRUE;
    }
    return FALSE;
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    bool isInput = (pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST) ||
                   (pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST);
    return isInput && IsDialogMessage(pMsg);
}
