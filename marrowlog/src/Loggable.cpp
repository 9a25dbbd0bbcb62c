#include <Loggable.h>

#include <exception>
#include <string>

namespace {

CString Stamp(int level) {
    SYSTEMTIME now;
    ::GetLocalTime(&now);
    CString stamp;
    stamp.Format(L"%04d-%02d-%02d %02d:%02d:%02d.%03d [%d] ", int(now.wYear), int(now.wMonth), int(now.wDay),
                 int(now.wHour), int(now.wMinute), int(now.wSecond), int(now.wMilliseconds), level);
    return stamp;
}

CString LogFile() {
    CString path;
    const DWORD room = ::GetEnvironmentVariableW(L"MARROWLOG_FILE", nullptr, 0);
    if (room > 0)
        ::GetEnvironmentVariableW(L"MARROWLOG_FILE", path.GetBuffer(int(room)), room);
    path.ReleaseBuffer();
    return path;
}

std::string Utf8(const CString& text) {
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), nullptr, 0, nullptr, nullptr);
    std::string bytes(size_t(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), bytes.data(), size, nullptr, nullptr);
    return bytes;
}

// Needs no destruction: lines may come until the very end of the process.
SRWLOCK fileLock = SRWLOCK_INIT;

struct FileTurn {
    FileTurn() { ::AcquireSRWLockExclusive(&fileLock); }
    ~FileTurn() { ::ReleaseSRWLockExclusive(&fileLock); }
};

// Threads take turns, for not every file system finds the end of a file and writes there in one step. One
// write with append access per line keeps the lines of several programs apart where it does.
void AppendToFile(const CString& path, const std::string& line) {
    const FileTurn turn;
    const HANDLE file =
        ::CreateFileW(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    DWORD written;
    ::WriteFile(file, line.data(), DWORD(line.size()), &written, nullptr);
    ::CloseHandle(file);
}

void AddLine(int level, LPCWSTR format, va_list args) {
    CString line;
    line.FormatV(format ? format : L"", args);
    line = Stamp(level) + line + L"\r\n";
    ::OutputDebugStringW(line);
    if (const CString path = LogFile(); !path.IsEmpty())
        AppendToFile(path, Utf8(line));
}

}  // namespace

void CLoggable::AddLogLineV(int level, int, LPCWSTR format, va_list args) noexcept {
    // A log call stands in places that handle another failure: it must not add one.
    const DWORD lastError = ::GetLastError();
    try {
        AddLine(level, format, args);
    } catch (CException* e) {
        e->Delete();
    } catch (const std::exception&) {
    }
    ::SetLastError(lastError);
}

void CLoggable::AddLogLine(int level, int reserved, LPCWSTR format, ...) noexcept {
    va_list args;
    va_start(args, format);
    AddLogLineV(level, reserved, format, args);
    va_end(args);
}
