// The second-order sections of equalisers.
#pragma once

#include "filter/Section.h"

namespace Lumo::Filter {

/// Place and width of an equaliser's section. Values outside the ranges are taken as the nearest ones within.
struct Band {
    double frequency = 1000.0;  ///< middle or corner in Hz, 0.00001 to 0.499 of the rate
    double q = 0.707;           ///< middle over width, 0.05 to 100
    double rate = 96000.0;      ///< samples a second
};

/// Lifts or lowers around the middle of `band` by `gain` dB, -120 to 120.
TESSEL_API Section Peak(const Band& band, double gain);
/// Lifts or lowers everything below the corner of `band` by `gain` dB, -120 to 120; half of it at the corner.
TESSEL_API Section LowShelf(const Band& band, double gain);
/// Lifts or lowers everything above the corner of `band` by `gain` dB, -120 to 120; half of it at the corner.
TESSEL_API Section HighShelf(const Band& band, double gain);
/// Takes the middle of `band` out.
TESSEL_API Section Notch(const Band& band);
/// Turns the phase by 360 degrees in all, 180 at the middle of `band`, and leaves the gain at 1.
TESSEL_API Section AllPass(const Band& band);
/// Passes what is below the corner of `band`; the gain at the corner is its q.
TESSEL_API Section LowPass(const Band& band);
/// Passes what is above the corner of `band`; the gain at the corner is its q.
TESSEL_API Section HighPass(const Band& band);

}  // namespace Lumo::Filter
