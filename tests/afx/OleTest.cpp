#include <afxadv.h>
#include <afxole.h>
#include <gtest/gtest.h>

#include "WindowSupport.h"

#include <string>
#include <thread>

namespace {

const CLIPFORMAT ownFormat =
    static_cast<CLIPFORMAT>(::RegisterClipboardFormat(_T("Class library test data")));

HGLOBAL Memory(const std::string& content) {
    CSharedFile file;
    file.Write(content.data(), static_cast<UINT>(content.size()));
    return file.Detach();
}

std::string Content(HGLOBAL memory, size_t length) {
    const char* bytes = static_cast<const char*>(::GlobalLock(memory));
    std::string content(bytes ? bytes : "", bytes ? length : 0);
    ::GlobalUnlock(memory);
    return content;
}

class Ole : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(AfxOleInit()); }
    void TearDown() override {
        ::OleSetClipboard(nullptr);
        AfxOleTerm();
    }
};

TEST(OleStart, IsOncePerThreadAndTakenBackOnce) {
    std::thread([] {
        ASSERT_TRUE(AfxOleInit());
        ASSERT_TRUE(AfxOleInit()) << "again: it is there already";
        AfxOleTerm();
        EXPECT_EQ(S_OK, ::OleInitialize(nullptr)) << "nothing was left started";
        ASSERT_TRUE(AfxOleInit());
        AfxOleTerm();
        AfxOleTerm();
        EXPECT_EQ(S_FALSE, ::OleInitialize(nullptr)) << "the thread's own start still counts";
        ::OleUninitialize();
        ::OleUninitialize();
    }).join();
    std::thread([] {
        ASSERT_EQ(S_OK, ::CoInitializeEx(nullptr, COINIT_MULTITHREADED));
        EXPECT_FALSE(AfxOleInit()) << "OLE needs an apartment of the thread's own";
        ::CoUninitialize();
    }).join();
}

/// Tells when it is gone.
class CountedSource : public COleDataSource {
public:
    explicit CountedSource(int& alive) : m_alive(alive) { ++m_alive; }
    ~CountedSource() override { --m_alive; }

private:
    int& m_alive;
};

TEST_F(Ole, ClipboardGivesBackWhatWasCached) {
    int alive = 0;
    auto* source = new CountedSource(alive);
    source->CacheGlobalData(ownFormat, Memory("first"));
    source->CacheGlobalData(ownFormat, Memory("second data"));
    source->CacheGlobalData(CF_UNICODETEXT, Memory(std::string("A\0B\0\0\0", 6)));
    source->SetClipboard();
    EXPECT_EQ(source, COleDataSource::GetClipboardOwner());
    {
        COleDataObject data;
        EXPECT_FALSE(data.IsDataAvailable(ownFormat)) << "nothing is attached yet";
        ASSERT_TRUE(data.AttachClipboard());
        EXPECT_TRUE(data.IsDataAvailable(ownFormat));
        EXPECT_TRUE(data.IsDataAvailable(CF_UNICODETEXT));
        EXPECT_FALSE(data.IsDataAvailable(CF_DIB));
        EXPECT_EQ(nullptr, data.GetGlobalData(CF_DIB));
        HGLOBAL first = data.GetGlobalData(ownFormat);
        HGLOBAL again = data.GetGlobalData(ownFormat);
        EXPECT_NE(first, again) << "every caller owns a copy";
        EXPECT_EQ("second data", Content(first, 11));
        ::GlobalFree(first);
        EXPECT_EQ("second data", Content(again, 11));
        ::GlobalFree(again);
    }
    ASSERT_TRUE(::OpenClipboard(nullptr));
    HANDLE plain = ::GetClipboardData(ownFormat);
    EXPECT_EQ("second data", Content(plain, 11)) << "programs without OLE read it too";
    ::CloseClipboard();
    auto* next = new CountedSource(alive);
    next->SetClipboard();
    EXPECT_EQ(1, alive) << "the replaced source is gone";
    COleDataObject empty;
    ASSERT_TRUE(empty.AttachClipboard());
    EXPECT_FALSE(empty.IsDataAvailable(ownFormat));
    empty.Release();
    ::OleSetClipboard(nullptr);
    EXPECT_EQ(0, alive);
    EXPECT_EQ(nullptr, COleDataSource::GetClipboardOwner());
}

TEST_F(Ole, FlushedDataOutlivesItsSource) {
    int alive = 0;
    auto* source = new CountedSource(alive);
    source->CacheGlobalData(ownFormat, Memory("kept"));
    source->SetClipboard();
    COleDataSource::FlushClipboard();
    EXPECT_EQ(0, alive);
    COleDataObject data;
    ASSERT_TRUE(data.AttachClipboard());
    HGLOBAL memory = data.GetGlobalData(ownFormat);
    EXPECT_EQ("kept", Content(memory, 4));
    ::GlobalFree(memory);
}

TEST_F(Ole, DataSourceListsItsFormats) {
    COleDataSource source;
    source.CacheGlobalData(ownFormat, Memory("xy"));
    IEnumFORMATETC* formats = nullptr;
    ASSERT_EQ(S_OK, source.GetDataObject()->EnumFormatEtc(DATADIR_GET, &formats));
    FORMATETC format;
    ASSERT_EQ(S_OK, formats->Next(1, &format, nullptr));
    EXPECT_EQ(ownFormat, format.cfFormat);
    EXPECT_EQ(S_FALSE, formats->Next(1, &format, nullptr));
    formats->Release();
    STGMEDIUM room{};
    room.tymed = TYMED_HGLOBAL;
    room.hGlobal = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 5000);
    EXPECT_EQ(S_OK, source.GetDataObject()->GetDataHere(&format, &room));
    EXPECT_EQ("xy", Content(room.hGlobal, 2));
    ::GlobalFree(room.hGlobal);
    STGMEDIUM little{};
    little.tymed = TYMED_HGLOBAL;
    little.hGlobal = ::GlobalAlloc(GMEM_MOVEABLE, 1);
    EXPECT_EQ(STG_E_MEDIUMFULL, source.GetDataObject()->GetDataHere(&format, &little));
    ::GlobalFree(little.hGlobal);
    IDataObject* const data = source.GetDataObject();
    IUnknown* known = nullptr;
    EXPECT_TRUE(data->QueryInterface(IID_IDataObject, reinterpret_cast<void**>(&known)) == S_OK &&
                known == data);
    EXPECT_EQ(1u, known->Release());
    EXPECT_TRUE(data->QueryInterface(IID_IStream, reinterpret_cast<void**>(&known)) == E_NOINTERFACE &&
                !known);
    EXPECT_EQ(E_POINTER, data->QueryInterface(IID_IUnknown, nullptr));
    EXPECT_TRUE(data->GetData(nullptr, &room) == E_INVALIDARG &&
                data->GetData(&format, nullptr) == E_INVALIDARG);
    EXPECT_TRUE(data->GetDataHere(nullptr, &room) == E_INVALIDARG &&
                data->QueryGetData(nullptr) == E_INVALIDARG);
    EXPECT_TRUE(data->EnumFormatEtc(DATADIR_SET, &formats) == E_NOTIMPL && !formats);
    EXPECT_EQ(E_POINTER, data->EnumFormatEtc(DATADIR_GET, nullptr));
    FORMATETC same{};
    same.ptd = reinterpret_cast<DVTARGETDEVICE*>(&same);
    EXPECT_TRUE(data->GetCanonicalFormatEtc(&format, &same) == DATA_S_SAMEFORMATETC && !same.ptd);
    STGMEDIUM wrong{};
    wrong.tymed = TYMED_ISTREAM;
    EXPECT_EQ(DV_E_TYMED, data->GetDataHere(&format, &wrong));
    FORMATETC thumbnail = format;
    thumbnail.dwAspect = DVASPECT_THUMBNAIL;
    EXPECT_EQ(DV_E_FORMATETC, data->QueryGetData(&thumbnail));
    format = {ownFormat, nullptr, DVASPECT_CONTENT, -1, TYMED_ISTREAM};
    EXPECT_EQ(DV_E_FORMATETC, source.GetDataObject()->QueryGetData(&format)) << "memory is no stream";
    STGMEDIUM streamed{};
    streamed.tymed = TYMED_ISTREAM;
    ASSERT_EQ(S_OK, ::CreateStreamOnHGlobal(nullptr, TRUE, &streamed.pstm));
    IStream* stream = streamed.pstm;
    stream->AddRef();
    source.CacheData(ownFormat, &streamed);
    EXPECT_EQ(S_OK, source.GetDataObject()->QueryGetData(&format));
    STGMEDIUM shared{};
    EXPECT_TRUE(data->GetData(&format, &shared) == S_OK && shared.pstm == stream &&
                shared.tymed == TYMED_ISTREAM);
    ::ReleaseStgMedium(&shared);
    COleDataObject attached;
    attached.Attach(data, FALSE);
    EXPECT_TRUE(attached.IsDataAvailable(ownFormat) && attached.GetData(ownFormat, &shared, &format));
    ::ReleaseStgMedium(&shared);
    EXPECT_EQ(data, attached.Detach());
    EXPECT_FALSE(attached.GetData(ownFormat, &shared));
    source.CacheGlobalData(CF_TEXT, nullptr);
    EXPECT_FALSE((attached.Attach(data, FALSE), attached.IsDataAvailable(CF_TEXT)));
    source.Empty();
    EXPECT_EQ(0u, stream->Release()) << "the source let go of it";
    format.tymed = TYMED_HGLOBAL;
    EXPECT_EQ(DV_E_FORMATETC, source.GetDataObject()->QueryGetData(&format));
}

TEST_F(Ole, ClientItemOfNoClassStaysEmpty) {
    COleClientItem item;
    EXPECT_FALSE(item.UpdateLink());
    EXPECT_EQ(OLE_E_BLANK, item.GetLastStatus());
    CSize size;
    MSG message{};
    EXPECT_FALSE(item.CreateFromFile(_T("C:\\no\\such")) || item.CreateLinkFromFile(_T("C:\\no\\such")));
    EXPECT_NE(OLE_E_BLANK, item.GetLastStatus());
    EXPECT_FALSE(item.GetExtent(&size) || item.DoVerb(OLEIVERB_OPEN, nullptr, &message));
    item.Close();
    item.Run();
    EXPECT_TRUE(item.GetLastStatus() == OLE_E_BLANK && item.GetItemState() == COleClientItem::emptyState);
    struct Counted : COleClientItem {
        explicit Counted(int& count) : alive(count) { ++alive; }
        ~Counted() override { --alive; }
        int& alive;
    };
    int alive = 0;
    auto* stays = new Counted(alive);
    (new Counted(alive))->Delete();
    stays->Delete(FALSE);
    EXPECT_EQ(1, alive);
    delete stays;
    EXPECT_FALSE(item.CreateNewItem(CLSID_NULL));
    EXPECT_TRUE(FAILED(item.GetLastStatus()));
    EXPECT_EQ(static_cast<UINT>(COleClientItem::emptyState), item.GetItemState());
    EXPECT_EQ(nullptr, item.m_lpObject);
    CClientDC dc(nullptr);
    EXPECT_FALSE(item.Draw(&dc, CRect(0, 0, 9, 9)));
}

TEST_F(Ole, ClientItemHoldsARealObject) {
    const CLSID webBrowser = {0x8856F961, 0x340A, 0x11D0, {0xA9, 0x6B, 0x00, 0xC0, 0x4F, 0xD7, 0x05, 0xA2}};
    COleClientItem item;
    ASSERT_TRUE(item.CreateNewItem(webBrowser, OLERENDER_NONE)) << item.GetLastStatus();
    EXPECT_EQ(static_cast<UINT>(COleClientItem::loadedState), item.GetItemState());
    CSize extent;
    EXPECT_TRUE(item.GetExtent(&extent));
    EXPECT_GT(extent.cx, 0);
    EXPECT_TRUE(item.UpdateLink() || item.GetLastStatus() != OLE_E_BLANK);
    item.Run();
    EXPECT_NE(OLE_E_BLANK, item.GetLastStatus());
    IUnknown* object = item.m_lpObject;
    object->AddRef();
    item.Close(OLECLOSE_NOSAVE);
    EXPECT_EQ(static_cast<UINT>(COleClientItem::loadedState), item.GetItemState());
    item.Release();
    EXPECT_EQ(nullptr, item.m_lpObject);
    EXPECT_EQ(0u, object->Release()) << "the item let go of it";
}

}  // namespace
