// Export macro of the support library's DLL, which defines MARROWLOG_BUILD while it is built.
#pragma once

/// Stands before every exported class.
#ifdef MARROWLOG_BUILD
#define MARROWLOG_CLASS __declspec(dllexport)
#else
#define MARROWLOG_CLASS __declspec(dllimport)
#endif
