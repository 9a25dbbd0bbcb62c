#include "behaviour/PrefBase.h"

namespace {

// kept: the archive holds only the low 16 bits of a value; files depend on it.
void ArchiveNarrow(CArchive& ar, int& value) {
    WORD word = static_cast<WORD>(value);
    if (ar.IsStoring()) {
        ar << word;
        return;
    }
    ar >> word;
    value = word;
}

}  // namespace

void CPrefBase::Serialize(CArchive& ar) {
    if (ar.IsStoring())
        ar << m_strName;
    else
        ar >> m_strName;
}

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
