#include "Cover.h"

namespace raster {

namespace {

constexpr size_t kManyEdges = 48;    // in one row: cut into 16 strips at most
constexpr size_t kMostEdges = 1000;  // and with more of them not at all

bool Inside(int winding, FillRule rule) {
    return rule == FillRule::Winding ? winding != 0 : (winding & 1) != 0;
}

// Few of them are out of their place.
template <class Item, class Before>
void SortNearlySorted(std::vector<Item>& items, Before before) {
    for (size_t i = 1; i < items.size(); ++i) {
        const Item item = items[i];
        size_t place = i;
        for (; place > 0 && before(item, items[place - 1]); --place)
            items[place] = items[place - 1];
        items[place] = item;
    }
}

}  // namespace

// x at a height, in 1/256.
inline int Rasterizer::At(const Lane& lane, int y) const {
    const Edge& edge = m_edges[lane.edge];
    if (y <= edge.y0)
        return edge.x0;
    if (y >= edge.y1)
        return edge.x1;
    return static_cast<int>((edge.x0 * kOne + kOne / 2 + lane.slope * (y - edge.y0)) >> 32);
}

// Returns the winding to the right of a piece.
inline int Rasterizer::CoverPiece(int row, const Piece& piece, int height, int winding, FillRule rule) {
    const int right = winding + piece.direction;
    const bool inside = Inside(right, rule);
    if (inside != Inside(winding, rule))
        Cover(InBand(row), piece.top, piece.bottom, inside ? height : -height, 0);
    return right;
}

// Where figures overlap areas do not add up. Going down row by row and strip by strip, only those edges count
// that lead from outside to inside or back.
void Rasterizer::SweepBand(FillRule rule) {
    for (int row = m_top; row < m_bottom; ++row) {
        const int top = row * kUnit, bottom = top + kUnit;
        std::erase_if(m_lanes, [&](const Lane& lane) { return m_edges[lane.edge].y1 <= top; });
        for (Lane& lane : m_lanes)
            lane.top = lane.bottom;
        for (; m_next < m_edges.size() && m_edges[m_next].y0 < bottom; ++m_next) {
            const Edge& edge = m_edges[m_next];
            if (edge.y1 <= top)
                continue;
            const int64_t slope = edge.y0 < edge.y1 ? Slope(edge.x1 - edge.x0, edge.y1 - edge.y0) : 0;
            m_lanes.push_back({m_next, slope, 0, 0});
            m_lanes.back().top = At(m_lanes.back(), top);
        }
        if (!m_lanes.empty())
            SweepRow(row, rule);
    }
}

// Edges that overlap in x nowhere in the row are swept apart from each other. What lies to the left of some
// adds the same to the winding at all heights, because figures are closed: where one of their edges ends
// another begins, at the same place and so on the same side.
void Rasterizer::SweepRow(int row, FillRule rule) {
    const int bottom = (row + 1) * kUnit;
    for (Lane& lane : m_lanes)
        lane.bottom = At(lane, bottom);
    const auto before = [](const Lane& a, const Lane& b) { return a.Left() < b.Left(); };
    if (m_lanes.size() > kMostEdges)
        std::sort(m_lanes.begin(), m_lanes.end(), before);
    else
        SortNearlySorted(m_lanes, before);
    int winding = 0;
    for (size_t i = 0; i < m_lanes.size();) {
        int right = m_lanes[i].Right();
        size_t end = i + 1;
        for (; end < m_lanes.size() && m_lanes[end].Left() <= right; ++end)
            right = std::max(right, m_lanes[end].Right());
        winding = SweepLanes(row, std::span(m_lanes).subspan(i, end - i), winding, rule);
        i = end;
    }
}

// Returns the winding to the right of these lanes.
int Rasterizer::SweepLanes(int row, std::span<const Lane> lanes, int winding, FillRule rule) {
    const int top = row * kUnit, bottom = top + kUnit;
    const size_t edges = lanes.size();
    if (edges == 1) {
        const Edge& edge = m_edges[lanes[0].edge];
        const int height = std::min(edge.y1, bottom) - std::max(edge.y0, top);
        const Piece whole{lanes[0].top, lanes[0].bottom, edge.direction};
        return height > 0 ? CoverPiece(row, whole, height, winding, rule) : winding;
    }
    const int least = edges > kMostEdges ? kUnit : edges > kManyEdges ? kUnit / 16 : 1;
    m_heights.assign({top, bottom});
    for (const Lane& lane : lanes) {
        for (const int y : {m_edges[lane.edge].y0, m_edges[lane.edge].y1}) {
            if (y > top && y < bottom)
                m_heights.push_back(y - (y - top) % least);
        }
    }
    if (m_heights.size() > 2) {
        std::sort(m_heights.begin(), m_heights.end());
        m_heights.erase(std::unique(m_heights.begin(), m_heights.end()), m_heights.end());
    }
    int after = winding;
    for (size_t i = 0; i + 1 < m_heights.size(); ++i)
        after = SweepStrip(row, lanes, m_heights[i], m_heights[i + 1], least, winding, rule);
    return after;
}

int Rasterizer::SweepStrip(int row, std::span<const Lane> lanes, int top, int bottom, int least, int winding,
                           FillRule rule) {
    const int rowTop = row * kUnit, rowBottom = rowTop + kUnit;
    m_pieces.clear();
    for (const Lane& lane : lanes) {
        const Edge& edge = m_edges[lane.edge];
        if (2 * edge.y0 <= top + bottom && 2 * edge.y1 > top + bottom)
            m_pieces.push_back({top == rowTop ? lane.top : At(lane, top),
                                bottom == rowBottom ? lane.bottom : At(lane, bottom), edge.direction});
    }
    const auto before = [](const Piece& a, const Piece& b) { return a.top + a.bottom < b.top + b.bottom; };
    if (m_pieces.size() > kManyEdges)
        std::sort(m_pieces.begin(), m_pieces.end(), before);
    else
        SortNearlySorted(m_pieces, before);
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
            SweepStrip(row, lanes, top, middle, least, winding, rule);
            return SweepStrip(row, lanes, middle, bottom, least, winding, rule);
        }
    }
    for (const Piece& piece : m_pieces)
        winding = CoverPiece(row, piece, bottom - top, winding, rule);
    return winding;
}

}  // namespace raster
