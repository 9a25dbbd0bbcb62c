// The gestures of the select tool: moving, resizing, and selecting with a band.
#pragma once

#include "studio/editing/Geometry.h"
#include "studio/editing/Gesture.h"
#include "studio/editing/History.h"
#include "studio/editing/StudioCanvas.h"

#include <optional>

namespace Studio {

/// A gesture on all selected objects that knows where each of them started.
class SelectionGesture : public Gesture {
public:
    /// `name` is the name of the step that can be undone.
    SelectionGesture(StudioCanvas& page, CPoint down, Text name);
    /// Keeps what has been done; called when a command comes in between.
    void Finish() override;
    void Cancel() override;
    bool Release(CPoint at, UINT flags) override;

protected:
    /// Whether anything was moved yet.
    bool HasMoved() const { return m_edit.has_value(); }
    /// To be called before each change.
    void BeginMove();

    StudioCanvas& m_page;
    const CPoint m_down;
    Lumo::CUIObjectDeque m_objects;
    std::vector<Geometry> m_start;

private:
    const Text m_name;
    std::optional<EditScope> m_edit;
};

/// Moves the selection; its corner snaps to the grid. Ctrl keeps to the horizontal, the vertical and the
/// diagonals.
class MoveGesture : public SelectionGesture {
public:
    /// With `pick`, an object that was selected already, a click without movement selects it alone.
    MoveGesture(StudioCanvas& page, CPoint down, Lumo::CUIObject* pick);
    void Move(CPoint at, UINT flags) override;
    bool Release(CPoint at, UINT flags) override;

private:
    Gdiplus::PointF Shift(CPoint at, UINT flags) const;

    Lumo::CUIObject* m_pick;
    Gdiplus::PointF m_corner;  // left top of the selection at the start
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
    Gdiplus::PointF m_handlePoint;
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
