#include "window/RgnEx.h"

#include "BitmapPixels.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Lumo {

namespace {

using Rects = std::vector<CRect>;

// The union of a part of the list, halves first: that keeps the regions that are joined small.
HRGN Union(Rects::const_iterator first, Rects::const_iterator last) {
    if (last - first <= 1)
        return first == last ? ::CreateRectRgn(0, 0, 0, 0) : ::CreateRectRgnIndirect(*first);
    const auto middle = first + (last - first) / 2;
    const HRGN left = Union(first, middle);
    const HRGN right = Union(middle, last);
    const bool done = left && right && ::CombineRgn(left, left, right, RGN_OR) != ERROR;
    ::DeleteObject(right);
    if (done)
        return left;
    ::DeleteObject(left);
    return nullptr;
}

HRGN UnionOf(const Rects& rects) {
    return Union(rects.begin(), rects.end());
}

// Runs of pixels that are inside, row by row; a row that is like the one above it makes that higher.
template <class Inside>
Rects RunsOf(const BitmapPixels& picture, Inside inside) {
    Rects rects;
    size_t above = 0;  // where the row above begins in the list
    for (int y = 0; y < picture.height; ++y) {
        const size_t begin = rects.size();
        const DWORD* row = &picture.pixels[static_cast<size_t>(y) * static_cast<size_t>(picture.width)];
        for (int x = 0; x < picture.width;) {
            const int left = x;
            while (x < picture.width && inside(row[x]))
                ++x;
            if (x > left)
                rects.emplace_back(left, y, x, y + 1);
            else
                ++x;
        }
        const bool same =
            begin - above == rects.size() - begin &&
            std::equal(rects.begin() + above, rects.begin() + begin, rects.begin() + begin,
                       [&](const CRect& upper, const CRect& lower) {
                           return upper.bottom == y && upper.left == lower.left && upper.right == lower.right;
                       });
        if (same) {
            rects.resize(begin);
            for (size_t i = above; i < begin; ++i)
                ++rects[i].bottom;
        } else {
            above = begin;
        }
    }
    return rects;
}

struct Direction {
    double x, y, length;
};

Direction Towards(POINT from, POINT to) {
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    const double length = std::hypot(x, y);
    return length > 0 ? Direction{x / length, y / length, length} : Direction{0, 0, 0};
}

POINT Rounded(double x, double y) {
    return {std::lround(x), std::lround(y)};
}

// The arc that replaces a corner touches both sides.
void AddCorner(std::vector<POINT>& outline, POINT before, POINT corner, POINT after, double radius) {
    const Direction back = Towards(corner, before);
    const Direction on = Towards(corner, after);
    const double cosine = std::clamp(back.x * on.x + back.y * on.y, -1.0, 1.0);
    const double half = std::acos(cosine) / 2;  // of the angle between the sides
    const double room = (std::min)(back.length, on.length) / 2;
    const double touch = (std::min)(radius / std::tan((std::max)(half, 1e-6)), room);
    const double arc = touch * std::tan(half);  // its radius
    // A straight line, a side of no length, or two sides that lie on each other have no corner to round.
    if (touch < 0.5 || arc < 0.5 || cosine < -0.9999) {
        outline.push_back(corner);
        return;
    }
    const double toMiddle = std::hypot(touch, arc) / std::hypot(back.x + on.x, back.y + on.y);
    const double middleX = corner.x + (back.x + on.x) * toMiddle;
    const double middleY = corner.y + (back.y + on.y) * toMiddle;
    const double from = std::atan2(corner.y + back.y * touch - middleY, corner.x + back.x * touch - middleX);
    const double to = std::atan2(corner.y + on.y * touch - middleY, corner.x + on.x * touch - middleX);
    const double turn = std::remainder(to - from, 2 * 3.14159265358979323846);
    const int steps = (std::max)(2, static_cast<int>(std::ceil(std::abs(turn) * std::sqrt(arc))));
    for (int i = 0; i <= steps; ++i) {
        const double angle = from + turn * i / steps;
        outline.push_back(Rounded(middleX + arc * std::cos(angle), middleY + arc * std::sin(angle)));
    }
}

}  // namespace

BOOL RgnEx::CreateFromColorKey(HBITMAP bitmap, COLORREF key, int tolerance) {
    const BitmapPixels picture = ReadPixels(bitmap);
    if (m_hObject || picture.pixels.empty())
        return FALSE;
    const auto differs = [tolerance](int part, int other) { return std::abs(part - other) > tolerance; };
    return Attach(UnionOf(RunsOf(picture, [&](DWORD pixel) {
        return differs(pixel >> 16 & 0xFF, GetRValue(key)) || differs(pixel >> 8 & 0xFF, GetGValue(key)) ||
               differs(pixel & 0xFF, GetBValue(key));
    })));
}

BOOL RgnEx::CreateFromAlpha(HBITMAP bitmap, int least) {
    const BitmapPixels picture = ReadPixels(bitmap);
    if (m_hObject || picture.pixels.empty() || !picture.alpha)
        return FALSE;
    return Attach(
        UnionOf(RunsOf(picture, [least](DWORD pixel) { return static_cast<int>(pixel >> 24) >= least; })));
}

BOOL RgnEx::CreateRoundPolygon(const POINT* points, int count, int radius) {
    if (m_hObject || !points || count < 3)
        return FALSE;
    std::vector<POINT> outline;
    for (int i = 0; i < count; ++i)
        AddCorner(outline, points[(i + count - 1) % count], points[i], points[(i + 1) % count], radius);
    return CreatePolygonRgn(outline.data(), static_cast<int>(outline.size()), WINDING);
}

BOOL RgnEx::CreateFromText(const CString& text, HFONT font, CPoint at) {
    if (m_hObject)
        return FALSE;
    if (text.IsEmpty())
        return CreateRectRgn(0, 0, 0, 0);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc, font);
    dc.SetBkMode(TRANSPARENT);
    ::BeginPath(dc);
    dc.TextOut(at.x, at.y, text);
    ::EndPath(dc);
    // The outlines of some letters overlap.
    ::SetPolyFillMode(dc, WINDING);
    const HRGN region = ::PathToRegion(dc);
    ::SelectObject(dc, old);
    return Attach(region);
}

BOOL RgnEx::CreateFromRects(const std::vector<CRect>& rects) {
    return !m_hObject && Attach(UnionOf(rects));
}

std::vector<CRect> RgnEx::GetRects() const {
    const auto region = static_cast<HRGN>(m_hObject);
    std::vector<BYTE> bytes(::GetRegionData(region, 0, nullptr));
    if (bytes.empty() ||
        !::GetRegionData(region, static_cast<DWORD>(bytes.size()), reinterpret_cast<RGNDATA*>(bytes.data())))
        return {};
    const auto& data = *reinterpret_cast<const RGNDATA*>(bytes.data());
    const auto* first = reinterpret_cast<const RECT*>(data.Buffer);
    return Rects(first, first + data.rdh.nCount);
}

// Narrowing is widening of what surrounds the region.
BOOL RgnEx::Widen(int pixels) {
    if (!m_hObject)
        return FALSE;
    const int step = std::abs(pixels);
    RgnEx outside;
    CRect around;
    GetRgnBox(around);
    around.InflateRect(step + 1, step + 1);
    if (pixels < 0 &&
        (!outside.CreateRectRgnIndirect(around) || outside.CombineRgn(&outside, this, RGN_DIFF) == ERROR))
        return FALSE;
    Rects rects = pixels < 0 ? outside.GetRects() : GetRects();
    for (CRect& rect : rects)
        rect.InflateRect(step, step);
    RgnEx widened;
    if (!widened.CreateFromRects(rects))
        return FALSE;
    return (pixels < 0 ? CombineRgn(this, &widened, RGN_DIFF) : CombineRgn(&widened, nullptr, RGN_COPY)) !=
           ERROR;
}

}  // namespace Lumo
