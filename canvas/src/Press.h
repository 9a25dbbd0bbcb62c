// A press of the mouse on a page: its whole state, and how it ends.
//
// There is one mouse, so the process has one press, whatever canvases and tools there are. What hosts read
// and set of it is public: `CUIToolBase::run_down` and `run_last` (where it began and where it is),
// `run_handle` (the grabbed handle, -1 for none; the number of points while a figure is drawn), `run_h_rect`
// (the limit of that handle), and `m_nDragMode` of the select tool that `SelectTool()` gives. The rest is in
// `Press.cpp`: the tool that began it, its canvas, and the object that it draws.
//
// It begins in `CUIToolBase::OnLButtonDown`, which gives the canvas the mouse. The release ends it, in the
// tool that gets the release: the drawing tools pass their drag on to the select tool, the others end it
// themselves. Only a figure of several points outlives releases: each click on it is a press that goes on
// drawing it, and its last point or a double click ends press and figure.
//
// A release may find a tool that cannot end the press, since mode, tool or page have changed in between. The
// tool sees the release first; what is then left is abandoned, so that the mouse is not kept from other
// windows.
//
// Nobody tells when the mouse is lost in the middle. A release that comes to the canvas all the same ends the
// press like any other; when none comes, the next press begins anew.
//
// A move is a drag while the canvas has the mouse, whoever gave it: a host may have done so without a press.
#pragma once

#include "canvas/UITool.h"

namespace Lumo::Press {

/// Begins a press of `tool` at a client point: the canvas gets the mouse, nothing is being drawn.
void Begin(const CUIToolBase* tool, CUICanvas* canvas, const CPoint& point);

/// Whether a press that began on `canvas` has not ended.
bool IsOn(const CUICanvas* canvas);

/// Whether the canvas has the mouse.
bool HasMouse(const CUICanvas* canvas);

/// The press draws `object` from now on.
void Draw(const CUIObject* object);

/// The object that the press draws while it lives and is the one selected last on `canvas`; or null.
CUIObject* Drawn(const CUICanvas* canvas);

/// Ends a press: nothing is grabbed, dragged or drawn, the canvas lets the mouse go, the cursor is the arrow.
void End(const CUICanvas* canvas);

/// Ends the press on `canvas` that no tool has ended, if there is one, and repaints the page: a rubber band
/// may be left. A canvas that is destroyed abandons its press, too.
void Abandon(CUICanvas* canvas);

/// Abandons what is left on `canvas` after `tool` (or none) saw the release, unless that tool goes on with
/// it.
void Release(CUICanvas* canvas, const CUIToolBase* tool);

}  // namespace Lumo::Press
