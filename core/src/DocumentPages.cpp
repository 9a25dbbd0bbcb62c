// Pages: canvases, their order and the current one.
#include "core/UIDocument.h"

#include "canvas/UICanvas.h"
#include "core/UIObject.h"
#include "module/internal/Module.h"

#include <iterator>
#include <memory>

namespace Lumo {

bool CUIDocument::RegisterCanvasClass() {
    WNDCLASSEX known = {};
    known.cbSize = sizeof(known);
    if (!m_atomCanvas)
        m_atomCanvas = static_cast<ATOM>(::GetClassInfoEx(ModuleHandle(), kCanvasClassName, &known));
    if (m_atomCanvas)
        return true;
    WNDCLASSEX wndClass = {};
    wndClass.cbSize = sizeof(wndClass);
    wndClass.style = CS_HREDRAW | CS_VREDRAW | CS_OWNDC;
    wndClass.lpfnWndProc = &CUICanvas::WindowProc;
    wndClass.hInstance = ModuleHandle();
    wndClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    wndClass.hbrBackground = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    wndClass.lpszClassName = kCanvasClassName;
    m_atomCanvas = ::RegisterClassEx(&wndClass);
    return m_atomCanvas != 0;
}

int CUIDocument::CreateCanvas(DWORD style, CString&, CRect& rect, HWND parent) {
    if (!RegisterCanvasClass())
        return 0;
    LPCTSTR wndClass;
    try {
        wndClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    } catch (CResourceException* exception) {
        exception->Delete();
        return 0;
    }
    auto canvas = std::make_unique<CUICanvas>(this);
    if (!canvas->CreateEx(0, wndClass, L"Canvas", style, rect.left, rect.top, rect.Width(), rect.Height(),
                          parent, nullptr))
        return 0;
    AppendCanvas(canvas.get());
    SetCurrentCanvas(canvas.release());
    return 1;
}

void CUIDocument::AppendCanvas(CUICanvas* canvas) {
    if (!canvas)
        return;
    DropPage(canvas);
    auto& objects = m_pages[canvas];
    if (!objects)  // unless an object that has just ended brought it back
        objects = new CUIObjectDeque;
    m_pCurrent = canvas;
    m_bModified = 1;
}

void CUIDocument::DeleteCanvas(CUICanvas* canvas) {
    DropPage(canvas);
    m_bModified = 1;
}

void CUIDocument::ClearCanvas() {
    while (!m_pages.empty())
        DropPage(m_pages.begin()->first);
    m_bModified = 0;
}

void CUIDocument::ClearCanvasObject(CUICanvas* canvas) {
    if (canvas)
        DeleteCanvas(canvas);
}

void CUIDocument::ClearCanvasObject() {
    ClearCanvasObject(GetCurrentCanvas());
}

CUIObjectDeque* CUIDocument::GetCanvasObjectList(CUICanvas* canvas) {
    const auto page = m_pages.find(canvas);
    return page == m_pages.end() ? nullptr : page->second;
}

CUIObjectDeque* CUIDocument::GetCanvasObjectList() {
    return GetCanvasObjectList(m_pCurrent);
}

CUIPageMap::iterator CUIDocument::CurrentPage() {
    return m_pCurrent ? m_pages.find(m_pCurrent) : m_pages.end();
}

CUICanvas* CUIDocument::GetCurrentCanvas() {
    return CurrentPage() == m_pages.end() ? nullptr : m_pCurrent;
}

CUICanvas* CUIDocument::SetCurrentCanvas(CUICanvas* canvas) {
    if (!canvas)
        return nullptr;
    if (m_pages.contains(canvas))
        m_pCurrent = canvas;
    return m_pCurrent;
}

CUICanvas* CUIDocument::GetFirstCanvas() {
    return m_pages.empty() ? nullptr : m_pages.begin()->first;
}

// Kept: unlike the first page's query, this one moves to the page it answers.
CUICanvas* CUIDocument::GetLastCanvas() {
    return m_pages.empty() ? nullptr : m_pCurrent = m_pages.rbegin()->first;
}

CUICanvas* CUIDocument::GetNextCanvas() {
    const auto page = CurrentPage();
    if (page == m_pages.end())
        return nullptr;
    const auto next = std::next(page);
    return next == m_pages.end() ? page->first : next->first;
}

CUICanvas* CUIDocument::GetPrevCanvas() {
    const auto page = CurrentPage();
    if (page == m_pages.end())
        return nullptr;
    return page == m_pages.begin() ? page->first : std::prev(page)->first;
}

CUICanvas* CUIDocument::MoveFirstCanvas() {
    return SetCurrentCanvas(GetFirstCanvas());
}

CUICanvas* CUIDocument::MoveLastCanvas() {
    return SetCurrentCanvas(GetLastCanvas());
}

CUICanvas* CUIDocument::MoveNextCanvas() {
    return SetCurrentCanvas(GetNextCanvas());
}

CUICanvas* CUIDocument::MovePrevCanvas() {
    return SetCurrentCanvas(GetPrevCanvas());
}

}  // namespace Lumo
