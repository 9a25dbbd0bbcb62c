// What no reference says: Legendre filters, requests that are refused, sections by hand, equalisers.
#include "filter/Design.h"
#include "filter/Equaliser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

using namespace Lumo::Filter;
using Complex = std::complex<double>;

namespace {

double Loss(const Layout& prototype, double frequency) {
    return 1.0 / std::norm(Transfer(prototype, {0.0, frequency})) - 1.0;
}

double Degrees(Complex value) {
    return std::arg(value) * 180.0 / std::numbers::pi;
}

}  // namespace

TEST(LegendreTest, LossIsThePolynomialOfTheOrderAndOnlyRises) {
    const double w = 0.83, x = w * w;
    EXPECT_NEAR(Loss(Legendre(1), w), x, 1e-14);
    EXPECT_NEAR(Loss(Legendre(2), w), x * x, 1e-14);
    EXPECT_NEAR(Loss(Legendre(3), w), 3 * x * x * x - 3 * x * x + x, 1e-14);
    EXPECT_NEAR(Loss(Legendre(4), w), 6 * std::pow(x, 4) - 8 * std::pow(x, 3) + 3 * x * x, 1e-14);
    EXPECT_NEAR(Loss(Legendre(5), w),
                20 * std::pow(x, 5) - 40 * std::pow(x, 4) + 28 * std::pow(x, 3) - 8 * x * x + x, 1e-14);
    for (int order = 1; order <= kMaxOrder; ++order) {
        SCOPED_TRACE(order);
        const Layout layout = Legendre(order);
        ASSERT_EQ(layout.poles.size(), static_cast<std::size_t>(order));
        EXPECT_NEAR(Loss(layout, 1.0), 1.0, 1e-10);
        for (double at = 0.05; at < 1.4; at += 0.01)
            EXPECT_GT(Loss(layout, at + 0.01), Loss(layout, at) - 1e-13);
        if (order > 2) {
            EXPECT_GT(Loss(layout, 1.05), Loss(Butterworth(order), 1.05));
        }
        for (Complex pole : layout.poles)
            EXPECT_LT(pole.real(), 0.0);
    }
}

TEST(EllipticTest, RipplesAndStopsAsAskedAtEveryOrder) {
    // Beyond where the reference keeps its digits: all orders, a shallow and a deep filter.
    for (const auto& [ripple, attenuation] : {std::pair{3.1, 24.7}, {0.02, 131.0}}) {
        for (int order = 1; order <= kMaxOrder; ++order) {
            SCOPED_TRACE(order);
            const Layout layout = Elliptic(order, ripple, attenuation);
            ASSERT_EQ(layout.poles.size(), static_cast<std::size_t>(order));
            EXPECT_NEAR(10.0 * std::log10(1.0 + Loss(layout, 0.0)), order % 2 == 0 ? ripple : 0.0, 1e-7);
            double deepest = 0.0, weakest = 1e300;
            for (double w = 0.0; w < 0.999; w += 0.001)
                deepest = std::max(deepest, Loss(layout, w));
            const double stop = layout.zeros.empty() ? 1e9 : std::abs(layout.zeros[0]);  // the innermost one
            for (double w = stop; w < 30.0 * stop; w *= 1.003)
                weakest = std::min(weakest, Loss(layout, w));
            EXPECT_LT(10.0 * std::log10(1.0 + deepest), ripple + 1e-6);
            EXPECT_GT(10.0 * std::log10(1.0 + weakest), attenuation - 1e-6);
        }
    }
}

TEST(DesignTest, WhatIsOutsideTheRangesIsRefused) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Request good{Family::kElliptic, Kind::kBandPass, 5, 48000.0, 300.0, 5000.0, 0.5, 50.0};
    ASSERT_TRUE(MakeLayout(good));
    const auto refused = [&](auto change) {
        Request request = good;
        change(request);
        return !MakeLayout(request);
    };
    EXPECT_TRUE(refused([](Request& r) { r.order = 0; }));
    EXPECT_TRUE(refused([](Request& r) { r.order = kMaxOrder + 1; }));
    EXPECT_TRUE(refused([](Request& r) { r.edge = 0.0; }));
    EXPECT_TRUE(refused([](Request& r) { r.upperEdge = 24000.0; }));
    EXPECT_TRUE(refused([](Request& r) { r.upperEdge = 300.0; }));
    EXPECT_TRUE(refused([](Request& r) { r.ripple = 50.0; }));
    EXPECT_TRUE(refused([](Request& r) { r.rate = std::numeric_limits<double>::infinity(); }));
    EXPECT_TRUE(refused([](Request& r) { r.family = static_cast<Family>(17); }));
    for (double Request::*member :
         {&Request::rate, &Request::edge, &Request::upperEdge, &Request::ripple, &Request::attenuation})
        EXPECT_TRUE(refused([&](Request& r) { r.*member = nan; }));
    // Rounding would put its poles on the unit circle.
    EXPECT_FALSE(MakeLayout({Family::kButterworth, Kind::kLowPass, 50, 192000.0, 1e-9}));
    EXPECT_TRUE(Chebyshev1(3, 0.0).poles.empty());
    EXPECT_TRUE(Chebyshev2(3, -1.0).poles.empty());
}

TEST(SectionTest, OddAndEmptyLayoutsAndStability) {
    EXPECT_EQ(MakeSections({{}, {}, 0.25})[0].b0, 0.25);
    const std::vector<Section> odd = MakeSections({{0.5}, {-0.25, {0.1, 0.2}, {0.1, -0.2}}, 3.0});
    ASSERT_EQ(odd.size(), 2U);
    const Layout same{{0.5, 0.0, 0.0, 0.0}, {-0.25, {0.1, 0.2}, {0.1, -0.2}, 0.0}, 3.0};
    for (double w : {0.0, 0.7, 3.1}) {
        EXPECT_LT(std::abs(Response(odd, w) - Response(same, w)), 1e-13);
        EXPECT_NEAR(GroupDelay(odd, w), GroupDelay(same, w), 1e-13);
        EXPECT_NEAR(Decibels(odd, w), 20.0 * std::log10(std::abs(Response(same, w))), 1e-10);
    }
    EXPECT_TRUE(IsStable(odd));
    EXPECT_FALSE(IsStable(std::vector<Section>{{}, {1.0, 0.0, 0.0, 1.95, 0.94}}));
    EXPECT_FALSE(IsStable(std::vector<Section>{{1.0, 0.0, 0.0, 0.3, 1.01}}));
    EXPECT_FALSE(IsStable(Layout{{}, {0.3, {0.6, 0.9}, {0.6, -0.9}}, 1.0}));
}

TEST(EqualiserTest, GainsWhereTheyAreKnown) {
    const Band band{1700.0, 2.3, 44100.0};
    const double middle = 2.0 * std::numbers::pi * 1700.0 / 44100.0;
    const auto gain = [](const Section& section, double w) { return Decibels({&section, 1}, w); };
    struct Case {
        Section section;
        double atZero, atMiddle, atTop;
    };
    const double q = 20.0 * std::log10(2.3), none = -400.0;
    const Case cases[] = {
        {Peak(band, -7.5), 0.0, -7.5, 0.0},    {LowShelf(band, 9.0), 9.0, 4.5, 0.0},
        {HighShelf(band, 9.0), 0.0, 4.5, 9.0}, {AllPass(band), 0.0, 0.0, 0.0},
        {LowPass(band), 0.0, q, none},         {HighPass(band), none, q, 0.0},
        {Notch(band), 0.0, none, 0.0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(&each - cases);
        EXPECT_NEAR(gain(each.section, 0.0), each.atZero, 1e-9);
        if (each.atMiddle == none)
            EXPECT_LT(gain(each.section, middle), -140.0);
        else
            EXPECT_NEAR(gain(each.section, middle), each.atMiddle, 1e-9);
        if (each.atTop == none)
            EXPECT_LT(gain(each.section, std::numbers::pi), -200.0);
        else
            EXPECT_NEAR(gain(each.section, std::numbers::pi), each.atTop, 1e-9);
        EXPECT_TRUE(IsStable({&each.section, 1}));
    }
    const Section all = AllPass(band);
    EXPECT_NEAR(std::abs(Degrees(Response({&all, 1}, middle))), 180.0, 1e-9);
    EXPECT_GT(Degrees(Response({&all, 1}, middle * 1.01)), 90.0);  // behind, not ahead
    // Out of range is taken as the nearest value within.
    EXPECT_EQ(Peak({1e9, 1e9, 48000.0}, 3.0).a1, Peak({0.499 * 48000.0, 100.0, 48000.0}, 3.0).a1);
}
