#include "filter/Equaliser.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Lumo::Filter {

namespace {

// What all of these are made of: the cosine of the frequency, and its sine over twice q.
struct Angle {
    explicit Angle(const Band& band) {
        const double w = 2.0 * std::numbers::pi * std::clamp(band.frequency / band.rate, 1e-5, 0.499);
        cosine = std::cos(w);
        const double half = std::sin(w / 2.0);
        low = 2.0 * half * half;
        high = 1.0 + cosine;
        alpha = std::sin(w) / (2.0 * std::clamp(band.q, 0.05, 100.0));
    }
    double cosine;
    double low;   ///< 1 - cosine, with all its digits
    double high;  ///< 1 + cosine
    double alpha;
};

double RootOfGain(double gain) {
    return std::pow(10.0, std::clamp(gain, -120.0, 120.0) / 40.0);
}

Section Normalised(double b0, double b1, double b2, double a0, double a1, double a2) {
    return {b0 / a0, b1 / a0, b2 / a0, a1 / a0, a2 / a0};
}

// `side` is 1 for a low shelf and -1 for a high one.
Section Shelf(const Band& band, double gain, double side) {
    const Angle angle(band);
    const double a = RootOfGain(gain);
    const double root = 2.0 * std::sqrt(a) * angle.alpha;
    const double up = a + 1.0, down = a - 1.0, c = side * angle.cosine;
    return Normalised(a * (up - down * c + root), side * 2.0 * a * (down - up * c),
                      a * (up - down * c - root), up + down * c + root, side * -2.0 * (down + up * c),
                      up + down * c - root);
}

}  // namespace

Section Peak(const Band& band, double gain) {
    const Angle angle(band);
    const double a = RootOfGain(gain);
    return Normalised(1.0 + angle.alpha * a, -2.0 * angle.cosine, 1.0 - angle.alpha * a,
                      1.0 + angle.alpha / a, -2.0 * angle.cosine, 1.0 - angle.alpha / a);
}

Section LowShelf(const Band& band, double gain) {
    return Shelf(band, gain, 1.0);
}

Section HighShelf(const Band& band, double gain) {
    return Shelf(band, gain, -1.0);
}

Section Notch(const Band& band) {
    const Angle angle(band);
    return Normalised(1.0, -2.0 * angle.cosine, 1.0, 1.0 + angle.alpha, -2.0 * angle.cosine,
                      1.0 - angle.alpha);
}

Section AllPass(const Band& band) {
    const Angle angle(band);
    return Normalised(1.0 - angle.alpha, -2.0 * angle.cosine, 1.0 + angle.alpha, 1.0 + angle.alpha,
                      -2.0 * angle.cosine, 1.0 - angle.alpha);
}

Section LowPass(const Band& band) {
    const Angle angle(band);
    return Normalised(angle.low / 2.0, angle.low, angle.low / 2.0, 1.0 + angle.alpha, -2.0 * angle.cosine,
                      1.0 - angle.alpha);
}

Section HighPass(const Band& band) {
    const Angle angle(band);
    return Normalised(angle.high / 2.0, -angle.high, angle.high / 2.0, 1.0 + angle.alpha, -2.0 * angle.cosine,
                      1.0 - angle.alpha);
}

}  // namespace Lumo::Filter
