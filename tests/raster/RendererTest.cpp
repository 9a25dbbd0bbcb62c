#include "raster/PathRegion.h"
#include "raster/Renderer.h"

#include "raster/Truth.h"

#include <gtest/gtest.h>

namespace raster {

namespace {

constexpr int kWidth = 61, kHeight = 43;

// Pixels of a format, with something in them.
class Canvas {
public:
    explicit Canvas(Format format, uint32_t seed = 3) : m_bytes(kWidth * kHeight * 4 + 4) {
        m_surface = {m_bytes.data(), format == Format::Opaque24 ? kWidth * 3 + 1 : kWidth * 4, kWidth,
                     kHeight, format};
        Random random(seed);
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                uint8_t* to = m_surface.At(x, y);
                const uint8_t alpha = static_cast<uint8_t>(random.Below(256));
                for (int i = 0; i < 3; ++i)
                    to[i] = static_cast<uint8_t>(random.Below(alpha + 1));
                if (format != Format::Opaque24)
                    to[3] = alpha;
            }
        }
    }
    const Surface& Get() const { return m_surface; }
    Color At(int x, int y) const { return ReadPixel(m_surface, x, y); }
    const std::vector<uint8_t>& Bytes() const { return m_bytes; }

private:
    std::vector<uint8_t> m_bytes;
    Surface m_surface;
};

int Distance(Color a, Color b) {
    int distance = 0;
    for (int shift = 0; shift < 32; shift += 8)
        distance = std::max(
            distance, std::abs(static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255)));
    return distance;
}

const GradientStop kStops[] = {{0, 0xFF102030}, {0.3, 0x80F0A050}, {1, 0xFFE0FF10}};

// Shapes of every kind, with paints of every kind.
void DrawScene(Renderer& renderer, uint32_t seed) {
    Random random(seed);
    const std::array<uint32_t, 4> pixels = {0xFF804020, 0x40102030, 0xFF00FF80, 0};
    const Surface picture{reinterpret_cast<uint8_t*>(const_cast<uint32_t*>(pixels.data())), 8, 2, 2,
                          Format::Premultiplied32};
    const SolidPaint solid(0xC0FF8040);
    const LinearGradient gradient({3, 5}, {40, 30}, {}, kStops, Wrap::FlipX, false);
    const Texture texture(picture, Matrix::Scaling(7, 5), Wrap::FlipXY, Sampling::Bilinear);
    const Hatch hatch({0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81}, 0xFF112233, 0x80445566, 3, 1);
    const Paint* paints[] = {&solid, &gradient, &texture, &hatch};
    Pen pen;
    for (int i = 0; i < 24; ++i) {
        const Paint& paint = *paints[i % 4];
        renderer.Style().edges = i % 3 == 0 ? Edges::Sharp : Edges::Smooth;
        renderer.Style().mode = i % 5 == 0 ? Settings::Mode::Copy : Settings::Mode::Over;
        const Point a = random.Within({-5, -5, 40, 30}), b = a + random.Within({1, 1, 30, 20});
        Path path;
        path.AddEllipse({a.x, a.y, b.x, b.y});
        pen.width = random.Between(0, 4);
        if (i % 2 == 0)
            renderer.Fill(path, {}, FillRule::Winding, paint);
        else
            renderer.Stroke(path, pen, {}, paint);
        renderer.FillRectangle({b.x - 3, a.y - 2, b.x + 5, a.y + 4}, {}, paint);
    }
}

}  // namespace

TEST(KernelsTest, AllInstructionsGiveTheSameBits) {
    Random random(11);
    std::vector<uint32_t> before(70), from(70);
    std::vector<uint8_t> mask(80);
    for (int round = 0; round < 400; ++round) {
        for (size_t i = 0; i < 70; ++i) {
            // Now and then pixels that are not sound: a channel above its alpha.
            before[i] = static_cast<uint32_t>(random.Between(0, 4294967296.0));
            from[i] = static_cast<uint32_t>(random.Between(0, 4294967296.0));
            if (round % 4 != 0) {
                before[i] = Premultiply(before[i]);
                from[i] = Premultiply(from[i]);
            }
            mask[i] = static_cast<uint8_t>(std::clamp(random.Below(400) - 70, 0, 255));
        }
        const int start = random.Below(8), count = random.Below(60);
        const auto results = [&](Instructions set) {
            const Kernels& kernels = KernelsFor(set);
            std::vector<uint32_t> to[6];
            for (auto& pixels : to)
                pixels = before;
            kernels.blendColor(&to[0][start], count, from[0]);
            kernels.blendColorMask(&to[1][start], count, from[0], &mask[3]);
            kernels.blendPixels(&to[2][start], count, &from[1]);
            kernels.blendPixelsMask(&to[3][start], count, &from[1], &mask[3]);
            kernels.copyPixelsMask(&to[4][start], count, &from[1], &mask[3]);
            kernels.blendColorMasks(&to[5][start], 80, std::min(count, 19), 3, from[0], &mask[1], 23);
            std::vector<uint32_t> all;
            for (const auto& pixels : to)
                all.insert(all.end(), pixels.begin(), pixels.end());
            return all;
        };
        const std::vector<uint32_t> scalar = results(Instructions::Scalar);
        ASSERT_EQ(results(Instructions::Sse2), scalar) << round;
        ASSERT_EQ(results(Instructions::Avx2), scalar) << round;
        // The definition, for one pixel.
        if (count > 0) {
            const Color above = ScaleColor(from[0], mask[3]);
            for (int shift = 0; shift < 32; shift += 8) {
                const double want =
                    (above >> shift & 255) + (before[start] >> shift & 255) * (255.0 - (above >> 24)) / 255;
                EXPECT_NEAR(scalar[70 + start] >> shift & 255, std::min(255.0, want), 0.51) << round;
            }
        }
    }
}

TEST(RendererTest, ScenesAreTheSameWithAllInstructions) {
    Canvas canvases[] = {Canvas(Format::Premultiplied32), Canvas(Format::Premultiplied32),
                         Canvas(Format::Premultiplied32)};
    for (int i = 0; i < 3; ++i) {
        Renderer renderer(canvases[i].Get(), KernelsFor(static_cast<Instructions>(i)));
        for (uint32_t seed = 0; seed < 20; ++seed)
            DrawScene(renderer, seed);
    }
    EXPECT_EQ(canvases[1].Bytes(), canvases[0].Bytes());
    EXPECT_EQ(canvases[2].Bytes(), canvases[0].Bytes());
}

TEST(RendererTest, ThinSharpLinesHaveBothEndsAndEachPixelOnce) {
    const SolidPaint half(0x80FFFFFF);
    std::vector<uint32_t> pixels(kWidth * kHeight);
    const auto drawn = [&](const auto& draw) {
        std::fill(pixels.begin(), pixels.end(), 0);
        Renderer renderer({reinterpret_cast<uint8_t*>(pixels.data()), kWidth * 4, kWidth, kHeight});
        draw(renderer);
        std::vector<std::pair<int, int>> places;
        for (int i = 0; i < kWidth * kHeight; ++i) {
            EXPECT_TRUE(pixels[i] == 0 || pixels[i] == 0x80808080) << i % kWidth << ", " << i / kWidth;
            if (pixels[i] != 0)
                places.emplace_back(i % kWidth, i / kWidth);
        }
        return places;
    };
    Pen pen;
    Random random(8);
    for (int round = 0; round < 200; ++round) {
        const Point a{1.0 * random.Below(50), 1.0 * random.Below(40)},
            b{1.0 * random.Below(50), 1.0 * random.Below(40)};
        if (a == b)
            continue;
        const auto line = drawn([&](Renderer& renderer) { renderer.StrokeLine(a, b, pen, {}, half); });
        EXPECT_EQ(drawn([&](Renderer& renderer) { renderer.StrokeLine(b, a, pen, {}, half); }), line);
        Path path;
        path.MoveTo(a);
        path.LineTo(b);
        EXPECT_EQ(drawn([&](Renderer& renderer) { renderer.Stroke(path, pen, {}, half); }), line);
        const Point way = b - a;
        const double length = std::max(std::abs(way.x), std::abs(way.y));
        ASSERT_EQ(line.size(), length + 1);
        for (const auto& [x, y] : line) {
            // Off by at most half a pixel across.
            const Point from = Point{1.0 * x, 1.0 * y} - a;
            EXPECT_LE(std::abs(Cross(from, way)) / length, 0.5);
        }
    }
    // Rectangles and their paths, dashes, and what the clip leaves of it.
    const Rect rect{4, 3, 30, 20};
    Path path;
    path.AddRectangle(rect);
    const auto frame = drawn([&](Renderer& renderer) { renderer.Stroke(path, pen, {}, half); });
    EXPECT_EQ(frame.size(), 2u * (26 + 17));
    EXPECT_EQ(frame.back(), std::pair(30, 20));
    EXPECT_EQ(drawn([&](Renderer& renderer) { renderer.StrokeRectangle(rect, pen, {}, half); }), frame);
    pen.dashes = {3, 1};
    pen.dashOffset = 1;
    const auto dashed = drawn([&](Renderer& renderer) {
        renderer.StrokeLine({5, 7}, {15, 7}, pen, {}, half);
    });
    std::vector<std::pair<int, int>> want;
    for (const int x : {5, 6, 8, 9, 10, 12, 13, 14})
        want.emplace_back(x, 7);
    EXPECT_EQ(dashed, want);
    const Region clip({20, 0, 61, 11});
    const auto cut = drawn([&](Renderer& renderer) {
        renderer.SetClip(clip);
        renderer.StrokeLine({-1e9, 10.2}, {1e9, 10.2}, Pen(), {}, half);
    });
    EXPECT_EQ(cut.size(), 41u);
}

TEST(RendererTest, RegionsOfPathsAreWhatSharpEdgesFill) {
    Path path;
    path.AddEllipse({3.2, 2, 50, 39.5});
    path.AddPie({10, 5, 60, 30}, 30, 200);
    const Matrix matrix{0.9, 0.2, -0.1, 1, 2, -3};
    const IntRect limits{6, 4, 47, 40};
    const Region region = ToRegion(path, matrix, FillRule::Alternate, {0.5, 0.5}, limits);
    std::vector<uint32_t> pixels(kWidth * kHeight);
    Renderer renderer({reinterpret_cast<uint8_t*>(pixels.data()), kWidth * 4, kWidth, kHeight});
    renderer.Fill(path, matrix, FillRule::Alternate, SolidPaint(0xFFFFFFFF));
    for (int i = 0; i < kWidth * kHeight; ++i) {
        const int x = i % kWidth, y = i / kWidth;
        ASSERT_EQ(region.Contains(x, y), pixels[i] != 0 && limits.Contains(x, y)) << x << ", " << y;
    }
}

TEST(RendererTest, RectanglesAreAsTheirPaths) {
    for (int seed = 0; seed < 300; ++seed) {
        Random random(seed);
        const Point a = random.Within({-8, -8, 50, 35});
        const Point b = a + (seed % 5 == 0 ? Point{random.Between(0, 2), random.Between(0, 2)}
                                           : random.Within({1, 1, 50, 40}));
        const Rect rect{a.x, a.y, b.x, b.y};
        const Matrix matrix{random.Between(0.5, 1.5), 0, 0, random.Between(-1.5, 1.5), 3, 20};
        Pen pen;
        pen.width = random.Between(2.5, 5);
        const SolidPaint paint(0xB0208040);
        Path path;
        if (seed % 3 == 2) {
            path.MoveTo(a);
            path.LineTo({b.x, a.y});
        } else {
            path.AddRectangle(rect);
        }
        Canvas quick(Format::Premultiplied32), slow(Format::Premultiplied32);
        Renderer first(quick.Get()), second(slow.Get());
        for (Renderer* renderer : {&first, &second}) {
            renderer->Style().edges = seed % 2 == 0 ? Edges::Smooth : Edges::Sharp;
            renderer->Style().origin = seed % 4 < 2 ? Settings::Origin::Centre : Settings::Origin::Corner;
            Region clip({4, 2, 55, 40});
            clip.Apply(Region({20, 10, 30, 20}), Combine::Exclude);
            renderer->SetClip(clip);
        }
        if (seed % 3 == 0) {
            first.FillRectangle(rect, matrix, paint);
            second.Fill(path, matrix, FillRule::Winding, paint);
        } else {
            if (seed % 3 == 1)
                first.StrokeRectangle(rect, pen, matrix, paint);
            else
                first.StrokeLine(a, {b.x, a.y}, pen, matrix, paint);
            second.Stroke(path, pen, matrix, paint);
        }
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x)
                ASSERT_LE(Distance(quick.At(x, y), slow.At(x, y)), seed % 2 == 0 ? 1 : 0)
                    << seed << ": " << x << ", " << y;
        }
    }
}

TEST(RendererTest, ClipsCutAndChangeNothingElse) {
    for (const Format format :
         {Format::Premultiplied32, Format::Plain32, Format::Opaque32, Format::Opaque24}) {
        Canvas whole(format), clipped(format);
        const Canvas before(format);
        Renderer first(whole.Get()), second(clipped.Get());
        Region clip({5, 7, 50, 31});
        clip.Apply(Region({17, 11, 29, 23}), Combine::Xor);
        second.SetClip(clip);
        DrawScene(first, 9);
        DrawScene(second, 9);
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x)
                ASSERT_LE(Distance(clipped.At(x, y), clip.Contains(x, y) ? whole.At(x, y) : before.At(x, y)),
                          4)
                    << static_cast<int>(format) << ": " << x << ", " << y;
        }
    }
}

TEST(RendererTest, FormatsAgree) {
    // Over opaque pixels all formats come to the same colours.
    Canvas canvases[] = {Canvas(Format::Premultiplied32), Canvas(Format::Plain32), Canvas(Format::Opaque32),
                         Canvas(Format::Opaque24)};
    for (Canvas& canvas : canvases) {
        Renderer renderer(canvas.Get());
        renderer.Style().mode = Settings::Mode::Copy;
        renderer.FillRectangle({-1, -1, kWidth, kHeight}, {}, SolidPaint(0xFF305070));
        renderer.Style().mode = Settings::Mode::Over;
        renderer.Style().edges = Edges::Smooth;
        Path path;
        path.AddEllipse({4.5, 3.25, 50, 37});
        renderer.Fill(path, {}, FillRule::Winding,
                      LinearGradient({3, 5}, {40, 30}, {}, kStops, Wrap::Tile, false));
    }
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            for (const Canvas& canvas : canvases)
                ASSERT_EQ(canvas.At(x, y) & 0xFFFFFF, canvases[0].At(x, y) & 0xFFFFFF) << x << ", " << y;
        }
    }
}

TEST(PaintTest, LinearGradientsFollowTheFormula) {
    const Matrix matrix{0.8, 0.3, -0.2, 1.1, 4, 2};
    const Point from{3, 5}, to{41, 24};
    const Matrix inverse = *matrix.Inverse();
    for (const Wrap wrap : {Wrap::Tile, Wrap::FlipX}) {
        const LinearGradient gradient(from, to, matrix, kStops, wrap, false);
        for (int y = -40; y < 80; y += 7) {
            std::vector<uint32_t> row(160);
            gradient.Row({-50.0, 1.0 * y}, 160, row.data());
            for (int x = 0; x < 160; ++x) {
                const Point at = inverse.Map({x - 50.0, 1.0 * y});
                const double turns = Dot(at - from, to - from) / Dot(to - from, to - from);
                double place = turns - std::floor(turns);
                if (place < 0.002 || place > 0.998)
                    continue;
                if (wrap != Wrap::Tile && static_cast<int64_t>(std::floor(turns)) % 2 != 0)
                    place = 1 - place;
                const int part = place < 0.3 ? 0 : 1;
                const double share =
                    (place - kStops[part].position) / (kStops[part + 1].position - kStops[part].position);
                const auto channel = [&](int shift) {
                    const double a = kStops[part].color >> shift & 255,
                                 b = kStops[part + 1].color >> shift & 255;
                    return a + (b - a) * share;
                };
                for (int shift = 0; shift < 32; shift += 8)
                    ASSERT_NEAR(row[x] >> shift & 255,
                                shift == 24 ? channel(24) : channel(shift) * channel(24) / 255, 1.6)
                        << x << ", " << y;
            }
        }
    }
}

TEST(PaintTest, PathGradientsGoFromTheirOutlineToTheCentre) {
    const Point outline[] = {{5, 3}, {45, 9}, {38, 36}, {9, 31}};
    const Color colors[] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF};
    const PathGradient gradient(outline, colors, {24, 20}, 0xFFFFFFFF, {}, {});
    const auto at = [&](Point point) {
        uint32_t color = 0;
        gradient.Row(point, 1, &color);
        return color;
    };
    EXPECT_LE(Distance(at({24, 20}), 0xFFFFFFFF), 1);
    EXPECT_LE(Distance(at({5.01, 3.01}), 0xFFFF0000), 2);
    EXPECT_LE(Distance(at({(24 + 45) / 2.0, (20 + 9) / 2.0}), 0xFF80FF80), 2);
    EXPECT_LE(Distance(at({(38 + 9) / 2.0, (36 + 31) / 2.0 - 0.01}), 0xFF0000FF), 2);
    EXPECT_EQ(at({50, 20}), 0u);
    const Point far[] = {{5, 3}, {1e300, 9.1}, {-1e30, 1e30}, {5, 3}};
    std::vector<uint32_t> row(40);
    PathGradient(far, colors, {1e9, 3}, 0xFFFFFFFF, {}, Matrix::Scaling(1, 1e-9)).Row({0, 5}, 40, row.data());
}

TEST(PaintTest, TexturesWrapAndSample) {
    std::vector<uint32_t> pixels = {0xFF000000, 0xFF640000, 0xFFC80000, 0xFF000064, 0xFF640064, 0xFFC80064};
    const Surface picture{reinterpret_cast<uint8_t*>(pixels.data()), 12, 3, 2, Format::Premultiplied32};
    const auto row = [&](Wrap wrap, Sampling sampling, Point first) {
        std::vector<uint32_t> out(8);
        Texture(picture, {}, wrap, sampling).Row(first, 8, out.data());
        std::vector<int> reds;
        for (const uint32_t color : out)
            reds.push_back(color == 0 ? -1 : static_cast<int>(color >> 16 & 255));
        return reds;
    };
    using Reds = std::vector<int>;
    EXPECT_EQ(row(Wrap::Tile, Sampling::Nearest, {-1.5, 0.5}), (Reds{100, 200, 0, 100, 200, 0, 100, 200}));
    EXPECT_EQ(row(Wrap::FlipX, Sampling::Nearest, {-1.5, 0.5}), (Reds{100, 0, 0, 100, 200, 200, 100, 0}));
    EXPECT_EQ(row(Wrap::Clamp, Sampling::Nearest, {-1.5, 0.5}), (Reds{-1, -1, 0, 100, 200, -1, -1, -1}));
    EXPECT_EQ(row(Wrap::Tile, Sampling::Bilinear, {0.75, 0.5}), (Reds{25, 125, 150, 25, 125, 150, 25, 125}));
    // A straight slope stays one.
    EXPECT_EQ(row(Wrap::FlipXY, Sampling::Bicubic, {1.5, 0.5})[0], 100);
    EXPECT_EQ(
        Apply({{{0, 0, 1, 0, 0}, {0, 0.5, 0, 0, 0}, {1, 0, 0, 0, 0}, {0, 0, 0, 1, 0}, {0.1, 0, 0, -0.5, 1}}},
              0xFF104060),
        0x807A2010u);
}

TEST(GlyphCacheTest, KeepsItsLimitAndWhatWasUsedLast) {
    class Source final : public GlyphSource {
    public:
        bool Outline(uint32_t glyph, Path& out) override {
            ++m_made;
            out.AddRectangle({1, -8.0, 3 + glyph % 5 + 0.5, 0.5});
            return glyph != 99;
        }
        int m_made = 0;
    } source;
    GlyphCache cache(4000);
    EXPECT_TRUE(cache.Get({1, 99, 0}, source).coverage.empty());
    const GlyphMask& mask = cache.Get({1, 2, 2}, source);  // moved by half a pixel
    EXPECT_EQ(mask.left, 1);
    EXPECT_EQ(mask.top, -8);
    EXPECT_EQ(mask.height, 9);
    EXPECT_EQ(mask.coverage[0], 128);
    EXPECT_EQ(mask.coverage[1], 255);
    EXPECT_EQ(mask.coverage[8 * mask.width + 4], 128);
    for (uint32_t i = 0; i < 200; ++i) {
        cache.Get({7, i, 0}, source);
        cache.Get({1, 2, 2}, source);
        EXPECT_LE(cache.Bytes(), 4000u);
    }
    EXPECT_EQ(source.m_made, 202);  // the one that was always used stayed
}

}  // namespace raster
