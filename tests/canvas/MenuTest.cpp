#include "canvas/CanvasCommands.h"
#include "canvas/CanvasFixture.h"

#include <gtest/gtest.h>

#include <iterator>

namespace {

struct Item {
    UINT id;
    const wchar_t* label;
};

// Position by position; identifier 0 is a separator.
constexpr Item kItems[] = {
    {6401, L"Select Tool ()"},
    {6402, L"Line Tool ()"},
    {6403, L"PolyLine Tool ()"},
    {6404, L"Rectangle Tool ()"},
    {6405, L"Ellipse Tool ()"},
    {0, L""},
    {6501, L"뒤로 보내기(&B)"},
    {6502, L"앞으로 가져오기(&F)"},
    {6504, L"맨 뒤로 보내기(&K)"},
    {6503, L"맨 앞으로 가져오기(&R)"},
    {0, L""},
    {6505, L"왼쪽으로 90도 회전(&L)"},
    {6506, L"오른쪽으로 90도 회전(&R)"},
    {0, L""},
    {6507, L"그룹(&G)"},
    {6508, L"그룹 해제(&U)"},
    {0, L""},
    {6509, L"왼쪽 맞춤()"},
    {6510, L"오른쪽 맞춤()"},
    {6511, L"위쪽 맞춤()"},
    {6512, L"아래쪽 맞춤()"},
    {6513, L"가운데 맞춤()"},
    {6514, L"중간 맞춤()"},
    {6515, L"아래쪽 맞춤()"},
    {0, L""},
    {6516, L"그리기 모드"},
    {6517, L"폴리 모드"},
    {6518, L"프로퍼티 모드"},
    {6519, L"실행 모드"},
    {0, L""},
    {6520, L"복사"},
    {6521, L"잘라내기"},
    {6522, L"삭제"},
    {6523, L"붙여넣기"},
    {6524, L"되돌리기"},
    {6525, L"다시실행"},
    {0, L""},
    {6526, L"불러오기 &R)"},
    {6527, L"저장하기 (&S)"},
    {0, L""},
    {6528, L"속성(&P)"},
};

using Menu = CanvasFixture;

TEST_F(Menu, HasItsItemsInOrderEnabledAndToTheLetter) {
    const HMENU menu = m_canvas->m_contextMenu.m_hMenu;
    ASSERT_EQ(::GetMenuItemCount(menu), static_cast<int>(std::size(kItems)));
    for (UINT i = 0; i < std::size(kItems); ++i) {
        SCOPED_TRACE(i + 1);
        wchar_t text[64] = L"";
        ::GetMenuString(menu, i, text, 64, MF_BYPOSITION);
        EXPECT_STREQ(text, kItems[i].label);
        const UINT state = ::GetMenuState(menu, i, MF_BYPOSITION);
        if (kItems[i].id == 0) {
            EXPECT_NE(state & MF_SEPARATOR, 0u);
        } else {
            EXPECT_EQ(::GetMenuItemID(menu, static_cast<int>(i)), kItems[i].id);
            EXPECT_EQ(state, static_cast<UINT>(MF_STRING | MF_ENABLED));
        }
    }
}

}  // namespace
