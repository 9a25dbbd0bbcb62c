// Analogue low-pass filters with their edge at 1 radian a second: what every design starts from.
#pragma once

#include "filter/Layout.h"

namespace Lumo::Filter {

/// Highest order of a prototype.
inline constexpr int kMaxOrder = 50;

/// What the edge of a Bessel filter is.
enum class BesselEdge {
    kPhase,  ///< the phase has come half of its way; far above, it falls like a Butterworth filter of that
             ///< edge
    kDelay,  ///< one over the delay in seconds at low frequencies
    kMagnitude,  ///< the gain is 3 dB down
};

/// A filter of `order` 1 to kMaxOrder, as flat as can be; 3 dB down at the edge. Like all of these functions
/// it answers a layout without poles and with a gain of 0 for anything outside the ranges.
TESSEL_API Layout Butterworth(int order);
/// A filter of `order` 1 to kMaxOrder with equal ripples of `ripple` dB (more than 0) up to the edge, falling
/// beyond.
TESSEL_API Layout Chebyshev1(int order, double ripple);
/// A filter of `order` 1 to kMaxOrder, falling up to the edge, `attenuation` dB (more than 0) down from the
/// edge on.
TESSEL_API Layout Chebyshev2(int order, double attenuation);
/// A filter of `order` 1 to kMaxOrder with equal ripples of `ripple` dB (more than 0) up to the edge, and
/// soon beyond it `attenuation` dB (more than `ripple`) down: the steepest one of its order.
TESSEL_API Layout Elliptic(int order, double ripple, double attenuation);
/// A filter of `order` 1 to kMaxOrder with as constant a delay as can be; `edge` says what the edge is.
TESSEL_API Layout Bessel(int order, BesselEdge edge = BesselEdge::kPhase);
/// A filter of `order` 1 to kMaxOrder, the steepest one at the edge, where it is 3 dB down, of those that
/// fall all the way.
TESSEL_API Layout Legendre(int order);

}  // namespace Lumo::Filter
