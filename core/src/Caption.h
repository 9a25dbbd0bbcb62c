// Where the caption of an object stands, and how it gets there.
#pragma once

#include "appearance/UIShapeFormat.h"

namespace Lumo {

// An area that is sure to hold the caption of an object at `position`, found without measuring the text.
Gdiplus::RectF CaptionBounds(const CUIShapeFormatText& text, const Gdiplus::RectF& position);

// Paints the text centred in `position`; nothing when it is wider than that.
void DrawCaption(Gdiplus::Graphics& graphics, const CUIShapeFormatText& text, const Gdiplus::RectF& position);

}  // namespace Lumo
