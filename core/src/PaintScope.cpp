#include "core/PaintScope.h"

#include "core/Geometry.h"

#include <algorithm>

namespace Lumo {

namespace {

const PaintScope* s_pActive = nullptr;

}  // namespace

PaintScope::PaintScope(const Gdiplus::Graphics& graphics, const Gdiplus::RectF& update)
    : m_pOuter(s_pActive),
      m_graphics(graphics),
      m_update(update),
      m_unit(graphics.GetPageUnit()),
      m_fScale(graphics.GetPageScale()) {
    Gdiplus::Matrix transform;
    graphics.GetTransform(&transform);
    transform.GetElements(m_fTransform);
    s_pActive = this;
}

PaintScope::~PaintScope() {
    s_pActive = m_pOuter;
}

// Where the graphics have been moved to since the scope began, in page units; null when more than that was
// done to them.
std::optional<Gdiplus::PointF> PaintScope::Shift() const {
    if (m_graphics.GetTransform(&m_present) != Gdiplus::Ok || m_graphics.GetPageUnit() != m_unit ||
        m_graphics.GetPageScale() != m_fScale)
        return std::nullopt;
    float now[6];
    m_present.GetElements(now);
    const auto& [xx, xy, yx, yy, dx, dy] = m_fTransform;
    if (!std::equal(now, now + 4, m_fTransform))
        return std::nullopt;
    const float right = now[4] - dx;
    const float down = now[5] - dy;
    if (right == 0.0f && down == 0.0f)
        return Gdiplus::PointF();
    const float determinant = xx * yy - xy * yx;
    return Gdiplus::PointF((right * yy - down * yx) / determinant, (down * xx - right * xy) / determinant);
}

Gdiplus::RectF PaintScope::PartOf(const Gdiplus::Graphics& graphics) {
    const PaintScope* scope = s_pActive;
    while (scope != nullptr && &scope->m_graphics != &graphics)
        scope = scope->m_pOuter;
    const auto shift = scope != nullptr ? scope->Shift() : std::nullopt;
    if (!shift)
        return {-kFarthest, -kFarthest, 2 * kFarthest, 2 * kFarthest};
    Gdiplus::RectF part = scope->m_update;
    part.Offset(-shift->X, -shift->Y);
    return part;
}

bool PaintScope::Misses(const Gdiplus::Graphics& graphics, const Gdiplus::RectF& bounds) {
    return !IsDrawable(bounds) || !Touches(PartOf(graphics), bounds);
}

}  // namespace Lumo
