// A path for one test's file, which is deleted in the end, and its bytes.
#pragma once

#include <afx.h>

#include <fstream>
#include <iterator>
#include <filesystem>
#include <string>

class TemporaryFile {
public:
    TemporaryFile() {
        static int count = 0;
        CString folder;
        ::GetTempPathW(MAX_PATH, folder.GetBuffer(MAX_PATH));
        folder.ReleaseBuffer();
        m_path.Format(L"%sTessel%lu-%d.dat", folder, ::GetCurrentProcessId(), ++count);
        ::DeleteFileW(m_path);
    }
    explicit TemporaryFile(const std::string& bytes) : TemporaryFile() { Write(bytes); }
    ~TemporaryFile() { ::DeleteFileW(m_path); }

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const CString& Path() const { return m_path; }
    bool Exists() const { return ::GetFileAttributesW(m_path) != INVALID_FILE_ATTRIBUTES; }

    void Write(const std::string& bytes) const {
        std::ofstream(std::filesystem::path(m_path.GetString()), std::ios::binary) << bytes;
    }
    std::string Read() const {
        std::ifstream file(std::filesystem::path(m_path.GetString()), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    CString m_path;
};
