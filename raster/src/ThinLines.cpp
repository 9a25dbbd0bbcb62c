#include "raster/ThinLines.h"

namespace raster {

void ThinLines::Begin(const IntRect& clip) {
    m_clip = clip;
    m_spans.clear();
}

void ThinLines::Add(const Chains& chains, Point offset) {
    for (const Chains::Chain& chain : chains.chains) {
        const auto vertices = chains.Of(chain);
        const size_t lines = chain.closed ? vertices.size() : vertices.size() - 1;
        for (size_t i = 0; i < lines; ++i) {
            const Point from = vertices[i].at + offset,
                        to = vertices[i + 1 < vertices.size() ? i + 1 : 0].at + offset;
            AddLine(from, to, chain.startsInside && i == 0, chain.endsInside && i + 1 == lines);
        }
    }
}

void ThinLines::AddLine(Point from, Point to, bool startsInside, bool endsInside) {
    const bool flat = std::abs(to.x - from.x) >= std::abs(to.y - from.y);
    if (!flat) {
        std::swap(from.x, from.y);
        std::swap(to.x, to.y);
    }
    if (from.x > to.x) {
        std::swap(from, to);
        std::swap(startsInside, endsInside);
    }
    // Along x from here on. Middles of pixels are half a pixel behind their beginning.
    const double low = flat ? m_clip.left : m_clip.top, high = flat ? m_clip.right : m_clip.bottom;
    const double first = startsInside ? std::ceil(from.x - 0.5) : PixelOf(from.x);
    const double last = endsInside ? std::ceil(to.x - 0.5) - 1 : PixelOf(to.x);
    const double width = to.x - from.x, slope = width > 0 ? (to.y - from.y) / width : 0;
    if (!(last >= low && first < high))
        return;
    const int begin = static_cast<int>(std::max(first, low)),
              end = static_cast<int>(std::min(last, high - 1));
    if (flat && slope == 0) {
        const double y = PixelOf(from.y);
        if (begin <= end && y >= m_clip.top && y < m_clip.bottom)
            m_spans.push_back({static_cast<int>(y), begin, end + 1});
        return;
    }
    for (int x = begin; x <= end; ++x) {
        const double along = std::clamp(x + 0.5 - from.x, 0.0, width);
        const double y = PixelOf(from.y + along * slope);
        if (y >= -kFarthestPixel && y <= kFarthestPixel)
            AddPixel(flat ? x : static_cast<int>(y), flat ? static_cast<int>(y) : x);
    }
}

void ThinLines::AddPixel(int x, int y) {
    if (!m_clip.Contains(x, y))
        return;
    if (!m_spans.empty() && m_spans.back().y == y && m_spans.back().right == x)
        ++m_spans.back().right;
    else
        m_spans.push_back({y, x, x + 1});
}

void ThinLines::Finish(RowSink& sink) {
    std::sort(m_spans.begin(), m_spans.end(),
              [](const Span& a, const Span& b) { return a.y != b.y ? a.y < b.y : a.left < b.left; });
    for (size_t i = 0; i < m_spans.size();) {
        const int y = m_spans[i].y;
        m_runs.clear();
        for (; i < m_spans.size() && m_spans[i].y == y; ++i) {
            const Span& span = m_spans[i];
            Run* last = m_runs.empty() ? nullptr : &m_runs.back();
            if (last && last->x + last->length >= span.left)
                last->length = std::max(last->length, span.right - last->x);
            else
                m_runs.push_back({span.left, span.right - span.left, nullptr, 255});
        }
        sink.Row(y, m_runs);
    }
    m_spans.clear();
}

}  // namespace raster
