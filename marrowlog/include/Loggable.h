// CLoggable, the log.
#pragma once

#include <afx.h>

#include <MarrowLogExport.h>

#include <cstdarg>
#include <type_traits>

/// Writes log lines to the debugger's output and, while the environment variable MARROWLOG_FILE names a file,
/// to the end of that file: UTF-8, one line each, `2024-05-31 13:45:06.789 [5] text`, in local time. May be
/// called from any thread; never fails: what cannot be written is left out.
class MARROWLOG_CLASS CLoggable {
public:
    /// Adds a line. `level` is written as it is; `reserved` is 0; `format` is printf's for `args`, with wide
    /// text for `%s`, for which a CString may be given as well.
    template <class... Args>
    static void AddLogLine(int level, int reserved, LPCWSTR format, Args... args) {
        AddArguments(level, reserved, format, Argument(args)...);
    }

    /// The same, `level`, `reserved` and `format`, with the arguments `args` of a caller that is itself
    /// variadic.
    static void AddLogLineV(int level, int reserved, LPCWSTR format, va_list args) noexcept;

private:
    // Only plain values can pass through `...`: a string goes as its character pointer.
    template <class T>
    static auto Argument(const T& arg) {
        if constexpr (std::is_class_v<T>)
            return static_cast<LPCWSTR>(arg);
        else
            return arg;
    }

    static void AddArguments(int level, int reserved, LPCWSTR format, ...) noexcept;
};
