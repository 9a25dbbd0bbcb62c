// Paths as sets of pixels.
#pragma once

#include "raster/Rasterizer.h"
#include "raster/Region.h"

namespace raster {

/// The pixels within `limits` that a path covers with sharp edges, once it is mapped by `matrix` and moved by
/// `offset` (half a pixel where (0, 0) is the middle of the first one).
Region ToRegion(const Path& path, const Matrix& matrix, FillRule rule, Point offset, const IntRect& limits);

}  // namespace raster
