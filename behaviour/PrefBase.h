// The common base of the behaviour records, and the condition under which a behaviour acts.
//
// A behaviour record says how an object is to react at run time. The library stores, copies and archives the
// records; the host evaluates them, and gives every field its meaning and its range. No field is checked
// here.
//
// A new record has an empty name and the values that stand beside its fields. All records copy alike: an
// assignment copies the record's own fields and leaves the target's name, a copy constructor starts from an
// empty name. A behaviour copied onto another object so keeps that object's binding.
#pragma once

#include "core/Platform.h"

/// The base of every behaviour record.
class TESSEL_API CPrefBase {
public:
    CPrefBase() = default;
    /// Copies the name, unlike the derived records.
    CPrefBase(const CPrefBase& source) = default;
    /// Copies the name, unlike the derived records.
    CPrefBase& operator=(const CPrefBase& source) = default;
    virtual ~CPrefBase() = default;
    /// Stores or loads the name and, in a derived record, its fields in order of declaration.
    virtual void Serialize(CArchive& ar);

    /// What the behaviour is bound to, a tag or a parameter of the host; empty when it is not bound.
    CString m_strName;
};

/// One comparison of a condition.
struct CPrefComparison {
    int m_nCompare = 0;    ///< comparison code
    int m_nLowValue = 0;   ///< the value compared with, or the lower limit
    int m_nHighValue = 0;  ///< the upper limit
    int m_nJoin = 0;       ///< how the result is joined with the next comparison
};

/// The condition under which an object's behaviours act: up to four joined comparisons.
class TESSEL_API CPrefCondition : public CPrefBase {
public:
    CPrefCondition() = default;
    /// Copies the values, not the name.
    CPrefCondition(const CPrefCondition& source) : CPrefBase() { *this = source; }
    CPrefCondition& operator=(const CPrefCondition& source);
    ~CPrefCondition() override = default;
    /// The name, then each of the sixteen values as its low 16 bits; a value outside 0 to 65535 comes back
    /// reduced to them.
    void Serialize(CArchive& ar) override;

    CPrefComparison m_comparisons[4];  ///< the comparisons in the order in which they are joined
};
