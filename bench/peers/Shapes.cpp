// Times single shapes with the renderer and with Cairo, side by side in one run.
#include "raster/Renderer.h"

#include <cairo.h>

#include <chrono>
#include <cstdio>
#include <numbers>
#include <string>

namespace {

using raster::Matrix;
using raster::Path;
using raster::Pen;
using raster::Point;
using raster::Rect;

constexpr int kWidth = 640, kHeight = 400, kStride = kWidth * 4;

// Prints the microseconds that a call takes on both sides, whose rounds take turns; calls get a place that
// moves over the surface. The best round of each counts: whatever else the machine does only adds to the
// others.
template <class Ours, class Cairo>
void Compare(const char* name, Ours ours, Cairo cairo) {
    constexpr int calls = 2000, rounds = 25;
    const auto round = [](auto& draw, double& best) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < calls; ++i)
            draw(10 + i * 37 % 550, 20 + i * 53 % 320);
        const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
        best = std::min(best, time.count() / calls);
    };
    double mine = 1e9, theirs = 1e9;
    for (int i = 0; i < rounds; ++i) {
        round(ours, mine);
        round(cairo, theirs);
    }
    std::printf("| %-44s | %7.2f | %7.2f | %5.2f |\n", name, mine, theirs, mine / theirs);
}

// Letters of straight and curved strokes, about 9 pixels high.
class Letters final : public raster::GlyphSource {
public:
    bool Outline(uint32_t glyph, Path& out) override {
        const double wide = 4 + glyph % 3;
        out.AddEllipse({0.5, -7.5, wide + 1, 0.2});
        out.AddEllipse({1.6, -6.4, wide - 0.1, -0.9});
        out.AddRectangle({wide, -9.0, wide + 1.1, 0});
        return true;
    }
};

class Bench {
public:
    Bench()
        : m_pixels(static_cast<size_t>(kWidth) * kHeight, 0xFF203040),
          m_bytes(reinterpret_cast<uint8_t*>(m_pixels.data())),
          m_renderer({m_bytes, kStride, kWidth, kHeight, raster::Format::Premultiplied32}),
          m_surface(
              cairo_image_surface_create_for_data(m_bytes, CAIRO_FORMAT_ARGB32, kWidth, kHeight, kStride)),
          m_cairo(cairo_create(m_surface)) {
        m_renderer.Style().edges = raster::Edges::Smooth;
        cairo_set_antialias(m_cairo, CAIRO_ANTIALIAS_GOOD);
    }
    ~Bench() {
        cairo_destroy(m_cairo);
        cairo_surface_destroy(m_surface);
    }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    void AlphaFill() {
        const raster::SolidPaint paint(0x8040C080);
        cairo_set_source_rgba(m_cairo, 0.25, 0.75, 0.5, 0.5);
        Compare(
            "alpha fill 60x40",
            [&](int x, int y) {
                m_renderer.FillRectangle({x + 0.5, y + 0.5, x + 60.5, y + 40.5}, {}, paint);
            },
            [&](int x, int y) {
                cairo_rectangle(m_cairo, x, y, 60, 40);
                cairo_fill(m_cairo);
            });
    }

    void EllipseOutline() {
        const raster::SolidPaint paint(0xFF40C080);
        Pen pen;
        pen.width = 2;
        cairo_set_source_rgb(m_cairo, 0.25, 0.75, 0.5);
        cairo_set_line_width(m_cairo, 2);
        Path path;
        Compare(
            "smooth ellipse outline 60x40, 2 wide",
            [&](int x, int y) {
                path.Clear();
                path.AddEllipse({1.0 * x, 1.0 * y, x + 60.0, y + 40.0});
                m_renderer.Stroke(path, pen, {}, paint);
            },
            [&](int x, int y) {
                CairoEllipse(x, y);
                cairo_stroke(m_cairo);
            });
    }

    void Line() {
        const raster::SolidPaint paint(0xFF40C080);
        Pen pen;
        pen.width = 1.5;
        cairo_set_source_rgb(m_cairo, 0.25, 0.75, 0.5);
        cairo_set_line_width(m_cairo, 1.5);
        Compare(
            "smooth line 60 long",
            [&](int x, int y) {
                m_renderer.StrokeLine({1.0 * x, 1.0 * y}, {x + 52.0, y + 30.0}, pen, {}, paint);
            },
            [&](int x, int y) {
                cairo_move_to(m_cairo, x, y);
                cairo_line_to(m_cairo, x + 52, y + 30);
                cairo_stroke(m_cairo);
            });
    }

    void Text() {
        const raster::SolidPaint paint(0xFF40C080);
        raster::GlyphCache cache(1 << 20);
        Letters letters;
        cairo_set_source_rgb(m_cairo, 0.25, 0.75, 0.5);
        cairo_select_font_face(m_cairo, "Liberation Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
        cairo_set_font_size(m_cairo, 12);
        cairo_scaled_font_t* font = cairo_get_scaled_font(m_cairo);
        cairo_glyph_t* glyphs = nullptr;
        int count = 0;
        cairo_scaled_font_text_to_glyphs(font, 0, 0, "Temperature", 11, &glyphs, &count, nullptr, nullptr,
                                         nullptr);
        std::vector<cairo_glyph_t> moved(glyphs, glyphs + count);
        Compare(
            "11 letters, cached",
            [&](int x, int y) {
                for (uint32_t i = 0; i < 11; ++i)
                    m_renderer.DrawMask(cache.Get({1, i, i % 4}, letters), x + 7 * static_cast<int>(i), y,
                                        paint);
            },
            [&](int x, int y) {
                for (int i = 0; i < count; ++i) {
                    moved[i] = glyphs[i];
                    moved[i].x += x;
                    moved[i].y += y;
                }
                cairo_show_glyphs(m_cairo, moved.data(), count);
            });
        cairo_glyph_free(glyphs);
    }

    void EllipseFill() {
        const raster::SolidPaint paint(0xFF40C080);
        cairo_set_source_rgb(m_cairo, 0.25, 0.75, 0.5);
        Path path;
        Compare(
            "smooth ellipse 60x40",
            [&](int x, int y) {
                path.Clear();
                path.AddEllipse({1.0 * x, 1.0 * y, x + 60.0, y + 40.0});
                m_renderer.Fill(path, {}, raster::FillRule::Winding, paint);
            },
            [&](int x, int y) {
                CairoEllipse(x, y);
                cairo_fill(m_cairo);
            });
    }

    // A line of 60 pieces that goes up and down, as a trend does.
    void Trend() {
        const raster::SolidPaint paint(0xFF40C080);
        Pen pen;
        pen.width = 1.5;
        cairo_set_source_rgb(m_cairo, 0.25, 0.75, 0.5);
        cairo_set_line_width(m_cairo, 1.5);
        const auto height = [](int i) { return 20 + 12 * std::sin(i * 0.2) + i * 7 % 11; };
        Path path;
        Compare(
            "smooth trend of 60 points, 60x40",
            [&](int x, int y) {
                path.Clear();
                for (int i = 0; i < 60; ++i)
                    path.LineTo({1.0 * x + i, y + height(i)});
                m_renderer.Stroke(path, pen, {}, paint);
            },
            [&](int x, int y) {
                for (int i = 0; i < 60; ++i)
                    cairo_line_to(m_cairo, x + i, y + height(i));
                cairo_stroke(m_cairo);
            });
    }

    // The brush is made for each call on both sides.
    void GradientFill() {
        const raster::GradientStop stops[] = {{0, 0xFF203040}, {1, 0xFF40C080}};
        Compare(
            "rectangle 60x40, slanted gradient",
            [&](int x, int y) {
                const raster::LinearGradient gradient({1.0 * x, 1.0 * y}, {x + 60.0, y + 40.0}, {}, stops,
                                                      raster::Wrap::FlipX, false);
                m_renderer.FillRectangle({x + 0.5, y + 0.5, x + 60.5, y + 40.5}, {}, gradient);
            },
            [&](int x, int y) {
                cairo_pattern_t* gradient = cairo_pattern_create_linear(x, y, x + 60.0, y + 40.0);
                cairo_pattern_add_color_stop_rgb(gradient, 0, 0.125, 0.19, 0.25);
                cairo_pattern_add_color_stop_rgb(gradient, 1, 0.25, 0.75, 0.5);
                cairo_pattern_set_extend(gradient, CAIRO_EXTEND_REFLECT);
                cairo_set_source(m_cairo, gradient);
                cairo_rectangle(m_cairo, x, y, 60, 40);
                cairo_fill(m_cairo);
                cairo_pattern_destroy(gradient);
            });
    }

    void Picture(const char* name, double scale, raster::Sampling sampling, cairo_filter_t filter) {
        std::vector<uint32_t> pixels(60 * 40);
        for (size_t i = 0; i < pixels.size(); ++i)
            pixels[i] = raster::Premultiply(static_cast<uint32_t>(i * 2654435761u));
        auto* bytes = reinterpret_cast<uint8_t*>(pixels.data());
        const int width = static_cast<int>(60 / scale), height = static_cast<int>(40 / scale);
        cairo_surface_t* source =
            cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_ARGB32, width, height, 240);
        const raster::Surface picture{bytes, 240, width, height, raster::Format::Premultiplied32};
        Compare(
            name,
            [&](int x, int y) {
                const raster::Texture texture(
                    picture, Matrix::Scaling(scale, scale) * Matrix::Translation(x - 0.5, y - 0.5),
                    raster::Wrap::FlipXY, sampling);
                m_renderer.FillRectangle({x - 0.5, y - 0.5, x + 59.5, y + 39.5}, {}, texture);
            },
            [&](int x, int y) {
                cairo_save(m_cairo);
                cairo_translate(m_cairo, x, y);
                cairo_scale(m_cairo, scale, scale);
                cairo_set_source_surface(m_cairo, source, 0, 0);
                cairo_pattern_set_filter(cairo_get_source(m_cairo), filter);
                cairo_pattern_set_extend(cairo_get_source(m_cairo), CAIRO_EXTEND_REFLECT);
                cairo_rectangle(m_cairo, 0, 0, 60 / scale, 40 / scale);
                cairo_fill(m_cairo);
                cairo_restore(m_cairo);
            });
        cairo_set_source_rgb(m_cairo, 0, 0, 0);
        cairo_surface_destroy(source);
    }

private:
    void CairoEllipse(int x, int y) {
        cairo_save(m_cairo);
        cairo_translate(m_cairo, x + 30, y + 20);
        cairo_scale(m_cairo, 30, 20);
        cairo_arc(m_cairo, 0, 0, 1, 0, 2 * std::numbers::pi);
        cairo_restore(m_cairo);
    }

    std::vector<uint32_t> m_pixels;
    uint8_t* m_bytes;
    raster::Renderer m_renderer;
    cairo_surface_t* m_surface;
    cairo_t* m_cairo;
};

}  // namespace

int main() {
    Bench bench;
    std::printf("| %-44s | %7s | %7s | %5s |\n|---|---|---|---|\n", "microseconds a call", "ours", "Cairo",
                "ratio");
    bench.AlphaFill();
    bench.EllipseOutline();
    bench.Line();
    bench.Text();
    bench.EllipseFill();
    bench.Trend();
    bench.GradientFill();
    bench.Picture("picture 60x40 as it is", 1, raster::Sampling::Bilinear, CAIRO_FILTER_BILINEAR);
    bench.Picture("picture twice as large, 60x40", 2, raster::Sampling::Bilinear, CAIRO_FILTER_BILINEAR);
    return 0;
}
