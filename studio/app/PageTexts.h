// Texts of pages, files and symbols: a part of the table of texts.
#pragma once

// clang-format off
/// key, English, Korean.
#define STUDIO_PAGE_TEXTS(X) \
    X(kMenuPage,           L"&Page",                    L"페이지(&P)") \
    X(kPageAdd,            L"&Add Page",                L"페이지 추가(&A)") \
    X(kPageDuplicate,      L"&Duplicate Page",          L"페이지 복제(&D)") \
    X(kPageRemove,         L"&Remove Page",             L"페이지 삭제(&R)") \
    X(kPageRename,         L"Re&name Page",             L"페이지 이름 바꾸기(&N)") \
    X(kPageMoveLeft,       L"Move Page &Left",          L"왼쪽으로 옮기기(&L)") \
    X(kPageMoveRight,      L"Move Page Ri&ght",         L"오른쪽으로 옮기기(&G)") \
    X(kGoNextPage,         L"Ne&xt Page",               L"다음 페이지(&X)") \
    X(kGoPreviousPage,      L"&Previous Page",           L"이전 페이지(&P)") \
    X(kStepAddPage,        L"Add Page",                 L"페이지 추가") \
    X(kStepDuplicatePage,  L"Duplicate Page",           L"페이지 복제") \
    X(kStepRemovePage,     L"Remove Page",              L"페이지 삭제") \
    X(kStepRenamePage,     L"Rename Page",              L"페이지 이름 바꾸기") \
    X(kStepMovePage,       L"Move Page",                L"페이지 옮기기") \
    X(kStepInsertSymbol,   L"Insert Symbol",            L"심볼 넣기") \
    X(kErrorPageName,      L"There is already a page named \"%s\".", L"이름이 \"%s\"인 페이지가 이미 있습니다.") \
    X(kFileExport,         L"&Export Page as PNG...",   L"페이지를 PNG로 내보내기(&E)...") \
    X(kFileDemo,           L"Open &Demo Project",       L"데모 프로젝트 열기(&D)") \
    X(kExportFilter,       L"PNG pictures (*.png)|*.png||", L"PNG 그림 (*.png)|*.png||") \
    X(kErrorExport,        L"The picture \"%s\" was not written.\n\n%s", \
                           L"그림 \"%s\"을(를) 저장하지 못했습니다.\n\n%s") \
    X(kFaultPicture,       L"The picture could not be made.", L"그림을 만들 수 없습니다.") \
    X(kFaultNoPage,        L"There is no such page.",   L"그런 페이지가 없습니다.") \
    X(kFaultMissing,       L"The file or its folder was not found.", L"파일이나 폴더를 찾을 수 없습니다.") \
    X(kFaultName,          L"Its name is too long, or has a character that no name may have.", \
                           L"이름이 너무 길거나 사용할 수 없는 문자가 들어 있습니다.") \
    X(kFaultAccess,        L"Access to it was refused, or another program uses it.", \
                           L"접근이 거부되었거나 다른 프로그램에서 사용 중입니다.") \
    X(kFaultDisk,          L"The disk is full.",        L"디스크에 빈 공간이 없습니다.") \
    X(kFaultDevice,        L"It could not be read or written.", L"읽거나 쓸 수 없습니다.") \
    X(kAskRecover,         L"Studio ended before the changes to \"%s\" were saved.\n\nRecover them?", \
                           L"\"%s\"의 변경 내용을 저장하기 전에 Studio가 종료되었습니다.\n\n복구할까요?") \
    X(kErrorRecover,       L"The changes could not be recovered. Their copy is kept as \"%s\".\n\n%s", \
                           L"변경 내용을 복구하지 못했습니다. 사본은 \"%s\"(으)로 보관합니다.\n\n%s") \
    X(kErrorAutosave,      L"The changes could not be backed up. %s", L"변경 내용을 백업하지 못했습니다. %s") \
    X(kDemoOverview,       L"Overview",                 L"개요") \
    X(kDemoOverviewNote,   L"F5 operates the screens, Esc edits them", \
                           L"F5: 화면 작동, Esc: 편집") \
    X(kDemoMaster,         L"Master",                   L"마스터") \
    X(kDemoPeak,           L"Input 2 near its limit",   L"입력 2가 한계에 가까움") \
    X(kDemoMatrix,         L"Matrix",                   L"매트릭스") \
    X(kDemoMatrixNote,     L"Click a crossing to switch it, drag it up or down for its gain", \
                           L"교차점을 클릭하면 켜지고 꺼지며, 위아래로 끌면 게인이 바뀝니다") \
    X(kDemoEqualiser,      L"Equaliser",                L"이퀄라이저") \
    X(kDemoEqualiserNote,  L"Drag the bands and the edges of the crossover of output 1", \
                           L"출력 1의 밴드와 크로스오버의 경계를 끌어 보세요") \
    X(kDemoLevels,         L"Levels",                   L"레벨") \
    X(kDemoLevelsNote,     L"Click a channel to mute it, drag it up or down for its gain", \
                           L"채널을 클릭하면 음소거되고, 위아래로 끌면 게인이 바뀝니다") \
    X(kCheckSound,         L"%s: sound; pages: %d, objects: %d", L"%s: 정상, 페이지 %d개, 개체 %d개") \
    X(kCheckFaulty,        L"%s: not sound. %s",        L"%s: 정상 아님. %s") \
    X(kCheckPage,          L"Page %d \"%s\"; objects: %d", L"페이지 %d \"%s\": 개체 %d개") \
    X(kUsage,              L"Studio [--lang en|ko] [--demo] [file.cbf]\n" \
                           L"Studio --render file.cbf picture.png [page]\n" \
                           L"Studio --check file.cbf\n" \
                           L"Studio --make-demo file.cbf\n" \
                           L"Studio --make-symbols folder\n", \
                           L"Studio [--lang en|ko] [--demo] [파일.cbf]\n" \
                           L"Studio --render 파일.cbf 그림.png [페이지]\n" \
                           L"Studio --check 파일.cbf\n" \
                           L"Studio --make-demo 파일.cbf\n" \
                           L"Studio --make-symbols 폴더\n") \
    X(kSymbols,            L"Symbols",                  L"심볼") \
    X(kViewSymbols,        L"S&ymbol Library",          L"심볼 라이브러리(&Y)") \
    X(kSymbolsFolder,      L"Folder...",                L"폴더...") \
    X(kSymbolsFolderTitle, L"Folder with symbols",      L"심볼이 들어 있는 폴더") \
    X(kSymbolsNone,        L"No symbols in this folder", L"이 폴더에 심볼이 없습니다") \
    X(kErrorSymbol,        L"The symbol \"%s\" was not inserted.\n\n%s", L"심볼 \"%s\"을(를) 넣지 못했습니다.\n\n%s")
// clang-format on
