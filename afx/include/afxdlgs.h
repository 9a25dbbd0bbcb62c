// The system's common dialogs.
#pragma once

#include <afxwin.h>

#include <commdlg.h>
#include <dlgs.h>

/// Base of the dialogs that the system brings along.
class AFX_CLASS_EXPORT CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)
public:
    explicit CCommonDialog(CWnd* pParentWnd) { m_pParentWnd = pParentWnd; }

protected:
    /// The window the dialog belongs to: the given one, else the program's active one; may be null.
    HWND OwnerWindow() const;
};

struct IFileDialog;

/// Asks for a file to open or to save.
class AFX_CLASS_EXPORT CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)
public:
    /// bOpenFileDialog: TRUE to open, FALSE to save. dwFlags: OFN_ flags. lpszFilter: pairs of text and
    /// pattern, each ended by "|", the last one by "||". bVistaStyle: the newer dialog where there is one.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    ~CFileDialog() override;

    OPENFILENAME& m_ofn;  ///< the older dialog's record; title, folder and flags count for both kinds

    /// IDOK or IDCANCEL.
    INT_PTR DoModal() override;
    CString GetPathName() const;    ///< full path, empty before DoModal
    CString GetFileName() const;    ///< name with extension
    CString GetFileTitle() const;   ///< name without extension
    CString GetFileExt() const;     ///< extension without dot
    CString GetFolderPath() const;  ///< folder of the chosen file

protected:
    BOOL m_bOpenFileDialog;
    BOOL m_bVistaStyle;

private:
    OPENFILENAME m_openFileName{};
    CString m_strFilter;
    CString m_strDefExt;
    TCHAR m_szFileName[4096] = {};
    TCHAR m_szFileTitle[MAX_PATH] = {};

    bool ShowItemDialog(INT_PTR& result);
    void Configure(IFileDialog* dialog);
    bool TakeResult(IFileDialog* dialog);
};

/// Asks for a colour.
class AFX_CLASS_EXPORT CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)
public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);

    CHOOSECOLOR m_cc;

    INT_PTR DoModal() override;
    COLORREF GetColor() const { return m_cc.rgbResult; }
};

/// Asks for a font.
class AFX_CLASS_EXPORT CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)
public:
    explicit CFontDialog(LPLOGFONT lplfInitial = nullptr, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = nullptr, CWnd* pParentWnd = nullptr);

    CHOOSEFONT m_cf;
    LOGFONT m_lf{};  ///< the chosen font

    INT_PTR DoModal() override;
    void GetCurrentFont(LPLOGFONT lplf) { *lplf = m_lf; }
    CString GetFaceName() const { return m_lf.lfFaceName; }
    int GetSize() const { return m_cf.iPointSize; }  ///< tenths of a point
    COLORREF GetColor() const { return m_cf.rgbColors; }
};
