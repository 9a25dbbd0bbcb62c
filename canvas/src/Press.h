// A press of the mouse on a page: what the tools know about it, and how it ends.
//
// There is one mouse, so the process has one press, whatever canvases and tools there are. Its state is
// public where hosts read and set it:
//
//     CUIToolBase::run_down, run_last    where it began and where it is (page units)
//     CUIToolBase::run_handle            the grabbed handle, -1 for none; while a figure is drawn its number
//     of points CUIToolBase::run_h_rect            the limit of that handle CUISelectTool::m_nDragMode what a
//     move does, in the select tool that `SelectTool()` gives
//
// and the rest is in `Press.cpp`: the tool that began it, its canvas, and the object that it draws.
//
// - It begins in `CUIToolBase::OnLButtonDown`, which gives the canvas the mouse.
// - It ends with the release, in the tool that gets it: the drawing tools pass their drag on to the select
// tool, the
//   others end it themselves. Only a figure of several points outlives releases: each of its clicks begins a
//   press that goes on drawing it, until its last point or a double click ends press and figure.
// - A release may find a tool that cannot end it, since mode, tool or page have changed in between. Every
// tool sees the
//   release first; what is left of the press then is abandoned, so that the mouse is not kept from other
//   windows.
// - Who loses the mouse in the middle is told by nobody. The release, when it comes to the canvas all the
// same, ends the
//   press like any other; when it does not come, the next press begins anew.
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

/// The object that the press draws while it is the one selected last on `canvas`; or null.
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
