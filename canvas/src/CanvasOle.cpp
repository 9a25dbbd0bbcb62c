// Inserting an embedded object.
#include "canvas/UICanvas.h"

#include "behaviour/UIObjectOle.h"
#include "core/UIDocument.h"

#include <afxodlgs.h>
#include <afxole.h>
#include <shobjidl.h>

#include <memory>

namespace Lumo {

namespace {

struct ReleaseObject {
    void operator()(CUIObject* object) const { object->Release(); }
};

// Where a new embedded object goes, in client coordinates.
constexpr float kInsertAt = 10.0f;

void CreateItem(COleInsertDialog& dialog, COleClientItem* item) {
    // The client item is the host's to supply; the dialog cannot do without.
    if (item == nullptr || !dialog.CreateItem(item))
        AfxThrowMemoryException();
}

}  // namespace

void CUICanvas::OnInsertOleObject() {
    if (m_pDocument == nullptr)
        return;
    COleInsertDialog dialog(IOF_SELECTCREATENEW, nullptr);
    if (dialog.DoModal() != IDOK)
        return;
    CWaitCursor wait;
    try {
        Gdiplus::RectF rect(kInsertAt, kInsertAt, kInsertAt, kInsertAt);
        ClientToDoc(rect);
        std::unique_ptr<CUIObjectOle, ReleaseObject> object(new CUIObjectOle(rect, DS_OLE));
        object->SetDocument(m_pDocument);
        object->SetCanvas(m_pDocument->GetCurrentCanvas());
        COleClientItem* item = object->GetClientItem();
        CreateItem(dialog, item);
        m_pDocument->AppendObject(object.release(), nullptr);
        item->UpdateLink();
        // Kept: loads the task bar's class and asks it for nothing.
        ::CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList, nullptr);
    } catch (CException* exception) {
        exception->Delete();
    }
}

}  // namespace Lumo
