// The kinds that both factories of objects know.
#pragma once

#include "core/DrawShape.h"
#include "core/Platform.h"

namespace Lumo {

class CUIObject;

// A new rectangle, ellipse, text box, symbol or group of that kind at `rect`, null for every other kind. The
// caller owns it.
CUIObject* MakeAreaObject(DrawShape kind, const Gdiplus::RectF& rect);

}  // namespace Lumo
