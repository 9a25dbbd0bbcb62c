#include "behaviour/PrefTrend.h"

#include <algorithm>
#include <memory>

#include "behaviour/src/PrefFields.h"

namespace {

constexpr std::tuple kLineFields(&CPrefTrendLine::m_nWidth, &CPrefTrendLine::m_nColor);

constexpr std::tuple kTrendFields(&CPrefTrend::m_nType, &CPrefTrend::m_nTimeSpan,
                                  &CPrefTrend::m_nTimeDivisions, &CPrefTrend::m_nHighValue,
                                  &CPrefTrend::m_nLowValue, &CPrefTrend::m_nValueDivisions,
                                  &CPrefTrend::m_dwGridColor, &CPrefTrend::m_dwBackColor);

void StoreLines(CArchive& ar, const std::list<CPrefTrendLine*>& lines) {
    ar << static_cast<int>(lines.size() - std::count(lines.begin(), lines.end(), nullptr));
    for (CPrefTrendLine* line : lines) {
        if (line)
            line->Serialize(ar);
    }
}

// The list is only of pointers: until one stands in it, its line must not be lost.
void Append(std::list<CPrefTrendLine*>& lines, std::unique_ptr<CPrefTrendLine> line) {
    lines.push_back(line.get());
    static_cast<void>(line.release());
}

void LoadLines(CArchive& ar, std::list<CPrefTrendLine*>& lines) {
    int count = 0;
    ar >> count;
    if (count < 0)
        AfxThrowArchiveException(CArchiveException::badSchema);
    for (int i = 0; i < count; ++i) {
        auto line = std::make_unique<CPrefTrendLine>();
        line->Serialize(ar);
        Append(lines, std::move(line));
    }
}

}  // namespace

CPrefTrendLine& CPrefTrendLine::operator=(const CPrefTrendLine& source) {
    pref::CopyFields(*this, source, kLineFields);
    return *this;
}

void CPrefTrendLine::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kLineFields);
}

CPrefTrend& CPrefTrend::operator=(const CPrefTrend& source) {
    if (this == &source)
        return *this;
    pref::CopyFields(*this, source, kTrendFields);
    // Kept: the lines that were in the list are unlinked, not destroyed; they are their owner's.
    m_lines.clear();
    for (CPrefTrendLine* line : source.m_lines) {
        if (line)
            Append(m_lines, std::make_unique<CPrefTrendLine>(*line));
    }
    return *this;
}

void CPrefTrend::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kTrendFields);
    if (ar.IsStoring())
        StoreLines(ar, m_lines);
    else
        LoadLines(ar, m_lines);
}
