#include "studio/device/Biquad.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Studio {

namespace {

constexpr double kFloor = -120.0;

double Decibels(double power) {
    return power > 0.0 ? std::max(kFloor, 10.0 * std::log10(power)) : kFloor;
}

struct Raw {
    double b0, b1, b2, a0, a1, a2;
};

// `side` is 1 for a low shelf and -1 for a high one.
Raw Shelf(double a, double cosine, double alpha, double side) {
    const double root = 2.0 * std::sqrt(a) * alpha;
    const double up = a + 1.0, down = a - 1.0, c = side * cosine;
    return {a * (up - down * c + root), side * 2.0 * a * (down - up * c), a * (up - down * c - root),
            up + down * c + root,       side * -2.0 * (down + up * c),    up + down * c - root};
}

Raw Coefficients(const Band& band) {
    const double frequency = std::clamp(band.frequency, 1.0, kSampleRate * 0.499);
    const double w = 2.0 * std::numbers::pi * frequency / kSampleRate;
    const double c = std::cos(w);
    const double alpha = std::sin(w) / (2.0 * std::clamp(band.q, 0.05, 100.0));
    const double a = std::pow(10.0, band.gain / 40.0);
    switch (band.type) {
        case BandType::kLowShelf:
            return Shelf(a, c, alpha, 1.0);
        case BandType::kHighShelf:
            return Shelf(a, c, alpha, -1.0);
        case BandType::kLowPass:
            return {(1 - c) / 2, 1 - c, (1 - c) / 2, 1 + alpha, -2 * c, 1 - alpha};
        case BandType::kHighPass:
            return {(1 + c) / 2, -(1 + c), (1 + c) / 2, 1 + alpha, -2 * c, 1 - alpha};
        case BandType::kNotch:
            return {1, -2 * c, 1, 1 + alpha, -2 * c, 1 - alpha};
        default:
            return {1 + alpha * a, -2 * c, 1 - alpha * a, 1 + alpha / a, -2 * c, 1 - alpha / a};
    }
}

}  // namespace

double Biquad::Response(double frequency) const {
    // In terms of sin^2(w/2), which keeps its precision at low frequencies.
    const double s = std::sin(std::numbers::pi * frequency / kSampleRate);
    const double phi = s * s;
    const auto power = [phi](double c0, double c1, double c2) {
        const double sum = c0 + c1 + c2;
        return sum * sum - 4.0 * (c0 * c1 + 4.0 * c0 * c2 + c1 * c2) * phi + 16.0 * c0 * c2 * phi * phi;
    };
    return Decibels(power(b0, b1, b2) / power(1.0, a1, a2));
}

Biquad MakeBiquad(const Band& band) {
    if (!band.on)
        return {};
    const Raw raw = Coefficients(band);
    return {raw.b0 / raw.a0, raw.b1 / raw.a0, raw.b2 / raw.a0, raw.a1 / raw.a0, raw.a2 / raw.a0};
}

double CrossoverResponse(bool highPass, double edge, int order, double frequency) {
    const Band band{highPass ? BandType::kHighPass : BandType::kLowPass, edge, 0.0, 1.0 / std::numbers::sqrt2,
                    true};
    const double once = MakeBiquad(band).Response(frequency);
    return std::max(kFloor, order >= 4 ? 2.0 * once : once);
}

}  // namespace Studio
