// Paths as chains of straight lines.
#pragma once

#include "raster/Path.h"

namespace raster {

/// How far, in pixels, a chain of lines may be from its curve: 5 of 255 along an edge in the worst place.
inline constexpr double kTolerance = 1.0 / 36;

/// Chains of straight lines.
struct Chains {
    struct Vertex {
        Point at;
        /// Within a curve: the chain goes on in the same direction, but for the flattening.
        bool smooth = false;
    };
    /// Vertices [first, first + count); closed ones do not repeat their first.
    struct Chain {
        size_t first = 0;
        size_t count = 0;
        bool closed = false;
        /// A dash begins or ends there, and not the figure.
        bool startsInside = false;
        bool endsInside = false;
    };

    std::vector<Vertex> vertices;
    std::vector<Chain> chains;

    void Clear() {
        vertices.clear();
        chains.clear();
    }
    std::span<const Vertex> Of(const Chain& chain) const {
        return std::span(vertices).subspan(chain.first, chain.count);
    }
};

/// Adds the figures of `path`, mapped by `matrix`, to `out`. No line is farther than `tolerance` (units after
/// the mapping) from its curve as long as a curve does not need more than 2,000 lines. Where `clip` is given
/// it may have a million times as many; what lies wholly beside the clip is cut short, which changes nothing
/// of a fill inside it. Points that are not finite are left out.
void Flatten(const Path& path, const Matrix& matrix, double tolerance, const Rect* clip, Chains& out);

}  // namespace raster
