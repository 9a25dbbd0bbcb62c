// A simulated audio matrix controller: 16 inputs, 16 outputs, a gain at every crossing, equalisers and a
// crossover behind every output. Everything it has is a value with a name.
//
// clang-format off
//   in1.level, in1.peak                          dBFS, read only
//   in1.gain, in1.mute, in1.signal               dB; switch; `Signal` code
//   xp.1.2.gain, xp.1.2.on                       crossing of input 1 and output 2: dB; switch
//   out1.level, out1.peak, out1.gain, out1.mute  as of an input
//   out1.peq.on, out1.peq.1.type .freq .gain .q .on
//                                                bands 1 to 6: `BandType` code, Hz, dB, Q, switch
//   out1.geq.on, out1.geq.1                      bands 1 to 31, a third of an octave each: dB
//   out1.xover.on, .lowfreq .highfreq            switch; two edges in Hz
//   out1.xover.type, .slope                      `CrossoverType` code; 12, 24, 36 or 48 dB per octave
//   out1.xover.low .mid .high                    dB of the three ways
//   master.gain, master.mute                     dB; switch
// clang-format on
#pragma once

#include "studio/device/Ballistics.h"
#include "studio/device/Equaliser.h"

#include <afxwin.h>

#include <random>
#include <unordered_map>
#include <vector>

namespace Studio {

/// What an input is fed with.
enum class Signal { kNone, kSine, kNoise, kMusic, kSpeech };
inline constexpr int kSignalCount = 5;

/// What can be said about a value without asking for it.
struct ValueInfo {
    CString name;
    double low = 0.0;
    double high = 1.0;
    /// "dB", "Hz" or empty.
    LPCWSTR unit = L"";
    bool isSwitch = false;
    bool isReadOnly = false;
    /// Where a number begins to be an alarm.
    double alarm = 1.0e9;
};

/// The device. Deterministic: the same seed, settings and ticks give the same levels. Used by one thread.
class Device {
public:
    static constexpr int kChannels = 16;
    static constexpr int kPeqBands = 6;
    static constexpr int kGeqBands = 31;

    explicit Device(unsigned seed = 1);

    /// Number of a value, -1 for a name that the device does not know. Names are not case-sensitive.
    int Find(const CString& name) const;
    int Count() const { return static_cast<int>(m_infos.size()); }
    const ValueInfo& Info(int value) const { return m_infos[value]; }
    double Get(int value) const { return m_values[value]; }
    /// The value of a name, `otherwise` for an unknown one.
    double Get(const CString& name, double otherwise = 0.0) const;
    /// Sets a value within its range; a switch becomes 0 or 1. False when it is read only.
    bool Set(int value, double to);
    bool Set(const CString& name, double to);
    /// Counts the changes of a value: who remembers it knows whether there is anything to repaint.
    unsigned Generation(int value) const { return m_generations[value]; }
    /// Counts all changes.
    unsigned Generation() const { return m_generation; }

    /// Lets time pass: signals, levels.
    void Tick(double seconds);
    /// Lets so much time pass that the levels of a new device have risen to what is fed in.
    void Settle();

    /// Parametric bands and settings of an output (from 1), for drawing.
    Band PeqBand(int output, int band) const;
    /// Centre of a band of the graphic equaliser (from 1), in Hz.
    static double GeqFrequency(int band);

    /// A value as the user reads it: "-12.5 dB", "1.25 kHz", "on".
    CString Describe(int value) const;

private:
    int Add(const CString& name, double low, double high, double start, LPCWSTR unit);
    int AddSwitch(const CString& name, bool start);
    int AddMeter(const CString& name);
    void AddInput(int channel);
    void AddOutput(int channel);
    void AddEqualisers(const CString& output);
    void Preset();
    void Store(int value, double to);
    double SignalLevel(int input, double seconds);
    void FeedMeter(int channel, int level, double target, double seconds);

    std::vector<ValueInfo> m_infos;
    std::vector<double> m_values;
    std::vector<unsigned> m_generations;
    unsigned m_generation = 0;
    std::unordered_map<std::wstring, int> m_numbers;

    // Numbers of the first value of every channel and crossing.
    int m_inputs[kChannels];
    int m_outputs[kChannels];
    int m_crossings[kChannels][kChannels];
    int m_master = 0;
    Ballistics m_meters[2 * kChannels];
    double m_phrase[kChannels] = {};
    double m_phraseLeft[kChannels] = {};
    double m_time = 0.0;
    std::minstd_rand m_random;
};

/// A device with settings and levels worth looking at, for drawing in edit mode and for lists of names.
const Device& SampleDevice();

}  // namespace Studio
