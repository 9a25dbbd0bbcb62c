// Behaviours that answer the user: value input, button, page switch, text display, slider. See PrefBase.h for
// what is common to all records.
#pragma once

#include "behaviour/PrefBase.h"

/// Input of a value.
class TESSEL_API CPrefInput : public CPrefBase {
public:
    CPrefInput() = default;
    /// Copies the values, not the name.
    CPrefInput(CPrefInput& source) : CPrefBase() { *this = source; }
    CPrefInput& operator=(const CPrefInput& source);
    ~CPrefInput() override = default;
    void Serialize(CArchive& ar) override;

    int m_nType = 0;  ///< kind of value
    int m_nStep = 1;  ///< step of the value
};

/// Action of a button.
class TESSEL_API CPrefButton : public CPrefBase {
public:
    CPrefButton() = default;
    /// Copies the values, not the name.
    CPrefButton(CPrefButton& source) : CPrefBase() { *this = source; }
    CPrefButton& operator=(const CPrefButton& source);
    ~CPrefButton() override = default;
    void Serialize(CArchive& ar) override;

    CString m_strOffText;         ///< caption while the button is off
    CString m_strOnText;          ///< caption while the button is on
    int m_nAction = 0;            ///< action code
    int m_nValue = 0;             ///< value of the action
    int m_bConfirm = 0;           ///< 1 when the user is asked first
    CString m_strConfirmText;     ///< what the user is asked
    CString m_strPressCommand;    ///< command for pressing
    CString m_strReleaseCommand;  ///< command for releasing
    CString m_strArguments[15];   ///< arguments of the commands
};

/// Switch to another page.
class TESSEL_API CPrefPage : public CPrefBase {
public:
    CPrefPage() = default;
    /// Copies the values, not the name.
    CPrefPage(CPrefPage& source) : CPrefBase() { *this = source; }
    CPrefPage& operator=(const CPrefPage& source);
    ~CPrefPage() override = default;
    void Serialize(CArchive& ar) override;

    int m_nMode = 0;        ///< way of switching
    int m_nPage = 0;        ///< number of the page
    CString m_strPageName;  ///< name of the page
    CString m_strPagePath;  ///< file of the page
};

/// Display of the bound value as text.
class TESSEL_API CPrefText : public CPrefBase {
public:
    CPrefText() = default;
    /// Copies the values, not the name.
    CPrefText(CPrefText& source) : CPrefBase() { *this = source; }
    CPrefText& operator=(const CPrefText& source);
    ~CPrefText() override = default;
    void Serialize(CArchive& ar) override;

    int m_nType = 0;      ///< kind of value
    CString m_strFormat;  ///< format of the text
};

/// Slider.
class TESSEL_API CPrefSlider : public CPrefBase {
public:
    CPrefSlider() = default;
    /// Copies the values, not the name.
    CPrefSlider(CPrefSlider& source) : CPrefBase() { *this = source; }
    CPrefSlider& operator=(const CPrefSlider& source);
    ~CPrefSlider() override = default;
    void Serialize(CArchive& ar) override;

    int m_nDirection = 0;    ///< direction code
    int m_nMode = 0;         ///< way of sliding
    int m_nLowValue = 0;     ///< bound value at the lower end
    int m_nHighValue = 100;  ///< bound value at the upper end
};
