// Texts in UTF-8 and in the system's code page.
#include "window/Tools.h"

#include <climits>

namespace Lumo {

namespace {

void Tell(bool* whole, bool answer) {
    if (whole)
        *whole = answer;
}

bool IsUtf8(UINT codePage) {
    return codePage == CP_UTF8 || (codePage == CP_ACP && ::GetACP() == CP_UTF8);
}

// Whether `text` survives in the code page. UTF-8 has everything but half pairs, and says so by another flag.
bool Survives(UINT codePage, LPCWSTR text, int length) {
    if (IsUtf8(codePage))
        return ::WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text, length, nullptr, 0, nullptr,
                                     nullptr) > 0;
    BOOL replaced = FALSE;
    const int size =
        ::WideCharToMultiByte(codePage, WC_NO_BEST_FIT_CHARS, text, length, nullptr, 0, nullptr, &replaced);
    return size > 0 && !replaced;
}

std::string Encode(UINT codePage, const CString& text, bool* whole) {
    const int length = text.GetLength();
    Tell(whole, length == 0 || Survives(codePage, text, length));
    if (length == 0)
        return {};
    const DWORD flags = IsUtf8(codePage) ? 0 : WC_NO_BEST_FIT_CHARS;
    const int size = ::WideCharToMultiByte(codePage, flags, text, length, nullptr, 0, nullptr, nullptr);
    std::string bytes(size, '\0');
    ::WideCharToMultiByte(codePage, flags, text, length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

CString Decode(UINT codePage, std::string_view bytes, bool* whole) {
    const bool fits = bytes.size() <= INT_MAX;
    const int count = fits ? static_cast<int>(bytes.size()) : 0;
    Tell(whole, fits && (count == 0 || ::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.data(),
                                                             count, nullptr, 0) > 0));
    CString text;
    if (count == 0)
        return text;
    const int length = ::MultiByteToWideChar(codePage, 0, bytes.data(), count, nullptr, 0);
    ::MultiByteToWideChar(codePage, 0, bytes.data(), count, text.GetBuffer(length), length);
    text.ReleaseBuffer(length);
    return text;
}

}  // namespace

std::string Tools::ToUtf8(const CString& text, bool* whole) {
    return Encode(CP_UTF8, text, whole);
}

CString Tools::FromUtf8(std::string_view bytes, bool* whole) {
    return Decode(CP_UTF8, bytes, whole);
}

std::string Tools::ToCodePage(const CString& text, bool* whole) {
    return Encode(CP_ACP, text, whole);
}

CString Tools::FromCodePage(std::string_view bytes, bool* whole) {
    return Decode(CP_ACP, bytes, whole);
}

}  // namespace Lumo
