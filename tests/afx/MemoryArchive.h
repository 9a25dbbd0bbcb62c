// Archives on bytes in memory.
#pragma once

#include <afxadv.h>

#include <string>

using namespace std::string_literals;

inline std::string Content(CMemFile& file) {
    std::string bytes(size_t(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(bytes.data(), UINT(bytes.size()));
    return bytes;
}

template <class Store>
std::string Stored(Store store, int bufferSize = 4096) {
    CMemFile file;
    CArchive ar(&file, CArchive::store, bufferSize);
    store(ar);
    ar.Close();
    return Content(file);
}

/// A loading archive on bytes in memory.
struct LoadingArchive {
    explicit LoadingArchive(const std::string& bytes, int bufferSize = 4096)
        : file(Filled(bytes)), ar(&file, CArchive::load, bufferSize) {}

    CMemFile& Filled(const std::string& bytes) {
        source.Write(bytes.data(), UINT(bytes.size()));
        source.SeekToBegin();
        return source;
    }

    CMemFile source;
    CMemFile& file;
    CArchive ar;
};
