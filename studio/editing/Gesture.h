// One operation of the mouse on a page, from the first press to its end.
#pragma once

#include "core/Platform.h"

namespace Studio {

/// A tool starts a gesture, the canvas feeds it until it says that it is over. Points are in page units,
/// flags are the MK_ key-state flags. A gesture keeps where everything was, so that `Cancel` leaves no trace.
class Gesture {
public:
    Gesture() = default;
    virtual ~Gesture() = default;
    Gesture(const Gesture&) = delete;
    Gesture& operator=(const Gesture&) = delete;

    /// The pointer moved.
    virtual void Move(CPoint at, UINT flags) = 0;
    /// The button went up. True when the gesture is over.
    virtual bool Release(CPoint at, UINT flags) = 0;
    /// The button went down again. True when the gesture is over.
    virtual bool Press(CPoint, UINT) { return true; }
    /// The second press of a double click. True when the gesture is over.
    virtual bool DoubleClick(CPoint at, UINT flags) { return Press(at, flags); }
    /// Ends the gesture with what has been done so far: a command or the right button came in between.
    virtual void Finish() { Cancel(); }
    /// Undoes what has been done so far.
    virtual void Cancel() = 0;
    /// Whether the gesture goes on between presses and without the mouse captured.
    virtual bool SpansPresses() const { return false; }
};

}  // namespace Studio
