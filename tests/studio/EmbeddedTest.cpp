// Embedded objects: their picture, their data, and bytes that are neither.
#include "studio/StudioFixture.h"

#include "studio/document/PageImage.h"
#include "studio/editing/EmbeddedObject.h"
#include "studio/editing/History.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PageEdits.h"

#include <afxole.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <gtest/gtest.h>

using namespace Studio;
using Gdiplus::PointF;
using Gdiplus::SizeF;

namespace {

using Bytes = std::vector<BYTE>;

constexpr DWORD kRed = 0xFFE02040;

// A picture of one colour that the platform itself keeps as an embedded item.
ComPtr<IOleObject> MakeStaticPicture(IStorage& storage) {
    constexpr int kSide = 40;
    BITMAPINFOHEADER info = {sizeof info, kSide, kSide / 2, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, sizeof info + sizeof(DWORD) * kSide * kSide / 2);
    auto* dib = static_cast<BYTE*>(::GlobalLock(memory));
    std::memcpy(dib, &info, sizeof info);
    std::fill_n(reinterpret_cast<DWORD*>(dib + sizeof info), kSide * kSide / 2, kRed & 0xFFFFFF);
    ::GlobalUnlock(memory);
    COleDataSource source;
    source.CacheGlobalData(CF_DIB, memory);
    FORMATETC format = {CF_DIB, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    void* object = nullptr;
    ::OleCreateStaticFromData(source.GetDataObject(), IID_IOleObject, OLERENDER_FORMAT, &format, nullptr,
                              &storage, &object);
    return ComPtr<IOleObject>(static_cast<IOleObject*>(object));
}

void Append(Bytes& bytes, DWORD value) {
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<BYTE>(value >> shift));
}

class EmbeddedTest : public StudioFixture {
protected:
    void SetUp() override {
        ASSERT_TRUE(AfxOleInit());
        StudioFixture::SetUp();
        ILockBytes* bytes = nullptr;
        IStorage* storage = nullptr;
        ASSERT_EQ(S_OK, ::CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes));
        m_bytes.reset(bytes);
        ASSERT_EQ(S_OK, ::StgCreateDocfileOnILockBytes(
                            bytes, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, &storage));
        m_storage.reset(storage);
    }

    void TearDown() override {
        StudioFixture::TearDown();
        m_storage.reset();
        m_bytes.reset();
        AfxOleTerm();
    }

    std::unique_ptr<EmbeddedItem> MakeItem() {
        auto item = std::make_unique<EmbeddedItem>();
        item->m_lpObject = MakeStaticPicture(*m_storage).release();
        return item;
    }

    EmbeddedObject& AddEmbedded(EmbeddedContentsPtr contents) {
        ObjectPtr object = MakeObject(ObjectClass::kEmbedded);
        auto& embedded = static_cast<EmbeddedObject&>(*object);
        embedded.SetPosition(Gdiplus::RectF(20, 10, 100, 60));
        embedded.SetContents(std::move(contents));
        Page().AddObject(object.release());
        return embedded;
    }

    DWORD PixelAt(int x, int y) {
        Gdiplus::Color color;
        DrawPage(Objects())->GetPixel(x, y, &color);
        return color.GetValue();
    }

    // The packed objects of the page with other contents behind the record of the only object.
    Bytes Packed(const Bytes& oldContents, const Bytes& newContents) {
        Bytes packed = PackObjects(Objects());
        packed.resize(packed.size() - oldContents.size());
        packed.insert(packed.end(), newContents.begin(), newContents.end());
        return packed;
    }

    ComPtr<ILockBytes> m_bytes;
    ComPtr<IStorage> m_storage;
};

TEST_F(EmbeddedTest, AnItemIsDrawnAndKeepsItsPictureAndData) {
    std::vector<ObjectPtr> objects;
    objects.push_back(MakeEmbedded(MakeItem(), PointF(100, 80), SizeF(600, 400)));
    ASSERT_NE(nullptr, objects.front());
    InsertObjects(Page(), std::move(objects), PointF(0, 0), Text::kStepInsert);
    auto& embedded = dynamic_cast<EmbeddedObject&>(*Objects().front());
    EXPECT_EQ(Lumo::DS_OLE, embedded.GetDrawShape());
    EXPECT_NE(nullptr, embedded.GetClientItem());
    EXPECT_EQ(kRed, PixelAt(100, 80));
    ASSERT_FALSE(embedded.Contents()->Data().empty());

    CString path = FileName(L"embedded.cbf");
    ASSERT_TRUE(m_document->Save(path)) << m_document->GetError().GetString();
    const EmbeddedContentsPtr before = embedded.Contents();
    ASSERT_TRUE(m_document->Load(path)) << m_document->GetError().GetString();
    auto& loaded = dynamic_cast<EmbeddedObject&>(*Objects().front());
    EXPECT_EQ(*before, *loaded.Contents());
    EXPECT_EQ(nullptr, loaded.GetClientItem()) << "opening a page makes no item";
    EXPECT_EQ(kRed, PixelAt(100, 80));

    EmbeddedItem again;
    ASSERT_TRUE(again.LoadData(loaded.Contents()->Data())) << std::hex << again.GetLastStatus();
    EXPECT_EQ(before->Picture(), again.Capture()->Picture());
}

TEST_F(EmbeddedTest, ALargeItemFitsTheRoom) {
    const ObjectPtr object = MakeEmbedded(MakeItem(), PointF(100, 80), SizeF(20, 300));
    const Gdiplus::RectF bounds = object->GetPosition();
    EXPECT_FLOAT_EQ(20, bounds.Width);
    EXPECT_NEAR(bounds.Width, 2 * bounds.Height, 1.0f);
    EXPECT_NEAR(100, bounds.X + bounds.Width / 2, 1.0f);
}

TEST_F(EmbeddedTest, WithoutAPictureThereIsAFrameInTheBounds) {
    EmbeddedObject& embedded =
        AddEmbedded(std::make_shared<const EmbeddedContents>(L"Some Class", Bytes(), Bytes()));
    const DWORD ground = PixelAt(200, 100);
    EXPECT_NE(ground, PixelAt(20, 30));
    EXPECT_NE(ground, PixelAt(25, 15));
    EXPECT_EQ(ground, PixelAt(18, 30));
    EXPECT_EQ(ground, PixelAt(122, 30));
    embedded.SetPosition(Gdiplus::RectF(20, 10, 3, 2));
    EXPECT_NE(ground, PixelAt(20, 10));

    SCODE status = S_OK;
    EXPECT_FALSE(embedded.Open(m_parent, &status)) << "there is no data to open";
    EXPECT_TRUE(FAILED(status));
    EXPECT_EQ(CString(GetText(Text::kFaultBlank)), StatusText(status));
}

TEST_F(EmbeddedTest, CopiesAndUndoesLikeOtherObjects) {
    const EmbeddedContentsPtr contents = MakeItem()->Capture();
    EmbeddedObject& embedded = AddEmbedded(contents);
    DuplicateSelection(Page());
    ASSERT_EQ(2u, Objects().size());
    EXPECT_EQ(*contents, *dynamic_cast<EmbeddedObject&>(*Objects()[1]).Contents());
    Page().Edits().Undo();
    ASSERT_EQ(1u, Objects().size());

    {
        EditScope edit(Page(), Text::kStepEmbedded);
        edit.Touch(embedded);
        embedded.SetContents(std::make_shared<const EmbeddedContents>(L"Other", Bytes{1, 2}, Bytes()));
    }
    Page().Edits().Undo();
    EXPECT_EQ(*contents, *embedded.Contents());
    Page().Edits().Redo();
    EXPECT_EQ(CString(L"Other"), embedded.Contents()->Name());
    DeleteSelection(Page());
    Page().Edits().Undo();
    EXPECT_EQ(&embedded, Objects().front());
}

TEST_F(EmbeddedTest, WhatTheOtherProgramSavesIsAStep) {
    AddEmbedded(std::make_shared<const EmbeddedContents>(L"Old", Bytes(), Bytes()));
    auto& embedded = dynamic_cast<EmbeddedObject&>(*Objects().front());
    const EmbeddedContentsPtr old = embedded.Contents();
    auto item = MakeItem();
    EmbeddedItem& living = *item;
    embedded.Adopt(std::move(item), old);
    IOleClientSite* site = nullptr;
    ASSERT_EQ(S_OK, living.m_lpObject->GetClientSite(&site));
    ASSERT_NE(nullptr, site);
    const ComPtr<IOleClientSite> container(site);
    EXPECT_EQ(S_OK, container->SaveObject());
    EXPECT_FALSE(embedded.Contents()->Picture().empty());
    EXPECT_EQ(CString(GetText(Text::kStepEmbedded)), Page().Edits().UndoName());
    Page().Edits().Undo();
    EXPECT_EQ(*old, *embedded.Contents());
    EXPECT_EQ(nullptr, embedded.GetClientItem()) << "the item is not what the page shows any more";
    EXPECT_TRUE(FAILED(container->SaveObject())) << "the container outlives its item";
}

TEST_F(EmbeddedTest, RefusesContentsThatWereNeverStored) {
    AddEmbedded(nullptr);
    const Bytes empty = {0xFF, 0xFE, 0xFF, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    ASSERT_EQ(1u, UnpackObjects(Packed(empty, empty)).size());
    const auto withPicture = [](const Bytes& picture) {
        Bytes contents = {0xFF, 0xFE, 0xFF, 0, 0, 0, 0, 0};
        Append(contents, static_cast<DWORD>(picture.size()));
        contents.insert(contents.end(), picture.begin(), picture.end());
        return contents;
    };
    Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13,
                 'I',  'H', 'D', 'R', 0,    0,    0,    8,    0, 0, 0, 8};
    EXPECT_EQ(1u, UnpackObjects(Packed(empty, withPicture(png))).size())
        << "cannot be decoded, but is harmless";
    Bytes huge = png;
    huge[17] = 1;
    Bytes negative = png;
    negative[20] = 0xFF;
    Bytes flat = png;
    flat[19] = 0;
    for (const Bytes& picture : {huge, negative, flat, Bytes{1, 2, 3}, Bytes(png.begin(), png.end() - 1)})
        EXPECT_TRUE(UnpackObjects(Packed(empty, withPicture(picture))).empty());

    Bytes endless = {0xFF, 0xFE, 0xFF, 0};
    Append(endless, 0x0FFFFFFF);
    Append(endless, 0);
    EXPECT_TRUE(UnpackObjects(Packed(empty, endless)).empty());
    endless[7] = 0xFF;
    EXPECT_TRUE(UnpackObjects(Packed(empty, endless)).empty());
    const Bytes whole = Packed(empty, withPicture(png));
    for (size_t size = whole.size() - 40; size < whole.size(); ++size)
        EXPECT_TRUE(UnpackObjects(Bytes(whole.begin(), whole.begin() + size)).empty()) << size;
}

TEST_F(EmbeddedTest, AnUndecodablePictureLeavesTheFrame) {
    const Bytes png = MakeItem()->Capture()->Picture();
    ASSERT_GT(png.size(), 40u);
    const auto head = png.begin() + 8;  // the block that tells the size
    Bytes twoHeads = png;
    twoHeads.insert(twoHeads.begin() + 8, head, head + 25);
    for (const Bytes& picture : {Bytes(png.begin(), png.begin() + 36), twoHeads}) {
        AddEmbedded(std::make_shared<const EmbeddedContents>(L"x", Bytes(), picture));
        EXPECT_NE(PixelAt(200, 100), PixelAt(20, 30));
        EXPECT_NE(kRed, PixelAt(60, 40));
    }
}

TEST_F(EmbeddedTest, DataThatIsNoItemIsRefusedWithAReason) {
    const Bytes good = MakeItem()->Capture()->Data();
    ASSERT_GT(good.size(), 512u);
    Bytes foreign = good;
    foreign[0] ^= 1;
    for (const Bytes& data :
         {Bytes(), Bytes{1, 2, 3}, Bytes(4096, 0xFF), foreign, Bytes(good.begin(), good.begin() + 512)}) {
        EmbeddedItem item;
        EXPECT_FALSE(item.LoadData(data)) << data.size();
        EXPECT_TRUE(FAILED(item.GetLastStatus()));
        EXPECT_EQ(nullptr, item.m_lpObject);
        EXPECT_TRUE(item.Capture()->Picture().empty());
    }
}

}  // namespace
