#include "filter/Cascade.h"
#include "filter/Design.h"
#include "filter/Equaliser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

using namespace Lumo::Filter;

namespace {

std::vector<Section> Sections(int order) {
    return MakeSections(
        *MakeLayout({Family::kElliptic, Kind::kBandPass, order, 48000.0, 900.0, 7000.0, 0.5, 50.0}));
}

std::vector<double> Impulse(std::size_t size) {
    std::vector<double> samples(size);
    samples[0] = 1.0;
    return samples;
}

// Value at a frequency of the transform of samples.
std::complex<double> Transform(const std::vector<double>& samples, double frequency) {
    std::complex<double> sum = 0.0;
    for (std::size_t n = 0; n < samples.size(); ++n)
        sum += samples[n] * std::polar(1.0, -frequency * static_cast<double>(n));
    return sum;
}

}  // namespace

TEST(CascadeTest, EveryFormHasTheResponseOfItsSections) {
    const std::vector<Section> sections = Sections(7);  // seven sections: four together and three more
    ASSERT_EQ(sections.size(), 7U);
    for (Form form : {Form::kDirect1, Form::kDirect2, Form::kTransposed1, Form::kTransposed2}) {
        SCOPED_TRACE(static_cast<int>(form));
        Cascade cascade(form);
        ASSERT_TRUE(cascade.Set(sections));
        std::vector<double> samples = Impulse(30000);
        const std::size_t cut = 777;  // blocks of any size
        cascade.Process(std::span(samples).first(cut));
        cascade.Process(std::span(samples).subspan(cut));
        for (double w : {0.03, 0.2, 0.5, 1.7})
            EXPECT_LT(std::abs(Transform(samples, w) - Response(sections, w)), 1e-9);
        cascade.Reset();
        std::vector<float> single(300);
        single[0] = 1.0F;
        cascade.Process(single);
        for (std::size_t n = 0; n < single.size(); ++n)
            EXPECT_NEAR(single[n], samples[n], 1e-7);
    }
}

TEST(CascadeTest, GlidesInEqualStepsFromMoreSectionsToFewer) {
    Cascade cascade;
    const Section loud{4.0}, twice{2.0};
    ASSERT_TRUE(cascade.Set(std::vector{loud, twice}));
    ASSERT_TRUE(cascade.GlideTo(std::vector{Section{3.0}}, 300));  // 4 to 3 times 2 to 1
    EXPECT_TRUE(cascade.IsGliding());
    std::vector<double> samples(400, 1.0);
    cascade.Process(std::span(samples).first(150));
    EXPECT_TRUE(cascade.IsGliding());
    cascade.Process(std::span(samples).subspan(150));
    EXPECT_FALSE(cascade.IsGliding());
    EXPECT_NEAR(samples[0], (4.0 - 1.0 / 300) * (2.0 - 1.0 / 300), 1e-12);
    EXPECT_NEAR(samples[149], 3.5 * 1.5, 1e-12);
    EXPECT_NEAR(samples[298], (3.0 + 1.0 / 300) * (1.0 + 1.0 / 300), 1e-12);
    EXPECT_EQ(samples[299], 3.0);
    EXPECT_EQ(samples[399], 3.0);
    // A section that comes later begins as one that passes everything, not as the one that was there.
    ASSERT_TRUE(cascade.GlideTo(std::vector{Section{3.0}, Section{1.0, 1.0}}, 2));
    std::vector<double> more(4, 1.0);
    cascade.Process(more);
    EXPECT_EQ(more, (std::vector{3.0, 3.0 + 0.5 * 3.0, 6.0, 6.0}));
}

TEST(CascadeTest, AGlideNeverClicks) {
    Cascade cascade;
    const auto peak = [](double gain) { return std::vector{Peak({500.0, 3.0, 48000.0}, gain)}; };
    ASSERT_TRUE(cascade.Set(peak(-20.0)));
    ASSERT_TRUE(cascade.GlideTo(peak(20.0), 4800));
    std::vector<double> samples(9600);
    for (std::size_t n = 0; n < samples.size(); ++n)
        samples[n] = std::sin(2.0 * std::numbers::pi * 500.0 / 48000.0 * static_cast<double>(n));
    cascade.Process(samples);
    double steepest = 0.0;
    for (std::size_t n = 1; n < samples.size(); ++n)
        steepest = std::max(steepest, std::abs(samples[n] - samples[n - 1]));
    EXPECT_LT(steepest, 10.0 * 2.0 * std::numbers::pi * 500.0 / 48000.0 * 1.05);
    EXPECT_GT(*std::ranges::max_element(samples), 9.9);
}

TEST(CascadeTest, FallsSilentAndForgetsWhatIsNoNumber) {
    for (Form form : {Form::kDirect1, Form::kDirect2, Form::kTransposed1, Form::kTransposed2}) {
        Cascade cascade(form);
        ASSERT_TRUE(cascade.Set(Sections(4)));
        std::vector<double> samples = Impulse(400000);
        cascade.Process(samples);
        EXPECT_EQ(samples.back(), 0.0);
        std::vector<double> bad(256, std::numeric_limits<double>::quiet_NaN());
        cascade.Process(bad);
        std::vector<double> again = Impulse(300), fresh = Impulse(300);
        cascade.Process(again);
        Cascade other(form);
        other.Set(Sections(4));
        other.Process(fresh);
        EXPECT_EQ(again, fresh);
    }
}

TEST(CascadeTest, TakesAsManySectionsAsTheHighestOrderHas) {
    Cascade cascade;
    const auto sections = Sections(kMaxOrder);
    EXPECT_EQ(sections.size(), kMaxSections);
    EXPECT_TRUE(cascade.Set(sections));
    std::vector<Section> more(kMaxSections + 1);
    EXPECT_FALSE(cascade.Set(more));
    EXPECT_FALSE(cascade.GlideTo(more, 5));
    std::vector<double> samples = Impulse(2000);
    cascade.Process(samples);
    EXPECT_NE(samples[1000], 0.0);  // the refused ones changed nothing
}
