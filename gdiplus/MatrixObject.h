// Transforms that callers hold.
#pragma once

#include "gdiplus/Handles.h"
#include "raster/Matrix.h"

namespace flat {

struct MatrixObject final : Object {
    static constexpr Kind kFirst = Kind::Matrix, kLast = Kind::Matrix;
    explicit MatrixObject(const raster::Matrix& value = {}) : matrix(value) {}
    raster::Matrix matrix;
};

inline raster::Point ToPoint(const PointF& point) {
    return {point.X, point.Y};
}
inline raster::Point ToPoint(const Gdiplus::Point& point) {
    return {static_cast<double>(point.X), static_cast<double>(point.Y)};
}
inline PointF FromPoint(raster::Point point) {
    return {static_cast<REAL>(point.x), static_cast<REAL>(point.y)};
}
/// To the nearest whole number; the ends of the range for what is beyond it.
INT Rounded(double value);

/// `change` before or after what `matrix` does. InvalidParameter for an order that is none.
void Combine(raster::Matrix& matrix, const raster::Matrix& change, GpMatrixOrder order);
/// In degrees.
raster::Matrix RotationBy(double degrees);
/// Maps the rectangle to the parallelogram of three points: upper left, upper right and lower left.
raster::Matrix ToParallelogram(const raster::Rect& rect, const raster::Point* points);
/// As a caller's numbers are: single precision.
bool SameMatrix(const raster::Matrix& a, const raster::Matrix& b);

}  // namespace flat
