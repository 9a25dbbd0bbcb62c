// The trend graph and its lines. See PrefBase.h for what is common to all records.
#pragma once

#include <list>

#include "behaviour/PrefBase.h"

/// One line of a trend graph.
class AFX_EXT_CLASS CPrefTrendLine : public CPrefBase {
public:
    CPrefTrendLine() = default;
    CPrefTrendLine(CPrefTrendLine& source) : CPrefBase() { *this = source; }
    CPrefTrendLine& operator=(const CPrefTrendLine& source);
    ~CPrefTrendLine() override = default;
    void Serialize(CArchive& ar) override;

    /// Width of the line.
    int m_nWidth = 1;
    /// Colour or index of the line; -1 for the host's choice.
    int m_nColor = -1;
};

/// Trend graph. The lines belong to whoever uses the record: neither the destructor nor an assignment
/// destroys the lines that were in the list, so the owner deletes them before the record goes or is
/// overwritten.
class AFX_EXT_CLASS CPrefTrend : public CPrefBase {
public:
    CPrefTrend() = default;
    CPrefTrend(CPrefTrend& source) : CPrefBase() { *this = source; }
    /// Copies the fields and puts a new, nameless line into the list for every line of the source; a null
    /// entry is skipped.
    CPrefTrend& operator=(const CPrefTrend& source);
    ~CPrefTrend() override = default;
    /// The name, the eight fields, the number of lines and every line. Loading appends to the list; load into
    /// a new record. A number of lines below 0 raises the archive exception.
    void Serialize(CArchive& ar) override;

    /// Kind of graph.
    int m_nType = 1;
    /// Time shown, and number of divisions of the time axis.
    int m_nTimeSpan = 60;
    int m_nTimeDivisions = 6;
    /// Ends of the value axis, and number of its divisions.
    int m_nHighValue = 100;
    int m_nLowValue = 0;
    int m_nValueDivisions = 5;
    /// ARGB colours of the grid and of the background.
    DWORD m_dwGridColor = 0xFFC0C0C0;
    DWORD m_dwBackColor = 0xFF000000;
    /// The lines in the order in which they were added.
    std::list<CPrefTrendLine*> m_lines;
};
