#include "filter/Layout.h"

#include <algorithm>
#include <cmath>

namespace Lumo::Filter {

namespace {

using Complex = std::complex<double>;

// Part of a root in the delay; a root on the unit circle gives half a sample everywhere, at itself too.
double Delay(Complex root, Complex z) {
    return root == z ? -0.5 : (root / (z - root)).real();
}

}  // namespace

Complex Transfer(const Layout& layout, Complex x) {
    // Zeros and poles in turn, so that many of them do not leave the range of numbers on the way.
    Complex value = layout.gain;
    for (std::size_t i = 0; i < (std::max)(layout.zeros.size(), layout.poles.size()); ++i) {
        if (i < layout.zeros.size())
            value *= x - layout.zeros[i];
        if (i < layout.poles.size())
            value /= x - layout.poles[i];
    }
    return value;
}

Complex Response(const Layout& digital, double frequency) {
    return Transfer(digital, std::polar(1.0, frequency));
}

double GroupDelay(const Layout& digital, double frequency) {
    const Complex z = std::polar(1.0, frequency);
    double delay = static_cast<double>(digital.poles.size()) - static_cast<double>(digital.zeros.size());
    for (Complex pole : digital.poles)
        delay += Delay(pole, z);
    for (Complex zero : digital.zeros)
        delay -= Delay(zero, z);
    return delay;
}

bool IsStable(const Layout& digital) {
    return std::ranges::all_of(digital.poles, [](Complex pole) { return std::abs(pole) < 1.0; });
}

}  // namespace Lumo::Filter
