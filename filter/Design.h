// Digital filters for given edges.
#pragma once

#include "filter/Prototype.h"

#include <optional>

namespace Lumo::Filter {

/// The shape that the poles and zeros are laid out for.
enum class Family {
    kButterworth,  ///< as flat as can be
    kChebyshev1,   ///< equal ripples up to the edge
    kChebyshev2,   ///< equal ripples from the edge on
    kElliptic,     ///< equal ripples on both sides
    kBessel,       ///< as constant a delay as can be
    kLegendre,     ///< the steepest one that falls all the way
};

/// What passes.
enum class Kind {
    kLowPass,   ///< what is below the edge
    kHighPass,  ///< what is above the edge
    kBandPass,  ///< what is between the edges
    kBandStop,  ///< what is not between the edges
};

/// What is asked of a filter. What an edge is follows from the family: see the prototypes.
struct Request {
    Family family = Family::kButterworth;  ///< the shape
    Kind kind = Kind::kLowPass;            ///< what passes
    int order = 2;           ///< of the prototype, 1 to kMaxOrder; bands get twice as many poles
    double rate = 96000.0;   ///< samples a second
    double edge = 1000.0;    ///< in Hz, above 0 and below half of `rate`; the lower one of a band
    double upperEdge = 0.0;  ///< in Hz, above `edge` and below half of `rate`; only for bands
    double ripple = 1.0;     ///< in dB, more than 0; only for Chebyshev I and elliptic
    double attenuation =
        60.0;  ///< in dB, more than 0; only for Chebyshev II and, more than `ripple`, elliptic
    BesselEdge besselEdge = BesselEdge::kPhase;  ///< what the edge is; only for Bessel
};

/// The digital filter that `request` asks for, by the bilinear transform with its edges kept where they are
/// asked for. Has as many zeros as poles. Nothing when the request is outside its ranges, or so extreme that
/// rounding leaves no usable gain or a pole on the unit circle.
TESSEL_API std::optional<Layout> MakeLayout(const Request& request);

}  // namespace Lumo::Filter
