// GdipXxxMatrixXxx.
#include "gdiplus/MatrixObject.h"

#include <numbers>

namespace flat {

INT Rounded(double value) {
    if (!(value > -2147483648.0))
        return INT_MIN;
    return value >= 2147483647.0 ? INT_MAX : static_cast<INT>(std::floor(value + 0.5));
}

void Combine(raster::Matrix& matrix, const raster::Matrix& change, GpMatrixOrder order) {
    Require(order == MatrixOrderPrepend || order == MatrixOrderAppend);
    matrix = order == MatrixOrderPrepend ? change * matrix : matrix * change;
}

raster::Matrix RotationBy(double degrees) {
    // Quarter turns are exact.
    const double quarters = degrees / 90;
    if (quarters == std::floor(quarters) && std::abs(quarters) < 1e9) {
        const int turn = static_cast<int>(((static_cast<int64_t>(quarters) % 4) + 4) % 4);
        const double c[] = {1, 0, -1, 0}, s[] = {0, 1, 0, -1};
        return {c[turn], s[turn], -s[turn], c[turn], 0, 0};
    }
    return raster::Matrix::Rotation(degrees * std::numbers::pi / 180);
}

raster::Matrix ToParallelogram(const raster::Rect& rect, const raster::Point* points) {
    const double width = rect.Width(), height = rect.Height();
    Require(width != 0 && height != 0);
    const raster::Point x = (points[1] - points[0]) * (1 / width), y = (points[2] - points[0]) * (1 / height);
    return raster::Matrix::Translation(-rect.left, -rect.top) *
           raster::Matrix{x.x, x.y, y.x, y.y, points[0].x, points[0].y};
}

bool SameMatrix(const raster::Matrix& a, const raster::Matrix& b) {
    const auto same = [](double p, double q) { return static_cast<REAL>(p) == static_cast<REAL>(q); };
    return same(a.m11, b.m11) && same(a.m12, b.m12) && same(a.m21, b.m21) && same(a.m22, b.m22) &&
           same(a.dx, b.dx) && same(a.dy, b.dy);
}

namespace {

void Create(const raster::Rect& rect, const raster::Point* points, GpMatrix** out) {
    Give(out, std::make_unique<MatrixObject>(ToParallelogram(rect, points)));
}

template <class P, class Map>
void MapAll(P* points, INT count, Map map) {
    RequireArray(points, count);
    for (INT i = 0; i < count; ++i) {
        const raster::Point to = map(ToPoint(points[i]));
        if constexpr (std::is_same_v<P, PointF>)
            points[i] = FromPoint(to);
        else
            points[i] = {Rounded(to.x), Rounded(to.y)};
    }
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreateMatrix(GpMatrix** matrix) {
    return Answer([&] { Give(matrix, std::make_unique<MatrixObject>()); });
}

GpStatus WINGDIPAPI GdipCreateMatrix2(REAL m11, REAL m12, REAL m21, REAL m22, REAL dx, REAL dy,
                                      GpMatrix** matrix) {
    return Answer([&] {
        Give(matrix, std::make_unique<MatrixObject>(raster::Matrix{m11, m12, m21, m22, dx, dy}));
    });
}

GpStatus WINGDIPAPI GdipCreateMatrix3(const GpRectF* rect, const GpPointF* points, GpMatrix** matrix) {
    return Answer([&] {
        Require(rect && points);
        const raster::Point corners[] = {ToPoint(points[0]), ToPoint(points[1]), ToPoint(points[2])};
        Create({rect->X, rect->Y, double{rect->X} + rect->Width, double{rect->Y} + rect->Height}, corners,
               matrix);
    });
}

GpStatus WINGDIPAPI GdipCreateMatrix3I(const GpRect* rect, const GpPoint* points, GpMatrix** matrix) {
    return Answer([&] {
        Require(rect && points);
        const raster::Point corners[] = {ToPoint(points[0]), ToPoint(points[1]), ToPoint(points[2])};
        Create(
            {double(rect->X), double(rect->Y), double(rect->X) + rect->Width, double(rect->Y) + rect->Height},
            corners, matrix);
    });
}

GpStatus WINGDIPAPI GdipCloneMatrix(GpMatrix* matrix, GpMatrix** clone) {
    return Answer([&] { Give(clone, std::make_unique<MatrixObject>(Get<MatrixObject>(matrix).matrix)); });
}

GpStatus WINGDIPAPI GdipDeleteMatrix(GpMatrix* matrix) {
    return Answer([&] { Destroy<MatrixObject>(matrix); });
}

GpStatus WINGDIPAPI GdipSetMatrixElements(GpMatrix* matrix, REAL m11, REAL m12, REAL m21, REAL m22, REAL dx,
                                          REAL dy) {
    return Answer([&] { Get<MatrixObject>(matrix).matrix = {m11, m12, m21, m22, dx, dy}; });
}

GpStatus WINGDIPAPI GdipMultiplyMatrix(GpMatrix* matrix, GpMatrix* by, GpMatrixOrder order) {
    return Answer(
        [&] { flat::Combine(Get<MatrixObject>(matrix).matrix, Get<MatrixObject>(by).matrix, order); });
}

GpStatus WINGDIPAPI GdipTranslateMatrix(GpMatrix* matrix, REAL dx, REAL dy, GpMatrixOrder order) {
    return Answer(
        [&] { flat::Combine(Get<MatrixObject>(matrix).matrix, raster::Matrix::Translation(dx, dy), order); });
}

GpStatus WINGDIPAPI GdipScaleMatrix(GpMatrix* matrix, REAL x, REAL y, GpMatrixOrder order) {
    return Answer(
        [&] { flat::Combine(Get<MatrixObject>(matrix).matrix, raster::Matrix::Scaling(x, y), order); });
}

GpStatus WINGDIPAPI GdipRotateMatrix(GpMatrix* matrix, REAL angle, GpMatrixOrder order) {
    return Answer([&] { flat::Combine(Get<MatrixObject>(matrix).matrix, RotationBy(angle), order); });
}

GpStatus WINGDIPAPI GdipShearMatrix(GpMatrix* matrix, REAL x, REAL y, GpMatrixOrder order) {
    return Answer([&] {
        flat::Combine(Get<MatrixObject>(matrix).matrix, raster::Matrix{1, y, x, 1, 0, 0}, order);
    });
}

GpStatus WINGDIPAPI GdipInvertMatrix(GpMatrix* matrix) {
    return Answer([&] {
        raster::Matrix& own = Get<MatrixObject>(matrix).matrix;
        const auto inverse = own.Inverse();
        Require(inverse.has_value());
        own = *inverse;
    });
}

GpStatus WINGDIPAPI GdipTransformMatrixPoints(GpMatrix* matrix, GpPointF* points, INT count) {
    return Answer([&] {
        const raster::Matrix& own = Get<MatrixObject>(matrix).matrix;
        MapAll(points, count, [&](raster::Point p) { return own.Map(p); });
    });
}

GpStatus WINGDIPAPI GdipTransformMatrixPointsI(GpMatrix* matrix, GpPoint* points, INT count) {
    return Answer([&] {
        const raster::Matrix& own = Get<MatrixObject>(matrix).matrix;
        MapAll(points, count, [&](raster::Point p) { return own.Map(p); });
    });
}

GpStatus WINGDIPAPI GdipVectorTransformMatrixPoints(GpMatrix* matrix, GpPointF* points, INT count) {
    return Answer([&] {
        const raster::Matrix& own = Get<MatrixObject>(matrix).matrix;
        MapAll(points, count, [&](raster::Point p) { return own.MapVector(p); });
    });
}

GpStatus WINGDIPAPI GdipVectorTransformMatrixPointsI(GpMatrix* matrix, GpPoint* points, INT count) {
    return Answer([&] {
        const raster::Matrix& own = Get<MatrixObject>(matrix).matrix;
        MapAll(points, count, [&](raster::Point p) { return own.MapVector(p); });
    });
}

GpStatus WINGDIPAPI GdipGetMatrixElements(const GpMatrix* matrix, REAL* elements) {
    return Answer([&] {
        const raster::Matrix& own = Get<MatrixObject>(matrix).matrix;
        Require(elements);
        const double all[] = {own.m11, own.m12, own.m21, own.m22, own.dx, own.dy};
        for (int i = 0; i < 6; ++i)
            elements[i] = static_cast<REAL>(all[i]);
    });
}

GpStatus WINGDIPAPI GdipIsMatrixInvertible(const GpMatrix* matrix, BOOL* result) {
    return Answer([&] { Out(result) = Get<MatrixObject>(matrix).matrix.Inverse().has_value(); });
}

GpStatus WINGDIPAPI GdipIsMatrixIdentity(const GpMatrix* matrix, BOOL* result) {
    return Answer([&] { Out(result) = SameMatrix(Get<MatrixObject>(matrix).matrix, {}); });
}

GpStatus WINGDIPAPI GdipIsMatrixEqual(const GpMatrix* matrix, const GpMatrix* other, BOOL* result) {
    return Answer(
        [&] { Out(result) = SameMatrix(Get<MatrixObject>(matrix).matrix, Get<MatrixObject>(other).matrix); });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
