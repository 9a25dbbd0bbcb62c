// The text box.
#pragma once

#include "core/UIObject.h"

namespace Lumo {

/// A text box. Its text and text format live in the coordinate record; the in-place editor changes them. The
/// library draws nothing for it: a host derives from it and draws the text.
class TESSEL_API CUIObjectTextEdit : public CUIObject {
public:
    /// Kind 13, name "TextEdit", the default position.
    CUIObjectTextEdit();
    /// A text box on `rect` (page units) of the given kind; the shape name is "TextEdit".
    CUIObjectTextEdit(const Gdiplus::RectF& rect, DrawShape kind);
    /// Copies every field.
    CUIObjectTextEdit(const CUIObjectTextEdit& source) = default;
    CUIObjectTextEdit& operator=(const CUIObjectTextEdit& source) = default;

    using CUIObject::HitTest;

    /// The base object's, then the name "TextEdit" and the position `rect` again.
    void Init(DrawShape kind, Gdiplus::RectF& rect) override;
    /// Enlarges `rect` in place by half the line width plus 1 on every side and tells whether it touches the
    /// ellipse inscribed in the position.
    int HitTest(Gdiplus::RectF& rect) override;
    /// The base object's data only.
    void Serialize(CArchive& ar) override;
    /// Draws nothing.
    void Draw(Gdiplus::Graphics* g) override;
    /// The shape kind.
    int GetType() override;
    ~CUIObjectTextEdit() override;

    /// Slot 32: outlines the position as an ellipse, in black, 2 units wide. `Draw` does not call it.
    virtual void DrawContents(Gdiplus::Graphics* g);
    TESSEL_HIDING_BEGIN
    /// Slot 33: draws nothing. It stands beside the base object's operation of this name, which takes the
    /// point by value and is reached through a base pointer.
    virtual void DrawDragImage(Gdiplus::Graphics* g, Gdiplus::PointF& point);
    TESSEL_HIDING_END
};

}  // namespace Lumo
