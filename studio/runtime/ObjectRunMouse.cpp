// How an object's behaviours answer the mouse.
#include "studio/runtime/ObjectRun.h"

#include "canvas/UICanvas.h"
#include "core/Geometry.h"
#include "studio/controls/Control.h"
#include "studio/controls/MessagePoint.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace Studio {

using Gdiplus::RectF;

namespace {

constexpr Behaviour kMouseBehaviours[] = {Behaviour::kButton, Behaviour::kPage, Behaviour::kInput,
                                          Behaviour::kSlider};

enum Direction { kUp, kRight, kDown, kLeft };

// The point of the page that a message means, the object being at `bounds`.
CPoint OnPage(CPoint message, const RectF& bounds) {
    const CPoint corner(Lumo::RoundToInt(bounds.X), Lumo::RoundToInt(bounds.Y));
    return corner + Distance(message, corner);
}

}  // namespace

bool ObjectRun::TakesMouse() const {
    return std::any_of(std::begin(kMouseBehaviours), std::end(kMouseBehaviours),
                       [this](Behaviour behaviour) { return IsUsed(behaviour); });
}

bool ObjectRun::Relay(Lumo::CUICanvas* canvas, UINT message, UINT wParam, LPARAM lParam) {
    if (!TakesMouse() || (!m_pressed && !ConditionHolds(m_extras, m_values, m_device)))
        return false;
    if (message == WM_MOUSELEAVE) {
        if (std::exchange(m_pressed, false)) {
            m_started = false;
            ReleaseButton();
        }
        return true;
    }
    // A second press comes as a double click.
    Notify(*this, canvas, message == WM_LBUTTONDBLCLK ? WM_LBUTTONDOWN : message, wParam, lParam);
    return true;
}

void ObjectRun::OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonDown(window, message, flags, packed);
    m_pressed = true;
    m_started = false;
    m_partAtPress = std::max(0.0f, m_look.slider);
    if (IsUsed(Behaviour::kButton))
        PressButton();
    if (m_extras.prefs.m_slider.m_nMode == 0)
        Slide(m_ptPress);
}

void ObjectRun::OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonUp(window, message, flags, packed);
    if (!std::exchange(m_pressed, false))
        return;
    m_started = false;
    if (IsUsed(Behaviour::kButton))
        ReleaseButton();
    RectF bounds = m_object.GetPosition();
    bounds.Offset(Origin());
    const CPoint at = OnPage(CPoint(LOWORD(packed), HIWORD(packed)), bounds);
    if (!Answers(Lumo::PointGdiFromAtl(at)))
        return;
    if (IsUsed(Behaviour::kInput) && !IsUsed(Behaviour::kSlider))
        Input();
    // The page comes last: this object is hidden afterwards.
    if (IsUsed(Behaviour::kPage))
        SwitchPage();
}

void ObjectRun::OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    if (m_pressed)
        CUINotifyHandler::OnMouseMove(window, message, flags, packed);
}

void ObjectRun::OnDrag(CWnd*, UINT, const CPoint& point) {
    Slide(point);
}

double ObjectRun::SliderPart(CPoint message) const {
    RectF bounds = Lumo::Normalised(m_object.GetPosition());
    bounds.Offset(Origin());
    const CPoint at = OnPage(message, bounds);
    const double across = (at.x - bounds.X) / std::max(1.0f, bounds.Width);
    const double down = (at.y - bounds.Y) / std::max(1.0f, bounds.Height);
    switch (m_extras.prefs.m_slider.m_nDirection) {
        case kRight:
            return across;
        case kDown:
            return down;
        case kLeft:
            return 1.0 - across;
        default:
            return 1.0 - down;
    }
}

void ObjectRun::Slide(CPoint at) {
    const int value = m_values[Behaviour::kSlider];
    if (value < 0)
        return;
    const CPrefSlider& slider = m_extras.prefs.m_slider;
    double part = SliderPart(at);
    if (slider.m_nMode == 1)
        part = m_partAtPress + part - SliderPart(m_ptPress);
    part = std::clamp(part, 0.0, 1.0);
    const double to = slider.m_nLowValue + (double{1} * slider.m_nHighValue - slider.m_nLowValue) * part;
    m_device.Set(value, std::round(to * 10.0) / 10.0);
}

void ObjectRun::PressButton() {
    const CPrefButton& button = m_extras.prefs.m_button;
    if (button.m_bConfirm) {
        // The question takes the mouse away: the release never comes.
        const bool yes = m_host.Confirm(button.m_strConfirmText);
        m_pressed = false;
        if (!yes)
            return;
    }
    const int value = m_values[Behaviour::kButton];
    if (value >= 0) {
        switch (static_cast<ButtonAction>(button.m_nAction)) {
            case ButtonAction::kToggle:
                m_device.Set(value, m_device.Get(value) != 0.0 ? 0.0 : 1.0);
                break;
            case ButtonAction::kMomentary:
                m_device.Set(value, 1.0);
                break;
            case ButtonAction::kSetValue:
            case ButtonAction::kRadioValue:
                m_device.Set(value, button.m_nValue);
                break;
            case ButtonAction::kAddValue:
                m_device.Set(value, m_device.Get(value) + button.m_nValue);
                break;
            default:
                break;
        }
    }
    RunCommand(button, button.m_strPressCommand, m_device);
    if (button.m_bConfirm)
        ReleaseButton();
}

void ObjectRun::ReleaseButton() {
    if (!IsUsed(Behaviour::kButton))
        return;
    const CPrefButton& button = m_extras.prefs.m_button;
    const int value = m_values[Behaviour::kButton];
    if (value >= 0 && static_cast<ButtonAction>(button.m_nAction) == ButtonAction::kMomentary)
        m_device.Set(value, 0.0);
    RunCommand(button, button.m_strReleaseCommand, m_device);
}

void ObjectRun::SwitchPage() {
    const CPrefPage& page = m_extras.prefs.m_page;
    switch (page.m_nMode) {
        case 1:
            m_host.GoToPage(page.m_nPage);
            break;
        case 2:
            m_host.StepPage(1);
            break;
        case 3:
            m_host.StepPage(-1);
            break;
        default:
            m_host.GoToPage(page.m_strPageName);
            break;
    }
}

void ObjectRun::Input() {
    const int value = m_values[Behaviour::kInput];
    if (value < 0)
        return;
    if (m_extras.prefs.m_input.m_nType == 1) {
        m_device.Set(value, m_device.Get(value) != 0.0 ? 0.0 : 1.0);
        return;
    }
    RectF bounds = Lumo::Normalised(m_object.GetPosition());
    bounds.Offset(Origin());
    m_host.EnterNumber(value, bounds);
}

void ObjectRun::OnMouseWheel(CWnd*, UINT, UINT flags, LPARAM) {
    const int value = m_values[Behaviour::kInput];
    const int turn = static_cast<short>(HIWORD(flags)) / WHEEL_DELTA;
    if (value >= 0 && m_extras.prefs.m_input.m_nType == 0)
        m_device.Set(value, m_device.Get(value) + turn * m_extras.prefs.m_input.m_nStep / 10.0);
}

}  // namespace Studio
