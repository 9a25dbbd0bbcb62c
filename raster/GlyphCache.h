// Letters as masks of coverage, made once.
#pragma once

#include "raster/Rasterizer.h"

#include <list>
#include <unordered_map>

namespace raster {

/// Where outlines of letters come from.
class GlyphSource {
public:
    virtual ~GlyphSource() = default;
    /// Adds the outline of a glyph to `out`, in pixels; (0, 0) is where its writing line begins. False when
    /// there is none.
    virtual bool Outline(uint32_t glyph, Path& out) = 0;
};

/// Names a mask: the font at its size with everything that changes outlines, by a number that the caller
/// gives, the glyph, and the parts of a pixel (of kGlyphPlaces) by which it is moved to the right.
struct GlyphKey {
    uint64_t font = 0;
    uint32_t glyph = 0;
    uint32_t place = 0;
    friend bool operator==(const GlyphKey&, const GlyphKey&) = default;
};
inline constexpr int kGlyphPlaces = 4;

/// Coverage of a glyph. (0, 0) is the pixel of the beginning of its writing line.
struct GlyphMask {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    std::vector<uint8_t> coverage;
};

/// Masks by their keys; those that were not used for longest go when there are too many.
class GlyphCache {
public:
    /// At most `limit` bytes of masks and what keeps them, but always the mask used last.
    explicit GlyphCache(size_t limit) : m_limit(limit) {}

    /// The mask of a glyph, which is made when it is not there; empty for what has no outline. It stays until
    /// the next call.
    const GlyphMask& Get(const GlyphKey& key, GlyphSource& source);
    size_t Bytes() const { return m_bytes; }
    void Clear();

private:
    struct Hash {
        size_t operator()(const GlyphKey& key) const {
            return static_cast<size_t>((key.font * 0x9E3779B97F4A7C15u) ^ (key.glyph * 0xC2B2AE3D27D4EB4Fu) ^
                                       (uint64_t{key.place} << 61));
        }
    };
    struct Entry {
        GlyphKey key;
        GlyphMask mask;
        size_t bytes = 0;
    };

    GlyphMask Make(const GlyphKey& key, GlyphSource& source);

    size_t m_limit;
    size_t m_bytes = 0;
    std::list<Entry> m_entries;  // the one used last is first
    std::unordered_map<GlyphKey, std::list<Entry>::iterator, Hash> m_index;
    Rasterizer m_rasterizer;
    Path m_path;
    Chains m_chains;
};

}  // namespace raster
