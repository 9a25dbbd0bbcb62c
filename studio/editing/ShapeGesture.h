// Dragging out a new shape.
#pragma once

#include "core/DrawShape.h"
#include "studio/editing/Gesture.h"
#include "studio/editing/History.h"
#include "studio/editing/StudioCanvas.h"

namespace Studio {

/// Makes an object at the press and pulls its corner. A shape that stays too small to be seen vanishes, and
/// only it; the select tool is active afterwards. Shift keeps width and height equal.
class ShapeGesture : public Gesture {
public:
    ShapeGesture(StudioCanvas& page, Lumo::DrawShape kind, CPoint down);
    void Move(CPoint at, UINT flags) override;
    bool Release(CPoint at, UINT flags) override;
    void Finish() override;
    void Cancel() override;

private:
    StudioCanvas& m_page;
    const CPoint m_down;
    EditScope m_edit;
    Lumo::CUIObject* m_object;
};

}  // namespace Studio
