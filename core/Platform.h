// The platform headers in the one order in which they compile: the class library, then GDI+.
#pragma once

#include <afxwin.h>

#include <objidl.h>
#include <gdiplus.h>
