#include <afx.h>

BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine) {
    CString line;
    line.Format(L"Assertion failed: %hs, line %d\n", lpszFileName, nLine);
    ::OutputDebugStringW(line);
    ::DebugBreak();
    return TRUE;
}

void AFX_CDECL AfxTrace(LPCWSTR lpszFormat, ...) {
    // A fixed buffer: a trace must not fail for lack of memory.
    wchar_t line[1024];
    va_list args;
    va_start(args, lpszFormat);
    ::_vsnwprintf(line, ARRAYSIZE(line) - 1, lpszFormat, args);
    va_end(args);
    line[ARRAYSIZE(line) - 1] = 0;
    ::OutputDebugStringW(line);
}
