// Caption, outline and fill of rectangles and ellipses.
#pragma once

#include "appearance/UICoordinate.h"

namespace Lumo {

enum class ShapeKind { Rectangle, Ellipse };
enum class PaintStage { Normal, Dragged };

// Paints the caption, then the outline, then the fill, at the record's position. A dragged shape has no
// caption, an outline twice as wide, and is not filled in mode 1.
void PaintShape(Gdiplus::Graphics& graphics, const CUICoordinate& coordinate, ShapeKind kind,
                PaintStage stage);

}  // namespace Lumo
