#include "canvas/CanvasCommands.h"
#include "canvas/CanvasFixture.h"

#include <gtest/gtest.h>

namespace {

// Position by position, separators as lines.
constexpr wchar_t kItems[] =
    L"6401 Select Tool ()|6402 Line Tool ()|6403 PolyLine Tool ()|6404 Rectangle Tool ()|6405 Ellipse Tool "
    L"()|-|"
    L"6501 뒤로 보내기(&B)|6502 앞으로 가져오기(&F)|6504 맨 뒤로 보내기(&K)|6503 맨 앞으로 가져오기(&R)|-|"
    L"6505 왼쪽으로 90도 회전(&L)|6506 오른쪽으로 90도 회전(&R)|-|"
    L"6507 그룹(&G)|6508 그룹 해제(&U)|-|"
    L"6509 왼쪽 맞춤()|6510 오른쪽 맞춤()|6511 위쪽 맞춤()|6512 아래쪽 맞춤()|6513 가운데 맞춤()|6514 중간 "
    L"맞춤()|6515 아래쪽 맞춤()|-|"
    L"6516 그리기 모드|6517 폴리 모드|6518 프로퍼티 모드|6519 실행 모드|-|"
    L"6520 복사|6521 잘라내기|6522 삭제|6523 붙여넣기|6524 되돌리기|6525 다시실행|-|"
    L"6526 불러오기 &R)|6527 저장하기 (&S)|-|"
    L"6528 속성(&P)|";

using Menu = CanvasFixture;

TEST_F(Menu, HasItsItemsInOrderEnabledAndToTheLetter) {
    CMenu& menu = m_canvas->m_contextMenu;
    CString items;
    for (UINT i = 0; i < menu.GetMenuItemCount(); ++i) {
        CString text;
        menu.GetMenuString(i, text, MF_BYPOSITION);
        const UINT state = menu.GetMenuState(i, MF_BYPOSITION);
        if (state & MF_SEPARATOR) {
            items += L"-|";
            continue;
        }
        items.AppendFormat(L"%u %s|", menu.GetMenuItemID(static_cast<int>(i)), text);
        EXPECT_EQ(state, static_cast<UINT>(MF_STRING | MF_ENABLED)) << i;
    }
    EXPECT_STREQ(items, kItems);
}

}  // namespace
