#include "studio/controls/PeqChart.h"

#include <cmath>

namespace Studio {

namespace {

constexpr double kRange = 18.0;
constexpr double kStep = 6.0;
constexpr int kReach = 11;

bool HasGain(BandType type) {
    return type == BandType::kPeak || type == BandType::kLowShelf || type == BandType::kHighShelf;
}

CString BandName(int band, LPCWSTR what) {
    CString name;
    name.Format(L".%d.%s", band, what);
    return name;
}

}  // namespace

PeqChart::Bands PeqChart::ReadBands() {
    Bands bands;
    bands.on = Value(L".on", 1.0) != 0.0;
    for (int i = 0; i < Device::kPeqBands; ++i) {
        bands.band[i] = Source().PeqBand(Channel(), i + 1);
        bands.filter[i] = MakeSection(bands.band[i]);
    }
    return bands;
}

Plot PeqChart::Field() {
    const CSize size = Size();
    return Plot::Layout(size.cx, size.cy, -kRange, kRange);
}

CPoint PeqChart::HandleOf(int number) {
    const Plot field = Field();
    const Band band = Source().PeqBand(Channel(), number);
    return {static_cast<int>(std::lround(field.X(band.frequency))),
            static_cast<int>(std::lround(field.Y(HasGain(band.type) ? band.gain : 0.0)))};
}

// The nearest handle within reach.
int PeqChart::BandAt(CPoint point) {
    int found = 0;
    int best = kReach * kReach;
    for (int band = 1; band <= Device::kPeqBands; ++band) {
        const CPoint handle = HandleOf(band);
        const int dx = point.x - handle.x, dy = point.y - handle.y;
        if (dx * dx + dy * dy <= best) {
            best = dx * dx + dy * dy;
            found = band;
        }
    }
    return found;
}

void PeqChart::Watch(std::vector<int>& values) {
    WatchAll(values, Binding() + L".");
}

CString PeqChart::Note(const Bands& bands) {
    const int number = HotBand();
    CString note;
    if (!bands.on)
        note = L"OFF";
    if (number < 1)
        return note;
    const Band& band = bands.band[number - 1];
    note.Format(L"%d   %s Hz   %s dB   Q %.2f", number, FrequencyLabel(band.frequency).GetString(),
                GainLabel(band.gain).GetString(), band.q);
    return note;
}

void PeqChart::Render(Picture& picture) {
    const Bands bands = ReadBands();
    const Plot field = Field();
    CString title = Binding();
    title.MakeUpper();
    field.DrawGround(picture, title, Note(bands), kStep);
    const int hot = HotBand();
    if (hot)
        field.DrawCurve(
            picture,
            [&](double f) {
                return ResponseAt({&bands.filter[hot - 1], 1}, f);
            },
            1.2f, WithAlpha(Ink::kBands[hot - 1], 0xC0), WithAlpha(Ink::kBands[hot - 1], 0x28));
    const DWORD color = bands.on ? Ink::kAccent : Ink::kQuiet;
    const auto total = [&](double f) { return ResponseAt(bands.filter, f); };
    field.DrawCurve(picture, total, 2.2f, color, WithAlpha(color, 0x2E));
    for (int i = Device::kPeqBands; i >= 1; --i) {
        const Band& band = bands.band[i - 1];
        const CPoint at = HandleOf(i);
        const DWORD ink = band.on ? Ink::kBands[i - 1] : Ink::kQuiet;
        const auto x = static_cast<float>(at.x) + 0.5f, y = static_cast<float>(at.y) + 0.5f;
        if (i == hot)
            picture.Disc(x, y, 12.0f, WithAlpha(ink, 0x50));
        picture.Disc(x, y, 8.0f, Ink::kWell);
        picture.Disc(x, y, 7.0f, band.on ? ink : Ink::kCard);
        picture.Ring(x, y, 7.0f, 1.2f, ink);
        CString number;
        number.Format(L"%d", i);
        picture.Text(number, x - 8, y - 8, x + 8, y + 8, 10.0f, band.on ? Ink::kWell : ink,
                     Gdiplus::StringAlignmentCenter, true);
    }
}

void PeqChart::SetHot(int band) {
    if (m_hot == band)
        return;
    m_hot = band;
    Touch();
}

void PeqChart::SetBand(int band, LPCWSTR what, double value) {
    if (Device* device = Running(); device && band)
        device->Set(Binding() + BandName(band, what), value);
}

void PeqChart::OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonDown(window, message, flags, packed);
    m_grabbed = BandAt(Local(packed));
    Touch();
}

void PeqChart::OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonUp(window, message, flags, packed);
    m_grabbed = 0;
    SetHot(BandAt(Local(packed)));
    Touch();
}

void PeqChart::OnLButtonDblClk(CWnd*, UINT, UINT, LPARAM packed) {
    const int band = BandAt(Local(packed));
    if (band)
        SetBand(band, L"on", Value(BandName(band, L"on")) != 0.0 ? 0.0 : 1.0);
}

void PeqChart::OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnMouseMove(window, message, flags, packed);
    if (!m_grabbed)
        SetHot(BandAt(Local(packed)));
}

void PeqChart::OnMouseWheel(CWnd*, UINT, UINT flags, LPARAM packed) {
    constexpr double kFactor = 1.15;
    const int band = BandAt(Local(packed));
    const int turn = static_cast<short>(HIWORD(flags)) / WHEEL_DELTA;
    SetBand(band, L"q", Value(BandName(band, L"q")) * std::pow(kFactor, turn));
}

void PeqChart::OnDrag(CWnd*, UINT, const CPoint& point) {
    if (!m_grabbed)
        return;
    const Plot field = Field();
    const CPoint at = Local(point);
    SetBand(m_grabbed, L"freq", field.Frequency(static_cast<float>(at.x)));
    if (HasGain(Source().PeqBand(Channel(), m_grabbed).type))
        SetBand(m_grabbed, L"gain", std::round(field.Decibels(static_cast<float>(at.y)) * 10.0) / 10.0);
}

void PeqChart::Leave() {
    m_grabbed = 0;
    SetHot(0);
}

}  // namespace Studio
