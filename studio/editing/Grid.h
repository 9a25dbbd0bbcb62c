// The grid of the pages: dots to look at, and places that gestures snap to.
#pragma once

#include "core/Platform.h"

namespace Studio {

/// One grid for all pages. Both switches are independent of each other.
struct Grid {
    bool shown = false;
    bool snapping = false;
    int step = 10;  ///< page units between two lines, at least 2

    /// The nearest crossing, or the point itself while snapping is off.
    CPoint Snap(CPoint at) const;
    /// `delta` changed so that `from` displaced by it lands on a crossing; as it is while snapping is off.
    Gdiplus::PointF SnapShift(const Gdiplus::PointF& from, const Gdiplus::PointF& delta) const;
};

/// The grid that is in force.
Grid& PageGrid();

}  // namespace Studio
