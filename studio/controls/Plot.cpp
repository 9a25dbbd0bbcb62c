#include "studio/controls/Plot.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Studio {

namespace {

constexpr double kDecades = 3.0;
constexpr float kLabelSize = 10.0f;
constexpr float kTitleSize = 11.0f;
constexpr int kRoomForLabels = 150;

// The lines of the grid; every line from 20 on that has a label gets it when there is room.
constexpr int kLines[] = {20,  30,  40,  50,   60,   70,   80,   90,   100,  200,  300,  400,  500,   600,
                          700, 800, 900, 1000, 2000, 3000, 4000, 5000, 6000, 7000, 8000, 9000, 10000, 20000};
constexpr int kLabels[] = {20, 50, 100, 200, 500, 1000, 2000, 5000, 10000, 20000};

bool HasLabels(const Picture& picture) {
    return picture.Width() >= kRoomForLabels && picture.Height() >= kRoomForLabels * 2 / 3;
}

}  // namespace

float Plot::X(double frequency) const {
    return left + (right - left) * static_cast<float>(std::log10(frequency / kLowest) / kDecades);
}

float Plot::Y(double decibels) const {
    return bottom - (bottom - top) * static_cast<float>((decibels - low) / (high - low));
}

double Plot::Frequency(float x) const {
    const double part = std::clamp(static_cast<double>((x - left) / (right - left)), 0.0, 1.0);
    return kLowest * std::pow(10.0, part * kDecades);
}

double Plot::Decibels(float y) const {
    return std::clamp(low + (high - low) * (bottom - y) / (bottom - top), low, high);
}

Plot Plot::Layout(int width, int height, double low, double high) {
    Plot plot;
    plot.low = low;
    plot.high = high;
    const bool labels = width >= kRoomForLabels && height >= kRoomForLabels * 2 / 3;
    plot.left = labels ? 34.0f : 6.0f;
    plot.top = labels ? 26.0f : 6.0f;
    plot.right = std::max(plot.left + 1.0f, static_cast<float>(width) - (labels ? 14.0f : 6.0f));
    plot.bottom = std::max(plot.top + 1.0f, static_cast<float>(height) - (labels ? 22.0f : 6.0f));
    return plot;
}

void Plot::DrawGround(Picture& picture, const CString& title, const CString& note, double step) const {
    const auto width = static_cast<float>(picture.Width());
    const auto height = static_cast<float>(picture.Height());
    picture.FrameRound(0, 0, width, height, 5.0f, Ink::kCard, Ink::kEdge);
    picture.Fill(left, top, right, bottom, Ink::kWell);
    for (int frequency : kLines) {
        const float x = std::round(X(frequency));
        const bool decade = frequency == 100 || frequency == 1000 || frequency == 10000;
        picture.Fill(x, top, x + 1, bottom, decade ? Ink::kGridStrong : Ink::kGrid);
    }
    const bool labels = HasLabels(picture);
    for (double decibels = std::ceil(low / step) * step; decibels <= high; decibels += step) {
        const float y = std::round(Y(decibels));
        picture.Fill(left, y, right, y + 1, decibels == 0.0 ? Ink::kGridStrong : Ink::kGrid);
        CString label;
        label.Format(decibels > 0.0 ? L"+%d" : L"%d", static_cast<int>(decibels));
        if (labels)
            picture.Text(label, 2, y - 7, left - 6, y + 8, kLabelSize, Ink::kQuiet,
                         Gdiplus::StringAlignmentFar);
    }
    if (!labels)
        return;
    float free = 0.0f;
    for (int frequency : kLabels) {
        constexpr float kHalf = 13.0f;
        const float x = X(frequency);
        if (x - kHalf < free)
            continue;
        picture.Text(FrequencyLabel(frequency), x - kHalf, bottom + 3, x + kHalf, height - 3, kLabelSize,
                     Ink::kQuiet);
        free = x + kHalf;
    }
    picture.Text(title, left, 4, right, top - 2, kTitleSize, Ink::kText, Gdiplus::StringAlignmentNear, true);
    picture.Text(note, left, 4, right, top - 2, kTitleSize, Ink::kAccent, Gdiplus::StringAlignmentFar);
}

void Plot::DrawCurve(Picture& picture, const std::function<double(double)>& response, float width,
                     DWORD color, DWORD area) const {
    const int first = static_cast<int>(left);
    const int count = static_cast<int>(right) - first;
    if (count < 2)
        return;
    std::vector<float> ys(count);
    for (int i = 0; i < count; ++i)
        ys[i] = Y(response(Frequency(static_cast<float>(first + i) + 0.5f)));
    if (area) {
        const float zero = Y(std::clamp(0.0, low, high));
        for (int i = 0; i < count; ++i) {
            const float y = std::clamp(ys[i], top, bottom);
            const auto x = static_cast<float>(first + i);
            picture.Fill(x, std::min(y, zero), x + 1, std::max(y, zero), area);
        }
    }
    picture.Curve(first, ys.data(), count, width, top, bottom, color);
}

CString FrequencyLabel(double frequency) {
    CString label;
    if (frequency < 999.5)
        label.Format(L"%.0f", frequency);
    else
        label.Format(L"%.3gk", frequency / 1000.0);
    return label;
}

CString GainLabel(double decibels) {
    constexpr double kHalfStep = 0.05;
    CString label;
    if (std::fabs(decibels) < kHalfStep)
        label = L"0.0";
    else
        label.Format(L"%+.1f", decibels);
    return label;
}

}  // namespace Studio
