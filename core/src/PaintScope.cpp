#include "core/PaintScope.h"

#include "core/Geometry.h"

namespace Lumo {

namespace {

const PaintScope* s_pActive = nullptr;

}  // namespace

PaintScope::PaintScope(const Gdiplus::RectF& update)
    : m_pOuter(s_pActive),
      m_fLeft(update.X),
      m_fTop(update.Y),
      m_fRight(update.X + update.Width),
      m_fBottom(update.Y + update.Height) {
    s_pActive = this;
}

PaintScope::~PaintScope() {
    s_pActive = m_pOuter;
}

bool PaintScope::Misses(const Gdiplus::RectF& bounds) {
    const PaintScope* scope = s_pActive;
    if (!IsDrawable(bounds))
        return true;
    return scope != nullptr && (bounds.X > scope->m_fRight || bounds.X + bounds.Width < scope->m_fLeft ||
                                bounds.Y > scope->m_fBottom || bounds.Y + bounds.Height < scope->m_fTop);
}

}  // namespace Lumo
