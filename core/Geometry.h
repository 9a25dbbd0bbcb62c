// Conversions between the integer geometry of windows and the floating-point geometry of objects, and the
// rectangle arithmetic that objects share.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Rounds half away from zero. A `value` beyond the 32-bit range gives the nearest end of it, NaN gives 0.
TESSEL_API int RoundToInt(float value);

/// Truncates towards zero. A `value` beyond the 32-bit range gives the nearest end of it, NaN gives 0.
TESSEL_API int TruncToInt(float value);

/// Both coordinates of `point` rounded half away from zero.
TESSEL_API CPoint PointAtlFromGdi(const Gdiplus::PointF& point);

/// The same `point` in floats.
TESSEL_API Gdiplus::PointF PointGdiFromAtl(const CPoint& point);

/// The four edges rounded half away from zero; right and bottom are summed in floats first.
TESSEL_API CRect RectAtlFromGdi(const Gdiplus::RectF& rect);

/// Left, top and the differences of the edges; a right left of the left gives a negative width.
TESSEL_API Gdiplus::RectF RectGdiFromAtl(const CRect& rect);

/// Bounds of a rectangle turned by `angle` degrees (clockwise on the screen) about `centre`. Quarter turns
/// are exact.
TESSEL_API Gdiplus::RectF RotatedBounds(float angle, const Gdiplus::RectF& rect,
                                        const Gdiplus::PointF& centre);

/// Centre of a rectangle.
inline Gdiplus::PointF CentreOf(const Gdiplus::RectF& rect) {
    return {rect.X + rect.Width * 0.5f, rect.Y + rect.Height * 0.5f};
}

/// True when the point lies in the rectangle: left and top edges inside, right and bottom edges outside.
/// A rectangle without a positive size holds no point.
inline bool ContainsPoint(const Gdiplus::RectF& rect, const Gdiplus::PointF& point) {
    return rect.X <= point.X && point.X < rect.X + rect.Width && rect.Y <= point.Y &&
           point.Y < rect.Y + rect.Height;
}

/// The rectangle grown by `margin` on every side (shrunk by a negative one).
inline Gdiplus::RectF Inflated(const Gdiplus::RectF& rect, float margin) {
    return {rect.X - margin, rect.Y - margin, rect.Width + 2.0f * margin, rect.Height + 2.0f * margin};
}

/// How far from the origin something may reach to be drawn at all: far beyond any screen, and far from where
/// the graphics library takes minutes, ends the stack or leaves its memory.
inline constexpr float kFarthest = 4.0e6f;

/// True when all of `rect` (page units, size not negative) lies where things can be drawn; false also when it
/// holds NaN.
inline bool IsDrawable(const Gdiplus::RectF& rect) {
    return rect.X >= -kFarthest && rect.X + rect.Width <= kFarthest && rect.Y >= -kFarthest &&
           rect.Y + rect.Height <= kFarthest;
}

/// True when `a` and `b` (sizes not negative) have a point in common, edges included; also when one of them
/// holds NaN.
inline bool Touches(const Gdiplus::RectF& a, const Gdiplus::RectF& b) {
    return !(b.X > a.X + a.Width || b.X + b.Width < a.X || b.Y > a.Y + a.Height || b.Y + b.Height < a.Y);
}

/// The same area with a width and height that are not negative.
inline Gdiplus::RectF Normalised(const Gdiplus::RectF& rect) {
    return {rect.Width < 0.0f ? rect.X + rect.Width : rect.X,
            rect.Height < 0.0f ? rect.Y + rect.Height : rect.Y, rect.Width < 0.0f ? -rect.Width : rect.Width,
            rect.Height < 0.0f ? -rect.Height : rect.Height};
}

}  // namespace Lumo
