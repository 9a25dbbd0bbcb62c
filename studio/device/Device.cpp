#include "studio/device/Device.h"

#include "studio/device/Names.h"

#include <algorithm>
#include <cmath>
#include <cwctype>
#include <numbers>

namespace Studio {

namespace {

constexpr double kGainLow = -60.0;
constexpr double kGainHigh = 12.0;
constexpr double kAlarm = -3.0;
// Levels change a little with every tick; what no meter can show is no change.
constexpr double kMeterStep = 0.25;

// Offsets from a channel's first value.
enum ChannelValue { kLevel, kPeak, kGain, kMute, kSignal };
enum CrossingValue { kCrossingGain, kCrossingOn };

double Linear(double decibels) {
    return std::pow(10.0, decibels / 10.0);
}

double Decibels(double power) {
    return power > 1.0e-9 ? 10.0 * std::log10(power) : Ballistics::kFloor;
}

std::wstring KeyOf(const CString& name) {
    std::wstring key(name.GetString(), name.GetLength());
    for (wchar_t& c : key)
        c = static_cast<wchar_t>(std::towlower(c));
    return key;
}

}  // namespace

Device::Device(unsigned seed) : m_random(seed) {
    for (int channel = 0; channel < kChannels; ++channel)
        AddInput(channel);
    for (int channel = 0; channel < kChannels; ++channel)
        AddOutput(channel);
    for (int in = 0; in < kChannels; ++in) {
        for (int out = 0; out < kChannels; ++out) {
            m_crossings[in][out] =
                Add(Numbered(L"xp.%d.%d.gain", in + 1, out + 1), kGainLow, kGainHigh, 0.0, L"dB");
            AddSwitch(Numbered(L"xp.%d.%d.on", in + 1, out + 1), in == out);
        }
    }
    m_master = Add(L"master.gain", kGainLow, kGainHigh, 0.0, L"dB");
    AddSwitch(L"master.mute", false);
    Preset();
}

int Device::Add(const CString& name, double low, double high, double start, LPCWSTR unit) {
    const int number = Count();
    ValueInfo info;
    info.name = name;
    info.low = low;
    info.high = high;
    info.unit = unit;
    m_infos.push_back(info);
    m_values.push_back(start);
    m_generations.push_back(0);
    m_numbers[KeyOf(name)] = number;
    return number;
}

int Device::AddSwitch(const CString& name, bool start) {
    const int number = Add(name, 0.0, 1.0, start ? 1.0 : 0.0, L"");
    m_infos[number].isSwitch = true;
    return number;
}

int Device::AddMeter(const CString& name) {
    const int number = Add(name, Ballistics::kFloor, kGainHigh, Ballistics::kFloor, L"dB");
    m_infos[number].isReadOnly = true;
    m_infos[number].alarm = kAlarm;
    return number;
}

void Device::AddInput(int channel) {
    const CString name = Numbered(L"in%d", channel + 1);
    m_inputs[channel] = AddMeter(name + L".level");
    AddMeter(name + L".peak");
    Add(name + L".gain", kGainLow, kGainHigh, 0.0, L"dB");
    AddSwitch(name + L".mute", false);
    Add(name + L".signal", 0.0, kSignalCount - 1, static_cast<double>(channel % kSignalCount), L"");
}

void Device::AddOutput(int channel) {
    const CString name = Numbered(L"out%d", channel + 1);
    m_outputs[channel] = AddMeter(name + L".level");
    AddMeter(name + L".peak");
    Add(name + L".gain", kGainLow, kGainHigh, 0.0, L"dB");
    AddSwitch(name + L".mute", false);
    AddEqualisers(name);
}

void Device::AddEqualisers(const CString& output) {
    constexpr double kStarts[kPeqBands] = {80.0, 250.0, 800.0, 2000.0, 5000.0, 12000.0};
    AddSwitch(output + L".peq.on", true);
    for (int band = 0; band < kPeqBands; ++band) {
        const CString name = output + Numbered(L".peq.%d", band + 1);
        const BandType type = band == 0               ? BandType::kLowShelf
                              : band == kPeqBands - 1 ? BandType::kHighShelf
                                                      : BandType::kPeak;
        Add(name + L".type", 0.0, kBandTypeCount - 1, static_cast<double>(type), L"");
        Add(name + L".freq", 20.0, 20000.0, kStarts[band], L"Hz");
        Add(name + L".gain", -15.0, 15.0, 0.0, L"dB");
        Add(name + L".q", 0.1, 16.0, band == 0 || band == kPeqBands - 1 ? 0.7 : 1.4, L"");
        AddSwitch(name + L".on", true);
    }
    AddSwitch(output + L".geq.on", true);
    for (int band = 1; band <= kGeqBands; ++band)
        Add(output + Numbered(L".geq.%d", band), -12.0, 12.0, 0.0, L"dB");
    AddSwitch(output + L".xover.on", true);
    Add(output + L".xover.lowfreq", 40.0, 2000.0, 250.0, L"Hz");
    Add(output + L".xover.highfreq", 500.0, 16000.0, 3200.0, L"Hz");
    Add(output + L".xover.slope", 12.0, 48.0, 24.0, L"dB");
    Add(output + L".xover.type", 0.0, kCrossoverTypeCount - 1,
        static_cast<double>(CrossoverType::kLinkwitzRiley), L"");
    Add(output + L".xover.low", -24.0, 12.0, 0.0, L"dB");
    Add(output + L".xover.mid", -24.0, 12.0, 0.0, L"dB");
    Add(output + L".xover.high", -24.0, 12.0, 0.0, L"dB");
}

// Settings as someone might have left them.
void Device::Preset() {
    constexpr double kGains[kPeqBands] = {4.0, -3.5, 2.0, -5.0, 3.0, -2.0};
    for (int out = 1; out <= kChannels; ++out) {
        const CString name = Numbered(L"out%d", out);
        for (int band = 1; band <= kPeqBands; ++band)
            Set(name + Numbered(L".peq.%d.gain", band), kGains[(band + out - 2) % kPeqBands]);
        for (int band = 1; band <= kGeqBands; ++band)
            Set(name + Numbered(L".geq.%d", band), std::round(10.0 * std::sin(band * 0.35 + out)) * 0.5);
        Set(name + L".xover.low", 1.5);
        Set(name + L".xover.high", -2.0);
        Set(name + L".gain", -4.0 - out % 4);
    }
    for (int in = 1; in <= kChannels; ++in) {
        Set(Numbered(L"in%d.gain", in), -2.0 * (in % 5));
        Set(Numbered(L"in%d.signal", in), 1 + in % (kSignalCount - 1));
        const int to = (in * 5) % kChannels + 1;
        Set(Numbered(L"xp.%d.%d.on", in, to), 1.0);
        Set(Numbered(L"xp.%d.%d.gain", in, to), -6.0 - in % 7);
    }
    Set(L"in6.mute", 1.0);
    Set(L"out9.mute", 1.0);
}

int Device::Find(const CString& name) const {
    const auto found = m_numbers.find(KeyOf(name));
    return found == m_numbers.end() ? -1 : found->second;
}

double Device::Get(const CString& name, double otherwise) const {
    const int value = Find(name);
    return value < 0 ? otherwise : Get(value);
}

void Device::Store(int value, double to) {
    if (m_values[value] == to)
        return;
    m_values[value] = to;
    ++m_generations[value];
    ++m_generation;
}

bool Device::Set(int value, double to) {
    const ValueInfo& info = m_infos[value];
    if (info.isReadOnly || std::isnan(to))
        return false;
    Store(value, info.isSwitch ? (to != 0.0 ? 1.0 : 0.0) : std::clamp(to, info.low, info.high));
    return true;
}

bool Device::Set(const CString& name, double to) {
    const int value = Find(name);
    return value >= 0 && Set(value, to);
}

// Level of what an input is fed with, in dB before its gain. Music and speech come in phrases.
double Device::SignalLevel(int input, double seconds) {
    const auto random = [this] { return std::uniform_real_distribution<double>(0.0, 1.0)(m_random); };
    const double noise = random();
    const auto signal = static_cast<Signal>(std::lround(m_values[m_inputs[input] + kSignal]));
    m_phraseLeft[input] -= seconds;
    if (m_phraseLeft[input] <= 0.0) {
        m_phrase[input] = signal == Signal::kSpeech ? -38.0 + 32.0 * random() : -16.0 + 14.0 * random();
        m_phraseLeft[input] = signal == Signal::kSpeech ? 0.1 + 0.4 * random() : 0.12 + 0.3 * random();
    }
    switch (signal) {
        case Signal::kSine:
            return -12.0 + 6.0 * std::sin(2.0 * std::numbers::pi * (0.11 + 0.017 * input) * m_time + input);
        case Signal::kNoise:
            return -14.0 + 3.0 * noise;
        case Signal::kMusic:
        case Signal::kSpeech:
            return m_phrase[input] + 4.0 * noise;
        default:
            return Ballistics::kFloor;
    }
}

void Device::FeedMeter(int channel, int level, double target, double seconds) {
    Ballistics& meter = m_meters[channel];
    meter.Feed(std::min(target, kGainHigh), seconds);
    Store(level + kLevel, std::round(meter.Level() / kMeterStep) * kMeterStep);
    Store(level + kPeak, std::round(meter.Peak() / kMeterStep) * kMeterStep);
}

void Device::Tick(double seconds) {
    m_time += seconds;
    double inputs[kChannels];
    for (int in = 0; in < kChannels; ++in) {
        const int first = m_inputs[in];
        const double signal = SignalLevel(in, seconds);
        inputs[in] = m_values[first + kMute] != 0.0 ? Ballistics::kFloor : signal + m_values[first + kGain];
        FeedMeter(in, first, inputs[in], seconds);
    }
    const bool silent = m_values[m_master + 1] != 0.0;
    for (int out = 0; out < kChannels; ++out) {
        double power = 0.0;
        for (int in = 0; in < kChannels; ++in) {
            const int crossing = m_crossings[in][out];
            if (m_values[crossing + kCrossingOn] != 0.0 && inputs[in] > Ballistics::kFloor)
                power += Linear(inputs[in] + m_values[crossing + kCrossingGain]);
        }
        const int first = m_outputs[out];
        const bool muted = silent || m_values[first + kMute] != 0.0;
        const double level = Decibels(power) + m_values[first + kGain] + m_values[m_master];
        FeedMeter(kChannels + out, first, muted ? Ballistics::kFloor : level, seconds);
    }
}

void Device::Settle() {
    constexpr int kTicks = 90;
    for (int i = 0; i < kTicks; ++i)
        Tick(1.0 / 30.0);
}

Band Device::PeqBand(int output, int band) const {
    const int type = Find(Numbered(L"out%d.peq.%d.type", output, band));
    if (type < 0)
        return {};
    return {static_cast<BandType>(std::lround(Get(type))), Get(type + 1), Get(type + 2), Get(type + 3),
            Get(type + 4) != 0.0};
}

double Device::GeqFrequency(int band) {
    constexpr double kNominal[] = {20.0, 25.0, 31.5, 40.0, 50.0, 63.0, 80.0, 100.0, 125.0, 160.0};
    const int index = std::clamp(band, 1, kGeqBands) - 1;
    return kNominal[index % 10] * std::pow(10.0, index / 10);
}

CString Device::Describe(int value) const {
    const ValueInfo& info = m_infos[value];
    const double now = Get(value);
    CString text;
    if (info.isSwitch)
        text = now != 0.0 ? L"on" : L"off";
    else if (info.unit[0] == L'H' && now >= 1000.0)
        text.Format(L"%.2f kHz", now / 1000.0);
    else if (info.unit[0] == L'H')
        text.Format(L"%.0f Hz", now);
    else if (info.unit[0])
        text.Format(L"%.1f %s", now, info.unit);
    else
        text.Format(L"%.4g", now);
    return text;
}

const Device& SampleDevice() {
    static const Device device = [] {
        Device sample(7);
        sample.Settle();
        return sample;
    }();
    return device;
}

}  // namespace Studio
