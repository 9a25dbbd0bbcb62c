// Legendre filters: 1 / (1 + L(w^2)), L being the integral of a sum of Legendre polynomials squared, which
// rises everywhere and, of all that do, the fastest at 1.
#include "filter/Prototype.h"

#include "filter/src/Roots.h"

#include <array>
#include <cmath>
#include <numbers>

namespace Lumo::Filter {

namespace {

using Complex = std::complex<double>;

template <typename Number>
struct ValueAndSlope {
    Number value, slope;
};

// The Legendre polynomial of a degree and its derivative; x is not 1 or -1.
ValueAndSlope<double> Polynomial(int degree, double x) {
    double before = 1.0, here = x;
    for (int i = 1; i < degree; ++i) {
        const double next = ((2.0 * i + 1.0) * x * here - i * before) / (i + 1.0);
        before = here;
        here = next;
    }
    return {here, degree * (x * here - before) / (x * x - 1.0)};
}

// Nodes and weights that integrate polynomials up to a degree of 59 exactly, from -1 to 1.
constexpr int kNodes = 30;
struct Quadrature {
    std::array<double, kNodes> node, weight;
    Quadrature() {
        for (int i = 0; i < kNodes; ++i) {
            double x = std::cos(std::numbers::pi * (i + 0.75) / (kNodes + 0.5));
            for (int step = 0; step < 6; ++step) {
                const auto [value, slope] = Polynomial(kNodes, x);
                x -= value / slope;
            }
            const double slope = Polynomial(kNodes, x).slope;
            node[i] = x;
            weight[i] = 2.0 / ((1.0 - x * x) * slope * slope);
        }
    }
};

// dL/dx at x = 2 w^2 - 1.
Complex Slope(int order, Complex x) {
    const int top = (order - 1) / 2;
    const bool even = order % 2 == 0;
    Complex before = 0.0, here = 1.0, sum = 0.0;
    for (int i = 0; i <= top; ++i) {
        if (!even || (top - i) % 2 == 0)
            sum += (2.0 * i + 1.0) * here;
        const Complex next = ((2.0 * i + 1.0) * x * here - static_cast<double>(i) * before) / (i + 1.0);
        before = here;
        here = next;
    }
    if (even)
        return (x + 1.0) * sum * sum / ((top + 1.0) * (top + 2.0));
    return sum * sum / (2.0 * (top + 1.0) * (top + 1.0));
}

// 1 + L at x, and its derivative. L is 1 at 1, from where the integral runs straight to x.
ValueAndSlope<Complex> Denominator(const Quadrature& quadrature, int order, Complex x) {
    const Complex half = (x - 1.0) / 2.0;
    Complex sum = 0.0;
    for (int i = 0; i < kNodes; ++i)
        sum += quadrature.weight[i] * Slope(order, 1.0 + half * (1.0 + quadrature.node[i]));
    return {2.0 + half * sum, Slope(order, x)};
}

}  // namespace

Layout Legendre(int order) {
    if (order < 1 || order > kMaxOrder)
        return {{}, {}, 0.0};
    // The zeros of 1 + L lie around the interval from -1 to 1 in the way of an ellipse; all are improved
    // together, each kept off the others.
    const Quadrature quadrature;
    const double radius = 1.0 + 1.5 / order;
    std::vector<Complex> zero;
    for (int i = 0; i < order; ++i) {
        const Complex turn = std::polar(radius, std::numbers::pi * (2 * i + 1) / order);
        zero.push_back((turn + 1.0 / turn) / 2.0);
    }
    for (double change = 1.0, round = 0; change > 1e-15 && round < 60; ++round) {
        change = 0.0;
        for (Complex& x : zero) {
            const auto [value, slope] = Denominator(quadrature, order, x);
            Complex others = 0.0;
            for (const Complex& other : zero) {
                if (&other != &x)
                    others += 1.0 / (x - other);
            }
            const Complex newton = value / slope;
            const Complex step = newton / (1.0 - newton * others);
            x -= step;
            change = (std::max)(change, std::abs(step));
        }
    }
    Layout layout;
    for (int i = 0; 2 * i < order; ++i) {
        const Complex pole = -std::sqrt(-(zero[i] + 1.0) / 2.0);
        AddRoot(layout.poles, {pole.real(), 2 * i + 1 == order ? 0.0 : pole.imag()});
    }
    layout.gain = RealProduct(layout.poles, 0.0);
    return layout;
}

}  // namespace Lumo::Filter
