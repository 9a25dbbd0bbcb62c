#include "PictureRows.h"

#include "PixelRows.h"

namespace raster {

namespace {
constexpr int64_t kMostKept = int64_t{1} << 24;  // pixels of a picture as large as it is
}

PictureRows::PictureRows(const Surface& picture, int factorX, int factorY, Wrap wrap,
                         const ColorEffects* effects, Color outside)
    : m_picture(picture),
      m_factorX(factorX),
      m_factorY(factorY),
      m_width((picture.width + factorX - 1) / factorX),
      m_height((picture.height + factorY - 1) / factorY),
      m_wrap(wrap),
      m_effects(effects && !effects->Empty() ? effects : nullptr),
      m_outside(Premultiply(outside)),
      m_direct(picture.format == Format::Premultiplied32 && !m_effects && !IsReduced()) {
    if (IsReduced())
        MakeCopy();
}

void PictureRows::Keep() {
    if (!m_direct && !m_copy && static_cast<int64_t>(m_width) * m_height <= kMostKept)
        MakeCopy();
}

void PictureRows::MakeCopy() {
    m_blocks = (m_width + kBlock - 1) / kBlock;
    m_copy = std::make_unique_for_overwrite<uint32_t[]>(static_cast<size_t>(m_width) * m_height);
    m_there.resize(static_cast<size_t>(m_blocks) * m_height);
}

// Where a place lies in the picture; -1 for beside it.
int PictureRows::Wrapped(int64_t at, int64_t size, bool flips) const {
    if (at >= 0 && at < size)
        return static_cast<int>(at);
    if (m_wrap == Wrap::Clamp)
        return -1;
    const int64_t period = flips ? 2 * size : size;
    const int64_t rest = (at % period + period) % period;
    return static_cast<int>(rest < size ? rest : period - 1 - rest);
}

Color PictureRows::AnyPixel(int64_t x, int64_t y) {
    const int column = WrapX(x), row = WrapY(y);
    if (column < 0 || row < 0)
        return m_outside;
    uint32_t pixel = 0;
    Load(column, row, 1, &pixel);
    return pixel;
}

const uint32_t* PictureRows::Row(int64_t y, int64_t left, int64_t right) {
    const int row = WrapY(y);
    if (m_direct && row >= 0 && left >= 0 && right <= m_width)
        return PixelAt(static_cast<int>(left), row);
    for (size_t i = 0; i < m_kept.size(); ++i) {
        const Kept& kept = m_kept[i];
        if (kept.y == row && kept.left == left && kept.right == right) {
            m_next = (i + 1) % m_kept.size();
            return kept.pixels.data();
        }
    }
    Kept& kept = m_kept[m_next];
    m_next = (m_next + 1) % m_kept.size();
    kept.y = row;
    kept.left = left;
    kept.right = right;
    const auto count = static_cast<size_t>(right - left);
    if (kept.pixels.size() < count)
        kept.pixels.resize(count);
    // What lies beside each other in the picture is loaded together.
    for (size_t i = 0; i < count;) {
        const int64_t place = left + static_cast<int64_t>(i);
        const int column = row < 0 ? -1 : WrapX(place);
        // Unless they run backwards there.
        const bool forwards = column >= 0 && (column + 1 == m_width || WrapX(place + 1) > column);
        const size_t length = forwards ? std::min(count - i, static_cast<size_t>(m_width - column)) : 1;
        if (column < 0)
            kept.pixels[i] = m_outside;
        else
            Load(column, row, static_cast<int>(length), &kept.pixels[i]);
        i += length;
    }
    return kept.pixels.data();
}

// Pixels that are in the picture.
void PictureRows::Load(int x, int y, int count, uint32_t* to) {
    if (m_copy) {
        for (int block = x / kBlock; block * kBlock < x + count; ++block)
            PixelAt(block * kBlock, y);
        std::copy_n(&m_copy[static_cast<size_t>(y) * m_width + x], count, to);
        return;
    }
    LoadPixels(m_picture, x, y, count, to);
    if (m_effects)
        m_effects->ApplyTo({to, static_cast<size_t>(count)});
}

void PictureRows::Fill(int block, int y) {
    m_there[static_cast<size_t>(y) * m_blocks + block] = true;
    uint32_t* to = &m_copy[static_cast<size_t>(y) * m_width];
    const int first = block * kBlock, end = std::min(m_width, first + kBlock);
    if (!IsReduced()) {
        LoadPixels(m_picture, first, y, end - first, to + first);
        if (m_effects)
            m_effects->ApplyTo({to + first, static_cast<size_t>(end - first)});
        return;
    }
    const int bottom = std::min(m_picture.height, (y + 1) * m_factorY);
    for (int x = first; x < end; ++x)
        to[x] = Mean(x * m_factorX, y * m_factorY, std::min(m_picture.width, (x + 1) * m_factorX), bottom);
}

Color PictureRows::Mean(int left, int top, int right, int bottom) const {
    std::array<uint64_t, 4> sums{};
    std::array<uint32_t, 64> pixels;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; x += static_cast<int>(pixels.size())) {
            const int count = std::min<int>(pixels.size(), right - x);
            LoadPixels(m_picture, x, y, count, pixels.data());
            if (m_effects)
                m_effects->ApplyTo({pixels.data(), static_cast<size_t>(count)});
            for (int i = 0; i < count; ++i) {
                for (int c = 0; c < 4; ++c)
                    sums[c] += pixels[i] >> (8 * c) & 255;
            }
        }
    }
    const uint64_t count = static_cast<uint64_t>(right - left) * (bottom - top);
    Color mean = 0;
    for (int c = 0; c < 4; ++c)
        mean |= static_cast<Color>((sums[c] + count / 2) / count) << (8 * c);
    return mean;
}

}  // namespace raster
