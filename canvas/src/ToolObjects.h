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

/// The object selected last, or null.
inline CUIObject* FrontSelected(const CUICanvas* canvas) {
    return canvas->m_selection.empty() ? nullptr : canvas->m_selection.front();
}

/// Puts a new object on the canvas's page, with its back pointers.
void InsertObject(CUICanvas* canvas, CUIObject* object);

}  // namespace Lumo
