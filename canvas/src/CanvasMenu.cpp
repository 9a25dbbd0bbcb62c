// The popup menu.
#include "canvas/CanvasCommands.h"
#include "canvas/UICanvas.h"

namespace Lumo {

namespace {

struct MenuItem {
    UINT id;
    LPCWSTR label;  // null: a separator
};

constexpr MenuItem kSeparator{0, nullptr};

constexpr MenuItem kMenu[] = {
    {ID_TOOL_SELECT, L"Select Tool ()"},
    {ID_TOOL_LINE, L"Line Tool ()"},
    {ID_TOOL_POLYLINE, L"PolyLine Tool ()"},
    {ID_TOOL_RECTANGLE, L"Rectangle Tool ()"},
    {ID_TOOL_ELLIPSE, L"Ellipse Tool ()"},
    kSeparator,
    {ID_POSITION_BACKWARD, L"뒤로 보내기(&B)"},
    {ID_POSITION_FORWARD, L"앞으로 가져오기(&F)"},
    {ID_POSITION_BACK, L"맨 뒤로 보내기(&K)"},  // Kept: 6504 stands before 6503
    {ID_POSITION_FRONT, L"맨 앞으로 가져오기(&R)"},
    kSeparator,
    {ID_ROTATE_LEFT, L"왼쪽으로 90도 회전(&L)"},
    {ID_ROTATE_RIGHT, L"오른쪽으로 90도 회전(&R)"},
    kSeparator,
    {ID_GROUP_MAKE, L"그룹(&G)"},
    {ID_GROUP_UNMAKE, L"그룹 해제(&U)"},
    kSeparator,
    {ID_ALIGN_LEFT, L"왼쪽 맞춤()"},
    {ID_ALIGN_RIGHT, L"오른쪽 맞춤()"},
    {ID_ALIGN_TOP, L"위쪽 맞춤()"},
    {ID_ALIGN_BOTTOM, L"아래쪽 맞춤()"},
    {ID_ALIGN_VCENTER, L"가운데 맞춤()"},
    {ID_ALIGN_HCENTER, L"중간 맞춤()"},
    {ID_ALIGN_CENTER, L"아래쪽 맞춤()"},  // Kept: the label of 6512
    kSeparator,
    {ID_MODE_DRAW, L"그리기 모드"},
    {ID_MODE_POLY, L"폴리 모드"},
    {ID_MODE_PROPERTY, L"프로퍼티 모드"},
    {ID_MODE_RUNNING, L"실행 모드"},
    kSeparator,
    {ID_OBJECT_COPY, L"복사"},
    {ID_OBJECT_CUT, L"잘라내기"},
    {ID_OBJECT_DELETE, L"삭제"},
    {ID_OBJECT_PASTE, L"붙여넣기"},
    {ID_OBJECT_UNDO, L"되돌리기"},
    {ID_OBJECT_REDO, L"다시실행"},
    kSeparator,
    {ID_DOCUMENT_LOAD, L"불러오기 &R)"},  // Kept: the unbalanced parenthesis
    {ID_DOCUMENT_SAVE, L"저장하기 (&S)"},
    kSeparator,
    {ID_OBJECT_PROPERTIES, L"속성(&P)"},
};

}  // namespace

void CUICanvas::BuildContextMenu() {
    m_contextMenu.DestroyMenu();  // a window of this canvas before
    if (!m_contextMenu.Attach(::CreatePopupMenu()))
        return;
    for (const MenuItem& item : kMenu)
        m_contextMenu.AppendMenu(item.label != nullptr ? MF_STRING : MF_SEPARATOR, item.id, item.label);
}

}  // namespace Lumo
