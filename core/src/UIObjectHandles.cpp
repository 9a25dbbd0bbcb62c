// Handles, hit tests and moving of the object base.
#include "core/Geometry.h"
#include "core/UIObject.h"
#include "core/internal/SystemCursor.h"
#include "core/src/HandlePainter.h"

namespace Lumo {

namespace {

constexpr int kBodyHandle = 8;

// Where the handles of a rectangle stand, as parts of its width and height, and their cursors.
struct HandlePlace {
    float x;
    float y;
    LPCTSTR cursor;
    int mirroredX;
    int mirroredY;
};

const HandlePlace kHandles[] = {
    {0.0f, 0.0f, IDC_SIZENWSE, 1, 3}, {1.0f, 0.0f, IDC_SIZENESW, 0, 2}, {1.0f, 1.0f, IDC_SIZENWSE, 3, 1},
    {0.0f, 1.0f, IDC_SIZENESW, 2, 0}, {0.5f, 0.0f, IDC_SIZENS, 4, 6},   {1.0f, 0.5f, IDC_SIZEWE, 7, 5},
    {0.5f, 1.0f, IDC_SIZENS, 6, 4},   {0.0f, 0.5f, IDC_SIZEWE, 5, 7},   {0.5f, 0.5f, IDC_CROSS, 8, 8}};

bool IsPlaced(int handle) {
    return handle >= 0 && handle <= kBodyHandle;
}

bool MovesLeft(int handle) {
    return handle == 0 || handle == 3 || handle == 7;
}

bool MovesTop(int handle) {
    return handle == 0 || handle == 1 || handle == 4;
}

bool MovesRight(int handle) {
    return handle == 1 || handle == 2 || handle == 5;
}

bool MovesBottom(int handle) {
    return handle == 2 || handle == 3 || handle == 6;
}

}  // namespace

int CUIObject::ControlHandle(const int&, Gdiplus::RectF&) {
    return 0;
}

int CUIObject::HitTest(Gdiplus::RectF& rect) {
    const Gdiplus::RectF position = m_coordinate.GetPosition();
    return ContainsPoint(position, {rect.X, rect.Y}) &&
           ContainsPoint(position, {rect.X + rect.Width, rect.Y + rect.Height});
}

int CUIObject::HitTest(Gdiplus::PointF& point, int selected) {
    const int count = GetHandleCount();
    if (selected == 0) {
        Gdiplus::RectF square(point.X - 1.0f, point.Y - 1.0f, 2.0f, 2.0f);
        return HitTest(square) != 0 ? count - 1 : -1;
    }
    for (int handle = 0; handle < count; ++handle)
        if (ContainsPoint(GetHandleRect(handle), point))
            return handle;
    return -1;
}

int CUIObject::GetHandleCount() {
    return kBodyHandle + 1;
}

Gdiplus::PointF CUIObject::GetHandlePoint(int handle) {
    const int place = NormalizeHandle(handle);
    if (!IsPlaced(place))
        return {};
    const Gdiplus::RectF position = m_coordinate.GetPosition();
    return {position.X + position.Width * kHandles[place].x,
            position.Y + position.Height * kHandles[place].y};
}

Gdiplus::RectF CUIObject::GetHandleRect(int handle) {
    if (handle == GetHandleCount() - 1)
        return Inflated(m_coordinate.GetPosition(), -1.0f);
    return HandleSquare(GetHandlePoint(handle));
}

HCURSOR CUIObject::GetHandleCursor(int handle) {
    const int place = NormalizeHandle(handle);
    return SystemCursor(IsPlaced(place) ? kHandles[place].cursor : IDC_CROSS);
}

int CUIObject::NormalizeHandle(const int& handle) {
    if (!IsPlaced(handle))
        return handle;
    const Gdiplus::RectF position = m_coordinate.GetPosition();
    int place = handle;
    if (position.Width < 0.0f)
        place = kHandles[place].mirroredX;
    if (position.Height < 0.0f)
        place = kHandles[place].mirroredY;
    return place;
}

void CUIObject::MoveTo(const int& handle, const Gdiplus::PointF& delta) {
    if (delta.X == 0.0f && delta.Y == 0.0f)
        return;
    Gdiplus::RectF position = m_coordinate.GetPosition();
    if (m_bRectMode == 0)
        return;
    // Kept: called for every handle number, the body and negative ones included.
    MoveHandleTo(handle, delta);
    if (handle == kBodyHandle) {
        position.Offset(delta);
        m_coordinate.SetPosition(position);
    }
}

void CUIObject::FocusMoveTo(const int&, const Gdiplus::PointF&) {}

void CUIObject::MoveHandleTo(const int& handle, const Gdiplus::PointF& delta) {
    const CRect rounded = RectAtlFromGdi(m_coordinate.GetPosition());
    // Kept: asked for and not used; derived classes rely on the raw handle.
    NormalizeHandle(handle);
    const LONGLONG dx = TruncToInt(delta.X);
    const LONGLONG dy = TruncToInt(delta.Y);
    const LONGLONG left = rounded.left + (MovesLeft(handle) ? dx : 0);
    const LONGLONG top = rounded.top + (MovesTop(handle) ? dy : 0);
    const LONGLONG right = rounded.right + (MovesRight(handle) ? dx : 0);
    const LONGLONG bottom = rounded.bottom + (MovesBottom(handle) ? dy : 0);
    m_coordinate.SetPosition({static_cast<float>(left), static_cast<float>(top),
                              static_cast<float>(right - left), static_cast<float>(bottom - top)});
}

void CUIObject::Invert(int horizontal) {
    Gdiplus::RectF position = m_coordinate.GetPosition();
    if (horizontal != 0) {
        MoveHandleTo(1, {position.Width * -2.0f, 0.0f});
        position.X += position.Width;
    } else {
        MoveHandleTo(2, {0.0f, position.Height * -2.0f});
        position.Y += position.Height;
    }
    // Kept: overrides what MoveHandleTo stored here; derived classes mirror their own points there.
    m_coordinate.SetPosition(position);
}

}  // namespace Lumo
