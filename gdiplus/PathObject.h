// Paths that callers hold: points with their types as they were given.
#pragma once

#include "gdiplus/MatrixObject.h"
#include "raster/Path.h"
#include "raster/Rasterizer.h"

#include <vector>

namespace flat {

/// Points and types of a path, and what can be done to them without knowing who draws it.
struct PathObject final : Object {
    static constexpr Kind kFirst = Kind::Path, kLast = Kind::Path;

    std::vector<PointF> points;
    std::vector<BYTE> types;
    GpFillMode fillMode = FillModeAlternate;
    bool starts = true;  // the next point begins a figure

    void Clear();
    /// Joined to the open figure by a line, or the beginning of one.
    void Begin(raster::Point at);
    void Line(raster::Point to) { Add(to, PathPointTypeLine); }
    void Curve(raster::Point control1, raster::Point control2, raster::Point end);
    void Close();

    /// A beginning and three points for each curve; another number of points is refused.
    void Curves(const std::vector<raster::Point>& points);
    void Polygon(const std::vector<raster::Point>& corners);
    void Rectangle(const raster::Rect& rect);
    void Ellipse(const raster::Rect& bounds);
    /// In degrees. A sweep beyond a turn is a turn.
    void Arc(const raster::Rect& bounds, double start, double sweep);
    void Pie(const raster::Rect& bounds, double start, double sweep);
    /// Curves through points `first` to `first` + `segments` of all, whose neighbours give the directions.
    void Spline(const std::vector<raster::Point>& through, size_t first, size_t segments, double tension);
    void ClosedSpline(const std::vector<raster::Point>& through, double tension);
    /// Joins the other path's first figure to the open one when `connect` is set.
    void Append(const PathObject& other, bool connect);
    void Append(const raster::Path& other);
    /// In place of what is there, lines.
    void Assign(const raster::Chains& chains);

    void Transform(const raster::Matrix& matrix);
    raster::Path Outline() const;
    raster::FillRule Rule() const {
        return fillMode == FillModeWinding ? raster::FillRule::Winding : raster::FillRule::Alternate;
    }

private:
    void Add(raster::Point at, BYTE type);
};

/// Whether a point lies inside chains, open ones closed by a line.
bool Contains(const raster::Chains& chains, raster::Point point, raster::FillRule rule);

}  // namespace flat
