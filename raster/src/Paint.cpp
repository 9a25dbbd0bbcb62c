#include "raster/Paint.h"

namespace raster {

namespace {

// A number of 2^32 from one that goes up by 1 for each turn.
int64_t Turns(double value) {
    const double turns = std::fmod(value, 1048576.0);
    return std::isfinite(turns) ? static_cast<int64_t>(std::floor(turns * 4294967296.0)) : 0;
}

std::array<double, 4> Channels(Color color) {
    return {static_cast<double>(color & 255), static_cast<double>(color >> 8 & 255),
            static_cast<double>(color >> 16 & 255), static_cast<double>(color >> 24)};
}

Color FromChannels(const std::array<double, 4>& channels) {
    const auto byte = [](double value) {
        return static_cast<uint32_t>(std::lrint(std::clamp(value, 0.0, 255.0)));
    };
    return byte(channels[3]) << 24 | byte(channels[2]) << 16 | byte(channels[1]) << 8 | byte(channels[0]);
}

Color Between(Color a, Color b, double part, bool gamma) {
    const std::array<double, 4> from = Channels(a), to = Channels(b);
    std::array<double, 4> mixed;
    for (int i = 0; i < 4; ++i) {
        if (gamma && i < 3) {
            const double first = std::pow(from[i] / 255, 2.2), second = std::pow(to[i] / 255, 2.2);
            mixed[i] = std::pow(first + (second - first) * part, 1 / 2.2) * 255;
        } else {
            mixed[i] = from[i] + (to[i] - from[i]) * part;
        }
    }
    return FromChannels(mixed);
}

}  // namespace

void SolidPaint::Row(Point, int count, uint32_t* out) const {
    std::fill_n(out, count, m_color);
}

Ramp::Ramp(std::span<const GradientStop> stops, bool gamma) {
    size_t next = 0;
    for (size_t i = 0; i < m_colors.size(); ++i) {
        const double place = (static_cast<double>(i) + 0.5) / static_cast<double>(m_colors.size());
        while (next < stops.size() && stops[next].position <= place)
            ++next;
        Color color = 0;
        if (stops.empty())
            color = 0;
        else if (next == 0 || next == stops.size())
            color = next == 0 ? stops.front().color : stops.back().color;
        else
            color = Between(
                stops[next - 1].color, stops[next].color,
                (place - stops[next - 1].position) / (stops[next].position - stops[next - 1].position),
                gamma);
        m_colors[i] = Premultiply(color);
    }
}

LinearGradient::LinearGradient(Point from, Point to, const Matrix& matrix,
                               std::span<const GradientStop> stops, Wrap wrap, bool gamma)
    : m_ramp(stops, gamma), m_back(wrap != Wrap::Tile) {
    const Point way = to - from;
    const double square = Dot(way, way);
    const std::optional<Matrix> inverse = matrix.Inverse();
    if (!inverse || !(square > 0) || !IsFinite(way))
        return;
    const Point along = way * (1 / square);
    m_x = Dot(along, {inverse->m11, inverse->m12});
    m_y = Dot(along, {inverse->m21, inverse->m22});
    m_start = Dot(along, Point{inverse->dx, inverse->dy} - from);
}

void LinearGradient::Row(Point first, int count, uint32_t* out) const {
    int64_t place = Turns(m_x * first.x + m_y * first.y + m_start);
    const int64_t step = Turns(m_x);
    for (int i = 0; i < count; ++i, place += step) {
        const bool mirrored = m_back && (place >> 32 & 1) != 0;
        const auto part = static_cast<uint32_t>(place);
        out[i] = m_ramp.At(mirrored ? ~part : part);
    }
}

PathGradient::PathGradient(std::span<const Point> outline, std::span<const Color> surround, Point centre,
                           Color center, std::span<const double> blend, const Matrix& matrix)
    : m_centre(matrix.Map(centre)), m_center(Channels(center)), m_blend(blend.begin(), blend.end()) {
    const auto color = [&](size_t i) {
        return Channels(surround.empty() ? 0 : surround[std::min(i, surround.size() - 1)]);
    };
    for (size_t i = 0; i < outline.size(); ++i) {
        const size_t next = i + 1 < outline.size() ? i + 1 : 0;
        const Triangle triangle{matrix.Map(outline[i]), matrix.Map(outline[next]), color(i), color(next)};
        if (IsFinite(triangle.a) && IsFinite(triangle.b) && IsFinite(m_centre))
            m_triangles.push_back(triangle);
    }
}

double PathGradient::Blend(double depth) const {
    if (m_blend.size() < 2)
        return depth;
    const double place = depth * static_cast<double>(m_blend.size() - 1);
    const size_t at = std::min(static_cast<size_t>(place), m_blend.size() - 2);
    return m_blend[at] + (m_blend[at + 1] - m_blend[at]) * (place - static_cast<double>(at));
}

void PathGradient::Row(Point first, int count, uint32_t* out) const {
    std::fill_n(out, count, 0u);
    for (const Triangle& triangle : m_triangles) {
        const Point a = triangle.a - m_centre, b = triangle.b - m_centre, start = first - m_centre;
        const double area = Cross(a, b);
        if (area == 0 || start.y < std::min({a.y, b.y, 0.0}) || start.y > std::max({a.y, b.y, 0.0}))
            continue;
        // A point is a * partA + b * partB; both change evenly along the row. Inside none is negative and the
        // sum at most 1.
        const double partA = Cross(start, b) / area, stepA = b.y / area;
        const double partB = Cross(a, start) / area, stepB = -a.y / area;
        if (!IsFinite({partA, stepA}) || !IsFinite({partB, stepB}))
            continue;
        double from = 0, to = count;
        const auto atLeast0 = [&](double value, double step) {
            if (step > 0)
                from = std::max(from, std::ceil(-value / step));
            else if (step < 0)
                to = std::min(to, std::floor(-value / step) + 1);
            else if (value < 0)
                to = 0;
        };
        atLeast0(partA, stepA);
        atLeast0(partB, stepB);
        atLeast0(1 - partA - partB, -stepA - stepB);
        if (!(from < to))
            continue;
        for (int i = static_cast<int>(from); i < to; ++i) {
            const double shareA = std::max(0.0, partA + stepA * i), shareB = std::max(0.0, partB + stepB * i);
            const double reach = std::min(1.0, shareA + shareB);
            const double depth = Blend(1 - reach);
            const double side = reach > 0 ? shareB / (shareA + shareB) : 0;
            std::array<double, 4> mixed;
            for (int c = 0; c < 4; ++c) {
                const double edge = triangle.colorA[c] + (triangle.colorB[c] - triangle.colorA[c]) * side;
                mixed[c] = edge + (m_center[c] - edge) * depth;
            }
            out[i] = Premultiply(FromChannels(mixed));
        }
    }
}

Texture::Texture(const Surface& picture, const Matrix& matrix, Wrap wrap, Sampling sampling)
    : m_picture(picture), m_wrap(wrap), m_sampling(sampling) {
    const std::optional<Matrix> inverse = matrix.Inverse();
    m_nothing = !inverse || picture.Bounds().Empty();
    if (inverse)
        m_inverse = *inverse;
}

Color Texture::Pixel(int64_t x, int64_t y) const {
    const auto wrapped = [](int64_t at, int64_t size, bool flips) {
        const int64_t period = flips ? 2 * size : size;
        const int64_t rest = (at % period + period) % period;
        return rest < size ? rest : period - 1 - rest;
    };
    const int64_t width = m_picture.width, height = m_picture.height;
    if (m_wrap == Wrap::Clamp) {
        if (x < 0 || y < 0 || x >= width || y >= height)
            return 0;
    } else {
        x = wrapped(x, width, m_wrap == Wrap::FlipX || m_wrap == Wrap::FlipXY);
        y = wrapped(y, height, m_wrap == Wrap::FlipY || m_wrap == Wrap::FlipXY);
    }
    return ReadPixel(m_picture, static_cast<int>(x), static_cast<int>(y));
}

Color Texture::Bilinear(double x, double y) const {
    const double left = std::floor(x - 0.5), top = std::floor(y - 0.5);
    const double right = x - 0.5 - left, below = y - 0.5 - top;
    const auto column = static_cast<int64_t>(left), row = static_cast<int64_t>(top);
    std::array<double, 4> sum{};
    for (int i = 0; i < 4; ++i) {
        const double weight = (i % 2 != 0 ? right : 1 - right) * (i / 2 != 0 ? below : 1 - below);
        const std::array<double, 4> pixel = Channels(Pixel(column + i % 2, row + i / 2));
        for (int c = 0; c < 4; ++c)
            sum[c] += pixel[c] * weight;
    }
    return FromChannels(sum);
}

Color Texture::Bicubic(double x, double y) const {
    // The cubic convolution with a slope of -1/2.
    const auto weights = [](double t) {
        const double s = t * t, c = s * t;
        return std::array<double, 4>{(-c + 2 * s - t) / 2, (3 * c - 5 * s + 2) / 2, (-3 * c + 4 * s + t) / 2,
                                     (c - s) / 2};
    };
    const double left = std::floor(x - 0.5), top = std::floor(y - 0.5);
    const std::array<double, 4> across = weights(x - 0.5 - left), down = weights(y - 0.5 - top);
    std::array<double, 4> sum{};
    for (int i = 0; i < 16; ++i) {
        const std::array<double, 4> pixel =
            Channels(Pixel(static_cast<int64_t>(left) + i % 4 - 1, static_cast<int64_t>(top) + i / 4 - 1));
        for (int c = 0; c < 4; ++c)
            sum[c] += pixel[c] * across[i % 4] * down[i / 4];
    }
    // What swings over stays within the alpha.
    for (int c = 0; c < 3; ++c)
        sum[c] = std::min(sum[c], std::clamp(sum[3], 0.0, 255.0));
    return FromChannels(sum);
}

void Texture::Row(Point first, int count, uint32_t* out) const {
    constexpr double far = 1e15;
    for (int i = 0; i < count; ++i) {
        const Point at = m_inverse.Map({first.x + i, first.y});
        if (m_nothing || !(std::abs(at.x) < far && std::abs(at.y) < far))
            out[i] = 0;
        else if (m_sampling == Sampling::Nearest)
            out[i] = Pixel(static_cast<int64_t>(std::floor(at.x)), static_cast<int64_t>(std::floor(at.y)));
        else
            out[i] = m_sampling == Sampling::Bilinear ? Bilinear(at.x, at.y) : Bicubic(at.x, at.y);
    }
}

Hatch::Hatch(const std::array<uint8_t, 8>& rows, Color fore, Color back, int originX, int originY)
    : m_rows(rows),
      m_fore(Premultiply(fore)),
      m_back(Premultiply(back)),
      m_x(originX & 7),
      m_y(originY & 7) {}

void Hatch::Row(Point first, int count, uint32_t* out) const {
    const int x = static_cast<int>(std::floor(first.x)) - m_x,
              y = static_cast<int>(std::floor(first.y)) - m_y;
    const uint8_t row = m_rows[y & 7];
    for (int i = 0; i < count; ++i)
        out[i] = (row << ((x + i) & 7) & 0x80) != 0 ? m_fore : m_back;
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

Color ReadPixel(const Surface& surface, int x, int y) {
    const uint8_t* from = surface.At(x, y);
    const Color color = from[0] | from[1] << 8 | from[2] << 16;
    if (surface.format == Format::Opaque24 || surface.format == Format::Opaque32)
        return color | 0xFF000000;
    const Color whole = color | static_cast<Color>(from[3]) << 24;
    return surface.format == Format::Plain32 ? Premultiply(whole) : whole;
}

}  // namespace raster
