#include "raster/Paint.h"

#include "Channels.h"

namespace raster {

namespace {

// A number of 2^32 from one that goes up by 1 for each turn.
int64_t Turns(double value) {
    const double turns = std::fmod(value, 1048576.0);
    return std::isfinite(turns) ? static_cast<int64_t>(std::floor(turns * 4294967296.0)) : 0;
}

}  // namespace

Ramp::Ramp(std::span<const GradientStop> stops, bool gamma) {
    constexpr int size = 1 << kBits;
    const auto place = [](int i) { return (i + 0.5) / size; };
    int done = 0;
    // Colours up to the first stop, between two stops, and after the last one.
    for (size_t i = 0; i <= stops.size(); ++i) {
        const double end = i < stops.size() ? stops[i].position : 2;
        int last = done;
        while (last < size && place(last) < end)
            ++last;
        if (last > done && (i == 0 || i == stops.size())) {
            const Color color = stops.empty() ? 0 : i == 0 ? stops.front().color : stops.back().color;
            std::fill(&m_colors[done], m_colors.data() + last, Premultiply(color));
        } else if (last > done) {
            Fill(stops[i - 1], stops[i], done, last, gamma);
        }
        done = last;
    }
}

void Ramp::Fill(const GradientStop& from, const GradientStop& to, int first, int end, bool gamma) {
    const auto part = [&](int i) {
        return ((i + 0.5) / (1 << kBits) - from.position) / (to.position - from.position);
    };
    const bool sound = from.position > -1e6 && to.position < 1e6 && to.position > from.position;
    if (!sound) {
        std::fill(&m_colors[first], m_colors.data() + end, Premultiply(to.color));
        return;
    }
    Channels4 a = Channels(from.color), b = Channels(to.color);
    if (gamma) {
        for (int c = 0; c < 3; ++c) {
            a[c] = Brightness(a[c]);
            b[c] = Brightness(b[c]);
        }
        for (int i = first; i < end; ++i) {
            const double share = part(i);
            Channels4 mixed;
            for (int c = 0; c < 4; ++c) {
                const double between = a[c] + (b[c] - a[c]) * share;
                mixed[c] = c < 3 ? FromBrightness(between) : between;
            }
            m_colors[i] = Premultiply(FromChannels(mixed));
        }
        return;
    }
    // Channels of 2^20, a step at a time. Where there is only one colour the step may be too large for that.
    constexpr double unit = 1 << 20;
    int32_t channels[4], steps[4];
    for (int c = 0; c < 4; ++c) {
        channels[c] = static_cast<int32_t>(std::lrint((a[c] + (b[c] - a[c]) * part(first) + 0.5) * unit));
        const double step = (b[c] - a[c]) / ((to.position - from.position) * (1 << kBits));
        steps[c] = end - first > 1 ? static_cast<int32_t>(std::lrint(step * unit)) : 0;
    }
    const bool opaque = (from.color & to.color) >> 24 == 255;
    for (int i = first; i < end; ++i) {
        Color color = 0;
        for (int c = 0; c < 4; ++c) {
            color |= static_cast<Color>(channels[c] >> 20) << (8 * c);
            channels[c] += steps[c];
        }
        m_colors[i] = opaque ? color : Premultiply(color);
    }
}

std::vector<GradientStop> BlendStops(Color first, Color last, std::span<const BlendStop> blend, bool gamma) {
    if (blend.empty())
        return {{0, first}, {1, last}};
    std::vector<GradientStop> stops;
    for (const BlendStop& stop : blend)
        stops.push_back({stop.position, Mix(first, last, std::clamp(stop.factor, 0.0, 1.0), gamma)});
    return stops;
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
    if (step == 0) {
        const bool mirrored = m_back && (place >> 32 & 1) != 0;
        const auto part = static_cast<uint32_t>(place);
        std::fill_n(out, count, m_ramp.At(mirrored ? ~part : part));
        return;
    }
    for (int i = 0; i < count; ++i, place += step) {
        const bool mirrored = m_back && (place >> 32 & 1) != 0;
        const auto part = static_cast<uint32_t>(place);
        out[i] = m_ramp.At(mirrored ? ~part : part);
    }
}

}  // namespace raster
