#include "raster/Paint.h"

#include "Channels.h"

namespace raster {

namespace {

// Pixels between triangles belong to both.
constexpr double kSlack = 1e-6;
constexpr double kFar = 1e15;

double Blended(std::span<const BlendStop> blend, double depth) {
    if (blend.empty())
        return depth;
    size_t next = 0;
    while (next < blend.size() && blend[next].position <= depth)
        ++next;
    if (next == 0 || next == blend.size())
        return next == 0 ? blend.front().factor : blend.back().factor;
    const BlendStop &a = blend[next - 1], &b = blend[next];
    return a.factor + (b.factor - a.factor) * (depth - a.position) / (b.position - a.position);
}

std::vector<BlendStop> AtEqualDistances(std::span<const double> factors) {
    std::vector<BlendStop> blend;
    for (size_t i = 0; factors.size() > 1 && i < factors.size(); ++i)
        blend.push_back({static_cast<double>(i) / static_cast<double>(factors.size() - 1), factors[i]});
    return blend;
}

}  // namespace

PathGradient::PathGradient(std::span<const Point> outline, std::span<const Color> surround, Point centre,
                           Color center, std::span<const double> blend, const Matrix& matrix)
    : PathGradient(PathGradientShape{.outline = {outline.begin(), outline.end()},
                                     .surround = {surround.begin(), surround.end()},
                                     .centre = centre,
                                     .center = center,
                                     .colors = {},
                                     .blend = AtEqualDistances(blend)},
                   matrix) {}

PathGradient::PathGradient(const PathGradientShape& shape, const Matrix& matrix)
    : m_blend(shape.blend),
      m_center(raster::Channels(shape.center)),
      m_gamma(shape.gamma),
      m_wrap(shape.wrap) {
    const std::optional<Matrix> inverse = matrix.Inverse();
    if (!inverse || !IsFinite(shape.centre))
        return;
    m_inverse = *inverse;
    if (!shape.colors.empty()) {
        m_ramp.emplace_back(shape.colors, m_gamma);
    } else if (std::all_of(shape.surround.begin(), shape.surround.end(),
                           [&](Color color) { return color == shape.surround[0]; })) {
        const Color edge = shape.surround.empty() ? 0 : shape.surround[0];
        m_ramp.emplace_back(BlendStops(edge, shape.center, m_blend, m_gamma), m_gamma);
    }
    AddTriangles(shape);
    if (m_triangles.empty())
        return;
    m_box = {kFar, kFar, -kFar, -kFar};
    for (const Point& point : shape.outline) {
        if (IsFinite(point))
            m_box = {std::min(m_box.left, point.x), std::min(m_box.top, point.y),
                     std::max(m_box.right, point.x), std::max(m_box.bottom, point.y)};
    }
    m_nothing = m_box.Empty();
}

void PathGradient::AddTriangles(const PathGradientShape& shape) {
    const double scaleX = std::clamp(shape.focusX, 0.0, 1.0), scaleY = std::clamp(shape.focusY, 0.0, 1.0);
    const auto color = [&](size_t i) {
        return raster::Channels(
            shape.surround.empty() ? 0 : shape.surround[std::min(i, shape.surround.size() - 1)]);
    };
    const auto inner = [&](Point at) {
        const Point way = at - shape.centre;
        return shape.centre + Point{way.x * scaleX, way.y * scaleY};
    };
    for (size_t i = 0; i < shape.outline.size(); ++i) {
        const size_t next = i + 1 < shape.outline.size() ? i + 1 : 0;
        const Point a = shape.outline[i], b = shape.outline[next];
        if (!IsFinite(a) || !IsFinite(b))
            continue;
        const Corner first{a, 0, color(i)}, second{b, 0, color(next)};
        if (scaleX == scaleY) {
            const double depth = 1 / std::max(1 - scaleX, 1e-9);
            m_triangles.push_back({{Corner{shape.centre, depth, m_center}, first, second}, true});
            continue;
        }
        const Corner firstInner{inner(a), 1, first.color}, secondInner{inner(b), 1, second.color};
        m_triangles.push_back({{first, second, secondInner}, false});
        m_triangles.push_back({{first, secondInner, firstInner}, false});
        m_triangles.push_back({{Corner{shape.centre, 1, m_center}, firstInner, secondInner}, false});
    }
}

Color PathGradient::Mixed(const Channels& edge, double depth) const {
    const double part = Blended(m_blend, depth);
    Channels mixed;
    for (int c = 0; c < 4; ++c) {
        if (m_gamma && c < 3) {
            const double from = Brightness(edge[c]);
            mixed[c] = FromBrightness(from + (Brightness(m_center[c]) - from) * part);
        } else {
            mixed[c] = edge[c] + (m_center[c] - edge[c]) * part;
        }
    }
    return Premultiply(FromChannels(mixed));
}

void PathGradient::Row(Point first, int count, uint32_t* out) const {
    std::fill_n(out, count, 0u);
    if (m_nothing)
        return;
    const Point start = m_inverse.Map(first), step{m_inverse.m11, m_inverse.m12};
    const Point end = start + step * count;
    if (!(std::max({std::abs(start.x), std::abs(start.y), std::abs(end.x), std::abs(end.y)}) < kFar))
        return;
    if (m_wrap == Wrap::Clamp) {
        Line(start, step, count, out);
        return;
    }
    // Tile by tile.
    const double width = m_box.Width(), height = m_box.Height();
    for (int i = 0; i < count;) {
        Point at = start + step * i, way = step;
        const double column = std::floor((at.x - m_box.left) / width);
        const double row = std::floor((at.y - m_box.top) / height);
        if (!(std::abs(column) < kFar && std::abs(row) < kFar))
            return;
        const Point origin{m_box.left + column * width, m_box.top + row * height};
        double pixels = count - i;
        if (way.x != 0)
            pixels = std::min(pixels, (origin.x + (way.x > 0 ? width : 0) - at.x) / way.x);
        if (way.y != 0)
            pixels = std::min(pixels, (origin.y + (way.y > 0 ? height : 0) - at.y) / way.y);
        const int length = static_cast<int>(std::clamp<double>(std::ceil(pixels), 1, count - i));
        at = at - origin;
        if ((m_wrap == Wrap::FlipX || m_wrap == Wrap::FlipXY) && std::fmod(column, 2) != 0) {
            at.x = width - at.x;
            way.x = -way.x;
        }
        if ((m_wrap == Wrap::FlipY || m_wrap == Wrap::FlipXY) && std::fmod(row, 2) != 0) {
            at.y = height - at.y;
            way.y = -way.y;
        }
        Line(at + Point{m_box.left, m_box.top}, way, length, out + i);
        i += length;
    }
}

// Pixels along a line through the gradient's own plane.
void PathGradient::Line(Point start, Point step, int count, uint32_t* out) const {
    const Point end = start + step * (count - 1);
    const auto [left, right] = std::minmax({start.x, end.x});
    const auto [top, bottom] = std::minmax({start.y, end.y});
    for (const Triangle& triangle : m_triangles) {
        const auto& [a, b, c] = triangle.corners;
        if (std::max({a.at.x, b.at.x, c.at.x}) < left || std::min({a.at.x, b.at.x, c.at.x}) > right ||
            std::max({a.at.y, b.at.y, c.at.y}) < top || std::min({a.at.y, b.at.y, c.at.y}) > bottom)
            continue;
        TriangleLine(triangle, start, step, count, out);
    }
}

void PathGradient::TriangleLine(const Triangle& triangle, Point start, Point step, int count,
                                uint32_t* out) const {
    const auto& [origin, first, second] = triangle.corners;
    const Point a = first.at - origin.at, b = second.at - origin.at;
    const double area = Cross(a, b);
    if (area == 0)
        return;
    // A point is origin + a * partA + b * partB; both change evenly along the line. Inside none is negative
    // and the sum at most 1.
    const double partA = Cross(start - origin.at, b) / area, stepA = Cross(step, b) / area;
    const double partB = Cross(a, start - origin.at) / area, stepB = Cross(a, step) / area;
    if (!IsFinite({partA, stepA}) || !IsFinite({partB, stepB}))
        return;
    double from = 0, to = count;
    const auto atLeast0 = [&](double value, double change) {
        if (change > 0)
            from = std::max(from, std::ceil(-value / change - kSlack));
        else if (change < 0)
            to = std::min(to, std::floor(-value / change + kSlack) + 1);
        else if (value < -kSlack)
            to = 0;
    };
    atLeast0(partA, stepA);
    atLeast0(partB, stepB);
    atLeast0(1 - partA - partB, -stepA - stepB);
    if (!(from < to))
        return;
    for (int i = static_cast<int>(from); i < to; ++i) {
        const double shareA = std::clamp(partA + stepA * i, 0.0, 1.0);
        const double shareB = std::clamp(partB + stepB * i, 0.0, 1.0);
        const double rest = std::max(0.0, 1 - shareA - shareB);
        const double depth =
            std::min(1.0, first.depth * shareA + second.depth * shareB + origin.depth * rest);
        if (!m_ramp.empty()) {
            out[i] = m_ramp[0].At(static_cast<uint32_t>(std::max(0.0, depth) * 4294967295.0));
            continue;
        }
        double mixA = shareA, mixB = shareB, mixOrigin = rest;
        if (triangle.fan) {
            mixB = shareA + shareB > 0 ? shareB / (shareA + shareB) : 0;
            mixA = 1 - mixB;
            mixOrigin = 0;
        }
        Channels edge;
        for (int c = 0; c < 4; ++c)
            edge[c] = first.color[c] * mixA + second.color[c] * mixB + origin.color[c] * mixOrigin;
        out[i] = Mixed(edge, depth);
    }
}

}  // namespace raster
