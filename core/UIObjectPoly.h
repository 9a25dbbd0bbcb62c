// Objects that are drawn and edited point by point.
#pragma once

#include <deque>

#include "core/UIObject.h"

namespace Lumo {

/// A row of points joined by segments. With rectangle mode 0 (a new object's) every point is a handle and the
/// last handle is the body; with rectangle mode 1 the object is edited like a rectangle.
class TESSEL_API CUIObjectPoly : public CUIObject {
public:
    /// No points, at most 0 of them, rectangle mode 1: `Init` must follow.
    CUIObjectPoly();
    /// No points, rectangle mode 0; the rectangle is the position until the first point is added.
    CUIObjectPoly(const Gdiplus::RectF& rect, DrawShape shape);
    /// Copies every field, the points included.
    CUIObjectPoly(const CUIObjectPoly&) = default;
    CUIObjectPoly& operator=(const CUIObjectPoly&) = default;

    /// The base's `Init`, rectangle mode 0 and no points.
    void Init(DrawShape shape, Gdiplus::RectF& rect) override;

    /// 1 when the left top corner of `rect` lies on a segment, within the pen and a tolerance.
    int HitTest(Gdiplus::RectF& rect) override;

    /// As the base's, but handles without a point are not tried, unless a derived class has a
    /// `GetHandleCount` of its own.
    int HitTest(Gdiplus::PointF& point, int selected) override;

    /// Writes or reads the base and four 16-bit values. The points are not archived.
    void Serialize(CArchive& ar) override;

    /// Paints all segments, and the rubber segment of a figure being drawn.
    void Draw(Gdiplus::Graphics* graphics) override;

    /// Paints the segments displaced by `offset`.
    void DrawDragImage(Gdiplus::Graphics* graphics, Gdiplus::PointF offset) override;

    /// Paints a square on every point.
    void DrawTracker(Gdiplus::Graphics* graphics) override;

    using CUIObject::Rotate;
    /// As the base's.
    void Rotate(float angle, Gdiplus::RectF& rect) override;
    /// As the base's; the points do not turn.
    void Rotate(float angle) override;

    /// The base's flip, carried out in rectangle mode.
    void Invert(int horizontal) override;

    /// The maximum number of points + 1.
    int GetHandleCount() override;

    /// The point of that number; the last mouse position for the body; (0, 0) between the two.
    Gdiplus::PointF GetHandlePoint(int handle) override;

    /// As the base's.
    Gdiplus::RectF GetHandleRect(int handle) override;

    /// A cross on point handles and on the body, an arrow elsewhere.
    HCURSOR GetHandleCursor(int handle) override;

    /// Moves by `delta`, through `MoveHandleTo`.
    void MoveTo(const int& handle, const Gdiplus::PointF& delta) override;

    /// While selecting, moves one point, or all of them with the body handle; otherwise moves the free end of
    /// the figure being drawn. A point handle beyond the points moves nothing.
    void MoveHandleTo(const int& handle, const Gdiplus::PointF& delta) override;

    ~CUIObjectPoly() override;

    // Virtual slots 32 to 36, in this order.

    /// Appends a point. Returns 1.
    virtual int AddPoint(Gdiplus::PointF& point);

    /// 1 when the figure has all its points, or with `ahead` not 0 all but one; the point is not looked at.
    virtual int LastPoint(Gdiplus::PointF& point, int ahead);

    /// Makes the bounds of the points the position. Returns 1, or 0 when there is no point.
    virtual int RecalcBounds();

    /// Toggles the rectangle mode.
    virtual void RectMode();

    /// Remembers the size of `box`. Kept: no point turns about `centre`.
    virtual void RotatePoints(float angle, const Gdiplus::PointF& centre, const Gdiplus::RectF& box);

    /// Makes the points `count` (new ones are (0, 0), a negative number acts as 0) and returns them; the
    /// bounds are not recalculated.
    std::deque<Gdiplus::PointF>* NewPoints(int count);

    /// The live points. Kept: not the normalised ones.
    std::deque<Gdiplus::PointF>* NormalizePoints();

    /// Number of points at which the figure is complete.
    int GetMaxPoints() const { return m_nMaxPoints; }
    void SetMaxPoints(int count) { m_nMaxPoints = count; }

    /// Displacement of the free end from the last point while the figure is being drawn.
    Gdiplus::PointF GetPendingOffset() const { return {m_fPendingX, m_fPendingY}; }
    void SetPendingOffset(const Gdiplus::PointF& offset) {
        m_fPendingX = offset.X;
        m_fPendingY = offset.Y;
    }

protected:
    int m_nMaxPoints = 0;                      ///< number of points at which the figure is complete
    float m_fPendingX = 0.0f;                  ///< see `GetPendingOffset`
    float m_fPendingY = 0.0f;                  ///< the same, vertically
    int m_nInitialWidth = 0;                   ///< width at construction, truncated; archived in 16 bits
    int m_nInitialHeight = 0;                  ///< height at construction, the same
    int m_nFourth = 0;                         ///< archived in 16 bits; no other use
    int m_nBoxWidth = 0;                       ///< bits of the float width that `RotatePoints` got last
    int m_nBoxHeight = 0;                      ///< bits of the height, the same
    std::deque<Gdiplus::PointF> m_points;      ///< the points, page units
    std::deque<Gdiplus::PointF> m_normalised;  ///< emptied by `Init`; no other use

private:
    int HandleAt(const Gdiplus::PointF& point, int body);
    bool HasOwnHandles() const;
};

/// A line of two points, drawn with caps and three times the line width.
class TESSEL_API CUIObjectLine : public CUIObjectPoly {
public:
    /// As the base's default.
    CUIObjectLine();
    /// A line without points yet, of at most 2.
    CUIObjectLine(const Gdiplus::RectF& rect, DrawShape shape);
    CUIObjectLine(const CUIObjectLine&) = default;
    CUIObjectLine& operator=(const CUIObjectLine&) = default;

    /// Paints each segment on its own, with the caps of the line style.
    void Draw(Gdiplus::Graphics* graphics) override;
    /// Paints the segments displaced by `offset`.
    void DrawDragImage(Gdiplus::Graphics* graphics, Gdiplus::PointF offset) override;
    /// As the base's.
    int LastPoint(Gdiplus::PointF& point, int ahead) override;
    /// Sets the rectangle mode to 0.
    void RectMode() override;
    /// The shape kind.
    int GetType() override;

    ~CUIObjectLine() override;
};

/// A row of up to 65536 points.
class TESSEL_API CUIObjectPolyLine : public CUIObjectPoly {
public:
    /// As the base's default.
    CUIObjectPolyLine();
    /// A polyline without points yet, of at most 65536.
    CUIObjectPolyLine(const Gdiplus::RectF& rect, DrawShape shape);
    CUIObjectPolyLine(const CUIObjectPolyLine&) = default;
    CUIObjectPolyLine& operator=(const CUIObjectPolyLine&) = default;

    using CUIObjectPoly::HitTest;
    /// As the base's.
    int HitTest(Gdiplus::RectF& rect) override;
    /// As the base's.
    void Draw(Gdiplus::Graphics* graphics) override;

    ~CUIObjectPolyLine() override;
};

}  // namespace Lumo
