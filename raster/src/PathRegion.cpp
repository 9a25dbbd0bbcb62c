#include "raster/PathRegion.h"

namespace raster {

namespace {

class RegionSink final : public RowSink {
public:
    void Row(int y, std::span<const Run> runs) override {
        m_spans.clear();
        for (const Run& run : runs) {
            if (!run.coverage) {
                m_spans.push_back({run.x, run.x + run.length});
                continue;
            }
            for (int i = 0; i < run.length; ++i) {
                if (run.coverage[i] == 0)
                    continue;
                const int x = run.x + i;
                if (m_spans.empty() || m_spans.back().right != x)
                    m_spans.push_back({x, x});
                m_spans.back().right = x + 1;
            }
        }
        if (!m_spans.empty())
            m_region.Append(y, m_spans);
    }
    Region Take() { return std::move(m_region); }

private:
    Region m_region;
    std::vector<Region::Span> m_spans;
};

}  // namespace

Region ToRegion(const Path& path, const Matrix& matrix, FillRule rule, Point offset, const IntRect& limits) {
    if (limits.Empty())
        return {};
    Chains chains;
    const Rect clip{limits.left - 1.0, limits.top - 1.0, limits.right + 1.0, limits.bottom + 1.0};
    Flatten(path, matrix, kTolerance, &clip, chains);
    RegionSink sink;
    Rasterizer rasterizer;
    rasterizer.Begin(limits);
    rasterizer.Add(chains, offset);
    rasterizer.Finish(rule, Edges::Sharp, sink);
    return sink.Take();
}

}  // namespace raster
