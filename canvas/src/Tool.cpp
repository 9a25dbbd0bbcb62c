// The registry of tools, what all tools share, and the library's own tool objects.
#include "canvas/UITool.h"

#include "canvas/UICanvas.h"
#include "canvas/src/Press.h"
#include "canvas/src/ToolObjects.h"
#include "core/UIDocument.h"
#include "core/UIObjectPoly.h"
#include "core/internal/ObjectFactory.h"

#include <algorithm>
#include <cstdlib>

namespace Lumo {

std::deque<CUIToolBase*> CUIToolBase::m_tools;
DrawShape CUIToolBase::run_drawshape = DS_RECTANGLE;  // until the first canvas is created

namespace {

// Made when the library is loaded, in the order in which they are found.
CUIDownUpTool g_rectangleTool(DS_RECTANGLE);
CUIDownUpTool g_ellipseTool(DS_ELLIPSE);
CUIDownUpTool g_textEditTool(DS_TEXTEDIT);
CUIDownUpTool g_listTool(DS_LIST);
CUISymbolTool g_symbolTool(DS_SYMBOL);
CUISymbolTool g_buttonTool(DS_BUTTON);
CUISymbolTool g_buttonBandTool(DS_BUTTONBAND);
CUISymbolTool g_chartPeqTool(DS_CHARTPEQ);
CUISelectTool g_selectTool;
CUITextTool g_textTool;
CUISelectTool g_secondSelectTool;  // Kept: never found, the first one wins
CUIMultiDownTool g_lineTool(DS_LINE);
CUIMultiDownTool g_polyLineTool(DS_POLYLINE);

}  // namespace

CUISelectTool& SelectTool() {
    return g_selectTool;
}

CUIToolBase::CUIToolBase(DrawShape kind) : m_nDrawShape(kind) {
    m_tools.push_back(this);
}

CUIToolBase::~CUIToolBase() {
    std::erase(m_tools, this);
}

void CUIToolBase::OnLButtonDown(CUICanvas* canvas, UINT, const CPoint& point) {
    Press::Begin(this, canvas, point);
}

void CUIToolBase::OnLButtonUp(CUICanvas*, UINT, const CPoint&) {}

void CUIToolBase::OnMouseMove(CUICanvas*, UINT, const CPoint&) {}

void CUIToolBase::OnLButtonDblClk(CUICanvas* canvas, UINT, const CPoint&) {
    if (canvas->m_selection.size() == 1)
        canvas->m_selection.front()->ShowCoordinateDialog(canvas);
}

void CUIToolBase::OnRButtonDown(CUICanvas*, UINT, const CPoint&) {}

CUIToolBase* CUIToolBase::FindTool(DrawShape kind) {
    const auto tool = std::find_if(m_tools.begin(), m_tools.end(),
                                   [kind](CUIToolBase* t) { return t->m_nDrawShape == kind; });
    return tool == m_tools.end() ? nullptr : *tool;
}

CUIObject* CUIToolBase::CreateUIObject(Gdiplus::RectF rect, DrawShape kind) {
    if (kind == DS_POLYLINE)
        return new CUIObjectPolyLine(rect, kind);
    if (CUIObject* object = MakeAreaObject(kind, rect))
        return object;
    // Kept: unlike the document's factory, this one makes a line of every kind that has no class of its own.
    return new CUIObjectLine(rect, kind);
}

void CUIToolBase::FocusRect(CUICanvas* canvas, CPoint a, CPoint b) {
    canvas->DocToClient(a);
    canvas->DocToClient(b);
    CRect rect(a, b);
    rect.NormalizeRect();
    CClientDC dc(canvas);
    dc.DrawFocusRect(rect);
}

void CUIToolBase::MoveControl(const CPoint& anchor, CPoint& pt) {
    const int dx = pt.x - anchor.x;
    const int dy = pt.y - anchor.y;
    const int ax = std::abs(dx);
    const int ay = std::abs(dy);
    const int least = (std::min)(ax, ay);
    if (2 * least <= (std::max)(ax, ay)) {
        if (ax >= ay)
            pt.y = anchor.y;
        else
            pt.x = anchor.x;
        return;
    }
    pt.x = dx < 1 ? anchor.x - least : anchor.x + least;
    pt.y = dy > 0 ? anchor.y + least : anchor.y - least;
}

void CUIToolBase::MoveControl(const CRect& limit, CPoint& pt) {
    CRect region = limit;
    region.NormalizeRect();
    if (region.PtInRect(pt))
        return;
    if (pt.x < limit.left)
        pt.x = limit.left;
    else if (pt.x > limit.right)
        pt.x = limit.right;
    if (pt.y < limit.top)
        pt.y = limit.top;
    else if (pt.y > limit.bottom)
        pt.y = limit.bottom;
}

bool CUIToolBase::IsCurrent(CUICanvas* canvas) {
    CUIDocument* document = canvas ? canvas->GetDocument() : nullptr;
    return document && document->GetCurrentCanvas() == canvas;
}

CUIConfigurationTool::CUIConfigurationTool(DrawShape kind) : CUIToolBase(kind) {}
void CUIConfigurationTool::OnLButtonDown(CUICanvas*, UINT, const CPoint&) {}
void CUIConfigurationTool::OnLButtonDblClk(CUICanvas*, UINT, const CPoint&) {}

CUIRunningTool::CUIRunningTool(DrawShape kind) : CUIToolBase(kind) {}
void CUIRunningTool::OnLButtonDown(CUICanvas*, UINT, const CPoint&) {}
void CUIRunningTool::OnLButtonDblClk(CUICanvas*, UINT, const CPoint&) {}

}  // namespace Lumo
