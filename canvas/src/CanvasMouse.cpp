// Coordinates, and the way of a mouse message to its tool.
#include "canvas/UITool.h"
#include "canvas/src/MappedDC.h"
#include "canvas/src/Press.h"
#include "core/Geometry.h"
#include "core/UIDocument.h"

#include <afxext.h>

#include <algorithm>

namespace Lumo {

namespace {

constexpr int kZoomPercent = 100;  // Kept: frozen, so that one page unit is one pixel on the screen

// How many device pixels of a printer make the window's extent; a device of no size counts as one millimetre.
int PrintExtent(const CDC& dc, int resolution, int millimetres) {
    return dc.GetDeviceCaps(resolution) * 5 / (std::max)(1, dc.GetDeviceCaps(millimetres));
}

}  // namespace

void CUICanvas::OnPrepareDC(CDC* dc, CPrintInfo* info) {
    dc->SetMapMode(MM_ANISOTROPIC);
    const int dpiX = dc->GetDeviceCaps(LOGPIXELSX);
    const int dpiY = dc->GetDeviceCaps(LOGPIXELSY);
    dc->SetViewportExt(dpiX, dpiY);
    int x = dpiX;
    int y = dpiY;
    if (info) {
        x = PrintExtent(*dc, HORZRES, HORZSIZE);
        y = PrintExtent(*dc, VERTRES, VERTSIZE);
    }
    dc->SetWindowExt(x * kZoomPercent / 100, y * kZoomPercent / 100);
}

void CUICanvas::ClientToDoc(CPoint& point) {
    MappedDC(this).DPtoLP(&point);
}

void CUICanvas::ClientToDoc(CRect& rect) {
    MappedDC(this).ToDoc(rect);
}

void CUICanvas::ClientToDoc(Gdiplus::PointF& point) {
    CPoint whole = PointAtlFromGdi(point);
    ClientToDoc(whole);
    point = PointGdiFromAtl(whole);
}

void CUICanvas::ClientToDoc(Gdiplus::RectF& rect) {
    CRect whole = RectAtlFromGdi(rect);
    ClientToDoc(whole);
    rect = RectGdiFromAtl(whole);
}

void CUICanvas::DocToClient(CPoint& point) {
    MappedDC(this).LPtoDP(&point);
}

void CUICanvas::DocToClient(CRect& rect) {
    MappedDC(this).ToClient(rect);
}

void CUICanvas::DocToClient(Gdiplus::PointF& point) {
    CPoint whole = PointAtlFromGdi(point);
    DocToClient(whole);
    point = PointGdiFromAtl(whole);
}

void CUICanvas::DocToClient(Gdiplus::RectF& rect) {
    CRect whole = RectAtlFromGdi(rect);
    DocToClient(whole);
    rect = RectGdiFromAtl(whole);
}

// The tool that the mode asks for; null while the canvas is not interactive or no tool serves the mode.
CUIToolBase* CUICanvas::FindModeTool() const {
    if (!m_bInteractive)
        return nullptr;
    switch (m_nMode) {
        case CM_TEXT:
            return CUIToolBase::FindTool(DS_TOOL_TEXT);
        case CM_PROPERTY:
            return CUIToolBase::FindTool(DS_TOOL_PROPERTY);
        default:
            return CUIToolBase::FindTool(CUIToolBase::run_drawshape);
    }
}

void CUICanvas::OnLButtonDown(UINT flags, CPoint point) {
    if (CUIToolBase* tool = FindModeTool())
        tool->OnLButtonDown(this, flags, point);
}

void CUICanvas::OnLButtonUp(UINT flags, CPoint point) {
    CUIToolBase* tool = FindModeTool();
    if (tool)
        tool->OnLButtonUp(this, flags, point);
    Press::Release(this, tool);
}

void CUICanvas::OnLButtonDblClk(UINT flags, CPoint point) {
    if (CUIToolBase* tool = FindModeTool())
        tool->OnLButtonDblClk(this, flags, point);
}

void CUICanvas::OnMouseMove(UINT flags, CPoint point) {
    if (CUIToolBase* tool = FindModeTool())
        tool->OnMouseMove(this, flags, point);
}

// Kept: the press is looked up and converted, but no tool and no menu hears of it.
void CUICanvas::OnRButtonDown(UINT, CPoint point) {
    if (!m_bInteractive)
        return;
    if (FindModeTool())
        ClientToScreen(&point);
    Default();
}

}  // namespace Lumo
