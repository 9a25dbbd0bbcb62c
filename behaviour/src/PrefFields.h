// The one routine with which all behaviour records copy and archive their fields: each record names its
// fields in a table, in order of declaration, and the routine walks the table.
#pragma once

#include <tuple>

#include "appearance/internal/ArchiveFields.h"

namespace pref {

template <class Value>
void CopyField(Value& target, const Value& source) {
    target = source;
}

template <class Value, size_t count>
void CopyField(Value (&target)[count], const Value (&source)[count]) {
    for (size_t i = 0; i < count; ++i)
        target[i] = source[i];
}

template <class Value>
void ArchiveField(CArchive& ar, Value& value) {
    Lumo::ArchiveFields(ar, value);
}

inline void ArchiveField(CArchive& ar, POINT& point) {
    Lumo::ArchiveFields(ar, point.x, point.y);
}

template <class Value, size_t count>
void ArchiveField(CArchive& ar, Value (&values)[count]) {
    for (Value& value : values)
        ArchiveField(ar, value);
}

/// Copies the fields of the table, and nothing else. Kept: the target keeps its name.
template <class Record, class... Fields>
void CopyFields(Record& target, const Record& source, const std::tuple<Fields Record::*...>& table) {
    std::apply([&](auto... field) { (CopyField(target.*field, source.*field), ...); }, table);
}

/// Stores or loads the name and then the fields of the table.
template <class Record, class... Fields>
void ArchiveFields(CArchive& ar, Record& record, const std::tuple<Fields Record::*...>& table) {
    record.CPrefBase::Serialize(ar);
    std::apply([&](auto... field) { (ArchiveField(ar, record.*field), ...); }, table);
}

}  // namespace pref
