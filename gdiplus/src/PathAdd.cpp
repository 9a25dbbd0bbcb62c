// GdipAddPathXxx but for text: what a path is made of.
#include "gdiplus/Arguments.h"
#include "gdiplus/PathObject.h"

namespace flat {

namespace {

template <class P>
GpStatus AddLines(GpPath* path, const P* points, INT count) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        const auto corners = ToPoints(points, count);
        own.Begin(corners[0]);
        for (size_t i = 1; i < corners.size(); ++i)
            own.Line(corners[i]);
    });
}

template <class P>
GpStatus AddBeziers(GpPath* path, const P* points, INT count) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        own.Curves(ToPoints(points, count, 4));
    });
}

template <class P>
GpStatus AddSpline(GpPath* path, const P* points, INT count, INT offset, INT segments, REAL tension) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        const auto all = ToPoints(points, count, 2);
        Require(offset >= 0 && segments >= 1 && offset < count && segments <= count - 1 - offset);
        own.Spline(all, static_cast<size_t>(offset), static_cast<size_t>(segments), tension);
    });
}

template <class P>
GpStatus AddClosedSpline(GpPath* path, const P* points, INT count, REAL tension) {
    return Answer([&] { Get<PathObject>(path).ClosedSpline(ToPoints(points, count, 3), tension); });
}

template <class P>
GpStatus AddPolygon(GpPath* path, const P* points, INT count) {
    return Answer([&] { Get<PathObject>(path).Polygon(ToPoints(points, count, 3)); });
}

template <class R>
GpStatus AddRectangles(GpPath* path, const R* rects, INT count) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        RequireArray(rects, count);
        for (INT i = 0; i < count; ++i)
            if (HasArea(ToRect(rects[i])))
                own.Rectangle(ToRect(rects[i]));
    });
}

constexpr REAL kTension = 0.5f;

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipAddPathLine(GpPath* path, REAL x1, REAL y1, REAL x2, REAL y2) {
    const PointF points[] = {{x1, y1}, {x2, y2}};
    return AddLines(path, points, 2);
}

GpStatus WINGDIPAPI GdipAddPathLineI(GpPath* path, INT x1, INT y1, INT x2, INT y2) {
    const GpPoint points[] = {{x1, y1}, {x2, y2}};
    return AddLines(path, points, 2);
}

GpStatus WINGDIPAPI GdipAddPathLine2(GpPath* path, const GpPointF* points, INT count) {
    return AddLines(path, points, count);
}

GpStatus WINGDIPAPI GdipAddPathLine2I(GpPath* path, const GpPoint* points, INT count) {
    return AddLines(path, points, count);
}

GpStatus WINGDIPAPI GdipAddPathArc(GpPath* path, REAL x, REAL y, REAL width, REAL height, REAL start,
                                   REAL sweep) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        Require(width > 0 && height > 0);
        own.Arc(ToRect(x, y, width, height), start, sweep);
    });
}

GpStatus WINGDIPAPI GdipAddPathArcI(GpPath* path, INT x, INT y, INT width, INT height, REAL start,
                                    REAL sweep) {
    return GdipAddPathArc(path, REAL(x), REAL(y), REAL(width), REAL(height), start, sweep);
}

GpStatus WINGDIPAPI GdipAddPathBezier(GpPath* path, REAL x1, REAL y1, REAL x2, REAL y2, REAL x3, REAL y3,
                                      REAL x4, REAL y4) {
    const PointF points[] = {{x1, y1}, {x2, y2}, {x3, y3}, {x4, y4}};
    return AddBeziers(path, points, 4);
}

GpStatus WINGDIPAPI GdipAddPathBezierI(GpPath* path, INT x1, INT y1, INT x2, INT y2, INT x3, INT y3, INT x4,
                                       INT y4) {
    const GpPoint points[] = {{x1, y1}, {x2, y2}, {x3, y3}, {x4, y4}};
    return AddBeziers(path, points, 4);
}

GpStatus WINGDIPAPI GdipAddPathBeziers(GpPath* path, const GpPointF* points, INT count) {
    return AddBeziers(path, points, count);
}

GpStatus WINGDIPAPI GdipAddPathBeziersI(GpPath* path, const GpPoint* points, INT count) {
    return AddBeziers(path, points, count);
}

GpStatus WINGDIPAPI GdipAddPathCurve(GpPath* path, const GpPointF* points, INT count) {
    return AddSpline(path, points, count, 0, count - 1, kTension);
}

GpStatus WINGDIPAPI GdipAddPathCurveI(GpPath* path, const GpPoint* points, INT count) {
    return AddSpline(path, points, count, 0, count - 1, kTension);
}

GpStatus WINGDIPAPI GdipAddPathCurve2(GpPath* path, const GpPointF* points, INT count, REAL tension) {
    return AddSpline(path, points, count, 0, count - 1, tension);
}

GpStatus WINGDIPAPI GdipAddPathCurve2I(GpPath* path, const GpPoint* points, INT count, REAL tension) {
    return AddSpline(path, points, count, 0, count - 1, tension);
}

GpStatus WINGDIPAPI GdipAddPathCurve3(GpPath* path, const GpPointF* points, INT count, INT offset,
                                      INT segments, REAL tension) {
    return AddSpline(path, points, count, offset, segments, tension);
}

GpStatus WINGDIPAPI GdipAddPathCurve3I(GpPath* path, const GpPoint* points, INT count, INT offset,
                                       INT segments, REAL tension) {
    return AddSpline(path, points, count, offset, segments, tension);
}

GpStatus WINGDIPAPI GdipAddPathClosedCurve(GpPath* path, const GpPointF* points, INT count) {
    return AddClosedSpline(path, points, count, kTension);
}

GpStatus WINGDIPAPI GdipAddPathClosedCurveI(GpPath* path, const GpPoint* points, INT count) {
    return AddClosedSpline(path, points, count, kTension);
}

GpStatus WINGDIPAPI GdipAddPathClosedCurve2(GpPath* path, const GpPointF* points, INT count, REAL tension) {
    return AddClosedSpline(path, points, count, tension);
}

GpStatus WINGDIPAPI GdipAddPathClosedCurve2I(GpPath* path, const GpPoint* points, INT count, REAL tension) {
    return AddClosedSpline(path, points, count, tension);
}

GpStatus WINGDIPAPI GdipAddPathRectangle(GpPath* path, REAL x, REAL y, REAL width, REAL height) {
    const RectF rect(x, y, width, height);
    return AddRectangles(path, &rect, 1);
}

GpStatus WINGDIPAPI GdipAddPathRectangleI(GpPath* path, INT x, INT y, INT width, INT height) {
    const GpRect rect(x, y, width, height);
    return AddRectangles(path, &rect, 1);
}

GpStatus WINGDIPAPI GdipAddPathRectangles(GpPath* path, const GpRectF* rects, INT count) {
    return AddRectangles(path, rects, count);
}

GpStatus WINGDIPAPI GdipAddPathRectanglesI(GpPath* path, const GpRect* rects, INT count) {
    return AddRectangles(path, rects, count);
}

GpStatus WINGDIPAPI GdipAddPathEllipse(GpPath* path, REAL x, REAL y, REAL width, REAL height) {
    return Answer([&] { Get<PathObject>(path).Ellipse(ToRect(x, y, width, height)); });
}

GpStatus WINGDIPAPI GdipAddPathEllipseI(GpPath* path, INT x, INT y, INT width, INT height) {
    return GdipAddPathEllipse(path, REAL(x), REAL(y), REAL(width), REAL(height));
}

GpStatus WINGDIPAPI GdipAddPathPie(GpPath* path, REAL x, REAL y, REAL width, REAL height, REAL start,
                                   REAL sweep) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        Require(width > 0 && height > 0);
        own.Pie(ToRect(x, y, width, height), start, sweep);
    });
}

GpStatus WINGDIPAPI GdipAddPathPieI(GpPath* path, INT x, INT y, INT width, INT height, REAL start,
                                    REAL sweep) {
    return GdipAddPathPie(path, REAL(x), REAL(y), REAL(width), REAL(height), start, sweep);
}

GpStatus WINGDIPAPI GdipAddPathPolygon(GpPath* path, const GpPointF* points, INT count) {
    return AddPolygon(path, points, count);
}

GpStatus WINGDIPAPI GdipAddPathPolygonI(GpPath* path, const GpPoint* points, INT count) {
    return AddPolygon(path, points, count);
}

GpStatus WINGDIPAPI GdipAddPathPath(GpPath* path, const GpPath* other, BOOL connect) {
    return Answer([&] { Get<PathObject>(path).Append(Get<PathObject>(other), connect != FALSE); });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
