#include "studio/editing/Grid.h"

#include <cmath>

namespace Studio {

namespace {

float Nearest(float value, int step) {
    const auto width = static_cast<float>(step);
    return std::floor(value / width + 0.5f) * width;
}

}  // namespace

CPoint Grid::Snap(CPoint at) const {
    if (!snapping)
        return at;
    return {static_cast<int>(Nearest(static_cast<float>(at.x), step)),
            static_cast<int>(Nearest(static_cast<float>(at.y), step))};
}

Gdiplus::PointF Grid::SnapShift(const Gdiplus::PointF& from, const Gdiplus::PointF& delta) const {
    if (!snapping)
        return delta;
    return {Nearest(from.X + delta.X, step) - from.X, Nearest(from.Y + delta.Y, step) - from.Y};
}

Grid& PageGrid() {
    static Grid grid;
    return grid;
}

}  // namespace Studio
