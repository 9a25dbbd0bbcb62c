// The outline of an ellipse, wherever it lies.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Draws the outline of the ellipse in `bounds` (page units, a negative size means the same area) with `pen`
/// (not owned). Unlike `Graphics::DrawEllipse` it can be asked for ellipses that are very large or far away.
TESSEL_API void DrawEllipseOutline(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen,
                                   const Gdiplus::RectF& bounds);

}  // namespace Lumo
