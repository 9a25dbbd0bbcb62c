#include <afxdisp.h>

#include <algorithm>
#include <cwchar>
#include <iterator>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)
IMPLEMENT_DYNAMIC(COleException, CException)

CException::CException() : CException(TRUE) {}

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    CopyErrorMessage(CString(), lpszError, nMaxError, pnHelpContext);
    return FALSE;
}

BOOL CException::CopyErrorMessage(const CString& text, LPWSTR lpszError, UINT nMaxError,
                                  PUINT pnHelpContext) {
    if (pnHelpContext)
        *pnHelpContext = 0;
    if (!lpszError || nMaxError == 0)
        return FALSE;
    const UINT length = std::min<UINT>(text.GetLength(), nMaxError - 1);
    std::wmemcpy(lpszError, text, length);
    lpszError[length] = 0;
    return TRUE;
}

BOOL CMemoryException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    return CopyErrorMessage(L"Out of memory.", lpszError, nMaxError, pnHelpContext);
}

BOOL CNotSupportedException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    return CopyErrorMessage(L"This operation is not supported.", lpszError, nMaxError, pnHelpContext);
}

BOOL CInvalidArgException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    return CopyErrorMessage(L"An argument is not valid.", lpszError, nMaxError, pnHelpContext);
}

namespace {

CString Subject(const CString& path) {
    return path.IsEmpty() ? CString(L"The file") : L"\"" + path + L"\"";
}

// What is said after the file's name, in the order of the causes.
const wchar_t* const kFileCauses[] = {
    L"had no error.",
    L"caused an unknown error.",
    L"was not found.",
    L"has a path that does not exist or is not valid.",
    L"could not be opened because too many files are open.",
    L"could not be accessed: permission was denied.",
    L"was used with a file handle that is not valid.",
    L"is the current folder and cannot be removed.",
    L"could not be made because the folder is full.",
    L"was to be positioned outside its limits.",
    L"could not be read or written because of a device error.",
    L"is in use by another program.",
    L"has a part that is locked by another program.",
    L"could not be written because the disk is full.",
    L"ended before all data were read.",
};
static_assert(std::size(kFileCauses) == CFileException::endOfFile + 1);

const wchar_t* const kArchiveCauses[] = {
    L"had no error.",
    L"caused an unknown error.",
    L"cannot be written: it was opened for loading.",
    L"ended before all data were read.",
    L"cannot be read: it was opened for storing.",
    L"has an unexpected format.",
    L"holds an object of an unexpected class.",
    L"was made by another version.",
    L"has more data than its buffer can hold.",
};
static_assert(std::size(kArchiveCauses) == CArchiveException::bufferFull + 1);

template <size_t N>
CString Sentence(const wchar_t* const (&causes)[N], int cause, const CString& path) {
    const bool known = cause >= 0 && cause < int(N);
    return Subject(path) + L' ' + causes[known ? cause : int(CFileException::genericException)];
}

CString SystemText(LONG error) {
    wchar_t text[512];
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                          DWORD(error), 0, text, ARRAYSIZE(text), nullptr);
    return CString(text, int(length)).TrimRight();
}

// Not every compiler's headers have this one.
constexpr LONG kDiskQuotaExceeded = 1295;

struct OsCause {
    LONG error;
    int cause;
};

constexpr OsCause kOsCauses[] = {
    {ERROR_SUCCESS, CFileException::none},
    {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
    {ERROR_PATH_NOT_FOUND, CFileException::badPath},
    {ERROR_INVALID_DRIVE, CFileException::badPath},
    {ERROR_BAD_PATHNAME, CFileException::badPath},
    {ERROR_INVALID_NAME, CFileException::badPath},
    {ERROR_DIRECTORY, CFileException::badPath},
    {ERROR_BAD_NETPATH, CFileException::badPath},
    {ERROR_BAD_NET_NAME, CFileException::badPath},
    {ERROR_FILENAME_EXCED_RANGE, CFileException::badPath},
    {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
    {ERROR_SHARING_BUFFER_EXCEEDED, CFileException::tooManyOpenFiles},
    {ERROR_NO_MORE_SEARCH_HANDLES, CFileException::tooManyOpenFiles},
    {ERROR_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_NETWORK_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_CANNOT_MAKE, CFileException::accessDenied},
    {ERROR_FILE_EXISTS, CFileException::accessDenied},
    {ERROR_ALREADY_EXISTS, CFileException::accessDenied},
    {ERROR_DIR_NOT_EMPTY, CFileException::accessDenied},
    {ERROR_INVALID_ACCESS, CFileException::accessDenied},
    {ERROR_WRITE_PROTECT, CFileException::accessDenied},
    {ERROR_INVALID_HANDLE, CFileException::invalidFile},
    {ERROR_INVALID_TARGET_HANDLE, CFileException::invalidFile},
    {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
    {ERROR_SEEK, CFileException::badSeek},
    {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
    {ERROR_SEEK_ON_DEVICE, CFileException::badSeek},
    {ERROR_CRC, CFileException::hardIO},
    {ERROR_NOT_READY, CFileException::hardIO},
    {ERROR_WRITE_FAULT, CFileException::hardIO},
    {ERROR_READ_FAULT, CFileException::hardIO},
    {ERROR_GEN_FAILURE, CFileException::hardIO},
    {ERROR_IO_DEVICE, CFileException::hardIO},
    {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
    {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
    {ERROR_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
    {kDiskQuotaExceeded, CFileException::diskFull},
    {ERROR_HANDLE_EOF, CFileException::endOfFile},
};

}  // namespace

CFileException::CFileException(int cause, LONG lOsError, LPCWSTR lpszFileName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszFileName) {}

int PASCAL CFileException::OsErrorToException(LONG lOsError) {
    const auto found = std::find_if(std::begin(kOsCauses), std::end(kOsCauses),
                                    [=](const OsCause& entry) { return entry.error == lOsError; });
    return found == std::end(kOsCauses) ? int(genericException) : found->cause;
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCWSTR lpszFileName) {
    if (lOsError != ERROR_SUCCESS)
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

BOOL CFileException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    CString text;
    if (m_cause == genericException && m_lOsError > 0)
        text = SystemText(m_lOsError);
    text = text.IsEmpty() ? Sentence(kFileCauses, m_cause, m_strFileName)
                          : Subject(m_strFileName) + L": " + text;
    return CopyErrorMessage(text, lpszError, nMaxError, pnHelpContext);
}

CArchiveException::CArchiveException(int cause, LPCWSTR lpszArchiveName)
    : m_cause(cause), m_strFileName(lpszArchiveName) {}

BOOL CArchiveException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    return CopyErrorMessage(Sentence(kArchiveCauses, m_cause, m_strFileName), lpszError, nMaxError,
                            pnHelpContext);
}

BOOL COleException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    return CopyErrorMessage(SystemText(m_sc), lpszError, nMaxError, pnHelpContext);
}

void AFXAPI AfxThrowMemoryException() {
    // Made beforehand: there may be no memory for it now.
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowNotSupportedException() {
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowInvalidArgException() {
    throw new CInvalidArgException;
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCWSTR lpszFileName) {
    throw new CFileException(cause, lOsError, lpszFileName);
}

void AFXAPI AfxThrowArchiveException(int cause, LPCWSTR lpszArchiveName) {
    throw new CArchiveException(cause, lpszArchiveName);
}

void AFXAPI AfxThrowOleException(SCODE sc) {
    auto* exception = new COleException;
    exception->m_sc = sc;
    throw exception;
}
