#include "studio/controls/MatrixControls.h"

#include "core/UIDocument.h"
#include "studio/controls/MessagePoint.h"
#include "studio/device/Names.h"

#include <algorithm>
#include <cmath>

namespace Studio {

namespace {

constexpr double kSilent = -40.0;
constexpr DWORD kFaint = 0xFF5D6A7D;

// Visits the buttons among the objects and within their groups.
template <class Visit>
void VisitButtons(const Lumo::CUIObjectDeque& objects, const Visit& visit) {
    for (Lumo::CUIObject* object : objects) {
        if (auto* button = dynamic_cast<DeviceButton*>(object))
            visit(*button);
        else if (const auto* group = dynamic_cast<const Lumo::CUIObjectList*>(object))
            VisitButtons(group->GetChildren(), visit);
    }
}

}  // namespace

DeviceChart::Field DeviceChart::Layout() {
    const CSize size = Size();
    const bool roomy = size.cx >= 160 && size.cy >= 160;
    const float left = roomy ? 34.0f : 4.0f, top = roomy ? 44.0f : 4.0f;
    const float across = (static_cast<float>(size.cx) - left - 8.0f) / Device::kChannels;
    const float down = (static_cast<float>(size.cy) - top - 8.0f) / Device::kChannels;
    const float cell = std::max(1.0f, std::floor(std::min(across, down)));
    // What the whole cells leave over stands on both sides.
    const float restAcross = std::max(0.0f, (across - cell) * Device::kChannels);
    const float restDown = std::max(0.0f, (down - cell) * Device::kChannels);
    return {std::floor(left + restAcross / 2), std::floor(top + restDown / 2), cell, roomy};
}

CPoint DeviceChart::CellOf(int input, int output) {
    const Field field = Layout();
    return {static_cast<int>(field.left + field.cell * (static_cast<float>(output) - 0.5f)),
            static_cast<int>(field.top + field.cell * (static_cast<float>(input) - 0.5f))};
}

DeviceChart::Cell DeviceChart::CellAt(CPoint point) {
    const Field field = Layout();
    const auto index = [&](float offset) {
        const int number = static_cast<int>(std::floor(offset / field.cell)) + 1;
        return number >= 1 && number <= Device::kChannels ? number : 0;
    };
    const Cell cell{index(static_cast<float>(point.y) - field.top),
                    index(static_cast<float>(point.x) - field.left)};
    return cell.input && cell.output ? cell : Cell{};
}

CString DeviceChart::NameOf(Cell cell, LPCWSTR what) const {
    return Numbered(L"xp.%d.%d.", cell.input, cell.output) + what;
}

void DeviceChart::Watch(std::vector<int>& values) {
    WatchAll(values, L"xp.");
}

void DeviceChart::RenderLabels(Picture& picture, const Field& field) {
    const auto width = static_cast<float>(picture.Width());
    picture.Text(L"MATRIX", 8, 4, width - 8, 22, 11.0f, Ink::kText, Gdiplus::StringAlignmentNear, true);
    CString note = L"IN \x2193   OUT \x2192";
    if (m_hot.input) {
        note.Format(L"IN %d \x2192 OUT %d   ", m_hot.input, m_hot.output);
        if (Source().Get(NameOf(m_hot, L"on")) != 0.0)
            note += Source().Describe(Source().Find(NameOf(m_hot, L"gain")));
        else
            note += L"OFF";
    }
    picture.Text(note, 8, 4, width - 10, 22, 11.0f, m_hot.input ? Ink::kAccent : Ink::kQuiet,
                 Gdiplus::StringAlignmentFar);
    const bool everyOther = field.cell < 13.0f;
    for (int i = 1; i <= Device::kChannels; ++i) {
        if (everyOther && i % 2 == 0)
            continue;
        const float at = field.cell * (static_cast<float>(i) - 0.5f);
        picture.Text(Numbered(L"%d", i), field.left + at - 10, field.top - 18, field.left + at + 10,
                     field.top - 3, 10.0f, i == m_hot.output ? Ink::kText : Ink::kQuiet);
        picture.Text(Numbered(L"%d", i), field.left - 30, field.top + at - 8, field.left - 6,
                     field.top + at + 8, 10.0f, i == m_hot.input ? Ink::kText : Ink::kQuiet,
                     Gdiplus::StringAlignmentFar);
    }
}

void DeviceChart::RenderCell(Picture& picture, const Field& field, Cell cell) {
    const float x = field.left + field.cell * static_cast<float>(cell.output - 1);
    const float y = field.top + field.cell * static_cast<float>(cell.input - 1);
    const float extent = field.cell - (field.cell > 6 ? 1.0f : 0.0f);
    const bool crossed = cell.input == m_hot.input || cell.output == m_hot.output;
    const float radius = field.cell >= 12 ? 2.0f : 0.0f;
    picture.FillRound(x, y, x + extent, y + extent, radius, crossed ? Ink::kFaceHover : Ink::kWell);
    if (Source().Get(NameOf(cell, L"on")) != 0.0) {
        // The louder the crossing, the stronger its colour and the larger its mark.
        const double gain = Source().Get(NameOf(cell, L"gain"));
        const auto part = static_cast<float>(std::clamp((gain - kSilent) / -kSilent, 0.15, 1.0));
        const float inset = field.cell * 0.12f + field.cell * 0.2f * (1.0f - part);
        const DWORD ink = gain > 0.0 ? Ink::kYellow : Ink::kAccent;
        picture.FillRound(x + inset, y + inset, x + extent - inset, y + extent - inset, radius,
                          WithAlpha(ink, 0x50 + static_cast<int>(0xAF * part)));
    }
    if (cell == m_hot && field.cell >= 6)
        picture.Ring(x + extent / 2, y + extent / 2, field.cell * 0.42f, 1.4f, Ink::kText);
}

void DeviceChart::Render(Picture& picture) {
    const auto width = static_cast<float>(picture.Width());
    const auto height = static_cast<float>(picture.Height());
    picture.FrameRound(0, 0, width, height, 5.0f, Ink::kCard, Ink::kEdge);
    const Field field = Layout();
    if (field.labels)
        RenderLabels(picture, field);
    for (int in = 1; in <= Device::kChannels; ++in) {
        for (int out = 1; out <= Device::kChannels; ++out)
            RenderCell(picture, field, {in, out});
    }
}

void DeviceChart::SetHot(Cell cell) {
    if (m_hot == cell)
        return;
    m_hot = cell;
    Touch();
}

void DeviceChart::OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonDown(window, message, flags, packed);
    m_grabbed = CellAt(Local(packed));
    m_dragging = false;
    SetHot(m_grabbed);
}

void DeviceChart::OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonUp(window, message, flags, packed);
    const Cell cell = CellAt(Local(packed));
    if (Device* device = Running(); device && !m_dragging && m_grabbed.input && cell == m_grabbed) {
        const CString name = NameOf(cell, L"on");
        device->Set(name, device->Get(name) != 0.0 ? 0.0 : 1.0);
    }
    m_grabbed = {};
    SetHot(cell);
}

void DeviceChart::OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnMouseMove(window, message, flags, packed);
    if (!m_grabbed.input)
        SetHot(CellAt(Local(packed)));
}

void DeviceChart::OnDragEnter(CWnd*, UINT, const CPoint&) {
    if (m_grabbed.input)
        m_gainAtPress = Source().Get(NameOf(m_grabbed, L"gain"));
}

void DeviceChart::OnDrag(CWnd*, UINT, const CPoint& point) {
    constexpr double kPerPixel = 0.25;
    constexpr int kStill = 3;  // a click may tremble
    const int up = Distance(m_ptPress, point).cy;
    m_dragging |= std::abs(up) > kStill;
    if (Device* device = Running(); device && m_dragging && m_grabbed.input)
        device->Set(NameOf(m_grabbed, L"gain"), std::round((m_gainAtPress + kPerPixel * up) * 2.0) / 2.0);
}

void DeviceChart::Leave() {
    m_grabbed = {};
    SetHot({});
}

int DeviceButton::SwitchValue() {
    const int value = ValueOf(L"");
    return value >= 0 ? (Source().Info(value).isSwitch ? value : -1) : ValueOf(L".mute");
}

void DeviceButton::Watch(std::vector<int>& values) {
    values.push_back(SwitchValue());
}

void DeviceButton::Render(Picture& picture) {
    const int value = SwitchValue();
    const bool on = value >= 0 && Source().Get(value) != 0.0;
    const bool mute = value >= 0 && Source().Info(value).name.Right(5).CompareNoCase(L".mute") == 0;
    const DWORD ink = mute ? Ink::kRed : Ink::kGreen;
    RenderFace(picture, on ? ink : 0);
    const auto width = static_cast<float>(picture.Width());
    const auto height = static_cast<float>(picture.Height());
    CString caption = GetText().IsEmpty() ? Binding() : GetText();
    if (GetText().IsEmpty())
        caption.MakeUpper();
    const bool two = height >= 34;
    picture.Text(caption, 4, two ? height * 0.08f : 0, width - 4, two ? height * 0.56f : height, 12.0f,
                 on ? Ink::kText : Ink::kQuiet, Gdiplus::StringAlignmentCenter, true);
    if (two)
        picture.Text(mute ? L"MUTE"
                     : on ? L"ON"
                          : L"OFF",
                     4, height * 0.5f, width - 4, height * 0.94f, 10.0f, on ? ink : kFaint);
}

// A radio button is alone on in its radio group on the page, whatever groups of objects the others stand in.
void DeviceButton::TurnGroupOff() {
    const auto* objects = m_pDocument ? m_pDocument->GetCanvasObjectList(m_pCanvas) : nullptr;
    if (!objects)
        return;
    VisitButtons(*objects, [this](DeviceButton& other) {
        if (&other != this && other.GetButtonStyle() == kRadio && other.GetRadioGroup() == GetRadioGroup() &&
            other.SwitchValue() >= 0)
            Running()->Set(other.SwitchValue(), 0.0);
    });
}

void DeviceButton::OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    ButtonControl::OnLButtonDown(window, message, flags, packed);
    const int value = SwitchValue();
    if (Running() && value >= 0 && GetButtonStyle() == kMomentary)
        Running()->Set(value, 1.0);
}

void DeviceButton::OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    const bool held = m_pressed;
    ButtonControl::OnLButtonUp(window, message, flags, packed);
    const int value = SwitchValue();
    if (Running() && held && value >= 0 && GetButtonStyle() == kMomentary)
        Running()->Set(value, 0.0);
}

void DeviceButton::Leave() {
    const int value = SwitchValue();
    if (Running() && m_pressed && value >= 0 && GetButtonStyle() == kMomentary)
        Running()->Set(value, 0.0);
    ButtonControl::Leave();
}

void DeviceButton::Click() {
    const int value = SwitchValue();
    if (!Running() || value < 0 || GetButtonStyle() == kMomentary)
        return;
    if (GetButtonStyle() == kRadio) {
        TurnGroupOff();
        Running()->Set(value, 1.0);
    } else {
        Running()->Set(value, Source().Get(value) != 0.0 ? 0.0 : 1.0);
    }
}

}  // namespace Studio
