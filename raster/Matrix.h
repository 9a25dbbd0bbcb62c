// Affine transforms.
#pragma once

#include "raster/Geometry.h"

#include <optional>

namespace raster {

/// Maps (x, y) to (x*m11 + y*m21 + dx, x*m12 + y*m22 + dy).
struct Matrix {
    double m11 = 1;
    double m12 = 0;
    double m21 = 0;
    double m22 = 1;
    double dx = 0;
    double dy = 0;

    static Matrix Translation(double x, double y) { return {1, 0, 0, 1, x, y}; }
    static Matrix Scaling(double x, double y) { return {x, 0, 0, y, 0, 0}; }
    /// Clockwise on a surface, in radians.
    static Matrix Rotation(double angle) {
        const double c = std::cos(angle), s = std::sin(angle);
        return {c, s, -s, c, 0, 0};
    }

    Point Map(Point p) const { return {p.x * m11 + p.y * m21 + dx, p.x * m12 + p.y * m22 + dy}; }
    /// A direction: the translation is left out.
    Point MapVector(Point p) const { return {p.x * m11 + p.y * m21, p.x * m12 + p.y * m22}; }

    double Determinant() const { return m11 * m22 - m12 * m21; }
    /// Horizontal lines stay horizontal, vertical ones vertical.
    bool KeepsAxes() const { return m12 == 0 && m21 == 0; }
    bool IsFinite() const {
        return std::isfinite(m11) && std::isfinite(m12) && std::isfinite(m21) && std::isfinite(m22) &&
               std::isfinite(dx) && std::isfinite(dy);
    }

    /// The largest factor by which a length grows.
    double LargestScale() const {
        const double a = m11 * m11 + m12 * m12, b = m21 * m21 + m22 * m22, c = m11 * m21 + m12 * m22;
        return std::sqrt((a + b + std::sqrt((a - b) * (a - b) + 4 * c * c)) / 2);
    }

    /// None when everything is mapped to a line or a point, or a number is not finite.
    std::optional<Matrix> Inverse() const {
        const double d = Determinant();
        if (!IsFinite() || !(std::abs(d) > 1e-100))
            return std::nullopt;
        const Matrix inverse{
            m22 / d, -m12 / d, -m21 / d, m11 / d, (m21 * dy - m22 * dx) / d, (m12 * dx - m11 * dy) / d};
        return inverse.IsFinite() ? std::optional(inverse) : std::nullopt;
    }

    /// `first`, then `second`.
    friend Matrix operator*(const Matrix& first, const Matrix& second) {
        const Point x = second.MapVector({first.m11, first.m12});
        const Point y = second.MapVector({first.m21, first.m22});
        const Point d = second.Map({first.dx, first.dy});
        return {x.x, x.y, y.x, y.y, d.x, d.y};
    }
};

}  // namespace raster
