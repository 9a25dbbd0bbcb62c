// Comparison and printing of the geometry of GDI+ in tests.
#pragma once

#include <afxwin.h>
#include <objidl.h>
#include <gdiplus.h>

#include <ostream>

/// A rectangle that tests compare exactly.
struct Box {
    float x, y, width, height;
    Box(float x_, float y_, float width_, float height_) : x(x_), y(y_), width(width_), height(height_) {}
    Box(const Gdiplus::RectF& rect) : Box(rect.X, rect.Y, rect.Width, rect.Height) {}
    bool operator==(const Box&) const = default;
    friend void PrintTo(const Box& box, std::ostream* out) {
        *out << "(" << box.x << ", " << box.y << ", " << box.width << ", " << box.height << ")";
    }
};

/// A point that tests compare exactly.
struct Spot {
    float x, y;
    Spot(float x_, float y_) : x(x_), y(y_) {}
    Spot(const Gdiplus::PointF& point) : Spot(point.X, point.Y) {}
    bool operator==(const Spot&) const = default;
    friend void PrintTo(const Spot& spot, std::ostream* out) {
        *out << "(" << spot.x << ", " << spot.y << ")";
    }
};
