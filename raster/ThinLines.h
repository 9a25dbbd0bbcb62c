// Lines of single pixels.
#pragma once

#include "raster/Rasterizer.h"

namespace raster {

/// Turns chains of lines into the pixels along them: one in each column of a flat line, one in each row of a
/// steep one, from the pixel of its first point to that of its last. Pixels that belong to several lines are
/// there once. One object serves any number of shapes and keeps its memory between them.
class ThinLines {
public:
    /// Begins a shape, of which only the part in `clip` is wanted.
    void Begin(const IntRect& clip);
    /// Adds every chain, moved by `offset`. Where a dash ends inside a figure, pixels with their middle
    /// before its end belong to it.
    void Add(const Chains& chains, Point offset);
    void Add(Point from, Point to) { AddLine(from, to, false, false); }
    /// Hands over the pixels and ends the shape.
    void Finish(RowSink& sink);

    /// The pixel that a place belongs to; at the border of two it is the one before.
    static double PixelOf(double place) { return std::ceil(place - 1); }

private:
    struct Span {
        int y, left, right;
    };

    void AddLine(Point from, Point to, bool startsInside, bool endsInside);
    void AddPixel(int x, int y);

    IntRect m_clip;
    std::vector<Span> m_spans;
    std::vector<Run> m_runs;
};

}  // namespace raster
