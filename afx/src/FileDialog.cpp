#include <afxdlgs.h>

#include "ComPtr.h"

#include <shlobj.h>

#include <algorithm>
#include <vector>

namespace {

/// A filter's text and pattern parts, in order.
std::vector<std::wstring> SplitFilter(const CString& filter) {
    std::vector<std::wstring> parts(1);
    for (int i = 0; i < filter.GetLength(); ++i) {
        if (filter[i] == '|' || filter[i] == 0)
            parts.emplace_back();
        else
            parts.back() += filter[i];
    }
    while (!parts.empty() && parts.back().empty())
        parts.pop_back();
    return parts;
}

/// Where OFN_ flags have a counterpart in the newer dialog.
FILEOPENDIALOGOPTIONS ToDialogOptions(DWORD flags) {
    constexpr struct {
        DWORD flag;
        DWORD option;
    } pairs[] = {
        {OFN_OVERWRITEPROMPT, FOS_OVERWRITEPROMPT},
        {OFN_NOCHANGEDIR, FOS_NOCHANGEDIR},
        {OFN_NOVALIDATE, FOS_NOVALIDATE},
        {OFN_ALLOWMULTISELECT, FOS_ALLOWMULTISELECT},
        {OFN_PATHMUSTEXIST, FOS_PATHMUSTEXIST},
        {OFN_FILEMUSTEXIST, FOS_FILEMUSTEXIST},
        {OFN_CREATEPROMPT, FOS_CREATEPROMPT},
        {OFN_SHAREAWARE, FOS_SHAREAWARE},
        {OFN_NOREADONLYRETURN, FOS_NOREADONLYRETURN},
        {OFN_NODEREFERENCELINKS, FOS_NODEREFERENCELINKS},
        {OFN_DONTADDTORECENT, FOS_DONTADDTORECENT},
        {OFN_FORCESHOWHIDDEN, FOS_FORCESHOWHIDDEN},
    };
    FILEOPENDIALOGOPTIONS options = FOS_FORCEFILESYSTEM;
    for (auto pair : pairs) {
        if (flags & pair.flag)
            options |= pair.option;
    }
    return options;
}

/// Position of the first character of a path's last part.
int NameStart(const CString& path) {
    return std::max(path.ReverseFind('\\'), path.ReverseFind('/')) + 1;
}

void SetFolder(IFileDialog* dialog, LPCTSTR folder) {
    ComPtr<IShellItem> item;
    if (SUCCEEDED(::SHCreateItemFromParsingName(folder, nullptr, IID_IShellItem, item.OutVoid())))
        dialog->SetFolder(item.Get());
}

}  // namespace

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD dwSize, BOOL bVistaStyle)
    : CCommonDialog(pParentWnd),
      m_ofn(m_openFileName),
      m_bOpenFileDialog(bOpenFileDialog),
      m_bVistaStyle(bVistaStyle),
      m_strFilter(lpszFilter ? lpszFilter : _T("")),
      m_strDefExt(lpszDefExt ? lpszDefExt : _T("")) {
    m_ofn.lStructSize = dwSize ? dwSize : static_cast<DWORD>(sizeof(m_openFileName));
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = ARRAYSIZE(m_szFileName);
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = ARRAYSIZE(m_szFileTitle);
    m_ofn.lpstrDefExt = lpszDefExt ? static_cast<LPCTSTR>(m_strDefExt) : nullptr;
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLESIZING;
    if (lpszFileName)
        ::lstrcpyn(m_szFileName, lpszFileName, ARRAYSIZE(m_szFileName));
}

CFileDialog::~CFileDialog() = default;

INT_PTR CFileDialog::DoModal() {
    INT_PTR result = IDCANCEL;
    m_ofn.hwndOwner = OwnerWindow();
    if (m_bVistaStyle && ShowItemDialog(result))
        return result;
    std::wstring pairs;
    for (const std::wstring& part : SplitFilter(m_strFilter))
        pairs += part + L'\0';
    m_ofn.lpstrFilter = pairs.empty() ? nullptr : pairs.c_str();
    BOOL isChosen = m_bOpenFileDialog ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    m_ofn.lpstrFilter = nullptr;
    return isChosen ? IDOK : IDCANCEL;
}

/// Shows the newer dialog; false when there is none to be had.
bool CFileDialog::ShowItemDialog(INT_PTR& result) {
    ComScope com;
    ComPtr<IFileDialog> dialog;
    REFCLSID kind = m_bOpenFileDialog ? CLSID_FileOpenDialog : CLSID_FileSaveDialog;
    if (!com.IsReady() ||
        FAILED(::CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, dialog.OutVoid())))
        return false;
    Configure(dialog.Get());
    HRESULT shown = dialog->Show(m_ofn.hwndOwner);
    if (SUCCEEDED(shown))
        result = TakeResult(dialog.Get()) ? IDOK : IDCANCEL;
    return SUCCEEDED(shown) || shown == HRESULT_FROM_WIN32(ERROR_CANCELLED);
}

void CFileDialog::Configure(IFileDialog* dialog) {
    std::vector<std::wstring> parts = SplitFilter(m_strFilter);
    std::vector<COMDLG_FILTERSPEC> filters;
    for (size_t i = 0; i + 1 < parts.size(); i += 2)
        filters.push_back({parts[i].c_str(), parts[i + 1].c_str()});
    if (!filters.empty()) {
        dialog->SetFileTypes(static_cast<UINT>(filters.size()), filters.data());
        dialog->SetFileTypeIndex(m_ofn.nFilterIndex ? m_ofn.nFilterIndex : 1);
    }
    dialog->SetOptions(ToDialogOptions(m_ofn.Flags));
    if (m_ofn.lpstrDefExt && *m_ofn.lpstrDefExt)
        dialog->SetDefaultExtension(m_ofn.lpstrDefExt);
    if (m_ofn.lpstrTitle)
        dialog->SetTitle(m_ofn.lpstrTitle);
    CString name(m_ofn.lpstrFile);
    int start = NameStart(name);
    dialog->SetFileName(name.Mid(start));
    if (start > 0)
        SetFolder(dialog, name.Left(start));
    else if (m_ofn.lpstrInitialDir)
        SetFolder(dialog, m_ofn.lpstrInitialDir);
}

/// Copies the chosen path into the older dialog's record, where everybody reads it.
bool CFileDialog::TakeResult(IFileDialog* dialog) {
    ComPtr<IShellItem> item;
    LPWSTR path = nullptr;
    if (FAILED(dialog->GetResult(item.Out())) || FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &path)))
        return false;
    CString chosen(path);
    ::CoTaskMemFree(path);
    if (chosen.GetLength() >= static_cast<int>(m_ofn.nMaxFile))
        return false;
    ::lstrcpyn(m_ofn.lpstrFile, chosen, static_cast<int>(m_ofn.nMaxFile));
    int start = NameStart(chosen);
    ::lstrcpyn(m_ofn.lpstrFileTitle, chosen.Mid(start), static_cast<int>(m_ofn.nMaxFileTitle));
    m_ofn.nFileOffset = static_cast<WORD>(start);
    int dot = chosen.ReverseFind('.');
    m_ofn.nFileExtension = static_cast<WORD>(dot >= start ? dot + 1 : 0);
    UINT filter = 0;
    if (SUCCEEDED(dialog->GetFileTypeIndex(&filter)))
        m_ofn.nFilterIndex = filter;
    return true;
}

CString CFileDialog::GetPathName() const {
    return CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const {
    CString path = GetPathName();
    return path.Mid(NameStart(path));
}

CString CFileDialog::GetFileTitle() const {
    CString name = GetFileName();
    int dot = name.ReverseFind('.');
    return dot >= 0 ? name.Left(dot) : name;
}

CString CFileDialog::GetFileExt() const {
    CString name = GetFileName();
    int dot = name.ReverseFind('.');
    return dot >= 0 ? name.Mid(dot + 1) : CString();
}

CString CFileDialog::GetFolderPath() const {
    CString path = GetPathName();
    int start = NameStart(path);
    return start > 0 ? path.Left(start - 1) : CString();
}
