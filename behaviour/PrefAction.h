// Behaviours that answer the user: value input, button, page switch, text display, slider. See PrefBase.h for
// what is common to all records.
#pragma once

#include "behaviour/PrefBase.h"

/// Input of a value.
class AFX_EXT_CLASS CPrefInput : public CPrefBase {
public:
    CPrefInput() = default;
    CPrefInput(CPrefInput& source) : CPrefBase() { *this = source; }
    CPrefInput& operator=(const CPrefInput& source);
    ~CPrefInput() override = default;
    void Serialize(CArchive& ar) override;

    /// Kind of value.
    int m_nType = 0;
    /// Step of the value.
    int m_nStep = 1;
};

/// Action of a button.
class AFX_EXT_CLASS CPrefButton : public CPrefBase {
public:
    CPrefButton() = default;
    CPrefButton(CPrefButton& source) : CPrefBase() { *this = source; }
    CPrefButton& operator=(const CPrefButton& source);
    ~CPrefButton() override = default;
    void Serialize(CArchive& ar) override;

    /// Captions of the button while it is off and on.
    CString m_strOffText;
    CString m_strOnText;
    /// Action code, its value, and whether the user is asked first.
    int m_nAction = 0;
    int m_nValue = 0;
    int m_bConfirm = 0;
    /// What the user is asked, and the commands for pressing and releasing.
    CString m_strConfirmText;
    CString m_strPressCommand;
    CString m_strReleaseCommand;
    /// Arguments of the commands.
    CString m_strArguments[15];
};

/// Switch to another page.
class AFX_EXT_CLASS CPrefPage : public CPrefBase {
public:
    CPrefPage() = default;
    CPrefPage(CPrefPage& source) : CPrefBase() { *this = source; }
    CPrefPage& operator=(const CPrefPage& source);
    ~CPrefPage() override = default;
    void Serialize(CArchive& ar) override;

    /// Way of switching.
    int m_nMode = 0;
    /// Number of the page.
    int m_nPage = 0;
    /// Name of the page and its file.
    CString m_strPageName;
    CString m_strPagePath;
};

/// Display of the bound value as text.
class AFX_EXT_CLASS CPrefText : public CPrefBase {
public:
    CPrefText() = default;
    CPrefText(CPrefText& source) : CPrefBase() { *this = source; }
    CPrefText& operator=(const CPrefText& source);
    ~CPrefText() override = default;
    void Serialize(CArchive& ar) override;

    /// Kind of value.
    int m_nType = 0;
    /// Format of the text.
    CString m_strFormat;
};

/// Slider.
class AFX_EXT_CLASS CPrefSlider : public CPrefBase {
public:
    CPrefSlider() = default;
    CPrefSlider(CPrefSlider& source) : CPrefBase() { *this = source; }
    CPrefSlider& operator=(const CPrefSlider& source);
    ~CPrefSlider() override = default;
    void Serialize(CArchive& ar) override;

    /// Direction code.
    int m_nDirection = 0;
    /// Way of sliding.
    int m_nMode = 0;
    /// Bound value at the two ends.
    int m_nLowValue = 0;
    int m_nHighValue = 100;
};
