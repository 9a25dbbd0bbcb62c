// Pens that callers hold.
#pragma once

#include "gdiplus/Brush.h"
#include "raster/Stroker.h"

namespace flat {

struct PenObject final : Object {
    static constexpr Kind kFirst = Kind::Pen, kLast = Kind::Pen;

    std::unique_ptr<Brush> brush;
    REAL width = 1;
    GpUnit unit = UnitWorld;
    GpLineCap startCap = LineCapFlat, endCap = LineCapFlat;
    GpDashCap dashCap = DashCapFlat;
    GpLineJoin join = LineJoinMiter;
    REAL miterLimit = 10;
    GpPenAlignment alignment = PenAlignmentCenter;
    GpDashStyle dashStyle = DashStyleSolid;
    REAL dashOffset = 0;
    std::vector<REAL> dashes;  // of the custom style

    PenObject() = default;
    PenObject(const PenObject& other);
    /// For a line `lineWidth` wide.
    raster::Pen Line(double lineWidth) const;
};

}  // namespace flat
