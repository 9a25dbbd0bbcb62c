// The simulated device: values by name, levels, filters.
#include "studio/device/Device.h"

#include <gtest/gtest.h>

#include <complex>
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

TEST(BiquadTest, ResponseOfEveryTypeIsThatOfTheFilter) {
    for (BandType type : {BandType::kPeak, BandType::kLowShelf, BandType::kHighShelf, BandType::kLowPass,
                          BandType::kHighPass, BandType::kNotch}) {
        for (double gain : {-12.0, 6.0}) {
            const Biquad filter = MakeBiquad({type, 900.0, gain, 1.7, true});
            for (double f : {25.0, 200.0, 850.0, 2500.0, 18000.0})
                EXPECT_NEAR(filter.Response(f), ReferenceResponse(type, 900.0, gain, 1.7, f), 1e-4)
                    << static_cast<int>(type) << " at " << f;
        }
    }
}

TEST(BiquadTest, KnownPoints) {
    EXPECT_NEAR(MakeBiquad({BandType::kPeak, 1000, 7.5, 2, true}).Response(1000), 7.5, 1e-6);
    EXPECT_NEAR(MakeBiquad({BandType::kLowShelf, 200, -9, 0.7, true}).Response(20), -9.0, 0.1);
    EXPECT_EQ(MakeBiquad({BandType::kPeak, 1000, 12, 1, false}).Response(1000), 0.0);
    EXPECT_EQ(MakeBiquad({BandType::kNotch, 1000, 0, 1, true}).Response(1000), -120.0);
    // Two Butterworth sections are 6 dB down where they cross, one is 3 dB down.
    EXPECT_NEAR(CrossoverResponse(false, 500, 4, 500), -6.02, 0.01);
    EXPECT_NEAR(CrossoverResponse(true, 500, 2, 500), -3.01, 0.01);
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

TEST(DeviceTest, SameSeedSameLevelsAndMutesSilence) {
    Device one(3), two(3), other(4);
    bool differs = false;
    one.Set(L"in2.mute", 1.0), two.Set(L"in2.mute", 1.0);
    for (int i = 0; i < 200; ++i) {
        one.Tick(1.0 / 30), two.Tick(1.0 / 30), other.Tick(1.0 / 30);
        EXPECT_EQ(one.Get(L"out1.level"), two.Get(L"out1.level"));
        differs |= one.Get(L"in3.level") != other.Get(L"in3.level");
    }
    EXPECT_TRUE(differs);
    EXPECT_EQ(one.Get(L"in2.level"), Ballistics::kFloor);
    EXPECT_GT(one.Get(L"in1.level"), -60.0);
    one.Set(L"master.mute", 1.0);
    for (int i = 0; i < 200; ++i)
        one.Tick(1.0 / 30);
    EXPECT_EQ(one.Get(L"out1.level"), Ballistics::kFloor);
}
