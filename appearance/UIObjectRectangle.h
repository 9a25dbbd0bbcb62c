// The two plain filled shapes and the outline of a rounded rectangle.
#pragma once

#include "core/UIObject.h"

namespace Lumo {

/// A filled and outlined rectangle with a caption under the fill.
class TESSEL_API CUIObjectRectangle : public CUIObject {
public:
    /// Kind 3, named "Rectangle".
    CUIObjectRectangle();
    /// The given kind at `rect`, named "Rectangle" whatever the kind is.
    CUIObjectRectangle(const Gdiplus::RectF& rect, DrawShape shape);
    /// Copies every field.
    CUIObjectRectangle(const CUIObjectRectangle&) = default;
    CUIObjectRectangle& operator=(const CUIObjectRectangle&) = default;

    /// As the base's.
    void Serialize(CArchive& ar) override;
    /// Paints caption, outline and fill, in this order.
    void Draw(Gdiplus::Graphics* graphics) override;

    ~CUIObjectRectangle() override;

    // Virtual slots 32 and 33, in this order.

    /// For derived classes. Does nothing here.
    virtual void DrawContents(Gdiplus::Graphics* graphics);

    TESSEL_HIDING_BEGIN
    /// Paints the outline, twice as wide, and the fill (not in mode 1) during a drag. The point is not used:
    /// the displacement already sits in the position offset. Not the base's slot 12.
    virtual void DrawDragImage(Gdiplus::Graphics* graphics, Gdiplus::PointF& point);
    TESSEL_HIDING_END
};

/// A filled and outlined ellipse with a caption under the fill.
class TESSEL_API CUIObjectEllipse : public CUIObject {
public:
    /// Kind 4, named "Ellipse".
    CUIObjectEllipse();
    /// The given kind at `rect`, named "Ellipse" whatever the kind is.
    CUIObjectEllipse(const Gdiplus::RectF& rect, DrawShape shape);
    /// Copies every field.
    CUIObjectEllipse(const CUIObjectEllipse&) = default;
    CUIObjectEllipse& operator=(const CUIObjectEllipse&) = default;

    /// As the base's.
    void Serialize(CArchive& ar) override;
    /// Paints caption, outline and fill, in this order.
    void Draw(Gdiplus::Graphics* graphics) override;

    ~CUIObjectEllipse() override;

    // Virtual slots 32 and 33, in this order.

    /// Paints the outline in opaque black, 2 wide.
    virtual void DrawContents(Gdiplus::Graphics* graphics);

    TESSEL_HIDING_BEGIN
    /// Paints the outline, twice as wide, and the fill (not in mode 1) during a drag. The point is not used:
    /// the displacement already sits in the position offset. Not the base's slot 12.
    virtual void DrawDragImage(Gdiplus::Graphics* graphics, Gdiplus::PointF& point);
    TESSEL_HIDING_END
};

/// Replaces `path` by a rounded rectangle on whole units with the corner (`x`, `y`), `width` and `height`;
/// `diameter` is that of its corners, at most the width and the height. Returns the status of the last GDI+
/// call.
TESSEL_API Gdiplus::Status GetRoundRectPath(Gdiplus::GraphicsPath* path, float x, float y, float width,
                                            float height, int diameter);

}  // namespace Lumo
