// The class library without windows: objects, strings, exceptions, files and archives.
#pragma once

#include <afxver_.h>

#include <windows.h>
#include <tchar.h>

#include <afxdiag_.h>
#include <afxobj_.h>
#include <afxstr.h>
#include <afxexcept_.h>
#include <afxfile_.h>
#include <afxarch_.h>
