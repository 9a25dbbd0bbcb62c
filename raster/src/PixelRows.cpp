#include "PixelRows.h"

#include "raster/Paint.h"

#include <array>
#include <cstring>

namespace raster {

namespace {

// Divisions by an alpha as products: exact for what channels can be.
constexpr std::array<uint64_t, 256> MakeReciprocals() {
    std::array<uint64_t, 256> reciprocals{};
    for (uint64_t alpha = 1; alpha < 256; ++alpha)
        reciprocals[alpha] = (uint64_t{1} << 32) / alpha + 1;
    return reciprocals;
}
constexpr std::array<uint64_t, 256> kReciprocals = MakeReciprocals();

Color Plain(Color color) {
    const uint32_t alpha = color >> 24;
    if (alpha == 255 || alpha == 0)
        return alpha == 0 ? 0 : color;
    const auto channel = [alpha](uint32_t value) {
        const uint64_t part = (value * 255 + alpha / 2) * kReciprocals[alpha] >> 32;
        return static_cast<uint32_t>(std::min<uint64_t>(part, 255));
    };
    return alpha << 24 | channel(color >> 16 & 255) << 16 | channel(color >> 8 & 255) << 8 |
           channel(color & 255);
}

}  // namespace

void LoadPixels(const Surface& surface, int x, int y, int count, uint32_t* to) {
    const uint8_t* from = surface.At(x, y);
    if (surface.format == Format::Opaque24) {
        for (int i = 0; i < count; ++i, from += 3)
            to[i] = 0xFF000000 | from[2] << 16 | from[1] << 8 | from[0];
        return;
    }
    std::memcpy(to, from, static_cast<size_t>(count) * 4);
    if (surface.format == Format::Opaque32) {
        for (int i = 0; i < count; ++i)
            to[i] |= 0xFF000000;
    } else if (surface.format == Format::Plain32) {
        for (int i = 0; i < count; ++i) {
            if (to[i] >> 24 != 255)
                to[i] = Premultiply(to[i]);
        }
    }
}

void StorePixels(const Surface& surface, int x, int y, int count, const uint32_t* from,
                 const uint8_t* coverage) {
    const bool plain = surface.format == Format::Plain32;
    const int step = surface.format == Format::Opaque24 ? 3 : 4;
    uint8_t* to = surface.At(x, y);
    for (int i = 0; i < count; ++i, to += step) {
        // What was not covered keeps its colour, even under an alpha of 0.
        if (coverage && coverage[i] == 0)
            continue;
        const Color color = plain ? Plain(from[i]) : from[i];
        to[0] = static_cast<uint8_t>(color);
        to[1] = static_cast<uint8_t>(color >> 8);
        to[2] = static_cast<uint8_t>(color >> 16);
        if (plain)
            to[3] = static_cast<uint8_t>(color >> 24);
    }
}

Color ReadPixel(const Surface& surface, int x, int y) {
    Color color = 0;
    LoadPixels(surface, x, y, 1, &color);
    return color;
}

}  // namespace raster
