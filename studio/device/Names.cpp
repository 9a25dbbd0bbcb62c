#include "studio/device/Names.h"

namespace Studio {

CString Numbered(LPCWSTR format, int first, int second) {
    CString name;
    name.Format(format, first, second);
    return name;
}

}  // namespace Studio
