// Run-time class information and the texts of exceptions.
#include "Expect.h"

#include <afxdisp.h>

#include <gtest/gtest.h>

namespace {

class CShape : public CObject {
    DECLARE_DYNAMIC(CShape)
};
class CRound : public CShape {
    DECLARE_DYNCREATE(CRound)
};
IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CRound, CShape)

TEST(Object, KnowsItsClassAndItsBases) {
    CRound round;
    CShape& shape = round;
    EXPECT_STREQ("CRound", shape.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(CRound::GetThisClass(), shape.GetRuntimeClass());
    EXPECT_TRUE(shape.IsKindOf(RUNTIME_CLASS(CShape)) && shape.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(CShape().IsKindOf(RUNTIME_CLASS(CRound)));
    EXPECT_EQ(&round, DYNAMIC_DOWNCAST(CRound, &shape));
    CShape plain;
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CRound, &plain));

    CObject* made = RUNTIME_CLASS(CRound)->CreateObject();
    ASSERT_NE(nullptr, made);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CRound)));
    delete made;
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CShape)->CreateObject());
}

TEST(Exception, IsCaughtByItsBasesAcrossTheLibrary) {
    bool caught = false;
    try {
        AfxThrowArchiveException(CArchiveException::badClass, L"page.cbf");
    } catch (CFileException*) {
    } catch (CException* e) {
        caught = e->IsKindOf(RUNTIME_CLASS(CArchiveException));
        EXPECT_STREQ("CArchiveException", e->GetRuntimeClass()->m_lpszClassName);
        e->Delete();
    }
    EXPECT_TRUE(caught);
}

TEST(Exception, TextNamesTheFileAndFitsTheBuffer) {
    const CFileException full(CFileException::diskFull, ERROR_DISK_FULL, L"C:\\page.cbf");
    wchar_t text[260];
    UINT help = 99;
    ASSERT_TRUE(full.GetErrorMessage(text, ARRAYSIZE(text), &help));
    EXPECT_EQ(CString(text), L"\"C:\\page.cbf\" could not be written because the disk is full.");
    EXPECT_EQ(0u, help);

    wchar_t brief[6] = L"?????";
    ASSERT_TRUE(full.GetErrorMessage(brief, 5));
    EXPECT_EQ(CString(brief), L"\"C:\\");
    EXPECT_EQ(0, brief[5]);
    EXPECT_FALSE(full.GetErrorMessage(brief, 0));

    const CArchiveException unknown(99);
    ASSERT_TRUE(unknown.GetErrorMessage(text, ARRAYSIZE(text)));
    EXPECT_EQ(CString(text), L"The file caused an unknown error.");
    // A code without a cause of its own is explained by the system.
    const CFileException odd(CFileException::OsErrorToException(ERROR_INVALID_FUNCTION),
                             ERROR_INVALID_FUNCTION, L"x");
    ASSERT_TRUE(odd.GetErrorMessage(text, ARRAYSIZE(text)));
    EXPECT_EQ(CString(text).Left(5), L"\"x\": ");
    EXPECT_GT(wcslen(text), 10u);
}

TEST(Exception, EveryClassHasItsText) {
    COleException ole;
    ole.m_sc = E_OUTOFMEMORY;
    const CFileException file(CFileException::badPath, 0, L"x"), none(CFileException::none);
    const CArchiveException archive(CArchiveException::bufferFull, L"y"), low(-1);
    const CMemoryException memory;
    const CNotSupportedException unsupported;
    const CInvalidArgException invalid;
    const std::pair<const CException&, LPCWSTR> cases[] = {
        {memory, L"Out of memory."},
        {unsupported, L"This operation is not supported."},
        {invalid, L"An argument is not valid."},
        {file, L"\"x\" has a path that does not exist or is not valid."},
        {none, L"The file had no error."},
        {archive, L"\"y\" has more data than its buffer can hold."},
        {low, L"The file caused an unknown error."},
    };
    wchar_t text[100] = L"";
    for (const auto& [exception, expected] : cases) {
        EXPECT_TRUE(exception.GetErrorMessage(text, 100));
        EXPECT_STREQ(expected, text);
    }
    EXPECT_TRUE(ole.GetErrorMessage(text, 100) && text[0]);
    EXPECT_TRUE(file.GetErrorMessage(text, 1) && !text[0]);
    EXPECT_FALSE(file.GetErrorMessage(nullptr, 9));
    wchar_t untouched[] = L"old";
    UINT help = 5;
    EXPECT_FALSE(CSimpleException().GetErrorMessage(untouched, 4, &help));
    EXPECT_TRUE(!untouched[0] && help == 0);
    try {
        AfxThrowOleException(E_FAIL);
    } catch (COleException* e) {
        EXPECT_EQ(E_FAIL, e->m_sc);
        e->Delete();
    }
}

TEST(Exception, OfTheSystemBecomesACause) {
    const struct {
        LONG error;
        int cause;
    } cases[] = {
        {ERROR_FILE_NOT_FOUND, 2},     {ERROR_PATH_NOT_FOUND, 3}, {ERROR_TOO_MANY_OPEN_FILES, 4},
        {ERROR_ACCESS_DENIED, 5},      {ERROR_INVALID_HANDLE, 6}, {ERROR_SEEK, 9},
        {ERROR_SHARING_VIOLATION, 11}, {ERROR_DISK_FULL, 13},     {ERROR_INVALID_FUNCTION, 1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.cause, CFileException::OsErrorToException(c.error)) << c.error;
    EXPECT_NO_THROW(CFileException::ThrowOsError(ERROR_SUCCESS));
}

}  // namespace
