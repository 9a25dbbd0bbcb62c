// Files that are complete at every moment.
#pragma once

#include "core/Export.h"
#include "core/Platform.h"

namespace Lumo {

/// The target of a save, which is written whole or not at all. What is written goes to a new file beside it,
/// "<name>.saving", or "<name>.2.saving" and so on where that name is taken; `Commit` flushes it and puts it
/// in the place of an old file, whose attributes, access rights and creation time it takes over. Until then,
/// and for good when `Commit` is never called or fails, an old file is as it was, and nobody else opens it.
/// The new file goes when this ends, or with the process.
///
/// A symbolic link leads to the file that is replaced. Where the folder takes no new file, or does not let
/// the old one go, the old one is written over; a copy of it lies beside, or in the folder for temporary
/// files, as
/// "<name>.before" until that is done.
class TESSEL_API WholeFile {
public:
    /// Makes the new file. Raises a `CFileException` that names the full path of `path`: when the old file
    /// is read-only (nothing else may stop a user with all rights), open elsewhere or no file, and when no
    /// new one can be made.
    explicit WholeFile(LPCTSTR path);
    /// Deletes the new file, unless it has become the old one's successor.
    ~WholeFile();

    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    /// The new file, empty and open for reading and writing, for this process alone. Its path is the full one
    /// of the file it will replace, so that exceptions name that one.
    CFile& File() { return m_new; }

    /// Puts the new file in its place and closes it. Raises a `CFileException` that names the path.
    void Commit();

private:
    DWORD Replace();
    void WriteOver();

    CFile m_old;       // held against others while there is one
    CFile m_new;       // goes with its last handle until it is finished
    CString m_target;  // where the new file is to stand, in the form in which paths may be of any length
    CString m_beside;  // the new file's path, in that form; empty when there is none
};

}  // namespace Lumo
