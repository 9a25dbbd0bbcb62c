// A picture's pixels as textures want them.
#pragma once

#include "raster/Recolor.h"

namespace raster {

/// Premultiplied pixels of a picture, repeated, recoloured and made smaller by whole factors; worked out
/// where they are asked for.
class PictureRows {
public:
    /// The picture's pixels and the effects are kept by their owner.
    PictureRows(const Surface& picture, int factorX, int factorY, Wrap wrap, const ColorEffects* effects,
                Color outside);

    /// Has pixels kept once they were worked out, which pays when they are asked for one by one.
    void Keep();

    /// The pixel at any place.
    Color Pixel(int64_t x, int64_t y) {
        if (x >= 0 && x < m_width && y >= 0 && y < m_height && (m_direct || m_copy))
            return *PixelAt(static_cast<int>(x), static_cast<int>(y));
        return AnyPixel(x, y);
    }
    /// Two pixels and the two below them where they are in memory; nulls where they are not.
    std::pair<const uint32_t*, const uint32_t*> Square(int64_t x, int64_t y) {
        if (!(m_direct || m_copy) || x < 0 || x + 1 >= m_width || y < 0 || y + 1 >= m_height)
            return {nullptr, nullptr};
        const int column = static_cast<int>(x), row = static_cast<int>(y);
        PixelAt(column + 1, row);
        PixelAt(column + 1, row + 1);
        return {PixelAt(column, row), PixelAt(column, row + 1)};
    }
    /// Pixels [left, right) of a row; they stay until the next call but one.
    const uint32_t* Row(int64_t y, int64_t left, int64_t right);

private:
    struct Kept {
        int64_t y = 0, left = 0, right = 0;
        std::vector<uint32_t> pixels;
    };

    int WrapX(int64_t x) const {
        return Wrapped(x, m_width, m_wrap == Wrap::FlipX || m_wrap == Wrap::FlipXY);
    }
    int WrapY(int64_t y) const {
        return Wrapped(y, m_height, m_wrap == Wrap::FlipY || m_wrap == Wrap::FlipXY);
    }
    // A pixel of the picture or the copy, which has it and its block from then on.
    const uint32_t* PixelAt(int x, int y) {
        if (m_direct)
            return reinterpret_cast<const uint32_t*>(m_picture.At(x, y));
        if (!m_there[static_cast<size_t>(y) * m_blocks + x / kBlock])
            Fill(x / kBlock, y);
        return &m_copy[static_cast<size_t>(y) * m_width + x];
    }
    void MakeCopy();
    Color AnyPixel(int64_t x, int64_t y);
    int Wrapped(int64_t at, int64_t size, bool flips) const;
    bool IsReduced() const { return m_factorX > 1 || m_factorY > 1; }
    void Load(int x, int y, int count, uint32_t* to);
    void Fill(int block, int y);
    Color Mean(int x, int y, int right, int bottom) const;

    Surface m_picture;
    int m_factorX, m_factorY;
    int m_width, m_height;  // after that
    Wrap m_wrap;
    const ColorEffects* m_effects;
    Color m_outside;
    bool m_direct;  // the picture's own memory has what is wanted

    std::array<Kept, 4> m_kept;
    size_t m_next = 0;  // of m_kept to be used again

    // The pixels that were worked out, in memory that is not touched before it is needed, and which of their
    // blocks of a row are there. Always for a picture made smaller.
    static constexpr int kBlock = 64;
    int m_blocks = 0;
    std::unique_ptr<uint32_t[]> m_copy;
    std::vector<bool> m_there;
};

}  // namespace raster
