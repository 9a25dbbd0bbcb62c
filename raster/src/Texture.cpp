#include "PictureRows.h"

#include "Bilinear.h"

namespace raster {

namespace {

constexpr double kFar = 1e15;

// The cubic convolution with a slope of -1/2: parts of four pixels in a row.
template <class Real>
std::array<Real, 4> CubicWeights(Real t) {
    const Real s = t * t, c = s * t;
    return {(-c + 2 * s - t) / 2, (3 * c - 5 * s + 2) / 2, (-3 * c + 4 * s + t) / 2, (c - s) / 2};
}

// What swings over stays within the alpha.
Color FromSums(const float* sums) {
    const float alpha = std::clamp(sums[3], 0.0f, 255.0f);
    Color color = static_cast<Color>(std::lrint(alpha)) << 24;
    for (int c = 0; c < 3; ++c)
        color |= static_cast<Color>(std::lrint(std::clamp(sums[c], 0.0f, alpha))) << (8 * c);
    return color;
}

// How many pixels of a picture become one, `scale` of them being as wide as a pixel of the surface.
int Factor(double scale, int size) {
    return scale >= 2 ? static_cast<int>(std::min(scale, static_cast<double>(size))) : 1;
}

}  // namespace

Texture::Texture(const Surface& picture, const Matrix& matrix, Wrap wrap, Sampling sampling,
                 const ColorEffects* effects, Color outside)
    : m_sampling(sampling) {
    const std::optional<Matrix> inverse = matrix.Inverse();
    m_nothing = !inverse || picture.Bounds().Empty();
    if (m_nothing)
        return;
    m_inverse = *inverse;
    int factorX = 1, factorY = 1;
    if (sampling == Sampling::SmoothBilinear || sampling == Sampling::SmoothBicubic) {
        m_sampling = sampling == Sampling::SmoothBilinear ? Sampling::Bilinear : Sampling::Bicubic;
        factorX = Factor(Length({m_inverse.m11, m_inverse.m21}), picture.width);
        factorY = Factor(Length({m_inverse.m12, m_inverse.m22}), picture.height);
        m_inverse = m_inverse * Matrix::Scaling(1.0 / factorX, 1.0 / factorY);
    }
    m_rows = std::make_unique<PictureRows>(picture, factorX, factorY, wrap, effects, outside);
}

Texture::~Texture() = default;

void Texture::Row(Point first, int count, uint32_t* out) const {
    const Point start = m_nothing ? Point() : m_inverse.Map(first);
    const Point end = start + Point{m_inverse.m11, m_inverse.m12} * count;
    const bool near =
        std::max({std::abs(start.x), std::abs(start.y), std::abs(end.x), std::abs(end.y)}) < kFar;
    if (m_nothing || !near)
        std::fill_n(out, count, 0u);
    else if (m_inverse.m12 != 0 || !AlongRows(start, count, out))
        AnyWay(start, count, out);
}

const uint32_t* Texture::Pixels(Point first, int count) const {
    const Point at = m_nothing ? Point() : m_inverse.Map(first);
    const bool shifted =
        m_inverse.m11 == 1 && m_inverse.m12 == 0 && std::abs(at.x) < kFar && std::abs(at.y) < kFar;
    // Other samplings than the nearest give the same in the middle of pixels.
    const bool middle = at.x - std::floor(at.x) == 0.5 && at.y - std::floor(at.y) == 0.5;
    if (m_nothing || !shifted || (m_sampling != Sampling::Nearest && !middle))
        return nullptr;
    const auto left = static_cast<int64_t>(std::floor(at.x));
    return m_rows->Row(static_cast<int64_t>(std::floor(at.y)), left, left + count);
}

// Where a row of the surface runs along one of the picture. False when too much of the picture lies between
// its pixels.
bool Texture::AlongRows(Point start, int count, uint32_t* out) const {
    const double step = m_inverse.m11;
    const double shift = m_sampling == Sampling::Nearest ? 0 : 0.5;
    const double x = start.x - shift, y = start.y - shift;
    const auto [least, most] = std::minmax({x, x + step * (count - 1)});
    const double columns = most - least;
    if (columns > 4.0 * count + 64)
        return false;
    const auto left = static_cast<int64_t>(std::floor(least)) - 1, row = static_cast<int64_t>(std::floor(y));
    const auto right = static_cast<int64_t>(std::floor(most)) + 3;
    // Places from `left` on, in 1/2^32 of a pixel.
    int64_t place = std::llrint((x - static_cast<double>(left)) * 4294967296.0);
    const int64_t change = std::llrint(step * 4294967296.0);
    const int64_t last = (right - left - 3) * 4294967296 + 4294967295;
    const auto pixel = [&] {
        return static_cast<size_t>(std::clamp<int64_t>(place, 4294967296, last) >> 32);
    };
    if (m_sampling == Sampling::Nearest) {
        const uint32_t* from = m_rows->Row(row, left, right);
        for (int i = 0; i < count; ++i, place += change)
            out[i] = from[pixel()];
        return true;
    }
    const double below = y - static_cast<double>(row);
    if (m_sampling == Sampling::Bilinear) {
        const uint32_t* upper = m_rows->Row(row, left, right);
        const uint32_t* lower = m_rows->Row(row + 1, left, right);
        const auto down = static_cast<uint32_t>(std::lrint(below * 256));
        for (int i = 0; i < count; ++i, place += change) {
            const size_t at = pixel();
            const auto across = static_cast<uint32_t>(((place & 0xFFFFFFFF) + (1 << 23)) >> 24);
            out[i] = raster::Bilinear(upper + at, lower + at, across, down);
        }
        return true;
    }
    // Rows first, in each column; then columns.
    const auto width = static_cast<size_t>(right - left);
    m_columns.assign(width * 4, 0);
    const std::array<float, 4> downs = CubicWeights(static_cast<float>(below));
    for (int i = 0; i < 4; ++i) {
        const uint32_t* from = m_rows->Row(row + i - 1, left, right);
        for (size_t column = 0; column < width; ++column) {
            for (int c = 0; c < 4; ++c)
                m_columns[column * 4 + c] += static_cast<float>(from[column] >> (8 * c) & 255) * downs[i];
        }
    }
    for (int i = 0; i < count; ++i, place += change) {
        const float* from = &m_columns[(pixel() - 1) * 4];
        const auto weights = CubicWeights(static_cast<float>(place & 0xFFFFFFFF) / 4294967296.0f);
        float sums[4];
        for (int c = 0; c < 4; ++c)
            sums[c] = from[c] * weights[0] + from[4 + c] * weights[1] + from[8 + c] * weights[2] +
                      from[12 + c] * weights[3];
        out[i] = FromSums(sums);
    }
    return true;
}

void Texture::AnyWay(Point start, int count, uint32_t* out) const {
    m_rows->Keep();
    for (int i = 0; i < count; ++i) {
        const Point at = start + Point{m_inverse.m11, m_inverse.m12} * i;
        if (m_sampling == Sampling::Nearest)
            out[i] =
                m_rows->Pixel(static_cast<int64_t>(std::floor(at.x)), static_cast<int64_t>(std::floor(at.y)));
        else
            out[i] = m_sampling == Sampling::Bilinear ? Bilinear(at.x, at.y) : Bicubic(at.x, at.y);
    }
}

Color Texture::Bilinear(double x, double y) const {
    const double left = std::floor(x - 0.5), top = std::floor(y - 0.5);
    const auto across = static_cast<uint32_t>(std::lrint((x - 0.5 - left) * 256));
    const auto down = static_cast<uint32_t>(std::lrint((y - 0.5 - top) * 256));
    const auto column = static_cast<int64_t>(left), row = static_cast<int64_t>(top);
    if (const auto [upper, lower] = m_rows->Square(column, row); upper)
        return raster::Bilinear(upper, lower, across, down);
    const uint32_t upper[] = {m_rows->Pixel(column, row), m_rows->Pixel(column + 1, row)};
    const uint32_t lower[] = {m_rows->Pixel(column, row + 1), m_rows->Pixel(column + 1, row + 1)};
    return raster::Bilinear(upper, lower, across, down);
}

Color Texture::Bicubic(double x, double y) const {
    const double left = std::floor(x - 0.5), top = std::floor(y - 0.5);
    const auto across = CubicWeights(static_cast<float>(x - 0.5 - left));
    const auto down = CubicWeights(static_cast<float>(y - 0.5 - top));
    float sums[4] = {};
    for (int i = 0; i < 16; ++i) {
        const Color pixel =
            m_rows->Pixel(static_cast<int64_t>(left) + i % 4 - 1, static_cast<int64_t>(top) + i / 4 - 1);
        for (int c = 0; c < 4; ++c)
            sums[c] += static_cast<float>(pixel >> (8 * c) & 255) * across[i % 4] * down[i / 4];
    }
    return FromSums(sums);
}

}  // namespace raster
