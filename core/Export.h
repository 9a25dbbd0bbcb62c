// Export macro of the library's DLL, which defines TESSEL_BUILD while it is built. Empty where there are no
// DLLs.
#pragma once

/// Stands before every exported class, function and variable. The class library's macro for extension DLLs
/// would not do: it stands for the DLL that is being built, so a host's extension DLL would export the
/// library's classes too.
#ifndef _WIN32
#define TESSEL_API
#elif defined TESSEL_BUILD
#define TESSEL_API __declspec(dllexport)
#else
#define TESSEL_API __declspec(dllimport)
#endif
