#include <afx.h>

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace {

// The path as given when it cannot be completed, so that opening it reports what is wrong with it.
CString FullPath(LPCWSTR name) {
    if (!name)
        name = L"";
    CString path;
    DWORD room = MAX_PATH;
    for (;;) {
        const DWORD length = ::GetFullPathNameW(name, room, path.GetBuffer(int(room)), nullptr);
        if (length < room) {
            path.ReleaseBuffer(int(length));
            return length ? path : CString(name);
        }
        room = length + 1;
    }
}

// The form in which the system takes paths that are longer than it takes otherwise.
CString SystemPath(const CString& path) {
    if (path.GetLength() < MAX_PATH || path.Left(4) == L"\\\\?\\")
        return path;
    return path.Left(2) == L"\\\\" ? L"\\\\?\\UNC\\" + path.Mid(2) : L"\\\\?\\" + path;
}

DWORD AccessOf(UINT flags) {
    switch (flags & (CFile::modeWrite | CFile::modeReadWrite)) {
        case CFile::modeRead:
            return GENERIC_READ;
        case CFile::modeWrite:
            return GENERIC_WRITE;
        default:
            return GENERIC_READ | GENERIC_WRITE;
    }
}

DWORD ShareOf(UINT flags) {
    switch (flags & 0x70) {
        case CFile::shareDenyWrite:
            return FILE_SHARE_READ;
        case CFile::shareDenyRead:
            return FILE_SHARE_WRITE;
        case CFile::shareDenyNone:
            return FILE_SHARE_READ | FILE_SHARE_WRITE;
        default:
            return 0;
    }
}

DWORD CreationOf(UINT flags) {
    if (!(flags & CFile::modeCreate))
        return OPEN_EXISTING;
    return flags & CFile::modeNoTruncate ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD AttributesOf(UINT flags) {
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    if (flags & CFile::osNoBuffer)
        attributes |= FILE_FLAG_NO_BUFFERING;
    if (flags & CFile::osWriteThrough)
        attributes |= FILE_FLAG_WRITE_THROUGH;
    if (flags & CFile::osRandomAccess)
        attributes |= FILE_FLAG_RANDOM_ACCESS;
    if (flags & CFile::osSequentialScan)
        attributes |= FILE_FLAG_SEQUENTIAL_SCAN;
    return attributes;
}

}  // namespace

CFile::CFile() : CFile(hFileNull) {
    m_bCloseOnDelete = FALSE;
}

CFile::CFile(HANDLE hFile) : m_hFile(hFile), m_bCloseOnDelete(TRUE) {}

CFile::CFile(LPCWSTR lpszFileName, UINT nOpenFlags) : CFile() {
    CFileException reason;
    if (!CFile::Open(lpszFileName, nOpenFlags, &reason))
        AfxThrowFileException(reason.m_cause, reason.m_lOsError, reason.m_strFileName);
}

CFile::~CFile() {
    if (m_bCloseOnDelete)
        CFile::Abort();
}

BOOL CFile::Open(LPCWSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    CFile::Abort();
    const CString path = FullPath(lpszFileName);
    SECURITY_ATTRIBUTES inherit = {sizeof(inherit), nullptr, !(nOpenFlags & modeNoInherit)};
    m_hFile = ::CreateFileW(SystemPath(path), AccessOf(nOpenFlags), ShareOf(nOpenFlags), &inherit,
                            CreationOf(nOpenFlags), AttributesOf(nOpenFlags), nullptr);
    if (m_hFile == hFileNull) {
        const LONG error = LONG(::GetLastError());
        if (pError) {
            pError->m_cause = CFileException::OsErrorToException(error);
            pError->m_lOsError = error;
            pError->m_strFileName = path;
        }
        return FALSE;
    }
    m_strFileName = path;
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

CString CFile::GetFileName() const {
    const int separator = std::max(m_strFileName.ReverseFind(L'\\'), m_strFileName.ReverseFind(L'/'));
    return m_strFileName.Mid(separator + 1);
}

CString CFile::GetFilePath() const {
    return m_strFileName;
}

void CFile::SetFilePath(LPCWSTR lpszNewName) {
    m_strFileName = lpszNewName;
}

void CFile::ThrowLastError() const {
    const LONG error = LONG(::GetLastError());
    AfxThrowFileException(CFileException::OsErrorToException(error), error, m_strFileName);
}

void CFile::RequireOpen() const {
    if (m_hFile == hFileNull)
        AfxThrowFileException(CFileException::invalidFile, ERROR_INVALID_HANDLE, m_strFileName);
}

ULONGLONG CFile::GetPosition() const {
    RequireOpen();
    LARGE_INTEGER position;
    if (!::SetFilePointerEx(m_hFile, LARGE_INTEGER{}, &position, FILE_CURRENT))
        ThrowLastError();
    return ULONGLONG(position.QuadPart);
}

ULONGLONG CFile::GetLength() const {
    RequireOpen();
    LARGE_INTEGER length;
    if (!::GetFileSizeEx(m_hFile, &length))
        ThrowLastError();
    return ULONGLONG(length.QuadPart);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom) {
    RequireOpen();
    LARGE_INTEGER distance, position;
    distance.QuadPart = lOff;
    if (!::SetFilePointerEx(m_hFile, distance, &position, nFrom))
        ThrowLastError();
    return ULONGLONG(position.QuadPart);
}

void CFile::SetLength(ULONGLONG dwNewLen) {
    Seek(LONGLONG(dwNewLen), begin);
    if (!::SetEndOfFile(m_hFile))
        ThrowLastError();
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    RequireOpen();
    DWORD read = 0;
    if (nCount && !::ReadFile(m_hFile, lpBuf, nCount, &read, nullptr))
        ThrowLastError();
    return read;
}

void CFile::Write(const void* lpBuf, UINT nCount) {
    RequireOpen();
    DWORD written = 0;
    if (nCount && !::WriteFile(m_hFile, lpBuf, nCount, &written, nullptr))
        ThrowLastError();
    // A full disk may also show as a write that succeeds with fewer bytes.
    if (written != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

void CFile::Flush() {
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile))
        ThrowLastError();
}

void CFile::Close() {
    const CString path = m_strFileName;
    const HANDLE file = m_hFile;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (file != hFileNull && !::CloseHandle(file))
        CFileException::ThrowOsError(LONG(::GetLastError()), path);
}

void CFile::Abort() {
    if (m_hFile != hFileNull)
        ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

void PASCAL CFile::Rename(LPCWSTR lpszOldName, LPCWSTR lpszNewName) {
    const CString path = FullPath(lpszOldName);
    if (!::MoveFileW(SystemPath(path), SystemPath(FullPath(lpszNewName))))
        CFileException::ThrowOsError(LONG(::GetLastError()), path);
}

void PASCAL CFile::Remove(LPCWSTR lpszFileName) {
    const CString path = FullPath(lpszFileName);
    if (!::DeleteFileW(SystemPath(path)))
        CFileException::ThrowOsError(LONG(::GetLastError()), path);
}
