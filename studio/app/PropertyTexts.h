// The texts of the property panel: a part of the table of texts.
#pragma once

// clang-format off
/// key, English, Korean.
#define STUDIO_PROPERTY_TEXTS(X) \
    X(kViewProperties,     L"&Properties",              L"속성(&P)") \
    X(kPanelMany,          L"%d objects",               L"개체 %d개") \
    X(kPanelNothing,       L"Nothing selected",         L"선택한 개체 없음") \
    X(kSectionPosition,    L"Position",                 L"위치") \
    X(kSectionFill,        L"Fill",                     L"채우기") \
    X(kSectionOutline,     L"Outline",                  L"윤곽선") \
    X(kSectionText,        L"Text",                     L"텍스트") \
    X(kSectionBehaviour,   L"Behaviour",                L"동작") \
    X(kStepRename,         L"Rename",                   L"이름 바꾸기") \
    X(kStepPlace,          L"Change Position",          L"위치 변경") \
    X(kStepFill,           L"Change Fill",              L"채우기 변경") \
    X(kStepOutline,        L"Change Outline",           L"윤곽선 변경") \
    X(kStepTextFormat,     L"Change Text",              L"텍스트 변경") \
    X(kStepBinding,        L"Change Binding",           L"연결 변경") \
    X(kStepBehaviour,      L"Change Behaviour",         L"동작 변경") \
    X(kPropName,           L"Name",                     L"이름") \
    X(kPropPlace,          L"Place",                    L"좌표") \
    X(kPropSize,           L"Size",                     L"크기") \
    X(kPropKind,           L"Kind",                     L"종류") \
    X(kPropColor,          L"Colour",                   L"색") \
    X(kPropColor2,         L"Gradient to",              L"끝 색") \
    X(kPropPicture,        L"Picture",                  L"그림") \
    X(kPropWidth,          L"Width",                    L"두께") \
    X(kPropDash,           L"Line style",               L"선 모양") \
    X(kPropStartCap,       L"Start cap",                L"시작 모양") \
    X(kPropEndCap,         L"End cap",                  L"끝 모양") \
    X(kPropCaption,        L"Caption",                  L"캡션") \
    X(kPropFont,           L"Font",                     L"글꼴") \
    X(kPropFontSize,       L"Size",                     L"크기") \
    X(kPropFontStyle,      L"Style",                    L"스타일") \
    X(kPropAlignment,      L"Alignment",                L"맞춤") \
    X(kPropBinding,        L"Bound to",                 L"연결 값") \
    X(kPropBehaviour,      L"Behaviour",                L"동작") \
    X(kPropActive,         L"In use",                   L"사용") \
    X(kPropValueName,      L"Value",                    L"값 이름") \
    X(kPropCompare,        L"Acts when",                L"조건") \
    X(kPropHidesWhen,      L"When",                     L"조건") \
    X(kPropLimits,         L"Limits",                   L"한계값") \
    X(kPropRange,          L"Values",                   L"값 범위") \
    X(kPropJoin,           L"Then",                     L"이어서") \
    X(kPropDirection,      L"Direction",                L"방향") \
    X(kPropEdge,           L"Moving edge",              L"움직이는 변") \
    X(kPropMode,           L"Mode",                     L"방식") \
    X(kPropDistance,       L"Distance",                 L"거리") \
    X(kPropSizes,          L"Sizes",                    L"크기 범위") \
    X(kPropAngles,         L"Angles",                   L"각도") \
    X(kPropCentre,         L"Centre",                   L"중심") \
    X(kPropParts,          L"Parts",                    L"대상") \
    X(kPropSpeed,          L"Speed",                    L"속도") \
    X(kPropStep,           L"Step",                     L"단계") \
    X(kPropTextOff,        L"Text off",                 L"꺼짐 텍스트") \
    X(kPropTextOn,         L"Text on",                  L"켜짐 텍스트") \
    X(kPropAction,         L"Action",                   L"작업") \
    X(kPropNumber,         L"Number",                   L"숫자") \
    X(kPropConfirm,        L"Ask first",                L"먼저 확인") \
    X(kPropQuestion,       L"Question",                 L"확인 문구") \
    X(kPropPress,          L"On press",                 L"누를 때") \
    X(kPropRelease,        L"On release",               L"뗄 때") \
    X(kPropArguments,      L"Arguments",                L"인수") \
    X(kPropPageNumber,     L"Page number",              L"페이지 번호") \
    X(kPropPageName,       L"Page name",                L"페이지 이름") \
    X(kPropFormat,         L"Format",                   L"형식") \
    X(kPropTimeSpan,       L"Seconds",                  L"시간(초)") \
    X(kPropDivisions,      L"Divisions",                L"눈금 수") \
    X(kPropTrendLines,     L"Lines",                    L"선") \
    X(kPropLineColors,     L"Line colours",             L"선 색") \
    X(kColorAuto,          L"auto",                     L"자동") \
    X(kPropLineWidth,      L"Line width",               L"선 두께") \
    X(kPropGridColor,      L"Grid",                     L"눈금 색") \
    X(kPropBackColor,      L"Background",               L"배경색") \
    X(kPropEmptyColor,     L"Empty part",               L"빈 부분") \
    X(kPropFilledColor,    L"Filled part",              L"채운 부분") \
    X(kPropBorderColor,    L"Border",                   L"경계선") \
    X(kPropFillOn,         L"Fill on",                  L"채우기 켜짐") \
    X(kPropFillOff,        L"Fill off",                 L"채우기 꺼짐") \
    X(kPropLineOn,         L"Outline on",               L"윤곽선 켜짐") \
    X(kPropAlarm,          L"Alarm",                    L"경보") \
    X(kPropNormal,         L"Normal",                   L"정상") \
    X(kPropFillPart,       L"Fill",                     L"채움") \
    X(kPropLinePart,       L"Line",                     L"선") \
    X(kPropTextPart,       L"Text",                     L"글자") \
    X(kChoiceNone,         L"None",                     L"없음") \
    X(kFillSolid,          L"Solid",                    L"단색") \
    X(kFillGradient,       L"Gradient",                 L"그러데이션") \
    X(kFillTiled,          L"Picture, tiled",           L"그림 바둑판식") \
    X(kFillOwnSize,        L"Picture, own size",        L"그림 원래 크기") \
    X(kFillFaded,          L"Picture, faded",           L"그림 흐리게") \
    X(kLineOpaque,         L"Opaque",                   L"불투명") \
    X(kLineTranslucent,    L"Translucent",              L"반투명") \
    X(kDashSolid,          L"Solid",                    L"실선") \
    X(kDashDash,           L"Dashes",                   L"파선") \
    X(kDashDot,            L"Dots",                     L"점선") \
    X(kDashDashDot,        L"Dash, dot",                L"일점쇄선") \
    X(kDashDashDotDot,     L"Dash, dot, dot",           L"이점쇄선") \
    X(kCapFlat,            L"Flat",                     L"평면") \
    X(kCapSquare,          L"Square",                   L"사각") \
    X(kCapRound,           L"Round",                    L"둥글게") \
    X(kCapTriangle,        L"Triangle",                 L"삼각") \
    X(kCapSquareAnchor,    L"Square anchor",            L"사각 표식") \
    X(kCapRoundAnchor,     L"Round anchor",             L"원 표식") \
    X(kCapDiamond,         L"Diamond anchor",           L"마름모 표식") \
    X(kCapArrow,           L"Arrow",                    L"화살표") \
    X(kAlignNear,          L"Left",                     L"왼쪽") \
    X(kAlignMiddle,        L"Centre",                   L"가운데") \
    X(kAlignFar,           L"Right",                    L"오른쪽") \
    X(kBehaviourCondition, L"Condition",                L"조건") \
    X(kBehaviourFill,      L"Filling",                  L"채움") \
    X(kBehaviourMove1,     L"Movement 1",               L"이동 1") \
    X(kBehaviourMove2,     L"Movement 2",               L"이동 2") \
    X(kBehaviourSize1,     L"Resizing 1",               L"크기 변화 1") \
    X(kBehaviourSize2,     L"Resizing 2",               L"크기 변화 2") \
    X(kBehaviourRotate,    L"Rotation",                 L"회전") \
    X(kBehaviourColor,     L"Colours",                  L"색 변화") \
    X(kBehaviourHide,      L"Hiding",                   L"숨김") \
    X(kBehaviourInput,     L"Input",                    L"입력") \
    X(kBehaviourBlink,     L"Blinking",                 L"깜박임") \
    X(kBehaviourButton,    L"Button",                   L"단추") \
    X(kBehaviourPage,      L"Page switch",              L"페이지 전환") \
    X(kBehaviourText,      L"Value as text",            L"값 표시") \
    X(kBehaviourSlider,    L"Slider",                   L"슬라이더") \
    X(kBehaviourTrend,     L"Trend graph",              L"추세 그래프") \
    X(kCompareAlways,      L"Always",                   L"항상") \
    X(kCompareEqual,       L"Equal to the first",       L"첫 값과 같음") \
    X(kCompareNotEqual,    L"Not equal to the first",   L"첫 값과 다름") \
    X(kCompareBelow,       L"Below the first",          L"첫 값 미만") \
    X(kCompareAtMost,      L"At most the first",        L"첫 값 이하") \
    X(kCompareAbove,       L"Above the first",          L"첫 값 초과") \
    X(kCompareAtLeast,     L"At least the first",       L"첫 값 이상") \
    X(kCompareBetween,     L"Between both",             L"두 값 사이") \
    X(kCompareOutside,     L"Outside both",             L"두 값 밖") \
    X(kCompareLeftOut,     L"Not used",                 L"사용 안 함") \
    X(kJoinAnd,            L"and",                      L"그리고") \
    X(kJoinOr,             L"or",                       L"또는") \
    X(kDirectionUp,        L"Up",                       L"위로") \
    X(kDirectionRight,     L"Right",                    L"오른쪽으로") \
    X(kDirectionDown,      L"Down",                     L"아래로") \
    X(kDirectionLeft,      L"Left",                     L"왼쪽으로") \
    X(kEdgeTop,            L"Top",                      L"위") \
    X(kEdgeRight,          L"Right",                    L"오른쪽") \
    X(kEdgeBottom,         L"Bottom",                   L"아래") \
    X(kEdgeLeft,           L"Left",                     L"왼쪽") \
    X(kModeColors,         L"Colours",                  L"색") \
    X(kModePicture,        L"Picture",                  L"그림") \
    X(kModeProportional,   L"With the value",           L"값에 비례") \
    X(kModeAllTheWay,      L"All at once",              L"한 번에") \
    X(kModeUnits,          L"Page units",               L"페이지 단위") \
    X(kModePerCent,        L"Per cent",                 L"백분율") \
    X(kModeHidden,         L"Hidden then",              L"그때 숨김") \
    X(kModeShown,          L"Shown only then",          L"그때만 표시") \
    X(kSpeedSlow,          L"Slow",                     L"느리게") \
    X(kSpeedNormal,        L"Normal",                   L"보통") \
    X(kSpeedFast,          L"Fast",                     L"빠르게") \
    X(kTypeNumber,         L"Number",                   L"숫자") \
    X(kTypeSwitch,         L"Switch",                   L"스위치") \
    X(kActionToggle,       L"Toggle",                   L"켜고 끄기") \
    X(kActionMomentary,    L"On while held",            L"누르는 동안 켜짐") \
    X(kActionSet,          L"Set the number",           L"숫자로 설정") \
    X(kActionRadio,        L"One of several",           L"여럿 중 하나") \
    X(kActionAdd,          L"Add the number",           L"숫자 더하기") \
    X(kActionCommands,     L"Commands only",            L"명령만") \
    X(kPageByName,         L"Page by name",             L"이름으로") \
    X(kPageByNumber,       L"Page by number",           L"번호로") \
    X(kPageNext,           L"Next page",                L"다음 페이지") \
    X(kPagePrevious,       L"Previous page",            L"이전 페이지") \
    X(kSlideJump,          L"Jumps to the pointer",     L"포인터로 이동") \
    X(kSlideDrag,          L"Is dragged",               L"끌어서 이동") \
    X(kTrendPoints,        L"Points",                   L"점") \
    X(kTrendLine,          L"Lines",                    L"선") \
    X(kTrendSteps,         L"Steps",                    L"계단") \
    X(kTrendAreas,         L"Areas",                    L"영역") \
    X(kRefuseNumber,       L"This is not a number.",    L"숫자가 아닙니다.") \
    X(kRefuseWhole,        L"This must be a whole number.", L"정수를 입력하세요.") \
    X(kRefuseRange,        L"This must be from %s to %s.", L"%s에서 %s까지 입력할 수 있습니다.") \
    X(kRefuseColor,        L"A colour is six digits 0-9, A-F: 3E7BFA.", L"색은 여섯 자리(0-9, A-F)입니다: 3E7BFA") \
    X(kRefuseLineColors,   L"One colour for each line, \"auto\" or six digits: auto, 3E7BFA", \
                           L"선마다 \"자동\" 또는 여섯 자리 색을 쉼표로 구분해 입력하세요: 자동, 3E7BFA") \
    X(kRefuseEmptyName,    L"An object needs a name.",  L"개체에는 이름이 있어야 합니다.") \
    X(kRefuseTakenName,    L"Another object has this name.", L"다른 개체가 쓰는 이름입니다.") \
    X(kRefuseNoFile,       L"There is no such file.",   L"파일이 없습니다.") \
    X(kRefuseNoPicture,    L"This file is not a picture.", L"그림 파일이 아닙니다.") \
    X(kRefuseArguments,    L"There can be 15 arguments at most.", L"인수는 15개까지 쓸 수 있습니다.") \
    X(kRefuseNoValue,      L"The device has no value \"%s\". One that it has: in1.level", \
                           L"장치에 \"%s\" 값이 없습니다. 예: in1.level") \
    X(kRefuseLines,        L"There can be %d lines at most.", L"선은 %d개까지 쓸 수 있습니다.") \
    X(kPropPictureFilter,  L"Pictures (*.png;*.jpg;*.bmp;*.gif)|*.png;*.jpg;*.jpeg;*.bmp;*.gif|All files (*.*)|*.*||", \
                           L"그림 (*.png;*.jpg;*.bmp;*.gif)|*.png;*.jpg;*.jpeg;*.bmp;*.gif|모든 파일 (*.*)|*.*||")
// clang-format on
