#include "gdiplus/RegionShape.h"
#include "gdiplus/Arguments.h"

namespace flat {

namespace {

using Node = RegionShape::Node;

constexpr int kDeepest = 200;  // of combinations; beyond it they become pixels

class RegionSink final : public raster::RowSink {
public:
    explicit RegionSink(raster::Region& region) : m_region(region) {}
    void Row(int y, std::span<const raster::Run> runs) override {
        m_spans.clear();
        for (const raster::Run& run : runs)
            m_spans.push_back({run.x, run.x + run.length});
        m_region.Append(y, m_spans);
    }

private:
    raster::Region& m_region;
    std::vector<raster::Region::Span> m_spans;
};

// The first pixel whose centre, a whole number, is not before an edge; edges are taken to 1/256.
int FirstPixel(double edge) {
    const double most = raster::kFarthestPixel;
    return static_cast<int>(std::ceil(std::round((std::max)(-most, (std::min)(most, edge)) * 256) / 256));
}

raster::Region PathPixels(const raster::Path& path, raster::FillRule rule, const raster::Matrix& matrix,
                          const raster::IntRect& within) {
    raster::Chains chains;
    const raster::Rect limits{within.left - 1.0, within.top - 1.0, within.right + 1.0, within.bottom + 1.0};
    Flatten(path, matrix, raster::kTolerance, &limits, chains);
    raster::Region region;
    RegionSink sink(region);
    raster::Rasterizer rasterizer;
    rasterizer.Begin(within);
    rasterizer.Add(chains, {0.5, 0.5});
    rasterizer.Finish(rule, raster::Edges::Sharp, sink);
    return region;
}

raster::Combine ToCombine(GpCombineMode mode) {
    return static_cast<raster::Combine>(mode);
}

raster::Region NodePixels(const Node& node, const raster::Matrix& matrix, const raster::IntRect& within) {
    switch (node.type) {
        case Node::Type::Everything:
            return raster::Region(within);
        case Node::Type::Nothing:
            return {};
        case Node::Type::Rectangle:
            if (matrix.KeepsAxes()) {
                const raster::Rect box = MapBounds(matrix, node.rect);
                if (!(box.left <= box.right && box.top <= box.bottom))
                    return {};
                return raster::Region(Intersect(within, {FirstPixel(box.left), FirstPixel(box.top),
                                                         FirstPixel(box.right), FirstPixel(box.bottom)}));
            } else {
                raster::Path path;
                path.AddRectangle(node.rect);
                return PathPixels(path, raster::FillRule::Winding, matrix, within);
            }
        case Node::Type::Path:
            return PathPixels(node.path, node.rule, matrix, within);
        case Node::Type::Pixels: {
            if (SameMatrix(matrix, {})) {
                raster::Region region = node.pixels;
                region.Apply(raster::Region(within), raster::Combine::Intersect);
                return region;
            }
            raster::Path path;
            for (const raster::IntRect& rect : node.pixels.Rectangles())
                path.AddRectangle(
                    {double(rect.left), double(rect.top), double(rect.right), double(rect.bottom)});
            return PathPixels(path, raster::FillRule::Winding, matrix, within);
        }
        case Node::Type::Combined: {
            raster::Region region = NodePixels(*node.left, matrix, within);
            region.Apply(NodePixels(*node.right, matrix, within), ToCombine(node.mode));
            return region;
        }
    }
    return {};
}

std::shared_ptr<const Node> Transformed(const std::shared_ptr<const Node>& node,
                                        const raster::Matrix& matrix) {
    if (node->type == Node::Type::Everything || node->type == Node::Type::Nothing)
        return node;
    auto result = std::make_shared<Node>();
    result->type = node->type;
    result->depth = node->depth;
    switch (node->type) {
        case Node::Type::Rectangle:
            if (matrix.KeepsAxes()) {
                result->rect = MapBounds(matrix, node->rect);
                break;
            }
            result->type = Node::Type::Path;
            result->path.AddRectangle(node->rect);
            result->path.Transform(matrix);
            break;
        case Node::Type::Path:
            result->path = node->path;
            result->rule = node->rule;
            result->path.Transform(matrix);
            break;
        case Node::Type::Pixels:
            result->type = Node::Type::Path;
            result->rule = raster::FillRule::Winding;
            for (const raster::IntRect& rect : node->pixels.Rectangles())
                result->path.AddRectangle(
                    {double(rect.left), double(rect.top), double(rect.right), double(rect.bottom)});
            result->path.Transform(matrix);
            break;
        default:
            result->mode = node->mode;
            result->left = Transformed(node->left, matrix);
            result->right = Transformed(node->right, matrix);
    }
    return result;
}

std::shared_ptr<const Node> Simple(Node::Type type) {
    auto node = std::make_shared<Node>();
    node->type = type;
    return node;
}

const std::shared_ptr<const Node>& SharedEverything() {
    static const std::shared_ptr<const Node> node = Simple(Node::Type::Everything);
    return node;
}
const std::shared_ptr<const Node>& SharedNothing() {
    static const std::shared_ptr<const Node> node = Simple(Node::Type::Nothing);
    return node;
}

raster::IntRect Farthest() {
    constexpr int most = raster::kFarthestPixel;
    return {-most, -most, most, most};
}

}  // namespace

RegionShape::RegionShape() : m_root(SharedEverything()) {}

RegionShape RegionShape::Nothing() {
    return RegionShape(SharedNothing());
}

RegionShape::RegionShape(const raster::Rect& rect) {
    auto node = std::make_shared<Node>();
    node->type = Node::Type::Rectangle;
    // Negative sizes reach to the other side.
    node->rect = {(std::min)(rect.left, rect.right), (std::min)(rect.top, rect.bottom),
                  (std::max)(rect.left, rect.right), (std::max)(rect.top, rect.bottom)};
    m_root = std::move(node);
}

RegionShape::RegionShape(const PathObject& path) {
    auto node = std::make_shared<Node>();
    node->type = Node::Type::Path;
    node->path = path.Outline();
    node->rule = path.Rule();
    m_root = std::move(node);
}

RegionShape::RegionShape(const raster::Region& pixels) {
    auto node = std::make_shared<Node>();
    node->type = Node::Type::Pixels;
    node->pixels = pixels;
    m_root = std::move(node);
}

bool RegionShape::IsEverything() const {
    return m_root->type == Node::Type::Everything;
}
bool RegionShape::IsNothing() const {
    return m_root->type == Node::Type::Nothing;
}
const raster::Rect* RegionShape::AsRectangle() const {
    return m_root->type == Node::Type::Rectangle ? &m_root->rect : nullptr;
}

void RegionShape::Combine(const RegionShape& other, GpCombineMode mode) {
    Require(mode >= CombineModeReplace && mode <= CombineModeComplement);
    if (mode == CombineModeReplace || (mode == CombineModeIntersect && IsEverything())) {
        m_root = other.m_root;
        return;
    }
    if ((mode == CombineModeIntersect && other.IsEverything()) ||
        ((mode == CombineModeUnion || mode == CombineModeXor || mode == CombineModeExclude) &&
         other.IsNothing()))
        return;
    if ((mode == CombineModeUnion || mode == CombineModeXor) && IsNothing()) {
        m_root = other.m_root;
        return;
    }
    const raster::Rect *a = AsRectangle(), *b = other.AsRectangle();
    if (mode == CombineModeIntersect && a && b) {
        const raster::Rect both{(std::max)(a->left, b->left), (std::max)(a->top, b->top),
                                (std::min)(a->right, b->right), (std::min)(a->bottom, b->bottom)};
        *this = both.Empty() ? Nothing() : RegionShape(both);
        return;
    }
    auto node = std::make_shared<Node>();
    node->type = Node::Type::Combined;
    node->mode = mode;
    node->left = m_root;
    node->right = other.m_root;
    node->depth = (std::max)(m_root->depth, other.m_root->depth) + 1;
    const RegionShape result(node);
    *this = node->depth > kDeepest ? RegionShape(result.Pixels()) : result;
}

void RegionShape::Transform(const raster::Matrix& matrix) {
    m_root = Transformed(m_root, matrix);
}

raster::Region RegionShape::Pixels(const raster::Matrix& matrix, const raster::IntRect& within) const {
    return NodePixels(*m_root, matrix, within);
}

raster::Region RegionShape::Pixels(const raster::Matrix& matrix) const {
    return Pixels(matrix, Farthest());
}

raster::Rect RegionShape::Bounds() const {
    switch (m_root->type) {
        case Node::Type::Everything:
            return kEverywhere;
        case Node::Type::Nothing:
            return {};
        case Node::Type::Rectangle:
            return m_root->rect;
        case Node::Type::Path: {
            raster::Chains chains;
            Flatten(m_root->path, {}, raster::kTolerance, nullptr, chains);
            if (chains.vertices.empty())
                return {};
            raster::Rect box{chains.vertices[0].at.x, chains.vertices[0].at.y, chains.vertices[0].at.x,
                             chains.vertices[0].at.y};
            for (const auto& vertex : chains.vertices)
                box = {(std::min)(box.left, vertex.at.x), (std::min)(box.top, vertex.at.y),
                       (std::max)(box.right, vertex.at.x), (std::max)(box.bottom, vertex.at.y)};
            return box;
        }
        default: {
            const raster::IntRect box = Pixels().Bounds();
            if (box.left <= -raster::kFarthestPixel || box.right >= raster::kFarthestPixel)
                return kEverywhere;
            return {double(box.left), double(box.top), double(box.right), double(box.bottom)};
        }
    }
}

}  // namespace flat
