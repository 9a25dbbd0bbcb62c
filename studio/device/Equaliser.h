// The filters of the device: bands of its equalisers, and the edges of a crossover.
#pragma once

#include "filter/Section.h"

#include <vector>

namespace Studio {

/// Shapes of an equaliser band.
enum class BandType { kPeak, kLowShelf, kHighShelf, kLowPass, kHighPass, kNotch };
inline constexpr int kBandTypeCount = 6;

/// Rate at which the device works, in Hz.
inline constexpr double kSampleRate = 96000.0;

/// One band: frequency in Hz, gain in dB (peak and shelves), Q.
struct Band {
    BandType type = BandType::kPeak;
    double frequency = 1000.0;
    double gain = 0.0;
    double q = 0.707;
    bool on = true;
};

/// The filter of a band; one that passes everything for a band that is off.
Lumo::Filter::Section MakeSection(const Band& band);

/// What the edges of a crossover are made of. Linkwitz-Riley is 6 dB down at its edge and Butterworth 3, at
/// every slope; the delay of Bessel is the most even.
enum class CrossoverType { kButterworth, kBessel, kLinkwitzRiley };
inline constexpr int kCrossoverTypeCount = 3;

/// One edge of a crossover: `slope` in dB per octave is a multiple of 12 up to 48, others are taken as the
/// one below.
struct CrossoverEdge {
    CrossoverType type = CrossoverType::kLinkwitzRiley;
    bool highPass = false;
    double frequency = 1000.0;
    double slope = 24.0;
};
std::vector<Lumo::Filter::Section> MakeSections(const CrossoverEdge& edge);

/// Gain of filters one after the other at a frequency in Hz, in dB; never below -120.
double ResponseAt(std::span<const Lumo::Filter::Section> sections, double frequency);

}  // namespace Studio
