#include "behaviour/UIPreference.h"

namespace {

/// Calls `step` with a pointer to every member of the set, in order of declaration.
template <class Step>
void ForEachRecord(Step step) {
    step(&CUIPreference::m_condition);
    step(&CUIPreference::m_fill);
    step(&CUIPreference::m_move1);
    step(&CUIPreference::m_move2);
    step(&CUIPreference::m_size1);
    step(&CUIPreference::m_size2);
    step(&CUIPreference::m_rotate);
    step(&CUIPreference::m_color);
    step(&CUIPreference::m_hide);
    step(&CUIPreference::m_input);
    step(&CUIPreference::m_blink);
    step(&CUIPreference::m_button);
    step(&CUIPreference::m_page);
    step(&CUIPreference::m_text);
    step(&CUIPreference::m_slider);
    step(&CUIPreference::m_trend);
}

}  // namespace

CUIPreference::CUIPreference() = default;

CUIPreference::CUIPreference(const CUIPreference& source) {
    *this = source;
}

CUIPreference& CUIPreference::operator=(const CUIPreference& source) {
    ForEachRecord([&](auto record) { this->*record = source.*record; });
    return *this;
}

CUIPreference::~CUIPreference() = default;

void CUIPreference::Serialize(CArchive& ar) {
    ForEachRecord([&](auto record) { (this->*record).Serialize(ar); });
}
