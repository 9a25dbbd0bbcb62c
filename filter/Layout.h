// Poles, zeros and gain of a recursive filter.
#pragma once

#include "core/Export.h"

#include <complex>
#include <vector>

namespace Lumo::Filter {

/// A filter as the roots of its transfer function, gain * prod(x - zero) / prod(x - pole). x is s for an
/// analogue filter (frequencies in radians a second) and z for a digital one. Complex roots come in conjugate
/// pairs, the two of a pair one after the other.
struct Layout {
    std::vector<std::complex<double>> zeros;  ///< where the transfer function is 0
    std::vector<std::complex<double>> poles;  ///< where it is infinite
    double gain = 1.0;                        ///< the factor before the products, no decibels
};

/// Value of the transfer function of `layout` at a point `x`. Infinite or not a number at a pole.
TESSEL_API std::complex<double> Transfer(const Layout& layout, std::complex<double> x);

/// Complex gain of the filter `digital` at `frequency` in radians a sample, 0 to pi.
TESSEL_API std::complex<double> Response(const Layout& digital, double frequency);

/// Delay in samples that the filter `digital` gives to a narrow band around `frequency` in radians a sample,
/// 0 to pi.
TESSEL_API double GroupDelay(const Layout& digital, double frequency);

/// Whether every pole of the filter `digital` lies within the unit circle, so that its response to a click
/// fades.
TESSEL_API bool IsStable(const Layout& digital);

}  // namespace Lumo::Filter
