// The system's cursors.
#pragma once

#include "core/Platform.h"

#include <map>

namespace Lumo {

// A cursor of the system by its IDC_ name; shared, never destroyed. Remembered, since asking for it on every
// mouse move costs more than the hit test it answers.
inline HCURSOR SystemCursor(LPCTSTR name) {
    static std::map<LPCTSTR, HCURSOR> cursors;
    HCURSOR& cursor = cursors[name];
    if (!cursor)
        cursor = ::LoadCursor(nullptr, name);
    return cursor;
}

}  // namespace Lumo
