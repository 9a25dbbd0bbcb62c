// CString under the header name that code without the rest of the class library includes.
#pragma once

#include <afxstr.h>
