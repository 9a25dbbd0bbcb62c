#include "behaviour/src/EllipseHit.h"

#include <memory>
#include <type_traits>

#include "core/Geometry.h"

namespace Lumo {
namespace {

struct RegionDeleter {
    void operator()(HRGN region) const { ::DeleteObject(region); }
};
using RegionHandle = std::unique_ptr<std::remove_pointer_t<HRGN>, RegionDeleter>;

/// A position whose handle was dragged across the opposite edge has a negative size; a region has none.
CRect Normalized(CRect rect) {
    rect.NormalizeRect();
    return rect;
}

bool Overlap(const CRect& a, const CRect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

}  // namespace

int HitEllipse(Gdiplus::RectF& rect, Gdiplus::RectF position, float lineWidth) {
    const float margin = lineWidth * 0.5f + 1.0f;
    rect.Inflate(margin, margin);
    const CRect asked = Normalized(RectAtlFromGdi(rect));
    const CRect bounds = Normalized(RectAtlFromGdi(position));
    if (!Overlap(asked, bounds))
        return 0;
    const RegionHandle ellipse(::CreateEllipticRgn(bounds.left, bounds.top, bounds.right, bounds.bottom));
    return ellipse && ::RectInRegion(ellipse.get(), &asked);
}

}  // namespace Lumo
