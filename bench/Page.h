// A document with one page in a real window.
#pragma once

#include "canvas/UICanvas.h"
#include "canvas/UITool.h"
#include "core/UIDocument.h"
#include "core/UIObject.h"

#include <memory>

namespace bench {

class Page {
public:
    /// The page's window, shown only for what needs real paint messages.
    Page(int width, int height, bool visible = false) {
        parent.CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | (visible ? WS_VISIBLE : 0), 0, 0,
                        width, height, nullptr, nullptr);
        CString name;
        CRect rect(0, 0, width, height);
        document->CreateCanvas(WS_CHILD | WS_VISIBLE, name, rect, parent.m_hWnd);
        canvas.reset(document->GetCurrentCanvas());
        Lumo::CUIToolBase::run_drawshape = Lumo::DS_SELECT;
    }
    ~Page() {
        document->Release();
        canvas->DestroyWindow();
    }
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    Lumo::CUIObject* Add(Lumo::DrawShape kind, float x, float y, float width, float height) {
        Lumo::CUIObject* object = Lumo::CUIToolBase::CreateUIObject({x, y, width, height}, kind);
        object->SetDocument(document);
        object->SetCanvas(canvas.get());
        document->AppendObject(object, canvas.get());
        return object;
    }

    CWnd parent;
    Lumo::CUIDocument* document = new Lumo::CUIDocument;
    std::unique_ptr<Lumo::CUICanvas> canvas;
};

}  // namespace bench
