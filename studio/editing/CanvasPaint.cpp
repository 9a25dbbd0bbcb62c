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
    if (m_lifted.empty())
        PaintObjects(part);
    else
        PaintLifted(part);
    m_picture.Show(dc.m_hDC, m_origin);
    // The paint wiped the band inside the update region, which the context is clipped to.
    if (m_band) {
        CRect band(m_bandFrom, m_bandTo);
        DocToClient(band);
        band.NormalizeRect();
        dc.DrawFocusRect(band);
    }
}

void StudioCanvas::PaintGround(PageBitmap& picture, const CRect& part) const {
    picture.Begin(part, kGround);
    if (m_nMode != Lumo::CM_RUNNING && PageGrid().shown)
        PaintGrid(picture, part, PageGrid().step);
}

void StudioCanvas::PaintObjects(const CRect& part) {
    PaintGround(m_picture, part);
    CRect wide = part;
    wide.InflateRect(1, 1);
    const bool trackers = m_selection.size() <= kMostTrackers;
    {
        const auto graphics = m_picture.MakeGraphics();
        const Lumo::PaintScope scope(*graphics, Lumo::RectGdiFromAtl(wide));
        m_pDocument->DrawCanvas(graphics.get(), this);
        if (trackers)
            for (CUIObject* object : m_selection)
                object->DrawTracker(graphics.get());
    }
    if (!trackers)
        FrameSelection();
}

void StudioCanvas::FrameSelection() {
    for (CUIObject* object : m_selection)
        m_picture.DottedFrame(Lumo::RectAtlFromGdi(Lumo::Normalised(object->GetPosition())), kFrameLight,
                              kFrameDark);
}

void StudioCanvas::LiftSelection(bool lift) {
    constexpr size_t kMostDrawn = 200;
    const bool was = !m_lifted.empty();
    m_lifted.clear();
    m_restArea.SetRectEmpty();
    if (lift && m_selection.size() > kMostDrawn)
        m_lifted.insert(m_selection.begin(), m_selection.end());
    if (was || !m_lifted.empty())
        InvalidateAll(m_selection);
}

// The rest of the page stays as it is: it is drawn once.
void StudioCanvas::PaintLifted(const CRect& part) {
    CRect view;
    GetClientRect(view);
    ClientToDoc(view);
    if (view != m_restArea) {
        m_restArea = view;
        PaintGround(m_rest, view);
        const auto graphics = m_rest.MakeGraphics();
        const Lumo::PaintScope scope(*graphics, Lumo::RectGdiFromAtl(view));
        for (CUIObject* object : *Objects()) {
            if (object && !object->GetRemoved() && !m_lifted.count(object))
                object->Draw(graphics.get());
        }
    }
    m_picture.Begin(part, m_rest);
    FrameSelection();
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
