#include "raster/HatchPatterns.h"
#include "raster/Recolor.h"
#include "raster/Truth.h"
#include "raster/src/Bilinear.h"

#include <bit>

#include <gtest/gtest.h>

namespace raster {

namespace {

int Distance(Color a, Color b) {
    int distance = 0;
    for (int shift = 0; shift < 32; shift += 8)
        distance = std::max(
            distance, std::abs(static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255)));
    return distance;
}

Color At(const Paint& paint, Point point) {
    uint32_t color = 0;
    paint.Row(point, 1, &color);
    return color;
}

// A picture of 7 by 5 whose pixels are all different.
class Picture {
public:
    explicit Picture(Format format = Format::Premultiplied32) {
        m_surface = {m_bytes, 7 * 4 + 4, 7, 5, format};
        Random random(1);
        for (uint8_t& byte : m_bytes)
            byte = static_cast<uint8_t>(random.Below(256));
        for (int y = 0; format == Format::Premultiplied32 && y < 5; ++y) {
            for (int x = 0; x < 7; ++x) {
                for (int c = 0; c < 3; ++c)
                    m_surface.At(x, y)[c] = std::min(m_surface.At(x, y)[c], m_surface.At(x, y)[3]);
            }
        }
    }
    const Surface& Get() const { return m_surface; }

    // The pixel of a repeated picture.
    Color At(int64_t x, int64_t y, Wrap wrap, Color outside) const {
        const auto fold = [](int64_t at, int size, bool flips) {
            for (; at < 0; at += 2 * size) {
            }
            at %= 2 * size;
            return static_cast<int>(at < size ? at : flips ? 2 * size - 1 - at : at - size);
        };
        if (wrap == Wrap::Clamp && (x < 0 || y < 0 || x >= 7 || y >= 5))
            return outside;
        return ReadPixel(m_surface, fold(x, 7, wrap == Wrap::FlipX || wrap == Wrap::FlipXY),
                         fold(y, 5, wrap == Wrap::FlipY || wrap == Wrap::FlipXY));
    }

private:
    alignas(4) uint8_t m_bytes[32 * 5] = {};
    Surface m_surface;
};

double Part(double t, int tap, Sampling sampling) {
    const double at = std::abs(tap - t);
    if (sampling == Sampling::Bilinear)
        return std::max(0.0, 1 - at);
    return at < 1   ? 1.5 * at * at * at - 2.5 * at * at + 1
           : at < 2 ? -0.5 * at * at * at + 2.5 * at * at - 4 * at + 2
                    : 0;
}

}  // namespace

TEST(HatchTest, StandardPatternsHaveTheSharesAndDirectionsOfTheirNames) {
    const auto bits = [](int style) {
        int count = 0;
        for (const uint8_t row : StandardHatch(style).rows)
            count += std::popcount(row);
        return count;
    };
    // The percentages, roughly: the darkest ones of the platform have more than they say.
    const int percent[] = {5, 10, 20, 25, 30, 40, 50, 60, 70, 75, 80, 90};
    for (int i = 0; i < 12; ++i)
        EXPECT_NEAR(bits(6 + i) / 0.64, percent[i], 14) << percent[i];
    for (int i = 0; i < 11; ++i)
        EXPECT_LT(bits(6 + i), bits(7 + i)) << i;
    for (int style = 0; style < kHatchStyles; ++style) {
        for (int other = 0; other < style; ++other)
            EXPECT_NE(StandardHatch(style).rows, StandardHatch(other).rows) << style << ", " << other;
    }
    // Upward diagonals are the downward ones in a mirror.
    for (const auto& [down, up] : {std::pair(2, 3), {18, 19}, {20, 21}, {22, 23}, {30, 31}}) {
        for (int y = 0; y < 8; ++y) {
            int mirrored = 0;
            for (int x = 0; x < 8; ++x)
                mirrored |= (StandardHatch(down).rows[y] >> x & 1) << (7 - x);
            bool found = false;
            for (int turn = 0; turn < 8; ++turn)
                found |= (mirrored << turn | mirrored >> (8 - turn)) % 256 == StandardHatch(up).rows[y];
            EXPECT_TRUE(found) << down << ", " << y;
        }
    }
    // Fixed to its origin, on negative places too; a thin diagonal has soft sides.
    const Hatch hatch(2, 0xFF000000, 0xFFFFFFFF, 3, 1);
    EXPECT_EQ(At(hatch, {3.5, 1.5}), At(hatch, {-4.5, 1.5}));
    EXPECT_EQ(At(hatch, {3.5, 1.5}) & 255, 255u - 233);
    EXPECT_EQ(At(hatch, {4.5, 1.5}) & 255, 255u - 64);
    EXPECT_EQ(At(hatch, {5.5, 1.5}), 0xFFFFFFFF);
    EXPECT_EQ(At(Hatch(999, 1, 2, 0, 0), {0, 0}), At(Hatch(0, 1, 2, 0, 0), {0, 0}));
}

TEST(LinearGradientTest, BlendsAndCorrectsBrightness) {
    const Color from = 0xFF204060, to = 0xFFE0C0FF;
    const BlendStop blend[] = {{0, 0}, {0.25, 0.8}, {1, 0.3}};
    for (const bool gamma : {false, true}) {
        const LinearGradient gradient({10, 0}, {210, 0}, {}, BlendStops(from, to, blend, gamma), Wrap::FlipX,
                                      gamma);
        for (int x = -180; x < 400; ++x) {
            double place = std::abs(x + 0.5 - 10) / 200;
            place = place > 1 ? 2 - place : place;
            const double factor = place < 0.25 ? place / 0.25 * 0.8 : 0.8 - (place - 0.25) / 0.75 * 0.5;
            const Color drawn = At(gradient, {x + 0.5, 3});
            for (int shift = 0; shift < 24; shift += 8) {
                const double a = from >> shift & 255, b = to >> shift & 255;
                double want = a + (b - a) * factor;
                if (gamma)
                    want =
                        std::pow(std::pow(a, 2.2) + (std::pow(b, 2.2) - std::pow(a, 2.2)) * factor, 1 / 2.2);
                ASSERT_NEAR(drawn >> shift & 255, want, 2) << gamma << ": " << x;
            }
        }
    }
    // Stops that are no use leave no trace but their colours.
    for (const double odd : {std::nan(""), 1e300, -1e300, 0.3, 1e-320}) {
        const GradientStop stops[] = {{0, from}, {odd, to}, {odd, from}, {0.3, to}, {0.2, from}};
        At(LinearGradient({0, 0}, {1, 0}, {}, stops, Wrap::Tile, true), {0.25, 0});
        At(LinearGradient({0, 0}, {1, 0}, {}, stops, Wrap::Tile, false), {0.25, 0});
    }
}

TEST(PathGradientTest, FollowsTheFormula) {
    const Matrix matrix{0.9, 0.2, -0.3, 1.1, 5, 3};
    PathGradientShape shape;
    shape.outline = {{0, 0}, {40, 0}, {40, 24}, {0, 24}};
    shape.surround = {0xFF204060, 0xFFFF8000, 0x40FF00FF, 0xFF00FF00};
    shape.centre = {17, 10};
    shape.center = 0xFFF0E0D0;
    shape.blend = {{0, 0.1}, {0.4, 0.3}, {1, 1}};
    for (const bool preset : {false, true}) {
        if (preset) {
            shape.colors = {{0, 0xFF000000}, {0.3, 0x80FF4020}, {1, 0xFF2040FF}};
            shape.focusX = shape.focusY = 0.25;
        }
        const PathGradient gradient(shape, matrix);
        Random random(4);
        for (int i = 0; i < 2000; ++i) {
            const Point at = random.Within({0, 0, 40, 24});
            // The edge that the ray from the centre meets, and where.
            const Point way = at - shape.centre;
            double reach = 0, side = 0;
            size_t edge = 0;
            for (size_t j = 0; j < 4; ++j) {
                const Point a = shape.outline[j] - shape.centre,
                            along = shape.outline[(j + 1) % 4] - shape.outline[j];
                const double on = Cross(way, along);
                const double share = Cross(a, way) / on;
                if (Cross(a, along) / on > 0 && share >= 0 && share < 1) {
                    reach = on / Cross(a, along);
                    side = share;
                    edge = j;
                }
            }
            double depth = std::min(1.0, (1 - reach) / (1 - shape.focusX));
            double want[4];
            const auto mix = [&](Color a, Color b, double part) {
                for (int c = 0; c < 4; ++c)
                    want[c] = (a >> (8 * c) & 255) * (1 - part) + (b >> (8 * c) & 255) * part;
            };
            if (preset) {
                const size_t stop = depth < 0.3 ? 0 : 1;
                const auto &from = shape.colors[stop], &to = shape.colors[stop + 1];
                mix(from.color, to.color, (depth - from.position) / (to.position - from.position));
            } else {
                depth = depth < 0.4 ? 0.1 + depth / 0.4 * 0.2 : 0.3 + (depth - 0.4) / 0.6 * 0.7;
                mix(shape.surround[edge], shape.surround[(edge + 1) % 4], side);
                for (int c = 0; c < 4; ++c)
                    want[c] += ((shape.center >> (8 * c) & 255) - want[c]) * depth;
            }
            const Color drawn = At(gradient, matrix.Map(at));
            for (int c = 0; c < 4; ++c)
                ASSERT_NEAR(drawn >> (8 * c) & 255, c == 3 ? want[3] : want[c] * want[3] / 255, 1.6)
                    << preset << ": " << at.x << ", " << at.y;
        }
    }
}

TEST(PathGradientTest, RepeatsItsBoxAndHasAFocusOfItsOwnShape) {
    PathGradientShape shape;
    shape.outline = {{2, 3}, {22, 3}, {22, 13}, {2, 13}};
    shape.surround = {0xFF000000};
    shape.centre = {12, 8};
    shape.center = 0xFFFFFFFF;
    shape.focusX = 0.5;
    // Inside from 7 to 17 across, at the one height of the centre.
    const PathGradient once(shape, {});
    EXPECT_LE(Distance(At(once, {7.1, 8}), 0xFFFFFFFF), 3);
    EXPECT_LE(Distance(At(once, {4.5, 8}), 0xFF808080), 2);
    EXPECT_LE(Distance(At(once, {12, 5.5}), 0xFF808080), 2);
    EXPECT_EQ(At(once, {23, 8}), 0u);
    shape.surround = {0xFF000000, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF};
    const PathGradient first(shape, Matrix::Rotation(0.3));
    for (const Wrap wrap : {Wrap::Tile, Wrap::FlipX, Wrap::FlipY, Wrap::FlipXY}) {
        shape.wrap = wrap;
        const PathGradient all(shape, Matrix::Rotation(0.3));
        const bool acrossFlips = wrap == Wrap::FlipX || wrap == Wrap::FlipXY;
        const bool downFlips = wrap == Wrap::FlipY || wrap == Wrap::FlipXY;
        Random random(6);
        for (int i = 0; i < 500; ++i) {
            const Point at = random.Within({2, 3, 22, 13});
            const int column = random.Below(5) - 2, row = random.Below(5) - 2;
            const Point there{acrossFlips && column % 2 != 0 ? 24 - at.x : at.x,
                              downFlips && row % 2 != 0 ? 16 - at.y : at.y};
            ASSERT_LE(Distance(At(all, Matrix::Rotation(0.3).Map(at + Point{column * 20.0, row * 10.0})),
                               At(first, Matrix::Rotation(0.3).Map(there))),
                      1)
                << i;
        }
    }
    // No gap where triangles meet, and none in rows of tiles smaller than a pixel.
    std::vector<uint32_t> out(300);
    PathGradient(shape, Matrix::Scaling(0.01, 0.01)).Row({-150.5, 3.5}, 300, out.data());
    EXPECT_EQ(std::count(out.begin(), out.end(), 0u), 0);
    PathGradient(shape, Matrix::Scaling(13, 13)).Row({26.5, 104}, 250, out.data());
    EXPECT_EQ(std::count(out.begin(), out.begin() + 250, 0u), 0);
}

TEST(TextureTest, SamplesAsTheFormulaSays) {
    const Color outside = 0xFF305070;
    Random random(9);
    for (int round = 0; round < 300; ++round) {
        const Picture picture(round % 2 == 0 ? Format::Premultiplied32 : Format::Plain32);
        const auto sampling = static_cast<Sampling>(round % 3);
        const auto wrap = static_cast<Wrap>(random.Below(5));
        Matrix matrix{random.Between(0.3, 5), 0, 0, random.Between(-3, 3), random.Between(-9, 9), 2};
        if (round % 5 == 0)
            matrix = matrix * Matrix::Rotation(0.4);
        if (round % 7 == 0)
            matrix = Matrix::Translation(round % 4 - 3, 2);
        const Matrix inverse = *matrix.Inverse();
        const Texture texture(picture.Get(), matrix, wrap, sampling, nullptr, outside);
        const Point first{random.Below(40) - 19.5, random.Below(9) - 4.5};
        std::vector<uint32_t> out(30);
        texture.Row(first, 30, out.data());
        const uint32_t* direct = texture.Pixels(first, 30);
        ASSERT_EQ(direct != nullptr, round % 7 == 0) << round;
        if (direct) {
            ASSERT_TRUE(std::equal(out.begin(), out.end(), direct)) << round;
        }
        for (int i = 0; i < 30; ++i) {
            const Point at = inverse.Map(first + Point{1.0 * i, 0});
            if (sampling == Sampling::Nearest) {
                ASSERT_EQ(out[i], picture.At(static_cast<int64_t>(std::floor(at.x)),
                                             static_cast<int64_t>(std::floor(at.y)), wrap, outside))
                    << round << ": " << i;
                continue;
            }
            const double left = std::floor(at.x - 0.5), top = std::floor(at.y - 0.5);
            double want[4] = {};
            for (int tap = 0; tap < 16; ++tap) {
                const int x = tap % 4 - 1, y = tap / 4 - 1;
                const double part =
                    Part(at.x - 0.5 - left, x, sampling) * Part(at.y - 0.5 - top, y, sampling);
                const Color pixel =
                    picture.At(static_cast<int64_t>(left) + x, static_cast<int64_t>(top) + y, wrap, outside);
                for (int c = 0; c < 4; ++c)
                    want[c] += (pixel >> (8 * c) & 255) * part;
            }
            const double alpha = std::clamp(want[3], 0.0, 255.0);
            for (int c = 0; c < 4; ++c)
                ASSERT_NEAR(out[i] >> (8 * c) & 255, std::clamp(want[c], 0.0, alpha),
                            sampling == Sampling::Bilinear ? 2 : 1)
                    << round << ": " << i << ", " << c;
        }
    }
}

TEST(TextureTest, WideLoopsMixAsThePlainOnes) {
    Random random(5);
    for (int round = 0; round < 1000; ++round) {
        uint32_t pixels[4];
        for (uint32_t& pixel : pixels)
            pixel = round % 3 == 0 ? 0xFFFFFFFF : static_cast<uint32_t>(random.Between(0, 4294967296.0));
        const auto across = static_cast<uint32_t>(random.Below(257)),
                   down = static_cast<uint32_t>(random.Below(257));
        ASSERT_EQ(Bilinear(pixels, pixels + 2, across, down),
                  BilinearPlain(pixels, pixels + 2, across, down));
    }
}

TEST(TextureTest, SmallPicturesAreTheMeanOfTheLarge) {
    // A grid of single pixels: every fourth is white, which no sampling without a mean would see evenly.
    std::vector<uint32_t> pixels(160 * 120, 0xFF000000);
    for (size_t i = 0; i < pixels.size(); ++i) {
        if (i % 160 % 2 == 0 && i / 160 % 2 == 0)
            pixels[i] = 0xFFFFFFFF;
    }
    const Surface picture{reinterpret_cast<uint8_t*>(pixels.data()), 640, 160, 120, Format::Opaque32};
    for (const Sampling sampling : {Sampling::SmoothBilinear, Sampling::SmoothBicubic}) {
        const Texture texture(picture, Matrix::Scaling(0.125, 0.125), Wrap::FlipXY, sampling);
        std::vector<uint32_t> out(20);
        for (int y = 0; y < 15; ++y) {
            texture.Row({0.5, y + 0.5}, 20, out.data());
            for (const uint32_t color : out)
                ASSERT_LE(Distance(color, 0xFF404040), 1);
        }
    }
    // Effects come before the mean: white turns to half a red.
    ColorEffects effects;
    effects.map = {{0xFFFFFFFF, 0xFFFF0000}};
    const Texture texture(picture, Matrix::Scaling(0.5, 0.5), Wrap::Clamp, Sampling::SmoothBilinear,
                          &effects);
    EXPECT_LE(Distance(At(texture, {3.5, 3.5}), 0xFF400000), 1);
}

TEST(ColorEffectsTest, ComeOneAfterTheOther) {
    ColorEffects effects;
    EXPECT_TRUE(effects.Empty());
    effects.key = {0xFF102030, 0xFF203040};
    effects.map = {{0xFF0000FF, 0xFF00FF00}};
    effects.matrix = ColorMatrix{{{0, 0, 1, 0, 0}, {0, 1, 0, 0, 0}, {1, 0, 0, 0, 0}, {0, 0, 0, 0.5, 0}}};
    effects.grayMatrix = ColorMatrix{{{1, 0, 0, 0, 0}, {0, 1, 0, 0, 0}, {0, 0, 1, 0, 0}, {0, 0, 0, 1, 0}}};
    EXPECT_EQ(effects.Apply(0xFF182838), 0u);
    EXPECT_EQ(effects.Apply(0xFF0000FF), 0x8000FF00u);  // mapped, then halved
    EXPECT_EQ(effects.Apply(0xFF708090), 0x80908070u);
    EXPECT_EQ(effects.Apply(0xFF505050), 0xFF505050u);
    effects.threshold = 0.5;
    EXPECT_EQ(effects.Apply(0xFF708090), 0x80FFFF00u);
    effects = {};
    effects.gamma = 2;
    EXPECT_EQ(effects.Apply(0x40FF8000), 0x40FF4000u);
    uint32_t pixels[] = {Premultiply(0x40FF8000), 0, Premultiply(0x40FF8000)};
    effects.ApplyTo(pixels);
    EXPECT_LE(Distance(pixels[2], Premultiply(0x40FF4000)), 1);
    EXPECT_EQ(pixels[1], 0u);
}

}  // namespace raster
