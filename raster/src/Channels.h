// Colours as numbers to reckon with.
#pragma once

#include "raster/Surface.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace raster {

/// Blue, green, red and alpha, of 255.
using Channels4 = std::array<double, 4>;

inline Channels4 Channels(Color color) {
    return {static_cast<double>(color & 255), static_cast<double>(color >> 8 & 255),
            static_cast<double>(color >> 16 & 255), static_cast<double>(color >> 24)};
}

inline Color FromChannels(const Channels4& channels) {
    const auto byte = [](double value) {
        return static_cast<uint32_t>(std::lrint(std::clamp(value, 0.0, 255.0)));
    };
    return byte(channels[3]) << 24 | byte(channels[2]) << 16 | byte(channels[1]) << 8 | byte(channels[0]);
}

/// The brightness of a channel of 255, and back.
inline double Brightness(double channel) {
    return std::pow(channel / 255, 2.2);
}
inline double FromBrightness(double brightness) {
    return std::pow(std::max(brightness, 0.0), 1 / 2.2) * 255;
}

}  // namespace raster
