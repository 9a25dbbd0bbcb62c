// The texts of editing: the names of the steps that can be undone. A part of the table of texts.
#pragma once

// clang-format off
/// key, English, Korean.
#define STUDIO_EDIT_TEXTS(X) \
    X(kStepDraw,           L"Draw",                     L"그리기") \
    X(kStepMove,           L"Move",                     L"이동") \
    X(kStepResize,         L"Resize",                   L"크기 조정") \
    X(kStepPoint,          L"Edit Point",               L"점 편집") \
    X(kStepTyping,         L"Edit Text",                L"글 편집") \
    X(kStepNudge,          L"Nudge",                    L"조금 이동") \
    X(kStepDelete,         L"Delete",                   L"삭제") \
    X(kStepCut,            L"Cut",                      L"잘라내기") \
    X(kStepPaste,          L"Paste",                    L"붙여넣기") \
    X(kStepDuplicate,      L"Duplicate",                L"복제") \
    X(kStepStack,          L"Reorder",                  L"순서 바꾸기") \
    X(kStepAlign,          L"Align",                    L"맞춤") \
    X(kStepDistribute,     L"Distribute",               L"고르게 배치") \
    X(kStepRotate,         L"Rotate",                   L"회전") \
    X(kStepFlip,           L"Flip",                     L"뒤집기") \
    X(kStepGroup,          L"Group",                    L"그룹") \
    X(kStepUngroup,        L"Ungroup",                  L"그룹 해제") \
    X(kStepInsert,         L"Insert",                   L"삽입")
// clang-format on
