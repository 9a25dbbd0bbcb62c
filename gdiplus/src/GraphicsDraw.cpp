// Lines and areas.
#include "gdiplus/Arguments.h"
#include "gdiplus/GraphicsObject.h"

namespace flat {

namespace {

// Builds a path of its own and strokes or fills it.
template <class Build>
GpStatus Stroke(GpGraphics* graphics, GpPen* pen, Build build) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        const PenObject& line = Get<PenObject>(pen);
        PathObject path;
        build(path);
        own.Stroke(path.Outline(), line);
    });
}

template <class Build>
GpStatus Fill(GpGraphics* graphics, GpBrush* brush, GpFillMode mode, Build build) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        const Brush& paint = Get<Brush>(brush);
        PathObject path;
        path.fillMode = mode;
        build(path);
        own.Fill(path.Outline(), path.Rule(), paint);
    });
}

template <class P>
GpStatus DrawLines(GpGraphics* graphics, GpPen* pen, const P* points, INT count) {
    return Stroke(graphics, pen, [&](PathObject& path) {
        const auto corners = ToPoints(points, count, 2);
        path.Begin(corners[0]);
        for (size_t i = 1; i < corners.size(); ++i)
            path.Line(corners[i]);
    });
}

template <class P>
GpStatus DrawBeziers(GpGraphics* graphics, GpPen* pen, const P* points, INT count) {
    return Stroke(graphics, pen, [&](PathObject& path) { path.Curves(ToPoints(points, count, 4)); });
}

template <class P>
GpStatus DrawCurve(GpGraphics* graphics, GpPen* pen, const P* points, INT count, REAL tension) {
    return Stroke(graphics, pen, [&](PathObject& path) {
        const auto all = ToPoints(points, count, 2);
        path.Spline(all, 0, all.size() - 1, tension);
    });
}

template <class P>
GpStatus DrawPolygon(GpGraphics* graphics, GpPen* pen, const P* points, INT count) {
    return Stroke(graphics, pen, [&](PathObject& path) { path.Polygon(ToPoints(points, count, 2)); });
}

template <class P>
GpStatus FillPolygon(GpGraphics* graphics, GpBrush* brush, const P* points, INT count, GpFillMode mode) {
    return Fill(graphics, brush, mode, [&](PathObject& path) { path.Polygon(ToPoints(points, count, 3)); });
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipGraphicsClear(GpGraphics* graphics, ARGB color) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        const raster::IntRect box = own.Visible().Bounds();
        const raster::Rect around{double(box.left), double(box.top), double(box.right), double(box.bottom)};
        own.Draw(around, [&](raster::Renderer& renderer, const raster::Matrix&) {
            renderer.Style() = {raster::Edges::Sharp, raster::Settings::Origin::Corner,
                                raster::Settings::Mode::Copy};
            const raster::IntRect& all = renderer.Clip().Bounds();
            renderer.FillRectangle({double(all.left), double(all.top), double(all.right), double(all.bottom)},
                                   {}, raster::SolidPaint(color));
        });
    });
}

GpStatus WINGDIPAPI GdipDrawLine(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2, REAL y2) {
    const PointF points[] = {{x1, y1}, {x2, y2}};
    return DrawLines(graphics, pen, points, 2);
}

GpStatus WINGDIPAPI GdipDrawLineI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1, INT x2, INT y2) {
    return GdipDrawLine(graphics, pen, REAL(x1), REAL(y1), REAL(x2), REAL(y2));
}

GpStatus WINGDIPAPI GdipDrawLines(GpGraphics* graphics, GpPen* pen, const GpPointF* points, INT count) {
    return DrawLines(graphics, pen, points, count);
}

GpStatus WINGDIPAPI GdipDrawLinesI(GpGraphics* graphics, GpPen* pen, const GpPoint* points, INT count) {
    return DrawLines(graphics, pen, points, count);
}

GpStatus WINGDIPAPI GdipDrawBezier(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2, REAL y2,
                                   REAL x3, REAL y3, REAL x4, REAL y4) {
    const PointF points[] = {{x1, y1}, {x2, y2}, {x3, y3}, {x4, y4}};
    return DrawBeziers(graphics, pen, points, 4);
}

GpStatus WINGDIPAPI GdipDrawBezierI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1, INT x2, INT y2, INT x3,
                                    INT y3, INT x4, INT y4) {
    const GpPoint points[] = {{x1, y1}, {x2, y2}, {x3, y3}, {x4, y4}};
    return DrawBeziers(graphics, pen, points, 4);
}

GpStatus WINGDIPAPI GdipDrawBeziers(GpGraphics* graphics, GpPen* pen, const GpPointF* points, INT count) {
    return DrawBeziers(graphics, pen, points, count);
}

GpStatus WINGDIPAPI GdipDrawCurve2(GpGraphics* graphics, GpPen* pen, const GpPointF* points, INT count,
                                   REAL tension) {
    return DrawCurve(graphics, pen, points, count, tension);
}

GpStatus WINGDIPAPI GdipDrawCurve2I(GpGraphics* graphics, GpPen* pen, const GpPoint* points, INT count,
                                    REAL tension) {
    return DrawCurve(graphics, pen, points, count, tension);
}

GpStatus WINGDIPAPI GdipDrawRectangle(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                      REAL height) {
    return Stroke(graphics, pen, [&](PathObject& path) { path.Rectangle(ToRect(x, y, width, height)); });
}

GpStatus WINGDIPAPI GdipDrawRectangleI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width,
                                       INT height) {
    return GdipDrawRectangle(graphics, pen, REAL(x), REAL(y), REAL(width), REAL(height));
}

GpStatus WINGDIPAPI GdipDrawEllipse(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                    REAL height) {
    return Stroke(graphics, pen, [&](PathObject& path) { path.Ellipse(ToRect(x, y, width, height)); });
}

GpStatus WINGDIPAPI GdipDrawEllipseI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width, INT height) {
    return GdipDrawEllipse(graphics, pen, REAL(x), REAL(y), REAL(width), REAL(height));
}

GpStatus WINGDIPAPI GdipDrawArc(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width, REAL height,
                                REAL start, REAL sweep) {
    return Stroke(graphics, pen,
                  [&](PathObject& path) { path.Arc(ToRect(x, y, width, height), start, sweep); });
}

GpStatus WINGDIPAPI GdipDrawPie(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width, REAL height,
                                REAL start, REAL sweep) {
    return Stroke(graphics, pen,
                  [&](PathObject& path) { path.Pie(ToRect(x, y, width, height), start, sweep); });
}

GpStatus WINGDIPAPI GdipDrawPolygon(GpGraphics* graphics, GpPen* pen, const GpPointF* points, INT count) {
    return DrawPolygon(graphics, pen, points, count);
}

GpStatus WINGDIPAPI GdipDrawPolygonI(GpGraphics* graphics, GpPen* pen, const GpPoint* points, INT count) {
    return DrawPolygon(graphics, pen, points, count);
}

GpStatus WINGDIPAPI GdipDrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        own.Stroke(Get<PathObject>(path).Outline(), Get<PenObject>(pen));
    });
}

GpStatus WINGDIPAPI GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y, REAL width,
                                      REAL height) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        const Brush& paint = Get<Brush>(brush);
        if (width > 0 && height > 0)
            own.FillRectangle(ToRect(x, y, width, height), paint);
    });
}

GpStatus WINGDIPAPI GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                                       INT height) {
    return GdipFillRectangle(graphics, brush, REAL(x), REAL(y), REAL(width), REAL(height));
}

GpStatus WINGDIPAPI GdipFillEllipse(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y, REAL width,
                                    REAL height) {
    return Fill(graphics, brush, FillModeAlternate,
                [&](PathObject& path) { path.Ellipse(ToRect(x, y, width, height)); });
}

GpStatus WINGDIPAPI GdipFillEllipseI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                                     INT height) {
    return GdipFillEllipse(graphics, brush, REAL(x), REAL(y), REAL(width), REAL(height));
}

GpStatus WINGDIPAPI GdipFillPie(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y, REAL width, REAL height,
                                REAL start, REAL sweep) {
    return Fill(graphics, brush, FillModeAlternate,
                [&](PathObject& path) { path.Pie(ToRect(x, y, width, height), start, sweep); });
}

GpStatus WINGDIPAPI GdipFillPolygon(GpGraphics* graphics, GpBrush* brush, const GpPointF* points, INT count,
                                    GpFillMode mode) {
    return FillPolygon(graphics, brush, points, count, mode);
}

GpStatus WINGDIPAPI GdipFillPolygonI(GpGraphics* graphics, GpBrush* brush, const GpPoint* points, INT count,
                                     GpFillMode mode) {
    return FillPolygon(graphics, brush, points, count, mode);
}

GpStatus WINGDIPAPI GdipFillPath(GpGraphics* graphics, GpBrush* brush, GpPath* path) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        const PathObject& shape = Get<PathObject>(path);
        own.Fill(shape.Outline(), shape.Rule(), Get<Brush>(brush));
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
