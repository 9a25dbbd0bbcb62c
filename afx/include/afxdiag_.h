// Assertions and debug output; all but VERIFY's expression vanish unless _DEBUG is defined.
#pragma once

#include <afxver_.h>

#include <windows.h>

/// Reports a failed assertion to the debugger and breaks into it. Does not return a choice: always TRUE.
AFX_API_EXPORT BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);

/// Formats a line as CString::FormatV does and sends it to the debugger; cut at 1,023 characters.
AFX_API_EXPORT void AFX_CDECL AfxTrace(LPCWSTR lpszFormat, ...);

#ifdef _DEBUG
#define ASSERT(f) ((void)((f) || AfxAssertFailedLine(__FILE__, __LINE__)))
#define VERIFY(f) ASSERT(f)
#define TRACE ::AfxTrace
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define TRACE(...) ((void)0)
#endif
