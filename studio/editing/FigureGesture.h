// Drawing a line or polyline point by point.
#pragma once

#include "core/DrawShape.h"
#include "core/UIObjectPoly.h"
#include "studio/editing/Gesture.h"
#include "studio/editing/History.h"
#include "studio/editing/StudioCanvas.h"

namespace Studio {

/// The last point of the figure follows the mouse; a press or the end of a drag fixes it. A line ends with
/// its second point, a polyline with a double click or the right button, and the select tool is active
/// afterwards. Ctrl keeps to the horizontal, the vertical and the diagonals.
class FigureGesture : public Gesture {
public:
    FigureGesture(StudioCanvas& page, Lumo::DrawShape kind, CPoint down);
    void Move(CPoint at, UINT flags) override;
    bool Press(CPoint at, UINT flags) override;
    bool Release(CPoint at, UINT flags) override;
    bool DoubleClick(CPoint at, UINT flags) override;
    void Finish() override;
    void Cancel() override;
    bool SpansPresses() const override { return true; }

private:
    void Follow(CPoint at, UINT flags);
    bool FixPoint();
    bool End();

    StudioCanvas& m_page;
    EditScope m_edit;
    Lumo::CUIObjectPoly* m_figure;
    CPoint m_lastFixed;
    bool m_firstPress = true;
};

}  // namespace Studio
