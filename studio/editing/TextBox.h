// A text box that shows its text.
#pragma once

#include "behaviour/UIObjectTextEdit.h"

namespace Studio {

/// The library's text box draws nothing and can only be hit inside an ellipse. This one draws its ground,
/// frame and text, wrapped and aligned in its rectangle, and is hit everywhere in it.
class TextBox : public Lumo::CUIObjectTextEdit {
public:
    TextBox() = default;
    /// A text box on `rect` (page units).
    explicit TextBox(Gdiplus::RectF& rect) : CUIObjectTextEdit(rect, Lumo::DS_TEXTEDIT) {}

    using CUIObjectTextEdit::HitTest;

    BOOL HitTest(Gdiplus::RectF& rect) override { return CUIObject::HitTest(rect); }
    void Draw(Gdiplus::Graphics* g) override;

private:
    void DrawGround(Gdiplus::Graphics& g, const Gdiplus::RectF& bounds) const;
    void DrawText(Gdiplus::Graphics& g, const Gdiplus::RectF& bounds);
};

}  // namespace Studio
