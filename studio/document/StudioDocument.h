// Studio's document: pages in an order of their own, and files that bring everything back.
#pragma once

#include "core/UIDocument.h"
#include "studio/document/PageContents.h"
#include "studio/editing/History.h"
#include "studio/editing/StudioCanvas.h"

#include <functional>
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
    /// Replaces everything by pages that belong to no file and count as unmodified. False as above.
    bool NewFile(DocumentContents contents);

    /// Reads a file. When it is refused the result is 0, the open pages stay as they are, and `GetError` says
    /// why.
    int Load(CString& path) override;
    /// Reads what was saved by itself for the file `path` (empty: a document without a file), which the
    /// document belongs to and differs from afterwards. False as for `Load`.
    bool Recover(const CString& autosave, const CString& path);
    /// Writes a file whole or not at all. 0 on failure; `GetError` says why.
    int Save(CString& path) override;
    /// Writes a copy whole or not at all; the document keeps its path and modified mark. False on failure.
    bool SaveCopy(const CString& path);
    /// Stores all pages, or replaces them by what the archive holds to its end. Raises the archive's
    /// exceptions and `FileFault`; the pages stay as they are then.
    void Serialize(CArchive& ar) override;

    /// Why `Load` or `Save` failed last, as a sentence for the user.
    const CString& GetError() const { return m_error; }
    /// The cause alone, as a sentence.
    const CString& GetReason() const { return m_reason; }
    /// Path of the file last loaded or saved, empty for a new document.
    const CString& GetPath() const { return m_path; }

    /// The undo history; it is cleared when the pages are replaced.
    History& Edits() { return m_edits; }

    /// All pages in their order.
    const std::vector<Page>& Pages() const { return m_pageOrder; }
    /// The page shown now; null before the first one.
    StudioCanvas* CurrentPage();
    /// Index of the page shown now, or of `canvas`; -1 when there is none.
    int CurrentIndex();
    int IndexOf(const Lumo::CUICanvas* canvas) const;

    /// Makes a page the one that is shown. False for an index that is none.
    bool ShowPage(int index);

    // Page commands; each is one step of the history and shows the page concerned.
    /// Puts an empty page behind the one at `index`. False when its window cannot be made.
    bool AddPage(int index);
    /// Puts a copy of a page behind it.
    bool DuplicatePage(int index);
    /// Takes a page away. False for the only one.
    bool RemovePage(int index);
    /// Renames a page. False for an empty name and for one that another page has.
    bool RenamePage(int index, const CString& name);
    /// Moves a page so that it has the index `to` afterwards. False for indices that are none.
    bool MovePage(int from, int to);
    /// Whether a page of this name is there, case ignored.
    bool HasPageName(const CString& name) const;

    /// Called when pages came, went, changed order or name, or another one is to be shown.
    std::function<void()> onPages;

private:
    struct AbsentPage;

    bool IsPage(int index) const { return index >= 0 && index < static_cast<int>(m_pageOrder.size()); }
    std::unique_ptr<StudioCanvas> MakeCanvas();
    void FillPage(StudioCanvas& canvas, std::vector<ObjectPtr> objects);
    void Adopt(DocumentContents loaded);
    void DropPages();

    bool InsertPage(int index, CString name, std::vector<ObjectPtr> objects, Text step);
    void Attach(AbsentPage& absent, int index);
    void Detach(AbsentPage& absent, int index);
    CString FreePageName() const;
    CString FreeCopyName(const CString& name) const;
    void PagesChanged();

    template <class Action>
    bool Attempt(Text sentence, const CString& path, Action action);

    CWnd& m_parent;
    CanvasListener& m_listener;
    std::vector<Page> m_pageOrder;
    History m_edits{*this};
    CString m_path;
    CString m_error;
    CString m_reason;
};

}  // namespace Studio
