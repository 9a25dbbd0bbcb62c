// Turned image lists, painted: places, masks, alpha.
#include "window/ImageListRotate270.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Lumo;

namespace {

constexpr COLORREF kPaper = RGB(255, 255, 255);

// Red, green and blue on a diagonal, other pixels 0; `alpha` is the alpha of the red one, 0 for pictures
// without any.
HBITMAP Picture(int width, int height, DWORD alpha) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    auto* pixels = static_cast<DWORD*>(bits);
    pixels[0] = alpha << 24 | 0xFF0000;
    pixels[width + 1] = (alpha ? 0xFF000000 : 0) | 0x00FF00;
    pixels[2 * width + 2] = (alpha ? 0xFF000000 : 0) | 0x0000FF;
    return bitmap;
}

// What a list shows of a picture on white paper, row by row.
std::vector<COLORREF> Shown(HIMAGELIST list, int index) {
    int width = 0, height = 0;
    ::ImageList_GetIconSize(list, &width, &height);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CClientDC screen(nullptr);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, width, height);
    const HGDIOBJ old = ::SelectObject(dc, bitmap);
    dc.FillSolidRect(0, 0, width, height, kPaper);
    ::ImageList_Draw(list, index, dc, 0, 0, ILD_NORMAL);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels.push_back(dc.GetPixel(x, y));
    ::SelectObject(dc, old);
    return pixels;
}

// The picture as it is expected: the pixel at (x, y) was at (width - 1 - y, x).
std::vector<COLORREF> TurnedByHand(const std::vector<COLORREF>& pixels, int width, int height) {
    std::vector<COLORREF> turned;
    for (int y = 0; y < width; ++y)
        for (int x = 0; x < height; ++x)
            turned.push_back(pixels[x * width + width - 1 - y]);
    return turned;
}

class ImageListTest : public ::testing::Test {
protected:
    ~ImageListTest() override { ::ImageList_Destroy(m_list); }
    // Two pictures of 5 by 3, the second one empty but for what `mask` leaves.
    void Fill(UINT flags, DWORD alpha) {
        m_list = ::ImageList_Create(5, 3, flags, 1, 4);
        CBitmap picture, mask;
        picture.Attach(Picture(5, 3, alpha));
        const BYTE rows[] = {0x08, 0, 0, 0, 0xF8, 0};  // one pixel and one row are transparent
        mask.CreateBitmap(5, 3, 1, 1, rows);
        for (int i = 0; i < 2; ++i)
            ::ImageList_Add(m_list, picture, flags & ILC_MASK ? static_cast<HBITMAP>(mask) : nullptr);
    }

    HIMAGELIST m_list = nullptr;
};

TEST_F(ImageListTest, PicturesAreTurnedWithMaskAndAlpha) {
    const struct {
        UINT flags;
        DWORD alpha;
    } kinds[] = {{ILC_COLOR32 | ILC_MASK, 0},
                 {ILC_COLOR24 | ILC_MASK, 0},
                 {ILC_COLOR24, 0},
                 {ILC_COLOR32, 0x40},
                 {ILC_COLOR32 | ILC_MASK, 0x40}};
    for (const auto& kind : kinds) {
        SCOPED_TRACE(kind.flags);
        Fill(kind.flags, kind.alpha);
        ImageListRotate270 turned;
        ASSERT_TRUE(turned.Create(m_list));
        EXPECT_EQ(2, ::ImageList_GetImageCount(turned.Get()));
        int width = 0, height = 0;
        ::ImageList_GetIconSize(turned.Get(), &width, &height);
        EXPECT_TRUE(width == 3 && height == 5);
        const std::vector<COLORREF> before = Shown(m_list, 1);
        EXPECT_EQ(TurnedByHand(before, 5, 3), Shown(turned.Get(), 1));
        if (kind.alpha) {
            EXPECT_NEAR(255 - 0x40, GetGValue(before[0]), 1) << "the red is pale";
        } else if (kind.flags & ILC_MASK) {
            EXPECT_EQ(kPaper, before[12]) << "the blue is masked out";
        }
        // Once around.
        for (int i = 0; i < 3; ++i)
            ASSERT_TRUE(turned.Create(turned.Get()));
        EXPECT_EQ(before, Shown(turned.Get(), 1));
        ::ImageList_Destroy(m_list);
        m_list = nullptr;
    }
}

TEST_F(ImageListTest, NoListAndEmptyListsDoNoHarm) {
    ImageListRotate270 turned;
    EXPECT_FALSE(turned.Create(nullptr));
    m_list = ::ImageList_Create(7, 4, ILC_COLOR32, 0, 1);
    ASSERT_TRUE(turned.Create(m_list));
    EXPECT_EQ(0, ::ImageList_GetImageCount(turned.Get()));
    EXPECT_FALSE(turned.Create(nullptr));
    const HIMAGELIST list = turned.Detach();
    EXPECT_NE(nullptr, list) << "the failure has changed nothing";
    EXPECT_EQ(nullptr, turned.Get());
    ::ImageList_Destroy(list);
}

}  // namespace
