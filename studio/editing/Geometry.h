// Where an object stands, independent of its class: rectangle, points of a line, children of a group.
// Gestures keep such a record from their start, so that every step is calculated from it and a cancelled
// gesture leaves no trace.
#pragma once

#include "core/UIObject.h"

#include <vector>

namespace Studio {

/// A rectangle around every place that an object can be at.
inline const Gdiplus::RectF kEverywhere(-1.0e9f, -1.0e9f, 2.0e9f, 2.0e9f);

/// Place and size of one object in page units; children of a group are measured from the group's corner.
struct Geometry {
    Gdiplus::RectF bounds;
    std::vector<Gdiplus::PointF> points;
    std::vector<Geometry> children;
};

/// The object's geometry as it is now.
Geometry CaptureGeometry(Lumo::CUIObject& object);

/// Gives the object back the geometry that was captured from it.
void RestoreGeometry(Lumo::CUIObject& object, const Geometry& geometry);

/// Puts the object where `start` was, displaced by `delta`.
void PlaceShifted(Lumo::CUIObject& object, const Geometry& start, const Gdiplus::PointF& delta);

/// Puts the object into `bounds`, its points and children scaled from where they were in `start`.
void PlaceFitted(Lumo::CUIObject& object, const Geometry& start, const Gdiplus::RectF& bounds);

/// Displaces the object with its points. Unlike `CUIObject::MoveTo` it works for lines whatever tool is
/// active.
void ShiftObject(Lumo::CUIObject& object, const Gdiplus::PointF& delta);

/// Turns the object by a quarter about `centre`, with its points and children.
void TurnObject(Lumo::CUIObject& object, const Gdiplus::PointF& centre, bool clockwise);

/// Mirrors the object about `centre`, left and right (`horizontally`) or top and bottom, with its points and
/// children.
void FlipObject(Lumo::CUIObject& object, const Gdiplus::PointF& centre, bool horizontally);

/// Sets the rectangle that `GetPosition` gives, whatever position offset the object carries.
void PutBounds(Lumo::CUIObject& object, const Gdiplus::RectF& bounds);

/// `start` with the edges of `handle` (0 to 7) moved by `delta`: never inside out, at least 1 by 1.
/// `keepShape` keeps the proportions at the corners (a square when `start` has none).
Gdiplus::RectF ResizedBounds(const Gdiplus::RectF& start, int handle, const Gdiplus::PointF& delta,
                             bool keepShape);

/// How far beyond its bounds an object paints: outline, caps, caption, selection handles.
float PaintMargin(Lumo::CUIObject& object);

/// Smallest rectangle around both.
Gdiplus::RectF United(const Gdiplus::RectF& a, const Gdiplus::RectF& b);

/// Whether a selection band over `band` catches the object: its bounds, or one of its segments, touch it.
bool Touches(Lumo::CUIObject& object, const Gdiplus::RectF& band);

/// The handle of a selected object at a point (page units), the body not counted; -1 when there is none.
int HandleAt(Lumo::CUIObject& object, const Gdiplus::PointF& point);

}  // namespace Studio
