#include "behaviour/src/EllipseHit.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <type_traits>

#include "core/Geometry.h"

namespace Lumo {
namespace {

struct RegionDeleter {
    void operator()(HRGN region) const { ::DeleteObject(region); }
};
using RegionHandle = std::unique_ptr<std::remove_pointer_t<HRGN>, RegionDeleter>;

// The whole units that a region is made of, where nothing is NaN any more. A position whose handle was
// dragged across the opposite edge has a negative size; a region has none.
CRect WholeUnits(const Gdiplus::RectF& rect) {
    CRect whole = RectAtlFromGdi(rect);
    whole.NormalizeRect();
    return whole;
}

// A region takes memory for every line of the ellipse.
constexpr float kLargestRegion = 32768.0f;

// How far the centre of the ellipse lies from the nearest point of a rectangle, the ellipse's edge being
// at 1.
float NearestPart(const Gdiplus::RectF& asked, const Gdiplus::RectF& ellipse) {
    const Gdiplus::PointF centre = CentreOf(ellipse);
    const float x = centre.X - (std::min)((std::max)(centre.X, asked.X), asked.GetRight());
    const float y = centre.Y - (std::min)((std::max)(centre.Y, asked.Y), asked.GetBottom());
    return std::hypot(x / (ellipse.Width * 0.5f), y / (ellipse.Height * 0.5f));
}

bool Overlap(const CRect& a, const CRect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

}  // namespace

int HitEllipse(Gdiplus::RectF& rect, Gdiplus::RectF position, float lineWidth) {
    const float margin = lineWidth * 0.5f + 1.0f;
    rect.Inflate(margin, margin);
    const CRect asked = WholeUnits(rect);
    const CRect bounds = WholeUnits(position);
    if (!Overlap(asked, bounds))
        return 0;
    const Gdiplus::RectF area = RectGdiFromAtl(bounds);
    if ((std::max)(area.Width, area.Height) > kLargestRegion)
        return NearestPart(RectGdiFromAtl(asked), area) <= 1.0f;
    const RegionHandle ellipse(::CreateEllipticRgn(bounds.left, bounds.top, bounds.right, bounds.bottom));
    return ellipse && ::RectInRegion(ellipse.get(), &asked);
}

}  // namespace Lumo
