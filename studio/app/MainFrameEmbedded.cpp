// Embedded objects of other programs: inserting and opening them.
#include "studio/app/MainFrame.h"

#include "studio/editing/EmbeddedObject.h"
#include "studio/editing/ObjectClipboard.h"

#include <afxodlgs.h>

namespace Studio {

namespace {

void ShowReason(Text sentence, const CString& reason) {
    CString message;
    message.Format(GetText(sentence), reason.GetString());
    AfxMessageBox(message, MB_OK | MB_ICONERROR);
}

}  // namespace

void MainFrame::OnInsertEmbedded() {
    FinishEditing();
    StudioCanvas* page = Page();
    if (!page)
        return;
    if (!AfxOleInit()) {
        ShowReason(Text::kErrorEmbedded, GetText(Text::kFaultOle));
        return;
    }
    COleInsertDialog dialog(IOF_SELECTCREATENEW | IOF_DISABLELINK | IOF_DISABLEDISPLAYASICON, this);
    const INT_PTR answer = dialog.DoModal();
    if (answer == IDOK)
        InsertEmbedded(*page, dialog);
    else if (answer != IDCANCEL)
        ShowReason(Text::kErrorEmbedded, GetText(Text::kFaultOleDialog));
    page->SetFocus();
}

// The item goes to the middle of what is seen of the page. A new one is empty: it is opened at once.
void MainFrame::InsertEmbedded(StudioCanvas& page, COleInsertDialog& dialog) {
    const CWaitCursor wait;
    auto item = std::make_unique<EmbeddedItem>();
    if (!dialog.CreateItem(item.get())) {
        ShowReason(Text::kErrorEmbedded, StatusText(item->GetLastStatus()));
        return;
    }
    CRect view;
    page.GetClientRect(view);
    page.ClientToDoc(view);
    const Gdiplus::PointF centre(static_cast<float>(view.CenterPoint().x),
                                 static_cast<float>(view.CenterPoint().y));
    const Gdiplus::SizeF room(static_cast<float>(view.Width()), static_cast<float>(view.Height()));
    std::vector<ObjectPtr> objects;
    objects.push_back(MakeEmbedded(std::move(item), centre, room));
    auto& object = static_cast<EmbeddedObject&>(*objects.front());
    InsertObjects(page, std::move(objects), Gdiplus::PointF(0.0f, 0.0f), Text::kStepInsert);
    SCODE status = S_OK;
    if (dialog.GetSelectionType() == COleInsertDialog::createNewItem)
        object.Open(*this, &status);
}

void MainFrame::OnCanvasEmbedded(StudioCanvas&, EmbeddedObject& object) {
    const CWaitCursor wait;
    SCODE status = E_FAIL;
    if (!AfxOleInit() || !object.Open(*this, &status))
        ShowReason(Text::kErrorOpenEmbedded, StatusText(status));
}

}  // namespace Studio
