#include "core/WholeFile.h"

#include <algorithm>
#include <vector>

namespace Lumo {

namespace {

constexpr int kLongestName = 255;
constexpr int kNameRoom = 80;     // of a name that gets an ending: with it, one that every file system takes
constexpr int kMostNumbers = 16;  // of names that are taken
constexpr LPCWSTR kNewEnding = L".saving";
constexpr UINT kExclusive = CFile::modeReadWrite | CFile::shareExclusive;

CString FullPath(LPCTSTR path) {
    const DWORD room = ::GetFullPathName(path, 0, nullptr, nullptr);
    CString full;
    const DWORD length = ::GetFullPathName(path, room, full.GetBuffer(static_cast<int>(room)), nullptr);
    full.ReleaseBuffer(static_cast<int>(length));
    return length && length < room ? full : CString(path);
}

// The form in which the system takes a full path of any length.
CString AnyLength(const CString& full) {
    const CString start = full.Left(4);
    if (start == L"\\\\?\\" || start == L"\\\\.\\")
        return full;
    return full.Left(2) == L"\\\\" ? L"\\\\?\\UNC\\" + full.Mid(2) : L"\\\\?\\" + full;
}

// Where an open file really is, links followed; `path` where the system does not tell.
CString TruePath(const CFile& file, const CString& path) {
    const DWORD room = ::GetFinalPathNameByHandle(file.m_hFile, nullptr, 0, FILE_NAME_NORMALIZED);
    CString found;
    const DWORD length = ::GetFinalPathNameByHandle(file.m_hFile, found.GetBuffer(static_cast<int>(room)),
                                                    room, FILE_NAME_NORMALIZED);
    found.ReleaseBuffer(static_cast<int>(length < room ? length : 0));
    return found.IsEmpty() ? path : found;
}

CString FolderOf(const CString& path) {
    return path.Left(path.ReverseFind(L'\\') + 1);
}

CString TemporaryFolder() {
    WCHAR folder[MAX_PATH + 1] = {};
    ::GetTempPath(MAX_PATH + 1, folder);
    return AnyLength(folder);
}

// A file closes by itself only when it was opened by its own means.
struct ClosingFile : CFile {
    ~ClosingFile() override { Abort(); }
};

bool IsOpen(const CFile& file) {
    return file.m_hFile != CFile::hFileNull;
}

// Makes a file of this process alone in `folder`, called after `target` and with that ending, and tells its
// path. Leaves `file` closed, and the system's last error, when it cannot.
CString MakeBeside(CFile& file, const CString& folder, const CString& target, LPCWSTR ending) {
    CString name = target.Mid(target.ReverseFind(L'\\') + 1).Left(kNameRoom);
    if (IS_HIGH_SURROGATE(name.GetAt(name.GetLength() - 1)))
        name.Truncate(name.GetLength() - 1);
    for (int number = 1; number <= kMostNumbers; ++number) {
        CString path = folder + name + ending;
        if (number > 1)
            path.Format(L"%s.%d%s", (folder + name).GetString(), number, ending);
        file.m_hFile = ::CreateFile(path, GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
        if (IsOpen(file))
            return path;
    }
    return {};
}

// Whether the system deletes an open file when its last handle goes, also with a process that is killed.
void LetGoWithHandle(const CFile& file, bool goes) {
    FILE_DISPOSITION_INFO info = {goes};
    ::SetFileInformationByHandle(file.m_hFile, FileDispositionInfo, &info, sizeof(info));
}

// Makes `to` equal to `from`, down to the disk.
void CopyAll(CFile& from, CFile& to) {
    from.SeekToBegin();
    to.SetLength(from.GetLength());
    to.SeekToBegin();
    std::vector<BYTE> block(1 << 16);
    while (const UINT read = from.Read(block.data(), static_cast<UINT>(block.size())))
        to.Write(block.data(), read);
    to.Flush();
}

bool TryCopyAll(CFile& from, CFile& to) {
    try {
        CopyAll(from, to);
        return true;
    } catch (CFileException* error) {
        error->Delete();
        return false;
    }
}

// Opens what `Replace` has closed; exceptions name `name`.
void Reopen(CFile& file, const CString& path, UINT mode, const CString& name) {
    CFileException reason;
    if (!IsOpen(file) && !file.Open(path, mode, &reason))
        AfxThrowFileException(reason.m_cause, reason.m_lOsError, name);
    file.SetFilePath(name);
}

void TakeOverTimesAndAttributes(const CFile& from, const CFile& to) {
    FILE_BASIC_INFO info = {};
    if (!::GetFileInformationByHandleEx(from.m_hFile, FileBasicInfo, &info, sizeof(info)))
        return;
    info.LastAccessTime = info.LastWriteTime = info.ChangeTime = LARGE_INTEGER();  // as they are
    ::SetFileInformationByHandle(to.m_hFile, FileBasicInfo, &info, sizeof(info));
}

// Who may do what with the file, as a security descriptor; empty where the system does not tell.
std::vector<BYTE> AccessOf(const CFile& file) {
    DWORD size = 0;
    ::GetKernelObjectSecurity(file.m_hFile, DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<BYTE> access(size);
    if (!::GetKernelObjectSecurity(file.m_hFile, DACL_SECURITY_INFORMATION, access.data(), size, &size))
        access.clear();
    return access;
}

}  // namespace

WholeFile::WholeFile(LPCTSTR path) {
    const CString full = FullPath(path);
    m_target = AnyLength(full);
    const DWORD attributes = ::GetFileAttributes(m_target);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        CFileException::ThrowOsError(ERROR_ACCESS_DENIED, full);
    CFileException reason;
    if (m_old.Open(full, kExclusive, &reason))
        m_target = TruePath(m_old, m_target);
    else if (reason.m_cause != CFileException::fileNotFound)
        AfxThrowFileException(reason.m_cause, reason.m_lOsError, full);
    else if (m_target.GetLength() - FolderOf(m_target).GetLength() > kLongestName)
        CFileException::ThrowOsError(ERROR_INVALID_NAME, full);
    m_beside = MakeBeside(m_new, FolderOf(m_target), m_target, kNewEnding);
    const DWORD error = ::GetLastError();
    if (m_beside.IsEmpty() && IsOpen(m_old) && (error == ERROR_ACCESS_DENIED || error == ERROR_WRITE_PROTECT))
        m_beside = MakeBeside(m_new, TemporaryFolder(), m_target, kNewEnding);
    if (m_beside.IsEmpty())
        CFileException::ThrowOsError(static_cast<LONG>(error), full);
    LetGoWithHandle(m_new, true);
    m_new.SetFilePath(full);
}

WholeFile::~WholeFile() {
    m_new.Abort();
    if (!m_beside.IsEmpty())
        ::DeleteFile(m_beside);
}

void WholeFile::Commit() {
    m_new.Flush();
    const CString path = m_new.GetFilePath();
    const bool hasOld = IsOpen(m_old);
    const DWORD error = FolderOf(m_beside) == FolderOf(m_target) ? Replace() : ERROR_ACCESS_DENIED;
    if (error == ERROR_SUCCESS)
        return;
    if (!hasOld)
        CFileException::ThrowOsError(static_cast<LONG>(error), path);
    Reopen(m_new, m_beside, CFile::modeRead | CFile::shareDenyWrite, path);
    Reopen(m_old, m_target, kExclusive, path);
    WriteOver();
}

// Not by the system's call that replaces and merges: where it moves the old file aside first, a process that
// ends in between leaves none.
DWORD WholeFile::Replace() {
    std::vector<BYTE> access;
    if (IsOpen(m_old)) {
        TakeOverTimesAndAttributes(m_old, m_new);
        access = AccessOf(m_old);
    }
    LetGoWithHandle(m_new, false);
    m_new.Abort();
    m_old.Abort();
    if (!access.empty())
        ::SetFileSecurity(m_beside, DACL_SECURITY_INFORMATION, access.data());
    if (!::MoveFileEx(m_beside, m_target, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return ::GetLastError();
    m_beside.Empty();
    return ERROR_SUCCESS;
}

// The copy of the old contents goes when they are no longer needed, or back in their place.
void WholeFile::WriteOver() {
    ClosingFile before;
    if (MakeBeside(before, FolderOf(m_beside), m_target, L".before").IsEmpty())
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_old.GetFilePath());
    before.SetFilePath(m_old.GetFilePath());
    LetGoWithHandle(before, true);
    CopyAll(m_old, before);
    LetGoWithHandle(before, false);
    try {
        CopyAll(m_new, m_old);
    } catch (CFileException*) {
        LetGoWithHandle(before, TryCopyAll(before, m_old));
        throw;
    }
    LetGoWithHandle(before, true);
}

}  // namespace Lumo
