#include "canvas/src/Press.h"

#include "canvas/src/ToolObjects.h"
#include "core/UIDocument.h"
#include "core/internal/Destruction.h"

namespace Lumo {

int CUIToolBase::run_handle = -1;
CPoint CUIToolBase::run_down(0, 0);
CPoint CUIToolBase::run_last(0, 0);
CRect CUIToolBase::run_h_rect(0, 0, 0, 0);

namespace {

// All compared, never followed.
const CUIToolBase* s_tool = nullptr;  // null: no press
const CUICanvas* s_canvas = nullptr;
const CUIObject* s_drawn = nullptr;

}  // namespace

void Press::Begin(const CUIToolBase* tool, CUICanvas* canvas, const CPoint& point) {
    canvas->SetCapture();
    s_tool = tool;
    s_canvas = canvas;
    s_drawn = nullptr;
    CUIToolBase::run_down = CUIToolBase::run_last = ToDoc(canvas, point);
    ShowCursor(IDC_CROSS);
}

bool Press::IsOn(const CUICanvas* canvas) {
    return s_tool && s_canvas == canvas;
}

bool Press::HasMouse(const CUICanvas* canvas) {
    return canvas->m_hWnd && ::GetCapture() == canvas->m_hWnd;
}

void Press::Draw(const CUIObject* object) {
    [[maybe_unused]] static const bool watched = (Destruction::Watch(&s_drawn), true);
    s_drawn = object;
}

CUIObject* Press::Drawn(const CUICanvas* canvas) {
    CUIObject* front = FrontSelected(canvas);
    return front == s_drawn ? front : nullptr;
}

void Press::End(const CUICanvas* canvas) {
    if (HasMouse(canvas))
        ::ReleaseCapture();
    ShowCursor(IDC_ARROW);
    CUIToolBase::run_handle = -1;
    SelectTool().m_nDragMode = CUISelectTool::kNone;
    s_tool = nullptr;
    s_canvas = nullptr;
    s_drawn = nullptr;
}

void Press::Abandon(CUICanvas* canvas) {
    if (!IsOn(canvas))
        return;
    End(canvas);
    canvas->UpdateCanvas(nullptr, 0, nullptr);
}

void Press::Release(CUICanvas* canvas, const CUIToolBase* tool) {
    if (!IsOn(canvas))
        return;
    CUIDocument* document = canvas->GetDocument();
    const bool isCurrent = document && document->GetCurrentCanvas() == canvas;
    if (tool != s_tool || !isCurrent)
        Abandon(canvas);
}

}  // namespace Lumo
