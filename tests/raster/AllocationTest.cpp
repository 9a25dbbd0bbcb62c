#include "raster/Renderer.h"

#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

namespace {
size_t g_allocations = 0;
}

void* operator new(size_t size) {
    ++g_allocations;
    if (void* memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}
void* operator new(size_t size, const std::nothrow_t&) noexcept {
    ++g_allocations;
    return std::malloc(size != 0 ? size : 1);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, size_t) noexcept {
    std::free(memory);
}

namespace raster {

namespace {

class Box final : public GlyphSource {
public:
    bool Outline(uint32_t, Path& out) override {
        out.AddRectangle({0.5, -8, 5, 0});
        return true;
    }
};

}  // namespace

TEST(AllocationTest, AWarmRendererNeedsNoMemory) {
    std::vector<uint32_t> pixels(200 * 100);
    Renderer renderer({reinterpret_cast<uint8_t*>(pixels.data()), 800, 200, 100, Format::Premultiplied32});
    const SolidPaint solid(0x80FF4020);
    const GradientStop stops[] = {{0, 0xFF000000}, {1, 0xFFFFFFFF}};
    const LinearGradient gradient({0, 0}, {200, 70}, {}, stops, Wrap::Tile, false);
    Pen pen, dashed;
    dashed.dashes = {3, 1};
    GlyphCache glyphs(1 << 16);
    Box letters;
    Path path;
    const auto draw = [&] {
        for (const Edges edges : {Edges::Smooth, Edges::Sharp}) {
            renderer.Style().edges = edges;
            for (const double width : {1.0, 2.5}) {
                pen.width = width;
                renderer.FillRectangle({3, 4, 90, 60}, {}, solid);
                renderer.FillRectangle({3, 4, 90, 60}, {}, gradient);
                renderer.StrokeRectangle({10.5, 9, 120, 77}, pen, {}, solid);
                renderer.StrokeLine({5, 20}, {190, 20}, pen, {}, solid);
                renderer.StrokeLine({5, 20}, {190, 81.5}, pen, {}, solid);
                path.Clear();
                path.AddEllipse({20, 9, 170, 92});
                renderer.Fill(path, {}, FillRule::Winding, gradient);
                renderer.Stroke(path, pen, {}, solid);
                renderer.Stroke(path, dashed, {}, solid);
                renderer.DrawMask(glyphs.Get({1, 2, 0}, letters), 50, 40, solid);
            }
        }
    };
    draw();
    const size_t before = g_allocations;
    draw();
    EXPECT_EQ(g_allocations, before);
}

}  // namespace raster
