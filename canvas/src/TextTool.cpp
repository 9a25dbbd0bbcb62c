// The way into the in-place text editor.
#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UIEdit.h"
#include "canvas/src/Press.h"
#include "canvas/src/ToolObjects.h"
#include "core/UIDocument.h"

namespace Lumo {

CUITextTool::CUITextTool() : CUIToolBase(DS_TOOL_TEXT) {}

void CUITextTool::OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas))
        return;
    CUIToolBase::OnLButtonDown(canvas, flags, point);
    CUIObject* object = canvas->GetDocument()->ObjectAt(run_down);
    const bool isText = object && object->GetDrawShape() == DS_TOOL_TEXT;
    if (auto* text = isText ? dynamic_cast<CUIObjectTextEdit*>(object) : nullptr) {
        if (canvas->m_pEdit && canvas->m_pEdit->GetEditedObject() == text)
            return;
        if (canvas->m_pEdit)
            canvas->EditText(nullptr);
        canvas->EditText(text);
        return;
    }
    if (canvas->m_pEdit)
        canvas->EditText(nullptr);
    canvas->OnModeDraw();
    SelectTool().OnLButtonDown(canvas, flags, point);
}

void CUITextTool::OnLButtonUp(CUICanvas* canvas, UINT, const CPoint&) {
    if (IsCurrent(canvas))
        Press::End(canvas);
}

}  // namespace Lumo
