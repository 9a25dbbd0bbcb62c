// Checks that leaving out what an update does not touch changes no pixel of the update.
#pragma once

#include <gtest/gtest.h>

#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "support/Surface.h"

/// Draws the whole surface once, then each of its squares of `step` pixels alone, and compares the pixels.
template <class Draw>
void ExpectSamePixelsInEveryUpdate(int width, int height, int step, Draw draw) {
    Surface whole(width, height);
    draw(whole);
    for (int top = 0; top < height; top += step)
        for (int left = 0; left < width; left += step) {
            Surface part(width, height);
            const CRect update(left, top, left + step, top + step);
            const Lumo::PaintScope scope(part.graphics(), Lumo::RectGdiFromAtl(update));
            draw(part);
            for (int y = update.top; y < update.bottom; ++y)
                for (int x = update.left; x < update.right; ++x)
                    ASSERT_EQ(part.At(x, y), whole.At(x, y)) << x << ", " << y;
        }
}
