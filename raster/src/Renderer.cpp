#include "raster/Renderer.h"

#include "PixelRows.h"

namespace raster {

namespace {

constexpr int kUnit = 256;

uint8_t Covered(int area) {
    return static_cast<uint8_t>((2 * area * 255 + kUnit * kUnit) / (2 * kUnit * kUnit));
}

// How much of a pixel lies between two places of its axis.
int Part(int pixel, int from, int to) {
    return std::max(0, std::min(to, (pixel + 1) * kUnit) - std::max(from, pixel * kUnit));
}

// The first pixel whose centre is not before `place`, as the place of its beginning.
int ToCentre(int place) {
    return (place + kUnit / 2 - 1) >> 8 << 8;
}

}  // namespace

Renderer::Renderer(const Surface& surface, const Kernels& kernels)
    : m_surface(surface), m_kernels(kernels), m_clip(surface.Bounds()) {}

void Renderer::SetClip(const Region& region) {
    m_clip = Region(m_surface.Bounds());
    m_clip.Apply(region, Combine::Intersect);
}

Rect Renderer::Limits() const {
    const IntRect& bounds = m_clip.Bounds();
    return {bounds.left - 1.0, bounds.top - 1.0, bounds.right + 1.0, bounds.bottom + 1.0};
}

void Renderer::Begin(const Paint& paint) {
    m_paint = &paint;
    m_solid = paint.IsSolid(m_color);
    m_plain = m_solid && m_clip.IsRectangle() && IsDirect() && m_settings.mode == Settings::Mode::Over;
    m_chains.Clear();
}

void Renderer::Fill(const Path& path, const Matrix& matrix, FillRule rule, const Paint& paint) {
    Begin(paint);
    const Rect limits = Limits();
    Flatten(path, matrix, kTolerance, &limits, m_chains);
    m_rasterizer.Begin(m_clip.Bounds());
    m_rasterizer.Add(m_chains, {Shift(), Shift()});
    m_rasterizer.Finish(rule, m_settings.edges, *this);
}

void Renderer::Stroke(const Path& path, const Pen& pen, const Matrix& matrix, const Paint& paint) {
    Begin(paint);
    if (IsThin(pen, matrix)) {
        m_stroker.Lines(path, pen, matrix, Limits());
        m_thin.Begin(m_clip.Bounds());
        m_thin.Add(m_stroker.Outline(), {Shift(), Shift()});
        m_thin.Finish(*this);
        return;
    }
    m_stroker.Stroke(path, pen, matrix, Limits());
    m_rasterizer.Begin(m_clip.Bounds());
    m_rasterizer.Add(m_stroker.Outline(), {Shift(), Shift()}, m_stroker.Apart());
    m_rasterizer.Finish(FillRule::Winding, m_settings.edges, *this);
}

// An anchor hides the end of the line and needs its outline.
bool Renderer::IsThin(const Pen& pen, const Matrix& matrix) const {
    return m_settings.edges == Edges::Sharp && pen.width * matrix.LargestScale() <= 1 && !pen.HasAnchors();
}

bool Renderer::ToBox(const Rect& rect, const Matrix& matrix, Box& box) const {
    if (!matrix.KeepsAxes())
        return false;
    const Point a = matrix.Map({rect.left, rect.top}), b = matrix.Map({rect.right, rect.bottom});
    const auto near = [](Point p) {
        return std::abs(p.x) < kFarthestPixel && std::abs(p.y) < kFarthestPixel;
    };
    if (!near(a) || !near(b))
        return false;
    const auto fixed = [this](double value) {
        return static_cast<int>(std::lrint((value + Shift()) * kUnit));
    };
    box = {fixed(std::min(a.x, b.x)), fixed(std::min(a.y, b.y)), fixed(std::max(a.x, b.x)),
           fixed(std::max(a.y, b.y))};
    return true;
}

void Renderer::FillRectangle(const Rect& rect, const Matrix& matrix, const Paint& paint) {
    Box box;
    if (ToBox(rect, matrix, box)) {
        Begin(paint);
        DrawFrame(box, {0, 0, 0, 0});
        return;
    }
    m_path.Clear();
    m_path.AddRectangle(rect);
    Fill(m_path, matrix, FillRule::Winding, paint);
}

void Renderer::StrokeRectangle(const Rect& rect, const Pen& pen, const Matrix& matrix, const Paint& paint) {
    const bool whole = pen.dashes.empty() && pen.compound.empty() && !rect.Empty();
    const bool wide = pen.alignment == Alignment::Center && pen.width * matrix.LargestScale() >= 1 &&
                      (pen.join == Join::Miter || pen.join == Join::MiterOrBevel) && pen.miterLimit >= 1.5;
    Box outer, inner;
    if (whole && IsThin(pen, matrix) && ToBox(rect, matrix, outer)) {
        Begin(paint);
        const auto pixel = [](int place) { return (place - 1) >> 8 << 8; };
        outer = {pixel(outer.left), pixel(outer.top), pixel(outer.right) + kUnit,
                 pixel(outer.bottom) + kUnit};
        DrawFrame(outer, {outer.left + kUnit, outer.top + kUnit, outer.right - kUnit, outer.bottom - kUnit});
        return;
    }
    const double half = pen.width / 2;
    const Rect inside{rect.left + half, rect.top + half, rect.right - half, rect.bottom - half};
    if (whole && wide &&
        ToBox({rect.left - half, rect.top - half, rect.right + half, rect.bottom + half}, matrix, outer)) {
        Begin(paint);
        if (inside.Empty() || !ToBox(inside, matrix, inner))
            inner = {0, 0, 0, 0};
        DrawFrame(outer, inner);
        return;
    }
    m_path.Clear();
    m_path.AddRectangle(rect);
    Stroke(m_path, pen, matrix, paint);
}

void Renderer::StrokeLine(Point from, Point to, const Pen& pen, const Matrix& matrix, const Paint& paint) {
    const bool whole = pen.dashes.empty() && pen.compound.empty() && !pen.HasAnchors();
    const Point a = matrix.Map(from) + Point{Shift(), Shift()}, b = matrix.Map(to) + Point{Shift(), Shift()};
    if (whole && IsThin(pen, matrix) && IsFinite(a) && IsFinite(b) && !(from == to)) {
        Begin(paint);
        m_thin.Begin(m_clip.Bounds());
        m_thin.Add(a, b);
        m_thin.Finish(*this);
        return;
    }
    const bool plain = whole && (from.x == to.x) != (from.y == to.y) && pen.startCap == Cap::Flat &&
                       pen.endCap == Cap::Flat && pen.width * matrix.LargestScale() >= 1;
    Box box;
    const double half = pen.width / 2;
    const double x = from.x == to.x ? half : 0, y = from.y == to.y ? half : 0;
    if (plain && ToBox({std::min(from.x, to.x) - x, std::min(from.y, to.y) - y, std::max(from.x, to.x) + x,
                        std::max(from.y, to.y) + y},
                       matrix, box)) {
        Begin(paint);
        DrawFrame(box, {0, 0, 0, 0});
        return;
    }
    m_path.Clear();
    m_path.MoveTo(from);
    m_path.LineTo(to);
    Stroke(m_path, pen, matrix, paint);
}

// What lies in `outer` and not in `inner`, which may be empty.
void Renderer::DrawFrame(const Box& outer, const Box& inner) {
    Box out = outer, in = inner;
    if (m_settings.edges == Edges::Sharp) {
        out = {ToCentre(out.left), ToCentre(out.top), ToCentre(out.right), ToCentre(out.bottom)};
        in = {ToCentre(in.left), ToCentre(in.top), ToCentre(in.right), ToCentre(in.bottom)};
    }
    const IntRect& clip = m_clip.Bounds();
    const int first = std::max(clip.top, out.top >> 8),
              end = std::min(clip.bottom, (out.bottom + kUnit - 1) >> 8);
    for (int y = first; y < end;) {
        const int outerHeight = Part(y, out.top, out.bottom), innerHeight = Part(y, in.top, in.bottom);
        int next = y + 1;
        while (next < end && Part(next, out.top, out.bottom) == outerHeight &&
               Part(next, in.top, in.bottom) == innerHeight)
            ++next;
        FrameRow(out, in, outerHeight, innerHeight);
        DrawRows(y, next);
        y = next;
    }
}

// The same runs in each of these rows; one colour goes down run by run.
void Renderer::DrawRows(int y, int end) {
    if (m_plain) {
        for (const Run& run : m_runs) {
            const Color color = ScaleColor(m_color, run.value);
            uint8_t* to = m_surface.At(run.x, y);
            if (color >> 24 != 255) {
                m_kernels.blendColorRows(reinterpret_cast<uint32_t*>(to), m_surface.stride, run.length,
                                         end - y, color);
                continue;
            }
            for (int row = y; row < end; ++row, to += m_surface.stride)
                std::fill_n(reinterpret_cast<uint32_t*>(to), run.length, color);
        }
        return;
    }
    for (; y < end && !m_runs.empty(); ++y)
        Row(y, m_runs);
}

// Sets m_runs. Only the pixels at the vertical edges differ from those beside them.
void Renderer::FrameRow(const Box& outer, const Box& inner, int outerHeight, int innerHeight) {
    const IntRect& clip = m_clip.Bounds();
    const bool whole = innerHeight == 0 || inner.left >= inner.right;
    const int left = std::max(clip.left, outer.left >> 8);
    const int right = std::min(clip.right, (outer.right + kUnit - 1) >> 8);
    const auto value = [&](int x) {
        const int hole = whole ? 0 : innerHeight * Part(x, inner.left, inner.right);
        return Covered(outerHeight * Part(x, outer.left, outer.right) - hole);
    };
    m_runs.clear();
    // Each edge lies in one pixel; between these nothing changes.
    int places[4] = {outer.left >> 8, whole ? outer.left >> 8 : inner.left >> 8,
                     whole ? outer.right >> 8 : inner.right >> 8, outer.right >> 8};
    const auto add = [&](int from, int to) {
        from = std::max(from, left);
        to = std::min(to, right);
        const uint8_t covered = from < to ? value(from) : 0;
        if (covered == 0)
            return;
        Run* before = m_runs.empty() ? nullptr : &m_runs.back();
        if (before && before->value == covered && before->x + before->length == from)
            before->length += to - from;
        else
            m_runs.push_back({from, to - from, nullptr, covered});
    };
    int at = left;
    for (const int place : places) {
        if (place < at)
            continue;
        add(at, place);
        add(place, place + 1);
        at = place + 1;
    }
    add(at, right);
}

void Renderer::DrawMask(const GlyphMask& mask, int x, int y, const Paint& paint) {
    const int64_t left = int64_t{x} + mask.left, top = int64_t{y} + mask.top;
    const IntRect& clip = m_clip.Bounds();
    if (left >= clip.right || top >= clip.bottom || left + mask.width <= clip.left ||
        top + mask.height <= clip.top)
        return;
    Begin(paint);
    const int column = static_cast<int>(left), row = static_cast<int>(top);
    const int skipped = std::max(0, clip.left - column);
    const int length = std::min(column + mask.width, clip.right) - column - skipped;
    const int first = std::max(0, clip.top - row), end = std::min(mask.height, clip.bottom - row);
    const uint8_t* coverage = &mask.coverage[static_cast<size_t>(first) * mask.width + skipped];
    if (m_plain) {
        m_kernels.blendColorMasks(reinterpret_cast<uint32_t*>(m_surface.At(column + skipped, row + first)),
                                  m_surface.stride, length, end - first, m_color, coverage, mask.width);
        return;
    }
    for (int i = first; i < end; ++i, coverage += mask.width) {
        const Run run{column + skipped, length, coverage, 255};
        Row(row + i, {&run, 1});
    }
}

void Renderer::Row(int y, std::span<const Run> runs) {
    if (m_plain) {
        auto* row = reinterpret_cast<uint32_t*>(m_surface.At(0, y));
        for (const Run& run : runs)
            DrawColor(row + run.x, run.length, run.coverage, run.value);
        return;
    }
    if (m_clip.IsRectangle()) {
        for (const Run& run : runs)
            Draw(y, run.x, run.length, run.coverage, run.value);
        return;
    }
    const std::span<const Region::Span> spans = m_clip.Row(y);
    size_t span = 0;
    for (const Run& run : runs) {
        const int end = run.x + run.length;
        while (span < spans.size() && spans[span].right <= run.x)
            ++span;
        for (size_t i = span; i < spans.size() && spans[i].left < end; ++i) {
            const int from = std::max(run.x, spans[i].left), to = std::min(end, spans[i].right);
            Draw(y, from, to - from, run.coverage ? run.coverage + (from - run.x) : nullptr, run.value);
        }
    }
}

void Renderer::Draw(int y, int x, int length, const uint8_t* coverage, uint8_t value) {
    if (IsDirect()) {
        DrawOnPixels(reinterpret_cast<uint32_t*>(m_surface.At(x, y)), y, x, length, coverage, value);
        return;
    }
    if (!coverage && value == 0)
        return;
    if (m_pixels.size() < static_cast<size_t>(length))
        m_pixels.resize(length);
    const bool covers = m_solid && !coverage && value == 255 && m_color >> 24 == 255;
    if (covers && m_surface.format == Format::Plain32) {
        std::fill_n(reinterpret_cast<uint32_t*>(m_surface.At(x, y)), length, m_color);
        return;
    }
    if (!covers)
        LoadPixels(m_surface, x, y, length, m_pixels.data());
    DrawOnPixels(m_pixels.data(), y, x, length, coverage, value);
    StorePixels(m_surface, x, y, length, m_pixels.data(), coverage);
}

void Renderer::DrawColor(uint32_t* to, int length, const uint8_t* coverage, uint8_t value) {
    if (coverage) {
        m_kernels.blendColorMask(to, length, m_color, coverage);
        return;
    }
    const Color color = ScaleColor(m_color, value);
    if (color >> 24 == 255)
        std::fill_n(to, length, color);
    else if (color >> 24 != 0)
        m_kernels.blendColor(to, length, color);
}

void Renderer::DrawOnPixels(uint32_t* to, int y, int x, int length, const uint8_t* coverage, uint8_t value) {
    const bool copies = m_settings.mode == Settings::Mode::Copy;
    if (m_solid && (!copies || m_color >> 24 == 255)) {
        DrawColor(to, length, coverage, value);
        return;
    }
    const uint32_t* colors =
        m_solid ? nullptr : m_paint->Pixels({x + 0.5 - Shift(), y + 0.5 - Shift()}, length);
    if (!colors) {
        if (m_colors.size() < static_cast<size_t>(length))
            m_colors.resize(length);
        if (m_solid)
            std::fill_n(m_colors.begin(), length, m_color);
        else
            m_paint->Row({x + 0.5 - Shift(), y + 0.5 - Shift()}, length, m_colors.data());
        colors = m_colors.data();
    }
    if (!coverage && value == 255) {
        if (copies)
            std::copy_n(colors, length, to);
        else
            m_kernels.blendPixels(to, length, colors);
        return;
    }
    if (!coverage) {
        m_values.assign(length, value);
        coverage = m_values.data();
    }
    (copies ? m_kernels.copyPixelsMask : m_kernels.blendPixelsMask)(to, length, colors, coverage);
}

}  // namespace raster
