#include "filter/Design.h"

#include "filter/src/Roots.h"

#include <cmath>
#include <numbers>

namespace Lumo::Filter {

namespace {

using Complex = std::complex<double>;

Layout Prototype(const Request& request) {
    switch (request.family) {
        case Family::kButterworth:
            return Butterworth(request.order);
        case Family::kChebyshev1:
            return Chebyshev1(request.order, request.ripple);
        case Family::kChebyshev2:
            return Chebyshev2(request.order, request.attenuation);
        case Family::kElliptic:
            return Elliptic(request.order, request.ripple, request.attenuation);
        case Family::kBessel:
            return Bessel(request.order, request.besselEdge);
        case Family::kLegendre:
            return Legendre(request.order);
    }
    return {{}, {}, 0.0};
}

bool IsBand(Kind kind) {
    return kind == Kind::kBandPass || kind == Kind::kBandStop;
}

// Two roots for one: those of x^2 - 2 half x + product. The larger one comes first; the smaller one, from
// their product, keeps its digits.
void AddSplit(std::vector<Complex>& roots, Complex half, double product) {
    const Complex root = std::sqrt(half * half - product);
    const Complex larger = std::norm(half + root) > std::norm(half - root) ? half + root : half - root;
    roots.push_back(larger);
    roots.push_back(product / larger);
}

// Moves the analogue low pass of edge 1 to the frequencies `low` and `high`; missing zeros are at infinity.
Layout Move(const Layout& prototype, Kind kind, double low, double high) {
    const bool turned = kind == Kind::kHighPass || kind == Kind::kBandStop;
    const auto move = [&](const std::vector<Complex>& from, std::vector<Complex>& to) {
        for (Complex root : from) {
            if (!IsBand(kind))
                to.push_back(turned ? low / root : low * root);
            else
                AddSplit(to, (high - low) / 2.0 * (turned ? 1.0 / root : root), low * high);
        }
    };
    Layout moved;
    move(prototype.zeros, moved.zeros);
    move(prototype.poles, moved.poles);
    moved.gain = prototype.gain;
    const std::size_t missing = prototype.poles.size() - prototype.zeros.size();
    for (std::size_t i = 0; i < missing; ++i) {
        if (kind == Kind::kHighPass || kind == Kind::kBandPass)
            moved.zeros.emplace_back(0.0);  // from infinity, or one of two; the other stays there
        if (kind == Kind::kBandStop) {
            moved.zeros.emplace_back(0.0, std::sqrt(low * high));
            moved.zeros.emplace_back(0.0, -std::sqrt(low * high));
        }
        if (!turned)
            moved.gain *= IsBand(kind) ? high - low : low;
    }
    // Turned round, the gain far above is what it was at 0.
    if (turned)
        moved.gain *= RealProduct(prototype.zeros, 0.0) / RealProduct(prototype.poles, 0.0);
    return moved;
}

// The bilinear transform s = (z - 1) / (z + 1); zeros at infinity come to -1.
Layout Digital(const Layout& analogue) {
    const auto map = [](Complex s) { return (1.0 + s) / (1.0 - s); };
    Layout digital;
    Complex gain = analogue.gain;
    for (std::size_t i = 0; i < analogue.poles.size(); ++i) {
        const Complex pole = analogue.poles[i];
        digital.poles.push_back(map(pole));
        gain /= 1.0 - pole;
        const bool finite = i < analogue.zeros.size();
        digital.zeros.push_back(finite ? map(analogue.zeros[i]) : -1.0);
        if (finite)
            gain *= 1.0 - analogue.zeros[i];
    }
    digital.gain = gain.real();
    return digital;
}

}  // namespace

std::optional<Layout> MakeLayout(const Request& request) {
    const double nyquist = request.rate / 2.0;
    const double top = IsBand(request.kind) ? request.upperEdge : request.edge;
    if (!(request.edge > 0.0) || !(top < nyquist) || !std::isfinite(nyquist))
        return std::nullopt;
    if (IsBand(request.kind) && !(request.upperEdge > request.edge))
        return std::nullopt;
    const Layout prototype = Prototype(request);
    if (prototype.poles.empty())
        return std::nullopt;
    const auto warp = [&](double frequency) { return std::tan(std::numbers::pi * frequency / request.rate); };
    Layout layout = Digital(Move(prototype, request.kind, warp(request.edge), warp(top)));
    if (!std::isnormal(layout.gain) || !IsStable(layout))
        return std::nullopt;
    return layout;
}

}  // namespace Lumo::Filter
