// The simulated device: values by name, levels, filters.
#include "studio/device/Device.h"

#include "support/Golden.h"

#include <gtest/gtest.h>

#include <complex>
#include <map>
#include <numbers>

using namespace Studio;

namespace {

// The cookbook's filters evaluated as complex functions of z, independent of the code under test.
double ReferenceResponse(BandType type, double f0, double gain, double q, double f) {
    const double w = 2.0 * std::numbers::pi * f0 / kSampleRate, c = std::cos(w);
    const double alpha = std::sin(w) / (2.0 * q), a = std::pow(10.0, gain / 40.0),
                 r = 2.0 * std::sqrt(a) * alpha;
    double b[3], d[3];
    const auto set = [&](double b0, double b1, double b2, double d0, double d1, double d2) {
        b[0] = b0, b[1] = b1, b[2] = b2, d[0] = d0, d[1] = d1, d[2] = d2;
    };
    if (type == BandType::kPeak)
        set(1 + alpha * a, -2 * c, 1 - alpha * a, 1 + alpha / a, -2 * c, 1 - alpha / a);
    else if (type == BandType::kLowShelf)
        set(a * ((a + 1) - (a - 1) * c + r), 2 * a * ((a - 1) - (a + 1) * c), a * ((a + 1) - (a - 1) * c - r),
            (a + 1) + (a - 1) * c + r, -2 * ((a - 1) + (a + 1) * c), (a + 1) + (a - 1) * c - r);
    else if (type == BandType::kHighShelf)
        set(a * ((a + 1) + (a - 1) * c + r), -2 * a * ((a - 1) + (a + 1) * c),
            a * ((a + 1) + (a - 1) * c - r), (a + 1) - (a - 1) * c + r, 2 * ((a - 1) - (a + 1) * c),
            (a + 1) - (a - 1) * c - r);
    else if (type == BandType::kLowPass)
        set((1 - c) / 2, 1 - c, (1 - c) / 2, 1 + alpha, -2 * c, 1 - alpha);
    else if (type == BandType::kHighPass)
        set((1 + c) / 2, -1 - c, (1 + c) / 2, 1 + alpha, -2 * c, 1 - alpha);
    else
        set(1, -2 * c, 1, 1 + alpha, -2 * c, 1 - alpha);
    const std::complex<double> z = std::polar(1.0, -2.0 * std::numbers::pi * f / kSampleRate);
    return 20.0 * std::log10(std::abs((b[0] + b[1] * z + b[2] * z * z) / (d[0] + d[1] * z + d[2] * z * z)));
}

}  // namespace

TEST(EqualiserTest, ResponseOfEveryTypeIsThatOfTheFilter) {
    for (BandType type : {BandType::kPeak, BandType::kLowShelf, BandType::kHighShelf, BandType::kLowPass,
                          BandType::kHighPass, BandType::kNotch}) {
        for (double gain : {-12.0, 6.0}) {
            const Lumo::Filter::Section filter = MakeSection({type, 900.0, gain, 1.7, true});
            for (double f : {25.0, 200.0, 850.0, 2500.0, 18000.0})
                EXPECT_NEAR(ResponseAt({&filter, 1}, f), ReferenceResponse(type, 900.0, gain, 1.7, f), 1e-4)
                    << static_cast<int>(type) << " at " << f;
        }
    }
}

TEST(EqualiserTest, ABandThatIsOffPassesEverything) {
    const Lumo::Filter::Section off = MakeSection({BandType::kPeak, 1000, 12, 1, false});
    EXPECT_EQ(ResponseAt({&off, 1}, 1000), 0.0);
    const Lumo::Filter::Section notch = MakeSection({BandType::kNotch, 1000, 0, 1, true});
    EXPECT_EQ(ResponseAt({&notch, 1}, 1000), -120.0);
}

TEST(CrossoverTest, EdgesOfEveryTypeAndSlope) {
    struct Case {
        CrossoverType type;
        double slope, atEdge, octaveOut;
    };
    // Butterworth: 10 log(1 + 2^2n); Linkwitz-Riley: twice that of half the order. Far below half the rate
    // the bilinear transform changes nothing.
    const Case cases[] = {
        {CrossoverType::kButterworth, 12.0, -3.01, -12.30},
        {CrossoverType::kButterworth, 24.0, -3.01, -24.10},
        {CrossoverType::kButterworth, 48.0, -3.01, -48.16},
        {CrossoverType::kLinkwitzRiley, 12.0, -6.02, -13.98},
        {CrossoverType::kLinkwitzRiley, 24.0, -6.02, -24.61},
        {CrossoverType::kLinkwitzRiley, 36.0, -6.02, -36.26},
        {CrossoverType::kLinkwitzRiley, 47.0, -6.02, -36.26},
        {CrossoverType::kLinkwitzRiley, 48.0, -6.02, -48.20},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.slope);
        const auto low = MakeSections({each.type, false, 130.0, each.slope});
        EXPECT_NEAR(ResponseAt(low, 130.0), each.atEdge, 0.02);
        EXPECT_NEAR(ResponseAt(low, 260.0), each.octaveOut, 0.02);
        EXPECT_NEAR(ResponseAt(MakeSections({each.type, true, 130.0, each.slope}), 65.0), each.octaveOut,
                    0.02);
    }
    // Bessel: the same delay up to near its edge, where the others ring.
    const auto spread = [](CrossoverType type) {
        const auto sections = MakeSections({type, false, 1000.0, 24.0});
        const double radians = 2.0 * std::numbers::pi / kSampleRate;
        return Lumo::Filter::GroupDelay(sections, 900.0 * radians) /
               Lumo::Filter::GroupDelay(sections, 20.0 * radians);
    };
    EXPECT_NEAR(spread(CrossoverType::kBessel), 1.0, 0.12);
    EXPECT_GT(spread(CrossoverType::kButterworth), 1.3);
}

TEST(BallisticsTest, RisesFastFallsSlowlyHoldsThePeak) {
    Ballistics meter;
    constexpr double kTick = 1.0 / 30.0;
    for (int i = 0; i < 6; ++i)
        meter.Feed(-10.0, kTick);
    EXPECT_NEAR(meter.Level(), -10.0, 0.1);
    for (int i = 0; i < 30; ++i)
        meter.Feed(-80.0, kTick);
    EXPECT_NEAR(meter.Level(), -10.0 - Ballistics::kRelease, 0.2);
    EXPECT_NEAR(meter.Peak(), -10.0, 0.1) << "held";
    for (int i = 0; i < 45; ++i)
        meter.Feed(-80.0, kTick);
    EXPECT_NEAR(meter.Peak(), -10.0 - Ballistics::kPeakRelease, 1.0) << "one second after the hold";
}

TEST(DeviceTest, ValuesByName) {
    Device device;
    EXPECT_EQ(device.Find(L"in17.gain"), -1);
    EXPECT_EQ(device.Find(L"XP.3.2.GAIN"), device.Find(L"xp.3.2.gain"));
    EXPECT_TRUE(device.Set(L"out2.peq.3.freq", 1e9));
    EXPECT_EQ(device.Get(L"out2.peq.3.freq"), 20000.0) << "kept within its range";
    EXPECT_TRUE(device.Set(L"in1.mute", 7.0));
    EXPECT_EQ(device.Get(L"in1.mute"), 1.0);
    EXPECT_FALSE(device.Set(L"in1.level", 0.0)) << "read only";
    EXPECT_FALSE(device.Set(L"nothing", 0.0));
    EXPECT_FALSE(device.Set(L"in1.gain", std::nan("")));
    const int gain = device.Find(L"in1.gain");
    const unsigned before = device.Generation(gain);
    device.Set(gain, 3.0);
    device.Set(gain, 3.0);
    EXPECT_EQ(device.Generation(gain), before + 1) << "the same value is no change";
    for (int value = 0; value < device.Count(); ++value)
        EXPECT_EQ(device.Find(device.Info(value).name), value);
}

// What there is, with its limits, and what it stands at after a while.
TEST(DeviceTest, ValuesAndLimits) {
    Device device(3);
    device.Settle();
    device.Set(L"master.gain", -3.0);
    device.Tick(0.7);
    std::map<std::string, std::string> limits;
    std::string values, channel;
    for (int value = 0; value < device.Count(); ++value) {
        const ValueInfo& info = device.Info(value);
        const std::string name(info.name.GetString(), info.name.GetString() + info.name.GetLength());
        const CString text = device.Describe(value);
        if (name.substr(0, name.find('.', 3)) != channel)
            values += "\n" + (channel = name.substr(0, name.find('.', 3))) + ":";
        values += " " + std::string(text.GetString(), text.GetString() + text.GetLength());
        std::string kind;
        for (char c : name)
            if (c < '0' || c > '9')
                kind += c;
            else if (kind.back() != '#')
                kind += '#';
        char limit[99];
        std::snprintf(limit, sizeof limit, "%g to %g%s%s, alarm %g", info.low, info.high,
                      info.isSwitch ? ", switch" : "", info.isReadOnly ? ", read only" : "", info.alarm);
        EXPECT_EQ(limits.try_emplace(kind, limit).first->second, limit) << name;
    }
    for (const auto& [kind, limit] : limits)
        values.append("\n").append(kind).append(" ").append(limit);
    ExpectGoldenText(values + "\n", "studio", "device");
}
