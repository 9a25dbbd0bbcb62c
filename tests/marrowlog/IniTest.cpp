// CIni: values, encodings, lines that stay as they are, and replacement of the whole file.
#include "support/TemporaryFile.h"

#include <Ini.h>

#include <gtest/gtest.h>

#include <tlhelp32.h>

#include <limits>
#include <string>
#include <thread>
#include <vector>

using namespace std::string_literals;

namespace {

const std::string kUtf8 =
    "\xEF\xBB\xBF; settings\n"
    "stray=0\n"
    "[Window]\n"
    "  Width = 640 \n"
    "Title=\" \xED\x95\x9C \"\n"
    "#Width=1\n"
    "\n"
    "[Empty]\n"
    "[window]\n"
    "Late=2.5";

std::string Utf16(const std::wstring& text) {
    return "\xFF\xFE" +
           std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
}

bool IsAlone(const TemporaryFile& file) {
    WIN32_FIND_DATAW found;
    const HANDLE search = ::FindFirstFileW(file.Path() + L".*.tmp", &found);
    if (search != INVALID_HANDLE_VALUE)
        ::FindClose(search);
    return search == INVALID_HANDLE_VALUE;
}

TEST(Ini, ReadsValuesIgnoringCaseAndFallsBackToDefaults) {
    const TemporaryFile file(kUtf8);
    const CIni ini(file.Path());
    EXPECT_EQ(640, ini.GetInt(L"WINDOW", L"width", 1));
    EXPECT_EQ(ini.GetString(L"Window", L"Title"), L" \xD55C ");
    EXPECT_EQ(2.5f, ini.GetFloat(L"Window", L"Late"));
    EXPECT_EQ(7, ini.GetInt(L"Window", L"Late", 7));
    EXPECT_EQ(7, ini.GetInt(L"Window", L"stray", 7));
    EXPECT_EQ(7, ini.GetInt(L"Empty", L"Width", 7));
    EXPECT_EQ(ini.GetString(L"Other", L"x", L"default"), L"default");
    EXPECT_EQ(7, CIni(file.Path() + L".none").GetInt(L"a", L"b", 7));
    EXPECT_EQ(7, CIni().GetInt(L"a", L"b", 7));
}

TEST(Ini, ChangesOnlyTheLineThatIsMeant) {
    const TemporaryFile file(kUtf8);
    CIni ini(file.Path());
    EXPECT_TRUE(ini.SetInt(L"window", L"WIDTH", -800));
    EXPECT_TRUE(ini.SetString(L"Window", L"Name", L"\xAC00=b"));
    EXPECT_TRUE(ini.SetFloat(L"Empty", L"Ratio", 0.1f));
    EXPECT_TRUE(ini.SetString(L"New", L"Quoted", L"'q'"));
    EXPECT_EQ(
        "\xEF\xBB\xBF; settings\n"
        "stray=0\n"
        "[Window]\n"
        "  Width = -800 \n"
        "Title=\" \xED\x95\x9C \"\n"
        "#Width=1\n"
        "Name=\xEA\xB0\x80=b\n"
        "\n"
        "[Empty]\n"
        "Ratio=0.1\n"
        "[window]\n"
        "Late=2.5\n"
        "\n"
        "[New]\n"
        "Quoted=\"'q'\"\n",
        file.Read());
    EXPECT_EQ(ini.GetString(L"New", L"Quoted"), L"'q'");
    EXPECT_TRUE(IsAlone(file));
}

TEST(Ini, NewAndUtf16FilesAreUtf16) {
    const TemporaryFile file;
    CIni ini(file.Path());
    EXPECT_TRUE(ini.SetString(L"S", L"k", L""));
    EXPECT_EQ(Utf16(L"[S]\r\nk=\r\n"), file.Read());
    EXPECT_TRUE(ini.SetString(L"S", L"k", L" \xD55C"));
    EXPECT_EQ(Utf16(L"[S]\r\nk=\" \xD55C\"\r\n"), file.Read());
    EXPECT_EQ(ini.GetString(L"s", L"K"), L" \xD55C");
}

TEST(Ini, NumbersComeBackExactly) {
    const TemporaryFile file("[n]\nword=12x\nhuge=99999999999\nplus=+5\n");
    CIni ini(file.Path());
    for (float value :
         {0.1f, -1.0f / 3, std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min()}) {
        EXPECT_TRUE(ini.SetFloat(L"n", L"f", value));
        EXPECT_EQ(value, ini.GetFloat(L"n", L"f"));
    }
    EXPECT_TRUE(ini.SetInt(L"n", L"i", std::numeric_limits<int>::min()));
    EXPECT_EQ(std::numeric_limits<int>::min(), ini.GetInt(L"n", L"i"));
    EXPECT_EQ(3, ini.GetInt(L"n", L"word", 3));
    EXPECT_EQ(3, ini.GetInt(L"n", L"huge", 3));
    EXPECT_EQ(5, ini.GetInt(L"n", L"plus", 3));
}

TEST(Ini, RefusesNamesAndValuesThatWouldNotComeBack) {
    const TemporaryFile file("[s]\nk=v\n");
    CIni ini(file.Path());
    const struct {
        const wchar_t *section, *key, *value;
    } cases[] = {
        {L"", L"k", L"v"},       {L"s", L"", L"v"},    {L"s]", L"k", L"v"}, {L"s", L"a=b", L"v"},
        {L"s", L";k", L"v"},     {L"s", L"[k", L"v"},  {L"s", L" k", L"v"}, {L"s", L"k", L"a\nb=c"},
        {L"s\r", L"k", L"v"},    {L"s", L"k\n", L"v"}, {L"s", L"#k", L"v"}, {L"s ", L"k", L"v"},
        {L"s", L"k", L"\xD800"},
    };
    for (const auto& c : cases)
        EXPECT_FALSE(ini.SetString(c.section, c.key, c.value));
    EXPECT_FALSE(ini.SetString(L"s", L"k", CString(L"a\0b", 3)));
    EXPECT_EQ("[s]\nk=v\n", file.Read());
}

TEST(Ini, LeavesTheFileAsItWasWhenItCannotReplaceIt) {
    const std::string before = "[s]\nk=v\n";
    const TemporaryFile file(before);
    CIni ini(file.Path());
    {
        // Readable, so that the change gets as far as the replacement.
        CFile held(file.Path(), CFile::modeRead | CFile::shareDenyWrite);
        EXPECT_FALSE(ini.SetString(L"s", L"k", L"new"));
    }
    {
        CFile held(file.Path(), CFile::modeRead | CFile::shareExclusive);
        EXPECT_FALSE(ini.SetString(L"s", L"k", L"new"));
    }
    EXPECT_EQ(before, file.Read());
    EXPECT_TRUE(IsAlone(file));
    EXPECT_TRUE(ini.SetString(L"s", L"k", L"new"));
    EXPECT_FALSE(CIni(file.Path() + L"\\below").SetInt(L"s", L"k", 1));

    // Neither bytes of a code page nor half a character survive a rewrite.
    for (const std::string& broken : {"[s]\nk=\xC7\xD1\n"s, Utf16(L"[s]\n") + "k"}) {
        file.Write(broken);
        EXPECT_FALSE(ini.SetString(L"s", L"k", L"new"));
        EXPECT_EQ(broken, file.Read());
    }
}

CString Numbered(LPCWSTR format, DWORD number) {
    CString text;
    text.Format(format, number);
    return text;
}

/// A process that runs and is not this one.
DWORD OtherProcess() {
    const HANDLE all = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    DWORD other = 0;
    for (BOOL more = ::Process32FirstW(all, &entry); more && !other; more = ::Process32NextW(all, &entry))
        other = entry.th32ProcessID == ::GetCurrentProcessId() ? 0 : entry.th32ProcessID;
    ::CloseHandle(all);
    return other;
}

TEST(Ini, RemovesWhatKilledProgramsLeftAndNothingElse) {
    constexpr DWORD kNoProcess = 0xFFFFFFF0;
    const TemporaryFile file("[s]\nk=v\n");
    const struct {
        CString name;
        bool stays;
    } neighbours[] = {{Numbered(L".%lu-12.tmp", kNoProcess), false},
                      {Numbered(L".%lu-4294967295.tmp", ::GetCurrentProcessId()), false},
                      {Numbered(L".%lu-12.tmp", OtherProcess()), true},
                      {Numbered(L".%lu-012.tmp", kNoProcess), true},
                      {Numbered(L".%lu-12.tmp.tmp", kNoProcess), true},
                      {L".old-notes.tmp", true},
                      {L".tmp", true}};
    for (const auto& neighbour : neighbours)
        CFile(file.Path() + neighbour.name, CFile::modeCreate | CFile::modeWrite);
    EXPECT_TRUE(CIni(file.Path()).SetString(L"s", L"k", L"new"));
    for (const auto& neighbour : neighbours) {
        const CString path = file.Path() + neighbour.name;
        EXPECT_EQ(neighbour.stays, ::DeleteFileW(path) != FALSE) << &neighbour - neighbours;
    }
}

TEST(Ini, ThreadsDoNotUndoEachOthersChanges) {
    const TemporaryFile file("[s]\n");
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([ini = CIni(file.Path()), t]() mutable {
            for (int i = 0; i < 10; ++i) {
                CString key;
                key.Format(L"k%d", t * 10 + i);
                EXPECT_TRUE(ini.SetInt(L"s", key, i));
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    const CIni ini(file.Path());
    for (int i = 0; i < 40; ++i) {
        CString key;
        key.Format(L"k%d", i);
        EXPECT_EQ(i % 10, ini.GetInt(L"s", key, -1)) << i;
    }
}

}  // namespace
