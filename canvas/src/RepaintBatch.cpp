#include "canvas/src/RepaintBatch.h"

#include <algorithm>

namespace Lumo {

CUICanvas::RepaintBatch::RepaintBatch(CUICanvas& canvas) : m_canvas(canvas), m_pOuter(canvas.m_pBatch) {
    if (!m_pOuter)
        canvas.m_pBatch = this;
}

CUICanvas::RepaintBatch::~RepaintBatch() {
    if (m_pOuter)
        return;
    m_canvas.m_pBatch = nullptr;
    m_dc.reset();
    if (!m_canvas.m_hWnd)
        return;
    if (m_nRects > kMost) {
        m_canvas.InvalidateRect(m_bounds, TRUE);
        return;
    }
    std::for_each_n(m_rects.begin(), m_nRects,
                    [this](const CRect& rect) { m_canvas.InvalidateRect(rect, TRUE); });
}

void CUICanvas::RepaintBatch::Add(CRect rect, int margin) {
    if (!m_dc)
        m_dc.emplace(&m_canvas);
    m_dc->ToClient(rect);
    rect.InflateRect(margin, margin);
    m_bounds.UnionRect(m_bounds, rect);
    if (m_nRects < kMost)
        m_rects[m_nRects] = rect;
    if (m_nRects <= kMost)
        ++m_nRects;
}

}  // namespace Lumo
