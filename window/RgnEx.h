// Regions from pictures, polygons, texts and rectangles.
#pragma once

#include "core/Platform.h"

#include <vector>

namespace Lumo {

/// A region that can be made from more than the system offers. The makers answer FALSE, and leave the region
/// without a handle, when it had one already or cannot be made; one that holds nothing is a region, too.
/// Coordinates are pixels.
class TESSEL_API RgnEx : public CRgn {
public:
    /// The pixels of `bitmap`, from (0, 0) on, whose red, green and blue are not all within `tolerance`
    /// (0 to 255) of those of `key`. The bitmap must not be selected into a device context.
    BOOL CreateFromColorKey(HBITMAP bitmap, COLORREF key, int tolerance = 0);
    /// The pixels of `bitmap` whose alpha is `least` (0 to 255) or more. FALSE for a bitmap of less than 32
    /// bits a pixel, which has no alpha. The bitmap must not be selected into a device context.
    BOOL CreateFromAlpha(HBITMAP bitmap, int least = 128);
    /// The polygon of `count` (3 or more) `points`, with corners rounded by circles of `radius`; where two
    /// corners of a side leave no room for it, by smaller ones. What the outline goes around twice is inside.
    BOOL CreateRoundPolygon(const POINT* points, int count, int radius);
    /// The letters of one line of `text` in `font`, whose upper left corner is at `at`. FALSE for a font
    /// without outlines.
    BOOL CreateFromText(const CString& text, HFONT font, CPoint at = CPoint());
    /// The union of `rects`, which may overlap; empty ones add nothing.
    BOOL CreateFromRects(const std::vector<CRect>& rects);

    /// The rectangles of which the region consists: row by row from the top, from the left in a row, without
    /// overlaps. None when it is empty or there is no region.
    std::vector<CRect> GetRects() const;
    /// Adds everything that is at most `pixels` away, across, down or both; a negative number narrows. FALSE
    /// when there is no region or memory.
    BOOL Widen(int pixels);
    /// Takes away everything that is at most `pixels` away from the outside, across, down or both; a negative
    /// number widens. FALSE when there is no region or memory.
    BOOL Narrow(int pixels) { return Widen(-pixels); }
};

}  // namespace Lumo
