// Every text that a user of Studio reads, in one table.
#pragma once

#include "studio/app/EditTexts.h"
#include "studio/app/PageTexts.h"
#include "studio/app/RunTexts.h"

#include "studio/app/PropertyTexts.h"

#include <afxwin.h>

namespace Studio {

/// The languages of the table.
enum class Language { kEnglish, kKorean };

// clang-format off
/// key, English, Korean. A menu text carries its mnemonic; its shortcut stands in the command table.
#define STUDIO_TEXTS(X) \
    X(kAppName,            L"Studio",                   L"Studio") \
    X(kUntitled,           L"untitled",                 L"제목 없음") \
    X(kFileFilter,         L"Tessel pages (*.cbf)|*.cbf|All files (*.*)|*.*||", \
                           L"Tessel 페이지 (*.cbf)|*.cbf|모든 파일 (*.*)|*.*||") \
    X(kAskSave,            L"Save the changes to \"%s\"?", L"\"%s\"의 변경 내용을 저장할까요?") \
    X(kPageName,           L"Page %d",                  L"페이지 %d") \
    X(kAbout,              L"Studio draws control screens with TesselCtrls.", \
                           L"Studio는 TesselCtrls로 제어 화면을 그립니다.") \
    X(kMenuFile,           L"&File",                    L"파일(&F)") \
    X(kMenuEdit,           L"&Edit",                    L"편집(&E)") \
    X(kMenuMode,           L"&Mode",                    L"모드(&M)") \
    X(kMenuTools,          L"&Tools",                   L"도구(&T)") \
    X(kMenuArrange,        L"&Arrange",                 L"정렬(&A)") \
    X(kMenuHelp,           L"&Help",                    L"도움말(&H)") \
    X(kFileNew,            L"&New",                     L"새로 만들기(&N)") \
    X(kFileOpen,           L"&Open...",                 L"열기(&O)...") \
    X(kFileSave,           L"&Save",                    L"저장(&S)") \
    X(kFileSaveAs,         L"Save &As...",              L"다른 이름으로 저장(&A)...") \
    X(kFileExit,           L"E&xit",                    L"끝내기(&X)") \
    X(kEditUndo,           L"&Undo",                    L"되돌리기(&U)") \
    X(kEditRedo,           L"&Redo",                    L"다시 실행(&R)") \
    X(kEditCut,            L"Cu&t",                     L"잘라내기(&T)") \
    X(kEditCopy,           L"&Copy",                    L"복사(&C)") \
    X(kEditPaste,          L"&Paste",                   L"붙여넣기(&P)") \
    X(kEditDelete,         L"&Delete",                  L"삭제(&D)") \
    X(kEditSelectAll,      L"Select &All",              L"모두 선택(&A)") \
    X(kEditProperties,     L"P&roperties...",           L"속성(&R)...") \
    X(kModeDraw,           L"&Draw",                    L"그리기(&D)") \
    X(kModePoly,           L"P&oints",                  L"점(&O)") \
    X(kModeProperty,       L"&Properties",              L"속성(&P)") \
    X(kModeRunning,        L"&Run",                     L"실행(&R)") \
    X(kToolSelect,         L"&Select",                  L"선택(&S)") \
    X(kToolRectangle,      L"&Rectangle",               L"사각형(&R)") \
    X(kToolEllipse,        L"&Ellipse",                 L"타원(&E)") \
    X(kToolLine,           L"&Line",                    L"선(&L)") \
    X(kToolPolyline,       L"&Polyline",                L"꺾은선(&P)") \
    X(kToolTextBox,        L"&Text Box",                L"글상자(&T)") \
    X(kHintSelect,         L"Click or drag around objects to select them, drag them to move", \
                           L"클릭하거나 둘러싸서 선택하고, 끌어서 옮기세요") \
    X(kHintRectangle,      L"Drag out a rectangle",     L"끌어서 사각형을 그리세요") \
    X(kHintEllipse,        L"Drag out an ellipse",      L"끌어서 타원을 그리세요") \
    X(kHintLine,           L"Drag from end to end, or click both ends", L"끝에서 끝으로 끌거나 두 끝을 클릭하세요") \
    X(kHintPolyline,       L"Click point by point, double-click the last one", \
                           L"점을 차례로 클릭하고 마지막 점은 두 번 클릭하세요") \
    X(kHintTextBox,        L"Drag out a text box, double-click it to edit", \
                           L"끌어서 글상자를 그리고, 두 번 클릭하여 고치세요") \
    X(kArrangeForward,     L"Bring &Forward",           L"앞으로 가져오기(&F)") \
    X(kArrangeBackward,    L"Send &Backward",           L"뒤로 보내기(&B)") \
    X(kArrangeFront,       L"Bring to F&ront",          L"맨 앞으로 가져오기(&R)") \
    X(kArrangeBack,        L"Send to Bac&k",            L"맨 뒤로 보내기(&K)") \
    X(kArrangeRotateLeft,  L"Rotate &Left",             L"왼쪽으로 90도 회전(&L)") \
    X(kArrangeRotateRight, L"R&otate Right",            L"오른쪽으로 90도 회전(&O)") \
    X(kArrangeGroup,       L"&Group",                   L"그룹(&G)") \
    X(kArrangeUngroup,     L"&Ungroup",                 L"그룹 해제(&U)") \
    X(kAlignLeft,          L"Align Left",               L"왼쪽 맞춤") \
    X(kAlignRight,         L"Align Right",              L"오른쪽 맞춤") \
    X(kAlignTop,           L"Align Top",                L"위쪽 맞춤") \
    X(kAlignBottom,        L"Align Bottom",             L"아래쪽 맞춤") \
    X(kAlignCentres,       L"Align Centres",            L"가운데 맞춤") \
    X(kAlignMiddles,       L"Align Middles",            L"중간 맞춤") \
    X(kAlignBoth,          L"Align on One Point",       L"한 점에 맞춤") \
    X(kHelpAbout,          L"&About Studio",            L"Studio 정보(&A)") \
    X(kStatusNothing,      L"Nothing selected",         L"선택 없음") \
    X(kStatusMany,         L"%d selected",              L"%d개 선택") \
    X(kStatusModified,     L"Modified",                 L"수정됨") \
    X(kErrorRead,          L"The file \"%s\" was not opened, and the page is as it was.\n\n%s", \
                           L"파일 \"%s\"을(를) 열지 않았으며 페이지는 그대로입니다.\n\n%s") \
    X(kErrorWrite,         L"The file \"%s\" was not saved; an older one is as it was.\n\n%s", \
                           L"파일 \"%s\"을(를) 저장하지 못했으며 이전 파일은 그대로입니다.\n\n%s") \
    X(kFaultEmpty,         L"It is empty.",             L"파일이 비어 있습니다.") \
    X(kFaultForeign,       L"It is not a Studio file.", L"Studio 파일이 아닙니다.") \
    X(kFaultVersion,       L"It was written by a newer version of Studio.", \
                           L"더 새로운 Studio에서 저장한 파일입니다.") \
    X(kFaultLength,        L"It is damaged: its length is not what it should be.", \
                           L"손상된 파일입니다: 길이가 맞지 않습니다.") \
    X(kFaultChecksum,      L"It is damaged: its checksum does not fit.", \
                           L"손상된 파일입니다: 검사합이 맞지 않습니다.") \
    X(kFaultContent,       L"It is damaged: its contents make no sense.", \
                           L"손상된 파일입니다: 내용이 올바르지 않습니다.") \
    X(kFaultClass,         L"It holds an object of a kind that this version cannot store.", \
                           L"이 버전이 저장할 수 없는 개체가 들어 있습니다.") \
    X(kFaultDepth,         L"Its groups are nested too deeply.", L"그룹이 너무 깊이 중첩되어 있습니다.") \
    X(kFaultMemory,        L"There is not enough memory.", L"메모리가 부족합니다.") \
    X(kFaultWindow,        L"A page window could not be made.", L"페이지 창을 만들 수 없습니다.") \
    STUDIO_PROPERTY_TEXTS(X)
// clang-format on

/// Names a text of the table.
enum class Text {
#define STUDIO_TEXT_KEY(key, english, korean) key,
    STUDIO_TEXTS(STUDIO_TEXT_KEY) STUDIO_EDIT_TEXTS(STUDIO_TEXT_KEY) STUDIO_PAGE_TEXTS(STUDIO_TEXT_KEY)
        STUDIO_RUN_TEXTS(STUDIO_TEXT_KEY)
#undef STUDIO_TEXT_KEY
};

/// Chooses the language of all texts from now on; English at the start.
void SetLanguage(Language language);

/// The text in the chosen language; a constant.
LPCWSTR GetText(Text text);

/// The text without its mnemonic: "&Line" and "선(&L)" become "Line" and "선".
CString GetPlainText(Text text);

}  // namespace Studio
