// Shapes and lines whose outline has the dashes and caps of their record, and whose caption can be read.
#pragma once

#include "core/UIObjectPoly.h"

#include <utility>

namespace Studio {

/// Outline of a rectangle or an ellipse.
enum class OutlineKind { kRectangle, kEllipse };

/// Draws the outline of an object in its record's dash style; false, with nothing drawn, when that is solid.
bool DrawDashedOutline(Gdiplus::Graphics& g, const Lumo::CUICoordinate& coordinate, OutlineKind kind);

/// Draws a figure in one stroke with the dash style and the caps of its record, its width times
/// `widthFactor`.
void DrawStyledFigure(Gdiplus::Graphics& g, Lumo::CUIObjectPoly& figure, float widthFactor);

/// The library outlines its shapes with a solid pen and draws the caption below the fill, which hides it when
/// it is opaque. This one uses the dash style of the record, and its caption is on top.
template <class Base, OutlineKind kKind>
class StyledShape : public Base {
public:
    using Base::Base;

    void Draw(Gdiplus::Graphics* g) override {
        auto& coordinate = this->GetCoordinate();
        auto& line = coordinate.template Format<Lumo::CUIShapeFormatLineColor>();
        auto& text = coordinate.template Format<Lumo::CUIShapeFormatText>();
        const int mode = line.m_nShapeMode;
        const auto captioned = std::exchange(text.m_bEnabled, 0);
        // The fill covers the inner half of an outline: it comes after the dashed one, too.
        if (g && DrawDashedOutline(*g, coordinate, kKind))
            line.m_nShapeMode = 0;
        Base::Draw(g);
        line.m_nShapeMode = mode;
        text.m_bEnabled = captioned;
        Lumo::CUIObject::Draw(g);
    }
};

/// The library's line has no dashes, and its polyline no caps either. This one has both; while it is being
/// drawn point by point it looks like the library's.
template <class Base, int kWidthFactor>
class StyledFigure : public Base {
public:
    using Base::Base;

    void Draw(Gdiplus::Graphics* g) override {
        const Gdiplus::PointF pending = this->GetPendingOffset();
        if (!g || pending.X != 0.0f || pending.Y != 0.0f || this->NormalizePoints()->size() < 2)
            Base::Draw(g);
        else
            DrawStyledFigure(*g, *this, static_cast<float>(kWidthFactor));
    }
};

}  // namespace Studio
