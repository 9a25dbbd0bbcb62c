// What the behaviours of an object make of the device's values: the rules, without windows and drawing.
//
// The meaning of every field stands in studio/document/ObjectExtras.h.
#pragma once

#include "studio/device/Device.h"
#include "studio/document/ObjectExtras.h"

namespace Studio {

/// Whether a value stands to the limits as the comparison says.
bool Compare(Comparison comparison, double value, int low, int high);

/// Numbers of the values that an object's behaviours use, looked up once.
struct BoundValues {
    BoundValues(const ObjectExtras& extras, const Device& device);
    /// The value of a behaviour; -1 when it is not in use or its value does not exist.
    int of[kBehaviourCount];
    int operator[](Behaviour behaviour) const { return of[static_cast<int>(behaviour)]; }
};

/// How an object is now. A field that no behaviour touches is as the object was drawn.
struct Look {
    float x = 0.0f, y = 0.0f, width = 0.0f, height = 0.0f;
    /// Degrees clockwise about a point measured from the middle.
    float angle = 0.0f;
    float centreX = 0.0f, centreY = 0.0f;
    bool hideAll = false, hideFill = false, hideLine = false, hideText = false;
    /// ARGB colours, 0 for that of the drawn object.
    DWORD fill = 0, line = 0, text = 0;
    /// Share of the object that is filled, and where the slider stands: 0 to 1, -1 for none.
    float filled = -1.0f;
    float slider = -1.0f;
    bool hasCaption = false;
    CString caption;

    bool operator==(const Look&) const = default;
};

/// Whether the object's condition holds; one that is not in use, or compares nothing, does.
bool ConditionHolds(const ObjectExtras& extras, const BoundValues& values, const Device& device);

/// The look of an object that was drawn at `rest`, `time` seconds after the start of run mode.
Look Evaluate(const ObjectExtras& extras, const BoundValues& values, const Device& device,
              const Gdiplus::RectF& rest, double time);

/// Seconds that a blinking object is on, and off.
double BlinkPeriod(const CPrefBlink& blink);

/// Where `value` lies between the low (0) and the high value (1), kept within; 0 when both are equal.
double PartOf(double value, double low, double high);

/// A number in a format with "#", "#.#", ...; see the table of fields. An empty format gives the device's own
/// description.
CString FormatValue(const CPrefText& text, const Device& device, int value);

/// The assignments of a button's command ("in1.mute=1; out1.gain=-10"), with its arguments put in, carried
/// out in order. What is not understood is left out.
void RunCommand(const CPrefButton& button, const CString& command, Device& device);

}  // namespace Studio
