// What Studio remembers from one run to the next, in the user's part of the registry.
#pragma once

#include <afxwin.h>

namespace Studio {

/// A remembered text, empty when there is none.
CString ReadSetting(LPCWSTR name);

/// Remembers a text. False when that fails.
bool WriteSetting(LPCWSTR name, const CString& text);

}  // namespace Studio
