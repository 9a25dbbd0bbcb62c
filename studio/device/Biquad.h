// Second-order filters and what they do to a frequency.
#pragma once

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

/// Coefficients, with that of the newest output sample normalised to 1.
struct Biquad {
    double b0 = 1.0, b1 = 0.0, b2 = 0.0, a1 = 0.0, a2 = 0.0;

    /// Gain at a frequency in Hz, in dB; never below -120.
    double Response(double frequency) const;
};

/// The filter of a band; one that passes everything for a band that is off. Frequency and Q are kept within
/// what a filter can do.
Biquad MakeBiquad(const Band& band);

/// The first section of a crossover edge is Butterworth; `order` 2 or 4 gives 12 or 24 dB per octave
/// (24: two equal sections, 6 dB down at the edge). Gain at `frequency` in dB, never below -120.
double CrossoverResponse(bool highPass, double edge, int order, double frequency);

}  // namespace Studio
