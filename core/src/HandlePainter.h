// How selection handles look and how large they are.
#pragma once

#include <optional>

#include "core/EllipseOutline.h"
#include "core/Geometry.h"
#include "core/PaintScope.h"

namespace Lumo {

// The square of a handle that stands on a point.
inline Gdiplus::RectF HandleSquare(const Gdiplus::PointF& point) {
    constexpr float kSize = 8.0f;
    return {point.X - kSize / 2, point.Y - kSize / 2, kSize, kSize};
}

// Paints the handles of one object. A handle that the current paint does not touch costs no GDI+ object.
class HandlePainter {
public:
    explicit HandlePainter(Gdiplus::Graphics& graphics)
        : m_graphics(graphics), m_part(PaintScope::PartOf(graphics)) {}

    void PaintCircle(const Gdiplus::RectF& rect) {
        if (!Prepare(rect))
            return;
        DrawEllipseOutline(m_graphics, *m_pen, rect);
        m_graphics.FillEllipse(&*m_brush, Inflated(rect, -1.0f));
    }

    void PaintSquare(const Gdiplus::RectF& rect) {
        if (!Prepare(rect))
            return;
        m_graphics.DrawRectangle(&*m_pen, rect);
        m_graphics.FillRectangle(&*m_brush, Inflated(rect, -1.0f));
    }

private:
    static constexpr Gdiplus::ARGB kLine = 0xFF000000;
    static constexpr Gdiplus::ARGB kFill = 0xFF87CEEB;

    bool Prepare(const Gdiplus::RectF& rect) {
        const Gdiplus::RectF bounds = Inflated(Normalised(rect), 1.0f);
        if (!IsDrawable(bounds) || !Touches(m_part, bounds))
            return false;
        if (!m_pen) {
            m_pen.emplace(Gdiplus::Color(kLine), 1.0f);
            m_brush.emplace(Gdiplus::Color(kFill));
        }
        return true;
    }

    Gdiplus::Graphics& m_graphics;
    Gdiplus::RectF m_part;
    std::optional<Gdiplus::Pen> m_pen;
    std::optional<Gdiplus::SolidBrush> m_brush;
};

}  // namespace Lumo
