// What frames paint again and again.
#pragma once

#include "core/Platform.h"

#include <commctrl.h>

namespace Lumo {

/// How the border of a rectangle looks.
enum class EdgeLook {
    kRaised,  ///< lit from the upper left
    kSunk,    ///< as if pressed in
    kGroove,  ///< a sunk line
    kRidge,   ///< a raised line
};

/// Where an arrow points.
enum class ArrowWay {
    kLeft,   ///< to the left
    kRight,  ///< to the right
    kUp,     ///< upwards
    kDown,   ///< downwards
};

/// Paints on a device context whose unit is a pixel. Sizes follow the rectangle or are given, so that the
/// caller decides on the scale. The colour `CLR_DEFAULT` stands for one of the system's, which is named. An
/// empty rectangle shows nothing.
class TESSEL_API Draw {
public:
    Draw() = delete;

    /// Fills `rect` from the colour `from` at its left, or with `down` at its top, to `to` at the other end.
    static void Gradient(CDC& dc, const CRect& rect, COLORREF from, COLORREF to, bool down);
    /// Lays a glow of `color` (the system's highlight) around `rect`, which fades out over `size` pixels.
    /// `strength` is its alpha beside the rectangle, 0 to 255; inside nothing is painted.
    static void Glow(CDC& dc, const CRect& rect, int size, COLORREF color = CLR_DEFAULT, int strength = 160);
    /// Paints a border of `width` pixels inside `rect` that looks as `look` says, in the colours `light` (the
    /// system's for 3D highlights) and `shadow` (the system's for 3D shadows). A line needs two pixels:
    /// `width` is the half of it.
    static void Edge(CDC& dc, const CRect& rect, EdgeLook look, int width = 1, COLORREF light = CLR_DEFAULT,
                     COLORREF shadow = CLR_DEFAULT);
    /// Fills a triangle in the middle of `rect`, half as long as the shorter side of that, which points the
    /// `way`, with `color` (the system's for texts of buttons).
    static void Arrow(CDC& dc, const CRect& rect, ArrowWay way, COLORREF color = CLR_DEFAULT);
    /// Draws a check mark in the largest square in the middle of `rect` with `color` (the system's for texts
    /// of buttons).
    static void CheckMark(CDC& dc, const CRect& rect, COLORREF color = CLR_DEFAULT);
    /// Draws `picture`, scaled to `rect`, in greys from the system's 3D shadow to its 3D highlight. A picture
    /// of 32 bits that has an alpha anywhere is transparent as that says. No device context may hold it.
    static void DisabledPicture(CDC& dc, const CRect& rect, HBITMAP picture);
    /// One line of `text` in the font of `dc`, at most `width` wide, with an ellipsis in its middle for what
    /// does not fit. The ellipsis alone where nothing does.
    static CString ShortenMiddle(CDC& dc, const CString& text, int width);
    /// Writes one line of `text` into `rect`, shortened in the middle, in the font and colour of `dc`.
    /// `format` places it: `DT_LEFT`, `DT_CENTER`, `DT_RIGHT`, `DT_VCENTER`, ...
    static void MiddleText(CDC& dc, const CString& text, const CRect& rect,
                           UINT format = DT_LEFT | DT_VCENTER);
};

}  // namespace Lumo
