// The caption of an object.
#pragma once

#include "appearance/UICoordinate.h"

namespace Lumo {

// Whether the record has a text that is to be painted.
bool HasCaption(const CUICoordinate& coordinate);

// Paints that text, which there is, centred in the record's position; nothing when it is wider than that, or
// when no part of it can be in `part`.
void DrawCaption(Gdiplus::Graphics& graphics, const CUICoordinate& coordinate, const Gdiplus::RectF& part);

}  // namespace Lumo
