#include "studio/device/Equaliser.h"

#include "filter/Design.h"
#include "filter/Equaliser.h"

#include <algorithm>
#include <numbers>

namespace Studio {

namespace Filter = Lumo::Filter;

Filter::Section MakeSection(const Band& band) {
    if (!band.on)
        return {};
    const Filter::Band place{band.frequency, band.q, kSampleRate};
    switch (band.type) {
        case BandType::kLowShelf:
            return Filter::LowShelf(place, band.gain);
        case BandType::kHighShelf:
            return Filter::HighShelf(place, band.gain);
        case BandType::kLowPass:
            return Filter::LowPass(place);
        case BandType::kHighPass:
            return Filter::HighPass(place);
        case BandType::kNotch:
            return Filter::Notch(place);
        default:
            return Filter::Peak(place, band.gain);
    }
}

std::vector<Filter::Section> MakeSections(const CrossoverEdge& edge) {
    const bool twice =
        edge.type == CrossoverType::kLinkwitzRiley;  // Butterworth of half the order, two times
    const int order = 2 * static_cast<int>(std::clamp(edge.slope, 12.0, 48.0) / 12.0);
    Filter::Request request;
    request.family =
        edge.type == CrossoverType::kBessel ? Filter::Family::kBessel : Filter::Family::kButterworth;
    request.kind = edge.highPass ? Filter::Kind::kHighPass : Filter::Kind::kLowPass;
    request.order = twice ? order / 2 : order;
    request.rate = kSampleRate;
    request.edge = std::clamp(edge.frequency, 1.0, 0.49 * kSampleRate);
    std::vector<Filter::Section> sections = Filter::MakeSections(*Filter::MakeLayout(request));
    if (twice)
        sections.insert(sections.end(), sections.begin(), sections.end());
    return sections;
}

double ResponseAt(std::span<const Filter::Section> sections, double frequency) {
    return Filter::Decibels(sections, 2.0 * std::numbers::pi * frequency / kSampleRate, -120.0);
}

}  // namespace Studio
