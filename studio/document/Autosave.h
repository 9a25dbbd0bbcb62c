// Saves changes beside the file from time to time, for the case that the program ends before they are saved.
#pragma once

#include "studio/document/StudioDocument.h"

#include <vector>

namespace Studio {

/// The automatic copy of one document: "<file>.autosave" beside its file, or a file of its own in a folder
/// for a document that has none yet. Exists while there are changes that are not saved, and is held open, so
/// that another running Studio can tell it from one that was left behind.
class Autosave {
public:
    /// `folder` is for documents without a file; it is made when it is needed. The document is not owned and
    /// outlives this object.
    Autosave(StudioDocument& document, const CString& folder);
    /// Lets go of the copy but leaves it: a document that ends in an orderly way calls `Discard` before.
    ~Autosave();
    Autosave(const Autosave&) = delete;
    Autosave& operator=(const Autosave&) = delete;

    /// Writes the copy when the document is modified, removes it when it is not. False when it cannot be
    /// written; an older copy is as it was then.
    bool Update();
    /// Why `Update` failed last, as a sentence.
    const CString& GetReason() const { return m_reason; }
    /// Removes the copy: the document was saved, closed or replaced.
    void Discard();

    /// Puts a copy that cannot be read aside, so that it is neither offered again nor written over. The name
    /// it has then; its old one when it cannot be renamed.
    static CString PutAside(const CString& copy);
    /// The name of the copy of a file.
    static CString PathFor(const CString& file) { return file + L".autosave"; }
    /// Whether a copy was left behind: it is there, and no running Studio holds it.
    static bool IsLeftBehind(const CString& copy);
    /// Copies of documents without a file that were left behind in the folder. One that was not written to
    /// its end is of no use, and removed.
    std::vector<CString> FindLeftBehind() const;
    /// The folder of the user's local data for Studio; empty when there is none.
    static CString DefaultFolder();

private:
    CString OwnPath() const;
    void Release();
    void Hold(const CString& path);

    StudioDocument& m_document;
    const CString m_folder;
    CString m_path;  // of the copy that is there, else empty
    CString m_reason;
    HANDLE m_held = INVALID_HANDLE_VALUE;
};

}  // namespace Studio
