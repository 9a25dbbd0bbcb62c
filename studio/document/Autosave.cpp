#include "studio/document/Autosave.h"

#include "studio/document/PageFile.h"

#include <shlobj.h>

namespace Studio {

namespace {

constexpr WCHAR kUntitledPattern[] = L"untitled-*.autosave";
constexpr WCHAR kUnfinishedPattern[] = L"untitled-*.saving";

std::vector<CString> FilesIn(const CString& folder, LPCWSTR pattern) {
    std::vector<CString> found;
    WIN32_FIND_DATA data;
    const HANDLE search =
        folder.IsEmpty() ? INVALID_HANDLE_VALUE : ::FindFirstFile(folder + L"\\" + pattern, &data);
    if (search == INVALID_HANDLE_VALUE)
        return found;
    do
        found.push_back(folder + L"\\" + data.cFileName);
    while (::FindNextFile(search, &data));
    ::FindClose(search);
    return found;
}

}  // namespace

Autosave::Autosave(StudioDocument& document, const CString& folder)
    : m_document(document), m_folder(folder) {}

Autosave::~Autosave() {
    Release();
}

CString Autosave::OwnPath() const {
    if (const CString& file = m_document.GetPath(); !file.IsEmpty())
        return PathFor(file);
    CString path;
    if (!m_folder.IsEmpty())
        path.Format(L"%s\\untitled-%lu.autosave", m_folder.GetString(), ::GetCurrentProcessId());
    return path;
}

bool Autosave::Update() {
    if (!m_document.GetModifiedFlag()) {
        Discard();
        return true;
    }
    const CString path = OwnPath();
    m_reason = GetText(Text::kFaultAccess);
    if (path.IsEmpty())
        return false;
    if (m_document.GetPath().IsEmpty())
        ::CreateDirectory(m_folder, nullptr);
    // A copy that another Studio has open on the same file is not ours to replace.
    if (path != m_path && ::GetFileAttributes(path) != INVALID_FILE_ATTRIBUTES && !IsLeftBehind(path))
        return false;
    // The open copy could not be replaced.
    Release();
    if (!m_document.SaveCopy(path)) {
        m_reason = m_document.GetReason();
        Hold(m_path);
        return false;
    }
    if (path != m_path)
        Discard();
    m_path = path;
    Hold(m_path);
    return true;
}

void Autosave::Discard() {
    Release();
    if (!m_path.IsEmpty())
        ::DeleteFile(m_path);
    m_path.Empty();
}

void Autosave::Release() {
    if (m_held != INVALID_HANDLE_VALUE)
        ::CloseHandle(m_held);
    m_held = INVALID_HANDLE_VALUE;
}

void Autosave::Hold(const CString& path) {
    if (!path.IsEmpty())
        m_held = ::CreateFile(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
}

bool Autosave::IsLeftBehind(const CString& copy) {
    // A file that is held refuses to be opened for this one alone.
    HANDLE file = ::CreateFile(copy, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    ::CloseHandle(file);
    return true;
}

CString Autosave::PutAside(const CString& copy) {
    const CString aside = copy + L".damaged";
    return ::MoveFileEx(copy, aside, MOVEFILE_REPLACE_EXISTING) ? aside : copy;
}

std::vector<CString> Autosave::FindLeftBehind() const {
    for (const CString& unfinished : FilesIn(m_folder, kUnfinishedPattern))
        ::DeleteFile(unfinished);  // not one that is being written: that is held
    std::vector<CString> found = FilesIn(m_folder, kUntitledPattern);
    std::erase_if(found, [this](const CString& path) { return path == m_path || !IsLeftBehind(path); });
    return found;
}

CString Autosave::DefaultFolder() {
    WCHAR folder[MAX_PATH];
    if (FAILED(::SHGetFolderPath(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, folder)))
        return CString();
    return CString(folder) + L"\\TesselStudio";
}

}  // namespace Studio
