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
    X(kStepInsert,         L"Insert",                   L"삽입") \
    X(kEditUndoStep,       L"&Undo %s",                 L"%s 되돌리기(&U)") \
    X(kEditRedoStep,       L"&Redo %s",                 L"%s 다시 실행(&R)") \
    X(kEditDuplicate,      L"Dup&licate",               L"복제(&L)") \
    X(kMenuView,           L"&View",                    L"보기(&V)") \
    X(kViewGrid,           L"Show &Grid",               L"격자 표시(&G)") \
    X(kViewSnap,           L"&Snap to Grid",            L"격자에 맞추기(&S)") \
    X(kArrangeDistributeH, L"Distribute &Horizontally", L"가로 간격을 같게(&H)") \
    X(kArrangeDistributeV, L"Distribute &Vertically",   L"세로 간격을 같게(&V)") \
    X(kArrangeFlipH,       L"Flip Left to Right",       L"좌우 뒤집기") \
    X(kArrangeFlipV,       L"Flip Top to Bottom",       L"상하 뒤집기") \
    X(kToolPicture,        L"P&icture",                 L"그림(&I)") \
    X(kHintPicture,        L"Drag out or click where a picture goes, then choose its file", \
                           L"그림을 넣을 곳을 끌거나 클릭한 다음 파일을 고르세요") \
    X(kPictureFilter,      L"Pictures|*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.tif;*.tiff;*.ico|All files (*.*)|*.*||", \
                           L"그림|*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.tif;*.tiff;*.ico|모든 파일 (*.*)|*.*||") \
    X(kMenuInsert,         L"&Insert",                  L"삽입(&I)") \
    X(kInsertEmbedded,     L"&Object...",               L"개체(&O)...") \
    X(kEmbeddedObject,     L"Embedded object",          L"포함된 개체") \
    X(kStepEmbedded,       L"Edit Object",              L"개체 편집") \
    X(kErrorEmbedded,      L"No object was inserted.\n\n%s", L"개체를 삽입하지 못했습니다.\n\n%s") \
    X(kErrorOpenEmbedded,  L"The object could not be opened.\n\n%s", L"개체를 열 수 없습니다.\n\n%s") \
    X(kFaultOle,           L"This system does not support embedded objects.", \
                           L"이 시스템은 포함된 개체를 지원하지 않습니다.") \
    X(kFaultBlank,         L"Only its picture is here: its data could not be stored.", \
                           L"데이터를 저장할 수 없는 개체여서 그림만 남아 있습니다.") \
    X(kFaultStatus,        L"The system reports the error 0x%08X.", L"시스템 오류가 발생했습니다(0x%08X).") \
    X(kFaultOleDialog,     L"The list of objects could not be shown.", L"개체 목록을 표시할 수 없습니다.") \
    X(kErrorClipboard,     L"The clipboard is in use by another program. Nothing was changed; try again.", \
                           L"다른 프로그램에서 클립보드를 사용하고 있습니다. 바뀐 것은 없으니 다시 시도하세요.") \
    X(kErrorPicture,       L"The file \"%s\" holds no picture that can be shown.", \
                           L"파일 \"%s\"에는 표시할 수 있는 그림이 없습니다.")
// clang-format on
