// Areas made of rectangles and paths, kept as they were put together.
#pragma once

#include "gdiplus/PathObject.h"
#include "raster/Region.h"

#include <memory>

namespace flat {

/// A set of points of the plane. Copies share what they are made of, which never changes.
class RegionShape {
public:
    /// Everything.
    RegionShape();
    static RegionShape Nothing();
    explicit RegionShape(const raster::Rect& rect);
    explicit RegionShape(const PathObject& path);
    explicit RegionShape(const raster::Region& pixels);

    /// Surely everything; another one may be, too.
    bool IsEverything() const;
    bool IsNothing() const;
    /// The rectangle, when it is one and nothing else.
    const raster::Rect* AsRectangle() const;

    void Combine(const RegionShape& other, GpCombineMode mode);
    void Transform(const raster::Matrix& matrix);
    /// The pixels, mapped by `matrix`, whose centres are inside; those beside `within` may be left out.
    raster::Region Pixels(const raster::Matrix& matrix, const raster::IntRect& within) const;
    raster::Region Pixels(const raster::Matrix& matrix = {}) const;
    /// The rectangle around it; what callers are told of everything when it is without end.
    raster::Rect Bounds() const;

    struct Node;
    const Node& Root() const { return *m_root; }

private:
    explicit RegionShape(std::shared_ptr<const Node> root) : m_root(std::move(root)) {}
    std::shared_ptr<const Node> m_root;
};

/// How callers are told of everything.
inline constexpr raster::Rect kEverywhere{-4194304, -4194304, 4194304, 4194304};

struct RegionShape::Node {
    enum class Type { Everything, Nothing, Rectangle, Path, Pixels, Combined } type = Type::Nothing;
    raster::Rect rect;
    raster::Path path;
    raster::FillRule rule = raster::FillRule::Alternate;
    raster::Region pixels;
    GpCombineMode mode = CombineModeReplace;
    std::shared_ptr<const Node> left, right;
    int depth = 1;
};

struct RegionObject final : Object {
    static constexpr Kind kFirst = Kind::Region, kLast = Kind::Region;
    explicit RegionObject(RegionShape value = {}) : shape(std::move(value)) {}
    RegionShape shape;
};

}  // namespace flat
