// What the tools share among themselves.
#pragma once

#include "canvas/UICanvas.h"
#include "canvas/UITool.h"
#include "core/UIObject.h"
#include "core/internal/SystemCursor.h"

namespace Lumo {

/// The select tool that the creating tools hand their drags to, whatever the host registered ahead of it.
CUISelectTool& SelectTool();

/// Shows a system cursor (IDC_ARROW and the like).
inline void ShowCursor(LPCTSTR systemCursor) {
    ::SetCursor(SystemCursor(systemCursor));
}

/// A client point in page units.
inline CPoint ToDoc(CUICanvas* canvas, const CPoint& client) {
    CPoint pt = client;
    canvas->ClientToDoc(pt);
    return pt;
}

/// Whether the mouse is captured by the canvas.
inline bool HasCapture(const CUICanvas* canvas) {
    return canvas->m_hWnd && ::GetCapture() == canvas->m_hWnd;
}

/// Whether a tool captured the mouse and has not let it go itself.
inline bool g_pressed = false;

/// Whether no press can be going on. Asking the system who has the mouse costs more than all else of a mouse
/// move, so that it is only asked when a tool or a button says that there may be one.
inline bool IsIdle(UINT flags) {
    return !g_pressed && (flags & (MK_LBUTTON | MK_MBUTTON | MK_RBUTTON)) == 0;
}

inline void LetMouseGo() {
    ::ReleaseCapture();
    g_pressed = false;
}

/// Ends a press that began no drag.
inline void EndPress() {
    LetMouseGo();
    ShowCursor(IDC_ARROW);
}

/// Ends a press that the tool which began it cannot end any more: mode, tool or page changed in between.
inline void AbandonPress(CUICanvas* canvas) {
    if (!g_pressed || !HasCapture(canvas))
        return;
    EndPress();
    CUIToolBase::run_handle = -1;
    SelectTool().m_nDragMode = CUISelectTool::kNone;
    canvas->UpdateCanvas(nullptr, 0, nullptr);  // a rubber band may be left
}

/// The object selected last, or null.
inline CUIObject* FrontSelected(const CUICanvas* canvas) {
    return canvas->m_selection.empty() ? nullptr : canvas->m_selection.front();
}

/// Puts a new object on the canvas's page, with its back pointers.
void InsertObject(CUICanvas* canvas, CUIObject* object);

}  // namespace Lumo
