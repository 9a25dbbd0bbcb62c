// Small things that every host writes.
#pragma once

#include "core/Platform.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class CIni;

namespace Lumo {

/// Scale, monitors, places of windows, sizes and encodings of texts, colours as texts. Nothing here raises an
/// exception of its own.
class TESSEL_API Tools {
public:
    Tools() = delete;

    /// Dots per inch at which `window` is shown: those of its monitor where the system tells, or else the
    /// screen's, as for null. 96 is 100 %.
    static int DpiOf(HWND window);
    /// A length of `pixels` at 96 dots per inch as it is at `dpi`, rounded.
    static int Scale(int pixels, int dpi) { return ::MulDiv(pixels, dpi, 96); }

    /// What task bars leave of each monitor, in screen coordinates, the main monitor's first.
    static std::vector<CRect> WorkAreas();
    /// What task bars leave of the monitor that has most of `rect` (screen coordinates), or is nearest.
    static CRect WorkAreaOf(const CRect& rect);
    /// `rect` (screen coordinates) moved, and made smaller where it has to be, into the work area that has
    /// most of it.
    static CRect KeepOnScreen(const CRect& rect);

    /// Keeps the place of the frame `window`, and whether it is maximised, in `section` of `ini`; of a
    /// minimised one the place to which it returns. False when there is no window, or the file refuses.
    static bool SavePlacement(HWND window, CIni& ini, const CString& section);
    /// Puts `window` where `SavePlacement` found it, by `section` of `ini`, on screens that are there now,
    /// without showing it, and answers how to show it: as `show` says, or maximised when it was so and `show`
    /// is one of the ordinary ways (`SW_SHOWNORMAL`, `SW_SHOW`, `SW_SHOWDEFAULT`). A section without a usable
    /// place changes nothing.
    static int LoadPlacement(HWND window, const CIni& ini, const CString& section, int show = SW_SHOWNORMAL);

    /// Size of `text` in `font` (null: the system's for windows), in pixels of the screen. Lines end where
    /// the text says, and at `width` where that is above 0. An empty text has no size.
    static CSize TextExtent(const CString& text, HFONT font, int width = 0);

    /// `text` in UTF-8. `whole` (may be null) gets whether everything could be converted; halves of a pair
    /// that stand alone become U+FFFD.
    static std::string ToUtf8(const CString& text, bool* whole = nullptr);
    /// The text of UTF-8 `bytes`. `whole` (may be null) gets whether all of them are valid; those that are
    /// not become U+FFFD.
    static CString FromUtf8(std::string_view bytes, bool* whole = nullptr);
    /// `text` in the system's code page. `whole` (may be null) gets whether everything could be converted;
    /// what the code page lacks becomes its replacement, mostly a question mark.
    static std::string ToCodePage(const CString& text, bool* whole = nullptr);
    /// The text of `bytes` in the system's code page. `whole` (may be null) gets whether all are valid.
    static CString FromCodePage(std::string_view bytes, bool* whole = nullptr);

    /// `color` as `#RRGGBB`.
    static CString ColorText(COLORREF color);
    /// The colour that `text` names: `#RRGGBB`, `#RGB` or three decimal numbers from 0 to 255 with commas
    /// between them, red first; nothing for anything else. White space around text and numbers does not
    /// count.
    static std::optional<COLORREF> ColorOf(const CString& text);
};

}  // namespace Lumo
