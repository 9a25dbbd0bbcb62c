// The hit test that text boxes and buttons share.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Enlarges `rect` in place by half of `lineWidth` plus 1 on every side, rounds it and `position` to whole
/// units and tells whether it touches the ellipse inscribed in `position`. The answer is that of a GDI
/// region, which is not made for a rectangle beside the position, and is calculated for an ellipse of more
/// than 32768 units across.
int HitEllipse(Gdiplus::RectF& rect, Gdiplus::RectF position, float lineWidth);

}  // namespace Lumo
