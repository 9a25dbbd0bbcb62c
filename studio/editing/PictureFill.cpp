#include "studio/editing/PictureFill.h"

#include "appearance/PictureFile.h"
#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "studio/controls/GraphicsStateScope.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

namespace Studio {

using namespace Gdiplus;
using Lumo::CUIObject;

namespace {

constexpr float kStretchedAlpha = 0.8f;
constexpr DWORD kMissing = 0xFF7A8394;
constexpr size_t kMostPictures = 64;
constexpr ULONGLONG kLookAgain = 1000;  // milliseconds until a file is asked again whether it has changed

// A file's picture, copied so that the file is not kept open.
std::unique_ptr<Bitmap> ReadPicture(const CString& path) {
    if (Lumo::IsOversizedPicture(path))
        return nullptr;
    Bitmap file(path);
    const auto width = static_cast<INT>(file.GetWidth());
    const auto height = static_cast<INT>(file.GetHeight());
    if (file.GetLastStatus() != Ok || width <= 0 || height <= 0)
        return nullptr;
    auto picture = std::make_unique<Bitmap>(width, height, PixelFormat32bppPARGB);
    if (picture->GetLastStatus() != Ok)
        return nullptr;
    Graphics g(picture.get());
    g.DrawImage(&file, Rect(0, 0, width, height), 0, 0, width, height, UnitPixel);
    return picture;
}

class PictureCache {
public:
    // Null for a file that holds no picture.
    Bitmap* Find(const CString& path) {
        if (m_pictures.size() > kMostPictures)
            m_pictures.clear();
        Entry& entry = m_pictures[path];
        const ULONGLONG now = ::GetTickCount64();
        if (entry.asked != 0 && now - entry.asked < kLookAgain)
            return entry.picture.get();
        const bool first = entry.asked == 0;
        entry.asked = now;
        const FILETIME written = LastWritten(path);
        if (first || ::CompareFileTime(&written, &entry.written) != 0) {
            entry.written = written;
            entry.picture = ReadPicture(path);
        }
        return entry.picture.get();
    }

private:
    struct Entry {
        std::unique_ptr<Bitmap> picture;
        FILETIME written = {};
        ULONGLONG asked = 0;
    };

    static FILETIME LastWritten(const CString& path) {
        WIN32_FILE_ATTRIBUTE_DATA data = {};
        ::GetFileAttributesEx(path, GetFileExInfoStandard, &data);
        return data.ftLastWriteTime;
    }

    std::map<CString, Entry> m_pictures;
};

PictureCache& Cache() {
    static PictureCache cache;
    return cache;
}

const Lumo::CUIShapeFormatFill& FillOf(const CUIObject& object) {
    return object.GetCoordinate().Format<Lumo::CUIShapeFormatFill>();
}

void ClipToShape(Graphics& g, const CUIObject& object, const RectF& bounds) {
    if (object.GetDrawShape() != Lumo::DS_ELLIPSE) {
        g.SetClip(bounds, CombineModeIntersect);
        return;
    }
    GraphicsPath path;
    path.AddEllipse(bounds);
    g.SetClip(&path, CombineModeIntersect);
}

void DrawStretched(Graphics& g, Bitmap& picture, const RectF& bounds) {
    ColorMatrix matrix = {};
    for (int i = 0; i < 5; ++i)
        matrix.m[i][i] = 1.0f;
    matrix.m[3][3] = kStretchedAlpha;
    ImageAttributes attributes;
    attributes.SetColorMatrix(&matrix, ColorMatrixFlagsDefault, ColorAdjustTypeBitmap);
    g.DrawImage(&picture, bounds, 0.0f, 0.0f, static_cast<float>(picture.GetWidth()),
                static_cast<float>(picture.GetHeight()), UnitPixel, &attributes);
}

void DrawPicture(Graphics& g, Bitmap& picture, const RectF& bounds, PictureMode mode) {
    const auto width = static_cast<float>(picture.GetWidth());
    const auto height = static_cast<float>(picture.GetHeight());
    if (mode == PictureMode::kStretched) {
        DrawStretched(g, picture, bounds);
    } else if (mode == PictureMode::kOwnSize) {
        g.DrawImage(&picture, RectF(bounds.X, bounds.Y, width, height), 0.0f, 0.0f, width, height, UnitPixel);
    } else {
        TextureBrush brush(&picture, WrapModeTile);
        brush.TranslateTransform(bounds.X, bounds.Y);
        g.FillRectangle(&brush, bounds);
    }
}

void DrawCrossedFrame(Graphics& g, const RectF& bounds) {
    const Pen pen(Color(kMissing), 1.0f);
    const float right = bounds.X + bounds.Width - 1.0f;
    const float bottom = bounds.Y + bounds.Height - 1.0f;
    g.DrawRectangle(&pen, bounds.X, bounds.Y, bounds.Width - 1.0f, bounds.Height - 1.0f);
    g.DrawLine(&pen, bounds.X, bounds.Y, right, bottom);
    g.DrawLine(&pen, bounds.X, bottom, right, bounds.Y);
}

}  // namespace

bool HasPictureFill(const CUIObject& object) {
    const auto& fill = FillOf(object);
    return fill.m_bEnabled != 0 && fill.m_nShapeMode >= static_cast<int>(PictureMode::kTiled) &&
           fill.m_nShapeMode <= static_cast<int>(PictureMode::kStretched);
}

void DrawPictureFill(Graphics& g, const CUIObject& object) {
    const RectF bounds = Lumo::Normalised(object.GetPosition());
    if (bounds.Width < 1.0f || bounds.Height < 1.0f || Lumo::PaintScope::Misses(g, bounds))
        return;
    const auto& fill = FillOf(object);
    GraphicsStateScope state(g);
    ClipToShape(g, object, bounds);
    if (Bitmap* picture = Cache().Find(fill.m_strImagePath))
        DrawPicture(g, *picture, bounds, static_cast<PictureMode>(fill.m_nShapeMode));
    else
        DrawCrossedFrame(g, bounds);
}

ObjectPtr MakePicture(const CString& path, const RectF& place, const SizeF& room) {
    Bitmap* picture = Cache().Find(path);
    if (!picture)
        return nullptr;
    const auto width = static_cast<float>(picture->GetWidth());
    const auto height = static_cast<float>(picture->GetHeight());
    const float scale = std::min({1.0f, room.Width / width, room.Height / height});
    RectF bounds = place;
    const bool ownSize = place.Width < 1.0f || place.Height < 1.0f;
    if (ownSize)
        bounds = RectF(std::round(place.X - width * scale * 0.5f),
                       std::round(place.Y - height * scale * 0.5f), width * scale, height * scale);
    ObjectPtr object = MakeDrawnObject(Lumo::DS_RECTANGLE, bounds);
    const PictureMode mode = ownSize && scale == 1.0f ? PictureMode::kOwnSize : PictureMode::kStretched;
    object->SetFillShapeMode(static_cast<int>(mode));
    object->GetCoordinate().Format<Lumo::CUIShapeFormatFill>().m_strImagePath = path;
    object->GetCoordinate().Format<Lumo::CUIShapeFormatText>().m_strText.Empty();
    object->SetLineShapeMode(0);
    object->SetShapeName(L"Picture1");
    return object;
}

}  // namespace Studio
