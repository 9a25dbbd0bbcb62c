// CSize, CPoint and CRect: the system's SIZE, POINT and RECT with members. Units are those of the caller.
#pragma once

#include <windows.h>

class CPoint;
class CRect;

/// A width and a height.
class CSize : public tagSIZE {
public:
    CSize() noexcept : tagSIZE{0, 0} {}
    CSize(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
    CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}
    CSize(POINT initPt) noexcept : tagSIZE{initPt.x, initPt.y} {}
    /// As some functions of the system return it: signed width in the low word, signed height in the high
    /// word.
    CSize(DWORD dwSize) noexcept : tagSIZE{short(LOWORD(dwSize)), short(HIWORD(dwSize))} {}

    void SetSize(int CX, int CY) noexcept { cx = CX, cy = CY; }

    friend BOOL operator==(SIZE one, SIZE other) noexcept { return one.cx == other.cx && one.cy == other.cy; }
    friend BOOL operator!=(SIZE one, SIZE other) noexcept { return one.cx != other.cx || one.cy != other.cy; }
    void operator+=(SIZE size) noexcept { cx += size.cx, cy += size.cy; }
    void operator-=(SIZE size) noexcept { cx -= size.cx, cy -= size.cy; }

    CSize operator+(SIZE size) const noexcept { return {int(cx + size.cx), int(cy + size.cy)}; }
    CSize operator-(SIZE size) const noexcept { return {int(cx - size.cx), int(cy - size.cy)}; }
    CSize operator-() const noexcept { return {int(-cx), int(-cy)}; }
};

/// A position.
class CPoint : public tagPOINT {
public:
    CPoint() noexcept : tagPOINT{0, 0} {}
    CPoint(int initX, int initY) noexcept : tagPOINT{initX, initY} {}
    CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}
    CPoint(SIZE initSize) noexcept : tagPOINT{initSize.cx, initSize.cy} {}
    /// A message parameter: signed x in the low word, signed y in the high word.
    CPoint(LPARAM dwPoint) noexcept : tagPOINT{short(LOWORD(dwPoint)), short(HIWORD(dwPoint))} {}

    void SetPoint(int X, int Y) noexcept { x = X, y = Y; }
    void Offset(int xOffset, int yOffset) noexcept { x += xOffset, y += yOffset; }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }

    friend BOOL operator==(POINT one, POINT other) noexcept { return one.x == other.x && one.y == other.y; }
    friend BOOL operator!=(POINT one, POINT other) noexcept { return one.x != other.x || one.y != other.y; }
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }

    CPoint operator+(SIZE size) const noexcept { return {int(x + size.cx), int(y + size.cy)}; }
    CPoint operator-(SIZE size) const noexcept { return {int(x - size.cx), int(y - size.cy)}; }
    CPoint operator+(POINT point) const noexcept { return {int(x + point.x), int(y + point.y)}; }
    CSize operator-(POINT point) const noexcept { return {int(x - point.x), int(y - point.y)}; }
    CPoint operator-() const noexcept { return {int(-x), int(-y)}; }
};

/// A rectangle: left and top belong to it, right and bottom do not.
class CRect : public tagRECT {
public:
    CRect() noexcept : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) noexcept : tagRECT{l, t, r, b} {}
    CRect(const RECT& srcRect) noexcept : tagRECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : tagRECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept
        : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) noexcept
        : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return {Width(), Height()}; }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(this); }
    CPoint& BottomRight() noexcept { return *(reinterpret_cast<CPoint*>(this) + 1); }
    CPoint TopLeft() const noexcept { return {int(left), int(top)}; }
    CPoint BottomRight() const noexcept { return {int(right), int(bottom)}; }
    CPoint CenterPoint() const noexcept { return {int((left + right) / 2), int((top + bottom) / 2)}; }

    /// TRUE when width or height is 0 or negative.
    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    /// TRUE when all four sides are 0.
    BOOL IsRectNull() const noexcept { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const noexcept { return ::PtInRect(this, point); }

    void SetRect(int x1, int y1, int x2, int y2) noexcept { *this = CRect(x1, y1, x2, y2); }
    void SetRectEmpty() noexcept { *this = CRect(); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { *this = *lpSrcRect; }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }

    /// Move every side outwards (negative: inwards), by the same or by its own distance.
    void InflateRect(int x, int y) noexcept { ::InflateRect(this, x, y); }
    void InflateRect(SIZE size) noexcept { ::InflateRect(this, size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void InflateRect(int l, int t, int r, int b) noexcept { left -= l, top -= t, right += r, bottom += b; }
    void DeflateRect(int x, int y) noexcept { ::InflateRect(this, -x, -y); }
    void DeflateRect(SIZE size) noexcept { ::InflateRect(this, -size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }
    void OffsetRect(int x, int y) noexcept { ::OffsetRect(this, x, y); }
    void OffsetRect(SIZE size) noexcept { ::OffsetRect(this, size.cx, size.cy); }
    void OffsetRect(POINT point) noexcept { ::OffsetRect(this, point.x, point.y); }
    void MoveToX(int x) noexcept { right = Width() + x, left = x; }
    void MoveToY(int y) noexcept { bottom = Height() + y, top = y; }
    void MoveToXY(int x, int y) noexcept { MoveToX(x), MoveToY(y); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }
    /// Swaps sides so that width and height are not negative.
    void NormalizeRect() noexcept {
        if (left > right)
            *this = CRect(right, top, left, bottom);
        if (top > bottom)
            *this = CRect(left, bottom, right, top);
    }

    /// Set this rectangle to the common part, the hull or the difference; FALSE when the result is empty.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
        return ::IntersectRect(this, lpRect1, lpRect2);
    }
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::UnionRect(this, lpRect1, lpRect2); }
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept {
        return ::SubtractRect(this, lpRectSrc1, lpRectSrc2);
    }

    friend BOOL operator==(const RECT& one, const RECT& other) noexcept { return ::EqualRect(&one, &other); }
    friend BOOL operator!=(const RECT& one, const RECT& other) noexcept { return !::EqualRect(&one, &other); }
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(this, &rect); }

    CRect operator+(POINT point) const noexcept {
        return Changed([&](CRect& r) { r += point; });
    }
    CRect operator+(SIZE size) const noexcept {
        return Changed([&](CRect& r) { r += size; });
    }
    CRect operator-(POINT point) const noexcept {
        return Changed([&](CRect& r) { r -= point; });
    }
    CRect operator-(SIZE size) const noexcept {
        return Changed([&](CRect& r) { r -= size; });
    }
    CRect operator&(const RECT& rect) const noexcept {
        return Changed([&](CRect& r) { r &= rect; });
    }
    CRect operator|(const RECT& rect) const noexcept {
        return Changed([&](CRect& r) { r |= rect; });
    }

private:
    template <class Change>
    CRect Changed(Change change) const noexcept {
        CRect copy(*this);
        change(copy);
        return copy;
    }
};
