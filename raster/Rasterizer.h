// Polygons as rows of coverage.
#pragma once

#include "raster/Flatten.h"

namespace raster {

/// Which points are inside where figures overlap.
enum class FillRule { Alternate, Winding };

/// Smooth edges cover a pixel by the area inside it, sharp ones wholly or not at all: by its centre, and a
/// centre on a left or an upper edge is inside.
enum class Edges { Smooth, Sharp };

/// Pixels of a row beside each other.
struct Run {
    int x = 0;
    int length = 0;
    /// One value for each pixel, or null when `value` goes for all. 255 is wholly covered.
    const uint8_t* coverage = nullptr;
    uint8_t value = 255;
};

/// Whether a closed chain (pixels) turns one way only and once, so that no point is inside twice.
bool IsConvex(std::span<const Chains::Vertex> chain);

/// Takes the rows of a shape, downwards. A row without runs is left out; runs are in order and apart.
class RowSink {
public:
    virtual void Row(int y, std::span<const Run> runs) = 0;

protected:
    ~RowSink() = default;
};

/// Turns polygons into rows of coverage. One object serves any number of shapes one after another and keeps
/// its memory between them. Coordinates are pixels; the first pixel is the square from (0, 0) to (1, 1).
///
/// Areas are exact but for coordinates that are rounded to 1/256 of a pixel, also where edges cross within a
/// pixel. The time goes with the edges and the rows they have inside the clip, and not with their length.
class Rasterizer {
public:
    /// Begins a shape, of which only the part in `clip` is wanted.
    void Begin(const IntRect& clip);

    /// Adds every chain, open ones closed by a line, moved by `offset`. Chains are `apart` when their
    /// interiors lie within or beside each other and none crosses itself, which then need not be found out.
    void Add(const Chains& chains, Point offset, bool apart = false);

    /// Hands over what the shape covers and ends it.
    void Finish(FillRule rule, Edges edges, RowSink& sink);

private:
    struct Edge {
        int x0, y0, x1, y1;  // 1/256 of a pixel; y0 <= y1, level ones only keep figures together
        int direction;       // 1 when the figure goes down here, else -1
    };
    // An edge within a row, and its x at the row's top and bottom.
    struct Lane {
        size_t edge;
        int64_t slope;
        int top, bottom;
        int Left() const { return std::min(top, bottom); }
        int Right() const { return std::max(top, bottom); }
    };
    // An edge between two heights of a row.
    struct Piece {
        int top, bottom;  // x
        int direction;
    };

    // The memory of a row in the band.
    struct BandRow {
        int* cells;
        uint64_t* touched;
        void Mark(int first, int last) const;
    };

    void AddChain(std::span<const Chains::Vertex> chain, Point offset);
    void AddSegment(Point a, Point b);
    void AddFar(Point a, Point b);
    void AddEdge(int x0, int y0, int x1, int y1);

    BandRow InBand(int row);
    void Cover(const BandRow& row, int x0, int x1, int height, int64_t slope);
    void CoverMany(const BandRow& row, int x0, int x1, int height, int64_t slope);
    void AddSmooth(const Edge& edge);
    void AddSharp(const Edge& edge);
    void SweepBand(FillRule rule);
    int At(const Lane& lane, int y) const;
    int CoverPiece(int row, const Piece& piece, int height, int winding, FillRule rule);
    void SweepRow(int row, FillRule rule);
    int SweepLanes(int row, std::span<const Lane> lanes, int winding, FillRule rule);
    int SweepStrip(int row, std::span<const Lane> lanes, int top, int bottom, int least, int winding,
                   FillRule rule);
    void EmitRow(int row, bool alternate, RowSink& sink);

    IntRect m_clip;
    std::vector<Edge> m_edges;
    int m_minX = 0, m_maxX = 0, m_minY = 0, m_maxY = 0;
    int m_chains = 0;
    bool m_simple = true;

    // The band of rows in work. A cell holds the change of coverage from the pixel before; all are 0 between
    // bands. A bit of m_touched stands for a block of cells that may not be 0.
    int m_left = 0, m_top = 0, m_bottom = 0, m_columns = 0, m_stride = 0, m_words = 0;
    std::vector<int> m_cells;
    std::vector<uint64_t> m_touched;

    std::vector<uint8_t> m_coverage;
    std::vector<Run> m_runs;

    std::vector<Lane> m_lanes;  // from left to right
    std::vector<int> m_heights;
    std::vector<Piece> m_pieces;
    size_t m_next = 0;
};

}  // namespace raster
