// The states of the graphic and the parametric equaliser.
#include "studio/controls/StateControls.h"

#include "studio/device/Names.h"

#include <algorithm>
#include <cmath>

namespace Studio {

namespace {

constexpr LPCWSTR kTypeNames[kBandTypeCount] = {L"PEAK", L"LSHELF", L"HSHELF", L"LPASS", L"HPASS", L"NOTCH"};

LPCWSTR TypeName(BandType type) {
    return kTypeNames[std::clamp(static_cast<int>(type), 0, kBandTypeCount - 1)];
}

// Share of the columns of the band table: number, type, frequency, gain, Q.
constexpr float kColumns[] = {0.12f, 0.23f, 0.24f, 0.23f, 0.18f};
constexpr float kTableTop = 44.0f;
constexpr float kTableEnd = 8.0f;

float RowHeight(int height) {
    return (static_cast<float>(height) - kTableTop - kTableEnd) / Device::kPeqBands;
}

}  // namespace

Plot GeqState::Field() {
    const CSize size = Size();
    return Plot::Layout(size.cx, size.cy, -12.0, 12.0);
}

int GeqState::BandAt(CPoint point) {
    const Plot field = Field();
    const float part = (static_cast<float>(point.x) - field.left) / (field.right - field.left);
    if (part < 0.0f || part >= 1.0f || point.y < field.top - 4 || point.y > field.bottom + 4)
        return 0;
    return 1 + static_cast<int>(part * Device::kGeqBands);
}

void GeqState::Render(Picture& picture) {
    const Plot field = Field();
    const auto width = static_cast<float>(picture.Width());
    const auto height = static_cast<float>(picture.Height());
    const bool on = Value(L".on", 1.0) != 0.0;
    const bool labels = field.left > 10.0f;
    picture.FrameRound(0, 0, width, height, 5.0f, Ink::kCard, Ink::kEdge);
    CString title = Binding();
    title.MakeUpper();
    CString note = on ? L"" : L"OFF";
    if (m_hot)
        note = FrequencyLabel(Device::GeqFrequency(m_hot)) + L" Hz   " +
               GainLabel(Value(Numbered(L".%d", m_hot))) + L" dB";
    if (labels) {
        picture.Text(title, field.left, 4, field.right, 24, 11.0f, Ink::kText, Gdiplus::StringAlignmentNear,
                     true);
        picture.Text(note, field.left, 4, field.right, 24, 11.0f, Ink::kAccent, Gdiplus::StringAlignmentFar);
    }
    for (int decibels : {-12, -6, 0, 6, 12}) {
        const float y = std::round(field.Y(decibels));
        picture.Fill(field.left, y, field.right, y + 1, decibels == 0 ? Ink::kGridStrong : Ink::kGrid);
        if (labels)
            picture.Text(Numbered(decibels > 0 ? L"+%d" : L"%d", decibels), 2, y - 7, field.left - 6, y + 8,
                         10.0f, Ink::kQuiet, Gdiplus::StringAlignmentFar);
    }
    const float pitch = (field.right - field.left) / Device::kGeqBands;
    for (int band = 1; band <= Device::kGeqBands; ++band) {
        const float middle = field.left + pitch * (static_cast<float>(band) - 0.5f);
        const float y = field.Y(Value(Numbered(L".%d", band)));
        const float zero = field.Y(0.0);
        const float half = std::clamp(pitch * 0.32f, 0.5f, 6.0f);
        const DWORD ink = !on ? Ink::kQuiet : band == m_hot ? Ink::kText : Ink::kAccent;
        picture.Fill(middle - 0.5f, field.top, middle + 0.5f, field.bottom, Ink::kGrid);
        picture.Fill(middle - half * 0.5f, std::min(y, zero), middle + half * 0.5f, std::max(y, zero),
                     WithAlpha(ink, 0x90));
        picture.FillRound(middle - half, y - 2.5f, middle + half, y + 2.5f, 2.0f, ink);
        const int every = pitch >= 24.0f ? 1 : pitch >= 9.0f ? 3 : 6;
        if (labels && (band - 1) % every == 0)
            picture.Text(FrequencyLabel(Device::GeqFrequency(band)), middle - 16, field.bottom + 3,
                         middle + 16, height - 3, 10.0f, Ink::kQuiet);
    }
}

void GeqState::SetHot(int band) {
    if (m_hot == band)
        return;
    m_hot = band;
    Touch();
}

// Sets the bands between the last point and this one: a fast stroke leaves none out.
void GeqState::Apply(CPoint point) {
    Device* device = Running();
    const Plot field = Field();
    const auto clamped = [&](CPoint at) {
        return CPoint(std::clamp<int>(at.x, static_cast<int>(field.left), static_cast<int>(field.right) - 1),
                      std::clamp<int>(at.y, static_cast<int>(field.top), static_cast<int>(field.bottom)));
    };
    const CPoint to = clamped(point), from = clamped(m_last);
    const int first = BandAt(from), last = BandAt(to);
    m_last = point;
    if (!device || !first || !last)
        return;
    for (int band = std::min(first, last); band <= std::max(first, last); ++band) {
        const float part =
            first == last ? 1.0f : static_cast<float>(band - first) / static_cast<float>(last - first);
        const float y = static_cast<float>(from.y) + static_cast<float>(to.y - from.y) * part;
        device->Set(Binding() + Numbered(L".%d", band), std::round(field.Decibels(y) * 2.0) / 2.0);
    }
    SetHot(last);
}

void GeqState::OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonDown(window, message, flags, packed);
    m_last = Local(packed);
    if (BandAt(m_last))
        Apply(m_last);
}

void GeqState::OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonUp(window, message, flags, packed);
    SetHot(BandAt(Local(packed)));
}

void GeqState::OnLButtonDblClk(CWnd*, UINT, UINT, LPARAM packed) {
    const int band = BandAt(Local(packed));
    if (Device* device = Running(); device && band)
        device->Set(Binding() + Numbered(L".%d", band), 0.0);
}

void GeqState::OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnMouseMove(window, message, flags, packed);
    if (!(flags & MK_LBUTTON))
        SetHot(BandAt(Local(packed)));
}

void GeqState::OnDrag(CWnd*, UINT, const CPoint& point) {
    Apply(Local(point));
}

bool PeqState::IsSmall() {
    constexpr int kRoomAcross = 190, kRoomDown = 120;
    const CSize size = Size();
    return size.cx < kRoomAcross || size.cy < kRoomDown;
}

int PeqState::RowAt(CPoint point) {
    const CSize size = Size();
    if (IsSmall())
        return std::clamp(1 + static_cast<int>(point.x * Device::kPeqBands / std::max<int>(1, size.cx)), 1,
                          Device::kPeqBands);
    const float row = (static_cast<float>(point.y) - kTableTop) / RowHeight(size.cy);
    return row >= 0.0f && row < Device::kPeqBands && point.x >= 0 && point.x < size.cx
               ? 1 + static_cast<int>(row)
               : 0;
}

// Where there is no room for a table: one lamp per band.
void PeqState::RenderLamps(Picture& picture) {
    const auto width = static_cast<float>(picture.Width()), height = static_cast<float>(picture.Height());
    const float pitch = width / Device::kPeqBands;
    const float radius = std::min({pitch * 0.38f, height * 0.38f, 9.0f});
    for (int band = 1; band <= Device::kPeqBands; ++band) {
        const float x = pitch * (static_cast<float>(band) - 0.5f);
        const bool on = Source().PeqBand(Channel(), band).on && Value(L".on", 1.0) != 0.0;
        picture.Disc(x, height / 2, radius, on ? Ink::kBands[band - 1] : Ink::kGridStrong);
        if (radius >= 6.0f)
            picture.Text(Numbered(L"%d", band), x - radius, 0, x + radius, height, 10.0f, Ink::kWell,
                         Gdiplus::StringAlignmentCenter, true);
    }
}

void PeqState::Render(Picture& picture) {
    const auto width = static_cast<float>(picture.Width());
    picture.FrameRound(0, 0, width, static_cast<float>(picture.Height()), 5.0f, Ink::kCard, Ink::kEdge);
    if (IsSmall()) {
        RenderLamps(picture);
        return;
    }
    CString title = Binding();
    title.MakeUpper();
    picture.Text(title, 10, 4, width - 10, 24, 11.0f, Ink::kText, Gdiplus::StringAlignmentNear, true);
    const bool on = Value(L".on", 1.0) != 0.0;
    picture.Text(on ? L"ON" : L"OFF", 10, 4, width - 10, 24, 11.0f, on ? Ink::kGreen : Ink::kQuiet,
                 Gdiplus::StringAlignmentFar, true);
    const float left = 10.0f, room = width - 20.0f;
    const auto cells = [&](const CString(&texts)[5], float top, float bottom, DWORD ink) {
        float x = left;
        for (int i = 0; i < 5; ++i) {
            const float right = x + room * kColumns[i];
            if (!texts[i].IsEmpty())
                picture.Text(texts[i], x, top, right - 2, bottom, 10.0f, ink,
                             i < 2 ? Gdiplus::StringAlignmentNear : Gdiplus::StringAlignmentFar);
            x = right;
        }
    };
    cells({L"", L"TYPE", L"HZ", L"DB", L"Q"}, 24, kTableTop, Ink::kQuiet);
    const float height = RowHeight(picture.Height());
    for (int row = 1; row <= Device::kPeqBands; ++row) {
        const Band band = Source().PeqBand(Channel(), row);
        const float top = kTableTop + height * static_cast<float>(row - 1);
        if (row == m_hot)
            picture.FillRound(5, top, width - 5, top + height, 3.0f, Ink::kFaceHover);
        else if (row % 2)
            picture.FillRound(5, top, width - 5, top + height, 3.0f, Ink::kWell);
        const DWORD ink = band.on && on ? Ink::kBands[row - 1] : Ink::kGridStrong;
        const float radius = std::min(7.0f, height * 0.4f);
        picture.Disc(left + 8, top + height / 2, radius, ink);
        picture.Text(Numbered(L"%d", row), left, top, left + 16, top + height, 9.0f, Ink::kWell,
                     Gdiplus::StringAlignmentCenter, true);
        CString q;
        q.Format(L"%.2f", band.q);
        cells({L"", TypeName(band.type), FrequencyLabel(band.frequency), GainLabel(band.gain), q}, top,
              top + height, band.on && on ? Ink::kText : Ink::kQuiet);
    }
}

void PeqState::SetHot(int row) {
    if (m_hot == row)
        return;
    m_hot = row;
    Touch();
}

void PeqState::OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonDown(window, message, flags, packed);
    const int row = RowAt(Local(packed));
    const CString name = row ? Numbered(L".%d.on", row) : CString(L".on");
    if (Device* device = Running())
        device->Set(Binding() + name, Value(name) != 0.0 ? 0.0 : 1.0);
}

void PeqState::OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnMouseMove(window, message, flags, packed);
    SetHot(RowAt(Local(packed)));
}

void PeqState::OnMouseWheel(CWnd*, UINT, UINT flags, LPARAM packed) {
    const CPoint at = Local(packed);
    const int row = RowAt(at);
    const int turn = static_cast<short>(HIWORD(flags)) / WHEEL_DELTA;
    Device* device = Running();
    if (!device || !row || !turn || IsSmall())
        return;
    float x = (static_cast<float>(at.x) - 10.0f) / (static_cast<float>(Size().cx) - 20.0f);
    int column = 0;
    while (column < 4 && x >= kColumns[column])
        x -= kColumns[column++];
    LPCWSTR const names[] = {L"type", L"type", L"freq", L"gain", L"q"};
    const CString name = Binding() + Numbered(L".%d.", row) + names[column];
    const double now = device->Get(name);
    const double step = std::pow(column == 2 ? 1.06 : 1.15, turn);
    device->Set(name, column < 2 ? now + turn : column == 3 ? now + 0.5 * turn : now * step);
}

}  // namespace Studio
