#include "filter/Cascade.h"

#include <algorithm>
#include <cmath>

namespace Lumo::Filter {

namespace {

constexpr std::size_t kBlock = 256;
constexpr double kSilence = 1e-290;

template <Form form>
inline double Step(const Section& c, double (&w)[4], double x) {
    if constexpr (form == Form::kDirect1) {
        const double y = c.b0 * x + c.b1 * w[0] + c.b2 * w[1] - c.a1 * w[2] - c.a2 * w[3];
        w[1] = w[0];
        w[0] = x;
        w[3] = w[2];
        w[2] = y;
        return y;
    } else if constexpr (form == Form::kDirect2) {
        const double v = x - c.a1 * w[0] - c.a2 * w[1];
        const double y = c.b0 * v + c.b1 * w[0] + c.b2 * w[1];
        w[1] = w[0];
        w[0] = v;
        return y;
    } else if constexpr (form == Form::kTransposed1) {
        const double v = x + w[0];
        const double y = c.b0 * v + w[2];
        w[0] = w[1] - c.a1 * v;
        w[1] = -c.a2 * v;
        w[2] = w[3] + c.b1 * v;
        w[3] = c.b2 * v;
        return y;
    } else {
        const double y = c.b0 * x + w[0];
        w[0] = c.b1 * x - c.a1 * y + w[1];
        w[1] = c.b2 * x - c.a2 * y;
        return y;
    }
}

// `count` neighbouring sections at once: each waits for its own last sample, so that several together use the
// time.
template <Form form, std::size_t count, typename State>
void RunSections(const Section* sections, State* states, double* samples, std::size_t sampleCount) {
    Section c[count];
    State s[count];
    std::copy_n(sections, count, c);
    std::copy_n(states, count, s);
    for (std::size_t n = 0; n < sampleCount; ++n) {
        double x = samples[n];
        for (std::size_t i = 0; i < count; ++i)
            x = Step<form>(c[i], s[i].w, x);
        samples[n] = x;
    }
    std::copy_n(s, count, states);
}

void MoveTowards(double& value, double target, double part) {
    value += (target - value) * part;
}

}  // namespace

bool Cascade::Set(std::span<const Section> sections) {
    return GlideTo(sections, 0);
}

bool Cascade::GlideTo(std::span<const Section> sections, std::size_t samples) {
    if (sections.size() > kMaxSections)
        return false;
    std::ranges::copy(sections, m_target.begin());
    // Sections that come or go glide from or to one that passes everything.
    const std::size_t longer = (std::max)(sections.size(), m_count);
    std::fill(m_target.begin() + sections.size(), m_target.begin() + longer, Section{});
    m_targetCount = sections.size();
    m_count = longer;
    m_glideLeft = samples;
    if (samples == 0)
        EndGlide();
    return true;
}

void Cascade::EndGlide() {
    std::copy_n(m_target.begin(), m_count, m_sections.begin());
    for (std::size_t i = m_targetCount; i < m_count; ++i) {
        m_sections[i] = {};
        m_state[i] = {};
    }
    m_count = m_targetCount;
}

void Cascade::Process(std::span<double> samples) {
    for (std::size_t at = 0; at < samples.size(); at += kBlock)
        ProcessBlock(samples.data() + at, (std::min)(kBlock, samples.size() - at));
}

void Cascade::Process(std::span<float> samples) {
    double block[kBlock];
    for (std::size_t at = 0; at < samples.size(); at += kBlock) {
        const auto part = samples.subspan(at, (std::min)(kBlock, samples.size() - at));
        std::ranges::copy(part, block);
        ProcessBlock(block, part.size());
        std::transform(block, block + part.size(), part.begin(),
                       [](double y) { return static_cast<float>(y); });
    }
}

void Cascade::ProcessBlock(double* samples, std::size_t count) {
    switch (m_form) {
        case Form::kDirect1:
            Run<Form::kDirect1>(samples, count);
            break;
        case Form::kDirect2:
            Run<Form::kDirect2>(samples, count);
            break;
        case Form::kTransposed1:
            Run<Form::kTransposed1>(samples, count);
            break;
        case Form::kTransposed2:
            Run<Form::kTransposed2>(samples, count);
            break;
    }
    CleanState();
}

template <Form form>
void Cascade::Run(double* samples, std::size_t count) {
    if (m_glideLeft > 0) {
        const std::size_t gliding = (std::min)(m_glideLeft, count);
        RunGliding<form>(samples, gliding);
        samples += gliding;
        count -= gliding;
    }
    std::size_t i = 0;
    for (; i + 4 <= m_count; i += 4)
        RunSections<form, 4>(&m_sections[i], &m_state[i], samples, count);
    for (; i < m_count; ++i)
        RunSections<form, 1>(&m_sections[i], &m_state[i], samples, count);
}

template <Form form>
void Cascade::RunGliding(double* samples, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n, --m_glideLeft) {
        const double part = 1.0 / static_cast<double>(m_glideLeft);
        for (std::size_t i = 0; i < m_count; ++i) {
            Section& section = m_sections[i];
            const Section& target = m_target[i];
            MoveTowards(section.b0, target.b0, part);
            MoveTowards(section.b1, target.b1, part);
            MoveTowards(section.b2, target.b2, part);
            MoveTowards(section.a1, target.a1, part);
            MoveTowards(section.a2, target.a2, part);
            samples[n] = Step<form>(section, m_state[i].w, samples[n]);
        }
    }
    if (m_glideLeft == 0)
        EndGlide();
}

// One number that is none would stay in the filter for ever, and numbers far too small to be heard are slow.
void Cascade::CleanState() {
    bool sound = true;
    for (State& state : m_state) {
        for (double& value : state.w) {
            sound = sound && std::isfinite(value);
            if (std::abs(value) < kSilence)
                value = 0.0;
        }
    }
    if (!sound)
        Reset();
}

}  // namespace Lumo::Filter
