// The archive file: dialogs, file and archive set-up, the order of the records, errors.
#include "core/UIDocument.h"

#include "core/UIObject.h"
#include "core/WholeFile.h"

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

// Shows and deletes `error`; false.
bool ReportError(LPCTSTR format, const CString& path, CException* error) {
    TCHAR text[kErrorTextLength] = {};
    error->GetErrorMessage(text, kErrorTextLength);
    error->Delete();
    CString message;
    message.Format(format, static_cast<LPCTSTR>(path), text);
    AfxMessageBox(message);
    return false;
}

// Runs `transfer` on an archive over `file`. The class library's exception that ended it, or null.
template <class Transfer>
CException* Archive(CFile& file, UINT mode, Transfer transfer) {
    try {
        CArchive ar(&file, mode | CArchive::bNoFlushOnDelete, kArchiveBuffer);
        transfer(ar);
        return nullptr;
    } catch (CException* error) {
        return error;
    }
}

// Null when the file cannot be written.
std::unique_ptr<WholeFile> OpenTarget(LPCTSTR path) {
    try {
        return std::make_unique<WholeFile>(path);
    } catch (CFileException* error) {
        error->Delete();
        return nullptr;
    }
}

}  // namespace

void CUIDocument::Serialize(CArchive& ar) {
    for (auto& [canvas, objects] : m_pages) {
        for (size_t i = 0; objects && i < objects->size(); ++i)  // the list may change
            if (CUIObject* object = (*objects)[i])
                object->Serialize(ar);
    }
}

int CUIDocument::Save(CString& path) {
    auto target = OpenTarget(path);
    if (!target)
        return 0;
    CException* error = Archive(target->File(), CArchive::store, [&](CArchive& ar) {
        Serialize(ar);
        ar.Close();
        target->Commit();
    });
    target.reset();  // nothing is held while the message shows
    return !error || ReportError(L"파일(%s) 쓰기중 오류가 발생하였습니다.\n\n%s", path, error);
}

int CUIDocument::Load(CString& path) {
    CFile file;
    if (!file.Open(path, CFile::modeRead | CFile::shareDenyWrite))
        return 0;
    // Kept: with the pages go the objects that could read themselves; a host makes its own before it reads.
    ClearCanvas();
    CException* error = Archive(file, CArchive::load, [&](CArchive& ar) {
        if (file.GetLength() != 0)
            Serialize(ar);
        ar.Close();
    });
    file.Abort();
    return !error || ReportError(L"파일(%s) 형식을 알수 없습니다.\n\n%s", path, error);
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
