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

TEST_F(ArrangeTest, DistributesWithEqualGapsBetweenTheOutermost) {
    CUIObject* right = Add(Lumo::DS_RECTANGLE, 300, 0, 40, 10);
    CUIObject* left = Add(Lumo::DS_RECTANGLE, 10, 50, 20, 10);
    CUIObject* middle = Add(Lumo::DS_RECTANGLE, 40, 90, 60, 10);
    SelectAll(Page());
    DistributeSelection(Page(), true);
    ExpectBounds(*left, 10, 50, 20, 10);
    ExpectBounds(*middle, 135, 90, 60, 10);
    ExpectBounds(*right, 300, 0, 40, 10);
    DistributeSelection(Page(), false);
    ExpectBounds(*left, 10, 45, 20, 10);
}

TEST_F(ArrangeTest, FlipsPointsAndChildren) {
    auto* line = static_cast<Lumo::CUIObjectPoly*>(Add(Lumo::DS_LINE, 20, 20, 60, 30));
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 100, 20, 20, 10);
    SelectAll(Page());
    GroupSelection(Page());
    FlipSelection(Page(), true);
    ExpectBounds(*Objects()[0], 20, 20, 100, 30);
    UngroupSelection(Page());
    ExpectBounds(*box, 20, 20, 20, 10);
    EXPECT_FLOAT_EQ(120.0f, line->NormalizePoints()->at(0).X);
    EXPECT_FLOAT_EQ(20.0f, line->NormalizePoints()->at(0).Y);
    EXPECT_FLOAT_EQ(60.0f, line->NormalizePoints()->at(1).X);

    CUIObject* flat = Add(Lumo::DS_RECTANGLE, 200, 50, 40, 11);
    CUIObject* tall = Add(Lumo::DS_RECTANGLE, 223, 90, 9, 30);
    Page().SelectOnly({flat, tall});
    GroupSelection(Page());
    FlipSelection(Page(), false);
    UngroupSelection(Page());
    ExpectBounds(*flat, 200, 109, 40, 11);
    ExpectBounds(*tall, 223, 50, 9, 30);
}

TEST_F(ArrangeTest, GesturesSnapToTheGridUnlessCtrlHasItsOwnWay) {
    PageGrid().snapping = true;
    ChooseTool(Page(), Lumo::DS_RECTANGLE);
    Drag({18, 33}, {123, 88});
    CUIObject* box = Objects()[0];
    ExpectBounds(*box, 20, 30, 100, 60);
    ChooseTool(Page(), Lumo::DS_SELECT);
    Drag({50, 50}, {63, 57});
    ExpectBounds(*box, 30, 40, 100, 60);
    Drag({130, 100}, {146, 111});
    ExpectBounds(*box, 30, 40, 120, 70);
    Drag({50, 50}, {63, 51}, MK_CONTROL);
    ExpectBounds(*box, 43, 40, 120, 70);
    NudgeSelection(Page(), 1, 0);
    ExpectBounds(*box, 44, 40, 120, 70);
    PageGrid().snapping = false;
    Drag({60, 60}, {73, 67});
    ExpectBounds(*box, 57, 47, 120, 70);
}

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
