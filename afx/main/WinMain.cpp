// The entry point of a program with a program object. Part of the program, not of the DLL.
#include <afxwin.h>

namespace {

/// The command line behind the program's name, which may be quoted.
LPTSTR ArgumentsOf(LPTSTR commandLine) {
    bool isQuoted = false;
    while (*commandLine && (isQuoted || (*commandLine != ' ' && *commandLine != '\t'))) {
        if (*commandLine == '"')
            isQuoted = !isQuoted;
        ++commandLine;
    }
    while (*commandLine == ' ' || *commandLine == '\t')
        ++commandLine;
    return commandLine;
}

}  // namespace

extern "C" int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previous, LPWSTR, int show) {
    return AfxWinMain(instance, previous, ArgumentsOf(::GetCommandLine()), show);
}

extern "C" int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR, int show) {
    return wWinMain(instance, previous, nullptr, show);
}
