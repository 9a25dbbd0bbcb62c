// How a meter follows a level.
#pragma once

#include <algorithm>
#include <cmath>

namespace Studio {

/// A level in dB that rises fast and falls slowly, with a peak that is held for a while.
class Ballistics {
public:
    static constexpr double kFloor = -80.0;
    static constexpr double kAttack = 0.010;      // seconds to cover 63 % of a rise
    static constexpr double kRelease = 24.0;      // dB per second
    static constexpr double kHold = 1.5;          // seconds
    static constexpr double kPeakRelease = 20.0;  // dB per second after the hold

    /// Lets `seconds` pass with the signal at `target` dB.
    void Feed(double target, double seconds) {
        target = std::max(target, kFloor);
        if (target >= m_level)
            m_level = target - (target - m_level) * std::exp(-seconds / kAttack);
        else
            m_level = std::max(target, m_level - kRelease * seconds);
        if (m_level >= m_peak) {
            m_peak = m_level;
            m_held = 0.0;
            return;
        }
        m_held += seconds;
        if (m_held > kHold)
            m_peak = std::max(m_level, m_peak - kPeakRelease * std::min(seconds, m_held - kHold));
    }

    double Level() const { return m_level; }
    double Peak() const { return m_peak; }

private:
    double m_level = kFloor;
    double m_peak = kFloor;
    double m_held = 0.0;
};

}  // namespace Studio
