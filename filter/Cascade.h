// Runs second-order sections over samples.
#pragma once

#include "filter/Prototype.h"
#include "filter/Section.h"

#include <array>
#include <span>

namespace Lumo::Filter {

/// The order of a section's steps. All give the same with exact numbers; they differ in rounding, and in what
/// is heard when coefficients change.
enum class Form {
    kDirect1,      ///< keeps past inputs and outputs; calm when coefficients change
    kDirect2,      ///< poles first; its state can grow large
    kTransposed1,  ///< poles first, sums kept
    kTransposed2,  ///< sums kept; the usual one for floating point
};

/// Most sections of a cascade: as many as a band of the highest order has.
inline constexpr std::size_t kMaxSections = kMaxOrder;

/// Up to kMaxSections second-order sections with their state. Nothing here allocates or locks. All calls come
/// from one thread, that of the samples.
class TESSEL_API Cascade {
public:
    /// A cascade without sections, which passes everything, that runs in the order of `form`.
    explicit Cascade(Form form = Form::kTransposed2) : m_form(form) {}

    /// Takes new `sections` at once and keeps the state. False, with nothing changed, for more than
    /// kMaxSections.
    bool Set(std::span<const Section> sections);

    /// Moves to new `sections` over the next `samples` samples, so that nothing clicks; as many sections as
    /// there were, more or fewer. Between two stable filters every step on the way is stable. 0 samples are
    /// as `Set`.
    bool GlideTo(std::span<const Section> sections, std::size_t samples);

    /// Whether a change is under way.
    bool IsGliding() const { return m_glideLeft > 0; }

    /// Forgets all samples so far.
    void Reset() { m_state = {}; }

    /// Filters `samples` where they are. Numbers too small to be heard do not slow it down: what is left of
    /// the state below 1e-290 becomes 0. After an input that is infinite or not a number, so are the outputs
    /// up to the end of that block of at most 256 samples; then it goes on as after `Reset`.
    void Process(std::span<double> samples);
    /// The same for `samples` in single precision; the filter itself runs in double precision.
    void Process(std::span<float> samples);

private:
    struct State {
        double w[4] = {};
    };

    void ProcessBlock(double* samples, std::size_t count);
    template <Form form>
    void Run(double* samples, std::size_t count);
    template <Form form>
    void RunGliding(double* samples, std::size_t count);
    void EndGlide();
    void CleanState();

    Form m_form;
    std::size_t m_count = 0;  ///< sections that run
    std::size_t m_targetCount = 0;
    std::size_t m_glideLeft = 0;
    std::array<Section, kMaxSections> m_sections;
    std::array<Section, kMaxSections> m_target;
    std::array<State, kMaxSections> m_state;
};

}  // namespace Lumo::Filter
