// Draws objects onto a page that no window shows.
#pragma once

#include "studio/document/PageContents.h"

#include <initializer_list>

namespace Studio {

/// Adds objects on top of a page, each with a name of its own. Colours are ARGB, coordinates page units.
class Sketch {
public:
    /// `page` is not owned and outlives the sketch.
    explicit Sketch(PageContents& page) : m_page(page) {}

    /// Shapes with a fill and an outline; either is left out when its colour is 0.
    Lumo::CUIObject& Rectangle(const Gdiplus::RectF& rect, DWORD fill, DWORD line, float width = 2.0f);
    Lumo::CUIObject& Ellipse(const Gdiplus::RectF& rect, DWORD fill, DWORD line, float width = 2.0f);
    /// Segments from point to point; two points make a line.
    Lumo::CUIObject& Line(std::initializer_list<Gdiplus::PointF> points, DWORD color, float width = 2.0f);
    /// Text without a ground, in the middle of `rect` or at its near or far edge.
    Lumo::CUIObject& Label(const Gdiplus::RectF& rect, const CString& text, float size, DWORD color,
                           Gdiplus::StringAlignment align = Gdiplus::StringAlignmentCenter);
    /// One of the audio controls, bound to a value.
    Lumo::CUIObject& Control(Lumo::DrawShape kind, const Gdiplus::RectF& rect, const CString& binding);

private:
    Lumo::CUIObject& Add(Lumo::DrawShape kind, const Gdiplus::RectF& rect);
    Lumo::CUIObject& Shape(Lumo::DrawShape kind, const Gdiplus::RectF& rect, DWORD fill, DWORD line,
                           float width);

    PageContents& m_page;
};

}  // namespace Studio
