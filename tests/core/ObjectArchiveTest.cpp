#include "appearance/UIObjectRectangle.h"
#include "support/Bytes.h"
#include "support/Geometry.h"

#include <gtest/gtest.h>

namespace Lumo {

TEST(ObjectArchiveTest, WritesKindNameFlagAndCoordinate) {
    CUIObjectRectangle rectangle({10, 20, 30, 40}, DS_RECTANGLE);
    EXPECT_TRUE(SameBytes(Stored(rectangle), ObjectBase(3, L"Rectangle", 10, 20, 30, 40)));
    CUIObjectEllipse ellipse({1, 2, 3, 4}, DS_CHORD);
    EXPECT_TRUE(SameBytes(Stored(ellipse), ObjectBase(8, L"Ellipse", 1, 2, 3, 4)));
}

TEST(ObjectArchiveTest, ReadsWhatItWrites) {
    CUIObject stored({10, 20, 30, 40}, DS_ARC);
    stored.SetShapeName(L"\xD398\xC774\xB354 3");
    stored.SetArchived(-7);
    stored.SetRemoved(1);
    stored.SetText(L"dB");
    CUIObject loaded;
    EXPECT_EQ(Load(loaded, Stored(stored)), 0u);
    EXPECT_EQ(loaded.GetDrawShape(), DS_ARC);
    EXPECT_EQ(loaded.GetShapeName(), stored.GetShapeName());
    EXPECT_EQ(loaded.GetArchived(), -7);
    EXPECT_EQ(loaded.GetRemoved(), 0);
    EXPECT_EQ(loaded.GetText(), L"dB");
    EXPECT_EQ(Box(loaded.GetPosition()), Box(10, 20, 30, 40));
}

TEST(ObjectArchiveTest, EndOfDataRaisesAndKeepsWhatWasRead) {
    CUIObject loaded({1, 1, 1, 1}, DS_LINE);
    EXPECT_EQ(LoadFailure(loaded, Bytes().I(4).S(L"Knob").I(5)), CArchiveException::endOfFile);
    EXPECT_EQ(loaded.GetDrawShape(), DS_ELLIPSE);
    EXPECT_EQ(loaded.GetShapeName(), L"Knob");
    EXPECT_EQ(loaded.GetArchived(), 5);
    EXPECT_EQ(Box(loaded.GetPosition()), Box(1, 1, 1, 1));
}

}  // namespace Lumo
