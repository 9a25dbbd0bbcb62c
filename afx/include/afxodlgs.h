// The dialog that inserts embedded objects.
#pragma once

#include <afxole.h>
#include <afxdlgs.h>

#include <oledlg.h>

/// Base of the OLE dialogs.
class AFX_CLASS_EXPORT COleDialog : public CCommonDialog {
    DECLARE_DYNAMIC(COleDialog)
public:
    explicit COleDialog(CWnd* pParentWnd) : CCommonDialog(pParentWnd) {}
    UINT GetLastError() const { return m_nLastError; }  ///< OLEUI_ code of the last DoModal

protected:
    UINT m_nLastError = 0;
};

/// Lets the user choose what to insert: a new object of a class, or one made from a file.
class AFX_CLASS_EXPORT COleInsertDialog : public COleDialog {
    DECLARE_DYNAMIC(COleInsertDialog)
public:
    explicit COleInsertDialog(DWORD dwFlags = IOF_SELECTCREATENEW, CWnd* pParentWnd = nullptr);

    enum Selection { createNewItem, insertFromFile, linkToFile };

    OLEUIINSERTOBJECT m_io;  ///< flags before, flags and class after DoModal

    INT_PTR DoModal() override;     ///< IDOK, IDCANCEL, or -1 when it could not be shown
    UINT GetSelectionType() const;  ///< a Selection
    CString GetPathName() const;    ///< the chosen file, empty for a new object
    REFCLSID GetClassID() const { return m_io.clsid; }
    /// Makes the chosen item in pItem; false when pItem is null or the item cannot be made.
    BOOL CreateItem(COleClientItem* pItem);

protected:
    TCHAR m_szFileName[MAX_PATH] = {};

private:
    UINT ShowNarrow();
};
