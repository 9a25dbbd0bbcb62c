// Distributing, flipping, the grid, and shapes filled with pictures.
#include "studio/StudioFixture.h"
#include "studio/editing/Grid.h"
#include "studio/editing/GroupObject.h"
#include "studio/editing/History.h"
#include "studio/editing/PageEdits.h"
#include "studio/editing/PictureFill.h"

#include <gtest/gtest.h>

using namespace Studio;
using Gdiplus::RectF;
using Lumo::CUIObject;

namespace {

// A picture file of 4 by 2 pixels: the upper row red, the lower one blue.
void WritePicture(const CString& path) {
    BITMAPFILEHEADER file = {};
    BITMAPINFOHEADER info = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof file + sizeof info;
    info.biSize = sizeof info;
    info.biWidth = 4;
    info.biHeight = 2;
    info.biPlanes = 1;
    info.biBitCount = 32;
    const DWORD pixels[] = {0x0000FF, 0x0000FF, 0x0000FF, 0x0000FF, 0xFF0000, 0xFF0000, 0xFF0000, 0xFF0000};
    file.bfSize = file.bfOffBits + sizeof pixels;
    CFile out(path, CFile::modeCreate | CFile::modeWrite);
    out.Write(&file, sizeof file);
    out.Write(&info, sizeof info);
    out.Write(pixels, sizeof pixels);
}

}  // namespace

class ArrangeTest : public StudioFixture {
protected:
    void TearDown() override {
        PageGrid() = Grid();
        StudioFixture::TearDown();
    }
};

TEST_F(ArrangeTest, PicturesStandWhereTheirShapeStands) {
    const CString path = FileName(L"picture.bmp");
    WritePicture(path);
    EXPECT_EQ(nullptr, MakePicture(FileName(L"none.bmp"), RectF(50, 50, 0, 0), {100, 100}));
    ObjectPtr picture = MakePicture(path, RectF(50, 50, 0, 0), {100, 100});
    ASSERT_NE(nullptr, picture);
    ExpectBounds(*picture, 48, 49, 4, 2);
    const struct {
        PictureMode mode;
        int redX, redY, emptyX, emptyY;
    } cases[] = {
        {PictureMode::kOwnSize, 22, 20, 26, 20},
        {PictureMode::kTiled, 26, 22, 19, 20},
        {PictureMode::kStretched, 24, 20, 19, 20},
    };
    picture->SetPosition(RectF(20, 20, 16, 8));
    for (const auto& expected : cases) {
        SCOPED_TRACE(static_cast<int>(expected.mode));
        picture->SetFillShapeMode(static_cast<int>(expected.mode));
        Gdiplus::Bitmap bitmap(60, 60, PixelFormat32bppPARGB);
        Gdiplus::Graphics g(&bitmap);
        picture->Draw(&g);
        Gdiplus::Color red, empty;
        bitmap.GetPixel(expected.redX, expected.redY, &red);
        bitmap.GetPixel(expected.emptyX, expected.emptyY, &empty);
        EXPECT_GT(red.GetR(), 150);
        EXPECT_LT(red.GetB(), 60);
        EXPECT_EQ(0, empty.GetA());
        EXPECT_EQ(static_cast<int>(expected.mode), picture->GetFillShapeMode());
    }
}
