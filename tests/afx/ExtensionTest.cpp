#include <afxdllx.h>
#include <gtest/gtest.h>

#include "WindowSupport.h"

namespace {

bool IsClassKnown(LPCTSTR name) {
    WNDCLASS info;
    return ::GetClassInfo(AfxGetInstanceHandle(), name, &info);
}

TEST(WindowClasses, SameArgumentsGiveTheSameClass) {
    HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    LPCTSTR first = AfxRegisterWndClass(CS_DBLCLKS, arrow);
    EXPECT_EQ(first, AfxRegisterWndClass(CS_DBLCLKS, arrow));
    EXPECT_STRNE(first, AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW, arrow));
    EXPECT_STRNE(first, AfxRegisterWndClass(CS_DBLCLKS));
    WNDCLASS info;
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), first, &info));
    EXPECT_EQ(static_cast<UINT>(CS_DBLCLKS), info.style);
    EXPECT_EQ(arrow, info.hCursor);
    EXPECT_EQ(nullptr, info.hbrBackground);
}

TEST(ExtensionModule, EndTakesItsWindowClassesAlong) {
    // The test program stands in for the extension DLL: its calls come from its module.
    AFX_EXTENSION_MODULE state{};
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(AfxInitExtensionModule(state, ::GetModuleHandle(nullptr)));
        new CDynLinkLibrary(state);
        CString name = AfxRegisterWndClass(CS_OWNDC | CS_VREDRAW);
        WNDCLASS own{};
        own.lpfnWndProc = ::DefWindowProc;
        own.hInstance = AfxGetInstanceHandle();
        own.lpszClassName = _T("Class library test");
        ASSERT_TRUE(AfxRegisterClass(&own));
        ASSERT_TRUE(AfxRegisterClass(&own));
        EXPECT_TRUE(IsClassKnown(name));
        AfxTermExtensionModule(state);
        EXPECT_FALSE(IsClassKnown(name));
        EXPECT_FALSE(IsClassKnown(own.lpszClassName));
    }
}

TEST(ExtensionModule, ClassWithAWindowStaysUntilItIsClosed) {
    AFX_EXTENSION_MODULE state{};
    AfxInitExtensionModule(state, ::GetModuleHandle(nullptr));
    CWnd window;
    CString name = AfxRegisterWndClass(CS_SAVEBITS);
    ASSERT_TRUE(window.CreateEx(0, name, _T(""), WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    AfxTermExtensionModule(state);
    EXPECT_TRUE(IsClassKnown(name));
    window.DestroyWindow();
    AfxInitExtensionModule(state, ::GetModuleHandle(nullptr));
    AfxTermExtensionModule(state);
    EXPECT_FALSE(IsClassKnown(name));
}

TEST(ResourceChain, IsSearchedNewestFirstAfterTheProgram) {
    LPCTSTR name = MAKEINTRESOURCE(1);
    HMODULE program = AfxGetResourceHandle();
    HMODULE withVersion = ::GetModuleHandle(_T("user32.dll"));
    ASSERT_NE(nullptr, ::FindResource(withVersion, name, RT_VERSION));
    ASSERT_EQ(nullptr, ::FindResource(program, name, RT_VERSION));
    EXPECT_EQ(program, AfxFindResourceHandle(name, RT_VERSION)) << "nobody has it: the program is answered";
    {
        CDynLinkLibrary older(withVersion, withVersion);
        CDynLinkLibrary newer(program, program);
        EXPECT_EQ(withVersion, AfxFindResourceHandle(name, RT_VERSION));
        HMODULE gdi = ::GetModuleHandle(_T("gdi32.dll"));
        CDynLinkLibrary newest(gdi, gdi);
        EXPECT_EQ(gdi, AfxFindResourceHandle(name, RT_VERSION));
    }
    EXPECT_EQ(program, AfxFindResourceHandle(name, RT_VERSION));
}

TEST(ResourceChain, StringsComeByTheirNumbers) {
    const CString korean(_T("\xD55C\xAE00 5001"));
    CString text(_T("kept"));
    EXPECT_FALSE(text.LoadString(5002)) << "its neighbours lie in the same block";
    EXPECT_EQ(text, _T("kept"));
    EXPECT_TRUE(text.LoadString(5001));
    EXPECT_EQ(text, korean);
    EXPECT_EQ(korean, CString(MAKEINTRESOURCEW(5001)));
    EXPECT_EQ(korean, CString(MAKEINTRESOURCEA(5001)));
    EXPECT_TRUE(CString(MAKEINTRESOURCE(5002)).IsEmpty());
    EXPECT_FALSE(text.LoadString(::GetModuleHandle(_T("gdi32.dll")), 5003));
    TCHAR cut[4] = _T("old");
    EXPECT_EQ(3, AfxLoadString(5003, cut, 4));
    EXPECT_STREQ(_T("thi"), cut);
    for (const auto& [number, room] : {std::pair{5002u, 4u}, {5003u, 1u}}) {
        cut[0] = 'o';
        EXPECT_TRUE(AfxLoadString(number, cut, room) == 0 && cut[0] == 0);
    }

    // Found behind a program without it.
    HMODULE program = AfxGetResourceHandle();
    AfxSetResourceHandle(::GetModuleHandle(_T("gdi32.dll")));
    EXPECT_FALSE(text.LoadString(5003));
    {
        CDynLinkLibrary chained(program, program);
        AFX_EXTENSION_MODULE state = {};
        EXPECT_TRUE(CDynLinkLibrary(state, TRUE).m_bSystem);
        EXPECT_TRUE(text.LoadString(5003));
    }
    AfxSetResourceHandle(program);
    EXPECT_EQ(text, _T("third"));
}

}  // namespace
