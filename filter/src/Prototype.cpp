#include "filter/Prototype.h"

#include "filter/src/Roots.h"

#include <cmath>
#include <numbers>

namespace Lumo::Filter {

namespace {

constexpr Layout kNone{{}, {}, 0.0};

bool HasOrder(int order) {
    return order >= 1 && order <= kMaxOrder;
}

// Angle of the pole `pair` of `order`, from the imaginary axis; of the real pole the last one.
double PoleAngle(int pair, int order) {
    return std::numbers::pi * (2 * pair + 1) / (2 * order);
}

// A pole on an ellipse; the middle one of an odd order is real.
std::complex<double> EllipsePole(int pair, int order, double across, double along) {
    const double angle = PoleAngle(pair, order);
    return {-across * std::sin(angle), 2 * pair + 1 == order ? 0.0 : along * std::cos(angle)};
}

// What a ripple of so many dB adds to a squared gain of 1.
double SquaredExcess(double decibels) {
    return std::expm1(decibels * std::numbers::ln10 / 10.0);
}

}  // namespace

Layout Butterworth(int order) {
    if (!HasOrder(order))
        return kNone;
    Layout layout;
    for (int pair = 0; 2 * pair < order; ++pair)
        AddRoot(layout.poles, EllipsePole(pair, order, 1.0, 1.0));
    return layout;
}

Layout Chebyshev1(int order, double ripple) {
    if (!HasOrder(order) || !(ripple > 0.0) || !std::isfinite(ripple))
        return kNone;
    const double excess = SquaredExcess(ripple);
    const double flat = std::asinh(1.0 / std::sqrt(excess)) / order;
    Layout layout;
    for (int pair = 0; 2 * pair < order; ++pair)
        AddRoot(layout.poles, EllipsePole(pair, order, std::sinh(flat), std::cosh(flat)));
    layout.gain = RealProduct(layout.poles, 0.0);
    if (order % 2 == 0)
        layout.gain /= std::sqrt(1.0 + excess);  // an even number of ripples begins at the bottom of one
    return layout;
}

Layout Chebyshev2(int order, double attenuation) {
    if (!HasOrder(order) || !(attenuation > 0.0) || !std::isfinite(attenuation))
        return kNone;
    const double flat = std::asinh(std::sqrt(SquaredExcess(attenuation))) / order;
    Layout layout;
    for (int pair = 0; 2 * pair < order; ++pair) {
        AddRoot(layout.poles, 1.0 / EllipsePole(pair, order, std::sinh(flat), std::cosh(flat)));
        if (2 * pair + 1 != order)
            AddRoot(layout.zeros, {0.0, 1.0 / std::cos(PoleAngle(pair, order))});
    }
    layout.gain = RealProduct(layout.poles, 0.0) / RealProduct(layout.zeros, 0.0);
    return layout;
}

}  // namespace Lumo::Filter
