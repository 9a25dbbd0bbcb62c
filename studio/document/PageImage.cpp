#include "studio/document/PageImage.h"

#include "core/Geometry.h"
#include "studio/document/PageFile.h"
#include "studio/editing/ComPtr.h"
#include "studio/editing/Geometry.h"

#include <algorithm>
#include <cmath>

namespace Studio {

using Gdiplus::Bitmap;
using Gdiplus::Graphics;
using Gdiplus::RectF;
using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

constexpr DWORD kGround = 0xFF000000;  // as a canvas paints it
constexpr float kMargin = 16.0f;
constexpr float kLargestSide = 8192.0f;
constexpr float kEmptyWidth = 320.0f;
constexpr float kEmptyHeight = 200.0f;

bool IsShown(const CUIObject* object) {
    return object && !object->GetRemoved();
}

std::unique_ptr<Bitmap> MakeBitmap(int width, int height) {
    auto bitmap = std::make_unique<Bitmap>(width, height, PixelFormat32bppPARGB);
    if (bitmap->GetLastStatus() != Gdiplus::Ok)
        throw FileFault{Text::kFaultPicture};
    return bitmap;
}

}  // namespace

CLSID PngEncoder() {
    UINT count = 0, size = 0;
    Gdiplus::GetImageEncodersSize(&count, &size);
    std::vector<BYTE> memory(size);
    auto* encoders = reinterpret_cast<Gdiplus::ImageCodecInfo*>(memory.data());
    Gdiplus::GetImageEncoders(count, size, encoders);
    for (UINT i = 0; i < count; ++i) {
        if (CString(encoders[i].MimeType) == L"image/png")
            return encoders[i].Clsid;
    }
    throw FileFault{Text::kFaultPicture};
}

std::vector<BYTE> EncodePng(Bitmap& bitmap) {
    IStream* made = nullptr;
    if (FAILED(::CreateStreamOnHGlobal(nullptr, TRUE, &made)))
        return {};
    const ComPtr<IStream> stream(made);
    const CLSID encoder = PngEncoder();
    HGLOBAL memory = nullptr;
    STATSTG state = {};
    if (bitmap.Save(stream.get(), &encoder, nullptr) != Gdiplus::Ok ||
        FAILED(::GetHGlobalFromStream(stream.get(), &memory)) ||
        FAILED(stream->Stat(&state, STATFLAG_NONAME)))
        return {};
    const auto* data = static_cast<const BYTE*>(::GlobalLock(memory));
    std::vector<BYTE> png(data, data + static_cast<size_t>(state.cbSize.QuadPart));
    ::GlobalUnlock(memory);
    return png;
}

void DrawObjects(Graphics& g, const CUIObjectDeque& objects) {
    for (CUIObject* object : objects) {
        if (IsShown(object))
            object->Draw(&g);
    }
}

RectF PaintedBounds(const CUIObjectDeque& objects) {
    RectF all(0, 0, 0, 0);
    bool any = false;
    for (CUIObject* object : objects) {
        if (!IsShown(object))
            continue;
        const RectF painted = Lumo::Inflated(Lumo::Normalised(object->GetPosition()), PaintMargin(*object));
        all = any ? United(all, painted) : painted;
        any = true;
    }
    return all;
}

std::unique_ptr<Bitmap> DrawPage(const CUIObjectDeque& objects) {
    const RectF painted = PaintedBounds(objects);
    const auto side = [](float end, float least) {
        return static_cast<int>(std::ceil(std::clamp(end + kMargin, least, kLargestSide)));
    };
    auto bitmap = MakeBitmap(side(painted.GetRight(), kEmptyWidth), side(painted.GetBottom(), kEmptyHeight));
    Graphics g(bitmap.get());
    g.Clear(Gdiplus::Color(kGround));
    DrawObjects(g, objects);
    return bitmap;
}

void DrawFitted(Graphics& g, const CUIObjectDeque& objects, CSize size) {
    const RectF painted = PaintedBounds(objects);
    if (painted.IsEmptyArea())
        return;
    const auto width = static_cast<float>(size.cx), height = static_cast<float>(size.cy);
    const float scale = std::min({width / painted.Width, height / painted.Height, 1.0f});
    const Gdiplus::GraphicsState before = g.Save();
    g.TranslateTransform(width / 2, height / 2);
    g.ScaleTransform(scale, scale);
    g.TranslateTransform(-painted.X - painted.Width / 2, -painted.Y - painted.Height / 2);
    DrawObjects(g, objects);
    g.Restore(before);
}

void WritePagePicture(const CUIObjectDeque& objects, const CString& path) {
    const std::vector<BYTE> png = EncodePng(*DrawPage(objects));
    if (png.empty())
        throw FileFault{Text::kFaultPicture};
    WriteWholeFile(path, [&](CFile& file) { file.Write(png.data(), static_cast<UINT>(png.size())); });
}

}  // namespace Studio
