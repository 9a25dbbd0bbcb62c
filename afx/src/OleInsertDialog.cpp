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
    // The wide form of the dialog is not everywhere there, the narrow one is.
    char file[MAX_PATH] = {};
    OLEUIINSERTOBJECTA io{};
    io.cbStruct = sizeof(io);
    io.dwFlags = m_io.dwFlags;
    io.hWndOwner = OwnerWindow();
    io.lpszFile = file;
    io.cchFile = ARRAYSIZE(file);
    io.cClsidExclude = m_io.cClsidExclude;
    io.lpClsidExclude = m_io.lpClsidExclude;
    m_nLastError = ::OleUIInsertObjectA(&io);
    m_io.dwFlags = io.dwFlags;
    m_io.clsid = io.clsid;
    ::MultiByteToWideChar(CP_ACP, 0, file, -1, m_szFileName, ARRAYSIZE(m_szFileName));
    if (io.hMetaPict)
        m_io.hMetaPict = io.hMetaPict;
    if (m_nLastError == OLEUI_OK)
        return IDOK;
    // Some systems answer a cancelled dialog with FALSE.
    return m_nLastError == OLEUI_CANCEL || m_nLastError == OLEUI_FALSE ? IDCANCEL : -1;
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
