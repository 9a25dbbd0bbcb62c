#include "raster/Paint.h"

#include "raster/HatchPatterns.h"

#include "Channels.h"

namespace raster {

void SolidPaint::Row(Point, int count, uint32_t* out) const {
    std::fill_n(out, count, m_color);
}

Hatch::Hatch(const std::array<uint8_t, 8>& rows, Color fore, Color back, int originX, int originY) {
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x)
            m_colors[(y + originY) & 7][(x + originX) & 7] =
                Premultiply((rows[y] << x & 0x80) != 0 ? fore : back);
    }
}

Hatch::Hatch(int style, Color fore, Color back, int originX, int originY)
    : Hatch(StandardHatch(style).rows, fore, back, originX, originY) {
    if (!StandardHatch(style).smooth)
        return;
    // The thin diagonals: the line's pixels have 233 of 255 of its colour, those beside them 64.
    const Color line = Premultiply(Mix(back, fore, 233 / 255.0, false));
    const Color beside = Premultiply(Mix(back, fore, 64 / 255.0, false));
    for (int y = 0; y < 8; ++y) {
        const int bits = StandardHatch(style).rows[y];
        const int near = bits << 1 | bits >> 1 | bits << 7 | bits >> 7;
        for (int x = 0; x < 8; ++x) {
            Color& color = m_colors[(y + originY) & 7][(x + originX) & 7];
            if ((bits << x & 0x80) != 0)
                color = line;
            else if ((near << x & 0x80) != 0)
                color = beside;
        }
    }
}

void Hatch::Row(Point first, int count, uint32_t* out) const {
    const auto x = static_cast<unsigned>(static_cast<int>(std::floor(first.x)));
    const auto& row = m_colors[static_cast<int>(std::floor(first.y)) & 7];
    for (int i = 0; i < count; ++i)
        out[i] = row[(x + i) & 7];
}

Color Mix(Color from, Color to, double part, bool gamma) {
    const Channels4 first = Channels(from), second = Channels(to);
    Channels4 mixed;
    for (int i = 0; i < 4; ++i) {
        if (gamma && i < 3) {
            const double a = Brightness(first[i]), b = Brightness(second[i]);
            mixed[i] = FromBrightness(a + (b - a) * part);
        } else {
            mixed[i] = first[i] + (second[i] - first[i]) * part;
        }
    }
    return FromChannels(mixed);
}

Color Apply(const ColorMatrix& matrix, Color color) {
    const double from[5] = {static_cast<double>(color >> 16 & 255), static_cast<double>(color >> 8 & 255),
                            static_cast<double>(color & 255), static_cast<double>(color >> 24), 255};
    double to[4];
    for (int column = 0; column < 4; ++column) {
        to[column] = 0;
        for (int row = 0; row < 5; ++row)
            to[column] += from[row] * matrix[row][column];
        if (std::isnan(to[column]))
            to[column] = 0;
    }
    return FromChannels({to[2], to[1], to[0], to[3]});
}

}  // namespace raster
