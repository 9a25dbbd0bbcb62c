// Second-order sections: the form in which recursive filters run.
#pragma once

#include "filter/Layout.h"

#include <span>
#include <vector>

namespace Lumo::Filter {

/// Coefficients of y[n] = b0 x[n] + b1 x[n-1] + b2 x[n-2] - a1 y[n-1] - a2 y[n-2]. A new one passes
/// everything as it is.
struct Section {
    double b0 = 1.0;  ///< factor of the input
    double b1 = 0.0;  ///< factor of the input one sample ago
    double b2 = 0.0;  ///< factor of the input two samples ago
    double a1 = 0.0;  ///< factor of the output one sample ago, which is taken off
    double a2 = 0.0;  ///< factor of the output two samples ago, which is taken off
};

/// The sections of the filter `digital` with as many zeros as poles, at most one real pole more than one real
/// zero can answer. Every pair of poles gets the zeros next to it; the pair nearest to the unit circle comes
/// last. The whole gain is in the first section. A layout without poles gives one section that only has the
/// gain; one with more zeros than poles, or the other way round, is filled up with roots at 0.
TESSEL_API std::vector<Section> MakeSections(const Layout& digital);

/// Complex gain of `sections` one after the other at `frequency` in radians a sample, 0 to pi; 1 for none.
TESSEL_API std::complex<double> Response(std::span<const Section> sections, double frequency);

/// The gain of `sections` at `frequency` as decibels, never below `floor`.
TESSEL_API double Decibels(std::span<const Section> sections, double frequency, double floor = -400.0);

/// Delay in samples of `sections` at `frequency` in radians a sample, 0 to pi; 0 for no sections.
TESSEL_API double GroupDelay(std::span<const Section> sections, double frequency);

/// Whether the responses of all `sections` to a click fade.
TESSEL_API bool IsStable(std::span<const Section> sections);

}  // namespace Lumo::Filter
