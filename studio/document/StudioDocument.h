// Studio's document: pages in an order of their own, and files that bring everything back.
#pragma once

#include "core/UIDocument.h"
#include "studio/document/ObjectArchive.h"
#include "studio/editing/History.h"
#include "studio/editing/StudioCanvas.h"

#include <vector>

namespace Studio {

/// One page of the document.
struct Page {
    CString name;
    std::unique_ptr<StudioCanvas> canvas;
};

/// The library keeps pages in the order of their pointers and reads a file only into objects that are there
/// already. This document has its own page order, makes and owns the canvases, and stores and restores
/// classes, pages, points and children. Always has at least one page once `NewFile` or `Load` succeeded. End
/// it with `Release`.
class StudioDocument : public Lumo::CUIDocument {
public:
    /// Pages are made as hidden children of `parent`. Both arguments outlive the document.
    StudioDocument(CWnd& parent, CanvasListener& listener);
    ~StudioDocument() override;

    /// Replaces everything by one empty page. False when its window cannot be made; everything stays then.
    bool NewFile();

    /// Reads a file. When it is refused the result is 0, the open pages stay as they are, and `GetError` says
    /// why.
    int Load(CString& path) override;
    /// Writes a file whole or not at all. 0 on failure; `GetError` says why.
    int Save(CString& path) override;
    /// Stores all pages, or replaces them by what the archive holds to its end. Raises the archive's
    /// exceptions and `FileFault`; the pages stay as they are then.
    void Serialize(CArchive& ar) override;

    /// Why `Load` or `Save` failed last, as a sentence for the user.
    const CString& GetError() const { return m_error; }
    /// Path of the file last loaded or saved, empty for a new document.
    const CString& GetPath() const { return m_path; }

    /// The undo history; it is cleared when the pages are replaced.
    History& Edits() { return m_edits; }

    /// All pages in their order.
    const std::vector<Page>& Pages() const { return m_pageOrder; }
    /// The page shown now; null before the first one.
    StudioCanvas* CurrentPage();

private:
    struct LoadedPage {
        CString name;
        std::vector<ObjectPtr> objects;
    };
    struct LoadedDocument {
        std::vector<LoadedPage> pages;
        size_t current = 0;
    };

    void StorePages(CArchive& ar);
    static LoadedDocument LoadPages(CArchive& ar);
    static LoadedPage LoadPage(CArchive& ar);
    void Adopt(LoadedDocument loaded);
    std::unique_ptr<StudioCanvas> MakeCanvas();
    void DropPages();

    template <class Action>
    bool Attempt(Text sentence, const CString& path, Action action);

    CWnd& m_parent;
    CanvasListener& m_listener;
    std::vector<Page> m_pageOrder;
    History m_edits{*this};
    CString m_path;
    CString m_error;
};

}  // namespace Studio
