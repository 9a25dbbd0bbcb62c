// The contents of a document while no window shows them: names and objects of the pages.
#pragma once

#include "studio/document/ObjectArchive.h"

#include "core/UIDocument.h"

#include <functional>
#include <vector>

namespace Studio {

/// One page: its name and its objects in drawing order, not owned by any document.
struct PageContents {
    CString name;
    std::vector<ObjectPtr> objects;

    PageContents() = default;
    PageContents(PageContents&&) = default;
    PageContents& operator=(PageContents&&) = default;
    /// Destroys the objects that are still here.
    ~PageContents();
};

/// All pages and the index of the one that is shown first.
struct DocumentContents {
    std::vector<PageContents> pages;
    size_t current = 0;
};

/// Reads all pages of an archive to its end. Raises the archive's exceptions and `FileFault`.
DocumentContents LoadContents(CArchive& ar, DWORD version = kArchiveVersion);

/// Reads a file. Raises the exceptions of file and archive and `FileFault`.
DocumentContents LoadContents(const CString& path);

/// Writes a file whole or not at all. Raises the exceptions of file and archive and `FileFault`.
void WriteContents(const DocumentContents& contents, const CString& path);

/// The objects of a page as a list; they stay the page's.
Lumo::CUIObjectDeque ListOf(const PageContents& page);

/// Stores one page: its name and every object that is there.
void StorePage(CArchive& ar, const CString& name, const Lumo::CUIObjectDeque& objects);
/// Stores what stands before and after the pages.
void StoreHead(CArchive& ar, size_t count, size_t current);
void StoreEnd(CArchive& ar);

/// Copies of objects, with everything that an archive keeps. Raises `FileFault` for one that cannot be
/// stored.
std::vector<ObjectPtr> CopyObjects(const Lumo::CUIObjectDeque& objects);

/// Carries out a file operation; whatever it raises becomes `reason`, a sentence for the user, and the result
/// false.
bool AttemptFile(const std::function<void()>& action, CString& reason);

}  // namespace Studio
