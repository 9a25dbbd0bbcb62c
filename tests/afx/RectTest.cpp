// CPoint, CSize and CRect: arithmetic that is more than a call of the system's function.
#include "Expect.h"

#include <atltypes.h>
#include <gtest/gtest.h>

namespace {

TEST(Rect, MovesGrowsAndNormalises) {
    CRect rect(CPoint(10, 20), CSize(-4, 6));
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(6, 20, 10, 26));
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(5, 18, 13, 30));
    rect.DeflateRect(CRect(1, 2, 3, 4));
    EXPECT_EQ(rect, CRect(6, 20, 10, 26));
    rect.MoveToXY(-1, -2);
    EXPECT_EQ(rect, CRect(-1, -2, 3, 4));
    EXPECT_EQ(rect.CenterPoint(), CPoint(1, 1));
    rect.TopLeft() = CPoint(0, 0);
    rect.BottomRight() += CSize(1, 1);
    EXPECT_EQ(rect, CRect(0, 0, 4, 5));
    EXPECT_EQ(rect.Size(), CSize(4, 5));
    rect += CPoint(1, 1);
    EXPECT_EQ(rect - CSize(1, 1), CRect(0, 0, 4, 5));
    EXPECT_TRUE(rect.PtInRect(CPoint(1, 1)) && !rect.PtInRect(CPoint(5, 5)));
}

TEST(Rect, JoinsAndCutsAlsoWithItself) {
    CRect rect(0, 0, 10, 10);
    const CRect other(5, 5, 20, 8);
    EXPECT_EQ(rect & other, CRect(5, 5, 10, 8));
    EXPECT_EQ(rect | other, CRect(0, 0, 20, 10));
    EXPECT_TRUE(rect.UnionRect(rect, other));
    EXPECT_EQ(rect, CRect(0, 0, 20, 10));
    EXPECT_FALSE(rect.IntersectRect(rect, CRect(30, 30, 40, 40)));
    EXPECT_TRUE(rect.IsRectEmpty() && rect.IsRectNull());
}

TEST(Rect, PointsFromMessagesAreSigned) {
    EXPECT_EQ(CPoint(LPARAM(0xFFFE0005)), CPoint(5, -2));
    EXPECT_EQ(CPoint(3, 4) - CPoint(1, 1), CSize(2, 3));
    CPoint point = LPARAM(0x0007FFFD);
    EXPECT_EQ(CPoint(-3, 7), point);
    CSize size = point;
    EXPECT_EQ(CSize(-3, 7), size);
    point = CSize(8, -9);
    EXPECT_EQ(CPoint(8, -9), point);
    size = DWORD(0xFFFB0006);
    EXPECT_EQ(CSize(6, -5), size);
}

}  // namespace
