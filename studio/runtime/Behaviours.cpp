#include "studio/runtime/Behaviours.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace Studio {

using Gdiplus::RectF;

namespace {

enum Direction { kUp, kRight, kDown, kLeft };

double Mix(double from, double to, double part) {
    return from + (to - from) * part;
}

// A share of the object's extent in a direction, to the next whole unit.
float WholeUnits(double part, int direction, const RectF& rest) {
    const bool across = direction == kRight || direction == kLeft;
    const double extent = std::max(1.0f, across ? rest.Width : rest.Height);
    return static_cast<float>(std::round(part * extent) / extent);
}

void EvaluateMove(const CPrefMove& move, double value, Look& look) {
    double part = PartOf(value, move.m_nLowValue, move.m_nHighValue);
    if (move.m_nMode == 1)
        part = part >= 1.0 ? 1.0 : 0.0;
    // Whole units: what a screen does not show is no change.
    const auto way = static_cast<float>(std::round(part * move.m_fDistance));
    switch (move.m_nDirection) {
        case kUp:
            look.y -= way;
            break;
        case kRight:
            look.x += way;
            break;
        case kDown:
            look.y += way;
            break;
        case kLeft:
            look.x -= way;
            break;
        default:
            break;
    }
}

void EvaluateSize(const CPrefSize& size, double value, const RectF& rest, Look& look) {
    const bool vertical = size.m_nDirection == kUp || size.m_nDirection == kDown;
    const double drawn = vertical ? rest.Height : rest.Width;
    double low = size.m_nSmallSize, high = size.m_nLargeSize;
    if (low == 0.0 && high == 0.0) {
        high = drawn;
    } else if (size.m_nMode == 1) {
        low *= drawn / 100.0;
        high *= drawn / 100.0;
    }
    const double part = PartOf(value, size.m_nLowValue, size.m_nHighValue);
    const auto now = static_cast<float>(std::round(std::max(0.0, Mix(low, high, part))));
    float& extent = vertical ? look.height : look.width;
    if (size.m_nDirection == kUp)
        look.y += extent - now;
    else if (size.m_nDirection == kLeft)
        look.x += extent - now;
    extent = now;
}

void EvaluateColor(const CPrefColor& color, const Device& device, int value, Look& look) {
    const ValueInfo& info = device.Info(value);
    const double now = device.Get(value);
    if (!info.isSwitch) {
        look.fill = now >= info.alarm ? color.m_dwAlarmColor : color.m_dwNormalColor;
        return;
    }
    const bool on = now != 0.0;
    look.fill = on ? color.m_dwFillOnColor : color.m_dwFillOffColor;
    look.text = on ? color.m_dwTextOnColor : color.m_dwTextOffColor;
    look.line = on ? color.m_dwLineColor : 0;
}

// What a blinking or hiding behaviour takes away now.
void Hide(bool fill, bool line, bool text, Look& look) {
    look.hideAll |= !fill && !line && !text;
    look.hideFill |= fill;
    look.hideLine |= line;
    look.hideText |= text;
}

void EvaluateBlink(const CPrefBlink& blink, double value, double time, Look& look) {
    const bool off = static_cast<long long>(time / BlinkPeriod(blink)) % 2 != 0;
    if (off &&
        Compare(static_cast<Comparison>(blink.m_nCompare), value, blink.m_nLowValue, blink.m_nHighValue))
        Hide(blink.m_bBlinkFill, blink.m_bBlinkLine, blink.m_bBlinkText, look);
}

void EvaluateHide(const CPrefHide& hide, double value, Look& look) {
    const bool holds =
        Compare(static_cast<Comparison>(hide.m_nCompare), value, hide.m_nLowValue, hide.m_nHighValue);
    if (holds == (hide.m_nMode != 1))
        Hide(hide.m_bHideFill, hide.m_bHideLine, hide.m_bHideText, look);
}

void EvaluateButton(const CPrefButton& button, const Device& device, int value, Look& look) {
    if (button.m_strOffText.IsEmpty() && button.m_strOnText.IsEmpty())
        return;
    const auto action = static_cast<ButtonAction>(button.m_nAction);
    const bool compared = action == ButtonAction::kRadioValue || action == ButtonAction::kSetValue;
    const bool on =
        value >= 0 && (compared ? device.Get(value) == button.m_nValue : device.Get(value) != 0.0);
    look.hasCaption = true;
    look.caption = on ? button.m_strOnText : button.m_strOffText;
}

CString WithArguments(const CPrefButton& button, const CString& command) {
    CString text = command;
    // From the last on: %1 is the beginning of %15.
    for (int i = static_cast<int>(std::size(button.m_strArguments)); i >= 1; --i) {
        CString mark;
        mark.Format(L"%%%d", i);
        text.Replace(mark, button.m_strArguments[i - 1]);
    }
    return text;
}

}  // namespace

bool Compare(Comparison comparison, double value, int low, int high) {
    switch (comparison) {
        case Comparison::kEqual:
            return value == low;
        case Comparison::kNotEqual:
            return value != low;
        case Comparison::kBelow:
            return value < low;
        case Comparison::kAtMost:
            return value <= low;
        case Comparison::kAbove:
            return value > low;
        case Comparison::kAtLeast:
            return value >= low;
        case Comparison::kBetween:
            return value >= std::min(low, high) && value <= std::max(low, high);
        case Comparison::kOutside:
            return value < std::min(low, high) || value > std::max(low, high);
        default:
            return true;
    }
}

BoundValues::BoundValues(const ObjectExtras& extras, const Device& device) {
    for (int i = 0; i < kBehaviourCount; ++i) {
        const auto behaviour = static_cast<Behaviour>(i);
        of[i] = extras.IsOn(behaviour) ? device.Find(extras.ValueName(behaviour)) : -1;
    }
}

double PartOf(double value, double low, double high) {
    return low == high ? 0.0 : std::clamp((value - low) / (high - low), 0.0, 1.0);
}

double BlinkPeriod(const CPrefBlink& blink) {
    return blink.m_nSpeed <= 0 ? 1.0 : blink.m_nSpeed == 1 ? 0.5 : 0.25;
}

bool ConditionHolds(const ObjectExtras& extras, const BoundValues& values, const Device& device) {
    if (!extras.IsOn(Behaviour::kCondition))
        return true;
    bool result = true, joinOr = false, any = false;
    for (const CPrefComparison& part : extras.prefs.m_condition.m_comparisons) {
        const auto comparison = static_cast<Comparison>(part.m_nCompare);
        if (comparison == Comparison::kAlways)
            continue;
        const int value = values[Behaviour::kCondition];
        // The archive keeps 16 bits of a limit: they are the bits of a signed number.
        const bool holds =
            value >= 0 && Compare(comparison, device.Get(value), static_cast<std::int16_t>(part.m_nLowValue),
                                  static_cast<std::int16_t>(part.m_nHighValue));
        result = !any ? holds : joinOr ? result || holds : result && holds;
        joinOr = part.m_nJoin == 1;
        any = true;
    }
    return result;
}

Look Evaluate(const ObjectExtras& extras, const BoundValues& values, const Device& device, const RectF& rest,
              double time) {
    Look look;
    look.x = rest.X;
    look.y = rest.Y;
    look.width = rest.Width;
    look.height = rest.Height;
    if (!ConditionHolds(extras, values, device))
        return look;
    const CUIPreference& prefs = extras.prefs;
    const auto with = [&](Behaviour behaviour, auto evaluate) {
        if (const int value = values[behaviour]; value >= 0)
            evaluate(value, device.Get(value));
    };
    with(Behaviour::kSize1, [&](int, double now) { EvaluateSize(prefs.m_size1, now, rest, look); });
    with(Behaviour::kSize2, [&](int, double now) { EvaluateSize(prefs.m_size2, now, rest, look); });
    with(Behaviour::kMove1, [&](int, double now) { EvaluateMove(prefs.m_move1, now, look); });
    with(Behaviour::kMove2, [&](int, double now) { EvaluateMove(prefs.m_move2, now, look); });
    with(Behaviour::kRotate, [&](int, double now) {
        const CPrefRotate& rotate = prefs.m_rotate;
        look.angle = static_cast<float>(Mix(rotate.m_nStartAngle, rotate.m_nEndAngle,
                                            PartOf(now, rotate.m_nLowValue, rotate.m_nHighValue)));
        look.centreX = static_cast<float>(rotate.m_ptCenter.x);
        look.centreY = static_cast<float>(rotate.m_ptCenter.y);
    });
    with(Behaviour::kColor, [&](int value, double) { EvaluateColor(prefs.m_color, device, value, look); });
    with(Behaviour::kFill, [&](int, double now) {
        look.filled = WholeUnits(PartOf(now, prefs.m_fill.m_nLowValue, prefs.m_fill.m_nHighValue),
                                 prefs.m_fill.m_nDirection, rest);
    });
    with(Behaviour::kSlider, [&](int, double now) {
        look.slider = WholeUnits(PartOf(now, prefs.m_slider.m_nLowValue, prefs.m_slider.m_nHighValue),
                                 prefs.m_slider.m_nDirection, rest);
    });
    with(Behaviour::kText, [&](int value, double) {
        look.hasCaption = true;
        look.caption = FormatValue(prefs.m_text, device, value);
    });
    if (extras.IsOn(Behaviour::kButton))
        EvaluateButton(prefs.m_button, device, values[Behaviour::kButton], look);
    with(Behaviour::kHide, [&](int, double now) { EvaluateHide(prefs.m_hide, now, look); });
    if (extras.IsOn(Behaviour::kBlink)) {
        const int value = values[Behaviour::kBlink];
        // Blinking for no reason needs no value.
        if (value >= 0 || prefs.m_blink.m_nCompare == static_cast<int>(Comparison::kAlways))
            EvaluateBlink(prefs.m_blink, value >= 0 ? device.Get(value) : 0.0, time, look);
    }
    return look;
}

CString FormatValue(const CPrefText& text, const Device& device, int value) {
    const CString& format = text.m_strFormat;
    const double now = device.Get(value);
    if (text.m_nType == 1) {
        const int bar = format.Find(L'|');
        if (bar >= 0)
            return now != 0.0 ? format.Left(bar) : format.Mid(bar + 1);
        return device.Describe(value);
    }
    const int mark = format.Find(L'#');
    if (mark < 0)
        return format.IsEmpty() ? device.Describe(value) : format;
    int end = mark + 1;
    int decimals = 0;
    constexpr int kMostDecimals = 6;
    if (format.Mid(end, 2) == L".#") {
        while (end + 1 + decimals < format.GetLength() && format[end + 1 + decimals] == L'#')
            ++decimals;
        end += 1 + decimals;
    }
    CString number;
    number.Format(L"%.*f", std::min(decimals, kMostDecimals), now);
    return format.Left(mark) + number + format.Mid(end);
}

void RunCommand(const CPrefButton& button, const CString& command, Device& device) {
    const CString text = WithArguments(button, command);
    for (int start = 0; start < text.GetLength();) {
        int end = text.Find(L';', start);
        if (end < 0)
            end = text.GetLength();
        const CString part = text.Mid(start, end - start);
        const int equals = part.Find(L'=');
        if (equals > 0) {
            CString name = part.Left(equals);
            name.Trim();
            const CString number = part.Mid(equals + 1);
            WCHAR* rest = nullptr;
            const double value = std::wcstod(number, &rest);
            if (rest != number.GetString())
                device.Set(name, value);
        }
        start = end + 1;
    }
}

}  // namespace Studio
