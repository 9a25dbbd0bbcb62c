// Drawing calls made of arbitrary bytes: no access beside the pixels, no undefined behaviour, no call without
// end.
#include "raster/PathRegion.h"
#include "raster/Recolor.h"
#include "raster/Renderer.h"

#include <cstring>
#include <limits>

namespace {

using namespace raster;

// Values from the fuzzer's bytes; zeros when they are used up.
class Bytes {
public:
    Bytes(const uint8_t* data, size_t size) : m_data(data), m_size(size) {}

    bool Empty() const { return m_at >= m_size; }
    int Below(int count) { return Next() % count; }
    uint8_t Next() { return Empty() ? 0 : m_data[m_at++]; }

    // Mostly near the surface, now and then anything that a float can be.
    double Number() {
        const int kind = Next();
        if (kind >= 64)
            return (kind - 128) * 0.5 + Next() / 256.0;
        if (kind >= 32)
            return std::ldexp(Next() - 128.0, kind - 24);
        constexpr double odd[] = {0,
                                  1e30,
                                  -1e30,
                                  3.4e38,
                                  1e-30,
                                  -1,
                                  std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::quiet_NaN()};
        if (kind >= 8)
            return odd[kind % 8];
        float any = 0;
        uint8_t raw[4];
        for (uint8_t& byte : raw)
            byte = Next();
        std::memcpy(&any, raw, sizeof(any));
        return any;
    }
    Point Place() {
        const double x = Number();
        return {x, Number()};
    }
    Rect Box() {
        const Point a = Place(), b = Place();
        return {a.x, a.y, b.x, b.y};
    }
    Matrix Map() {
        if (Below(2) == 0)
            return {};
        const Point x = Place(), y = Place(), d = Place();
        return {x.x, x.y, y.x, y.y, d.x, d.y};
    }
    Color Ink() { return static_cast<Color>(Next() << 24 | Next() << 16 | Next() << 8 | Next()); }

private:
    const uint8_t* m_data;
    size_t m_size;
    size_t m_at = 0;
};

Path ReadPath(Bytes& bytes) {
    Path path;
    for (int i = bytes.Below(8); i >= 0; --i) {
        switch (bytes.Below(7)) {
            case 0:
                path.MoveTo(bytes.Place());
                break;
            case 1:
                path.LineTo(bytes.Place());
                break;
            case 2: {
                const Point a = bytes.Place(), b = bytes.Place();
                path.CurveTo(a, b, bytes.Place());
                break;
            }
            case 3: {
                const Rect box = bytes.Box();
                const double start = bytes.Number();
                path.AddArc(box, start, bytes.Number());
                break;
            }
            case 4:
                path.AddEllipse(bytes.Box());
                break;
            case 5:
                path.AddPie(bytes.Box(), 30, bytes.Number());
                break;
            default:
                path.Close();
                break;
        }
    }
    return path;
}

Pen ReadPen(Bytes& bytes) {
    Pen pen;
    pen.width = bytes.Number();
    pen.join = static_cast<Join>(bytes.Below(4));
    pen.miterLimit = bytes.Number();
    pen.startCap = static_cast<Cap>(bytes.Below(8));
    pen.endCap = static_cast<Cap>(bytes.Below(8));
    pen.dashCap = static_cast<Cap>(bytes.Below(4));
    pen.alignment = static_cast<Alignment>(bytes.Below(2));
    for (int i = bytes.Below(4); i > 0; --i)
        pen.dashes.push_back(bytes.Number());
    pen.dashOffset = bytes.Number();
    for (int i = bytes.Below(5); i > 0; --i)
        pen.compound.push_back(bytes.Number());
    if (bytes.Below(8) == 0) {
        auto cap = std::make_shared<CustomCap>();
        cap->fill = ReadPath(bytes);
        cap->line = ReadPath(bytes);
        cap->inset = bytes.Number();
        cap->scale = bytes.Number();
        cap->startCap = static_cast<Cap>(bytes.Below(4));
        pen.startCustom = cap;
    }
    return pen;
}

// Draws one thing with `paint`.
void Draw(Renderer& renderer, Bytes& bytes, const Paint& paint) {
    const Matrix matrix = bytes.Map();
    switch (bytes.Below(5)) {
        case 0:
            renderer.Fill(ReadPath(bytes), matrix, static_cast<FillRule>(bytes.Below(2)), paint);
            break;
        case 1: {
            const Path path = ReadPath(bytes);
            renderer.Stroke(path, ReadPen(bytes), matrix, paint);
            break;
        }
        case 2:
            renderer.FillRectangle(bytes.Box(), matrix, paint);
            break;
        case 3: {
            const Rect box = bytes.Box();
            renderer.StrokeRectangle(box, ReadPen(bytes), matrix, paint);
            break;
        }
        default: {
            const Point from = bytes.Place(), to = bytes.Place();
            renderer.StrokeLine(from, to, ReadPen(bytes), matrix, paint);
            break;
        }
    }
}

PathGradientShape ReadGradient(Bytes& bytes) {
    PathGradientShape shape;
    for (int i = bytes.Below(8); i > 0; --i)
        shape.outline.push_back(bytes.Place());
    for (int i = bytes.Below(4); i > 0; --i)
        shape.surround.push_back(bytes.Ink());
    for (int i = bytes.Below(3); i > 0; --i)
        shape.colors.push_back({bytes.Number() / 64, bytes.Ink()});
    for (int i = bytes.Below(3); i > 0; --i)
        shape.blend.push_back({bytes.Number() / 64, bytes.Number() / 64});
    shape.centre = bytes.Place();
    shape.center = bytes.Ink();
    shape.focusX = bytes.Number() / 64;
    shape.focusY = bytes.Number() / 64;
    shape.wrap = static_cast<Wrap>(bytes.Below(5));
    shape.gamma = bytes.Below(2) != 0;
    return shape;
}

void DrawWithPaint(Renderer& renderer, Bytes& bytes) {
    static uint32_t pixels[6] = {0xFF804020, 0x40102030, 0xFF00FF80, 0, 0x80808080, 0xFFFFFFFF};
    switch (bytes.Below(6)) {
        case 0:
            Draw(renderer, bytes, SolidPaint(bytes.Ink()));
            break;
        case 1: {
            const GradientStop stops[] = {
                {0, bytes.Ink()}, {bytes.Number() / 64, bytes.Ink()}, {1, bytes.Ink()}};
            const Point from = bytes.Place(), to = bytes.Place();
            Draw(renderer, bytes,
                 LinearGradient(from, to, bytes.Map(), stops, static_cast<Wrap>(bytes.Below(5)),
                                bytes.Below(2) != 0));
            break;
        }
        case 2:
            Draw(renderer, bytes, PathGradient(ReadGradient(bytes), bytes.Map()));
            break;
        case 3: {
            const Surface picture{reinterpret_cast<uint8_t*>(pixels), 12, 3, 2, Format::Plain32};
            ColorEffects effects;
            if (bytes.Below(2) == 0)
                effects.matrix.emplace()[bytes.Below(5)][bytes.Below(5)] = bytes.Number();
            effects.gamma = bytes.Number();
            const Matrix map = bytes.Map();
            const auto wrap = static_cast<Wrap>(bytes.Below(5));
            const auto sampling = static_cast<Sampling>(bytes.Below(5));
            Draw(renderer, bytes, Texture(picture, map, wrap, sampling, &effects, bytes.Ink()));
            break;
        }
        case 4:
            Draw(renderer, bytes, Hatch(bytes.Next(), bytes.Ink(), bytes.Ink(), bytes.Next(), bytes.Next()));
            break;
        default:
            Draw(renderer, bytes,
                 Hatch({1, 2, 4, 8, 16, 32, 64, 128}, bytes.Ink(), bytes.Ink(), bytes.Next(), bytes.Next()));
            break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    constexpr int width = 70, height = 50;
    Bytes bytes(data, size);
    const Format format = static_cast<Format>(bytes.Below(4));
    std::vector<uint8_t> pixels(width * height * 4);
    Renderer renderer({pixels.data(), width * (format == Format::Opaque24 ? 3 : 4), width, height, format});
    while (!bytes.Empty()) {
        const int style = bytes.Next();
        renderer.Style() = {static_cast<Edges>(style & 1), static_cast<Settings::Origin>(style >> 1 & 1),
                            static_cast<Settings::Mode>(style >> 2 & 1)};
        if (style >= 192) {
            Region clip({bytes.Below(70), bytes.Below(50), bytes.Below(80), bytes.Below(60)});
            clip.Apply(Region({bytes.Below(70), bytes.Below(50), bytes.Below(80), bytes.Below(60)}),
                       static_cast<Combine>(bytes.Below(6)));
            if (style >= 240)
                clip.Apply(
                    ToRegion(ReadPath(bytes), bytes.Map(), FillRule::Alternate, {0.5, 0.5}, {0, 0, 70, 50}),
                    Combine::Xor);
            renderer.SetClip(clip);
        }
        DrawWithPaint(renderer, bytes);
    }
    return 0;
}
