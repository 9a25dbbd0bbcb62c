// The client point that mouse messages carry in their last parameter.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// x from the low and y from the high 16 bits. Both unsigned: a captured mouse left of the window is far to
/// the right.
inline CPoint UnpackPoint(LPARAM packed) {
    return {LOWORD(packed), HIWORD(packed)};
}

}  // namespace Lumo
