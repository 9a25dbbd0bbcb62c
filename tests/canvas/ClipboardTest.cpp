#include "canvas/CanvasFixture.h"

#include "stress/support/Imports.h"
#include "support/ClipboardHolder.h"
#include "support/TemporaryFile.h"

#include <afxadv.h>
#include <afxole.h>

#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>
#include <gtest/gtest.h>

using namespace Lumo;

namespace {

using List = std::deque<CUIObject*>;
using Bytes = std::vector<unsigned char>;

constexpr wchar_t kReportFile[] = L"TESSEL_CLIPBOARD_REPORT";

UINT PrivateFormat() {
    return ::RegisterClipboardFormat(L"Tessel GUI Object ");
}

Bytes ReadClipboard(UINT format) {
    Bytes bytes;
    if (!::OpenClipboard(nullptr)) {
        ADD_FAILURE() << "the clipboard is open elsewhere: " << ::GetLastError();
        return bytes;
    }
    if (HANDLE data = ::GetClipboardData(format)) {
        const auto* first = static_cast<const unsigned char*>(::GlobalLock(data));
        bytes.assign(first, first + ::GlobalSize(data));
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return bytes;
}

// The other process: writes what it finds on the clipboard to the file the environment names.
TEST(ClipboardReader, DISABLED_Report) {
    const wchar_t* path = ::_wgetenv(kReportFile);
    ASSERT_NE(path, nullptr);
    const Bytes bytes = ReadClipboard(PrivateFormat());
    FILE* file = ::_wfopen(path, L"wb");
    ASSERT_NE(file, nullptr);
    ::fwrite(bytes.data(), 1, bytes.size(), file);
    ::fclose(file);
}

// Messages have to be pumped meanwhile: the clipboard's owner hands the data out on request.
void PumpUntilEnd(HANDLE process) {
    while (::MsgWaitForMultipleObjects(1, &process, FALSE, 30000, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
        MSG msg;
        while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessage(&msg);
    }
}

Bytes ReadInAnotherProcess() {
    const TemporaryFile report;
    ::SetEnvironmentVariable(kReportFile, report.Path());
    wchar_t program[MAX_PATH];
    ::GetModuleFileName(nullptr, program, MAX_PATH);
    CString command;
    command.Format(L"\"%s\" --gtest_also_run_disabled_tests --gtest_filter=ClipboardReader.*", program);
    STARTUPINFO start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    if (!::CreateProcess(program, command.GetBuffer(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                         &process)) {
        ADD_FAILURE() << "no second process: " << ::GetLastError();
        return {};
    }
    PumpUntilEnd(process.hProcess);
    DWORD code = 1;
    ::GetExitCodeProcess(process.hProcess, &code);
    EXPECT_EQ(code, 0u);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    const std::string read = report.Read();
    return {read.begin(), read.end()};
}

Bytes Record(CUIObject* object) {
    CSharedFile file;
    CArchive archive(&file, CArchive::store);
    object->Serialize(archive);
    archive.Close();
    Bytes bytes(static_cast<size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

class Clipboard : public CanvasFixture {
protected:
    void Pick(std::initializer_list<CUIObject*> objects) {
        m_canvas->Select(nullptr, 0);
        for (CUIObject* object : objects)
            m_canvas->Select(object, 1);
    }
};

TEST_F(Clipboard, AnotherProcessReadsTheRecordsNewestFirst) {
    CUIObject* a = AddRectangle(10, 20, 30, 40);
    CUIObject* b = Add(DS_ELLIPSE, 100, 100, 40, 20);
    a->SetShapeName(L"AB");
    Pick({b, a});
    m_canvas->OnEditObjectCopy();

    Bytes expected = Record(a);
    const Bytes second = Record(b);
    const Bytes head = {3, 0, 0, 0, 0xFF, 0xFE, 0xFF, 2, 'A', 0, 'B', 0, 1, 0, 0, 0};
    ASSERT_GT(expected.size(), head.size());
    EXPECT_EQ(Bytes(expected.begin(), expected.begin() + head.size()), head);
    expected.insert(expected.end(), second.begin(), second.end());
    EXPECT_EQ(ReadInAnotherProcess(), expected);
    EXPECT_EQ(m_canvas->m_selection, (List{a, b}));
}

TEST_F(Clipboard, OffersTheCaptionOfASingleObject) {
    CUIObject* a = AddRectangle(10, 20, 30, 40);
    CUIObject* b = AddRectangle(100, 100, 40, 20);
    a->SetText(L"볼륨");
    Pick({a});
    m_canvas->OnEditObjectCopy();
    const Bytes text = ReadClipboard(CF_UNICODETEXT);
    ASSERT_GE(text.size(), 3 * sizeof(wchar_t));
    EXPECT_STREQ(reinterpret_cast<const wchar_t*>(text.data()), L"볼륨");
    EXPECT_EQ(ReadClipboard(PrivateFormat()), Record(a));

    Pick({a, b});
    m_canvas->OnEditObjectCopy();
    EXPECT_FALSE(::IsClipboardFormatAvailable(CF_UNICODETEXT));
}

TEST_F(Clipboard, CutWithoutASelectionOffersAnEmptySet) {
    CUIObject* a = AddRectangle(10, 20, 30, 40);
    m_canvas->OnEditObjectCut();
    EXPECT_TRUE(::IsClipboardFormatAvailable(PrivateFormat()));
    EXPECT_LT(ReadClipboard(PrivateFormat()).size(), sizeof(int)) << "no room for a record";
    EXPECT_EQ(a->GetRemoved(), 0);
}

// Kept: a deletion hides the first object of the page, whatever is selected.
TEST_F(Clipboard, DeletingHidesTheFirstObjectOfThePage) {
    CUIObject* first = AddRectangle(10, 20, 30, 40);
    CUIObject* a = AddRectangle(100, 100, 40, 20);
    CUIObject* b = AddRectangle(200, 100, 40, 20);
    Pick({a, b});
    m_document->SetModifiedFlag(0);
    m_canvas->OnEditObjectCut();
    EXPECT_EQ(Objects(), (List{first, a, b}));
    EXPECT_EQ(first->GetRemoved(), 1);
    EXPECT_EQ(a->GetRemoved(), 0);
    EXPECT_EQ(b->GetRemoved(), 0);
    EXPECT_EQ(m_canvas->m_selection, (List{b, a}));
    EXPECT_EQ(m_document->GetModifiedFlag(), 1);
    EXPECT_EQ(ReadClipboard(PrivateFormat()).size(), Record(a).size() + Record(b).size());
}

TEST_F(Clipboard, PasteAddsNothingAndLeavesAnEmptySet) {
    CUIObject* a = AddRectangle(10, 20, 30, 40);
    Pick({a});
    m_canvas->OnEditObjectCopy();
    m_canvas->OnModeText();
    m_document->SetModifiedFlag(0);
    TakeUpdateRect();
    m_canvas->OnEditObjectPaste();
    EXPECT_EQ(Objects(), (List{a}));
    EXPECT_TRUE(m_canvas->m_selection.empty());
    EXPECT_EQ(m_canvas->m_nMode, CM_TEXT);
    EXPECT_EQ(m_document->GetModifiedFlag(), 1);
    EXPECT_FALSE(TakeUpdateRect().IsRectEmpty());
    EXPECT_FALSE(::IsClipboardFormatAvailable(CF_UNICODETEXT));
    EXPECT_LT(ReadClipboard(PrivateFormat()).size(), sizeof(int));
}

TEST_F(Clipboard, CopyingLeavesOleAsItFindsIt) {
    CUIObject* a = AddRectangle(10, 20, 30, 40);
    Pick({a});
    AfxOleTerm();
    m_canvas->OnEditObjectCopy();
    AfxOleTerm();
    EXPECT_EQ(ReadClipboard(PrivateFormat()), Record(a)) << "it outlives OLE on this thread";
    ASSERT_EQ(::OleInitialize(nullptr), S_OK) << "what the copy started has ended";
    m_canvas->OnEditObjectPaste();
    ::OleFlushClipboard();
    ::OleUninitialize();
    EXPECT_EQ(::OleInitialize(nullptr), S_OK) << "the host's own start was the only one";
    ::OleUninitialize();
}

class Unwritable : public CUIObject {
public:
    void Serialize(CArchive& ar) override {
        CUIObject::Serialize(ar);
        fail();
    }
    void (*fail)() = nullptr;
};

TEST_F(Clipboard, ACopyThatFailsLeavesTheClipboardAloneAndIsLogged) {
    CUIObject* a = AddRectangle(10, 20, 30, 40);
    Pick({a});
    m_canvas->OnEditObjectCopy();
    auto* bad = new Unwritable;
    m_document->AppendObject(bad, nullptr);
    Pick({a, bad});
    const struct {
        void (*fail)();
        const char* logged;
    } rows[] = {
        {[] { AfxThrowMemoryException(); },
         "[5] [예외] Unknown CMemoryException exception in OnEditObjectCopy - "},
        {[] { throw std::bad_alloc(); },
         "[5] [예외] Unknown CException exception in OnEditObjectCopy - std::bad_alloc"},
        {[] { throw 5; }, "[5] [예외] Unknown CException exception in OnEditObjectCopy - "},
    };
    for (const auto& row : rows) {
        bad->fail = row.fail;
        const TemporaryFile log;
        ::SetEnvironmentVariable(L"MARROWLOG_FILE", log.Path());
        EXPECT_NO_THROW(m_canvas->OnEditObjectCopy());
        ::SetEnvironmentVariable(L"MARROWLOG_FILE", nullptr);
        EXPECT_EQ(ReadClipboard(PrivateFormat()), Record(a));
        EXPECT_EQ(m_canvas->m_selection, (List{bad, a}));
        EXPECT_NE(log.Read().find(row.logged), std::string::npos) << log.Read();
    }
}

int g_allocations = 0;  // until one fails

void* SomeFail(size_t size) {
    if (g_allocations-- == 0)
        throw std::bad_alloc();
    return ::operator new(size);
}

// What is left behind is counted at the end of the test.
TEST_F(Clipboard, ACopyThatRunsOutOfMemoryAnywhereLeavesNothing) {
    const char* const name = sizeof(void*) == 8 ? "_Znwy" : "_Znwj";  // operator new
    CUIObject* a = AddRectangle(10, 20, 30, 40);
    Pick({a});
    int failures = -1;
    do {
        g_allocations = ++failures;
        ASSERT_TRUE(ReplaceImport(L"TesselAfx.dll", name, &SomeFail));
        EXPECT_NO_THROW(m_canvas->OnEditObjectCopy());
        ReplaceImport(L"TesselAfx.dll", name, static_cast<void* (*)(size_t)>(&::operator new));
    } while (g_allocations < 0);
    EXPECT_GT(failures, 2) << "the source and two entries at least";
    EXPECT_EQ(ReadClipboard(PrivateFormat()), Record(a));
}

// Kept: a cut deletes, whether the copy came to the clipboard or not.
TEST_F(Clipboard, AClipboardThatIsHeldKeepsWhatItHas) {
    CUIObject* a = AddRectangle(10, 20, 30, 40);
    Pick({a});
    m_canvas->OnEditObjectCopy();
    const TemporaryFile log;
    ::SetEnvironmentVariable(L"MARROWLOG_FILE", log.Path());
    {
        const ClipboardHolder holder;
        m_canvas->OnEditObjectCut();
        EXPECT_EQ(a->GetRemoved(), 1);
        m_canvas->OnEditObjectPaste();
        EXPECT_EQ(Objects(), (List{a}));
    }
    ::SetEnvironmentVariable(L"MARROWLOG_FILE", nullptr);
    EXPECT_EQ(ReadClipboard(PrivateFormat()), Record(a));
    EXPECT_NE(log.Read().find("[5] [예외] Unknown COleException exception in OnEditObjectCopy - "),
              std::string::npos);
}

}  // namespace
