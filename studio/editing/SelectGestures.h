// The gestures of the select tool: moving, resizing, and selecting with a band.
#pragma once

#include "studio/editing/Geometry.h"
#include "studio/editing/Gesture.h"
#include "studio/editing/StudioCanvas.h"

namespace Studio {

/// A gesture on all selected objects that knows where each of them started.
class SelectionGesture : public Gesture {
public:
    SelectionGesture(StudioCanvas& page, CPoint down);
    /// Keeps what has been done; called when a command comes in between.
    void Finish() override;
    void Cancel() override;
    bool Release(CPoint at, UINT flags) override;

protected:
    StudioCanvas& m_page;
    const CPoint m_down;
    Lumo::CUIObjectDeque m_objects;
    std::vector<Geometry> m_start;
    bool m_moved = false;
};

/// Moves the selection. Ctrl keeps to the horizontal, the vertical and the diagonals.
class MoveGesture : public SelectionGesture {
public:
    /// With `pick`, an object that was selected already, a click without movement selects it alone.
    MoveGesture(StudioCanvas& page, CPoint down, Lumo::CUIObject* pick);
    void Move(CPoint at, UINT flags) override;
    bool Release(CPoint at, UINT flags) override;

private:
    Lumo::CUIObject* m_pick;
};

/// Drags one handle of every selected object that has it; of a line, only the grabbed one's point. Shift
/// keeps the proportions, Ctrl snaps to the neighbouring handle as the library does.
class ResizeGesture : public SelectionGesture {
public:
    ResizeGesture(StudioCanvas& page, Lumo::CUIObject& grabbed, int handle, CPoint down);
    void Move(CPoint at, UINT flags) override;

private:
    void Snap(CPoint& at) const;
    void Place(Lumo::CUIObject& object, const Geometry& start, const Gdiplus::PointF& delta, bool keepShape);

    Lumo::CUIObject& m_grabbed;
    const int m_handle;
    CPoint m_neighbour;
};

/// Selects what a dotted band touches; with Shift in addition to what is selected.
class BandGesture : public Gesture {
public:
    BandGesture(StudioCanvas& page, CPoint down) : m_page(page), m_down(down) {}
    void Move(CPoint at, UINT flags) override;
    bool Release(CPoint at, UINT flags) override;
    void Cancel() override;

private:
    StudioCanvas& m_page;
    const CPoint m_down;
};

}  // namespace Studio
