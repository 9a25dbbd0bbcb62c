#include "raster/Path.h"

#include <numbers>

namespace raster {

namespace {
constexpr double kPi = std::numbers::pi;

// The parameter of the ellipse where the ray of `degrees` from its centre meets it.
double Parameter(double degrees, double radiusX, double radiusY) {
    const double angle = degrees * kPi / 180;
    const double turns = std::round(angle / (2 * kPi));
    const double rest = angle - turns * 2 * kPi;
    return turns * 2 * kPi + std::atan2(radiusX * std::sin(rest), radiusY * std::cos(rest));
}
}  // namespace

void Path::Clear() {
    m_points.clear();
    m_open = false;
}

void Path::Add(Point at, PointType type) {
    m_points.push_back({at, type, false});
}

void Path::MoveTo(Point at) {
    Add(at, PointType::Start);
    m_open = true;
}

void Path::LineTo(Point at) {
    if (m_open)
        Add(at, PointType::Line);
    else
        MoveTo(at);
}

void Path::CurveTo(Point control1, Point control2, Point end) {
    if (!m_open)
        MoveTo(control1);
    Add(control1, PointType::Curve);
    Add(control2, PointType::Curve);
    Add(end, PointType::Curve);
}

void Path::Close() {
    if (m_open)
        m_points.back().closes = true;
    m_open = false;
}

void Path::AddRectangle(const Rect& rect) {
    const Point corners[] = {
        {rect.left, rect.top}, {rect.right, rect.top}, {rect.right, rect.bottom}, {rect.left, rect.bottom}};
    AddPolygon(corners);
}

void Path::AddPolygon(std::span<const Point> points) {
    StartFigure();
    for (const Point& point : points)
        LineTo(point);
    Close();
}

void Path::AddEllipse(const Rect& bounds) {
    StartFigure();
    AddArc(bounds, 0, 360);
    Close();
}

void Path::AddPie(const Rect& bounds, double start, double sweep) {
    StartFigure();
    MoveTo({(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2});
    AddArc(bounds, start, sweep);
    Close();
}

void Path::AddArc(const Rect& bounds, double start, double sweep) {
    const double radiusX = bounds.Width() / 2, radiusY = bounds.Height() / 2;
    const Point centre{(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
    if (!IsFinite(centre) || !IsFinite({radiusX, radiusY}) || !IsFinite({start, sweep}))
        return;
    start = std::fmod(start, 360);
    const bool whole = std::abs(sweep) >= 360;
    const double from = Parameter(start, radiusX, radiusY);
    const double turn =
        whole ? std::copysign(2 * kPi, sweep) : Parameter(start + sweep, radiusX, radiusY) - from;
    // A curve for each quarter keeps the radius to 3 parts in 10,000.
    const int pieces =
        whole ? 4 : std::max(1, static_cast<int>(std::ceil(std::abs(turn) / (kPi / 2) - 1e-9)));
    const double step = turn / pieces;
    const double reach = 4.0 / 3 * std::tan(step / 4);
    const auto at = [&](double angle, double tangent) {
        const double c = std::cos(angle), s = std::sin(angle);
        return Point{centre.x + radiusX * (c - tangent * s), centre.y + radiusY * (s + tangent * c)};
    };
    LineTo(at(from, 0));
    for (int i = 0; i < pieces; ++i) {
        const double a = from + i * step, b = from + (i + 1) * step;
        CurveTo(at(a, reach), at(b, -reach), at(b, 0));
    }
}

Rect Path::ControlBounds() const {
    Rect bounds;
    bool first = true;
    for (const PathPoint& point : m_points) {
        if (!IsFinite(point.at))
            continue;
        if (first)
            bounds = {point.at.x, point.at.y, point.at.x, point.at.y};
        first = false;
        bounds = {std::min(bounds.left, point.at.x), std::min(bounds.top, point.at.y),
                  std::max(bounds.right, point.at.x), std::max(bounds.bottom, point.at.y)};
    }
    return bounds;
}

void Path::Transform(const Matrix& matrix) {
    for (PathPoint& point : m_points)
        point.at = matrix.Map(point.at);
}

}  // namespace raster
