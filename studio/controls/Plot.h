// The field of a frequency response: 20 Hz to 20 kHz on a logarithmic axis, gain upwards.
#pragma once

#include "studio/controls/Picture.h"

#include <functional>

namespace Studio {

/// Maps frequencies and gains to pixels, and draws grid and curves.
struct Plot {
    static constexpr double kLowest = 20.0;
    static constexpr double kHighest = 20000.0;

    float left = 0.0f, top = 0.0f, right = 0.0f, bottom = 0.0f;
    double low = -15.0, high = 15.0;

    float X(double frequency) const;
    float Y(double decibels) const;
    /// Within the axis, whatever the point.
    double Frequency(float x) const;
    double Decibels(float y) const;

    /// A card of `width` by `height` pixels with a title, and the plot in it; labels where there is room.
    static Plot Layout(int width, int height, double low, double high);
    /// Draws card, grid and labels; `step` is the distance of the horizontal lines in dB.
    void DrawGround(Picture& picture, const CString& title, const CString& note, double step) const;
    /// Draws the curve of a response (dB at a frequency), with the area to the line of 0 dB when `area` is
    /// not 0 (ARGB).
    void DrawCurve(Picture& picture, const std::function<double(double)>& response, float width, DWORD color,
                   DWORD area = 0) const;
};

/// "80", "1k", "12.5k".
CString FrequencyLabel(double frequency);

/// Decibels as they are written at controls: "+3.5", "0.0", "-12.0".
CString GainLabel(double decibels);

}  // namespace Studio
