// A menu of the device's values.
#pragma once

#include <afxwin.h>

namespace Studio {

/// Lets the user choose one of the names that the device knows, part by part, from a menu below `field`
/// (screen coordinates); with `fronts` also the front part that several names share. Empty when nothing was
/// chosen. The menu belongs to `owner` while it is open.
CString AskForValueName(CWnd& owner, const CRect& field, bool fronts);

}  // namespace Studio
