#include "studio/controls/LevelControls.h"

#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "studio/controls/Plot.h"
#include "studio/controls/MessagePoint.h"
#include "studio/device/Names.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;

namespace {

constexpr double kBottom = -60.0;
constexpr double kTop = 6.0;
constexpr double kWarm = -18.0;
constexpr double kHot = -3.0;
constexpr int kMarks[] = {6, 0, -6, -12, -18, -24, -30, -40, -50, -60};

DWORD ColorOf(double decibels) {
    return decibels >= kHot ? Ink::kRed : decibels >= kWarm ? Ink::kYellow : Ink::kGreen;
}

}  // namespace

void LevelChart::Connect(Device* device) {
    m_arrangedFor = CSize(0, 0);
    ChartControl::Connect(device);
}

// Places the meters of the binding; keeps them as long as size and binding stay.
void LevelChart::Arrange() {
    const CSize size = Size();
    const CString binding = Binding();
    if (size == m_arrangedFor && binding == m_arrangedBinding)
        return;
    m_arrangedFor = size;
    m_arrangedBinding = binding;
    m_meters.clear();
    m_lit.reset();
    Touch();
    const bool one = Channel() != 0;
    const int count = one ? 1 : Device::kChannels;
    const bool roomy = size.cx >= 60;
    const int left = roomy ? 32 : 5;
    m_top = roomy ? 30 : 6;
    m_bottom = std::max(m_top + 1, static_cast<int>(size.cy) - (roomy && !one ? 22 : 8));
    const float pitch = static_cast<float>(size.cx - left - 8) / static_cast<float>(count);
    const float gap = pitch > 8.0f ? std::min(pitch * 0.25f, 6.0f) : 1.0f;
    for (int i = 0; i < count; ++i) {
        const CString name = one ? binding : binding + Numbered(L"%d", i + 1);
        const int level = Source().Find(name + L".level");
        const int peak = Source().Find(name + L".peak");
        if (level < 0 || peak < 0)
            continue;
        const float from = static_cast<float>(left) + pitch * static_cast<float>(i);
        const int l = static_cast<int>(from + gap * 0.5f);
        const int r = std::max(l + 1, static_cast<int>(from + pitch - gap * 0.5f));
        m_meters.push_back({level, peak, l, r, m_bottom, m_bottom});
    }
}

int LevelChart::RowOf(double decibels) const {
    const double part = std::clamp((decibels - kBottom) / (kTop - kBottom), 0.0, 1.0);
    return m_bottom - static_cast<int>(std::lround(part * (m_bottom - m_top)));
}

// Adds the rows between the old and the new state to `changed`.
void LevelChart::Follow(Meter& meter, std::vector<CRect>& changed) {
    const int level = RowOf(Source().Get(meter.level));
    const int peak = RowOf(Source().Get(meter.peak));
    const auto add = [&](int a, int b, int extra) {
        changed.emplace_back(meter.left, std::min(a, b) - 1, meter.right, std::max(a, b) + 1 + extra);
    };
    if (level != meter.drawnLevel)
        add(level, meter.drawnLevel, 0);
    if (peak != meter.drawnPeak)
        add(peak, meter.drawnPeak, 2);
    meter.drawnLevel = level;
    meter.drawnPeak = peak;
}

bool LevelChart::TakeChange(std::vector<CRect>& parts) {
    Arrange();
    const bool whole = Control::TakeChange(parts);
    for (Meter& meter : m_meters)
        Follow(meter, parts);
    if (whole)
        parts.clear();
    return whole || !parts.empty();
}

void LevelChart::Render(Picture& picture) {
    const auto width = static_cast<float>(picture.Width());
    const auto height = static_cast<float>(picture.Height());
    picture.FrameRound(0, 0, width, height, 5.0f, Ink::kCard, Ink::kEdge);
    const bool roomy = width >= 60;
    CString title = Binding();
    title.MakeUpper();
    if (roomy)
        picture.Text(title, 8, 4, width - 8, 24, 11.0f, Ink::kText,
                     Channel() ? Gdiplus::StringAlignmentCenter : Gdiplus::StringAlignmentNear, true);
    float free = -100.0f;
    for (int mark : kMarks) {
        const auto y = static_cast<float>(RowOf(mark));
        if (roomy) {
            picture.Fill(28, y, width - 6, y + 1, mark == 0 ? Ink::kGridStrong : Ink::kGrid);
            if (y - free >= 12.0f) {
                picture.Text(Numbered(mark > 0 ? L"+%d" : L"%d", mark), 2, y - 7, 25, y + 8, 10.0f,
                             Ink::kQuiet, Gdiplus::StringAlignmentFar);
                free = y;
            }
        }
    }
    const int pitch = m_meters.size() < 2 ? 1 : std::max(1, m_meters[1].left - m_meters[0].left);
    const size_t every = size_t{1} + 14 / pitch;
    for (size_t i = 0; i < m_meters.size(); ++i) {
        const Meter& meter = m_meters[i];
        picture.Fill(static_cast<float>(meter.left), static_cast<float>(m_top),
                     static_cast<float>(meter.right), static_cast<float>(m_bottom), Ink::kWell);
        if (roomy && m_meters.size() > 1 && i % every == 0)
            picture.Text(Numbered(L"%d", static_cast<int>(i) + 1), static_cast<float>(meter.left) - 8,
                         static_cast<float>(m_bottom) + 3, static_cast<float>(meter.right) + 8, height - 3,
                         10.0f, Ink::kQuiet);
    }
    // One lit column is enough for all meters: they show a part of it.
    m_lit = std::make_unique<Picture>(
        m_meters.empty() ? 1 : m_meters.front().right - m_meters.front().left + 2, m_bottom);
    for (int y = m_top; y < m_bottom; ++y) {
        const double decibels = kBottom + (kTop - kBottom) * (m_bottom - y) / (m_bottom - m_top);
        const bool gap = (m_bottom - y) % 4 == 0;
        m_lit->Fill(0, static_cast<float>(y), static_cast<float>(m_lit->Width()), static_cast<float>(y + 1),
                    gap ? Ink::kWell : ColorOf(decibels));
    }
}

void LevelChart::Draw(Gdiplus::Graphics* g) {
    const RectF bounds = Lumo::Normalised(GetPosition());
    if (!g || Lumo::PaintScope::Misses(*g, bounds))
        return;
    Arrange();
    std::vector<CRect> ignored;
    if (!IsRunning()) {
        for (Meter& meter : m_meters)
            Follow(meter, ignored);
    }
    DrawPicture(*g);
    if (!m_lit)
        return;
    RectF visible;
    g->GetVisibleClipBounds(&visible);
    visible.Offset(-bounds.X, -bounds.Y);
    const CRect clip(static_cast<int>(visible.X) - 1, static_cast<int>(visible.Y) - 1,
                     static_cast<int>(visible.X + visible.Width) + 2,
                     static_cast<int>(visible.Y + visible.Height) + 2);
    for (const Meter& meter : m_meters)
        DrawMeter(*g, PointF(bounds.X, bounds.Y), clip, meter);
}

void LevelChart::DrawMeter(Gdiplus::Graphics& g, const PointF& corner, const CRect& clip,
                           const Meter& meter) {
    const int width = std::min(meter.right - meter.left, m_lit->Width());
    if (clip.left >= meter.right || clip.right <= meter.left)
        return;
    const auto draw = [&](int top, int bottom) {
        const CRect part(0, std::max<int>(top, clip.top), width, std::min<int>(bottom, clip.bottom));
        if (part.top < part.bottom)
            m_lit->Draw(g, corner.X + static_cast<float>(meter.left), corner.Y, &part);
    };
    draw(meter.drawnLevel, m_bottom);
    if (meter.drawnPeak < meter.drawnLevel && meter.drawnPeak < m_bottom) {
        // The peak line never falls on a dark row only: it is two rows high.
        draw(meter.drawnPeak, std::min(meter.drawnPeak + 2, meter.drawnLevel));
    }
}

void LevelButton::Watch(std::vector<int>& values) {
    for (LPCWSTR what : {L".gain", L".mute"})
        values.push_back(ValueOf(what));
}

void LevelButton::Render(Picture& picture) {
    const bool muted = Value(L".mute") != 0.0;
    RenderFace(picture, muted ? Ink::kRed : 0);
    const auto width = static_cast<float>(picture.Width());
    const auto height = static_cast<float>(picture.Height());
    CString title = Binding();
    title.MakeUpper();
    CString gain = GainLabel(Value(L".gain")) + L" dB";
    const float bar = std::max(3.0f, std::min(8.0f, height * 0.16f));
    const float text = height - bar - 9.0f;
    const DWORD gainInk = muted ? Ink::kRed : Ink::kQuiet;
    if (muted)
        gain = L"MUTE";
    if (text >= 34.0f) {
        const float middle = text / 2.0f + 2.0f;
        picture.Text(title, 4, middle - 18, width - 4, middle, 12.0f, Ink::kText,
                     Gdiplus::StringAlignmentCenter, true);
        picture.Text(gain, 4, middle, width - 4, middle + 18, 11.0f, gainInk);
    } else {
        picture.Text(title, 8, 2, width - 8, text, 11.0f, Ink::kText, Gdiplus::StringAlignmentNear, true);
        if (width >= 90)
            picture.Text(gain, 8, 2, width - 8, text, 11.0f, gainInk, Gdiplus::StringAlignmentFar);
    }
    const CRect well = Bar();
    picture.Fill(static_cast<float>(well.left), static_cast<float>(well.top), static_cast<float>(well.right),
                 static_cast<float>(well.bottom), Ink::kWell);
    m_lit = std::make_unique<Picture>(well.Width(), well.Height());
    for (int x = 0; x < well.Width(); ++x) {
        const double decibels = kBottom + (kTop - kBottom) * x / well.Width();
        m_lit->Fill(static_cast<float>(x), 0, static_cast<float>(x + 1), static_cast<float>(well.Height()),
                    ColorOf(decibels));
    }
}

CRect LevelButton::Bar() {
    const CSize size = Size();
    const int thickness = std::clamp(static_cast<int>(size.cy) * 4 / 25, 3, 8);
    return {8, size.cy - thickness - 7, std::max<int>(9, size.cx - 8), size.cy - 7};
}

int LevelButton::LevelColumn() {
    const double part = (Value(L".level", kBottom) - kBottom) / (kTop - kBottom);
    return static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * Bar().Width()));
}

bool LevelButton::TakeChange(std::vector<CRect>& parts) {
    const int before = std::exchange(m_drawnLevel, LevelColumn());
    if (ButtonControl::TakeChange(parts))
        return true;
    if (before == m_drawnLevel)
        return false;
    const CRect bar = Bar();
    parts.emplace_back(bar.left + std::min(before, m_drawnLevel), bar.top,
                       bar.left + std::max(before, m_drawnLevel), bar.bottom);
    return true;
}

void LevelButton::DrawWithLevel(Gdiplus::Graphics& g) {
    DrawPicture(g);
    if (!m_lit)
        return;
    if (!IsRunning())
        m_drawnLevel = LevelColumn();
    const RectF bounds = Lumo::Normalised(GetPosition());
    const CRect bar = Bar();
    const CRect lit(0, 0, m_drawnLevel, m_lit->Height());
    m_lit->Draw(g, bounds.X + static_cast<float>(bar.left), bounds.Y + static_cast<float>(bar.top), &lit);
}

void LevelButton::OnDragEnter(CWnd*, UINT, const CPoint&) {
    m_dragged = true;
    m_gainAtPress = Value(L".gain");
}

void LevelButton::OnDrag(CWnd*, UINT, const CPoint& point) {
    constexpr double kPerPixel = 0.25;
    const double gain = m_gainAtPress + kPerPixel * Distance(m_ptPress, point).cy;
    if (Device* device = Running())
        device->Set(Binding() + L".gain", std::round(gain * 2.0) / 2.0);
}

void LevelButton::Click() {
    if (Device* device = Running())
        device->Set(Binding() + L".mute", Value(L".mute") != 0.0 ? 0.0 : 1.0);
}

}  // namespace Studio
