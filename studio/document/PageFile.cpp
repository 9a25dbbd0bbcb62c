#include "studio/document/PageFile.h"

#include "studio/document/Checksum.h"

#include <cstring>

namespace Studio {

namespace {

struct FileHeader {
    char magic[8];
    DWORD version;
    DWORD checksum;
    ULONGLONG length;
};
static_assert(sizeof(FileHeader) == 24, "the header is written as it stands in memory");

// The control characters show a file that went through a text conversion.
constexpr char kMagic[8] = {'T', 'S', 'P', 'G', '\r', '\n', 0x1A, '\n'};
constexpr int kBuffer = 16 * 1024;

// A file beside the real one, deleted unless it takes its place.
class NewFile {
public:
    explicit NewFile(const CString& path) : m_path(path) {
        const int slash = path.ReverseFind(L'\\');
        const CString folder = path.Left(slash + 1);
        if (!::GetTempFileName(folder, L"stu", 0, m_temporary))
            CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), path);
    }
    ~NewFile() {
        if (!m_replaced)
            ::DeleteFile(m_temporary);
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    LPCWSTR Name() const { return m_temporary; }

    void Replace() {
        if (!::MoveFileEx(m_temporary, m_path, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_path);
        m_replaced = true;
    }

private:
    const CString m_path;
    WCHAR m_temporary[MAX_PATH];
    bool m_replaced = false;
};

// Checks the header, and returns the version in it.
DWORD CheckHeader(CFile& file) {
    const ULONGLONG size = file.GetLength();
    FileHeader header = {};
    if (size == 0)
        throw FileFault{Text::kFaultEmpty};
    if (file.Read(&header, sizeof header) != sizeof header ||
        std::memcmp(header.magic, kMagic, sizeof kMagic) != 0)
        throw FileFault{Text::kFaultForeign};
    if (header.version == 0 || header.version > kArchiveVersion)
        throw FileFault{Text::kFaultVersion};
    if (header.length != size - sizeof header)
        throw FileFault{Text::kFaultLength};
    if (header.checksum != FileChecksum(file, sizeof header))
        throw FileFault{Text::kFaultChecksum};
    return header.version;
}

void WriteHeader(CFile& file) {
    FileHeader header = {};
    std::memcpy(header.magic, kMagic, sizeof kMagic);
    header.version = kArchiveVersion;
    header.checksum = FileChecksum(file, sizeof header);
    header.length = file.GetLength() - sizeof header;
    file.SeekToBegin();
    file.Write(&header, sizeof header);
}

}  // namespace

void WriteWholeFile(const CString& path, const std::function<void(LPCWSTR temporary)>& write) {
    NewFile target(FullPath(path));
    write(target.Name());
    target.Replace();
}

void WritePageFile(const CString& path, const std::function<void(CArchive&)>& store) {
    WriteWholeFile(path, [&](LPCWSTR temporary) {
        CFile file(temporary, CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive);
        file.Seek(sizeof(FileHeader), CFile::begin);
        CArchive ar(&file, CArchive::store | CArchive::bNoFlushOnDelete, kBuffer);
        store(ar);
        ar.Close();
        WriteHeader(file);
        file.Flush();
        file.Close();
    });
}

void ReadPageFile(const CString& path, const std::function<void(CArchive& ar, DWORD version)>& load) {
    CFile file(FullPath(path), CFile::modeRead | CFile::shareDenyWrite);
    const DWORD version = CheckHeader(file);
    file.Seek(sizeof(FileHeader), CFile::begin);
    CArchive ar(&file, CArchive::load | CArchive::bNoFlushOnDelete, kBuffer);
    load(ar, version);
}

CString FullPath(const CString& path) {
    WCHAR full[32768];
    const DWORD length = ::GetFullPathName(path, static_cast<DWORD>(std::size(full)), full, nullptr);
    return length && length < std::size(full) ? CString(full) : path;
}

}  // namespace Studio
