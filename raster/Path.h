// Outlines of lines and cubic curves.
#pragma once

#include "raster/Geometry.h"
#include "raster/Matrix.h"

#include <cstdint>
#include <span>
#include <vector>

namespace raster {

/// What a point of a path is. A curve takes three points: two of control and its end.
enum class PointType : uint8_t { Start = 0, Line = 1, Curve = 3 };

/// A point of a path.
struct PathPoint {
    Point at;
    PointType type = PointType::Start;
    /// The figure ends here and goes back to its first point.
    bool closes = false;
};

/// Figures, each a chain of lines and curves, closed or open. Any numbers are taken; those that are not
/// finite are left out when the path is used.
class Path {
public:
    void Clear();
    bool Empty() const { return m_points.empty(); }
    std::span<const PathPoint> Points() const { return m_points; }

    /// The next point begins a figure; the one before stays open.
    void StartFigure() { m_open = false; }
    void MoveTo(Point at);
    /// Begins a figure at `at` when none is open; so does `CurveTo` with its first point.
    void LineTo(Point at);
    void CurveTo(Point control1, Point control2, Point end);
    /// Closes the open figure. Nothing happens when there is none.
    void Close();

    /// Figures of their own, closed.
    void AddRectangle(const Rect& rect);
    void AddEllipse(const Rect& bounds);
    void AddPie(const Rect& bounds, double start, double sweep);
    void AddPolygon(std::span<const Point> points);
    /// Goes on from the open figure with a line to the arc's start. Angles are degrees, clockwise from the x
    /// axis, and point from the centre to where the arc begins, whatever the shape of the ellipse. A sweep
    /// beyond a full turn is one turn.
    void AddArc(const Rect& bounds, double start, double sweep);

    /// The box around all points, those of control included; empty when there is none.
    Rect ControlBounds() const;
    void Transform(const Matrix& matrix);

private:
    void Add(Point at, PointType type);

    std::vector<PathPoint> m_points;
    bool m_open = false;
};

}  // namespace raster
