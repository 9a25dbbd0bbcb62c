#include "gdiplus/PenObject.h"

namespace flat {

PenObject::PenObject(const PenObject& other)
    : Object(other),
      brush(other.brush->Clone()),
      width(other.width),
      unit(other.unit),
      startCap(other.startCap),
      endCap(other.endCap),
      dashCap(other.dashCap),
      join(other.join),
      miterLimit(other.miterLimit),
      alignment(other.alignment),
      dashStyle(other.dashStyle),
      dashOffset(other.dashOffset),
      dashes(other.dashes) {}

namespace {

raster::Cap ToCap(GpLineCap cap) {
    if (cap >= LineCapSquareAnchor && cap <= LineCapArrowAnchor)
        return static_cast<raster::Cap>(static_cast<int>(raster::Cap::SquareAnchor) + cap -
                                        LineCapSquareAnchor);
    return cap <= LineCapTriangle ? static_cast<raster::Cap>(cap) : raster::Cap::Flat;
}

std::vector<double> StandardDashes(GpDashStyle style) {
    switch (style) {
        case DashStyleDash:
            return {3, 1};
        case DashStyleDot:
            return {1, 1};
        case DashStyleDashDot:
            return {3, 1, 1, 1};
        case DashStyleDashDotDot:
            return {3, 1, 1, 1, 1, 1};
        default:
            return {};
    }
}

GpStatus Create(std::unique_ptr<Brush> brush, REAL width, GpUnit unit, GpPen** out) {
    Require(unit >= UnitWorld && unit <= UnitMillimeter && unit != UnitDisplay);
    auto pen = std::make_unique<PenObject>();
    pen->brush = std::move(brush);
    pen->width = width;
    pen->unit = unit;
    Give(out, std::move(pen));
    return Ok;
}

}  // namespace

raster::Pen PenObject::Line(double lineWidth) const {
    raster::Pen pen;
    pen.width = lineWidth;
    const raster::Join joins[] = {raster::Join::MiterOrBevel, raster::Join::Bevel, raster::Join::Round,
                                  raster::Join::Miter};
    pen.join = joins[join];
    if (join == LineJoinMiter)
        pen.join = raster::Join::Miter;
    pen.miterLimit = (std::max)(1.0, double{miterLimit});
    pen.startCap = ToCap(startCap);
    pen.endCap = ToCap(endCap);
    pen.dashCap = ToCap(static_cast<GpLineCap>(dashCap));
    pen.alignment = alignment == PenAlignmentInset ? raster::Alignment::Inset : raster::Alignment::Center;
    if (dashStyle == DashStyleCustom)
        pen.dashes.assign(dashes.begin(), dashes.end());
    else
        pen.dashes = StandardDashes(dashStyle);
    pen.dashOffset = dashOffset;
    return pen;
}

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreatePen1(ARGB color, REAL width, GpUnit unit, GpPen** pen) {
    return Answer([&] { return Create(std::make_unique<SolidBrush>(color), width, unit, pen); });
}

GpStatus WINGDIPAPI GdipCreatePen2(GpBrush* brush, REAL width, GpUnit unit, GpPen** pen) {
    return Answer([&] { return Create(Get<Brush>(brush).Clone(), width, unit, pen); });
}

GpStatus WINGDIPAPI GdipClonePen(GpPen* pen, GpPen** clone) {
    return Answer([&] { Give(clone, std::make_unique<PenObject>(Get<PenObject>(pen))); });
}

GpStatus WINGDIPAPI GdipDeletePen(GpPen* pen) {
    return Answer([&] { Destroy<PenObject>(pen); });
}

GpStatus WINGDIPAPI GdipSetPenWidth(GpPen* pen, REAL width) {
    return Answer([&] { Get<PenObject>(pen).width = width; });
}

GpStatus WINGDIPAPI GdipGetPenWidth(GpPen* pen, REAL* width) {
    return Answer([&] { Out(width) = Get<PenObject>(pen).width; });
}

GpStatus WINGDIPAPI GdipSetPenStartCap(GpPen* pen, GpLineCap cap) {
    return Answer([&] { Get<PenObject>(pen).startCap = cap; });
}

GpStatus WINGDIPAPI GdipSetPenEndCap(GpPen* pen, GpLineCap cap) {
    return Answer([&] { Get<PenObject>(pen).endCap = cap; });
}

GpStatus WINGDIPAPI GdipGetPenStartCap(GpPen* pen, GpLineCap* cap) {
    return Answer([&] { Out(cap) = Get<PenObject>(pen).startCap; });
}

GpStatus WINGDIPAPI GdipGetPenEndCap(GpPen* pen, GpLineCap* cap) {
    return Answer([&] { Out(cap) = Get<PenObject>(pen).endCap; });
}

GpStatus WINGDIPAPI GdipSetPenLineCap197819(GpPen* pen, GpLineCap start, GpLineCap end, GpDashCap dash) {
    return Answer([&] {
        PenObject& own = Get<PenObject>(pen);
        own.startCap = start;
        own.endCap = end;
        own.dashCap = dash == DashCapRound || dash == DashCapTriangle ? dash : DashCapFlat;
    });
}

GpStatus WINGDIPAPI GdipSetPenLineJoin(GpPen* pen, GpLineJoin join) {
    return Answer([&] {
        Require(join >= LineJoinMiter && join <= LineJoinMiterClipped);
        Get<PenObject>(pen).join = join;
    });
}

GpStatus WINGDIPAPI GdipGetPenLineJoin(GpPen* pen, GpLineJoin* join) {
    return Answer([&] { Out(join) = Get<PenObject>(pen).join; });
}

GpStatus WINGDIPAPI GdipSetPenMiterLimit(GpPen* pen, REAL limit) {
    return Answer([&] { Get<PenObject>(pen).miterLimit = limit; });
}

GpStatus WINGDIPAPI GdipSetPenMode(GpPen* pen, GpPenAlignment alignment) {
    return Answer([&] { Get<PenObject>(pen).alignment = alignment; });
}

GpStatus WINGDIPAPI GdipGetPenMode(GpPen* pen, GpPenAlignment* alignment) {
    return Answer([&] { Out(alignment) = Get<PenObject>(pen).alignment; });
}

GpStatus WINGDIPAPI GdipSetPenColor(GpPen* pen, ARGB color) {
    return Answer([&] { Get<PenObject>(pen).brush = std::make_unique<SolidBrush>(color); });
}

GpStatus WINGDIPAPI GdipSetPenDashStyle(GpPen* pen, GpDashStyle style) {
    return Answer([&] {
        PenObject& own = Get<PenObject>(pen);
        Require(style >= DashStyleSolid && style <= DashStyleCustom);
        own.dashStyle = style;
        if (style == DashStyleCustom && own.dashes.empty())
            own.dashes = {1};
    });
}

GpStatus WINGDIPAPI GdipGetPenDashStyle(GpPen* pen, GpDashStyle* style) {
    return Answer([&] { Out(style) = Get<PenObject>(pen).dashStyle; });
}

GpStatus WINGDIPAPI GdipSetPenDashArray(GpPen* pen, const REAL* dashes, INT count) {
    return Answer([&] {
        PenObject& own = Get<PenObject>(pen);
        RequireArray(dashes, count);
        for (INT i = 0; i < count; ++i)
            Require(dashes[i] > 0);
        own.dashes.assign(dashes, dashes + count);
        own.dashStyle = DashStyleCustom;
    });
}

GpStatus WINGDIPAPI GdipSetPenDashOffset(GpPen* pen, REAL offset) {
    return Answer([&] { Get<PenObject>(pen).dashOffset = offset; });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
