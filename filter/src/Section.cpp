#include "filter/Section.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Lumo::Filter {

namespace {

using Complex = std::complex<double>;

bool IsReal(Complex root) {
    return root.imag() == 0.0;
}

// The real roots and the upper one of every pair: pairs first, from left to right.
std::vector<Complex> HalfOf(const std::vector<Complex>& roots, std::size_t size) {
    std::vector<Complex> half;
    for (Complex root : roots) {
        // Rounding leaves a pair of real roots a little off the axis.
        if (std::abs(root.imag()) <= 1e-14 * std::abs(root))
            half.emplace_back(root.real());
        else if (root.imag() > 0.0)
            half.push_back(root);
    }
    for (std::size_t filled = roots.size(); filled < size; ++filled)
        half.emplace_back(0.0);
    std::ranges::sort(half, [](Complex a, Complex b) {
        if (IsReal(a) != IsReal(b))
            return IsReal(b);
        return a.real() != b.real() ? a.real() < b.real() : a.imag() < b.imag();
    });
    return half;
}

enum class Which { kAny, kReal, kComplex };

// Takes the root out for which `badness` is least, of those asked for when there is one.
template <typename Badness>
Complex Take(std::vector<Complex>& roots, Which which, Badness badness) {
    const auto rank = [&](Complex root) {
        const bool wrong = which != Which::kAny && IsReal(root) != (which == Which::kReal);
        return std::pair(wrong, badness(root));
    };
    const auto best = std::ranges::min_element(roots, {}, rank);
    const Complex taken = *best;
    roots.erase(best);
    return taken;
}

std::size_t CountReal(const std::vector<Complex>& roots) {
    return static_cast<std::size_t>(std::ranges::count_if(roots, IsReal));
}

struct RootPair {
    Complex first, second;
};

Section SectionOf(RootPair zeros, RootPair poles) {
    return {1.0, -(zeros.first + zeros.second).real(), (zeros.first * zeros.second).real(),
            -(poles.first + poles.second).real(), (poles.first * poles.second).real()};
}

// Takes the pair of poles nearest to the unit circle and the zeros nearest to it.
Section TakeSection(std::vector<Complex>& zeros, std::vector<Complex>& poles) {
    const auto fromCircle = [](Complex pole) { return std::abs(1.0 - std::abs(pole)); };
    const Complex pole = Take(poles, Which::kAny, fromCircle);
    const auto fromPole = [&](Complex zero) { return std::abs(zero - pole); };
    const RootPair pair{pole, IsReal(pole) ? Take(poles, Which::kReal, fromCircle) : std::conj(pole)};
    // One real pole and one real zero belong together: they are left for each other.
    const bool spareReal = !IsReal(pole) && CountReal(poles) % 2 == 1 && CountReal(zeros) == 1;
    const Complex zero = Take(zeros, spareReal ? Which::kComplex : Which::kAny, fromPole);
    return SectionOf({zero, IsReal(zero) ? Take(zeros, Which::kReal, fromPole) : std::conj(zero)}, pair);
}

Complex Value(const Section& section, Complex back) {
    return (section.b0 + back * (section.b1 + back * section.b2)) /
           (1.0 + back * (section.a1 + back * section.a2));
}

// Delay of c0 + c1 back + c2 back^2.
double Delay(double c0, double c1, double c2, Complex back) {
    const Complex value = c0 + back * (c1 + back * c2);
    const Complex moment = back * (c1 + 2.0 * back * c2);
    return value == 0.0 ? 0.0 : (moment / value).real();
}

}  // namespace

std::vector<Section> MakeSections(const Layout& digital) {
    const std::size_t size = ((std::max)(digital.zeros.size(), digital.poles.size()) + 1) / 2 * 2;
    std::vector<Complex> zeros = HalfOf(digital.zeros, size);
    std::vector<Complex> poles = HalfOf(digital.poles, size);
    std::vector<Section> sections;
    while (!poles.empty())
        sections.push_back(TakeSection(zeros, poles));
    if (sections.empty())
        sections.emplace_back();
    std::ranges::reverse(sections);
    for (double* coefficient : {&sections[0].b0, &sections[0].b1, &sections[0].b2})
        *coefficient *= digital.gain;
    return sections;
}

Complex Response(std::span<const Section> sections, double frequency) {
    const Complex back = std::polar(1.0, -frequency);
    Complex value = 1.0;
    for (const Section& section : sections)
        value *= Value(section, back);
    return value;
}

double Decibels(std::span<const Section> sections, double frequency, double floor) {
    // Through sin^2 of half the frequency, which keeps its digits at low frequencies.
    const double s = std::sin(frequency / 2.0);
    const double phi = s * s;
    const auto power = [phi](double c0, double c1, double c2) {
        const double sum = c0 + c1 + c2;
        return sum * sum - 4.0 * (c0 * c1 + 4.0 * c0 * c2 + c1 * c2) * phi + 16.0 * c0 * c2 * phi * phi;
    };
    double decibels = 0.0;
    for (const Section& section : sections) {
        const double gain = power(section.b0, section.b1, section.b2) / power(1.0, section.a1, section.a2);
        if (!(gain > 0.0))
            return floor;
        decibels += 10.0 * std::log10(gain);
    }
    return (std::max)(floor, decibels);
}

double GroupDelay(std::span<const Section> sections, double frequency) {
    const Complex back = std::polar(1.0, -frequency);
    double delay = 0.0;
    for (const Section& section : sections)
        delay += Delay(section.b0, section.b1, section.b2, back) - Delay(1.0, section.a1, section.a2, back);
    return delay;
}

bool IsStable(std::span<const Section> sections) {
    return std::ranges::all_of(sections, [](const Section& section) {
        return std::abs(section.a2) < 1.0 && std::abs(section.a1) < 1.0 + section.a2;
    });
}

}  // namespace Lumo::Filter
