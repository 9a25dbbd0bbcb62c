// The standard hatch patterns.
#pragma once

#include <array>
#include <cstdint>

namespace raster {

/// How many there are. Their numbers are those of GDI+'s hatch styles.
inline constexpr int kHatchStyles = 53;

/// A pattern of 8 by 8 pixels: a byte for each row from the top, its highest bit is the left pixel.
struct HatchPattern {
    std::array<uint8_t, 8> rows;
    /// Pixels beside those of a line have a part of its colour.
    bool smooth = false;
};

/// The pattern of a style; of the first one when there is none of that number.
const HatchPattern& StandardHatch(int style);

}  // namespace raster
