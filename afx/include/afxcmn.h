// The common controls of the class library: what is used of them stands in afxext.h (status bar).
#pragma once

#include <afxwin.h>

#include <commctrl.h>
