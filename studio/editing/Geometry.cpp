#include "studio/editing/Geometry.h"

#include "behaviour/UIObjectList.h"
#include "core/Geometry.h"
#include "core/UIObjectPoly.h"

#include <algorithm>
#include <cmath>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;
using Lumo::CUIObject;
using Lumo::CUIObjectList;
using Lumo::CUIObjectPoly;

namespace {

// The kind is asked first: it spares most objects of a large selection the slow cast.
CUIObjectPoly* AsPoly(CUIObject& object) {
    const Lumo::DrawShape kind = object.GetDrawShape();
    return kind == Lumo::DS_LINE || kind == Lumo::DS_POLYLINE ? dynamic_cast<CUIObjectPoly*>(&object)
                                                              : nullptr;
}

CUIObjectList* AsGroup(CUIObject& object) {
    return object.GetDrawShape() == Lumo::DS_GROUP ? dynamic_cast<CUIObjectList*>(&object) : nullptr;
}

// A line follows its points; without any it has only its rectangle.
CUIObjectPoly* AsFigure(CUIObject& object) {
    auto* poly = AsPoly(object);
    return poly && !poly->NormalizePoints()->empty() ? poly : nullptr;
}

RectF Shifted(const RectF& rect, const PointF& delta) {
    return {rect.X + delta.X, rect.Y + delta.Y, rect.Width, rect.Height};
}

template <class Map>
void PlacePoints(CUIObjectPoly& poly, const std::vector<PointF>& start, Map map) {
    auto& points = *poly.NewPoints(static_cast<int>(start.size()));
    std::transform(start.begin(), start.end(), points.begin(), map);
    poly.RecalcBounds();
}

PointF Turned(const PointF& point, const PointF& centre, bool clockwise) {
    const float x = point.X - centre.X;
    const float y = point.Y - centre.Y;
    return clockwise ? PointF(centre.X - y, centre.Y + x) : PointF(centre.X + y, centre.Y - x);
}

RectF TurnedBounds(const RectF& bounds, const PointF& centre, bool clockwise) {
    const PointF middle = Turned(Lumo::CentreOf(bounds), centre, clockwise);
    return {middle.X - bounds.Height * 0.5f, middle.Y - bounds.Width * 0.5f, bounds.Height, bounds.Width};
}

// Whether the segment from a to b meets the rectangle: what is left of it after clipping at the four edges.
bool SegmentMeets(const PointF& a, const PointF& b, const RectF& rect) {
    const float dx = b.X - a.X;
    const float dy = b.Y - a.Y;
    const float step[4] = {-dx, dx, -dy, dy};
    const float room[4] = {a.X - rect.X, rect.X + rect.Width - a.X, a.Y - rect.Y, rect.Y + rect.Height - a.Y};
    float from = 0.0f;
    float to = 1.0f;
    for (int edge = 0; edge < 4; ++edge) {
        if (step[edge] == 0.0f) {
            if (room[edge] < 0.0f)
                return false;
            continue;
        }
        const float cut = room[edge] / step[edge];
        if (step[edge] < 0.0f)
            from = std::max(from, cut);
        else
            to = std::min(to, cut);
    }
    return from <= to;
}

// Grows the shorter side of a dragged corner so that the proportions of `start` stay.
void KeepProportions(const RectF& start, float& dx, float& dy) {
    const float width = start.Width > 0.0f ? start.Width : 1.0f;
    const float height = start.Height > 0.0f ? start.Height : 1.0f;
    const float scale = std::max(std::fabs(dx) / width, std::fabs(dy) / height);
    dx = std::copysign(scale * width, dx);
    dy = std::copysign(scale * height, dy);
}

// A caption that is narrow enough to be drawn may be higher than its object.
float CaptionOverhang(CUIObject& object) {
    constexpr float kNarrowLetter = 0.2f;
    const float em = object.GetTextFontSize();
    const Gdiplus::SizeF size = object.GetSize();
    if (size.Height >= em * 1.5f ||
        size.Width < em * kNarrowLetter * static_cast<float>(object.GetText().GetLength()))
        return 0.0f;
    return em;
}

}  // namespace

Geometry CaptureGeometry(CUIObject& object) {
    Geometry geometry{object.GetPosition(), {}, {}};
    if (auto* poly = AsFigure(object)) {
        const auto& points = *poly->NormalizePoints();
        geometry.points.assign(points.begin(), points.end());
    } else if (auto* group = AsGroup(object)) {
        for (CUIObject* child : group->GetChildren())
            geometry.children.push_back(CaptureGeometry(*child));
    }
    return geometry;
}

void RestoreGeometry(CUIObject& object, const Geometry& geometry) {
    PlaceShifted(object, geometry, PointF(0.0f, 0.0f));
    if (auto* group = AsGroup(object)) {
        const auto& children = group->GetChildren();
        for (size_t i = 0; i < children.size() && i < geometry.children.size(); ++i)
            RestoreGeometry(*children[i], geometry.children[i]);
    }
}

void PlaceShifted(CUIObject& object, const Geometry& start, const PointF& delta) {
    if (auto* poly = AsFigure(object))
        PlacePoints(*poly, start.points, [&](const PointF& p) { return p + delta; });
    else
        PutBounds(object, Shifted(start.bounds, delta));
}

void PlaceFitted(CUIObject& object, const Geometry& start, const RectF& bounds) {
    const float sx = start.bounds.Width > 0.0f ? bounds.Width / start.bounds.Width : 1.0f;
    const float sy = start.bounds.Height > 0.0f ? bounds.Height / start.bounds.Height : 1.0f;
    if (auto* poly = AsFigure(object)) {
        PlacePoints(*poly, start.points, [&](const PointF& p) {
            return PointF(bounds.X + (p.X - start.bounds.X) * sx, bounds.Y + (p.Y - start.bounds.Y) * sy);
        });
        return;
    }
    PutBounds(object, bounds);
    if (auto* group = AsGroup(object)) {
        const auto& children = group->GetChildren();
        for (size_t i = 0; i < children.size() && i < start.children.size(); ++i) {
            const RectF& child = start.children[i].bounds;
            PlaceFitted(*children[i], start.children[i],
                        RectF(child.X * sx, child.Y * sy, child.Width * sx, child.Height * sy));
        }
    }
}

void ShiftObject(CUIObject& object, const PointF& delta) {
    if (auto* poly = AsFigure(object)) {
        for (PointF& point : *poly->NormalizePoints())
            point = point + delta;
        poly->RecalcBounds();
    } else {
        PutBounds(object, Shifted(object.GetPosition(), delta));
    }
}

void TurnObject(CUIObject& object, const PointF& centre, bool clockwise) {
    if (auto* poly = AsFigure(object)) {
        for (PointF& point : *poly->NormalizePoints())
            point = Turned(point, centre, clockwise);
        poly->RecalcBounds();
        return;
    }
    const RectF before = object.GetPosition();
    const RectF after = TurnedBounds(before, centre, clockwise);
    PutBounds(object, after);
    if (auto* group = AsGroup(object)) {
        for (CUIObject* child : group->GetChildren()) {
            ShiftObject(*child, PointF(before.X, before.Y));
            TurnObject(*child, centre, clockwise);
            ShiftObject(*child, PointF(-after.X, -after.Y));
        }
    }
}

void FlipObject(CUIObject& object, const PointF& centre, bool horizontally) {
    if (auto* poly = AsFigure(object)) {
        for (PointF& point : *poly->NormalizePoints())
            (horizontally ? point.X : point.Y) =
                horizontally ? 2.0f * centre.X - point.X : 2.0f * centre.Y - point.Y;
        poly->RecalcBounds();
        return;
    }
    RectF bounds = object.GetPosition();
    if (auto* group = AsGroup(object)) {
        const PointF middle(bounds.Width * 0.5f, bounds.Height * 0.5f);
        for (CUIObject* child : group->GetChildren())
            FlipObject(*child, middle, horizontally);
    }
    if (horizontally)
        bounds.X = 2.0f * centre.X - bounds.X - bounds.Width;
    else
        bounds.Y = 2.0f * centre.Y - bounds.Y - bounds.Height;
    PutBounds(object, bounds);
}

void PutBounds(CUIObject& object, const RectF& bounds) {
    const PointF offset = object.GetPositionOffset();
    object.SetPosition(RectF(bounds.X - offset.X, bounds.Y - offset.Y, bounds.Width, bounds.Height));
}

RectF ResizedBounds(const RectF& start, int handle, const PointF& delta, bool keepShape) {
    const bool left = handle == 0 || handle == 3 || handle == 7;
    const bool right = handle == 1 || handle == 2 || handle == 5;
    const bool top = handle == 0 || handle == 1 || handle == 4;
    const bool bottom = handle == 2 || handle == 3 || handle == 6;
    float width = start.Width + (right ? delta.X : left ? -delta.X : 0.0f);
    float height = start.Height + (bottom ? delta.Y : top ? -delta.Y : 0.0f);
    if (keepShape && handle >= 0 && handle <= 3)
        KeepProportions(start, width, height);
    RectF bounds(left ? start.X + start.Width - width : start.X,
                 top ? start.Y + start.Height - height : start.Y, width, height);
    bounds = Lumo::Normalised(bounds);
    bounds.Width = std::max(bounds.Width, 1.0f);
    bounds.Height = std::max(bounds.Height, 1.0f);
    return bounds;
}

float PaintMargin(CUIObject& object) {
    constexpr float kTracker = 6.0f;
    if (auto* group = AsGroup(object)) {
        float margin = kTracker;
        for (CUIObject* child : group->GetChildren())
            margin = std::max(margin, PaintMargin(*child));
        return margin;
    }
    // The line class triples its pen, and an anchor cap is twice as wide as the pen.
    if (AsPoly(object))
        return kTracker + object.GetLineWidth() * 6.0f;
    return kTracker + object.GetLineWidth() + CaptionOverhang(object);
}

RectF United(const RectF& a, const RectF& b) {
    const float left = std::min(a.X, b.X);
    const float top = std::min(a.Y, b.Y);
    return {left, top, std::max(a.X + a.Width, b.X + b.Width) - left,
            std::max(a.Y + a.Height, b.Y + b.Height) - top};
}

bool Touches(CUIObject& object, const RectF& band) {
    const RectF bounds = Lumo::Normalised(object.GetPosition());
    if (bounds.X > band.X + band.Width || band.X > bounds.X + bounds.Width ||
        bounds.Y > band.Y + band.Height || band.Y > bounds.Y + bounds.Height)
        return false;
    auto* poly = AsFigure(object);
    if (!poly)
        return true;
    const auto& points = *poly->NormalizePoints();
    for (size_t i = 1; i < points.size(); ++i) {
        if (SegmentMeets(points[i - 1], points[i], band))
            return true;
    }
    return points.size() == 1;
}

int HandleAt(CUIObject& object, const PointF& point) {
    if (!Lumo::ContainsPoint(Lumo::Inflated(Lumo::Normalised(object.GetPosition()), 5.0f), point))
        return -1;
    CUIObjectPoly* poly = AsPoly(object);
    int count = object.GetHandleCount() - 1;
    if (poly && !poly->GetRectMode())
        count = std::min(count, static_cast<int>(poly->NormalizePoints()->size()));
    for (int handle = 0; handle < count; ++handle) {
        if (Lumo::ContainsPoint(object.GetHandleRect(handle), point))
            return handle;
    }
    return -1;
}

}  // namespace Studio
