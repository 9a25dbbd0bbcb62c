#include "core/EllipseOutline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/Geometry.h"
#include "core/GraphicsStateScope.h"

namespace Lumo {

namespace {

// Some versions of GDI+ halve a curve until its parts are straight, which in floats they never become when
// they are small and far from the origin: the stack ends first. Up to here that has not been seen.
constexpr float kNear = 1000.0f;
constexpr float kSmall = 1.0f;
constexpr float kLarge = 20000.0f;
constexpr int kCorners = 1440;

bool IsNear(const Gdiplus::RectF& bounds) {
    return std::max({std::fabs(bounds.X), std::fabs(bounds.Y), std::fabs(bounds.GetRight()),
                     std::fabs(bounds.GetBottom())}) <= kNear &&
           std::min(bounds.Width, bounds.Height) >= kSmall;
}

// So large that the corners cannot be told from a curve on any screen.
void DrawAsPolygon(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, const Gdiplus::RectF& bounds) {
    Gdiplus::PointF corners[kCorners];
    for (int i = 0; i < kCorners; ++i) {
        const float angle = static_cast<float>(i) * 2.0f * std::numbers::pi_v<float> / kCorners;
        corners[i] = CentreOf(bounds) + Gdiplus::PointF(std::cos(angle) * bounds.Width * 0.5f,
                                                        std::sin(angle) * bounds.Height * 0.5f);
    }
    graphics.DrawPolygon(&pen, corners, kCorners);
}

}  // namespace

void DrawEllipseOutline(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, const Gdiplus::RectF& bounds) {
    if (IsNear(bounds)) {
        graphics.DrawEllipse(&pen, bounds);
        return;
    }
    if (std::max(bounds.Width, bounds.Height) > kLarge) {
        DrawAsPolygon(graphics, pen, bounds);
        return;
    }
    // By whole units, so that the pixels are the same.
    const Gdiplus::PointF centre = CentreOf(bounds);
    const float x = std::floor(centre.X), y = std::floor(centre.Y);
    GraphicsStateScope state(graphics);
    graphics.TranslateTransform(x, y);
    graphics.DrawEllipse(&pen, Gdiplus::RectF(bounds.X - x, bounds.Y - y, bounds.Width, bounds.Height));
}

}  // namespace Lumo
