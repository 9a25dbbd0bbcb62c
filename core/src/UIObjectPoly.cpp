#include "core/UIObjectPoly.h"

#include <algorithm>
#include <bit>
#include <typeinfo>

#include "canvas/UITool.h"
#include "core/Geometry.h"
#include "core/src/HandlePainter.h"
#include "core/internal/SystemCursor.h"

namespace Lumo {

namespace {

constexpr int kLinePoints = 2;
constexpr int kPolyLinePoints = 65536;
constexpr int kRectHandles = 9;

void ArchiveLowWord(CArchive& ar, int& value) {
    WORD word = static_cast<WORD>(value);
    if (ar.IsStoring()) {
        ar << word;
    } else {
        ar >> word;
        value = word;
    }
}

}  // namespace

CUIObjectPoly::CUIObjectPoly() = default;

CUIObjectPoly::CUIObjectPoly(const Gdiplus::RectF& rect, DrawShape shape)
    : CUIObject(rect, shape),
      m_nInitialWidth(TruncToInt(rect.Width)),
      m_nInitialHeight(TruncToInt(rect.Height)) {
    m_bRectMode = 0;
}

CUIObjectPoly::~CUIObjectPoly() = default;

void CUIObjectPoly::Init(DrawShape shape, Gdiplus::RectF& rect) {
    CUIObject::Init(shape, rect);
    m_bRectMode = 0;
    m_points.clear();
    m_normalised.clear();
}

void CUIObjectPoly::Serialize(CArchive& ar) {
    CUIObject::Serialize(ar);
    // Kept: low words only, so that 65536 points come back as 0; and no points.
    ArchiveLowWord(ar, m_nInitialWidth);
    ArchiveLowWord(ar, m_nInitialHeight);
    ArchiveLowWord(ar, m_nMaxPoints);
    ArchiveLowWord(ar, m_nFourth);
}

int CUIObjectPoly::AddPoint(Gdiplus::PointF& point) {
    m_points.push_back(point);
    RecalcBounds();
    return 1;
}

int CUIObjectPoly::LastPoint(Gdiplus::PointF&, int ahead) {
    const auto count = static_cast<LONGLONG>(m_points.size());
    return count + (ahead != 0 ? 1 : 0) >= m_nMaxPoints;
}

int CUIObjectPoly::RecalcBounds() {
    if (m_points.empty())
        return 0;
    const auto [left, right] = std::ranges::minmax(m_points, {}, &Gdiplus::PointF::X);
    const auto [top, bottom] = std::ranges::minmax(m_points, {}, &Gdiplus::PointF::Y);
    m_coordinate.SetPosition({left.X, top.Y, right.X - left.X, bottom.Y - top.Y});
    return 1;
}

void CUIObjectPoly::RectMode() {
    m_bRectMode = m_bRectMode == 0;
}

void CUIObjectPoly::RotatePoints(float, const Gdiplus::PointF&, const Gdiplus::RectF& box) {
    m_nBoxWidth = std::bit_cast<int>(box.Width);
    m_nBoxHeight = std::bit_cast<int>(box.Height);
}

std::deque<Gdiplus::PointF>* CUIObjectPoly::NewPoints(int count) {
    m_points.resize(static_cast<size_t>((std::max)(count, 0)));
    return &m_points;
}

std::deque<Gdiplus::PointF>* CUIObjectPoly::NormalizePoints() {
    return &m_points;
}

void CUIObjectPoly::Rotate(float angle, Gdiplus::RectF& rect) {
    CUIObject::Rotate(angle, rect);
}

void CUIObjectPoly::Rotate(float angle) {
    CUIObject::Rotate(angle);
}

void CUIObjectPoly::Invert(int horizontal) {
    const int rectMode = m_bRectMode;
    m_bRectMode = 1;
    CUIObject::Invert(horizontal);
    m_bRectMode = rectMode;
}

int CUIObjectPoly::GetHandleCount() {
    return m_nMaxPoints + 1;
}

Gdiplus::PointF CUIObjectPoly::GetHandlePoint(int handle) {
    if (m_bRectMode != 0)
        return CUIObject::GetHandlePoint(handle);
    if (handle >= 0 && static_cast<size_t>(handle) < m_points.size())
        return m_points[handle];
    if (handle == GetHandleCount() - 1)
        return PointGdiFromAtl(CUIToolBase::run_last);
    return {};
}

Gdiplus::RectF CUIObjectPoly::GetHandleRect(int handle) {
    return CUIObject::GetHandleRect(handle);
}

HCURSOR CUIObjectPoly::GetHandleCursor(int handle) {
    if (m_bRectMode != 0)
        return CUIObject::GetHandleCursor(handle);
    const bool known = handle >= 0 && handle <= m_nMaxPoints;
    return SystemCursor(known ? IDC_CROSS : IDC_ARROW);
}

// The first handle before the body at a point, or -1. A polyline counts 65537 handles; those beyond its
// points stand nowhere and are not walked, unless a derived class counts handles of its own.
int CUIObjectPoly::HandleAt(const Gdiplus::PointF& point, int body) {
    if (m_bRectMode == 0 && HasOwnHandles()) {
        const auto at = std::ranges::find_if(
            m_points, [&](const Gdiplus::PointF& p) { return ContainsPoint(HandleSquare(p), point); });
        const auto handle = at - m_points.begin();
        return at != m_points.end() && handle < body ? static_cast<int>(handle) : -1;
    }
    int places = body;
    if (body == m_nMaxPoints)
        places = (std::min)(m_bRectMode != 0 ? kRectHandles : static_cast<int>(m_points.size()), body);
    for (int handle = 0; handle < places; ++handle)
        if (ContainsPoint(GetHandleRect(handle), point))
            return handle;
    return -1;
}

// Whether no derived class of a host can have put the handles elsewhere: then arithmetic finds them.
bool CUIObjectPoly::HasOwnHandles() const {
    const std::type_info& type = typeid(*this);
    return type == typeid(CUIObjectPolyLine) || type == typeid(CUIObjectLine) ||
           type == typeid(CUIObjectPoly);
}

int CUIObjectPoly::HitTest(Gdiplus::PointF& point, int selected) {
    if (selected == 0)
        return CUIObject::HitTest(point, selected);
    const int body = GetHandleCount() - 1;
    const int handle = HandleAt(point, body);
    if (handle >= 0)
        return handle;
    return body >= 0 && ContainsPoint(GetHandleRect(body), point) ? body : -1;
}

void CUIObjectPoly::MoveTo(const int& handle, const Gdiplus::PointF& delta) {
    if (delta.X == 0.0f && delta.Y == 0.0f)
        return;
    if (m_bRectMode != 0)
        CUIObject::MoveTo(handle, delta);
    else
        MoveHandleTo(handle, delta);
}

void CUIObjectPoly::MoveHandleTo(const int& handle, const Gdiplus::PointF& delta) {
    if (m_bRectMode != 0) {
        CUIObject::MoveHandleTo(handle, delta);
        return;
    }
    const int body = GetHandleCount() - 1;
    const bool selecting = CUIToolBase::run_drawshape == DS_SELECT;
    if (selecting && handle >= 0 && handle < body) {
        if (static_cast<size_t>(handle) < m_points.size())
            m_points[handle] = m_points[handle] + delta;
    } else if (selecting && handle == body) {
        for (Gdiplus::PointF& point : m_points)
            point = point + delta;
    } else {
        m_fPendingX += delta.X;
        m_fPendingY += delta.Y;
    }
    RecalcBounds();
}

CUIObjectLine::CUIObjectLine() = default;

CUIObjectLine::CUIObjectLine(const Gdiplus::RectF& rect, DrawShape shape) : CUIObjectPoly(rect, shape) {
    m_nMaxPoints = kLinePoints;
}

CUIObjectLine::~CUIObjectLine() = default;

int CUIObjectLine::LastPoint(Gdiplus::PointF& point, int ahead) {
    return CUIObjectPoly::LastPoint(point, ahead);
}

void CUIObjectLine::RectMode() {
    m_bRectMode = 0;
}

int CUIObjectLine::GetType() {
    return m_nDrawShape;
}

CUIObjectPolyLine::CUIObjectPolyLine() = default;

CUIObjectPolyLine::CUIObjectPolyLine(const Gdiplus::RectF& rect, DrawShape shape)
    : CUIObjectPoly(rect, shape) {
    m_nMaxPoints = kPolyLinePoints;
}

CUIObjectPolyLine::~CUIObjectPolyLine() = default;

int CUIObjectPolyLine::HitTest(Gdiplus::RectF& rect) {
    return CUIObjectPoly::HitTest(rect);
}

void CUIObjectPolyLine::Draw(Gdiplus::Graphics* graphics) {
    CUIObjectPoly::Draw(graphics);
}

}  // namespace Lumo
