#include "window/ImageListRotate270.h"

#include "BitmapPixels.h"

#include <utility>

namespace Lumo {

namespace {

// White where the picture is transparent.
HBITMAP MaskBitmap(const BitmapPixels& picture) {
    const auto width = static_cast<size_t>(picture.width);
    const size_t stride = (width + 15) / 16 * 2;
    std::vector<BYTE> bits(stride * static_cast<size_t>(picture.height));
    for (size_t i = 0; i < picture.pixels.size(); ++i) {
        if (picture.pixels[i] & 0xFFFFFF)
            bits[i / width * stride + i % width / 8] |= static_cast<BYTE>(0x80 >> i % width % 8);
    }
    return ::CreateBitmap(picture.width, picture.height, 1, 1, bits.data());
}

bool AddTurned(HIMAGELIST list, const BitmapPixels& colors, const BitmapPixels& masks, const CRect& place) {
    CBitmap picture, mask;
    if (!picture.Attach(PixelCanvas(Turned(colors, place)).Detach()))
        return false;
    const bool masked = !masks.pixels.empty();
    if (masked && !mask.Attach(MaskBitmap(Turned(masks, place))))
        return false;
    return ::ImageList_Add(list, picture, masked ? static_cast<HBITMAP>(mask) : nullptr) >= 0;
}

}  // namespace

bool ImageListRotate270::Create(HIMAGELIST list) {
    int width = 0, height = 0;
    if (!list || !::ImageList_GetIconSize(list, &width, &height))
        return false;
    const int count = ::ImageList_GetImageCount(list);
    IMAGEINFO info = {};
    BitmapPixels colors, masks;
    if (count > 0 && ::ImageList_GetImageInfo(list, 0, &info)) {
        colors = ReadPixels(info.hbmImage);
        if (info.hbmMask)
            masks = ReadPixels(info.hbmMask);
    }
    const UINT flags = ILC_COLOR32 | (count == 0 || info.hbmMask ? ILC_MASK : 0);
    const HIMAGELIST turned = ::ImageList_Create(height, width, flags, count, 0);
    bool whole = turned && (count == 0 || !colors.pixels.empty());
    for (int i = 0; whole && i < count; ++i)
        whole = ::ImageList_GetImageInfo(list, i, &info) && AddTurned(turned, colors, masks, info.rcImage);
    if (!whole) {
        ::ImageList_Destroy(turned);
        return false;
    }
    ::ImageList_SetBkColor(turned, ::ImageList_GetBkColor(list));
    Destroy();
    m_list = turned;
    return true;
}

void ImageListRotate270::Destroy() {
    if (m_list)
        ::ImageList_Destroy(m_list);
    m_list = nullptr;
}

HIMAGELIST ImageListRotate270::Detach() {
    return std::exchange(m_list, nullptr);
}

}  // namespace Lumo
