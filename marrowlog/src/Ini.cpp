#include <CSWrapper.h>
#include <Ini.h>

#include "IniText.h"

#include <algorithm>
#include <charconv>
#include <cwchar>
#include <exception>

namespace {

// Far beyond any settings file: what is larger is something else.
constexpr ULONGLONG kLargestFile = 16 << 20;

// The threads of this process take turns: a change made meanwhile would be undone, and a file that is being
// read cannot be replaced.
CCSWrapper& FileSection() {
    static CCSWrapper section;
    return section;
}

std::wstring_view View(const CString& text) {
    return {text.GetString(), size_t(text.GetLength())};
}

/// The file's bytes; none when there is no file. False when there is one that cannot be read.
bool ReadBytes(const CString& path, std::string& bytes) {
    CFile file;
    CFileException reason;
    if (!file.Open(path, CFile::modeRead | CFile::shareDenyNone | CFile::modeNoInherit, &reason))
        return reason.m_cause == CFileException::fileNotFound;
    const ULONGLONG length = file.GetLength();
    if (length > kLargestFile)
        return false;
    bytes.resize(size_t(length));
    bytes.resize(file.Read(bytes.data(), UINT(length)));
    return true;
}

CString TemporaryBeside(const CString& path, DWORD process, DWORD thread) {
    CString temporary;
    temporary.Format(L"%s.%lu-%lu.tmp", path, process, thread);
    return temporary;
}

/// Whether another process with that number may still be writing.
bool IsOther(DWORD process) {
    if (process == ::GetCurrentProcessId())
        return false;  // the threads of this one take turns
    const HANDLE handle = ::OpenProcess(SYNCHRONIZE, FALSE, process);
    if (!handle)
        return ::GetLastError() != ERROR_INVALID_PARAMETER;
    const bool runs = ::WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
    ::CloseHandle(handle);
    return runs;
}

/// Deletes what processes left beside the file that were killed while they replaced it.
void DeleteAbandoned(const CString& path) {
    const CString folder = path.Left((std::max)(path.ReverseFind(L'\\'), path.ReverseFind(L'/')) + 1);
    WIN32_FIND_DATAW found;
    const HANDLE search = ::FindFirstFileW(path + L".*-*.tmp", &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const CString file = folder + found.cFileName;
        DWORD process = 0, thread = 0;
        const int numbers = ::swscanf(file.GetString() + path.GetLength(), L".%lu-%lu", &process, &thread);
        // Only what this class has named so: anything else is somebody's file.
        if (numbers == 2 && file.CompareNoCase(TemporaryBeside(path, process, thread)) == 0 &&
            !IsOther(process))
            ::DeleteFileW(file);
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
}

void WriteTemporary(const CString& temporary, const std::string& bytes) {
    CFile file(temporary,
               CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive | CFile::modeNoInherit);
    file.Write(bytes.data(), UINT(bytes.size()));
    file.Flush();
    file.Close();
}

/// Puts the bytes in the file's place in one step, so that it is complete at every moment.
bool ReplaceWhole(const CString& path, const std::string& bytes) {
    const CString temporary = TemporaryBeside(path, ::GetCurrentProcessId(), ::GetCurrentThreadId());
    bool replaced = false;
    try {
        WriteTemporary(temporary, bytes);
        replaced = ::MoveFileExW(temporary, path, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    } catch (CException* e) {
        e->Delete();
    }
    if (!replaced)
        ::DeleteFileW(temporary);
    DeleteAbandoned(path);
    return replaced;
}

bool Change(const CString& path, std::wstring_view section, std::wstring_view key, std::wstring_view value) {
    CCSLock lock(FileSection());
    std::string bytes;
    if (!ini::CanHold(section, key, value) || !ReadBytes(path, bytes))
        return false;
    ini::Text text = ini::Decode(bytes);
    // Bytes that were not understood would come out changed.
    if (!text.valid)
        return false;
    ini::Set(text, section, key, value);
    std::string changed;
    return ini::Encode(text, changed) && (changed == bytes || ReplaceWhole(path, changed));
}

/// The call's result, or `failed` when it raised any exception.
template <class Result, class Call>
Result Guarded(Result failed, Call call) noexcept {
    try {
        return call();
    } catch (CException* e) {
        e->Delete();
    } catch (const std::exception&) {
    }
    return failed;
}

bool Lookup(const CString& path, const CString& section, const CString& key, std::wstring& value) {
    return Guarded(false, [&] {
        CCSLock lock(FileSection());
        std::string bytes;
        return ReadBytes(path, bytes) && ini::Find(ini::Decode(bytes), View(section), View(key), value);
    });
}

/// The number that the whole text is, in the notation that does not depend on the locale.
template <class Number>
Number NumberOf(const std::wstring& text, Number defaultValue) {
    std::string digits;
    for (wchar_t ch : text)
        digits += ch < 0x80 ? char(ch) : '?';
    const char* from = digits.data() + (digits.starts_with('+') ? 1 : 0);
    const char* end = digits.data() + digits.size();
    Number number;
    const auto [stop, error] = std::from_chars(from, end, number);
    return error == std::errc() && stop == end ? number : defaultValue;
}

template <class Number>
CString TextOf(Number number) {
    char digits[64];
    const auto result = std::to_chars(digits, digits + sizeof(digits), number);
    return CString(digits, int(result.ptr - digits));
}

}  // namespace

CIni::CIni() = default;
CIni::CIni(const CString& path) : m_path(path) {}
CIni::CIni(const CIni& other) = default;
CIni& CIni::operator=(const CIni& other) = default;
CIni::~CIni() = default;

CString CIni::GetString(const CString& section, const CString& key, const CString& defaultValue) const {
    std::wstring value;
    if (!Lookup(m_path, section, key, value))
        return defaultValue;
    return Guarded(defaultValue, [&] { return CString(value.data(), int(value.size())); });
}

int CIni::GetInt(const CString& section, const CString& key, int defaultValue) const {
    std::wstring value;
    return Lookup(m_path, section, key, value) ? NumberOf(value, defaultValue) : defaultValue;
}

float CIni::GetFloat(const CString& section, const CString& key, float defaultValue) const {
    std::wstring value;
    return Lookup(m_path, section, key, value) ? NumberOf(value, defaultValue) : defaultValue;
}

BOOL CIni::SetString(const CString& section, const CString& key, const CString& value) {
    return Guarded(false, [&] { return Change(m_path, View(section), View(key), View(value)); });
}

BOOL CIni::SetInt(const CString& section, const CString& key, int value) {
    return SetString(section, key, TextOf(value));
}

BOOL CIni::SetFloat(const CString& section, const CString& key, float value) {
    return SetString(section, key, TextOf(value));
}
