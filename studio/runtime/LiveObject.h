// Studio's object classes: the library's own, with extras, and in run mode with a live state.
#pragma once

#include "studio/document/ObjectExtras.h"

#include <functional>

namespace Studio {

/// What run mode adds to an object. Made and destroyed by the run mode.
class LiveState {
public:
    virtual ~LiveState() = default;
    /// Draws the object; `own` draws it as it would draw itself.
    virtual void Draw(Gdiplus::Graphics& g, const std::function<void()>& own) = 0;
    /// A mouse message of run mode, as `CUIObject::RelayEvent` gets it. True when a behaviour took it and the
    /// object itself must not.
    virtual bool Relay(Lumo::CUICanvas* canvas, UINT message, UINT wParam, LPARAM lParam) = 0;
};

/// An object class of the library, or one derived from it, as Studio makes it.
template <class Base>
class LiveObject : public Base, public ExtrasHolder {
public:
    using Base::Base;

    void Draw(Gdiplus::Graphics* g) override {
        if (live && g)
            live->Draw(*g, [this, g] { Base::Draw(g); });
        else
            Base::Draw(g);
    }

    void RelayEvent(Lumo::CUICanvas* canvas, unsigned int message, unsigned int wParam,
                    long lParam) override {
        if (!live || !live->Relay(canvas, message, wParam, lParam))
            Base::RelayEvent(canvas, message, wParam, lParam);
    }
};

}  // namespace Studio
