// CLoggable, the log.
#pragma once

#include <afx.h>

#include <MarrowLogExport.h>

#include <cstdarg>

/// Writes log lines to the debugger's output and, while the environment variable MARROWLOG_FILE names a file,
/// to the end of that file: UTF-8, one line each, `2024-05-31 13:45:06.789 [5] text`, in local time. May be
/// called from any thread; never fails: what cannot be written is left out.
class MARROWLOG_CLASS CLoggable {
public:
    /// Adds a line. `level` is written as it is; `reserved` is 0; `format` is printf's for the arguments that
    /// follow, with wide text for `%s`.
    static void AddLogLine(int level, int reserved, LPCWSTR format, ...) noexcept;

    /// The same, `level`, `reserved` and `format`, with the arguments `args` of a caller that is itself
    /// variadic.
    static void AddLogLineV(int level, int reserved, LPCWSTR format, va_list args) noexcept;
};
