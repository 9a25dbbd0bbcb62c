#include "studio/runtime/TrendGraph.h"

#include "core/Geometry.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Studio {

namespace {

enum Kind { kPoints, kLines, kSteps, kAreas };

// Samples over the whole time axis.
constexpr int kSamples = 300;
constexpr double kShortestInterval = 0.1;

}  // namespace

TrendGraph::TrendGraph(const ObjectExtras& extras, const Device& device)
    : m_trend(extras.prefs.m_trend),
      m_device(device),
      m_interval(std::max(kShortestInterval, std::clamp(m_trend.m_nTimeSpan, 1, 86400) / double{kSamples})) {
    const auto add = [&](const CString& name, int width, int color) {
        const DWORD ink = color == -1 ? Ink::kBands[(m_lines.size() + 4) % std::size(Ink::kBands)]
                                      : static_cast<DWORD>(color);
        if (const int value = device.Find(name); value >= 0)
            m_lines.push_back({value, static_cast<float>(std::clamp(width, 1, 20)), ink, {}});
    };
    for (const CPrefTrendLine* line : m_trend.m_lines) {
        if (line)
            add(line->m_strName, line->m_nWidth, line->m_nColor);
    }
    if (m_trend.m_lines.empty())
        add(extras.ValueName(Behaviour::kTrend), 2, -1);
}

bool TrendGraph::Sample(double time) {
    if (time < m_next)
        return false;
    m_next = time + m_interval;
    const size_t most = static_cast<size_t>(std::clamp(m_trend.m_nTimeSpan, 1, 86400) / m_interval) + 2;
    for (Line& line : m_lines) {
        line.samples.push_back(static_cast<float>(m_device.Get(line.value)));
        if (line.samples.size() > most)
            line.samples.pop_front();
    }
    m_stale = true;
    return true;
}

void TrendGraph::Draw(Gdiplus::Graphics& g, const Gdiplus::RectF& bounds) {
    constexpr int kLargest = 4096;
    const int width = Lumo::RoundToInt(bounds.Width), height = Lumo::RoundToInt(bounds.Height);
    if (width < 2 || height < 2 || width > kLargest || height > kLargest)
        return;
    Refresh(m_ground, width, height, false, [this](Picture& ground) { RenderGround(ground); });
    Refresh(m_picture, width, height, m_stale, [this](Picture& picture) {
        picture.CopyFrom(*m_ground);
        for (const Line& line : m_lines)
            RenderLine(picture, line);
    });
    m_stale = false;
    m_picture->Draw(g, bounds.X, bounds.Y);
}

TrendGraph::Field TrendGraph::Layout(const Picture& picture) {
    const auto width = static_cast<float>(picture.Width()), height = static_cast<float>(picture.Height());
    const bool labels = width >= 120 && height >= 60;
    return {labels ? 30.0f : 0.0f, 6.0f, width - 1, height - 7, labels};
}

void TrendGraph::RenderGround(Picture& picture) const {
    picture.Clear(m_trend.m_dwBackColor | 0xFF000000);
    const Field field = Layout(picture);
    const DWORD grid = WithAlpha(m_trend.m_dwGridColor, 0x60);
    const int columns = std::clamp(m_trend.m_nTimeDivisions, 1, 100);
    const int rows = std::clamp(m_trend.m_nValueDivisions, 1, 100);
    for (int i = 0; i <= columns; ++i) {
        const float part = static_cast<float>(i) / static_cast<float>(columns);
        const float x = std::round(field.left + (field.right - field.left) * part);
        picture.Fill(x, field.top, x + 1, field.bottom, grid);
    }
    const double low = m_trend.m_nLowValue, high = m_trend.m_nHighValue;
    for (int i = 0; i <= rows; ++i) {
        const float part = static_cast<float>(i) / static_cast<float>(rows);
        const float y = std::round(field.bottom - (field.bottom - field.top) * part);
        picture.Fill(field.left, y, field.right, y + 1, grid);
        CString label;
        label.Format(L"%.4g", low + (high - low) * part);
        if (field.labels)
            picture.Text(label, 0, y - 6, field.left - 4, y + 7, 9.0f, WithAlpha(m_trend.m_dwGridColor, 0xFF),
                         Gdiplus::StringAlignmentFar);
    }
}

void TrendGraph::RenderLine(Picture& picture, const Line& line) const {
    const auto [left, top, right, bottom, labels] = Layout(picture);
    const int from = static_cast<int>(left);
    const int count = static_cast<int>(right) - from;
    const int size = static_cast<int>(line.samples.size());
    if (count < 2 || size == 0)
        return;
    const double low = m_trend.m_nLowValue, high = m_trend.m_nHighValue;
    const float height = bottom - top, zero = bottom;
    const auto y = [=](double value) {
        const double part = low == high ? 0.0 : std::clamp((value - low) / (high - low), 0.0, 1.0);
        return zero - height * static_cast<float>(part);
    };
    // The newest sample stands at the right end.
    const double perPixel = std::clamp(m_trend.m_nTimeSpan, 1, 86400) / m_interval / count;
    std::vector<float> ys;
    int first = 0;
    for (int i = 0; i < count; ++i) {
        const double at = size - 1 - (count - 1 - i) * perPixel;
        if (at < 0.0) {
            first = i + 1;
            continue;
        }
        const int index = static_cast<int>(at);
        const double next = line.samples[std::min(index + 1, size - 1)];
        const double here = line.samples[index];
        ys.push_back(y(m_trend.m_nType == kSteps ? here : here + (next - here) * (at - index)));
    }
    const int begin = from + first;
    if (m_trend.m_nType == kAreas) {
        for (size_t i = 0; i < ys.size(); ++i)
            picture.Fill(static_cast<float>(begin) + static_cast<float>(i), ys[i],
                         static_cast<float>(begin) + static_cast<float>(i) + 1, bottom,
                         WithAlpha(line.color, 0x40));
    }
    if (m_trend.m_nType == kPoints) {
        constexpr size_t kEvery = 6;
        for (size_t i = 0; i < ys.size(); i += kEvery)
            picture.Disc(static_cast<float>(begin) + static_cast<float>(i), ys[i], line.width, line.color);
        return;
    }
    picture.Curve(begin, ys.data(), static_cast<int>(ys.size()), line.width, top, bottom, line.color);
}

}  // namespace Studio
