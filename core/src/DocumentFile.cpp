// The archive file: dialogs, file and archive set-up, the order of the records, errors.
#include "core/UIDocument.h"

#include "core/WholeFile.h"
#include "core/src/ForEachObject.h"

#include <afxdlgs.h>

#include <memory>

namespace Lumo {

namespace {

constexpr int kArchiveBuffer = 4096;
constexpr int kErrorTextLength = 260;

// Kept: saving, too, asks with the dialog for opening, and the filter shows every file whatever its label
// says.
bool AskForPath(CString& path) {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, L"Symbol Files(*.cbf)|*.*||", nullptr, 0,
                       TRUE);
    if (dialog.DoModal() != IDOK)
        return false;
    path = dialog.GetPathName();
    return true;
}

void ReportError(LPCTSTR format, const CString& path, CException* error) {
    TCHAR text[kErrorTextLength] = {};
    error->GetErrorMessage(text, kErrorTextLength);
    error->Delete();
    CString message;
    message.Format(format, static_cast<LPCTSTR>(path), text);
    AfxMessageBox(message);
}

// Runs `transfer` on an archive over `file`, then `finish`; a class-library exception aborts the file and is
// reported.
template <class Transfer, class Finish>
int Archive(CFile& file, UINT mode, const CString& path, LPCTSTR errorFormat, Transfer transfer,
            Finish finish) {
    try {
        CArchive ar(&file, mode | CArchive::bNoFlushOnDelete, kArchiveBuffer);
        transfer(ar);
        ar.Close();
        finish();
        return 1;
    } catch (CException* error) {
        file.Abort();
        ReportError(errorFormat, path, error);
        return 0;
    }
}

// The new file beside the old one; null, with the cause, when it cannot be made.
std::unique_ptr<WholeFile> OpenBeside(const CString& path, int& cause) {
    try {
        return std::make_unique<WholeFile>(path);
    } catch (CFileException* error) {
        cause = error->m_cause;
        error->Delete();
        return nullptr;
    }
}

}  // namespace

void CUIDocument::Serialize(CArchive& ar) {
    for (auto& [canvas, objects] : m_pages) {
        if (objects)
            ForEachObject(*objects, [&ar](CUIObject* object) { object->Serialize(ar); });
    }
}

int CUIDocument::Save(CString& path) {
    const auto store = [this](CArchive& ar) { Serialize(ar); };
    const LPCTSTR errorFormat = L"파일(%s) 쓰기중 오류가 발생하였습니다.\n\n%s";
    // The old file is held meanwhile: nobody else opens it.
    CFile old;
    CFileException reason;
    if (WholeFile::IsReadOnly(path))
        return 0;
    const bool exists = old.Open(path, CFile::shareExclusive | CFile::modeReadWrite, &reason);
    if (!exists && reason.m_cause != CFileException::fileNotFound)
        return 0;
    int cause = CFileException::none;
    if (const auto whole = OpenBeside(path, cause)) {
        return Archive(whole->File(), CArchive::store, path, errorFormat, store, [&] {
            old.Abort();
            whole->Commit();
        });
    }
    if (!exists || cause != CFileException::accessDenied)
        return 0;
    return Archive(
        old, CArchive::store, path, errorFormat,
        [&](CArchive& ar) {
            old.SetLength(0);
            store(ar);
        },
        [&] { old.Close(); });
}

int CUIDocument::Load(CString& path) {
    CFile file;
    if (!file.Open(path, CFile::modeRead | CFile::shareDenyWrite))
        return 0;
    // kept: with the pages go the objects that could read themselves; a host makes its own before it reads.
    ClearCanvas();
    const auto read = [&](CArchive& ar) {
        if (file.GetLength() != 0)
            Serialize(ar);
    };
    return Archive(file, CArchive::load, path, L"파일(%s) 형식을 알수 없습니다.\n\n%s", read,
                   [&] { file.Close(); });
}

void CUIDocument::SaveDocument() {
    CString path;
    if (AskForPath(path))
        Save(path);
}

void CUIDocument::LoadDocument() {
    CString path;
    if (AskForPath(path))
        Load(path);
}

}  // namespace Lumo
