// The text of a settings file: its bytes decoded into lines, lookups and changes, and the way back.
#pragma once

#include <afx.h>

#include <string>
#include <string_view>
#include <vector>

namespace ini {

enum class Encoding { Utf16, Utf8, Utf8Bom };

/// A settings file in memory.
struct Text {
    Encoding encoding = Encoding::Utf16;
    bool valid = true;                ///< false when the bytes were not text of the encoding
    std::wstring lineEnd = L"\r\n";   ///< how a line that is added ends: as the file's first line
    std::vector<std::wstring> lines;  ///< each with its own line end
};

Text Decode(const std::string& bytes);
/// The bytes of the text; false when it holds characters that the encoding cannot express.
bool Encode(const Text& text, std::string& bytes);

/// The value of a key, without the quotes around it; false when there is none.
bool Find(const Text& text, std::wstring_view section, std::wstring_view key, std::wstring& value);
/// Sets the value of a key: in its line, else in a line added to the section, else in a section added at the
/// end.
void Set(Text& text, std::wstring_view section, std::wstring_view key, std::wstring_view value);
/// Whether these can be written so that Find reads them back.
bool CanHold(std::wstring_view section, std::wstring_view key, std::wstring_view value);

}  // namespace ini
