#include "studio/document/PageFile.h"

#include "core/WholeFile.h"
#include "studio/document/Checksum.h"

#include <cstring>
#include <iterator>

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

void WriteWholeFile(const CString& path, const std::function<void(CFile& file)>& write) {
    Lumo::WholeFile target(path);
    write(target.File());
    target.Commit();
}

void WritePageFile(const CString& path, const std::function<void(CArchive&)>& store) {
    WriteWholeFile(path, [&](CFile& file) {
        file.Seek(sizeof(FileHeader), CFile::begin);
        CArchive ar(&file, CArchive::store | CArchive::bNoFlushOnDelete, kBuffer);
        store(ar);
        ar.Close();
        WriteHeader(file);
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
