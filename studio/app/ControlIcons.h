// The pictures of the audio controls' tools.
#pragma once

#include "core/DrawShape.h"

namespace Studio {

/// Draws the picture of a control's tool on a field of 24 by 24, in lines of `color` and areas of `fill`;
/// nothing for other kinds.
void DrawControlIcon(Gdiplus::Graphics& g, Lumo::DrawShape kind, Gdiplus::Color color,
                     const Gdiplus::Brush& fill);

}  // namespace Studio
