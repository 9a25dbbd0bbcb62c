#include "raster/Rasterizer.h"

#include "Cover.h"

#include <bit>
#include <numeric>

namespace raster {

namespace {

constexpr int kBandCells = 1 << 16;  // 256 kB: stays in the second cache

int ToFixed(double value) {
    return static_cast<int>(std::lrint(value * kUnit));
}

}  // namespace

void Rasterizer::Begin(const IntRect& clip) {
    m_clip = Intersect(clip, {-kFarthestPixel, -kFarthestPixel, kFarthestPixel, kFarthestPixel});
    m_edges.clear();
    m_minX = m_minY = kFarthestPixel * kUnit;
    m_maxX = m_maxY = -kFarthestPixel * kUnit;
    m_chains = 0;
    m_simple = true;
}

void Rasterizer::Add(const Chains& chains, Point offset, bool apart) {
    if (m_clip.Empty())
        return;
    m_simple = m_simple && (m_chains == 0 || apart);
    for (const Chains::Chain& chain : chains.chains) {
        if (chain.count < 2)
            continue;
        const std::span<const Chains::Vertex> vertices = chains.Of(chain);
        ++m_chains;
        if (!apart)
            m_simple = m_simple && m_chains == 1 && IsConvex(vertices);
        AddChain(vertices, offset);
    }
}

void Rasterizer::AddChain(std::span<const Chains::Vertex> chain, Point offset) {
    struct Place {
        Point at;
        bool near;
        int x, y;
    };
    const auto place = [offset](const Chains::Vertex& vertex) {
        const Point at = vertex.at + offset;
        const bool near = std::abs(at.x) <= kFarthestPixel && std::abs(at.y) <= kFarthestPixel;
        return near ? Place{at, true, ToFixed(at.x), ToFixed(at.y)} : Place{at, false, 0, 0};
    };
    Place before = place(chain.back());
    for (const Chains::Vertex& vertex : chain) {
        const Place now = place(vertex);
        if (before.near && now.near)
            AddEdge(before.x, before.y, now.x, now.y);
        else
            AddSegment(before.at, now.at);
        before = now;
    }
}

// Edges stay whole, so that a part of a shape is drawn as in the whole; only what is very far away is cut
// off.
void Rasterizer::AddSegment(Point a, Point b) {
    if (!(std::max(a.y, b.y) > m_clip.top && std::min(a.y, b.y) < m_clip.bottom))
        return;
    const auto cut = [](Point& end, Point other) {
        const double y = std::clamp<double>(end.y, -kFarthestPixel, kFarthestPixel);
        if (y != end.y)
            end = {end.x + (other.x - end.x) * ((y - end.y) / (other.y - end.y)), y};
    };
    const Point whole = a;
    cut(a, b);
    cut(b, whole);
    AddFar(a, b);
}

// A line within the height that can be, of any width: what lies to the left still counts, the right does not.
void Rasterizer::AddFar(Point a, Point b) {
    constexpr double far = kFarthestPixel;
    constexpr int left = -kFarthestPixel * kUnit;
    const auto crossing = [&](double x) {
        const double y = a.y + (b.y - a.y) * ((x - a.x) / (b.x - a.x));
        return ToFixed(std::clamp(y, std::min(a.y, b.y), std::max(a.y, b.y)));
    };
    int fromY = ToFixed(a.y), toY = ToFixed(b.y);
    if (a.x > far && b.x > far)
        return;
    if (a.x < -far && b.x < -far) {
        AddEdge(left, fromY, left, toY);
        return;
    }
    if (std::abs(a.x) > far) {
        const int y = crossing(std::copysign(far, a.x));
        if (a.x < 0)
            AddEdge(left, fromY, left, y);
        fromY = y;
    }
    if (std::abs(b.x) > far) {
        const int y = crossing(std::copysign(far, b.x));
        if (b.x < 0)
            AddEdge(left, y, left, toY);
        toY = y;
    }
    AddEdge(ToFixed(std::clamp(a.x, -far, far)), fromY, ToFixed(std::clamp(b.x, -far, far)), toY);
}

void Rasterizer::AddEdge(int x0, int y0, int x1, int y1) {
    const int direction = y0 < y1 ? 1 : -1;
    if (y0 > y1) {
        std::swap(x0, x1);
        std::swap(y0, y1);
    }
    const int left = std::min(x0, x1);
    if (y1 <= m_clip.top * kUnit || y0 >= m_clip.bottom * kUnit || left >= m_clip.right * kUnit)
        return;
    m_minX = std::min(m_minX, left);
    m_maxX = std::max(m_maxX, std::max(x0, x1));
    m_minY = std::min(m_minY, y0);
    m_maxY = std::max(m_maxY, y1);
    m_edges.push_back({x0, y0, x1, y1, direction});
}

void Rasterizer::Finish(FillRule rule, Edges edges, RowSink& sink) {
    if (m_edges.empty())
        return;
    const bool sweep = edges == Edges::Smooth && !m_simple;
    if (sweep) {
        std::sort(m_edges.begin(), m_edges.end(), [](const Edge& a, const Edge& b) { return a.y0 < b.y0; });
        m_lanes.clear();
        m_next = 0;
    }
    m_left = std::max(m_clip.left, PixelOf(m_minX));
    // One more than the last pixel touched: there a sharp edge may have its change.
    m_columns = std::min(m_clip.right, std::max(m_left, PixelOf(m_maxX)) + 2) - m_left;
    m_stride = (m_columns + kBlock) / kBlock * kBlock;  // a cell more, for the change behind the last pixel
    m_top = std::max(m_clip.top, PixelOf(m_minY));
    const int end = std::min(m_clip.bottom, PixelOf(m_maxY + kUnit - 1));
    while (m_top < end && m_columns > 0) {
        m_words = (m_stride / kBlock + 63) / 64;
        m_bottom = std::min(end, m_top + std::max(1, kBandCells / m_stride));
        const auto rows = static_cast<size_t>(m_bottom - m_top);
        if (m_cells.size() < rows * m_stride)
            m_cells.resize(rows * m_stride);
        if (m_touched.size() < rows * m_words)
            m_touched.resize(rows * m_words);
        if (m_coverage.size() < static_cast<size_t>(m_stride))
            m_coverage.resize(m_stride);
        if (sweep) {
            SweepBand(rule);
        } else {
            for (const Edge& edge : m_edges) {
                if (edges == Edges::Smooth)
                    AddSmooth(edge);
                else
                    AddSharp(edge);
            }
        }
        for (int row = m_top; row < m_bottom; ++row)
            EmitRow(row, edges == Edges::Sharp && rule == FillRule::Alternate, sink);
        m_top = m_bottom;
    }
    m_edges.clear();
}

void Rasterizer::AddSmooth(const Edge& edge) {
    const int top = std::max(edge.y0, m_top * kUnit), bottom = std::min(edge.y1, m_bottom * kUnit);
    if (top >= bottom)
        return;
    int row = PixelOf(top);
    BandRow at = InBand(row);
    const int height = edge.y1 - edge.y0;
    if (edge.y1 <= (row + 1) * kUnit && edge.y0 == top) {
        Cover(at, edge.x0, edge.x1, height * edge.direction, 0);
        return;
    }
    const int width = edge.x1 - edge.x0;
    const int64_t slope = Slope(width, height);
    // Of a steeper line the rounded ends within a row say little about it.
    const bool steep = std::abs(width) < height / kUnit + 1;
    const int64_t rise = steep ? 0 : Slope(height * edge.direction, std::abs(width));
    const auto reached = [&](int y) {
        return static_cast<int>((edge.x0 * kOne + kOne / 2 + slope * (y - edge.y0)) >> 32);
    };
    int x = top == edge.y0 ? edge.x0 : reached(top);
    for (int y = top; y < bottom; ++row) {
        const int next = std::min(bottom, (row + 1) * kUnit);
        const int nextX = next == edge.y1 ? edge.x1 : reached(next);
        Cover(at, x, nextX, (next - y) * edge.direction, rise);
        at.cells += m_stride;
        at.touched += m_words;
        x = nextX;
        y = next;
    }
}

void Rasterizer::AddSharp(const Edge& edge) {
    constexpr int half = kUnit / 2;
    const int first = std::max(m_top, PixelOf(edge.y0 + half - 1));
    const int end = std::min(m_bottom, PixelOf(edge.y1 + half - 1));
    if (first >= end)
        return;
    // Rounded down, so that a centre right on the edge stays on its right.
    const int64_t slope = FloorDivide((edge.x1 - edge.x0) * kOne, int64_t{edge.y1 - edge.y0});
    const int64_t start = edge.x0 * kOne + (kUnit - half) * kOne - 1;
    for (int row = first; row < end; ++row) {
        const int64_t position = start + slope * (row * kUnit + half - edge.y0);
        const int cell = std::max(0, static_cast<int>(position >> 40) - m_left);
        if (cell >= m_columns)
            continue;
        const BandRow at = InBand(row);
        at.cells[cell] += edge.direction * kWhole;
        at.Mark(cell, cell);
    }
}

void Rasterizer::EmitRow(int row, bool alternate, RowSink& sink) {
    const auto [cells, words] = InBand(row);
    const int width = m_clip.right - m_left;
    m_runs.clear();
    int sum = 0;
    int at = 0;  // the first cell not yet handled
    const auto even = [&](int end) {
        const uint8_t value = alternate ? AlternateCoverage(sum) : ToCoverage(sum);
        if (value != 0)
            m_runs.push_back({m_left + at, end - at, nullptr, value});
    };
    for (int word = 0; word < m_words; ++word) {
        for (uint64_t bits = words[word]; bits != 0;) {
            const int skip = std::countr_zero(bits);
            const int blocks = std::countr_one(bits >> skip);
            bits = skip + blocks < 64 ? bits >> (skip + blocks) << (skip + blocks) : 0;
            const int first = (word * 64 + skip) * kBlock, end = first + blocks * kBlock;
            if (sum != 0 && first > at)
                even(first);
            uint8_t* coverage = &m_coverage[first];
            sum = alternate ? AddUpAlternate(cells + first, end - first, sum, coverage)
                            : AddUp(cells + first, end - first, sum, coverage);
            if (first < width)
                m_runs.push_back({m_left + first, std::min(end, width) - first, coverage, 255});
            at = end;
        }
        words[word] = 0;
    }
    // Edges to the right of the clip are missing: what they would end goes on to there.
    if (sum != 0 && at < width)
        even(width);
    if (!m_runs.empty())
        sink.Row(row, m_runs);
}

}  // namespace raster
