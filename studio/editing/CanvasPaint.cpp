// Painting a page: ground, grid, objects, selection, selection band.
#include "studio/editing/StudioCanvas.h"

#include "canvas/UITool.h"
#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "core/UIDocument.h"
#include "core/UIObject.h"
#include "studio/editing/Grid.h"

#include <utility>

namespace Studio {

using Gdiplus::RectF;
using Lumo::CUIObject;

namespace {

constexpr DWORD kGround = 0xFF000000;
constexpr DWORD kGridDot = 0xFF3A414D;
// Handles of more objects than this would hide the objects, and drawing them would take seconds.
constexpr size_t kMostTrackers = 50;
constexpr DWORD kFrameLight = 0xFFFFFFFF;
constexpr DWORD kFrameDark = 0xFF3E7BFA;

int FirstLine(int from, int step) {
    const int rest = from % step;
    return rest == 0 ? from : rest > 0 ? from + step - rest : from - rest;
}

void PaintGrid(PageBitmap& picture, const CRect& part, int step) {
    for (int y = FirstLine(part.top, step); y < part.bottom; y += step) {
        for (int x = FirstLine(part.left, step); x < part.right; x += step)
            picture.Dot(x, y, kGridDot);
    }
}

}  // namespace

void StudioCanvas::OnPaint() {
    if (m_operator) {
        m_operator->PaintPage(*this);
        return;
    }
    CPaintDC dc(this);
    CRect part = dc.m_ps.rcPaint;
    if (part.IsRectEmpty())
        return;
    ClientToDoc(part);
    m_picture.Begin(part, kGround);
    if (m_nMode != Lumo::CM_RUNNING && PageGrid().shown)
        PaintGrid(m_picture, part, PageGrid().step);
    PaintObjects(part);
    m_picture.Show(dc.m_hDC, m_origin);
    // The paint wiped the band inside the update region, which the context is clipped to.
    if (m_band) {
        CRect band(m_bandFrom, m_bandTo);
        DocToClient(band);
        band.NormalizeRect();
        dc.DrawFocusRect(band);
    }
}

void StudioCanvas::PaintObjects(const CRect& part) {
    CRect wide = part;
    wide.InflateRect(1, 1);
    const Lumo::PaintScope scope(Lumo::RectGdiFromAtl(wide));
    auto graphics = m_picture.MakeGraphics();
    m_pDocument->DrawCanvas(graphics.get(), this);
    if (m_selection.size() <= kMostTrackers) {
        for (CUIObject* object : m_selection)
            object->DrawTracker(graphics.get());
        return;
    }
    graphics.reset();
    for (CUIObject* object : m_selection)
        m_picture.DottedFrame(Lumo::RectAtlFromGdi(Lumo::Normalised(object->GetPosition())), kFrameLight,
                              kFrameDark);
}

void StudioCanvas::ShowBand(CPoint from, CPoint to) {
    // What the press repainted has to be on the screen before the band is inverted over it.
    UpdateWindow();
    HideBand();
    m_bandFrom = from;
    m_bandTo = to;
    m_band = true;
    Lumo::CUIToolBase::FocusRect(this, from, to);
}

void StudioCanvas::HideBand() {
    if (std::exchange(m_band, false)) {
        UpdateWindow();
        Lumo::CUIToolBase::FocusRect(this, m_bandFrom, m_bandTo);
    }
}

}  // namespace Studio
