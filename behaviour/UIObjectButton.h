// Buttons: the base button and its three shapes.
#pragma once

#include "core/UIObject.h"

namespace Lumo {

/// The state of a push, check or radio button. The library keeps and archives the state and decides on every
/// paint which state operation to call; what a state looks like and how the button reacts is the host's part.
class TESSEL_API CUIObjectButton : public CUIObject {
public:
    /// Kind 4, name "Button".
    CUIObjectButton();
    /// A button on `rect` (page units) of the given kind; the shape name is "Button".
    CUIObjectButton(const Gdiplus::RectF& rect, DrawShape kind);
    /// Copies every field.
    CUIObjectButton(const CUIObjectButton& source) = default;
    CUIObjectButton& operator=(const CUIObjectButton& source) = default;

    using CUIObject::HitTest;

    /// The base object's (which renames the button to the kind's display name), then the initial state:
    /// normal, tracking, not checked.
    void Init(DrawShape kind, Gdiplus::RectF& rect) override;
    /// Enlarges `rect` in place by half the line width plus 1 on every side and tells whether it touches the
    /// ellipse inscribed in the position, for rectangular buttons too.
    int HitTest(Gdiplus::RectF& rect) override;
    /// Does nothing; a host reacts to run-mode events here.
    void RelayEvent(CUICanvas* canvas, unsigned int message, unsigned int wParam, long lParam) override;
    /// The base data, then the fourteen fields; the checked field is written twice.
    void Serialize(CArchive& ar) override;
    /// Turns the button state into the flags and calls the state operation of every flag that is set: states
    /// 0 to 5 set one flag and clear the others, any other state leaves the flags of the previous paint.
    void Draw(Gdiplus::Graphics* g) override;
    ~CUIObjectButton() override;

    // Virtual slots 32 to 37, in this order: what the host draws for each state. All are empty here.

    /// State 0.
    virtual void DrawNormal(Gdiplus::Graphics* g);
    /// State 1.
    virtual void DrawDown(Gdiplus::Graphics* g);
    /// State 2.
    virtual void DrawFocus(Gdiplus::Graphics* g);
    /// State 3.
    virtual void DrawOver(Gdiplus::Graphics* g);
    /// State 4.
    virtual void DrawDisabled(Gdiplus::Graphics* g);
    /// State 5; `reserved` is always 0.
    virtual void DrawChecked(Gdiplus::Graphics* g, int reserved);

    /// Kind of button; the host interprets it.
    DWORD GetButtonStyle() const { return m_dwButtonStyle; }
    void SetButtonStyle(DWORD style) { m_dwButtonStyle = style; }
    /// Number of the radio group the button belongs to.
    DWORD GetRadioGroup() const { return m_dwRadioGroup; }
    void SetRadioGroup(DWORD group) { m_dwRadioGroup = group; }
    /// 0 normal, 1 down, 2 focus, 3 over, 4 disabled, 5 checked; it takes effect at the next paint.
    DWORD GetButtonState() const { return m_dwButtonState; }
    void SetButtonState(DWORD state) { m_dwButtonState = state; }
    /// The check mark. A paint in state 5 sets it, a paint in the states 0 to 4 clears it.
    BOOL GetChecked() const { return m_bChecked; }
    void SetChecked(BOOL checked) { m_bChecked = checked; }
    /// Whether the mouse is tracked over the button.
    BOOL GetTracking() const { return m_bTracking; }
    void SetTracking(BOOL tracking) { m_bTracking = tracking; }
    /// Tooltip text; the reference is to the stored string.
    CString& GetTooltip() { return m_strTooltip; }
    void SetTooltip(const CString& tooltip) { m_strTooltip = tooltip; }
    /// Whether the mouse is over the button. A paint sets it in state 3 and clears it in the other states up
    /// to 5.
    BOOL GetOver() const { return m_bOver; }
    void SetOver(BOOL over) { m_bOver = over; }
    /// Whether a border is drawn.
    BOOL GetBorder() const { return m_bBorder; }
    void SetBorder(BOOL border) { m_bBorder = border; }
    /// Drawing variant; the host interprets it.
    DWORD GetDrawStyle() const { return m_dwDrawStyle; }
    void SetDrawStyle(DWORD style) { m_dwDrawStyle = style; }

protected:
    DWORD m_dwButtonStyle = 0;     ///< see `GetButtonStyle`
    DWORD m_dwRadioGroup = 0;      ///< see `GetRadioGroup`
    DWORD m_dwButtonState = 0;     ///< see `GetButtonState`
    BOOL m_bChecked = FALSE;       ///< draw flag of state 5, see `GetChecked`
    BOOL m_bTracking = TRUE;       ///< see `GetTracking`
    CString m_strTooltip;          ///< see `GetTooltip`
    BOOL m_bDrawNormal = TRUE;     ///< draw flag of state 0
    BOOL m_bDrawDown = FALSE;      ///< draw flag of state 1
    BOOL m_bDrawFocus = FALSE;     ///< draw flag of state 2
    BOOL m_bSpare = TRUE;          ///< archived; no other use
    BOOL m_bOver = FALSE;          ///< draw flag of state 3, see `GetOver`
    BOOL m_bDrawDisabled = FALSE;  ///< draw flag of state 4
    BOOL m_bBorder = FALSE;        ///< see `GetBorder`
    DWORD m_dwDrawStyle = 0;       ///< see `GetDrawStyle`

private:
    void ApplyButtonState();
};

/// A rectangular button. It starts with all draw flags set, the over flag included.
class TESSEL_API CUIObjectButtonRect : public CUIObjectButton {
public:
    /// Kind 4, name "ButtonRect".
    CUIObjectButtonRect();
    /// A button on `rect` (page units) of the given kind; the shape name is "ButtonRect".
    CUIObjectButtonRect(const Gdiplus::RectF& rect, DrawShape kind);
    /// Copies every field.
    CUIObjectButtonRect(const CUIObjectButtonRect& source) = default;
    CUIObjectButtonRect& operator=(const CUIObjectButtonRect& source) = default;

    /// The base button's, then all six draw flags, the over flag included, set.
    void Init(DrawShape kind, Gdiplus::RectF& rect) override;
    ~CUIObjectButtonRect() override;

private:
    void SetAllDrawFlags();
};

/// A button with rounded corners.
class TESSEL_API CUIObjectButtonRectRound : public CUIObjectButton {
public:
    /// Kind 4, name "ButtonRectRound".
    CUIObjectButtonRectRound();
    /// A button on `rect` (page units) of the given kind; the shape name is "ButtonRectRound".
    CUIObjectButtonRectRound(const Gdiplus::RectF& rect, DrawShape kind);
    /// Copies every field.
    CUIObjectButtonRectRound(const CUIObjectButtonRectRound& source) = default;
    CUIObjectButtonRectRound& operator=(const CUIObjectButtonRectRound& source) = default;
    ~CUIObjectButtonRectRound() override;
};

/// An elliptic button.
class TESSEL_API CUIObjectButtonEllipse : public CUIObjectButton {
public:
    /// Kind 4, name "ButtonEllipse".
    CUIObjectButtonEllipse();
    /// A button on `rect` (page units) of the given kind; the shape name is "ButtonEllipse".
    CUIObjectButtonEllipse(const Gdiplus::RectF& rect, DrawShape kind);
    /// Copies every field.
    CUIObjectButtonEllipse(const CUIObjectButtonEllipse& source) = default;
    CUIObjectButtonEllipse& operator=(const CUIObjectButtonEllipse& source) = default;
    ~CUIObjectButtonEllipse() override;
};

}  // namespace Lumo
