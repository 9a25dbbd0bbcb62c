// Points of the messages of run mode.
#pragma once

#include <afxwin.h>

namespace Studio {

/// How far a message's point lies from a point of the page. A message carries only the lower 16 bits of both
/// coordinates: that is enough as far as 32,767 units around any place of the page.
inline CSize Distance(CPoint message, CPoint from) {
    return {static_cast<short>(message.x - from.x), static_cast<short>(message.y - from.y)};
}

}  // namespace Studio
