// Studio's object classes: the library's own, with extras, and in run mode with a live state.
#pragma once

#include "studio/document/ObjectExtras.h"

namespace Studio {

/// What run mode adds to an object's drawing. Made and destroyed by the run mode.
class LiveState {
public:
    virtual ~LiveState() = default;
    /// Whether nothing of the object is drawn now.
    virtual bool IsHidden() const = 0;
    /// Draws below and above the object's own drawing.
    virtual void DrawBelow(Gdiplus::Graphics& g) = 0;
    virtual void DrawAbove(Gdiplus::Graphics& g) = 0;
};

/// An object class of the library, or one derived from it, as Studio makes it.
template <class Base>
class LiveObject : public Base, public ExtrasHolder {
public:
    using Base::Base;

    void Draw(Gdiplus::Graphics* g) override {
        if (!live || !g) {
            Base::Draw(g);
        } else if (!live->IsHidden()) {
            live->DrawBelow(*g);
            Base::Draw(g);
            live->DrawAbove(*g);
        }
    }
};

}  // namespace Studio
