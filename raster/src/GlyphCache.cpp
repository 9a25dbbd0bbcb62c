#include "raster/GlyphCache.h"

namespace raster {

namespace {

constexpr int kLargest = 1024;  // pixels from the beginning of the writing line; larger letters are paths

class MaskSink final : public RowSink {
public:
    explicit MaskSink(GlyphMask& mask) : m_mask(mask) {}

    void Row(int y, std::span<const Run> runs) override {
        uint8_t* row = &m_mask.coverage[static_cast<size_t>(y - m_mask.top) * m_mask.width];
        for (const Run& run : runs) {
            uint8_t* to = row + (run.x - m_mask.left);
            if (run.coverage)
                std::copy_n(run.coverage, run.length, to);
            else
                std::fill_n(to, run.length, run.value);
        }
    }

private:
    GlyphMask& m_mask;
};

}  // namespace

GlyphMask GlyphCache::Make(const GlyphKey& key, GlyphSource& source) {
    GlyphMask mask;
    m_path.Clear();
    m_chains.Clear();
    if (!source.Outline(key.glyph, m_path))
        return mask;
    Flatten(m_path, Matrix::Translation(static_cast<double>(key.place) / kGlyphPlaces, 0), kTolerance,
            nullptr, m_chains);
    Rect box{kLargest, kLargest, -kLargest, -kLargest};
    for (const Chains::Vertex& vertex : m_chains.vertices)
        box = {std::min(box.left, vertex.at.x), std::min(box.top, vertex.at.y),
               std::max(box.right, vertex.at.x), std::max(box.bottom, vertex.at.y)};
    const IntRect pixels = Intersect({static_cast<int>(std::floor(std::max(box.left, -1.0 * kLargest))),
                                      static_cast<int>(std::floor(std::max(box.top, -1.0 * kLargest))),
                                      static_cast<int>(std::ceil(std::min(box.right, 1.0 * kLargest))),
                                      static_cast<int>(std::ceil(std::min(box.bottom, 1.0 * kLargest)))},
                                     {-kLargest, -kLargest, kLargest, kLargest});
    if (pixels.Empty())
        return mask;
    mask.left = pixels.left;
    mask.top = pixels.top;
    mask.width = (pixels.Width() + 7) / 8 * 8;  // wide loops have nothing left over
    mask.height = pixels.Height();
    mask.coverage.resize(static_cast<size_t>(mask.width) * mask.height);
    MaskSink sink(mask);
    m_rasterizer.Begin(pixels);
    m_rasterizer.Add(m_chains, {});
    m_rasterizer.Finish(FillRule::Winding, Edges::Smooth, sink);
    return mask;
}

const GlyphMask& GlyphCache::Get(const GlyphKey& key, GlyphSource& source) {
    if (const auto found = m_index.find(key); found != m_index.end()) {
        m_entries.splice(m_entries.begin(), m_entries, found->second);
        return found->second->mask;
    }
    Entry entry{key, Make(key, source), 0};
    // The list's and the index's nodes are counted with what they hold.
    entry.bytes = entry.mask.coverage.size() + sizeof(Entry) + sizeof(GlyphKey) + 8 * sizeof(void*);
    m_bytes += entry.bytes;
    m_entries.push_front(std::move(entry));
    m_index[key] = m_entries.begin();
    while (m_bytes > m_limit && m_entries.size() > 1) {
        m_bytes -= m_entries.back().bytes;
        m_index.erase(m_entries.back().key);
        m_entries.pop_back();
    }
    return m_entries.front().mask;
}

void GlyphCache::Clear() {
    m_index.clear();
    m_entries.clear();
    m_bytes = 0;
}

}  // namespace raster
