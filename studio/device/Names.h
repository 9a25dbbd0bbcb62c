// Names of the device's values and channels.
#pragma once

#include <afx.h>

namespace Studio {

/// A name with one or two numbers in it: "in%d.level", "xp.%d.%d.gain", "OUT %d".
CString Numbered(LPCWSTR format, int first, int second = 0);

}  // namespace Studio
