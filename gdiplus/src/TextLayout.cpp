#include "gdiplus/TextLayout.h"

namespace flat {

namespace {

double Width(const std::wstring& text, Typeface& face, double em) {
    double width = 0;
    for (const wchar_t character : text)
        width += face.Of(character).advance * em;
    return width;
}

std::wstring WithoutSpacesBehind(std::wstring text) {
    while (!text.empty() && text.back() == L' ')
        text.pop_back();
    return text;
}

// How many characters of a paragraph, from `first`, stand in a line of `room`; at least one.
size_t Fitting(const std::wstring& text, size_t first, Typeface& face, double em, double room) {
    double width = 0;
    size_t lastSpace = 0;
    for (size_t i = first; i < text.size(); ++i) {
        width += face.Of(text[i]).advance * em;
        if (text[i] == L' ')
            lastSpace = i + 1;
        else if (width > room + em * 1e-4)
            return lastSpace > first ? lastSpace - first : (std::max)(size_t{1}, i - first);
    }
    return text.size() - first;
}

// Cut so that it fits, with an ellipsis where the format has one.
std::wstring Trimmed(const std::wstring& text, Typeface& face, double em, double room,
                     StringTrimming trimming) {
    if (trimming == StringTrimmingNone || Width(text, face, em) <= room + em * 1e-4)
        return text;
    const std::wstring behind = trimming >= StringTrimmingEllipsisCharacter ? L"\x2026" : L"";
    std::wstring cut = text;
    const bool words = trimming == StringTrimmingWord || trimming == StringTrimmingEllipsisWord;
    const size_t space = cut.find_last_of(L' ');
    if (words && space != std::wstring::npos)
        cut.resize(space);
    while (!cut.empty() && Width(cut + behind, face, em) > room + em * 1e-4)
        cut.pop_back();
    return cut + behind;
}

double Aligned(StringAlignment align, double from, double room, double size) {
    return align == StringAlignmentCenter ? from + (room - size) / 2
           : align == StringAlignmentFar  ? from + room - size
                                          : from;
}

}  // namespace

TextLayout LayOut(const std::wstring& text, Typeface& face, double em, const RectF& rect,
                  const FormatObject& format) {
    TextLayout layout;
    layout.lineHeight = face.LineSpacing() * em;
    const double margin = format.margin * em;
    const double room = rect.Width > 0 ? (std::max)(0.0, rect.Width - 2 * margin) : 0;
    const bool limited = rect.Width > 0, wraps = limited && !(format.flags & StringFormatFlagsNoWrap);
    const bool spaces = (format.flags & StringFormatFlagsMeasureTrailingSpaces) != 0;
    for (size_t at = 0; at <= text.size();) {
        size_t end = text.find(L'\n', at);
        const bool last = end == std::wstring::npos;
        if (last)
            end = text.size();
        const bool carriage = end > at && text[end - 1] == L'\r';
        const std::wstring paragraph = text.substr(at, end - at - (carriage ? 1 : 0));
        size_t first = 0;
        do {
            const size_t count = wraps ? Fitting(paragraph, first, face, em, room) : paragraph.size() - first;
            TextLayout::Line line;
            line.text = paragraph.substr(first, count);
            line.first = at + first;
            first += count;
            line.end = first < paragraph.size() ? at + first : (last ? text.size() : end + 1);
            layout.lines.push_back(std::move(line));
        } while (first < paragraph.size());
        if (last)
            break;
        at = end + 1;
        if (at == text.size())
            break;
    }
    // Lines below the rectangle are left out; the last one may stand out of it unless the format forbids
    // that.
    if (rect.Height > 0) {
        const double fits = rect.Height / layout.lineHeight + 1e-4;
        const double kept =
            (std::max)(1.0, format.flags & StringFormatFlagsLineLimit ? std::floor(fits) : std::ceil(fits));
        if (kept < static_cast<double>(layout.lines.size()) && !(format.flags & StringFormatFlagsNoClip))
            layout.lines.resize(static_cast<size_t>(kept));
    }
    for (TextLayout::Line& line : layout.lines) {
        if (limited && !(wraps && format.trimming < StringTrimmingEllipsisCharacter))
            line.text = Trimmed(line.text, face, em, room, format.trimming);
        line.width = Width(spaces ? line.text : WithoutSpacesBehind(line.text), face, em);
        layout.width = (std::max)(layout.width, line.width);
    }
    layout.fitting = layout.lines.empty() ? 0 : layout.lines.back().end;
    layout.height = layout.lineHeight * static_cast<double>(layout.lines.size());
    layout.top = Aligned(format.lineAlign, rect.Y, rect.Height, layout.height);
    double top = layout.top;
    for (TextLayout::Line& line : layout.lines) {
        const double whole = line.width + 2 * margin;
        line.x = Aligned(format.align, rect.X, rect.Width, whole) + margin;
        line.top = top;
        top += layout.lineHeight;
    }
    layout.width += 2 * margin;
    layout.left = Aligned(format.align, rect.X, rect.Width, layout.width);
    return layout;
}

}  // namespace flat
