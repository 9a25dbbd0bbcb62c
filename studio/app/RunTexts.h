// Texts of run mode and the audio controls: a part of the table of texts.
#pragma once

// clang-format off
/// key, English, Korean.
#define STUDIO_RUN_TEXTS(X) \
    X(kRunStart,           L"&Run Pages",               L"페이지 실행(&R)") \
    X(kRunTitle,           L"Running",                  L"실행 중") \
    X(kRunHint,            L"Running: operate the page; Esc returns to editing", \
                           L"실행 중: 화면을 조작하세요. Esc를 누르면 편집으로 돌아갑니다") \
    X(kRunValues,          L"Live objects: %d",          L"움직이는 개체 %d개") \
    X(kMenuControls,       L"Audio &Controls",          L"오디오 컨트롤(&C)") \
    X(kToolPeqChart,       L"Parametric &Equaliser Chart", L"파라메트릭 이퀄라이저 차트(&E)") \
    X(kToolBandButton,     L"Equaliser &Band Button",   L"이퀄라이저 밴드 버튼(&B)") \
    X(kToolDeviceChart,    L"&Matrix Chart",            L"매트릭스 차트(&M)") \
    X(kToolDeviceButton,   L"Device B&utton",           L"장치 버튼(&U)") \
    X(kToolLevelChart,     L"&Level Chart",             L"레벨 차트(&L)") \
    X(kToolLevelButton,    L"Le&vel Button",            L"레벨 버튼(&V)") \
    X(kToolCrossover,      L"&Crossover",               L"크로스오버(&C)") \
    X(kToolGeqState,       L"&Graphic Equaliser",       L"그래픽 이퀄라이저(&G)") \
    X(kToolPeqState,       L"&Parametric Equaliser Table", L"파라메트릭 이퀄라이저 표(&P)") \
    X(kHintControl,        L"Drag out the control; the property panel binds it to the device", \
                           L"끌어서 컨트롤을 그리고, 속성 창에서 장치의 값에 연결하세요")
// clang-format on
