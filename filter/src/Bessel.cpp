// Bessel filters. Their poles are -z for the zeros of p(z) = theta(-z), theta being the reverse Bessel
// polynomial of the order n. Its coefficients and its recurrence both lose all digits there at high orders.
// What keeps them is
//   theta(-z) e^z = theta(z) e^-z (1 + r(z)),   r(z) = 2 (-1)^n z^(n+1) i_n(z) e^z / theta(z),
// i_n being the modified spherical Bessel function: to the right of the imaginary axis theta(z) is
// well-behaved upwards, i_n downwards, and at a zero r is -1.
#include "filter/Prototype.h"

#include "filter/src/Roots.h"

#include <cmath>
#include <numbers>

namespace Lumo::Filter {

namespace {

using Complex = std::complex<double>;

struct ValueAndSlope {
    Complex value, slope;
};

// theta of the order and its derivative.
ValueAndSlope Theta(int order, Complex z) {
    ValueAndSlope before{1.0, 0.0}, here{z + 1.0, 1.0};
    for (int k = 1; k < order; ++k) {
        const double odd = 2.0 * k + 1.0;
        const ValueAndSlope next{odd * here.value + z * z * before.value,
                                 odd * here.slope + 2.0 * z * before.value + z * z * before.slope};
        before = here;
        here = next;
    }
    return here;
}

// i_n and i_(n-1), from far above downwards, scaled by i_0 or i_1, whichever is not near a zero of its own.
struct Neighbours {
    Complex own, below;
};
Neighbours SphericalBessel(int order, Complex z) {
    Neighbours found{};
    Complex above = 0.0, here = 1e-250;
    for (int k = 3 * order + 60; k > 0; --k) {
        const Complex below = above + (2.0 * k + 1.0) / z * here;
        above = here;
        here = below;
        if (std::abs(here) > 1e200) {
            for (Complex* value : {&above, &here, &found.own, &found.below})
                *value *= 1e-200;
        }
        if (k - 1 == order)
            found.own = here;
        if (k == order)
            found.below = here;
    }
    const Complex i0 = std::sinh(z) / z;
    const Complex scale = std::abs(here) > std::abs(above) ? i0 / here : (std::cosh(z) - i0) / z / above;
    return {found.own * scale, found.below * scale};
}

// One step of Newton's method for 1 + r(z) = 0.
Complex Step(int order, Complex z) {
    const ValueAndSlope theta = Theta(order, z);
    const Neighbours bessel = SphericalBessel(order, z);
    const double sign = order % 2 == 0 ? 2.0 : -2.0;
    const Complex r = sign * std::pow(z, order + 1) * bessel.own * std::exp(z) / theta.value;
    const Complex slope = bessel.below / bessel.own + 1.0 - theta.slope / theta.value;
    return (1.0 + r) / (r * slope);
}

// The zeros lie close to nu * zeta where eta(zeta) = sqrt(1 + zeta^2) + log(zeta / (1 + sqrt(1 + zeta^2))) is
// a certain imaginary number; gives the zeta next to `zeta` for that number.
Complex SolveEta(Complex zeta, double number) {
    for (int i = 0; i < 8; ++i) {
        const Complex root = std::sqrt(1.0 + zeta * zeta);
        zeta -= (root + std::log(zeta / (1.0 + root)) - Complex(0.0, number)) * zeta / root;
    }
    return zeta;
}

double SquaredGain(const Layout& layout, double frequency) {
    return std::norm(Transfer(layout, {0.0, frequency}));
}

// Frequency of half the power, below which there is more.
double HalfPower(const Layout& layout) {
    double low = 0.0, high = 1.0;
    while (SquaredGain(layout, high) > 0.5)
        high *= 2.0;
    for (int i = 0; i < 100 && low < high; ++i) {
        const double middle = (low + high) / 2.0;
        (SquaredGain(layout, middle) > 0.5 ? low : high) = middle;
    }
    return high;
}

// Moves all poles so that their product is 1 or, after that, divides them by `edge`.
void Scale(Layout& layout, double edge) {
    for (Complex& pole : layout.poles)
        pole /= edge;
    layout.gain = RealProduct(layout.poles, 0.0);
}

double GeometricMean(const Layout& layout) {
    double sum = 0.0;
    for (Complex pole : layout.poles)
        sum += std::log(std::abs(pole));
    return std::exp(sum / static_cast<double>(layout.poles.size()));
}

}  // namespace

Layout Bessel(int order, BesselEdge edge) {
    if (order < 1 || order > kMaxOrder)
        return {{}, {}, 0.0};
    Layout layout;
    const double nu = order + 0.5;
    Complex zeta = 0.66274341934918;  // where eta is 0
    for (int twice = (order + 1) % 2; twice < order; twice += 2) {
        zeta = SolveEta(zeta, std::numbers::pi * twice / (2.0 * nu));
        Complex z = nu * zeta;
        for (int i = 0; i < 6; ++i)
            z -= Step(order, z);
        AddRoot(layout.poles, {-z.real(), twice == 0 ? 0.0 : z.imag()});
    }
    Scale(layout, 1.0);
    if (edge == BesselEdge::kPhase)
        Scale(layout, GeometricMean(layout));
    if (edge == BesselEdge::kMagnitude)
        Scale(layout, HalfPower(layout));
    return layout;
}

}  // namespace Lumo::Filter
