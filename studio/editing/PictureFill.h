// Shapes that are filled with a picture from a file.
#pragma once

#include "core/UIObject.h"
#include "studio/editing/ObjectFactory.h"

namespace Studio {

/// The kinds of filling that show a picture: tiled from the shape's corner, at its own size from there, and
/// stretched over the whole shape, a little transparent. The values are those of the library's fill mode.
enum class PictureMode { kTiled = 4, kOwnSize = 5, kStretched = 6 };

/// Whether an object is to be filled with a picture.
bool HasPictureFill(const Lumo::CUIObject& object);

/// Fills the object's rectangle, or the ellipse in it, with its picture; the file is read once for all
/// objects, and again when it has changed. A file that cannot be shown leaves a crossed frame.
void DrawPictureFill(Gdiplus::Graphics& g, const Lumo::CUIObject& object);

/// A shape class of the library. The library's own picture filling reads the file at every paint and places
/// the picture by the page's corner; this one places it by the shape's.
template <class Base>
class PictureShape : public Base {
public:
    using Base::Base;

    void Draw(Gdiplus::Graphics* g) override {
        if (!g || !HasPictureFill(*this)) {
            Base::Draw(g);
            return;
        }
        DrawPictureFill(*g, *this);
        const int mode = this->GetFillShapeMode();
        this->SetFillShapeMode(0);
        Base::Draw(g);
        this->SetFillShapeMode(mode);
    }
};

/// A new rectangle that shows a picture file, at `place` (page units); a `place` without a size stands for
/// its middle, and the picture gets its own size then, at most `room`. Null when the file holds no picture.
ObjectPtr MakePicture(const CString& path, const Gdiplus::RectF& place, const Gdiplus::SizeF& room);

}  // namespace Studio
