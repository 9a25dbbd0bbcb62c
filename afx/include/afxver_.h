// Export macros and calling conventions of the class library.
#pragma once

// Classes and functions of the class library's own DLL.
#ifdef TESSEL_AFX_BUILD
#define AFX_CLASS_EXPORT __declspec(dllexport)
#else
#define AFX_CLASS_EXPORT __declspec(dllimport)
#endif
#define AFX_API_EXPORT AFX_CLASS_EXPORT
#define AFX_DATA_EXPORT AFX_CLASS_EXPORT

// Classes, functions and data of an extension DLL, which defines _AFXEXT while it is built.
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif
#define AFX_EXT_API AFX_EXT_CLASS
#define AFX_EXT_DATA AFX_EXT_CLASS

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_MSG_CALL
#define afx_msg
