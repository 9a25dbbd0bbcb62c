#include "core/Geometry.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <numbers>

namespace Lumo {

namespace {

struct Turn {
    double cosine;
    double sine;
};

// Quarter turns are spelled out: cos and sin of their angles in radians are not exactly 0 or 1.
Turn TurnOf(float angle) {
    const double degrees = std::fmod(angle, 360.0);
    if (degrees == 0.0)
        return {1.0, 0.0};
    if (degrees == 90.0 || degrees == -270.0)
        return {0.0, 1.0};
    if (degrees == 180.0 || degrees == -180.0)
        return {-1.0, 0.0};
    if (degrees == 270.0 || degrees == -90.0)
        return {0.0, -1.0};
    const double radians = degrees * std::numbers::pi / 180.0;
    return {std::cos(radians), std::sin(radians)};
}

}  // namespace

int TruncToInt(float value) {
    if (std::isnan(value))
        return 0;
    if (value >= 2147483648.0f)
        return INT_MAX;
    if (value <= -2147483648.0f)
        return INT_MIN;
    return static_cast<int>(value);
}

int RoundToInt(float value) {
    // In double, since adding a half can round up in float: 0.49999997f + 0.5f is 1.
    const double rounded = value > 0.0f ? value + 0.5 : value - 0.5;
    if (std::isnan(rounded))
        return 0;
    return static_cast<int>(std::clamp(rounded, -2147483648.0, 2147483647.0));
}

CPoint PointAtlFromGdi(const Gdiplus::PointF& point) {
    return CPoint(RoundToInt(point.X), RoundToInt(point.Y));
}

Gdiplus::PointF PointGdiFromAtl(const CPoint& point) {
    return {static_cast<float>(point.x), static_cast<float>(point.y)};
}

CRect RectAtlFromGdi(const Gdiplus::RectF& rect) {
    return CRect(RoundToInt(rect.X), RoundToInt(rect.Y), RoundToInt(rect.X + rect.Width),
                 RoundToInt(rect.Y + rect.Height));
}

Gdiplus::RectF RectGdiFromAtl(const CRect& rect) {
    const auto difference = [](LONG far_, LONG near_) {
        return static_cast<float>(static_cast<LONGLONG>(far_) - near_);
    };
    return {static_cast<float>(rect.left), static_cast<float>(rect.top), difference(rect.right, rect.left),
            difference(rect.bottom, rect.top)};
}

Gdiplus::RectF RotatedBounds(float angle, const Gdiplus::RectF& rect, const Gdiplus::PointF& centre) {
    if (!std::isfinite(angle))
        return rect;
    const Turn turn = TurnOf(angle);
    const double left = static_cast<double>(rect.X) - centre.X;
    const double top = static_cast<double>(rect.Y) - centre.Y;
    const double right = left + rect.Width;
    const double bottom = top + rect.Height;
    const auto x = [&](double cornerX, double cornerY) {
        return centre.X + cornerX * turn.cosine - cornerY * turn.sine;
    };
    const auto y = [&](double cornerX, double cornerY) {
        return centre.Y + cornerX * turn.sine + cornerY * turn.cosine;
    };
    const auto [minX, maxX] = std::minmax({x(left, top), x(right, top), x(right, bottom), x(left, bottom)});
    const auto [minY, maxY] = std::minmax({y(left, top), y(right, top), y(right, bottom), y(left, bottom)});
    return {static_cast<float>(minX), static_cast<float>(minY), static_cast<float>(maxX - minX),
            static_cast<float>(maxY - minY)};
}

}  // namespace Lumo
