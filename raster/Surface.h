// Pixels in memory.
#pragma once

#include "raster/Geometry.h"

#include <cstddef>
#include <cstdint>

namespace raster {

/// How a pixel is stored. In memory the order is blue, green, red and, with four bytes, alpha.
enum class Format {
    Premultiplied32,
    Plain32,
    /// The fourth byte means nothing; the pixels are opaque.
    Opaque32,
    Opaque24
};

/// A colour as 0xAARRGGBB, not premultiplied unless it is said.
using Color = uint32_t;

/// Pixels of somebody else, who keeps them as long as they are used.
struct Surface {
    uint8_t* pixels = nullptr;
    /// Bytes from a row to the one below; may be negative.
    ptrdiff_t stride = 0;
    int width = 0;
    int height = 0;
    Format format = Format::Premultiplied32;

    IntRect Bounds() const { return {0, 0, width, height}; }
    uint8_t* At(int x, int y) const {
        return &pixels[y * stride + ptrdiff_t{x} * (format == Format::Opaque24 ? 3 : 4)];
    }
};

/// `value` of 255 times `factor` of 255, rounded.
constexpr uint32_t Scale255(uint32_t value, uint32_t factor) {
    const uint32_t product = value * factor + 128;
    return (product + (product >> 8)) >> 8;
}

/// All channels of a premultiplied colour.
constexpr Color ScaleColor(Color color, uint32_t factor) {
    return Scale255(color >> 24, factor) << 24 | Scale255(color >> 16 & 255, factor) << 16 |
           Scale255(color >> 8 & 255, factor) << 8 | Scale255(color & 255, factor);
}

constexpr Color Premultiply(Color color) {
    return (color & 0xFF000000) | (ScaleColor(color, color >> 24) & 0x00FFFFFF);
}

constexpr Color Unpremultiply(Color color) {
    const uint32_t alpha = color >> 24;
    if (alpha == 0 || alpha == 255)
        return alpha == 0 ? 0 : color;
    const auto channel = [alpha](uint32_t value) {
        return std::min(255u, (value * 255 + alpha / 2) / alpha);
    };
    return alpha << 24 | channel(color >> 16 & 255) << 16 | channel(color >> 8 & 255) << 8 |
           channel(color & 255);
}

}  // namespace raster
