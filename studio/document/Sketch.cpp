#include "studio/document/Sketch.h"

#include "core/UIObjectPoly.h"
#include "studio/document/ObjectExtras.h"

#include <algorithm>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;
using Lumo::CUIObject;

namespace {

float AlphaOf(DWORD color) {
    return static_cast<float>(color >> 24);
}

}  // namespace

CUIObject& Sketch::Add(Lumo::DrawShape kind, const RectF& rect) {
    const auto sameKind = [&](const ObjectPtr& object) { return object->GetDrawShape() == kind; };
    const auto before = std::count_if(m_page.objects.begin(), m_page.objects.end(), sameKind);
    ObjectPtr object = MakeDrawnObject(kind, rect);
    CString name;
    name.Format(L"%s%d", Lumo::GetDrawShapeName(kind).GetString(), static_cast<int>(before) + 1);
    object->SetShapeName(name);
    m_page.objects.push_back(std::move(object));
    return *m_page.objects.back();
}

CUIObject& Sketch::Shape(Lumo::DrawShape kind, const RectF& rect, DWORD fill, DWORD line, float width) {
    CUIObject& shape = Add(kind, rect);
    shape.SetFillColor(fill);
    shape.SetFillAlpha(AlphaOf(fill));
    if (!fill)
        shape.SetFillShapeMode(0);
    shape.SetLineColor(line);
    shape.SetLineAlpha(AlphaOf(line));
    if (!line)
        shape.SetLineShapeMode(0);
    shape.SetLineWidth(width);
    // A new shape's caption is a word that no sketch wants, and the setter takes no empty one.
    shape.GetCoordinate().Format<Lumo::CUIShapeFormatText>().m_strText.Empty();
    return shape;
}

CUIObject& Sketch::Rectangle(const RectF& rect, DWORD fill, DWORD line, float width) {
    return Shape(Lumo::DS_RECTANGLE, rect, fill, line, width);
}

CUIObject& Sketch::Ellipse(const RectF& rect, DWORD fill, DWORD line, float width) {
    return Shape(Lumo::DS_ELLIPSE, rect, fill, line, width);
}

CUIObject& Sketch::Line(std::initializer_list<PointF> points, DWORD color, float width) {
    CUIObject& line = Add(Lumo::DS_POLYLINE, RectF());
    auto& poly = dynamic_cast<Lumo::CUIObjectPoly&>(line);
    for (PointF point : points)
        poly.AddPoint(point);
    line.SetLineColor(color);
    line.SetLineAlpha(AlphaOf(color));
    line.SetLineWidth(width);
    return line;
}

CUIObject& Sketch::Label(const RectF& rect, const CString& text, float size, DWORD color,
                         Gdiplus::StringAlignment align) {
    CUIObject& label = Shape(Lumo::DS_TEXTEDIT, rect, 0, 0, 1.0f);
    label.SetText(text);
    label.SetTextFontSize(size);
    label.SetTextColor(color);
    label.SetTextAlignment(align);
    return label;
}

CUIObject& Sketch::Control(Lumo::DrawShape kind, const RectF& rect, const CString& binding) {
    CUIObject& control = Add(kind, rect);
    if (ObjectExtras* extras = EditExtras(control))
        extras->binding = binding;
    return control;
}

}  // namespace Studio
