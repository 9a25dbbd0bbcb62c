// Files: exact round trips, and files that are not what they claim to be.
#include "studio/StudioFixture.h"

#include "core/UIObjectPoly.h"
#include "studio/app/Texts.h"
#include "studio/editing/GroupObject.h"
#include "studio/editing/PageEdits.h"

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>
#include <gtest/gtest.h>

using namespace Studio;

namespace {

using Bytes = std::vector<BYTE>;

constexpr size_t kHeader = 24;

Bytes ReadBytes(const CString& path) {
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    Bytes bytes(static_cast<size_t>(file.GetLength()));
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

void WriteBytes(const CString& path, const Bytes& bytes) {
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

// The checksum bit by bit, so that a fault in the program's table shows.
DWORD Crc32(const BYTE* data, size_t size) {
    DWORD crc = 0xFFFFFFFF;
    for (size_t i = 0; i < size; ++i) {
        crc ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320u : 0u);
    }
    return ~crc;
}

template <class T>
void Append(Bytes& bytes, T value) {
    const auto* raw = reinterpret_cast<const BYTE*>(&value);
    bytes.insert(bytes.end(), raw, raw + sizeof value);
}

Bytes WithHeader(const Bytes& body, DWORD version = 2) {
    Bytes file = {'T', 'S', 'P', 'G', '\r', '\n', 0x1A, '\n'};
    Append(file, version);
    Append(file, Crc32(body.data(), body.size()));
    Append(file, static_cast<ULONGLONG>(body.size()));
    file.insert(file.end(), body.begin(), body.end());
    return file;
}

Bytes BodyOf(const Bytes& file) {
    return Bytes(file.begin() + kHeader, file.end());
}

}  // namespace

class FileTest : public StudioFixture {
protected:
    void DrawOneOfEach() {
        Lumo::CUIObject* box = Add(Lumo::DS_RECTANGLE, 10.25f, 20.0f, 100.0f, 50.0f);
        box->SetText(L"\xD55C\xAE00 caption");
        box->SetTextAlignment(2);
        box->SetTextUnit(3);
        box->SetLineAlignment(1);
        box->SetLineDashValue(1.5f, 0.5f, 3.0f, 1.0f);
        box->SetFillShapeMode(3);
        Add(Lumo::DS_ELLIPSE, 150.0f, 20.0f, 80.0f, 60.0f)->SetRemoved(1);
        Add(Lumo::DS_TEXTEDIT, 10.0f, 100.0f, 120.0f, 40.0f)->SetText(L"words");
        Add(Lumo::DS_LINE, 10.0f, 200.0f, 50.0f, -30.0f);
        auto* polyline =
            static_cast<Lumo::CUIObjectPoly*>(Add(Lumo::DS_POLYLINE, 200.0f, 200.0f, 30.5f, 40.0f));
        Gdiplus::PointF third(300.0f, 210.25f);
        polyline->AddPoint(third);
        Add(Lumo::DS_LINE, 320.0f, 200.0f, 40.0f, 20.0f);
        Add(Lumo::DS_RECTANGLE, 330.0f, 230.0f, 20.0f, 20.0f);
        Page().SelectOnly({Objects()[5], Objects()[6]});
        GroupSelection(Page());
        Add(Lumo::DS_ELLIPSE, 400.0f, 240.0f, 20.0f, 20.0f);
        Page().SelectOnly({Objects()[5], Objects()[6]});
        GroupSelection(Page());
    }

    CString SaveAs(LPCWSTR name) {
        CString path = FileName(name);
        EXPECT_TRUE(m_document->Save(path)) << m_document->GetError().GetString();
        return path;
    }

    // A file is refused for a reason, and the page that is open stays as it is.
    void ExpectRefused(const Bytes& bytes, Text reason, const char* what) {
        SCOPED_TRACE(what);
        CString path = FileName(L"hostile.cbf");
        WriteBytes(path, bytes);
        const Lumo::CUIObjectDeque before = Objects();
        StudioCanvas* page = &Page();
        EXPECT_EQ(0, m_document->Load(path));
        EXPECT_NE(-1, m_document->GetError().Find(GetText(reason)));
        EXPECT_EQ(page, &Page());
        EXPECT_EQ(before, Objects());
        EXPECT_EQ(1, m_document->GetModifiedFlag());
    }

    // Body of a document with one page that holds `count` objects, which `objects` follow.
    static Bytes PageBody(DWORD count, const Bytes& objects = {}) {
        Bytes body;
        Append(body, DWORD(1));
        Append(body, DWORD(0));
        body.insert(body.end(), {0xFF, 0xFE, 0xFF, 0});
        Append(body, count);
        body.insert(body.end(), objects.begin(), objects.end());
        return body;
    }

    // The stored bytes of the only object of the page.
    Bytes StoredObject() {
        const Bytes body = BodyOf(ReadBytes(SaveAs(L"object.cbf")));
        const size_t name = 8 + 4 + body[11] * 2;
        return Bytes(body.begin() + name + 4, body.end() - 4);
    }
};

TEST_F(FileTest, RoundTripIsExact) {
    DrawOneOfEach();
    CString first = SaveAs(L"first.cbf");
    EXPECT_EQ(0, m_document->GetModifiedFlag());
    ASSERT_TRUE(m_document->NewFile());
    ASSERT_TRUE(m_document->Load(first));
    EXPECT_EQ(ReadBytes(first), ReadBytes(SaveAs(L"second.cbf")));

    ASSERT_EQ(6u, Objects().size());
    Lumo::CUIObject& box = *Objects()[0];
    ExpectBounds(box, 10.25f, 20.0f, 100.0f, 50.0f);
    EXPECT_EQ(CString(L"\xD55C\xAE00 caption"), box.GetText());
    EXPECT_EQ(2, box.GetTextAlignment());
    EXPECT_EQ(3, box.GetTextUnit());
    EXPECT_EQ(1, box.GetLineAlignment());
    EXPECT_EQ(m_document, box.GetDocument());
    EXPECT_EQ(&Page(), box.GetCanvas());
    EXPECT_EQ(1, Objects()[1]->GetRemoved());
    EXPECT_EQ(ObjectClass::kTextBox, ClassOf(*Objects()[2]));

    auto& line = dynamic_cast<Lumo::CUIObjectLine&>(*Objects()[3]);
    EXPECT_EQ(3, line.GetHandleCount());
    EXPECT_FLOAT_EQ(170.0f, line.NormalizePoints()->at(1).Y);
    auto& polyline = dynamic_cast<Lumo::CUIObjectPolyLine&>(*Objects()[4]);
    EXPECT_EQ(65536, polyline.GetMaxPoints());
    ASSERT_EQ(3u, polyline.NormalizePoints()->size());
    EXPECT_FLOAT_EQ(210.25f, polyline.NormalizePoints()->at(2).Y);

    auto& outer = dynamic_cast<GroupObject&>(*Objects()[5]);
    ASSERT_EQ(2u, outer.GetChildren().size());
    auto& inner = dynamic_cast<GroupObject&>(*outer.GetChildren()[0]);
    EXPECT_EQ(2u, inner.GetChildren().size());
}

TEST_F(FileTest, PagesKeepTheirOrderAndTheCurrentOne) {
    // A file of three pages, written by hand: the library would order them by their pointers.
    Bytes body;
    Append(body, DWORD(3));
    Append(body, DWORD(1));
    for (WCHAR name : {L'C', L'A', L'B'}) {
        body.insert(body.end(), {0xFF, 0xFE, 0xFF, 1});
        Append(body, name);
        Append(body, DWORD(0));
    }
    Append(body, DWORD(0x21444E45));
    CString path = FileName(L"pages.cbf");
    WriteBytes(path, WithHeader(body));
    ASSERT_TRUE(m_document->Load(path));
    ASSERT_EQ(3u, m_document->Pages().size());
    EXPECT_EQ(CString(L"A"), m_document->Pages()[1].name);
    EXPECT_EQ(m_document->Pages()[1].canvas.get(), m_document->CurrentPage());
    EXPECT_EQ(ReadBytes(path), ReadBytes(SaveAs(L"pages2.cbf")));
}

TEST_F(FileTest, AnOffsetOfTheRecordBecomesPartOfThePlace) {
    Add(Lumo::DS_RECTANGLE, 10, 10, 50, 40)->GetCoordinate().SetPositionOffset({28, -1});
    CString path = SaveAs(L"offset.cbf");
    ASSERT_TRUE(m_document->Load(path));
    SelectAll(Page());
    RotateSelection(Page(), true);
    ASSERT_TRUE(m_document->Edits().Undo());
    ExpectBounds(*Objects()[0], 38, 9, 50, 40);
    EXPECT_FLOAT_EQ(0.0f, Objects()[0]->GetCoordinate().GetPositionOffset().X);
}

TEST_F(FileTest, RefusesWhatIsNoSoundFile) {
    Add(Lumo::DS_RECTANGLE, 10, 10, 50, 50);
    const Bytes good = ReadBytes(SaveAs(L"good.cbf"));
    m_document->SetModifiedFlag(1);
    Bytes flipped = good;
    flipped[kHeader + 40] ^= 1;
    Bytes newer = WithHeader(BodyOf(good), 3);
    Bytes older = WithHeader(BodyOf(good), 0);
    Bytes longer = good;
    longer.push_back(0);
    ExpectRefused({}, Text::kFaultEmpty, "empty");
    ExpectRefused(Bytes(good.begin(), good.begin() + 10), Text::kFaultForeign, "shorter than the header");
    ExpectRefused(Bytes(500, 'x'), Text::kFaultForeign, "another kind");
    ExpectRefused(newer, Text::kFaultVersion, "newer version");
    ExpectRefused(older, Text::kFaultVersion, "no version");
    ExpectRefused(Bytes(good.begin(), good.end() - 5), Text::kFaultLength, "cut off");
    ExpectRefused(longer, Text::kFaultLength, "too long");
    ExpectRefused(flipped, Text::kFaultChecksum, "one bit wrong");
}

TEST_F(FileTest, RefusesContentsThatMakeNoSense) {
    Lumo::CUIObject* line = Add(Lumo::DS_LINE, 10, 10, 50, 50);
    const Bytes object = StoredObject();
    m_document->SetModifiedFlag(1);
    // The points stand at the end: most, count, two points of two floats.
    const size_t points = object.size() - 24;
    const auto changed = [&](size_t at, auto value) {
        Bytes bytes = object;
        std::memcpy(&bytes[at], &value, sizeof value);
        Bytes body = PageBody(1, bytes);
        Append(body, DWORD(0x21444E45));
        return WithHeader(body);
    };
    Bytes sound = changed(0, DWORD(4));
    Bytes trailing = BodyOf(sound);
    trailing.push_back(7);
    Bytes noPages;
    Append(noPages, DWORD(0));
    Append(noPages, DWORD(0));
    Append(noPages, DWORD(0x21444E45));
    Bytes manyPages;
    Append(manyPages, DWORD(0xFFFFFFFF));
    Append(manyPages, DWORD(0));
    Bytes hugeName;
    Append(hugeName, DWORD(1));
    Append(hugeName, DWORD(0));
    hugeName.insert(hugeName.end(), {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F});
    ASSERT_NE(nullptr, line);

    ExpectRefused(changed(0, DWORD(99)), Text::kFaultContent, "unknown class");
    ExpectRefused(changed(0, DWORD(1)), Text::kFaultContent, "kind of another class");
    ExpectRefused(changed(points, int(1000000000)), Text::kFaultContent, "too many most points");
    ExpectRefused(changed(points + 4, DWORD(0xFFFFFFFF)), Text::kFaultContent, "too many points");
    ExpectRefused(changed(points + 8, std::numeric_limits<float>::quiet_NaN()), Text::kFaultContent,
                  "no number");
    ExpectRefused(WithHeader(PageBody(0xFFFFFFFF)), Text::kFaultContent, "objects that are not there");
    ExpectRefused(WithHeader(trailing), Text::kFaultContent, "bytes behind the end");
    ExpectRefused(WithHeader(noPages), Text::kFaultContent, "no pages");
    ExpectRefused(WithHeader(manyPages), Text::kFaultContent, "too many pages");
    ExpectRefused(WithHeader(hugeName), Text::kFaultContent, "a name longer than the file");

    CString path = FileName(L"sound.cbf");
    WriteBytes(path, sound);
    EXPECT_TRUE(m_document->Load(path)) << m_document->GetError().GetString();
}

TEST_F(FileTest, ReadsTheFirstVersion) {
    Add(Lumo::DS_LINE, 10, 10, 50, 50);
    const Bytes object = StoredObject();
    // The mark of binding and behaviours stood not yet before the points.
    Bytes first = object;
    const size_t mark = first.size() - 25;
    ASSERT_EQ(0, first[mark]);
    first.erase(first.begin() + mark);
    Bytes body = PageBody(1, first);
    Append(body, DWORD(0x21444E45));
    CString path = FileName(L"first.cbf");
    WriteBytes(path, WithHeader(body, 1));
    ASSERT_TRUE(m_document->Load(path)) << m_document->GetError().GetString();
    EXPECT_EQ(object, StoredObject());
    WriteBytes(path, WithHeader(body, 2));
    EXPECT_FALSE(m_document->Load(path));
}

TEST_F(FileTest, RefusesBottomlessGroups) {
    Add(Lumo::DS_RECTANGLE, 10, 10, 50, 50);
    Add(Lumo::DS_RECTANGLE, 80, 10, 50, 50);
    SelectAll(Page());
    GroupSelection(Page());
    Bytes group = StoredObject();
    m_document->SetModifiedFlag(1);
    // Up to its number of children the group's own record is what a group without any would store.
    Objects()[0]->Release();
    const Bytes empty = StoredObject();
    Bytes nested;
    for (int depth = 0; depth < 100000; ++depth) {
        nested.insert(nested.end(), empty.begin(), empty.end() - 4);
        Append(nested, DWORD(1));
    }
    m_document->SetModifiedFlag(1);
    ExpectRefused(WithHeader(PageBody(1, nested)), Text::kFaultDepth, "bottomless");
}

TEST_F(FileTest, FailedSaveLeavesTheOldFile) {
    Add(Lumo::DS_RECTANGLE, 10, 10, 50, 50);
    CString path = SaveAs(L"kept.cbf");
    const Bytes before = ReadBytes(path);
    Add(Lumo::DS_ELLIPSE, 80, 10, 50, 50);
    m_document->SetModifiedFlag(1);
    {
        CFile lock(path, CFile::modeRead | CFile::shareDenyWrite);
        EXPECT_EQ(0, m_document->Save(path));
    }
    EXPECT_FALSE(m_document->GetError().IsEmpty());
    EXPECT_EQ(1, m_document->GetModifiedFlag());
    EXPECT_EQ(before, ReadBytes(path));

    // An object of a class that Studio cannot restore must not be lost silently.
    auto* foreign = new Lumo::CUIObject(Gdiplus::RectF(0, 0, 10, 10), Lumo::DS_RECTANGLE);
    m_document->AppendObject(foreign, nullptr);
    EXPECT_EQ(0, m_document->Save(path));
    EXPECT_NE(-1, m_document->GetError().Find(GetText(Text::kFaultClass)));
    EXPECT_EQ(before, ReadBytes(path));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, ::GetFileAttributes(path + L".saving"));

    CString nowhere = FileName(L"no_such_folder\\x.cbf");
    EXPECT_EQ(0, m_document->Save(nowhere));
    CString missing = FileName(L"missing.cbf");
    EXPECT_EQ(0, m_document->Load(missing));
}
