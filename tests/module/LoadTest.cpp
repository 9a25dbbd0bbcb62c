// Loads and unloads the library: this program does not link it.
#include <afxwin.h>
#include <gtest/gtest.h>

#include <clocale>

namespace {

const wchar_t kLibrary[] = L"TesselCtrls.dll";

TEST(LoadTest, SetsTheKoreanLocaleAtLoadAndAtUnload) {
    std::setlocale(LC_ALL, "C");
    const HMODULE library = ::LoadLibrary(kLibrary);
    ASSERT_NE(library, nullptr);
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "Korean_Korea.949");
    std::setlocale(LC_ALL, "C");
    ::FreeLibrary(library);
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "Korean_Korea.949");
}

TEST(LoadTest, RegistersTheClipboardFormat) {
    const HMODULE library = ::LoadLibrary(kLibrary);
    ASSERT_NE(library, nullptr);
    auto* format =
        reinterpret_cast<CLIPFORMAT*>(::GetProcAddress(library, "_ZN4Lumo9CUICanvas10m_cfObjectE"));
    ASSERT_NE(format, nullptr);
    wchar_t name[64] = {};
    ::GetClipboardFormatName(*format, name, 64);
    EXPECT_STREQ(name, L"Tessel GUI Object ");
    ::FreeLibrary(library);
}

// A host finds them in either DLL, and they are the same ones.
TEST(LoadTest, HasTheCopyOperationsOfTheSupportLibrary) {
    const HMODULE library = ::LoadLibrary(kLibrary);
    ASSERT_NE(library, nullptr);
    const HMODULE support = ::GetModuleHandle(L"MarrowLog.dll");
    ASSERT_NE(support, nullptr);
    for (const char* name : {"_ZN4CIniC1ERKS_", "_ZN4CIniC2ERKS_", "_ZN4CIniaSERKS_",
                             "_ZN10CCSWrapperC1ERKS_", "_ZN10CCSWrapperC2ERKS_", "_ZN10CCSWrapperaSERKS_"}) {
        EXPECT_NE(::GetProcAddress(library, name), nullptr) << name;
        EXPECT_EQ(::GetProcAddress(library, name), ::GetProcAddress(support, name)) << name;
    }
    ::FreeLibrary(library);
}

TEST(LoadTest, LoadsAndUnloadsAHundredTimes) {
    DWORD handles = 0;
    for (int i = 0; i < 100; ++i) {
        const HMODULE library = ::LoadLibrary(kLibrary);
        ASSERT_NE(library, nullptr) << i;
        ::FreeLibrary(library);
        ASSERT_EQ(::GetModuleHandle(kLibrary), nullptr) << i;
        DWORD now = 0;
        ::GetProcessHandleCount(::GetCurrentProcess(), &now);
        if (i == 10)
            handles = now;
    }
    DWORD now = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &now);
    EXPECT_LE(now, handles + 2);
}

}  // namespace
