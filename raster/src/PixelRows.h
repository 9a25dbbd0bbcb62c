// Pixels of every format as premultiplied ones, and back.
#pragma once

#include "raster/Surface.h"

namespace raster {

/// Reads `count` pixels from (x, y) on.
void LoadPixels(const Surface& surface, int x, int y, int count, uint32_t* to);

/// Writes them to a surface whose pixels are not premultiplied, as far as they are covered: `coverage` has a
/// value for each pixel, or is null when all are.
void StorePixels(const Surface& surface, int x, int y, int count, const uint32_t* from,
                 const uint8_t* coverage);

}  // namespace raster
