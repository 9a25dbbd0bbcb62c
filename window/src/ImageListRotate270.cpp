#include "window/ImageListRotate270.h"

#include "BitmapPixels.h"

#include <algorithm>
#include <utility>

namespace Lumo {

namespace {

// One picture of the bitmap that holds all of them, turned.
BitmapPixels Turned(const BitmapPixels& all, const CRect& place) {
    BitmapPixels turned = {place.Height(), place.Width(), true, {}};
    turned.pixels.reserve(static_cast<size_t>(turned.width) * static_cast<size_t>(turned.height));
    for (int x = place.right - 1; x >= place.left; --x) {
        for (int y = place.top; y < place.bottom; ++y)
            turned.pixels.push_back(
                all.pixels[static_cast<size_t>(y) * static_cast<size_t>(all.width) + static_cast<size_t>(x)]);
    }
    return turned;
}

HBITMAP ColorBitmap(BitmapPixels& picture) {
    const BITMAPINFO info = TopDownInfo(picture.width, picture.height);
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap)
        std::copy(picture.pixels.begin(), picture.pixels.end(), static_cast<DWORD*>(bits));
    return bitmap;
}

// White where the picture is transparent.
HBITMAP MaskBitmap(const BitmapPixels& picture) {
    const int stride = (picture.width + 15) / 16 * 2;
    std::vector<BYTE> bits(static_cast<size_t>(stride) * static_cast<size_t>(picture.height));
    size_t pixel = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (picture.pixels[pixel++] & 0xFFFFFF)
                bits[static_cast<size_t>(y * stride + x / 8)] |= static_cast<BYTE>(0x80 >> x % 8);
        }
    }
    return ::CreateBitmap(picture.width, picture.height, 1, 1, bits.data());
}

bool AddTurned(HIMAGELIST list, const BitmapPixels& colors, const BitmapPixels& masks, const CRect& place) {
    BitmapPixels color = Turned(colors, place);
    CBitmap picture, mask;
    if (!picture.Attach(ColorBitmap(color)))
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
