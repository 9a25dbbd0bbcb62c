// The behaviour records, sets of them, and the texts in every archive.
#include "Loader.h"

#include "behaviour/UIPreference.h"

#include <memory>

namespace {

void DeleteLines(CPrefTrend& trend) {
    for (CPrefTrendLine* line : trend.m_lines)
        delete line;
    trend.m_lines.clear();
}

// The lines of a trend belong to whoever has the record.
struct RecordDeleter {
    template <class Record>
    void operator()(Record* record) const {
        if constexpr (requires { record->m_lines; })
            DeleteLines(*record);
        else if constexpr (requires { record->m_trend; })
            DeleteLines(record->m_trend);
        delete record;
    }
};

template <class Record>
using Owner = std::unique_ptr<Record, RecordDeleter>;

template <class Record>
Owner<Record> Make() {
    return Owner<Record>(new Record);
}

template <class Record>
bool LoadRecord(const Bytes& input, bool use) {
    const auto record = Make<Record>();
    const bool loaded = Loads(input, [&](CArchive& ar) { record->Serialize(ar); });
    RequireLasting(*record, &Make<Record>);
    if (use) {
        const auto copy = Make<Record>();
        *copy = *record;
        RequireLasting(*copy, &Make<Record>);
    }
    return loaded;
}

template <class Record>
Bytes Archived(Record& record) {
    return Stored([&](CArchive& ar) { record.Serialize(ar); });
}

void AddLines(CPrefTrend& trend) {
    for (LPCWSTR name : {L"", L"in1.level", L"\xAC12"}) {
        auto* line = new CPrefTrendLine;
        line->m_strName = name;
        trend.m_lines.push_back(line);
    }
}

template <class Record>
Loader RecordLoader(const char* name) {
    const auto record = Make<Record>();
    std::vector<Bytes> seeds = {Archived(*record)};
    if constexpr (requires { record->m_strName; })
        record->m_strName = L"out1.gain";
    if constexpr (requires { record->m_lines; })
        AddLines(*record);
    if constexpr (requires { record->m_trend; })
        AddLines(record->m_trend);
    if constexpr (requires { record->m_button; })
        record->m_button.m_strConfirmText = CString(L'?', 300);
    seeds.push_back(Archived(*record));
    return {name, 20, seeds, LoadRecord<Record>};
}

// Texts until the archive ends.
struct Texts {
    std::vector<CString> texts;

    void Serialize(CArchive& ar) {
        if (ar.IsStoring()) {
            ar << static_cast<int>(texts.size());
            for (const CString& text : texts)
                ar << text;
            return;
        }
        int count = 0;
        ar >> count;
        for (int i = 0; i < count; ++i) {
            CString text(L"before");
            ar >> text;
            texts.push_back(text);
        }
    }
};

Loader TextLoader() {
    Texts texts;
    for (int length : {0, 3, 254, 255, 300})
        texts.texts.emplace_back(L'\xD55C', length);
    Texts few, most;
    few.texts = {L"one", L"", L"three"};
    most.texts = {CString(L'\xD55C', 0xFFFF)};
    const Bytes ansi = {3, 0, 0, 0, 5, 'f', 'i', 'v', 'e', 0xC7, 0, 0xFF, 2, 0, 0xB0, 0xA1};
    const auto load = [](const Bytes& input, bool) {
        Texts loaded;
        const bool whole = Loads(input, [&](CArchive& ar) { loaded.Serialize(ar); });
        RequireLasting(loaded, [] { return std::make_unique<Texts>(); });
        return whole;
    };
    return {"texts", 20, {Archived(texts), Archived(few), ansi, Archived(few), Archived(most)}, load};
}

}  // namespace

void AddPreferenceLoaders(std::vector<Loader>& loaders) {
    loaders.push_back(TextLoader());
    loaders.push_back(RecordLoader<CPrefCondition>("pref-condition"));
    loaders.push_back(RecordLoader<CPrefFill>("pref-fill"));
    loaders.push_back(RecordLoader<CPrefMove>("pref-move"));
    loaders.push_back(RecordLoader<CPrefSize>("pref-size"));
    loaders.push_back(RecordLoader<CPrefRotate>("pref-rotate"));
    loaders.push_back(RecordLoader<CPrefColor>("pref-color"));
    loaders.push_back(RecordLoader<CPrefHide>("pref-hide"));
    loaders.push_back(RecordLoader<CPrefInput>("pref-input"));
    loaders.push_back(RecordLoader<CPrefBlink>("pref-blink"));
    loaders.push_back(RecordLoader<CPrefButton>("pref-button"));
    loaders.push_back(RecordLoader<CPrefPage>("pref-page"));
    loaders.push_back(RecordLoader<CPrefText>("pref-text"));
    loaders.push_back(RecordLoader<CPrefSlider>("pref-slider"));
    loaders.push_back(RecordLoader<CPrefTrendLine>("pref-trend-line"));
    loaders.push_back(RecordLoader<CPrefTrend>("pref-trend"));
    loaders.push_back(RecordLoader<CUIPreference>("pref-set"));
    loaders.back().share = 40;
}
