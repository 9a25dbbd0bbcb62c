#include "studio/document/ObjectExtras.h"

namespace Studio {

using Lumo::CUIObject;

namespace {

// The records by number, in the order of the enumeration.
CPrefBase* RecordsOf(CUIPreference& prefs, Behaviour behaviour) {
    CPrefBase* const records[] = {&prefs.m_condition, &prefs.m_fill,  &prefs.m_move1,  &prefs.m_move2,
                                  &prefs.m_size1,     &prefs.m_size2, &prefs.m_rotate, &prefs.m_color,
                                  &prefs.m_hide,      &prefs.m_input, &prefs.m_blink,  &prefs.m_button,
                                  &prefs.m_page,      &prefs.m_text,  &prefs.m_slider, &prefs.m_trend};
    return records[static_cast<int>(behaviour)];
}

ExtrasHolder* HolderOf(CUIObject& object) {
    return dynamic_cast<ExtrasHolder*>(&object);
}

}  // namespace

ObjectExtras::ObjectExtras(const ObjectExtras& source) {
    *this = source;
}

ObjectExtras& ObjectExtras::operator=(const ObjectExtras& source) {
    if (this == &source)
        return *this;
    ClearTrendLines();
    binding = source.binding;
    m_on = source.m_on;
    // The library's assignment keeps the names of the target.
    prefs = source.prefs;
    for (int i = 0; i < kBehaviourCount; ++i)
        Record(static_cast<Behaviour>(i)).m_strName = source.Record(static_cast<Behaviour>(i)).m_strName;
    auto copy = prefs.m_trend.m_lines.begin();
    for (const CPrefTrendLine* line : source.prefs.m_trend.m_lines) {
        if (line)
            (*copy++)->m_strName = line->m_strName;
    }
    return *this;
}

ObjectExtras::~ObjectExtras() {
    ClearTrendLines();
}

void ObjectExtras::TurnOn(Behaviour behaviour, bool on) {
    const DWORD bit = 1u << static_cast<int>(behaviour);
    m_on = on ? m_on | bit : m_on & ~bit;
}

CPrefBase& ObjectExtras::Record(Behaviour behaviour) {
    return *RecordsOf(prefs, behaviour);
}

const CPrefBase& ObjectExtras::Record(Behaviour behaviour) const {
    return *RecordsOf(const_cast<CUIPreference&>(prefs), behaviour);
}

const CString& ObjectExtras::ValueName(Behaviour behaviour) const {
    const CString& own = Record(behaviour).m_strName;
    return own.IsEmpty() ? binding : own;
}

void ObjectExtras::ClearTrendLines() {
    for (CPrefTrendLine* line : prefs.m_trend.m_lines)
        delete line;
    prefs.m_trend.m_lines.clear();
}

void ObjectExtras::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar << binding << m_on;
    } else {
        ar >> binding >> m_on;
        m_on &= (1u << kBehaviourCount) - 1;
    }
    prefs.Serialize(ar);
}

const ObjectExtras* FindExtras(const CUIObject& object) {
    const auto* holder = dynamic_cast<const ExtrasHolder*>(&object);
    return holder ? holder->extras.get() : nullptr;
}

ObjectExtras* EditExtras(CUIObject& object) {
    ExtrasHolder* holder = HolderOf(object);
    if (holder && !holder->extras)
        holder->extras = std::make_unique<ObjectExtras>();
    return holder ? holder->extras.get() : nullptr;
}

void SetExtras(CUIObject& object, const ObjectExtras* extras) {
    if (ExtrasHolder* holder = HolderOf(object))
        holder->extras = extras ? std::make_unique<ObjectExtras>(*extras) : nullptr;
}

ExtrasHolder::ExtrasHolder() = default;

ExtrasHolder::ExtrasHolder(const ExtrasHolder& source)
    : extras(source.extras ? std::make_unique<ObjectExtras>(*source.extras) : nullptr) {}

ExtrasHolder& ExtrasHolder::operator=(const ExtrasHolder& source) {
    if (this != &source)
        extras = source.extras ? std::make_unique<ObjectExtras>(*source.extras) : nullptr;
    return *this;
}

ExtrasHolder::~ExtrasHolder() = default;

}  // namespace Studio
