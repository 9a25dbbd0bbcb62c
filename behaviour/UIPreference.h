// The set of behaviour records that a host keeps for an object.
#pragma once

#include "behaviour/PrefAction.h"
#include "behaviour/PrefBase.h"
#include "behaviour/PrefLook.h"
#include "behaviour/PrefMotion.h"
#include "behaviour/PrefTrend.h"

/// All behaviours of one object: one record of each kind, two for moving and resizing. A behaviour that is
/// not in use is a record on which the host does not act. No object of the library holds or archives a set; a
/// host that keeps one per object archives it itself.
class TESSEL_API CUIPreference {
public:
    /// Sixteen records with their defaults and empty names.
    CUIPreference();
    /// Copies the values; all names of the copy are empty.
    CUIPreference(const CUIPreference& source);
    /// Copies the values of all records and keeps the names of this set.
    CUIPreference& operator=(const CUIPreference& source);
    virtual ~CUIPreference();
    /// Stores or loads the sixteen records in order of declaration, and nothing of its own.
    virtual void Serialize(CArchive& ar);

    CPrefCondition m_condition;  ///< when the other behaviours act
    CPrefFill m_fill;            ///< partial filling
    CPrefMove m_move1;           ///< first movement
    CPrefMove m_move2;           ///< second movement
    CPrefSize m_size1;           ///< first resizing
    CPrefSize m_size2;           ///< second resizing
    CPrefRotate m_rotate;        ///< rotation
    CPrefColor m_color;          ///< change of colours
    CPrefHide m_hide;            ///< hiding
    CPrefInput m_input;          ///< input of a value
    CPrefBlink m_blink;          ///< blinking
    CPrefButton m_button;        ///< action of a button
    CPrefPage m_page;            ///< switch to another page
    CPrefText m_text;            ///< display as text
    CPrefSlider m_slider;        ///< slider
    CPrefTrend m_trend;          ///< trend graph
};
