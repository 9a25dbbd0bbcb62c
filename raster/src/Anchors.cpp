// Shapes at the ends of lines.
#include "raster/Stroker.h"

#include <array>
#include <numbers>

namespace raster {

void Stroker::AddAnchor(Point at, Point outward, Cap cap, const CustomCap* custom) {
    const double size = m_width * (custom ? custom->scale : 1);
    const Point y = outward * size;
    const Matrix place{y.y, -y.x, y.x, y.y, at.x, at.y};
    if (!place.IsFinite())
        return;
    if (custom) {
        AddShape(custom->fill, place);
        if (custom->line.Empty())
            return;
        Pen pen;
        pen.join = custom->join;
        pen.miterLimit = custom->miterLimit;
        pen.startCap = custom->startCap;
        pen.endCap = custom->endCap;
        if (!m_capStroker)
            m_capStroker = std::make_unique<Stroker>();
        m_capStroker->Stroke(custom->line, pen, place * m_matrix, m_visible);
        const Chains& outline = m_capStroker->Outline();
        for (const Chains::Chain& chain : outline.chains) {
            BeginOutline();
            for (const Chains::Vertex& vertex : outline.Of(chain))
                m_outline.vertices.push_back(vertex);
            EndOutline();
        }
        return;
    }
    constexpr double corner = 1 / std::numbers::sqrt2, side = 2 / std::numbers::sqrt3;
    m_anchor.Clear();
    switch (cap) {
        case Cap::SquareAnchor:
            m_anchor.AddRectangle({-corner, -corner, corner, corner});
            break;
        case Cap::RoundAnchor:
            m_anchor.AddEllipse({-1, -1, 1, 1});
            break;
        case Cap::DiamondAnchor:
            m_anchor.AddPolygon(std::array<Point, 4>{Point{0, -1}, {1, 0}, {0, 1}, {-1, 0}});
            break;
        case Cap::ArrowAnchor:
            m_anchor.AddPolygon(std::array<Point, 3>{Point{0, 0}, {-side, -2}, {side, -2}});
            break;
        default:
            return;  // the line has it
    }
    AddShape(m_anchor, place);
}

// Figures that turn the same way as the line, so that both cover where they meet.
void Stroker::AddShape(const Path& path, const Matrix& place) {
    m_shape.Clear();
    Flatten(path, place, m_tolerance, nullptr, m_shape);
    double area = 0;
    for (const Chains::Chain& chain : m_shape.chains) {
        const auto vertices = m_shape.Of(chain);
        for (size_t i = 0; i < vertices.size(); ++i)
            area += Cross(vertices[i].at - vertices[0].at,
                          vertices[i + 1 < vertices.size() ? i + 1 : 0].at - vertices[0].at);
    }
    for (const Chains::Chain& chain : m_shape.chains) {
        const auto vertices = m_shape.Of(chain);
        BeginOutline();
        for (size_t i = 0; i < vertices.size(); ++i)
            Add(vertices[area < 0 ? vertices.size() - 1 - i : i].at);
        EndOutline();
    }
}

}  // namespace raster
