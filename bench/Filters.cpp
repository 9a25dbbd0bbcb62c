// Samples through a cascade of sections.
#include "bench/Table.h"

#include "filter/Cascade.h"
#include "filter/Design.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace bench {

// TESSEL_BENCH_SOSFILT says how many samples a second the peer made, just before this run.
void MeasureFilters(std::vector<Line>& lines) {
    using namespace Lumo::Filter;
    Cascade cascade;
    cascade.Set(MakeSections(*MakeLayout({Family::kButterworth, Kind::kLowPass, 16, 2.0, 0.1})));
    std::vector<double> samples(65536);
    std::minstd_rand random(1);
    std::uniform_real_distribution<double> noise(-1.0, 1.0);
    double best = 1e9;
    for (int round = 0; round < 21; ++round) {
        std::ranges::generate(samples, [&] { return noise(random); });
        best = std::min(best, Seconds([&] { cascade.Process(samples); }));
    }
    const double ours = static_cast<double>(samples.size()) / best;
    char detail[64];
    std::snprintf(detail, sizeof detail, "%.3g million samples a second", ours / 1e6);
    const char* peer = std::getenv("TESSEL_BENCH_SOSFILT");
    if (const double theirs = peer ? std::atof(peer) : 0.0; theirs > 0.0)
        lines.push_back(
            {"a cascade of eight sections, against SciPy's sosfilt", ours / theirs, "x", 0.8, true, detail});
}

}  // namespace bench
