// Work with what was loaded: whatever its values are, nothing may go wrong.
#pragma once

#include "core/UIObject.h"

/// A small picture to draw on.
struct Canvas64 {
    Gdiplus::Bitmap bitmap{64, 64, PixelFormat32bppPARGB};
    Gdiplus::Graphics graphics{&bitmap};
};

/// Draws the object, hits it, moves and turns it.
void Exercise(Lumo::CUIObject& object);
