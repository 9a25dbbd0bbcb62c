// Files that are complete at every moment.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// A file that is written whole or not at all. What is written goes to "<path>.saving" beside it, which takes
/// the file's place in `Commit`; until then, and for good when it is never called, a file at the path is as
/// it was. A process that ends in between leaves the file beside behind, and the next one writes over it.
class TESSEL_API WholeFile {
public:
    /// Makes the file beside `path`. Raises a `CFileException` that names `path`, also when the old file is
    /// read-only, and when another process is writing the same file in this way.
    explicit WholeFile(LPCTSTR path);
    /// Deletes the file beside, unless `Commit` succeeded.
    ~WholeFile();

    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    /// Whether a file at `path` is marked as one that must not be written. Nothing else may stop a user with
    /// all rights.
    static bool IsReadOnly(LPCTSTR path);

    /// The new file, empty and open for reading and writing, for this process alone. Its path is that of the
    /// file it will replace, so that exceptions name that one.
    CFile& File() { return m_file; }

    /// Closes the new file and puts it in its place in one step. A file that must survive a loss of power is
    /// flushed before. Raises a `CFileException` that names the path; the old file is as it was then.
    void Commit();

private:
    const CString m_path;
    CFile m_file;
    CString m_beside;  // full path of the file beside, empty once it is in its place
};

}  // namespace Lumo
