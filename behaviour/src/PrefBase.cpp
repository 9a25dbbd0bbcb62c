#include "behaviour/PrefBase.h"

#include "appearance/internal/ArchiveFields.h"

#include <iterator>

namespace {

// Kept: the archive holds only the low 16 bits of a value; files depend on it.
void ArchiveNarrow(CArchive& ar, int& value) {
    WORD word = static_cast<WORD>(value);
    Lumo::ArchiveFields(ar, word);
    if (ar.IsLoading())
        value = word;
}

}  // namespace

void CPrefBase::Serialize(CArchive& ar) {
    Lumo::ArchiveFields(ar, m_strName);
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): a comparison copied onto itself stays as it is
CPrefCondition& CPrefCondition::operator=(const CPrefCondition& source) {
    for (size_t i = 0; i < std::size(m_comparisons); ++i)
        m_comparisons[i] = source.m_comparisons[i];
    return *this;
}

void CPrefCondition::Serialize(CArchive& ar) {
    CPrefBase::Serialize(ar);
    for (CPrefComparison& comparison : m_comparisons) {
        ArchiveNarrow(ar, comparison.m_nCompare);
        ArchiveNarrow(ar, comparison.m_nLowValue);
        ArchiveNarrow(ar, comparison.m_nHighValue);
        ArchiveNarrow(ar, comparison.m_nJoin);
    }
}
