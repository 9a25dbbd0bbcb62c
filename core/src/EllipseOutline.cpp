#include "core/EllipseOutline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/Geometry.h"

namespace Lumo {

namespace {

// Some versions of GDI+ halve a curve until its parts are straight, which in floats they never become when
// they are small and far from the origin: the stack ends first. Up to here that has not been seen.
constexpr float kNear = 2000.0f;
constexpr float kSmall = 1.0f;
constexpr int kFewestCorners = 36;
constexpr int kMostCorners = 1440;

bool IsNear(const Gdiplus::RectF& bounds) {
    return std::max({std::fabs(bounds.X), std::fabs(bounds.Y), std::fabs(bounds.GetRight()),
                     std::fabs(bounds.GetBottom())}) <= kNear &&
           std::min(bounds.Width, bounds.Height) >= kSmall;
}

// With so many corners that they cannot be told from the curve.
void DrawAsPolygon(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, const Gdiplus::RectF& bounds) {
    Gdiplus::PointF corners[kMostCorners];
    const float size = std::max(std::fabs(bounds.Width), std::fabs(bounds.Height));
    const int count = std::min(kMostCorners, kFewestCorners + TruncToInt(size));
    for (int i = 0; i < count; ++i) {
        const float angle =
            static_cast<float>(i) * 2.0f * std::numbers::pi_v<float> / static_cast<float>(count);
        corners[i] = CentreOf(bounds) + Gdiplus::PointF(std::cos(angle) * bounds.Width * 0.5f,
                                                        std::sin(angle) * bounds.Height * 0.5f);
    }
    graphics.DrawPolygon(&pen, corners, count);
}

}  // namespace

void DrawEllipseOutline(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, const Gdiplus::RectF& bounds) {
    if (IsNear(bounds))
        graphics.DrawEllipse(&pen, bounds);
    else
        DrawAsPolygon(graphics, pen, bounds);
}

}  // namespace Lumo
