#include "core/EllipseOutline.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>

#include "core/Geometry.h"

namespace Lumo {

namespace {

// Some versions of GDI+ halve a curve until its parts are straight, which in floats they never become when
// they are small for how far they lie from the origin: the stack ends first. That has been seen beyond 2,900
// units, and within them with sides of less than a 5,000th of the distance.
constexpr float kNear = 2000.0f;
constexpr float kSmallestPart = 1.0f / 2000.0f;
constexpr int kFewestCorners = 36;
constexpr int kMostCorners = 1440;

bool IsNear(const Gdiplus::RectF& bounds) {
    const float farthest = (std::max)({std::fabs(bounds.X), std::fabs(bounds.Y), std::fabs(bounds.GetRight()),
                                       std::fabs(bounds.GetBottom())});
    return farthest <= kNear && (std::min)(bounds.Width, bounds.Height) >= farthest * kSmallestPart;
}

// With so many corners that they cannot be told from the curve.
void DrawAsPolygon(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, const Gdiplus::RectF& bounds) {
    Gdiplus::PointF corners[kMostCorners];
    const int count =
        (std::min)(kMostCorners, kFewestCorners + TruncToInt((std::max)(bounds.Width, bounds.Height)));
    for (int i = 0; i < count; ++i) {
        const float angle =
            static_cast<float>(i) * 2.0f * std::numbers::pi_v<float> / static_cast<float>(count);
        corners[i] = CentreOf(bounds) + Gdiplus::PointF(std::cos(angle) * bounds.Width * 0.5f,
                                                        std::sin(angle) * bounds.Height * 0.5f);
    }
    // The ends of a flat ellipse would become spikes.
    const std::unique_ptr<Gdiplus::Pen> round(pen.Clone());
    round->SetLineJoin(Gdiplus::LineJoinRound);
    graphics.DrawPolygon(round.get(), corners, count);
}

}  // namespace

void DrawEllipseOutline(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, const Gdiplus::RectF& bounds) {
    const Gdiplus::RectF area = Normalised(bounds);
    if (IsNear(area))
        graphics.DrawEllipse(&pen, area);
    else
        DrawAsPolygon(graphics, pen, area);
}

}  // namespace Lumo
