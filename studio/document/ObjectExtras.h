// What Studio keeps with an object beside the library's record: the value it is bound to, and its behaviours.
//
// A value is named as the device names it: "in3.level", "out2.mute", "xp.3.2.gain", "out1.peq.2.freq". A
// behaviour uses the value named in its own record (`m_strName`); when that is empty, the object's binding.
// A behaviour acts while it is turned on, its value exists and the object's condition holds.
//
// clang-format off
// What the fields of the records mean:
//   all         direction                  0 up, 1 right, 2 down, 3 left
//               m_nCompare                 `Comparison` code; with kAlways the value is not asked
//               m_nLowValue, m_nHighValue  value at the one and at the other end; low may be the larger
//   condition   m_comparisons              kAlways leaves one out; limits are signed 16-bit numbers
//               m_nJoin                    with the next one: 0 and, 1 or; from left to right
//   blink       m_nSpeed                   0 slow (1 s on, 1 s off), 1 normal (1/2 s), 2 fast (1/4 s)
//               m_bBlinkFill, Line, Text   what blinks; none of them: the whole object
//   colour      fill, text: on, off        colours for a switch that is on or off
//               m_dwLineColor              outline while a switch is on
//               m_dwAlarmColor, Normal     fill for a number beyond or within its alarm limit
//   hide        m_nMode                    0 hidden while the comparison holds, 1 shown only while it does
//               m_bHideFill, Line, Text    what is hidden; none of them: the whole object
//   fill        m_nMode, m_strImagePath    0 colours; 1 the filled part shows the image file
//               m_nDirection               towards where the object fills
//   move        m_nMode                    0 in proportion to the value, 1 all the way from the high value
//               m_fDistance                page units
//   size        m_nDirection               the edge that moves
//               m_nMode                    sizes in 0 page units, 1 per cent of the drawn size
//               m_nSmallSize, m_nLargeSize size at the low and the high value; both 0: none to drawn size
//   rotate      m_ptCenter                 page units from the object's middle
//   input       m_nType                    0 number (click and type, or wheel), 1 switch (click)
//               m_nStep                    one turn of the wheel, in tenths of the value's unit
//   button      m_nAction                  `ButtonAction` code
//               m_nValue                   for kSetValue, kRadioValue and kAddValue
//               m_bConfirm, m_strConfirmText  whether and what the user is asked before the press acts
//               press, release command     assignments "name=value; name=value"; %1 to %15 are arguments
//   page        m_nMode                    0 page of the name, 1 page of the number, 2 next, 3 previous
//               m_nPage                    from 1
//               m_strPagePath              not used: pages are those of the open file
//   text        m_nType                    0 number, 1 switch
//               m_strFormat                number: "#", "#.#", "#.##" stands for it; empty: with its unit
//                                          switch: text while on, "|", text while off
//   slider      m_nDirection               towards where the value grows
//               m_nMode                    0 the value jumps to the pointer, 1 it is dragged from where it stands
//   trend       m_nType                    0 points, 1 lines, 2 steps, 3 areas
//               m_nTimeSpan                seconds
//               lines: m_strName, m_nWidth value and width of a line
//               lines: m_nColor            ARGB, -1 for a colour of Studio's choice
// clang-format on
#pragma once

#include "behaviour/UIPreference.h"
#include "core/UIObject.h"

#include <memory>

namespace Studio {

/// The sixteen behaviours in the order of their records. The values are bits of a file.
enum class Behaviour {
    kCondition,
    kFill,
    kMove1,
    kMove2,
    kSize1,
    kSize2,
    kRotate,
    kColor,
    kHide,
    kInput,
    kBlink,
    kButton,
    kPage,
    kText,
    kSlider,
    kTrend,
};
inline constexpr int kBehaviourCount = 16;

/// How a value is compared with the limits of a record.
enum class Comparison {
    kAlways,
    kEqual,
    kNotEqual,
    kBelow,
    kAtMost,
    kAbove,
    kAtLeast,
    kBetween,  // low and high value included
    kOutside,
};
inline constexpr int kComparisonCount = 9;

/// What pressing a button does to its value.
enum class ButtonAction {
    kToggle,      // between 0 and 1
    kMomentary,   // 1 while it is held
    kSetValue,    // to the record's value
    kRadioValue,  // to the record's value, and shown as on while it is
    kAddValue,    // by the record's value
    kNone,        // only the commands
};
inline constexpr int kButtonActionCount = 6;

/// Binding and behaviours of one object. A plain value: copies are complete, names and trend lines included.
class ObjectExtras {
public:
    ObjectExtras() = default;
    ObjectExtras(const ObjectExtras& source);
    ObjectExtras& operator=(const ObjectExtras& source);
    ~ObjectExtras();

    /// Name of the value that the object shows; for the audio controls also the front part of several names
    /// ("out1.peq", "in"). Empty when the object is bound to nothing.
    CString binding;
    /// The records; the trend lines in them belong to this object. Replace lines with `ClearTrendLines`.
    CUIPreference prefs;

    /// Whether a behaviour is in use. A condition that is not in use always holds.
    bool IsOn(Behaviour behaviour) const { return (m_on >> static_cast<int>(behaviour) & 1) != 0; }
    void TurnOn(Behaviour behaviour, bool on);
    /// Whether any behaviour is in use.
    bool HasBehaviours() const { return m_on != 0; }

    /// The record of a behaviour.
    CPrefBase& Record(Behaviour behaviour);
    const CPrefBase& Record(Behaviour behaviour) const;
    /// The name of the value that a behaviour uses: its record's, or else the binding.
    const CString& ValueName(Behaviour behaviour) const;

    /// Removes and destroys all trend lines.
    void ClearTrendLines();

    /// Stores, or loads into new extras. Raises the archive's exceptions.
    void Serialize(CArchive& ar);

private:
    DWORD m_on = 0;
};

/// The extras of an object that Studio made; null for an object that has none, or none yet.
const ObjectExtras* FindExtras(const Lumo::CUIObject& object);

/// The extras of an object, made when there are none; they live as long as the object. Null for an object
/// that Studio's factory did not make. Whoever changes them marks the page modified.
ObjectExtras* EditExtras(Lumo::CUIObject& object);

/// Gives the object a copy of the extras, or takes its extras away (null).
void SetExtras(Lumo::CUIObject& object, const ObjectExtras* extras);

class LiveState;

/// The part of Studio's object classes that carries the extras, and in run mode the live state.
class ExtrasHolder {
public:
    ExtrasHolder();
    ExtrasHolder(const ExtrasHolder& source);
    ExtrasHolder& operator=(const ExtrasHolder& source);
    virtual ~ExtrasHolder();

    std::unique_ptr<ObjectExtras> extras;
    /// The run mode's state of the object, null in edit mode; not owned, never copied.
    LiveState* live = nullptr;
};

}  // namespace Studio
