#include "Cover.h"

namespace raster {

namespace {

constexpr size_t kManyEdges = 48;    // in one row: cut into 16 strips at most
constexpr size_t kMostEdges = 1000;  // and with more of them not at all

// x of an edge at a height, in 1/256.
template <class Edge>
int At(const Edge& edge, int y) {
    if (y <= edge.y0)
        return edge.x0;
    if (y >= edge.y1)
        return edge.x1;
    return edge.x0 + static_cast<int>(FloorDivide(
                         static_cast<int64_t>(edge.x1 - edge.x0) * (y - edge.y0) * 2 + (edge.y1 - edge.y0),
                         int64_t{2} * (edge.y1 - edge.y0)));
}

bool Inside(int winding, FillRule rule) {
    return rule == FillRule::Winding ? winding != 0 : (winding & 1) != 0;
}

}  // namespace

// Where figures overlap areas do not add up. Going down strip by strip, only those edges count that lead
// from outside to inside or back.
void Rasterizer::SweepBand(FillRule rule) {
    for (int row = m_top; row < m_bottom; ++row) {
        const int top = row * kUnit, bottom = top + kUnit;
        std::erase_if(m_active, [&](size_t edge) { return m_edges[edge].y1 <= top; });
        for (; m_next < m_edges.size() && m_edges[m_next].y0 < bottom; ++m_next)
            m_active.push_back(m_next);
        if (!m_active.empty())
            SweepRow(row, rule);
    }
}

void Rasterizer::SweepRow(int row, FillRule rule) {
    const int top = row * kUnit, bottom = top + kUnit;
    const size_t edges = m_active.size();
    const int least = edges > kMostEdges ? kUnit : edges > kManyEdges ? kUnit / 16 : 1;
    m_heights.assign({top, bottom});
    for (const size_t active : m_active) {
        for (const int y : {m_edges[active].y0, m_edges[active].y1}) {
            if (y > top && y < bottom)
                m_heights.push_back(y - (y - top) % least);
        }
    }
    std::sort(m_heights.begin(), m_heights.end());
    m_heights.erase(std::unique(m_heights.begin(), m_heights.end()), m_heights.end());
    for (size_t i = 0; i + 1 < m_heights.size(); ++i)
        SweepStrip(row, m_heights[i], m_heights[i + 1], least, rule);
}

void Rasterizer::SweepStrip(int row, int top, int bottom, int least, FillRule rule) {
    m_pieces.clear();
    for (const size_t active : m_active) {
        const Edge& edge = m_edges[active];
        if (2 * edge.y0 <= top + bottom && 2 * edge.y1 > top + bottom)
            m_pieces.push_back({At(edge, top), At(edge, bottom), edge.direction});
    }
    std::sort(m_pieces.begin(), m_pieces.end(),
              [](const Piece& a, const Piece& b) { return a.top + a.bottom < b.top + b.bottom; });
    if (bottom - top > least) {
        for (size_t i = 0; i + 1 < m_pieces.size(); ++i) {
            const int above = m_pieces[i + 1].top - m_pieces[i].top;
            const int below = m_pieces[i + 1].bottom - m_pieces[i].bottom;
            if (above >= 0 && below >= 0)
                continue;
            // They cross in this strip: once more, above and below that.
            const int height = static_cast<int>(static_cast<int64_t>(bottom - top) * std::abs(above) /
                                                (std::abs(above) + std::abs(below)));
            const int middle =
                top + std::clamp(height / least * least, least, std::max(least, bottom - top - least));
            if (middle >= bottom)
                break;
            SweepStrip(row, top, middle, least, rule);
            SweepStrip(row, middle, bottom, least, rule);
            return;
        }
    }
    int winding = 0;
    for (const Piece& piece : m_pieces) {
        const bool before = Inside(winding, rule);
        winding += piece.direction;
        const bool after = Inside(winding, rule);
        if (before != after)
            Cover(InBand(row), piece.top, piece.bottom, after ? bottom - top : top - bottom, 0);
    }
}

}  // namespace raster
