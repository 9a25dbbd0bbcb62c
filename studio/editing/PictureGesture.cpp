#include "studio/editing/PictureGesture.h"

#include "core/DrawShape.h"
#include "core/Geometry.h"
#include "studio/editing/Grid.h"
#include "studio/editing/PageTool.h"

namespace Studio {

namespace {

// A band this small is a click.
constexpr float kClick = 5.0f;

}  // namespace

PictureGesture::PictureGesture(StudioCanvas& page, CPoint down)
    : m_page(page), m_down(PageGrid().Snap(down)) {}

void PictureGesture::Move(CPoint at, UINT) {
    m_page.ShowBand(m_down, PageGrid().Snap(at));
}

bool PictureGesture::Release(CPoint at, UINT) {
    m_page.HideBand();
    Gdiplus::RectF place = Lumo::Normalised(Lumo::RectGdiFromAtl(CRect(m_down, CPoint(PageGrid().Snap(at)))));
    if (place.Width < kClick || place.Height < kClick)
        place.Width = place.Height = 0.0f;
    m_page.RequestPicture(place);
    ChooseTool(m_page, Lumo::DS_SELECT);
    return true;
}

void PictureGesture::Cancel() {
    m_page.HideBand();
}

}  // namespace Studio
