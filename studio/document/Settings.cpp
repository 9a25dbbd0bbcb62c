#include "studio/document/Settings.h"

namespace Studio {

namespace {

constexpr WCHAR kKey[] = L"Software\\TesselStudio";

}  // namespace

CString ReadSetting(LPCWSTR name) {
    WCHAR text[1024];
    DWORD size = sizeof text;
    if (::RegGetValue(HKEY_CURRENT_USER, kKey, name, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
        return CString();
    return text;
}

bool WriteSetting(LPCWSTR name, const CString& text) {
    HKEY key = nullptr;
    if (::RegCreateKeyEx(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr) !=
        ERROR_SUCCESS)
        return false;
    const auto size = static_cast<DWORD>((text.GetLength() + 1) * sizeof(WCHAR));
    const bool written =
        ::RegSetValueEx(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.GetString()), size) ==
        ERROR_SUCCESS;
    ::RegCloseKey(key);
    return written;
}

}  // namespace Studio
