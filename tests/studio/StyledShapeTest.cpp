// Outlines with dashes and caps, read from real pictures.
#include "StudioFixture.h"

#include <gtest/gtest.h>

namespace {

class StyledShapeTest : public StudioFixture {
protected:
    // Pixels of a rectangle of the object's picture that are not empty.
    int PaintedIn(Lumo::CUIObject& object, const CRect& where) {
        Gdiplus::Bitmap picture(200, 120, PixelFormat32bppARGB);
        {
            Gdiplus::Graphics g(&picture);
            object.Draw(&g);
        }
        int painted = 0;
        for (int y = where.top; y < where.bottom; ++y) {
            for (int x = where.left; x < where.right; ++x) {
                Gdiplus::Color color;
                picture.GetPixel(x, y, &color);
                painted += color.GetA() != 0 ? 1 : 0;
            }
        }
        return painted;
    }
};

}  // namespace

TEST_F(StyledShapeTest, DashesLeaveGaps) {
    const CRect topEdge(20, 20, 120, 21);
    for (Lumo::DrawShape kind : {Lumo::DS_RECTANGLE, Lumo::DS_LINE, Lumo::DS_POLYLINE}) {
        Lumo::CUIObject* object = Add(kind, 10, 20, 120, kind == Lumo::DS_RECTANGLE ? 80.0f : 0.0f);
        object->SetFillShapeMode(0);
        object->SetText(L" ");
        object->SetLineWidth(2.0f);
        EXPECT_EQ(topEdge.Width(), PaintedIn(*object, topEdge)) << kind;
        object->SetLineDashStyle(Gdiplus::DashStyleDash);
        const int dashed = PaintedIn(*object, topEdge);
        EXPECT_GT(dashed, topEdge.Width() / 4) << kind;
        EXPECT_LT(dashed, topEdge.Width()) << kind;
        EXPECT_EQ(2, object->GetLineShapeMode()) << "drawing leaves the record as it is";
        object->SetLineShapeMode(0);
        EXPECT_EQ(0, PaintedIn(*object, topEdge)) << kind;
    }
}

TEST_F(StyledShapeTest, APolylineHasCaps) {
    Lumo::CUIObject* object = Add(Lumo::DS_POLYLINE, 20, 60, 100, 0);
    object->SetLineWidth(6.0f);
    object->SetLineStartCap(Gdiplus::LineCapFlat);
    object->SetLineEndCap(Gdiplus::LineCapFlat);
    const CRect beyond(121, 50, 140, 70);
    EXPECT_EQ(0, PaintedIn(*object, beyond));
    object->SetLineEndCap(Gdiplus::LineCapSquare);
    EXPECT_GT(PaintedIn(*object, beyond), 0);
}
