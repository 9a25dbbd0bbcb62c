// Points and rectangles.
#pragma once

#include <algorithm>
#include <cmath>

namespace raster {

/// A point or a vector. Double, so that squares of the largest float neither overflow nor lose a pixel.
struct Point {
    double x = 0;
    double y = 0;

    friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
    friend Point operator*(Point a, double factor) { return {a.x * factor, a.y * factor}; }
    friend bool operator==(Point a, Point b) { return a.x == b.x && a.y == b.y; }
};

inline double Dot(Point a, Point b) {
    return a.x * b.x + a.y * b.y;
}
/// Positive when `b` is to the right of `a` on a surface, whose y grows downwards.
inline double Cross(Point a, Point b) {
    return a.x * b.y - a.y * b.x;
}
inline double Length(Point a) {
    return std::sqrt(Dot(a, a));
}
inline bool IsFinite(Point a) {
    return std::isfinite(a.x) && std::isfinite(a.y);
}

/// A rectangle with edges anywhere. Empty unless left < right and top < bottom.
struct Rect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
    bool Empty() const { return !(left < right && top < bottom); }
};

/// A rectangle of whole pixels; right and bottom lie outside. Empty unless left < right and top < bottom.
struct IntRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool Empty() const { return left >= right || top >= bottom; }
    bool Contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
    friend bool operator==(const IntRect& a, const IntRect& b) {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
};

/// What both cover; all zero when that is nothing.
inline IntRect Intersect(const IntRect& a, const IntRect& b) {
    const IntRect both{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                       std::min(a.bottom, b.bottom)};
    return both.Empty() ? IntRect{} : both;
}

/// Pixels lie within this distance of the origin; what is asked for beyond it is cut off.
inline constexpr int kFarthestPixel = 1 << 20;

}  // namespace raster
