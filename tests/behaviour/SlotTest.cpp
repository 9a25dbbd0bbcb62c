// The order of the virtual members is a promise to hosts that were built earlier.
#ifdef __GNUC__

#include <cstring>

#include <gtest/gtest.h>

#include "behaviour/UIObjectButton.h"
#include "behaviour/UIObjectList.h"
#include "behaviour/UIObjectOle.h"
#include "behaviour/UIObjectTextEdit.h"
#include "behaviour/UIPreference.h"

using namespace Lumo;

namespace {

/// Index in the table of virtual members, as this compiler encodes it in a pointer to one; the destructor
/// takes two entries.
template <class Member>
size_t Slot(Member member) {
    size_t encoded = 0;
    std::memcpy(&encoded, &member, sizeof encoded);
    return (encoded - 1) / sizeof(void*);
}

TEST(Slots, NewOperationsFollowThoseOfTheBase) {
    const size_t first = Slot(&CUIObject::Release) + 3;
    const size_t buttons[] = {Slot(&CUIObjectButton::DrawNormal),   Slot(&CUIObjectButton::DrawDown),
                              Slot(&CUIObjectButton::DrawFocus),    Slot(&CUIObjectButton::DrawOver),
                              Slot(&CUIObjectButton::DrawDisabled), Slot(&CUIObjectButton::DrawChecked)};
    for (size_t i = 0; i < std::size(buttons); ++i)
        EXPECT_EQ(first + i, buttons[i]);
    using DragByPoint = void (CUIObjectList::*)(Gdiplus::Graphics*, POINT);
    EXPECT_EQ(first, Slot(&CUIObjectList::MakeGroup));
    EXPECT_EQ(first + 1, Slot(&CUIObjectList::MakeUnGroup));
    EXPECT_EQ(first + 2, Slot(static_cast<DragByPoint>(&CUIObjectList::DrawDragImage)));
    EXPECT_EQ(first, Slot(&CUIObjectTextEdit::DrawContents));
    EXPECT_EQ(first + 1, Slot(&CUIObjectTextEdit::DrawDragImage));
    EXPECT_EQ(first, Slot(static_cast<void (CUIObjectOle::*)(CDC*)>(&CUIObjectOle::Draw)));
    EXPECT_EQ(2u, Slot(&CPrefTrend::Serialize));
    EXPECT_EQ(2u, Slot(&CUIPreference::Serialize));
}

}  // namespace

#endif
