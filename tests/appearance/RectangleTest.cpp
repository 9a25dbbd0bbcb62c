#include "appearance/UIObjectRectangle.h"

#include <string>

#include <gtest/gtest.h>

#include "appearance/PictureFile.h"
#include "core/PaintScope.h"
#include "support/Geometry.h"
#include "support/Surface.h"
#include "support/TemporaryFile.h"

namespace Lumo {

namespace {

constexpr Gdiplus::ARGB kBlue = 0xFF0000FF;

void Caption(CUIObject& object, int enabled) {
    CUIShapeFormatText text = object.GetCoordinate().GetShapeFormatText();
    text.m_bEnabled = enabled;
    object.GetCoordinate().SetShapeFormatText(text);
}

/// A file with a 4 by 2 picture: red, green, blue, black on both lines.
class PictureFile {
public:
    PictureFile() {
        BITMAPINFOHEADER info = {};
        info.biSize = sizeof info;
        info.biWidth = 4;
        info.biHeight = 2;
        info.biPlanes = 1;
        info.biBitCount = 24;
        const BYTE row[12] = {0, 0, 255, 0, 255, 0, 255, 0, 0, 0, 0, 0};
        BITMAPFILEHEADER file = {};
        file.bfType = 0x4D42;
        file.bfOffBits = sizeof file + sizeof info;
        file.bfSize = file.bfOffBits + 2 * sizeof row;
        CFile out(path(), CFile::modeCreate | CFile::modeWrite);
        out.Write(&file, sizeof file);
        out.Write(&info, sizeof info);
        out.Write(row, sizeof row);
        out.Write(row, sizeof row);
        out.Close();
    }
    const CString& path() const { return m_file.Path(); }

private:
    TemporaryFile m_file;
};

class RectangleTest : public ::testing::Test {
protected:
    RectangleTest() {
        Caption(m_rectangle, 0);
        Caption(m_ellipse, 0);
    }
    void FillWith(CUIObject& object, int mode, const CString& path) {
        auto& fill = object.GetCoordinate().Format<CUIShapeFormatFill>();
        fill.m_nShapeMode = mode;
        fill.m_strImagePath = path;
        object.SetLineShapeMode(0);
    }

    Surface m_surface{200, 160};
    CUIObjectRectangle m_rectangle{{50, 40, 100, 80}, DS_RECTANGLE};
    CUIObjectEllipse m_ellipse{{50, 40, 100, 80}, DS_ELLIPSE};
    Gdiplus::PointF m_point;
};

}  // namespace

TEST(ShapeClassTest, KindsAndNames) {
    EXPECT_EQ(CUIObjectRectangle().GetDrawShape(), DS_RECTANGLE);
    EXPECT_EQ(CUIObjectEllipse().GetDrawShape(), DS_ELLIPSE);
    CUIObjectEllipse odd({0, 0, 1, 1}, DS_PIE);
    EXPECT_EQ(odd.GetDrawShape(), DS_PIE);
    EXPECT_EQ(odd.GetShapeName(), L"Ellipse");
    static_assert(sizeof(CUIObjectRectangle) <= 640);
}

TEST_F(RectangleTest, CaptionLiesUnderTheFill) {
    Caption(m_rectangle, 1);
    m_rectangle.SetText(L"HHHH");
    m_rectangle.SetTextColor(0xFF000000);
    m_rectangle.SetFillAlpha(255);
    m_rectangle.Draw(m_surface);
    for (int x = 55; x < 145; ++x)
        ASSERT_EQ(m_surface.At(x, 80), kBlue) << x;
    m_surface.Clear();
    m_rectangle.GetCoordinate().Format<CUIShapeFormatFill>().m_bEnabled = 0;
    m_rectangle.SetLineShapeMode(0);
    m_rectangle.Draw(m_surface);
    EXPECT_FALSE(m_surface.Painted().IsRectEmpty());
    m_surface.Clear();
    m_rectangle.DrawDragImage(m_surface, m_point);
    EXPECT_TRUE(m_surface.Painted().IsRectEmpty());
}

TEST_F(RectangleTest, GradientRunsDownFromAboveTheShape) {
    m_rectangle.SetLineShapeMode(0);
    m_rectangle.SetFillShapeMode(3);
    m_rectangle.SetFillColor(0xFF000000);
    m_rectangle.GetCoordinate().Format<CUIShapeFormatFill>().m_dwGradientColor = 0xFFFFFFFF;
    m_rectangle.SetFillGradientDirection(7);
    m_rectangle.Draw(m_surface);
    const auto grey = [&](int x, int y) { return static_cast<int>(m_surface.At(x, y) & 0xFF); };
    EXPECT_EQ(grey(55, 80), grey(145, 80));
    EXPECT_LT(grey(100, 45), grey(100, 80));
    EXPECT_LT(grey(100, 80), grey(100, 115));
    // More than half of the run lies above the shape.
    EXPECT_GT(grey(100, 42), 128);
}

TEST_F(RectangleTest, ImageModes) {
    const PictureFile picture;
    FillWith(m_rectangle, 4, picture.path());
    m_rectangle.Draw(m_surface);
    // Tiles start at the page's origin, so the colour follows x modulo 4.
    EXPECT_EQ(m_surface.At(100, 80), 0xFFFF0000);
    EXPECT_EQ(m_surface.At(101, 81), 0xFF00FF00);
    EXPECT_EQ(m_surface.At(40, 80), Surface::kWhite);

    m_surface.Clear();
    m_rectangle.SetFillShapeMode(5);
    {
        // It stands at the page's origin, far from the shape, and is painted there.
        PaintScope scope(m_surface.graphics(), {0, 0, 10, 10});
        m_rectangle.Draw(m_surface);
    }
    EXPECT_EQ(m_surface.Painted(), CRect(0, 0, 4, 2));

    m_surface.Clear();
    FillWith(m_ellipse, 6, picture.path());
    m_surface.graphics().SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
    m_ellipse.DrawDragImage(m_surface, m_point);
    // Stretched over the whole rectangle, corners included, at 80 %.
    EXPECT_TRUE(m_surface.Shows(54, 44, 0xCCFF0000));
    EXPECT_TRUE(m_surface.Shows(112, 80, 0xCC0000FF));
}

TEST_F(RectangleTest, UnreadableImagesPaintNothing) {
    const PictureFile notAPicture;
    CFile(notAPicture.path(), CFile::modeCreate | CFile::modeWrite).Write("text", 4);
    for (const CString& path : {CString(), CString(L"no such file.png"), notAPicture.path()})
        for (int mode : {4, 5, 6}) {
            FillWith(m_rectangle, mode, path);
            m_rectangle.Draw(m_surface);
            FillWith(m_ellipse, mode, path);
            m_ellipse.DrawDragImage(m_surface, m_point);
        }
    EXPECT_TRUE(m_surface.Painted().IsRectEmpty());
    m_rectangle.Draw(nullptr);
    m_ellipse.DrawDragImage(nullptr, m_point);
}

TEST_F(RectangleTest, ImageFilesAreFreedAtOnce) {
    const PictureFile picture;
    for (int mode : {4, 5, 6}) {
        FillWith(m_rectangle, mode, picture.path());
        m_rectangle.Draw(m_surface);
    }
    EXPECT_NE(::DeleteFile(picture.path()), FALSE);
}

TEST(PictureFileTest, WeighsWhatAPictureClaimsAsLongAsItsFileStays) {
    const TemporaryFile file;
    EXPECT_FALSE(IsOversizedPicture(file.Path()));
    const struct {
        int width, height;
        WORD bits;
        bool oversized;
    } cases[] = {{12000, 7000, 24, false}, {12000, 7500, 24, true}, {16000, 16000, 8, false},
                 {17000, 16000, 8, true},  {17000, 16000, 1, true}, {7000, 9000, 32, false}};
    for (const auto& c : cases) {
        BITMAPINFOHEADER info = {};
        info.biSize = sizeof info;
        info.biWidth = c.width;
        info.biHeight = c.height;
        info.biPlanes = 1;
        info.biBitCount = c.bits;
        BITMAPFILEHEADER head = {};
        head.bfType = 0x4D42;
        head.bfOffBits = sizeof head + sizeof info + 1024;
        // Another length each time, whatever the clock says.
        const std::string rest(1024 + static_cast<size_t>(&c - cases), '\0');
        file.Write(std::string(reinterpret_cast<const char*>(&head), sizeof head) +
                   std::string(reinterpret_cast<const char*>(&info), sizeof info) + rest);
        EXPECT_EQ(IsOversizedPicture(file.Path()), c.oversized) << c.width << " at " << c.bits;
        // A second time the file is not opened.
        const CFile locked(file.Path(), CFile::modeRead | CFile::shareExclusive);
        EXPECT_EQ(IsOversizedPicture(file.Path()), c.oversized) << c.width << " at " << c.bits;
    }
}

}  // namespace Lumo
