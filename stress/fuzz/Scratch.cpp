#include "Scratch.h"

namespace {

CString ScratchPath() {
    WCHAR folder[MAX_PATH];
    ::GetTempPath(MAX_PATH, folder);
    CString path;
    path.Format(L"%sTesselFuzz%lu.cbf", folder, ::GetCurrentProcessId());
    return path;
}

}  // namespace

CString WriteScratch(const Bytes& bytes) {
    CString path = ScratchPath();
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    file.Close();
    return path;
}

Bytes ReadScratch() {
    CFile file(ScratchPath(), CFile::modeRead);
    Bytes bytes(static_cast<size_t>(file.GetLength()));
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

void DeleteScratch() {
    ::DeleteFile(ScratchPath());
}
