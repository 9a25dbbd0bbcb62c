// The platform headers in the one order in which they compile, the class library, then GDI+; and the export
// macro.
#pragma once

#include <afxwin.h>

#include <objidl.h>
#include <gdiplus.h>

#include "core/Export.h"
