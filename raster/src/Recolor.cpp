#include "raster/Recolor.h"

namespace raster {

Color ColorEffects::Apply(Color color) const {
    const auto between = [&](int shift) {
        const Color channel = color >> shift & 255;
        return channel >= (key->first >> shift & 255) && channel <= (key->second >> shift & 255);
    };
    if (key && between(0) && between(8) && between(16))
        return 0;
    for (const auto& [from, to] : map) {
        if (color == from) {
            color = to;
            break;
        }
    }
    const bool gray = (color & 255) == (color >> 8 & 255) && (color & 255) == (color >> 16 & 255);
    if (gray && grayMatrix)
        color = raster::Apply(*grayMatrix, color);
    else if (matrix)
        color = raster::Apply(*matrix, color);
    const auto each = [&](auto change) {
        Color changed = color & 0xFF000000;
        for (int shift = 0; shift < 24; shift += 8)
            changed |= static_cast<Color>(std::lrint(change((color >> shift & 255) / 255.0) * 255)) << shift;
        color = changed;
    };
    if (threshold)
        each([this](double value) { return value > *threshold ? 1.0 : 0.0; });
    if (gamma > 0 && gamma != 1)
        each([this](double value) { return std::pow(value, gamma); });
    return color;
}

void ColorEffects::ApplyTo(std::span<uint32_t> pixels) const {
    // Pixels beside each other are often the same.
    Color from = 0, to = Premultiply(Apply(0));
    for (uint32_t& pixel : pixels) {
        if (pixel != from) {
            from = pixel;
            to = Premultiply(Apply(Unpremultiply(pixel)));
        }
        pixel = to;
    }
}

}  // namespace raster
