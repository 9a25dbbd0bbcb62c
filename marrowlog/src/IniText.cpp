#include "IniText.h"

#include <algorithm>
#include <optional>

namespace ini {

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::wstring_view kSpace = L" \t\r\n";

std::wstring FromUtf8(std::string_view bytes, bool& valid) {
    std::wstring text;
    if (bytes.empty())
        return text;
    int size =
        ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(), int(bytes.size()), nullptr, 0);
    valid = size > 0;
    if (!valid)
        size = ::MultiByteToWideChar(CP_UTF8, 0, bytes.data(), int(bytes.size()), nullptr, 0);
    text.resize(size_t(size));
    ::MultiByteToWideChar(CP_UTF8, 0, bytes.data(), int(bytes.size()), text.data(), size);
    return text;
}

bool ToUtf8(const std::wstring& text, std::string& bytes) {
    if (text.empty())
        return true;
    const int size = ::WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), int(text.size()),
                                           nullptr, 0, nullptr, nullptr);
    const size_t before = bytes.size();
    bytes.resize(before + size_t(size));
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), bytes.data() + before, size, nullptr,
                          nullptr);
    return size > 0;
}

std::wstring FromUtf16(std::string_view bytes, bool& valid) {
    valid = bytes.size() % sizeof(wchar_t) == 0;
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    bytes.copy(reinterpret_cast<char*>(text.data()), text.size() * sizeof(wchar_t));
    return text;
}

std::vector<std::wstring> Split(const std::wstring& text) {
    std::vector<std::wstring> lines;
    for (size_t from = 0; from < text.size();) {
        const size_t end = text.find(L'\n', from);
        const size_t next = end == text.npos ? text.size() : end + 1;
        lines.push_back(text.substr(from, next - from));
        from = next;
    }
    return lines;
}

std::wstring_view Trimmed(std::wstring_view text) {
    const size_t first = text.find_first_not_of(kSpace);
    return first == text.npos ? std::wstring_view()
                              : text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

bool SameName(std::wstring_view a, std::wstring_view b) {
    return ::CompareStringOrdinal(a.data(), int(a.size()), b.data(), int(b.size()), TRUE) == CSTR_EQUAL;
}

bool IsComment(std::wstring_view trimmed) {
    return trimmed.starts_with(L';') || trimmed.starts_with(L'#');
}

std::optional<std::wstring_view> SectionOf(std::wstring_view line) {
    line = Trimmed(line);
    const size_t end = line.find(L']');
    if (!line.starts_with(L'[') || end == line.npos)
        return std::nullopt;
    return Trimmed(line.substr(1, end - 1));
}

struct Entry {
    std::wstring_view key, value;
};

std::optional<Entry> EntryOf(std::wstring_view line) {
    line = Trimmed(line);
    const size_t equals = line.find(L'=');
    if (IsComment(line) || line.starts_with(L'[') || equals == line.npos)
        return std::nullopt;
    return Entry{Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1))};
}

bool IsQuoted(std::wstring_view value) {
    return value.size() >= 2 && value.front() == value.back() &&
           (value.front() == L'"' || value.front() == L'\'');
}

// Quotes keep white space at the ends, and quotes that belong to the value.
std::wstring Quoted(std::wstring_view value) {
    const bool needed = Trimmed(value).size() != value.size() || IsQuoted(value);
    return needed ? L'"' + std::wstring(value) + L'"' : std::wstring(value);
}

constexpr size_t kNone = size_t(-1);

struct Place {
    size_t entry = kNone;       // the key's line
    size_t sectionEnd = kNone;  // behind the section's last line that is not empty
};

Place Locate(const Text& text, std::wstring_view section, std::wstring_view key) {
    Place place;
    bool inside = false, first = false;
    for (size_t i = 0; i < text.lines.size(); ++i) {
        if (const auto name = SectionOf(text.lines[i])) {
            inside = SameName(*name, section);
            // Of several sections with the name the first one takes new keys.
            first = inside && place.sectionEnd == kNone;
        } else if (const auto entry = EntryOf(text.lines[i]); inside && entry && SameName(entry->key, key)) {
            place.entry = i;
            return place;
        }
        if (first && !Trimmed(text.lines[i]).empty())
            place.sectionEnd = i + 1;
    }
    return place;
}

void EndLastLine(Text& text) {
    if (!text.lines.empty() && !text.lines.back().ends_with(L'\n'))
        text.lines.back() += text.lineEnd;
}

}  // namespace

Text Decode(const std::string& bytes) {
    Text text;
    const std::string_view view = bytes;
    std::wstring decoded;
    if (view.empty())
        return text;
    if (view.starts_with(kUtf16Mark)) {
        decoded = FromUtf16(view.substr(kUtf16Mark.size()), text.valid);
    } else {
        const bool marked = view.starts_with(kUtf8Mark);
        text.encoding = marked ? Encoding::Utf8Bom : Encoding::Utf8;
        decoded = FromUtf8(view.substr(marked ? kUtf8Mark.size() : 0), text.valid);
    }
    text.lines = Split(decoded);
    if (!text.lines.empty() && text.lines[0].ends_with(L'\n') && !text.lines[0].ends_with(L"\r\n"))
        text.lineEnd = L"\n";
    return text;
}

bool Encode(const Text& text, std::string& bytes) {
    std::wstring all;
    for (const std::wstring& line : text.lines)
        all += line;
    if (text.encoding == Encoding::Utf16) {
        bytes = kUtf16Mark;
        bytes.append(reinterpret_cast<const char*>(all.data()), all.size() * sizeof(wchar_t));
        return true;
    }
    bytes = text.encoding == Encoding::Utf8Bom ? kUtf8Mark : std::string_view();
    return ToUtf8(all, bytes);
}

bool Find(const Text& text, std::wstring_view section, std::wstring_view key, std::wstring& value) {
    const Place place = Locate(text, section, key);
    if (place.entry == kNone)
        return false;
    const std::wstring_view found = EntryOf(text.lines[place.entry])->value;
    value = IsQuoted(found) ? found.substr(1, found.size() - 2) : found;
    return true;
}

void Set(Text& text, std::wstring_view section, std::wstring_view key, std::wstring_view value) {
    const Place place = Locate(text, section, key);
    if (place.entry != kNone) {
        std::wstring& line = text.lines[place.entry];
        const size_t equals = line.find(L'=');
        const size_t from = (std::min)(line.find_first_not_of(L" \t", equals + 1), line.size());
        const size_t end = line.find_last_not_of(kSpace) + 1;
        line.replace(from, end > from ? end - from : 0, Quoted(value));
        return;
    }
    EndLastLine(text);
    size_t at = place.sectionEnd;
    if (at == kNone) {
        if (!text.lines.empty())
            text.lines.push_back(text.lineEnd);
        text.lines.push_back(L'[' + std::wstring(section) + L']' + text.lineEnd);
        at = text.lines.size();
    }
    text.lines.insert(text.lines.begin() + ptrdiff_t(at),
                      std::wstring(key) + L'=' + Quoted(value) + text.lineEnd);
}

bool CanHold(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
    constexpr std::wstring_view kBreaks(L"\r\n\0", 3);
    for (std::wstring_view part : {section, key, value})
        if (part.find_first_of(kBreaks) != part.npos)
            return false;
    for (std::wstring_view name : {section, key})
        if (name.empty() || Trimmed(name).size() != name.size())
            return false;
    return section.find(L']') == section.npos && key.find(L'=') == key.npos && !key.starts_with(L'[') &&
           !IsComment(key);
}

}  // namespace ini
