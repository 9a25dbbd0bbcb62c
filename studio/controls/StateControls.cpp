#include "studio/controls/StateControls.h"

#include "studio/controls/MessagePoint.h"
#include "studio/device/Names.h"

#include <algorithm>
#include <cmath>

namespace Studio {

int BandButton::Number() {
    const CString binding = Binding();
    return std::clamp(::_wtoi(binding.Mid(binding.ReverseFind(L'.') + 1)), 1, Device::kPeqBands);
}

void BandButton::Watch(std::vector<int>& values) {
    WatchAll(values, Binding() + L".");
}

void BandButton::Render(Picture& picture) {
    const int number = Number();
    const Band band = Source().PeqBand(Channel(), number);
    const DWORD ink = Ink::kBands[number - 1];
    RenderFace(picture, band.on ? ink : 0);
    const auto width = static_cast<float>(picture.Width());
    const auto height = static_cast<float>(picture.Height());
    const float disc = std::min(9.0f, height * 0.3f);
    picture.Disc(disc + 8, height / 2, disc, band.on ? ink : Ink::kGridStrong);
    picture.Text(Numbered(L"%d", number), 8, 0, 8 + 2 * disc, height, 11.0f, Ink::kWell,
                 Gdiplus::StringAlignmentCenter, true);
    const float left = 2 * disc + 16;
    if (width - left < 30)
        return;
    const bool units = width - left >= 58;
    const CString frequency = FrequencyLabel(band.frequency) + (units ? L" Hz" : L"");
    const CString gain = GainLabel(band.gain) + (units ? L" dB" : L"");
    const DWORD text = band.on ? Ink::kText : Ink::kQuiet;
    if (height >= 32) {
        picture.Text(frequency, left, height * 0.1f, width - 6, height * 0.52f, 11.0f, text,
                     Gdiplus::StringAlignmentNear, true);
        picture.Text(gain, left, height * 0.48f, width - 6, height * 0.9f, 10.0f, Ink::kQuiet,
                     Gdiplus::StringAlignmentNear);
    } else {
        picture.Text(frequency, left, 0, width - 6, height, 11.0f, text, Gdiplus::StringAlignmentNear);
    }
}

void BandButton::Click() {
    if (Device* device = Running())
        device->Set(Binding() + L".on", Value(L".on") != 0.0 ? 0.0 : 1.0);
}

Plot CrossoverState::Field() {
    const CSize size = Size();
    return Plot::Layout(size.cx, size.cy, -36.0, 12.0);
}

std::vector<Lumo::Filter::Section> CrossoverState::Filters(Part way) {
    const auto type = static_cast<CrossoverType>(std::lround(Value(L".type")));
    const double low = Value(L".lowfreq", 250.0), high = Value(L".highfreq", 3000.0);
    const double slope = Value(L".slope");
    std::vector<Lumo::Filter::Section> filters;
    const auto add = [&](bool highPass, double frequency) {
        const auto sections = MakeSections({type, highPass, frequency, slope});
        filters.insert(filters.end(), sections.begin(), sections.end());
    };
    if (way != kHigh)
        add(false, way == kLow ? low : high);
    if (way != kLow)
        add(true, way == kHigh ? high : low);
    return filters;
}

CString CrossoverState::EdgeNote() {
    constexpr LPCWSTR kTypes[kCrossoverTypeCount] = {L"BW", L"BES", L"LR"};
    CString note;
    note.Format(L"%s %d dB/oct", kTypes[std::lround(Value(L".type"))], static_cast<int>(Value(L".slope")));
    return note;
}

CrossoverState::Part CrossoverState::PartAt(CPoint point) {
    constexpr float kReach = 7.0f;
    const Plot field = Field();
    const auto x = static_cast<float>(point.x);
    if (point.y < field.top || point.y > field.bottom || x < field.left || x > field.right)
        return kNone;
    const float low = field.X(Value(L".lowfreq")), high = field.X(Value(L".highfreq"));
    if (std::fabs(x - high) <= kReach)
        return kHighEdge;
    if (std::fabs(x - low) <= kReach)
        return kLowEdge;
    return x < low ? kLow : x < high ? kMid : kHigh;
}

void CrossoverState::Render(Picture& picture) {
    const Plot field = Field();
    const bool on = Value(L".on", 1.0) != 0.0;
    const Part part = m_grabbed ? m_grabbed : m_hot;
    CString title = Binding();
    title.MakeUpper();
    CString note;
    if (part == kLowEdge || part == kHighEdge)
        note = FrequencyLabel(Value(part == kLowEdge ? L".lowfreq" : L".highfreq")) + L" Hz";
    else if (part)
        note = GainLabel(Value(part == kLow ? L".low" : part == kMid ? L".mid" : L".high")) + L" dB";
    else
        note = EdgeNote();
    field.DrawGround(picture, title, on ? note : CString(L"OFF"), 12.0);
    for (const auto& [way, band] : {std::pair{kLow, 1}, {kMid, 3}, {kHigh, 4}}) {
        const DWORD ink = on ? Ink::kBands[band] : Ink::kQuiet;
        const double gain = Value(way == kLow ? L".low" : way == kMid ? L".mid" : L".high");
        const auto response = [gain, filters = Filters(way)](double f) {
            return gain + ResponseAt(filters, f);
        };
        field.DrawCurve(picture, response, part == way ? 2.8f : 2.0f, ink);
    }
    for (const auto& [edge, name] : {std::pair{kLowEdge, L".lowfreq"}, {kHighEdge, L".highfreq"}}) {
        const float x = std::round(field.X(Value(name, 1000.0)));
        picture.Fill(x, field.top, x + 1, field.bottom, WithAlpha(Ink::kText, part == edge ? 0xFF : 0x80));
        picture.Disc(x + 0.5f, field.Y(0.0), 5.0f, part == edge ? Ink::kText : Ink::kQuiet);
    }
}

void CrossoverState::SetHot(Part part) {
    if (m_hot == part)
        return;
    m_hot = part;
    Touch();
}

void CrossoverState::OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonDown(window, message, flags, packed);
    m_grabbed = PartAt(Local(packed));
    SetHot(m_grabbed);
}

void CrossoverState::OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonUp(window, message, flags, packed);
    m_grabbed = kNone;
    SetHot(PartAt(Local(packed)));
}

void CrossoverState::OnLButtonDblClk(CWnd*, UINT, UINT, LPARAM) {
    if (Device* device = Running())
        device->Set(Binding() + L".slope", Value(L".slope") >= 48.0 ? 12.0 : Value(L".slope") + 12.0);
}

void CrossoverState::OnMouseWheel(CWnd*, UINT, UINT flags, LPARAM) {
    if (Device* device = Running())
        device->Set(Binding() + L".type",
                    Value(L".type") + (static_cast<short>(HIWORD(flags)) > 0 ? 1.0 : -1.0));
}

void CrossoverState::OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnMouseMove(window, message, flags, packed);
    if (!m_grabbed)
        SetHot(PartAt(Local(packed)));
}

void CrossoverState::OnDragEnter(CWnd*, UINT, const CPoint&) {
    m_gainAtPress = Value(m_grabbed == kLow ? L".low" : m_grabbed == kMid ? L".mid" : L".high");
}

void CrossoverState::OnDrag(CWnd*, UINT, const CPoint& point) {
    Device* device = Running();
    if (!device || !m_grabbed)
        return;
    const Plot field = Field();
    const double frequency = field.Frequency(static_cast<float>(Local(point).x));
    if (m_grabbed == kLowEdge) {
        device->Set(Binding() + L".lowfreq", std::min(frequency, Value(L".highfreq")));
    } else if (m_grabbed == kHighEdge) {
        device->Set(Binding() + L".highfreq", std::max(frequency, Value(L".lowfreq")));
    } else {
        const double perPixel = (field.high - field.low) / (field.bottom - field.top);
        const double gain = m_gainAtPress + perPixel * Distance(m_ptPress, point).cy;
        device->Set(Binding() + (m_grabbed == kLow   ? L".low"
                                 : m_grabbed == kMid ? L".mid"
                                                     : L".high"),
                    std::round(gain * 2.0) / 2.0);
    }
}

void CrossoverState::Leave() {
    m_grabbed = kNone;
    SetHot(kNone);
}

}  // namespace Studio
