#include "gdiplus/PathObject.h"

#include <numbers>

namespace flat {

void PathObject::Clear() {
    points.clear();
    types.clear();
    fillMode = FillModeAlternate;
    starts = true;
}

void PathObject::Add(raster::Point at, BYTE type) {
    types.reserve(types.size() + 1);  // both or none
    points.push_back(FromPoint(at));
    types.push_back(starts ? BYTE{PathPointTypeStart} : type);
    starts = false;
}

void PathObject::Begin(raster::Point at) {
    // A line to where the figure is already would be none.
    if (!starts && points.back().X == static_cast<REAL>(at.x) && points.back().Y == static_cast<REAL>(at.y))
        return;
    Add(at, PathPointTypeLine);
}

void PathObject::Curve(raster::Point control1, raster::Point control2, raster::Point end) {
    Add(control1, PathPointTypeBezier);
    Add(control2, PathPointTypeBezier);
    Add(end, PathPointTypeBezier);
}

void PathObject::Curves(const std::vector<raster::Point>& points) {
    Require(points.size() % 3 == 1);
    Begin(points[0]);
    for (size_t i = 1; i < points.size(); i += 3)
        Curve(points[i], points[i + 1], points[i + 2]);
}

void PathObject::Close() {
    if (!types.empty())
        types.back() |= PathPointTypeCloseSubpath;
    starts = true;
}

void PathObject::Polygon(const std::vector<raster::Point>& corners) {
    starts = true;
    for (const raster::Point& corner : corners)
        Add(corner, PathPointTypeLine);
    Close();
}

void PathObject::Rectangle(const raster::Rect& rect) {
    Polygon(
        {{rect.left, rect.top}, {rect.right, rect.top}, {rect.right, rect.bottom}, {rect.left, rect.bottom}});
}

namespace {

// Where an ellipse is left by a ray from its centre, as the parameter of its two cosines.
double Parameter(double degrees, double radiusX, double radiusY) {
    const double angle = degrees * std::numbers::pi / 180, turns = std::round(angle / (2 * std::numbers::pi));
    return turns * 2 * std::numbers::pi + std::atan2(radiusX * std::sin(angle), radiusY * std::cos(angle));
}

}  // namespace

void PathObject::Arc(const raster::Rect& bounds, double start, double sweep) {
    const raster::Point centre{(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
    const double x = bounds.Width() / 2, y = bounds.Height() / 2;
    if (!std::isfinite(start) || !std::isfinite(sweep) || std::abs(start) > 1e9)
        return;
    sweep = (std::max)(-360.0, (std::min)(360.0, sweep));
    double from = Parameter(start, x, y), to = Parameter(start + sweep, x, y);
    // The round of atan2 may be one turn off where both ends are about half a turn from a whole one.
    const double wanted = sweep * std::numbers::pi / 180;
    while (to - from < wanted - std::numbers::pi)
        to += 2 * std::numbers::pi;
    while (to - from > wanted + std::numbers::pi)
        to -= 2 * std::numbers::pi;
    // Quarters from the start on; the last part is what is left.
    const double quarter = std::numbers::pi / 2, length = std::abs(to - from), sign = to < from ? -1 : 1;
    const int parts = (std::max)(1, static_cast<int>(std::ceil(length / quarter - 1e-6)));
    const auto at = [&](double t) {
        return raster::Point{centre.x + x * std::cos(t), centre.y + y * std::sin(t)};
    };
    const auto along = [&](double t, double reach) {
        return raster::Point{-x * std::sin(t) * reach, y * std::cos(t) * reach};
    };
    Begin(at(from));
    for (int i = 0; i < parts; ++i) {
        const double a = from + sign * quarter * i, b = i + 1 == parts ? to : a + sign * quarter;
        const double reach = 4.0 / 3 * std::tan((b - a) / 4);
        Curve(at(a) + along(a, reach), at(b) - along(b, reach), at(b));
    }
}

void PathObject::Ellipse(const raster::Rect& bounds) {
    starts = true;
    Arc(bounds, 0, 360);
    points.back() = points[points.size() - 13];
    Close();
}

void PathObject::Pie(const raster::Rect& bounds, double start, double sweep) {
    starts = true;
    Add({(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2}, PathPointTypeLine);
    Arc(bounds, start, sweep);
    Close();
}

void PathObject::Spline(const std::vector<raster::Point>& through, size_t first, size_t segments,
                        double tension) {
    const size_t count = through.size();
    const auto direction = [&](size_t i) {
        const raster::Point before = through[i == 0 ? 0 : i - 1], after = through[i + 1 == count ? i : i + 1];
        return (after - before) * (tension / 3);
    };
    Begin(through[first]);
    for (size_t i = first; i < first + segments; ++i)
        Curve(through[i] + direction(i), through[i + 1] - direction(i + 1), through[i + 1]);
}

void PathObject::ClosedSpline(const std::vector<raster::Point>& through, double tension) {
    const size_t count = through.size();
    const auto direction = [&](size_t i) {
        return (through[(i + 1) % count] - through[(i + count - 1) % count]) * (tension / 3);
    };
    starts = true;
    Begin(through[0]);
    for (size_t i = 0; i < count; ++i) {
        const size_t next = (i + 1) % count;
        Curve(through[i] + direction(i), through[next] - direction(next), through[next]);
    }
    Close();
}

void PathObject::Append(const PathObject& other, bool connect) {
    if (other.points.empty())
        return;
    const bool joined = connect && !starts && !points.empty();
    const size_t first = points.size();
    types.reserve(first + other.types.size());
    const std::vector<PointF> more = other.points;  // may be the same path
    const std::vector<BYTE> moreTypes = other.types;
    const bool startsThen = other.starts;
    points.insert(points.end(), more.begin(), more.end());
    types.insert(types.end(), moreTypes.begin(), moreTypes.end());
    if (joined)
        types[first] = static_cast<BYTE>((types[first] & ~PathPointTypePathTypeMask) | PathPointTypeLine);
    starts = startsThen;
}

void PathObject::Append(const raster::Path& other) {
    for (const raster::PathPoint& point : other.Points()) {
        if (point.type == raster::PointType::Start)
            starts = true;
        Add(point.at, static_cast<BYTE>(point.type));
        if (point.closes)
            Close();
    }
}

void PathObject::Assign(const raster::Chains& chains) {
    points.clear();
    types.clear();
    for (const raster::Chains::Chain& chain : chains.chains) {
        starts = true;
        for (const raster::Chains::Vertex& vertex : chains.Of(chain))
            Add(vertex.at, PathPointTypeLine);
        if (chain.closed && chain.count > 0)
            Close();
    }
}

void PathObject::Transform(const raster::Matrix& matrix) {
    for (PointF& point : points)
        point = FromPoint(matrix.Map(ToPoint(point)));
}

raster::Path PathObject::Outline() const {
    raster::Path path;
    for (size_t i = 0; i < points.size(); ++i) {
        const BYTE type = types[i] & PathPointTypePathTypeMask;
        if (type == PathPointTypeStart) {
            path.MoveTo(ToPoint(points[i]));
        } else if (type == PathPointTypeBezier && i + 2 < points.size()) {
            path.CurveTo(ToPoint(points[i]), ToPoint(points[i + 1]), ToPoint(points[i + 2]));
            i += 2;
        } else {
            path.LineTo(ToPoint(points[i]));
        }
        if (types[i] & PathPointTypeCloseSubpath)
            path.Close();
    }
    return path;
}

bool Contains(const raster::Chains& chains, raster::Point point, raster::FillRule rule) {
    int winding = 0;
    for (const raster::Chains::Chain& chain : chains.chains) {
        const auto vertices = chains.Of(chain);
        for (size_t i = 0; i < vertices.size(); ++i) {
            const raster::Point a = vertices[i].at, b = vertices[i + 1 == vertices.size() ? 0 : i + 1].at;
            if ((a.y <= point.y) == (b.y <= point.y))
                continue;
            const double side = Cross(b - a, point - a) * (b.y > a.y ? 1 : -1);
            // The edge is at the left of the point, or goes through it.
            if (side <= 0)
                winding += b.y > a.y ? 1 : -1;
        }
    }
    return rule == raster::FillRule::Winding ? winding != 0 : winding % 2 != 0;
}

}  // namespace flat
