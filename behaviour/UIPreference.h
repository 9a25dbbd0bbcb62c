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
class AFX_EXT_CLASS CUIPreference {
public:
    CUIPreference();
    /// Copies the values; all names of the copy are empty.
    CUIPreference(const CUIPreference& source);
    /// Copies the values of all records and keeps the names of this set.
    CUIPreference& operator=(const CUIPreference& source);
    virtual ~CUIPreference();
    /// Stores or loads the sixteen records in order of declaration, and nothing of its own.
    virtual void Serialize(CArchive& ar);

    CPrefCondition m_condition;
    CPrefFill m_fill;
    CPrefMove m_move1;
    CPrefMove m_move2;
    CPrefSize m_size1;
    CPrefSize m_size2;
    CPrefRotate m_rotate;
    CPrefColor m_color;
    CPrefHide m_hide;
    CPrefInput m_input;
    CPrefBlink m_blink;
    CPrefButton m_button;
    CPrefPage m_page;
    CPrefText m_text;
    CPrefSlider m_slider;
    CPrefTrend m_trend;
};
