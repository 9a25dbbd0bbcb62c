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

    /// The pixel at any place.
    Color Pixel(int64_t x, int64_t y) {
        const bool inside = x >= 0 && x < m_width && y >= 0 && y < m_height;
        if (inside && m_direct)
            return *PixelAt(static_cast<int>(x), static_cast<int>(y));
        return AnyPixel(x, y);
    }
    /// Two pixels and the two below them where they are in memory; nulls where they are not.
    std::pair<const uint32_t*, const uint32_t*> Square(int64_t x, int64_t y) const {
        if (!m_direct || x < 0 || x + 1 >= m_width || y < 0 || y + 1 >= m_height)
            return {nullptr, nullptr};
        return {PixelAt(static_cast<int>(x), static_cast<int>(y)),
                PixelAt(static_cast<int>(x), static_cast<int>(y) + 1)};
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
    const uint32_t* PixelAt(int x, int y) const {
        return reinterpret_cast<const uint32_t*>(m_picture.At(x, y));
    }
    Color AnyPixel(int64_t x, int64_t y);
    int Wrapped(int64_t at, int64_t size, bool flips) const;
    bool IsReduced() const { return m_factorX > 1 || m_factorY > 1; }
    void Load(int x, int y, int count, uint32_t* to);
    void Reduce(int x, int y);
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

    // The smaller picture, whose memory is not touched before it is needed, and which of its blocks of a row
    // are there.
    static constexpr int kBlock = 64;
    int m_blocks = 0;
    std::unique_ptr<uint32_t[]> m_reduced;
    std::vector<bool> m_there;
};

}  // namespace raster
