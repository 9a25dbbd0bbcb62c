// Elliptic filters. The moduli come from the nome, whose power series are quick and precise at both ends; the
// elliptic functions from descending Landen steps.
#include "filter/Prototype.h"

#include "filter/src/Roots.h"

#include <array>
#include <cmath>
#include <numbers>

namespace Lumo::Filter {

namespace {

// A modulus and its complement, both to full precision however near to 0 the one is.
struct Modulus {
    double k;
    double complement;
};

double ArithmeticGeometricMean(double a, double b) {
    while (std::abs(a - b) > 1e-15 * a) {
        const double mean = (a + b) / 2.0;
        b = std::sqrt(a * b);
        a = mean;
    }
    return a;
}

Modulus FromNome(double q) {
    double theta2 = 0.0, theta3 = 0.5;
    for (int n = 0; n < 200; ++n) {
        const double odd = std::pow(q, n * (n + 1.0));
        const double even = std::pow(q, (n + 1.0) * (n + 1.0));
        theta2 += odd;
        theta3 += even;
        if (odd < 1e-20)
            break;
    }
    // Near a modulus of 1 the sum for the complement cancels; the product does not.
    double complement = 1.0;
    for (double power = q; power > 1e-18; power *= q * q)
        complement *= std::pow((1.0 - power) / (1.0 + power), 4.0);
    const double root = theta2 / theta3;
    return {std::sqrt(q) * root * root, complement};
}

// The modulus whose elliptic rational function of this order has the modulus `discrimination`.
Modulus SolveDegree(int order, Modulus discrimination) {
    const double ratio = ArithmeticGeometricMean(1.0, discrimination.complement) /
                         ArithmeticGeometricMean(1.0, discrimination.k);
    return FromNome(std::exp(-std::numbers::pi * ratio / order));
}

// Moduli of the descending Landen steps, down to one that is as good as 0.
class Landen {
public:
    explicit Landen(Modulus modulus) {
        while (modulus.k > 1e-18 && m_count < m_k.size()) {
            const double above = 1.0 + modulus.complement;
            modulus = {modulus.k * modulus.k / (above * above), 2.0 * std::sqrt(modulus.complement) / above};
            m_k[m_count++] = modulus.k;
        }
    }

    // cd of u quarter periods.
    std::complex<double> Cd(std::complex<double> u) const {
        std::complex<double> w = std::cos(u * std::numbers::pi / 2.0);
        for (std::size_t i = m_count; i-- > 0;)
            w = (1.0 + m_k[i]) * w / (1.0 + m_k[i] * w * w);
        return w;
    }

    // The v for which sn of jv quarter periods is jy.
    double InverseSn(double y, double modulus) const {
        double above = modulus;
        for (std::size_t i = 0; i < m_count; ++i) {
            y *= 2.0 / ((1.0 + m_k[i]) * (1.0 + std::hypot(1.0, y * above)));
            above = m_k[i];
        }
        return std::asinh(y) * 2.0 / std::numbers::pi;
    }

private:
    std::array<double, 16> m_k;
    std::size_t m_count = 0;
};

}  // namespace

Layout Elliptic(int order, double ripple, double attenuation) {
    if (order < 1 || order > kMaxOrder || !(ripple > 0.0) || !(attenuation > ripple) ||
        !std::isfinite(attenuation))
        return {{}, {}, 0.0};
    const double pass = std::expm1(ripple * std::numbers::ln10 / 10.0);
    const double stop = std::expm1(attenuation * std::numbers::ln10 / 10.0);
    const Modulus discrimination{std::sqrt(pass / stop), std::sqrt((stop - pass) / stop)};
    const Modulus modulus = SolveDegree(order, discrimination);
    const double depth = Landen(discrimination).InverseSn(1.0 / std::sqrt(pass), discrimination.k) / order;

    const Landen landen(modulus);
    const std::complex<double> j(0.0, 1.0);
    Layout layout;
    for (int pair = 0; 2 * pair + 1 < order; ++pair) {
        const double u = (2.0 * pair + 1.0) / order;
        AddRoot(layout.zeros, {0.0, 1.0 / (modulus.k * landen.Cd(u).real())});
        AddRoot(layout.poles, j * landen.Cd(std::complex<double>(u, -depth)));
    }
    if (order % 2 != 0)
        layout.poles.emplace_back((j * landen.Cd(std::complex<double>(1.0, -depth))).real());
    layout.gain = RealProduct(layout.poles, 0.0) / RealProduct(layout.zeros, 0.0);
    if (order % 2 == 0)
        layout.gain /= std::sqrt(1.0 + pass);  // an even number of ripples begins at the bottom of one
    return layout;
}

}  // namespace Lumo::Filter
