// The trend graph and its lines. See PrefBase.h for what is common to all records.
#pragma once

#include <list>

#include "behaviour/PrefBase.h"

/// One line of a trend graph.
class TESSEL_API CPrefTrendLine : public CPrefBase {
public:
    CPrefTrendLine() = default;
    /// Copies the values, not the name.
    CPrefTrendLine(CPrefTrendLine& source) : CPrefBase() { *this = source; }
    CPrefTrendLine& operator=(const CPrefTrendLine& source);
    ~CPrefTrendLine() override = default;
    void Serialize(CArchive& ar) override;

    int m_nWidth = 1;   ///< width of the line
    int m_nColor = -1;  ///< colour or index of the line; -1 for the host's choice
};

/// Trend graph. The lines belong to whoever uses the record. Kept: neither the destructor nor an assignment
/// destroys the lines that were in the list, so the owner deletes them before the record goes or is
/// overwritten.
class TESSEL_API CPrefTrend : public CPrefBase {
public:
    CPrefTrend() = default;
    /// Copies the values, not the name.
    CPrefTrend(CPrefTrend& source) : CPrefBase() { *this = source; }
    /// Copies the fields and puts a new, nameless line into the list for every line of the source; a null
    /// entry is skipped.
    CPrefTrend& operator=(const CPrefTrend& source);
    ~CPrefTrend() override = default;
    /// The name, the eight fields, the number of lines and every line. Loading appends to the list; load into
    /// a new record. A number of lines below 0 raises the archive exception.
    void Serialize(CArchive& ar) override;

    int m_nType = 1;                   ///< kind of graph
    int m_nTimeSpan = 60;              ///< time shown
    int m_nTimeDivisions = 6;          ///< number of divisions of the time axis
    int m_nHighValue = 100;            ///< upper end of the value axis
    int m_nLowValue = 0;               ///< lower end of the value axis
    int m_nValueDivisions = 5;         ///< number of divisions of the value axis
    DWORD m_dwGridColor = 0xFFC0C0C0;  ///< grid, ARGB
    DWORD m_dwBackColor = 0xFF000000;  ///< background, ARGB
    /// The lines in the order in which they were added.
    std::list<CPrefTrendLine*> m_lines;
};
