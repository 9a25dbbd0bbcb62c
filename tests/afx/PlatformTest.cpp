// What the class library asks of the platform: the calls that arrive there, with their arguments.
#include <afxdlgs.h>
#include <afxodlgs.h>

#include "Expect.h"
#include "WindowSupport.h"
#include "stress/support/Imports.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace {

std::wstring g_calls;  // what arrived

template <class... Values>
void Note(Values... values) {
    const auto text = [](auto value) {
        if constexpr (std::is_convertible_v<decltype(value), LPCWSTR>)
            return std::wstring(value ? value : L"(null)");
        else
            return std::to_wstring(value);
    };
    ((g_calls += text(values) + L' '), ...);
}

std::wstring Calls() {
    return std::exchange(g_calls, L"");
}

/// Leads a function that the class library calls to another one while it lives.
class Instead {
public:
    template <class Function>
    Instead(const char* name, Function* original, std::type_identity_t<Function>* replacement)
        : m_name(name), m_original(reinterpret_cast<void*>(original)) {
        EXPECT_TRUE(ReplaceImport(L"TesselAfx.dll", name, replacement)) << name;
    }
    ~Instead() { ReplaceImport(L"TesselAfx.dll", m_name, m_original); }
    Instead(const Instead&) = delete;
    Instead& operator=(const Instead&) = delete;

private:
    const char* m_name;
    void* m_original;
};

HANDLE WINAPI NoteFile(LPCWSTR path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security, DWORD creation,
                       DWORD attributes, HANDLE) {
    Note(path, access >> 30, share, security->bInheritHandle, creation, attributes >> 24);
    ::SetLastError(ERROR_SEEK);
    return INVALID_HANDLE_VALUE;
}

TEST(Platform, OpensFilesAsTheFlagsSay) {
    const Instead open("CreateFileW", &::CreateFileW, &NoteFile);
    const struct {
        UINT flags;
        LPCWSTR arguments;
    } cases[] = {
        {CFile::modeRead, L"2 0 1 3 0"},
        {CFile::modeWrite | CFile::shareExclusive, L"1 0 1 3 0"},
        {CFile::modeReadWrite | CFile::shareDenyWrite, L"3 1 1 3 0"},
        {CFile::modeWrite | CFile::modeReadWrite | CFile::shareDenyRead, L"3 2 1 3 0"},
        {CFile::shareDenyNone | CFile::modeNoInherit, L"2 3 0 3 0"},
        {CFile::modeNoTruncate | CFile::typeText, L"2 0 1 3 0"},
        {CFile::modeCreate, L"2 0 1 2 0"},
        {CFile::modeCreate | CFile::modeNoTruncate, L"2 0 1 4 0"},
        {CFile::osNoBuffer, L"2 0 1 3 32"},
        {CFile::osWriteThrough, L"2 0 1 3 128"},
        {CFile::osRandomAccess, L"2 0 1 3 16"},
        {CFile::osSequentialScan | CFile::typeBinary, L"2 0 1 3 8"},
    };
    for (const auto& c : cases) {
        CFileException reason;
        EXPECT_FALSE(CFile().Open(L"C:\\a\\..\\b", c.flags, &reason));
        EXPECT_EQ(L"C:\\b " + std::wstring(c.arguments) + L' ', Calls());
        EXPECT_TRUE(reason.m_cause == CFileException::badSeek && reason.m_lOsError == ERROR_SEEK);
        EXPECT_EQ(reason.m_strFileName, L"C:\\b");
    }
    // From 260 characters on a path needs a form of its own.
    const CString name(L'n', 256);
    for (const auto& [given, asked] : {std::pair{L"C:\\" + name, L"C:\\" + name},
                                       {L"C:\\" + name + L"n", L"\\\\?\\C:\\" + name + L"n"},
                                       {L"\\\\s\\t\\" + name, L"\\\\?\\UNC\\s\\t\\" + name},
                                       {L"\\\\?\\C:\\" + name, L"\\\\?\\C:\\" + name}}) {
        CFile().Open(given, CFile::modeRead);
        EXPECT_EQ(std::wstring(asked) + L" 2 0 1 3 0 ", Calls());
    }
}

int WINAPI NoteBox(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type) {
    Note(owner ? L"owned" : L"free", text, caption, type);
    return IDNO;
}

TEST(Platform, ShowsMessageBoxesWithTheIconOfTheirButtons) {
    const Instead box("MessageBoxW", &::MessageBoxW, &NoteBox);
    for (UINT type : {MB_OK, MB_OKCANCEL, MB_RETRYCANCEL, MB_YESNO, MB_YESNOCANCEL, MB_ABORTRETRYIGNORE,
                      MB_YESNO | MB_ICONSTOP}) {
        EXPECT_EQ(IDNO, AfxMessageBox(_T("text"), type));
        const UINT icon = type == MB_YESNO || type == MB_YESNOCANCEL          ? MB_ICONQUESTION
                          : type == MB_ABORTRETRYIGNORE || type & MB_ICONMASK ? 0
                                                                              : MB_ICONEXCLAMATION;
        EXPECT_EQ(L"free text test_afx " + std::to_wstring(type | icon) + L' ', Calls());
    }
    AfxMessageBox(5003);
    EXPECT_EQ(L"free third test_afx 48 ", Calls());
    CFrameWnd main;
    ASSERT_TRUE(CreateHidden(main));
    main.MessageBox(_T("own"));
    main.MessageBox(_T("own"), _T("caption"), MB_YESNO);
    EXPECT_EQ(L"owned own test_afx 0 owned own caption 4 ", Calls());
    struct Program : CWinApp {
        using CWinApp::CWinApp;
        int DoMessageBox(LPCTSTR text, UINT type, UINT help) override {
            Note(static_cast<int>(help));
            return CWinApp::DoMessageBox(text, type, help);
        }
    } program(_T("Boxes"));
    program.m_pMainWnd = &main;
    AfxMessageBox(_T("text"), MB_OK, 4);
    AfxMessageBox(5003, MB_OK);
    AfxMessageBox(5003, MB_OK, 6);
    EXPECT_EQ(L"4 owned text Boxes 48 5003 owned third Boxes 48 6 owned third Boxes 48 ", Calls());

    // What no handler caught.
    MSG command{}, paint{};
    command.message = WM_COMMAND;
    paint.message = WM_PAINT;
    CMemoryException memory(FALSE);
    CUserException told;
    CFileException full(CFileException::diskFull, ERROR_DISK_FULL, L"x");
    CSimpleException silent(FALSE);
    EXPECT_EQ(1, program.ProcessWndProcException(&memory, &command));
    EXPECT_EQ(1, program.ProcessWndProcException(&told, &command));
    EXPECT_EQ(0, program.ProcessWndProcException(&full, &paint));
    command.message = WM_TIMER;
    EXPECT_EQ(0, program.ProcessWndProcException(&full, &command));
    EXPECT_EQ(0, program.ProcessWndProcException(&silent, &command));
    EXPECT_EQ(L"0 owned Out of memory. Boxes " + std::to_wstring(MB_ICONEXCLAMATION | MB_SYSTEMMODAL) +
                  L" 0 owned \"x\" could not be written because the disk is full. Boxes 16"
                  L" 0 owned The command could not be completed. Boxes 16 ",
              Calls());
    paint.message = WM_CREATE;
    EXPECT_EQ(-1, program.ProcessWndProcException(&full, &paint));
    program.m_pMainWnd = nullptr;
}

void WINAPI NoteLine(LPCWSTR line) {
    Note(line, L"|");
}

void WINAPI NoteBreak() {
    Note(L"break");
}

TEST(Platform, IsToldOfTracesAndAssertions) {
    const Instead output("OutputDebugStringW", &::OutputDebugStringW, &NoteLine);
    const Instead stop("DebugBreak", &::DebugBreak, &NoteBreak);
    AfxTrace(L"%s is %d", L"one", 1);
    EXPECT_EQ(L"one is 1 | ", Calls());
    for (int length : {1022, 1023, 1024, 1025, 3000}) {
        AfxTrace(L"%s", CString(L'x', length).GetString());
        EXPECT_EQ(std::wstring(std::min(length, 1023), L'x') + L" | ", Calls());
    }
    EXPECT_TRUE(AfxAssertFailedLine("a.cpp", 12));
    EXPECT_EQ(L"Assertion failed: a.cpp, line 12\n | break ", Calls());
}

TEST(Platform, MakesFontsAsTheyAreDescribed) {
    CFont font;
    LOGFONT made;
    ASSERT_TRUE(font.CreateFont(11, 12, 130, 140, 600, 1, 2, 3, DEFAULT_CHARSET, OUT_TT_PRECIS,
                                CLIP_LH_ANGLES, PROOF_QUALITY, FIXED_PITCH, _T("Arial")));
    font.GetLogFont(&made);
    EXPECT_TRUE(made.lfHeight == 11 && made.lfWidth == 12 && made.lfEscapement == 130 &&
                made.lfOrientation == 140);
    EXPECT_TRUE(made.lfWeight == 600 && made.lfItalic == 1 && made.lfUnderline == 2 && made.lfStrikeOut == 3);
    EXPECT_TRUE(made.lfCharSet == DEFAULT_CHARSET && made.lfOutPrecision == OUT_TT_PRECIS &&
                made.lfClipPrecision == CLIP_LH_ANGLES && made.lfQuality == PROOF_QUALITY &&
                made.lfPitchAndFamily == FIXED_PITCH);
    ASSERT_TRUE(font.CreatePointFont(150, _T("Arial")));
    font.GetLogFont(&made);
    CClientDC screen(nullptr);
    EXPECT_EQ(-::MulDiv(15, screen.GetDeviceCaps(LOGPIXELSY), 72), made.lfHeight);
    EXPECT_TRUE(made.lfCharSet == DEFAULT_CHARSET && CString(made.lfFaceName) == _T("Arial"));
}

/// The pairs of a filter as one text.
std::wstring Pairs(LPCWSTR filter) {
    std::wstring pairs;
    for (; filter && *filter; filter += std::wcslen(filter) + 1)
        pairs += std::wstring(filter) + L';';
    return pairs;
}

template <char kind>
BOOL WINAPI NoteFileDialog(OPENFILENAMEW* ofn) {
    Note(std::wstring(1, kind).c_str(), Pairs(ofn->lpstrFilter).c_str(), ofn->lpstrFile, ofn->lpstrDefExt,
         ofn->Flags & ~static_cast<DWORD>(OFN_EXPLORER | OFN_ENABLESIZING),
         ofn->hwndOwner ? L"owned" : L"free");
    EXPECT_EQ(DWORD(OFN_EXPLORER | OFN_ENABLESIZING), ofn->Flags & (OFN_EXPLORER | OFN_ENABLESIZING));
    EXPECT_TRUE(ofn->lStructSize == sizeof *ofn && ofn->nMaxFile == 4096 && ofn->nMaxFileTitle == MAX_PATH);
    ::lstrcpy(ofn->lpstrFile, L"C:\\some.where\\page.old.cbf");
    return kind == 's';
}

TEST(Platform, ShowsFileDialogsOfTheOldKind) {
    const Instead save("GetSaveFileNameW", &::GetSaveFileNameW, &NoteFileDialog<'s'>);
    const Instead open("GetOpenFileNameW", &::GetOpenFileNameW, &NoteFileDialog<'o'>);
    CWnd owner;
    ASSERT_TRUE(CreateHidden(owner));
    CFileDialog one(FALSE, _T("cbf"), _T("a.b"), OFN_OVERWRITEPROMPT, _T("Pages|*.cbf|All|*.*||"), &owner, 0,
                    FALSE);
    EXPECT_EQ(IDOK, one.DoModal());
    EXPECT_EQ(nullptr, one.m_ofn.lpstrFilter) << "it pointed into what is gone";
    EXPECT_EQ(L"s Pages;*.cbf;All;*.*; a.b cbf 2 owned ", Calls());
    EXPECT_EQ(_T("C:\\some.where\\page.old.cbf"), one.GetPathName());
    EXPECT_EQ(_T("page.old.cbf"), one.GetFileName());
    EXPECT_EQ(_T("page.old"), one.GetFileTitle());
    EXPECT_EQ(_T("cbf"), one.GetFileExt());
    EXPECT_EQ(_T("C:\\some.where"), one.GetFolderPath());
    for (const auto& [path, folder, title, ext] : {std::tuple{_T("a/b"), _T("a"), _T("b"), _T("")},
                                                   {_T("plain"), _T(""), _T("plain"), _T("")},
                                                   {_T("\\.x"), _T(""), _T(""), _T("x")},
                                                   {_T("a\\b/c.d"), _T("a\\b"), _T("c"), _T("d")}}) {
        ::lstrcpy(one.m_ofn.lpstrFile, path);
        EXPECT_EQ(folder, one.GetFolderPath());
        EXPECT_EQ(title, one.GetFileTitle());
        EXPECT_EQ(ext, one.GetFileExt());
    }
    CFileDialog other(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST, nullptr, nullptr, 0, FALSE);
    EXPECT_EQ(IDCANCEL, other.DoModal());
    EXPECT_EQ(L"o   (null) 4096 free ", Calls());
}

BOOL WINAPI NoteColours(CHOOSECOLORW* cc) {
    Note(cc->rgbResult, cc->Flags, cc->hwndOwner ? L"owned" : L"free", cc->lpCustColors[15]);
    cc->lpCustColors[15] = 9;
    cc->rgbResult = 8;
    return cc->Flags & CC_FULLOPEN;
}

BOOL WINAPI NoteFonts(CHOOSEFONTW* cf) {
    Note(cf->Flags, cf->lpLogFont->lfHeight, cf->hwndOwner ? L"owned" : L"free",
         cf->hDC ? L"printer" : L"screen");
    cf->lpLogFont->lfHeight = 31;
    return cf->Flags & CF_PRINTERFONTS;
}

TEST(Platform, ShowsColoursAndFonts) {
    const Instead colours("ChooseColorW", &::ChooseColorW, &NoteColours);
    const Instead fonts("ChooseFontW", &::ChooseFontW, &NoteFonts);
    CWnd top, inside;
    ASSERT_TRUE(CreateHidden(top));
    ASSERT_TRUE(inside.Create(nullptr, nullptr, 0, CRect(0, 0, 9, 9), &top, 1));
    CColorDialog first(RGB(1, 0, 0), 0, &inside), second(RGB(2, 0, 0), CC_FULLOPEN);
    EXPECT_EQ(IDCANCEL, first.DoModal());
    EXPECT_EQ(IDOK, second.DoModal());
    EXPECT_EQ(COLORREF(8), second.GetColor());
    EXPECT_EQ(L"1 1 owned 0 2 3 free 9 ", Calls()) << "the user's own colours stay for the next time";
    LOGFONT look{};
    look.lfHeight = 21;
    CClientDC printer(&top);
    CFontDialog plain(nullptr, CF_EFFECTS), rich(&look, CF_SCREENFONTS, &printer, &inside);
    EXPECT_EQ(IDCANCEL, plain.DoModal());
    EXPECT_EQ(IDOK, rich.DoModal());
    rich.GetCurrentFont(&look);
    EXPECT_EQ(31, look.lfHeight);
    const int all = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT | CF_PRINTERFONTS;
    EXPECT_EQ(L"256 0 free screen " + std::to_wstring(all) + L" 21 owned printer ", Calls());
}

UINT g_answer;

UINT WINAPI NoteWide(LPOLEUIINSERTOBJECTW io) {
    Note(L"wide", io->dwFlags, io->hWndOwner ? L"owned" : L"free", io->cchFile);
    return g_answer;
}

UINT WINAPI NoteNarrow(LPOLEUIINSERTOBJECTA io) {
    Note(L"narrow", io->dwFlags, io->hWndOwner ? L"owned" : L"free", io->cchFile, io->cClsidExclude,
         io->lpClsidExclude ? L"some" : L"none");
    ::lstrcpyA(io->lpszFile, "C:\\a.txt");
    io->dwFlags = IOF_SELECTCREATEFROMFILE | IOF_CHECKLINK;
    io->clsid.Data1 = 77;
    io->hMetaPict = reinterpret_cast<HGLOBAL>(78);
    return OLEUI_OK;
}

TEST(Platform, AsksForObjectsInTheFormThatItHas) {
    const Instead wide("OleUIInsertObjectW", &::OleUIInsertObjectW, &NoteWide);
    const Instead narrow("OleUIInsertObjectA", &::OleUIInsertObjectA, &NoteNarrow);
    CWnd owner;
    ASSERT_TRUE(CreateHidden(owner));
    COleInsertDialog dialog(IOF_SELECTCREATENEW, &owner);
    for (const auto& [answer, result] :
         {std::pair{OLEUI_OK, IDOK}, {OLEUI_CANCEL, IDCANCEL}, {OLEUI_IOERR_SCODEHASERROR, -1}}) {
        g_answer = static_cast<UINT>(answer);
        EXPECT_EQ(result, dialog.DoModal());
        EXPECT_EQ(g_answer, dialog.GetLastError());
        EXPECT_EQ(L"wide 2 owned 260 ", Calls());
    }
    EXPECT_TRUE(dialog.GetSelectionType() == COleInsertDialog::createNewItem &&
                dialog.GetPathName().IsEmpty());
    g_answer = OLEUI_FALSE;
    CLSID excluded{};
    dialog.m_io.cClsidExclude = 1;
    dialog.m_io.lpClsidExclude = &excluded;
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(L"wide 2 owned 260 narrow 2 owned 260 1 some ", Calls());
    EXPECT_EQ(UINT(COleInsertDialog::linkToFile), dialog.GetSelectionType());
    EXPECT_EQ(_T("C:\\a.txt"), dialog.GetPathName());
    EXPECT_TRUE(dialog.m_io.clsid.Data1 == 77 && dialog.m_io.hMetaPict == reinterpret_cast<HGLOBAL>(78));
    dialog.m_io.dwFlags = IOF_SELECTCREATEFROMFILE;
    EXPECT_EQ(UINT(COleInsertDialog::insertFromFile), dialog.GetSelectionType());
    EXPECT_FALSE(dialog.CreateItem(nullptr));
    CFileException::ThrowOsError(ERROR_SUCCESS);
}

}  // namespace
