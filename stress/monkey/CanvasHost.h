// A host of the library as small as can be: a window, a document, up to four pages, all commands routed.
#pragma once

#include "stress/monkey/Random.h"

#include "canvas/UICanvas.h"
#include "core/UIDocument.h"
#include "core/UIObject.h"

#include <memory>
#include <vector>

namespace monkey {

/// An object of some class of the library with some kind and place.
Lumo::CUIObject* MakeSomeObject(Random& random);
/// A new object of the same class; null for a class that `MakeSomeObject` does not make.
Lumo::CUIObject* MakeLike(Lumo::CUIObject& object);

class CanvasHost : public CWnd {
public:
    static constexpr int kMostPages = 4;

    /// Makes the window with one page.
    CanvasHost();
    ~CanvasHost() override;

    Lumo::CUIDocument& Document() { return *m_document; }
    const std::vector<std::unique_ptr<Lumo::CUICanvas>>& Canvases() const { return m_canvases; }
    /// The current page's canvas; there is always one.
    Lumo::CUICanvas& Current();
    /// The current page's objects.
    Lumo::CUIObjectDeque& Objects() { return *m_document->GetCanvasObjectList(&Current()); }

    void AddPage();
    /// Destroys a page's window and its canvas; the last one stays.
    void DestroyPage(int index);
    /// Ends the document; the canvases go on with a new one.
    void ReplaceDocument();

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    Lumo::CUIDocument* m_document = new Lumo::CUIDocument;
    std::vector<std::unique_ptr<Lumo::CUICanvas>> m_canvases;
};

}  // namespace monkey
