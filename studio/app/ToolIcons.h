// The pictures of the drawing tools.
#pragma once

#include "core/DrawShape.h"

namespace Studio {

/// Draws the picture of a tool into a square of `size` with the corner `x`, `y`, in lines of `color` (ARGB).
void DrawToolIcon(Gdiplus::Graphics& g, Lumo::DrawShape kind, float x, float y, float size, DWORD color);

}  // namespace Studio
