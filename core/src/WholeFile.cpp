#include "core/WholeFile.h"

#include <iterator>

namespace Lumo {

namespace {

constexpr WCHAR kSuffix[] = L".saving";

// The form in which the system takes a full path of any length.
CString AnyLength(const CString& path) {
    if (path.GetLength() < MAX_PATH || path.Left(4) == L"\\\\?\\")
        return path;
    return path.Left(2) == L"\\\\" ? L"\\\\?\\UNC\\" + path.Mid(2) : L"\\\\?\\" + path;
}

}  // namespace

bool WholeFile::IsReadOnly(LPCTSTR path) {
    const DWORD attributes = ::GetFileAttributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

WholeFile::WholeFile(LPCTSTR path) : m_path(path) {
    if (IsReadOnly(path))
        CFileException::ThrowOsError(ERROR_ACCESS_DENIED, m_path);
    CFileException reason;
    if (!m_file.Open(m_path + kSuffix, CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive,
                     &reason))
        AfxThrowFileException(reason.m_cause, reason.m_lOsError, m_path);
    m_beside = m_file.GetFilePath();
    m_file.SetFilePath(m_path);
}

WholeFile::~WholeFile() {
    if (m_beside.IsEmpty())
        return;
    m_file.Abort();
    ::DeleteFile(AnyLength(m_beside));
}

void WholeFile::Commit() {
    m_file.Close();
    const CString target = m_beside.Left(m_beside.GetLength() - static_cast<int>(std::size(kSuffix) - 1));
    if (!::MoveFileEx(AnyLength(m_beside), AnyLength(target),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_path);
    m_beside.Empty();
}

}  // namespace Lumo
