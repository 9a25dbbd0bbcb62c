#include "studio/editing/ShapeGesture.h"

#include "core/Geometry.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/Grid.h"
#include "studio/editing/ObjectFactory.h"
#include "studio/editing/PageTool.h"

namespace Studio {

namespace {

constexpr float kTooSmall = 3.0f;

}  // namespace

ShapeGesture::ShapeGesture(StudioCanvas& page, Lumo::DrawShape kind, CPoint down)
    : m_page(page), m_down(PageGrid().Snap(down)), m_edit(page, Text::kStepDraw) {
    m_edit.TouchList(page);
    const Gdiplus::PointF at = Lumo::PointGdiFromAtl(m_down);
    m_object = MakeDrawnObject(kind, Gdiplus::RectF(at.X, at.Y, 0.0f, 0.0f)).release();
    m_page.AddObject(m_object);
    if (kind != Lumo::DS_TEXTEDIT && !IsControl(kind))
        m_object->SetText(m_object->GetShapeName());
}

void ShapeGesture::Move(CPoint at, UINT flags) {
    Gdiplus::RectF bounds = Lumo::RectGdiFromAtl(CRect(m_down, PageGrid().Snap(at)));
    if (flags & MK_SHIFT) {
        const Gdiplus::RectF start(bounds.X, bounds.Y, 0.0f, 0.0f);
        bounds = ResizedBounds(start, 2, Gdiplus::PointF(bounds.Width, bounds.Height), true);
    }
    m_page.InvalidateObject(m_object);
    PutBounds(*m_object, Lumo::Normalised(bounds));
    m_page.InvalidateObject(m_object);
}

bool ShapeGesture::Release(CPoint at, UINT flags) {
    Move(at, flags);
    Finish();
    return true;
}

// A shape that is too small to be seen vanishes: it was a click, which selects.
void ShapeGesture::Finish() {
    const Gdiplus::SizeF size = m_object->GetSize();
    if (size.Width < kTooSmall || size.Height < kTooSmall) {
        Cancel();
        ChooseTool(m_page, Lumo::DS_SELECT);
        CPoint at = m_down;
        m_page.Select(m_page.Document().ObjectAt(at), 0);
    }
}

void ShapeGesture::Cancel() {
    m_edit.Cancel();
}

}  // namespace Studio
