// Collects what a walk over many objects asks to be repainted.
#pragma once

#include "canvas/src/MappedDC.h"

#include <array>
#include <optional>

namespace Lumo {

/// While one lives, the rectangles that its canvas's objects ask to be repainted are collected, and one
/// device context converts them all. At its end they are invalidated one by one, or, when there are many, as
/// the one rectangle around them, on which the paint works anyway. A batch within a batch adds to the outer
/// one.
class CUICanvas::RepaintBatch {
public:
    explicit RepaintBatch(CUICanvas& canvas);
    ~RepaintBatch();
    RepaintBatch(const RepaintBatch&) = delete;
    RepaintBatch& operator=(const RepaintBatch&) = delete;

    /// Asks for `rect` (page units) with `margin` pixels around it.
    void Add(CRect rect, int margin);

private:
    static constexpr size_t kMost = 64;

    CUICanvas& m_canvas;
    RepaintBatch* const m_pOuter;
    std::optional<MappedDC> m_dc;
    std::array<CRect, kMost> m_rects;
    size_t m_nRects = 0;
    CRect m_bounds{0, 0, 0, 0};
};

}  // namespace Lumo
