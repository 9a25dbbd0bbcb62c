// Behaviours that change how an object looks: blinking, colours, hiding, partial filling. See PrefBase.h for
// what is common to all records.
#pragma once

#include "behaviour/PrefBase.h"

/// Blinking.
class TESSEL_API CPrefBlink : public CPrefBase {
public:
    CPrefBlink() = default;
    /// Copies the values, not the name.
    CPrefBlink(CPrefBlink& source) : CPrefBase() { *this = source; }
    CPrefBlink& operator=(const CPrefBlink& source);
    ~CPrefBlink() override = default;
    void Serialize(CArchive& ar) override;

    int m_nSpeed = 1;      ///< speed code
    int m_bBlinkFill = 0;  ///< 1 when the interior blinks
    int m_bBlinkLine = 0;  ///< 1 when the outline blinks
    int m_bBlinkText = 0;  ///< 1 when the text blinks
    int m_nCompare = 0;    ///< comparison code
    int m_nLowValue = 0;   ///< bound value from which the object blinks
    int m_nHighValue = 0;  ///< bound value up to which the object blinks
};

/// Change of colours. All fields are ARGB.
class TESSEL_API CPrefColor : public CPrefBase {
public:
    CPrefColor() = default;
    /// Copies the values, not the name.
    CPrefColor(CPrefColor& source) : CPrefBase() { *this = source; }
    CPrefColor& operator=(const CPrefColor& source);
    ~CPrefColor() override = default;
    void Serialize(CArchive& ar) override;

    DWORD m_dwFillOnColor = 0xFFFF0000;   ///< interior while the bound value is on
    DWORD m_dwFillOffColor = 0xFF800000;  ///< interior while the bound value is off
    DWORD m_dwTextOnColor = 0xFFFFFFFF;   ///< text while the bound value is on
    DWORD m_dwTextOffColor = 0xFF000080;  ///< text while the bound value is off
    DWORD m_dwLineColor = 0xFF0000FF;     ///< outline
    DWORD m_dwAlarmColor = 0xFFFF0000;    ///< a value beyond its limits
    DWORD m_dwNormalColor = 0xFF00FF00;   ///< a value within its limits
};

/// Hiding.
class TESSEL_API CPrefHide : public CPrefBase {
public:
    CPrefHide() = default;
    /// Copies the values, not the name.
    CPrefHide(CPrefHide& source) : CPrefBase() { *this = source; }
    CPrefHide& operator=(const CPrefHide& source);
    ~CPrefHide() override = default;
    void Serialize(CArchive& ar) override;

    int m_nMode = 0;       ///< hiding mode
    int m_bHideFill = 0;   ///< 1 when the interior is hidden
    int m_bHideLine = 0;   ///< 1 when the outline is hidden
    int m_bHideText = 0;   ///< 1 when the text is hidden
    int m_nCompare = 0;    ///< comparison code
    int m_nLowValue = 0;   ///< bound value from which the object is hidden
    int m_nHighValue = 0;  ///< bound value up to which the object is hidden
};

/// Filling of a part of the object in proportion to the bound value.
class TESSEL_API CPrefFill : public CPrefBase {
public:
    CPrefFill() = default;
    /// Copies the values, not the name.
    CPrefFill(CPrefFill& source) : CPrefBase() { *this = source; }
    CPrefFill& operator=(const CPrefFill& source);
    ~CPrefFill() override = default;
    void Serialize(CArchive& ar) override;

    int m_nMode = 0;                     ///< filling mode
    CString m_strImagePath;              ///< image file of the filled part
    int m_nDirection = 0;                ///< side from which the object fills
    int m_nLowValue = 0;                 ///< bound value of the empty object
    int m_nHighValue = 100;              ///< bound value of the full object
    DWORD m_dwEmptyColor = 0xFFFFFFFF;   ///< empty part, ARGB
    DWORD m_dwFilledColor = 0xFF00FF00;  ///< filled part, ARGB
    DWORD m_dwBorderColor = 0xFF0000FF;  ///< border between the two, ARGB
};
