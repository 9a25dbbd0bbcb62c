// What the current paint may touch, so that objects outside it cost next to nothing.
#pragma once

#include <optional>

#include "core/Platform.h"

namespace Lumo {

/// Limits what is painted through one `Graphics` to a rectangle while it lives. The canvas holds one for the
/// length of a paint message; every object's `Draw` asks `Misses` before its first GDI+ call.
///
/// A scope answers for its own `Graphics` only, and only while nothing but a shift lies between the transform
/// that the `Graphics` has now and the one that it had when the scope began. Through another `Graphics`, or
/// turned or scaled, everything is drawn: an owner may draw its objects where it likes. Of several scopes for
/// one `Graphics` the innermost answers. User-interface thread only.
class TESSEL_API PaintScope {
public:
    /// Limits painting through `graphics` to `update`, in the units that `graphics` has now. The scope ends
    /// before `graphics` does.
    PaintScope(const Gdiplus::Graphics& graphics, const Gdiplus::RectF& update);
    ~PaintScope();

    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;

    /// True when nothing in `bounds` (in the present units of `graphics`, size not negative) needs to be
    /// drawn: it does not touch what the scope limits painting to, or is not `IsDrawable`.
    static bool Misses(const Gdiplus::Graphics& graphics, const Gdiplus::RectF& bounds);

    /// What needs to be drawn through `graphics`, in its present units: everything that is `IsDrawable` when
    /// no scope answers. For callers that compare many places with it.
    static Gdiplus::RectF PartOf(const Gdiplus::Graphics& graphics);

private:
    std::optional<Gdiplus::PointF> Shift() const;

    const PaintScope* m_pOuter;
    const Gdiplus::Graphics& m_graphics;
    Gdiplus::RectF m_update;
    Gdiplus::Unit m_unit;
    float m_fScale;
    float m_fTransform[6] = {};
    mutable Gdiplus::Matrix m_present;  // where the present transform is read to
};

}  // namespace Lumo
