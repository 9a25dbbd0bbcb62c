// What is done to the colours of a picture before it is drawn.
#pragma once

#include "raster/Paint.h"

#include <optional>
#include <utility>

namespace raster {

/// Changes of colours, one after the other as they stand here. All are of colours that are not premultiplied.
struct ColorEffects {
    /// Colours with every channel but alpha between those of both become transparent.
    std::optional<std::pair<Color, Color>> key;
    /// Colours and what takes their place.
    std::vector<std::pair<Color, Color>> map;
    std::optional<ColorMatrix> matrix;
    /// For colours whose red, green and blue are the same, in place of `matrix`.
    std::optional<ColorMatrix> grayMatrix;
    /// Channels but alpha above it (of 1) become full, others 0.
    std::optional<double> threshold;
    /// Channels but alpha, of 1, are raised to it. What is not above 0 is 1.
    double gamma = 1;

    bool Empty() const { return !key && map.empty() && !matrix && !grayMatrix && !threshold && gamma == 1; }
    Color Apply(Color color) const;
    /// The same to premultiplied pixels.
    void ApplyTo(std::span<uint32_t> pixels) const;
};

}  // namespace raster
