// Placing a picture: the file is asked for, and shown where the tool said.
#include "studio/app/MainFrame.h"

#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PictureFill.h"

#include <afxdlgs.h>

#include <utility>

namespace Studio {

void MainFrame::OnCanvasPicture(StudioCanvas& canvas, const Gdiplus::RectF& place) {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_FILEMUSTEXIST,
                       GetText(Text::kPictureFilter), this);
    if (dialog.DoModal() != IDOK)
        return;
    const CString path = dialog.GetPathName();
    CRect client;
    canvas.GetClientRect(client);
    const Gdiplus::SizeF room(static_cast<float>(client.Width()), static_cast<float>(client.Height()));
    ObjectPtr picture = MakePicture(path, place, room);
    if (!picture) {
        CString message;
        message.Format(GetText(Text::kErrorPicture), path.GetString());
        AfxMessageBox(message, MB_OK | MB_ICONERROR);
        return;
    }
    std::vector<ObjectPtr> objects;
    objects.push_back(std::move(picture));
    InsertObjects(canvas, std::move(objects), Gdiplus::PointF(0.0f, 0.0f), Text::kStepInsert);
}

}  // namespace Studio
