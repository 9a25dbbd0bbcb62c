// What the current paint may touch, so that objects outside it cost next to nothing.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Limits painting to a rectangle while it lives. The canvas holds one for the length of a paint message;
/// every object's `Draw` asks `Misses` before its first GDI+ call. A nested scope replaces the outer one
/// until it ends. Outside any scope everything is drawn. User-interface thread only.
class TESSEL_API PaintScope {
public:
    /// Limits painting to `update` (page units) until this object goes out of scope.
    explicit PaintScope(const Gdiplus::RectF& update);
    ~PaintScope();

    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;

    /// True when a scope is active and `bounds` (page units, size not negative) does not touch it, and for
    /// bounds that are not `IsDrawable`.
    static bool Misses(const Gdiplus::RectF& bounds);

private:
    const PaintScope* m_pOuter;
    float m_fLeft;
    float m_fTop;
    float m_fRight;
    float m_fBottom;
};

}  // namespace Lumo
