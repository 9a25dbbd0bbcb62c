// Behaviours that change how an object looks: blinking, colours, hiding, partial filling. See PrefBase.h for
// what is common to all records.
#pragma once

#include "behaviour/PrefBase.h"

/// Blinking.
class AFX_EXT_CLASS CPrefBlink : public CPrefBase {
public:
    CPrefBlink() = default;
    CPrefBlink(CPrefBlink& source) : CPrefBase() { *this = source; }
    CPrefBlink& operator=(const CPrefBlink& source);
    ~CPrefBlink() override = default;
    void Serialize(CArchive& ar) override;

    /// Speed code.
    int m_nSpeed = 1;
    /// What blinks.
    int m_bBlinkFill = 0;
    int m_bBlinkLine = 0;
    int m_bBlinkText = 0;
    /// Comparison code and the limits of the bound value between which the object blinks.
    int m_nCompare = 0;
    int m_nLowValue = 0;
    int m_nHighValue = 0;
};

/// Change of colours. All fields are ARGB.
class AFX_EXT_CLASS CPrefColor : public CPrefBase {
public:
    CPrefColor() = default;
    CPrefColor(CPrefColor& source) : CPrefBase() { *this = source; }
    CPrefColor& operator=(const CPrefColor& source);
    ~CPrefColor() override = default;
    void Serialize(CArchive& ar) override;

    /// Interior while the bound value is on and off.
    DWORD m_dwFillOnColor = 0xFFFF0000;
    DWORD m_dwFillOffColor = 0xFF800000;
    /// Text while the bound value is on and off.
    DWORD m_dwTextOnColor = 0xFFFFFFFF;
    DWORD m_dwTextOffColor = 0xFF000080;
    /// Outline.
    DWORD m_dwLineColor = 0xFF0000FF;
    /// A value beyond its limits, and a value within them.
    DWORD m_dwAlarmColor = 0xFFFF0000;
    DWORD m_dwNormalColor = 0xFF00FF00;
};

/// Hiding.
class AFX_EXT_CLASS CPrefHide : public CPrefBase {
public:
    CPrefHide() = default;
    CPrefHide(CPrefHide& source) : CPrefBase() { *this = source; }
    CPrefHide& operator=(const CPrefHide& source);
    ~CPrefHide() override = default;
    void Serialize(CArchive& ar) override;

    /// Hiding mode.
    int m_nMode = 0;
    /// What is hidden.
    int m_bHideFill = 0;
    int m_bHideLine = 0;
    int m_bHideText = 0;
    /// Comparison code and the limits of the bound value between which the object is hidden.
    int m_nCompare = 0;
    int m_nLowValue = 0;
    int m_nHighValue = 0;
};

/// Filling of a part of the object in proportion to the bound value.
class AFX_EXT_CLASS CPrefFill : public CPrefBase {
public:
    CPrefFill() = default;
    CPrefFill(CPrefFill& source) : CPrefBase() { *this = source; }
    CPrefFill& operator=(const CPrefFill& source);
    ~CPrefFill() override = default;
    void Serialize(CArchive& ar) override;

    /// Filling mode.
    int m_nMode = 0;
    /// Image file of the filled part.
    CString m_strImagePath;
    /// Side from which the object fills.
    int m_nDirection = 0;
    /// Bound value of the empty and of the full object.
    int m_nLowValue = 0;
    int m_nHighValue = 100;
    /// ARGB colours of the empty part, the filled part and the border between them.
    DWORD m_dwEmptyColor = 0xFFFFFFFF;
    DWORD m_dwFilledColor = 0xFF00FF00;
    DWORD m_dwBorderColor = 0xFF0000FF;
};
