#include "stress/monkey/Scratch.h"

#include "stress/monkey/Journal.h"
#include "tests/support/Clipboard.h"

#include <filesystem>
#include <fstream>
#include <vector>

namespace monkey {

namespace {

constexpr WCHAR kShellFolders[] =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";

// A file of this many pixels, each a byte, for the picture tool.
void WriteBitmap(const std::filesystem::path& path) {
    constexpr int kSide = 16;
    BITMAPFILEHEADER file = {};
    BITMAPINFOHEADER info = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof file + sizeof info;
    info.biSize = sizeof info;
    info.biWidth = info.biHeight = kSide;
    info.biPlanes = 1;
    info.biBitCount = 32;
    const std::vector<DWORD> pixels(size_t{kSide} * kSide, 0xFF3080C0);
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file);
    out.write(reinterpret_cast<const char*>(&info), sizeof info);
    out.write(reinterpret_cast<const char*>(pixels.data()), static_cast<std::streamsize>(pixels.size() * 4));
}

}  // namespace

Scratch::Scratch(const char* subject, std::uint64_t seed) {
    CString name;
    name.Format(L"monkey-%hs-%llu", subject, seed);
    m_held = ::CreateMutex(nullptr, FALSE, name);
    Require(::GetLastError() != ERROR_ALREADY_EXISTS, "another run of this seed is going on");
    WCHAR temporary[MAX_PATH];
    ::GetTempPath(MAX_PATH, temporary);
    m_folder = temporary + name;
    m_key = L"Software\\TesselMonkey\\" + name;
    ::RegDeleteTree(HKEY_CURRENT_USER, m_key);
    const std::filesystem::path folder(m_folder.GetString());
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    WriteBitmap(folder / L"picture.bmp");
    std::ofstream(folder / L"broken.cbf") << "not a page";

    HKEY own = nullptr;
    HKEY folders = nullptr;
    ::RegCreateKeyEx(HKEY_CURRENT_USER, m_key, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &own, nullptr);
    ::RegCreateKeyEx(own, kShellFolders, 0, nullptr, 0, KEY_WRITE, nullptr, &folders, nullptr);
    const auto size = static_cast<DWORD>((m_folder.GetLength() + 1) * sizeof(WCHAR));
    ::RegSetValueEx(folders, L"Local AppData", 0, REG_SZ, reinterpret_cast<const BYTE*>(m_folder.GetString()),
                    size);
    const LSTATUS led = ::RegOverridePredefKey(HKEY_CURRENT_USER, own);
    ::RegCloseKey(folders);
    ::RegCloseKey(own);
    Require(led == ERROR_SUCCESS, "the settings cannot be led to a key of this run");

    Require(OpenClipboardPatiently(nullptr), "the clipboard cannot be emptied");
    ::EmptyClipboard();
    ::CloseClipboard();
    ::SetCursorPos(0, 0);
}

Scratch::~Scratch() {
    ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    ::RegDeleteTree(HKEY_CURRENT_USER, m_key);
    ::RegDeleteKey(HKEY_CURRENT_USER, m_key);
    std::error_code ignored;
    std::filesystem::remove_all(m_folder.GetString(), ignored);
    ::CloseHandle(m_held);
}

}  // namespace monkey
