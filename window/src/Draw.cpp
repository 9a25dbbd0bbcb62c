#include "window/Draw.h"

#include "BitmapPixels.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Lumo {

namespace {

COLORREF OrSystem(COLORREF color, int index) {
    return color == CLR_DEFAULT ? ::GetSysColor(index) : color;
}

// The colour that is `part` of `whole` on the way.
COLORREF Between(COLORREF from, COLORREF to, int part, int whole) {
    const auto mix = [=](int a, int b) { return a + ::MulDiv(b - a, part, whole); };
    return RGB(mix(GetRValue(from), GetRValue(to)), mix(GetGValue(from), GetGValue(to)),
               mix(GetBValue(from), GetBValue(to)));
}

DWORD Argb(COLORREF color, int alpha) {
    return static_cast<DWORD>(alpha) << 24 | GetRValue(color) << 16 | GetGValue(color) << 8 |
           GetBValue(color);
}

void DrawPixels(CDC& dc, const CRect& rect, const BitmapPixels& picture) {
    auto* bytes = reinterpret_cast<BYTE*>(const_cast<DWORD*>(picture.pixels.data()));
    Gdiplus::Bitmap bitmap(picture.width, picture.height, picture.width * 4, PixelFormat32bppARGB, bytes);
    Gdiplus::Graphics graphics(static_cast<HDC>(dc));
    if (rect.Size() == CSize(picture.width, picture.height))
        graphics.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    graphics.DrawImage(&bitmap, Gdiplus::Rect(rect.left, rect.top, rect.Width(), rect.Height()));
}

// Two sides in each colour; the corners between them are cut by the diagonal.
void DrawBorder(CDC& dc, CRect rect, int width, COLORREF upper, COLORREF lower) {
    for (int i = 0; i < width && rect.Width() > 0 && rect.Height() > 0; ++i) {
        dc.Draw3dRect(rect, upper, lower);
        rect.DeflateRect(1, 1);
    }
}

// How far a place is outside of a span.
int Beyond(int at, int first, int last) {
    return (std::max)({first - at, at - last, 0});
}

bool IsHighHalf(WCHAR ch) {
    return (ch & 0xFC00) == 0xD800;
}

bool IsLowHalf(WCHAR ch) {
    return (ch & 0xFC00) == 0xDC00;
}

// The text with so many of its characters around an ellipsis; a pair is kept or left out whole.
CString KeepEnds(const CString& text, int count) {
    int left = (count + 1) / 2;
    int right = count / 2;
    if (left > 0 && IsHighHalf(text[left - 1]))
        --left;
    if (right > 0 && IsLowHalf(text[text.GetLength() - right]))
        --right;
    return text.Left(left) + L'\x2026' + text.Right(right);
}

}  // namespace

void Draw::Gradient(CDC& dc, const CRect& rect, COLORREF from, COLORREF to, bool down) {
    if (rect.IsRectEmpty())
        return;
    CRect clip;
    dc.GetClipBox(clip);
    const int begin = down ? rect.top : rect.left;
    const int length = down ? rect.Height() : rect.Width();
    const int first = (std::max)(static_cast<int>(down ? clip.top : clip.left), begin);
    const int last = (std::min)(static_cast<int>(down ? clip.bottom : clip.right), begin + length);
    for (int at = first; at < last; ++at) {
        const COLORREF color = Between(from, to, at - begin, (std::max)(length - 1, 1));
        dc.FillSolidRect(
            down ? CRect(rect.left, at, rect.right, at + 1) : CRect(at, rect.top, at + 1, rect.bottom),
            color);
    }
}

void Draw::Glow(CDC& dc, const CRect& rect, int size, COLORREF color, int strength) {
    if (rect.IsRectEmpty() || size <= 0)
        return;
    CRect clip;
    dc.GetClipBox(clip);
    CRect around = rect;
    around.InflateRect(size, size);
    // Only what is seen, however large the rectangle is.
    around.IntersectRect(around, clip);
    if (around.IsRectEmpty())
        return;
    const COLORREF glow = OrSystem(color, COLOR_HIGHLIGHT);
    BitmapPixels picture = {around.Width(), around.Height(), true, {}};
    picture.pixels.reserve(static_cast<size_t>(picture.width) * static_cast<size_t>(picture.height));
    for (int y = around.top; y < around.bottom; ++y) {
        for (int x = around.left; x < around.right; ++x) {
            const double away =
                std::hypot(Beyond(x, rect.left, rect.right - 1), Beyond(y, rect.top, rect.bottom - 1));
            const double left = away > 0 ? (std::max)(1 - (away - 1) / size, 0.0) : 0;
            picture.pixels.push_back(Argb(glow, static_cast<int>(std::lround(strength * left * left))));
        }
    }
    DrawPixels(dc, around, picture);
}

void Draw::Edge(CDC& dc, const CRect& rect, EdgeLook look, int width, COLORREF light, COLORREF shadow) {
    const COLORREF bright = OrSystem(light, COLOR_3DHILIGHT);
    const COLORREF dark = OrSystem(shadow, COLOR_3DSHADOW);
    const bool high = look == EdgeLook::kRaised || look == EdgeLook::kRidge;
    DrawBorder(dc, rect, width, high ? bright : dark, high ? dark : bright);
    if (look == EdgeLook::kRaised || look == EdgeLook::kSunk)
        return;
    CRect inner = rect;
    inner.DeflateRect(width, width);
    DrawBorder(dc, inner, width, high ? dark : bright, high ? bright : dark);
}

// Rows or columns of pixels, each two pixels shorter than the one before it: sharp and even at every size.
void Draw::Arrow(CDC& dc, const CRect& rect, ArrowWay way, COLORREF color) {
    if (rect.IsRectEmpty())
        return;
    const COLORREF ink = OrSystem(color, COLOR_BTNTEXT);
    const int half = (std::max)((std::min)(rect.Width(), rect.Height()) / 4, 1);
    const bool across = way == ArrowWay::kLeft || way == ArrowWay::kRight;
    const int step = way == ArrowWay::kLeft || way == ArrowWay::kUp ? -1 : 1;
    const CPoint middle = rect.CenterPoint();
    for (int i = 0; i <= half; ++i) {
        const int at = step * (i - half / 2);
        const int reach = half - i;
        if (across)
            dc.FillSolidRect(middle.x + at, middle.y - reach, 1, 2 * reach + 1, ink);
        else
            dc.FillSolidRect(middle.x - reach, middle.y + at, 2 * reach + 1, 1, ink);
    }
}

void Draw::CheckMark(CDC& dc, const CRect& rect, COLORREF color) {
    if (rect.IsRectEmpty())
        return;
    const int side = (std::min)(rect.Width(), rect.Height());
    const CPoint corner = rect.CenterPoint() - CSize(side / 2, side / 2);
    const auto at = [&](int x, int y) {
        return CPoint(corner.x + ::MulDiv(side, x, 100), corner.y + ::MulDiv(side, y, 100));
    };
    const POINT mark[] = {at(20, 52), at(42, 74), at(80, 28)};
    CPen pen;
    pen.CreatePen(PS_SOLID, (std::max)(side / 8, 1), OrSystem(color, COLOR_BTNTEXT));
    const HGDIOBJ old = ::SelectObject(dc, pen);
    dc.Polyline(mark, static_cast<int>(std::size(mark)));
    ::SelectObject(dc, old);
}

void Draw::DisabledPicture(CDC& dc, const CRect& rect, HBITMAP picture) {
    BitmapPixels read = ReadPixels(picture);
    if (read.pixels.empty() || rect.IsRectEmpty())
        return;
    const bool transparent = read.alpha && std::any_of(read.pixels.begin(), read.pixels.end(),
                                                       [](DWORD pixel) { return pixel >> 24 != 0; });
    const COLORREF dark = ::GetSysColor(COLOR_3DSHADOW);
    const COLORREF light = ::GetSysColor(COLOR_3DHILIGHT);
    for (DWORD& pixel : read.pixels) {
        // As bright as the eye sees the colour.
        const DWORD brightness =
            ((pixel >> 16 & 0xFF) * 77 + (pixel >> 8 & 0xFF) * 151 + (pixel & 0xFF) * 28) >> 8;
        pixel = Argb(Between(dark, light, static_cast<int>(brightness), 255),
                     transparent ? static_cast<int>(pixel >> 24) : 255);
    }
    DrawPixels(dc, rect, read);
}

CString Draw::ShortenMiddle(CDC& dc, const CString& text, int width) {
    if (dc.GetTextExtent(text).cx <= width)
        return text;
    int fits = 0;
    for (int tooMany = text.GetLength(); tooMany - fits > 1;) {
        const int count = (fits + tooMany) / 2;
        (dc.GetTextExtent(KeepEnds(text, count)).cx <= width ? fits : tooMany) = count;
    }
    return KeepEnds(text, fits);
}

void Draw::MiddleText(CDC& dc, const CString& text, const CRect& rect, UINT format) {
    if (rect.IsRectEmpty())
        return;
    CRect place = rect;
    dc.DrawText(ShortenMiddle(dc, text, rect.Width()), place, format | DT_SINGLELINE | DT_NOPREFIX);
}

}  // namespace Lumo
