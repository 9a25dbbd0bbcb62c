// Points and rectangles as callers pass them.
#pragma once

#include "gdiplus/MatrixObject.h"

#include <vector>

namespace flat {

inline raster::Rect ToRect(double x, double y, double width, double height) {
    return {x, y, x + width, y + height};
}
template <class R>
raster::Rect ToRect(const R& rect) {
    return ToRect(rect.X, rect.Y, rect.Width, rect.Height);
}
inline RectF FromRect(const raster::Rect& rect) {
    return {static_cast<REAL>(rect.left), static_cast<REAL>(rect.top), static_cast<REAL>(rect.Width()),
            static_cast<REAL>(rect.Height())};
}
inline Gdiplus::Rect FromRect(const raster::IntRect& rect) {
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}
template <class P>
std::vector<raster::Point> ToPoints(const P* points, INT count, INT least = 1) {
    RequireArray(points, count, least);
    std::vector<raster::Point> result(static_cast<size_t>(count));
    for (INT i = 0; i < count; ++i)
        result[static_cast<size_t>(i)] = ToPoint(points[i]);
    return result;
}
/// Of rectangles with a width or a height that is not above 0 nothing is drawn or added.
inline bool HasArea(const raster::Rect& rect) {
    return rect.Width() > 0 && rect.Height() > 0;
}
/// Mapped, and the rectangle around that.
inline raster::Rect MapBounds(const raster::Matrix& matrix, const raster::Rect& rect) {
    const raster::Point corners[] = {matrix.Map({rect.left, rect.top}), matrix.Map({rect.right, rect.top}),
                                     matrix.Map({rect.left, rect.bottom}),
                                     matrix.Map({rect.right, rect.bottom})};
    raster::Rect box{corners[0].x, corners[0].y, corners[0].x, corners[0].y};
    for (const raster::Point& corner : corners)
        box = {(std::min)(box.left, corner.x), (std::min)(box.top, corner.y), (std::max)(box.right, corner.x),
               (std::max)(box.bottom, corner.y)};
    return box;
}

}  // namespace flat
