// Text as lines of characters.
#pragma once

#include "gdiplus/FontObject.h"
#include "gdiplus/Typeface.h"

#include <string>
#include <vector>

namespace flat {

/// Lines of a text in a rectangle, in units of the world.
struct TextLayout {
    struct Line {
        std::wstring text;  // without what is left out
        size_t first = 0;   // of the whole text
        size_t end = 0;     // the next line begins here
        double x = 0;       // where it begins
        double top = 0;
        double width = 0;
    };
    std::vector<Line> lines;
    double lineHeight = 0;
    double left = 0, top = 0, width = 0, height = 0;  // around all, margins included
    size_t fitting = 0;                               // characters of the text that are shown
};

/// Of `em` high letters. `rect` has no end in a direction where its size is 0. Call with a TypefaceLock held.
TextLayout LayOut(const std::wstring& text, Typeface& face, double em, const RectF& rect,
                  const FormatObject& format);

}  // namespace flat
