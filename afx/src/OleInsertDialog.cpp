#include <afxodlgs.h>

IMPLEMENT_DYNAMIC(COleDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(COleInsertDialog, COleDialog)

COleInsertDialog::COleInsertDialog(DWORD dwFlags, CWnd* pParentWnd) : COleDialog(pParentWnd), m_io{} {
    m_io.cbStruct = sizeof(m_io);
    m_io.dwFlags = dwFlags;
    m_io.lpszFile = m_szFileName;
    m_io.cchFile = ARRAYSIZE(m_szFileName);
}

INT_PTR COleInsertDialog::DoModal() {
    m_io.hWndOwner = OwnerWindow();
    m_nLastError = ::OleUIInsertObjectW(&m_io);
    // Some systems have no wide form and answer so at once, without a dialog.
    if (m_nLastError == OLEUI_FALSE)
        m_nLastError = ShowNarrow();
    if (m_nLastError == OLEUI_OK)
        return IDOK;
    // The same systems answer a cancelled dialog with FALSE.
    return m_nLastError == OLEUI_CANCEL || m_nLastError == OLEUI_FALSE ? IDCANCEL : -1;
}

/// The form whose paths are in the ANSI code page.
UINT COleInsertDialog::ShowNarrow() {
    char file[MAX_PATH] = {};
    OLEUIINSERTOBJECTA io{};
    io.cbStruct = sizeof(io);
    io.dwFlags = m_io.dwFlags;
    io.hWndOwner = m_io.hWndOwner;
    io.lpszFile = file;
    io.cchFile = ARRAYSIZE(file);
    io.cClsidExclude = m_io.cClsidExclude;
    io.lpClsidExclude = m_io.lpClsidExclude;
    const UINT answer = ::OleUIInsertObjectA(&io);
    m_io.dwFlags = io.dwFlags;
    m_io.clsid = io.clsid;
    m_io.hMetaPict = io.hMetaPict;
    ::MultiByteToWideChar(CP_ACP, 0, file, -1, m_szFileName, ARRAYSIZE(m_szFileName));
    return answer;
}

UINT COleInsertDialog::GetSelectionType() const {
    if (!(m_io.dwFlags & IOF_SELECTCREATEFROMFILE))
        return createNewItem;
    return m_io.dwFlags & IOF_CHECKLINK ? linkToFile : insertFromFile;
}

CString COleInsertDialog::GetPathName() const {
    return GetSelectionType() == createNewItem ? CString() : CString(m_szFileName);
}

BOOL COleInsertDialog::CreateItem(COleClientItem* pItem) {
    if (!pItem)
        return FALSE;
    switch (GetSelectionType()) {
        case insertFromFile:
            return pItem->CreateFromFile(m_szFileName);
        case linkToFile:
            return pItem->CreateLinkFromFile(m_szFileName);
        default:
            return pItem->CreateNewItem(m_io.clsid);
    }
}
