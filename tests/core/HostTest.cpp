// A host derives from every class other than the objects and overrides all virtual members: each override
// must be reached through a pointer to the library's class.
#include <type_traits>

#include <afxwin.h>
#include <afxadv.h>

#include "appearance/UICoordinate.h"
#include "behaviour/UIPreference.h"
#include "canvas/UICanvas.h"
#include "canvas/UINotifyHandler.h"
#include "canvas/UITool.h"
#include "core/Tally.h"
#include "core/UIDocument.h"

#include <gtest/gtest.h>

using namespace Lumo;

namespace {

template <class Record>
class HostFormat : public Record, public Tally {
public:
    ~HostFormat() override { ++s_destroyed; }
    SLOT(1, void, Set(const CUIShapeFormat&))
    SLOT(2, void, LoadDefault())
    SLOT(3, void, Serialize(CArchive&))
    SLOT(4, void, Release())
    SLOT(5, void, Set(const Record&))
};

template <class... Records>
void CheckFormats(CArchive& ar) {
    const auto check = [&]<class Record>(std::type_identity<Record>) {
        auto* derived = new HostFormat<Record>;
        Record* record = derived;
        CUIShapeFormat* base = derived;
        base->Set(*base);
        base->LoadDefault();
        base->Serialize(ar);
        base->Release();
        record->Set(*record);
        derived->ExpectAll(1, 6);
        Tally::ExpectDestroyed(base);
    };
    (check(std::type_identity<Records>()), ...);
}

/// What the coordinate record and the behaviour records have: a destructor and `Serialize`.
template <class Record>
class HostRecord : public Record, public Tally {
public:
    ~HostRecord() override { ++s_destroyed; }
    SLOT(1, void, Serialize(CArchive&))
};

template <class... Records>
void CheckRecords(CArchive& ar) {
    const auto check = [&]<class Record>(std::type_identity<Record>) {
        auto* derived = new HostRecord<Record>;
        Record* base = derived;
        base->Serialize(ar);
        derived->ExpectAll(1, 2);
        Tally::ExpectDestroyed(base);
    };
    (check(std::type_identity<Records>()), ...);
}

TEST(HostTest, RecordsOfEveryKind) {
    CSharedFile file;
    CArchive ar(&file, CArchive::store);
    CheckFormats<CUIShapeFormatText, CUIShapeFormatFill, CUIShapeFormatLineColor, CUIShapeFormatLineStyle,
                 CUIShapeFormatShadow, CUIShapeFormatScale, CUIShapeFormatPosition, CUIShapeFormatTextBox>(
        ar);
    CheckRecords<CUICoordinate, CPrefBase, CPrefBlink, CPrefButton, CPrefColor, CPrefCondition, CPrefFill,
                 CPrefHide, CPrefInput, CPrefMove, CPrefPage, CPrefRotate, CPrefSize, CPrefSlider, CPrefText,
                 CPrefTrend, CPrefTrendLine, CUIPreference>(ar);
}

class HostDocument : public CUIDocument, public Tally {
public:
    SLOT(0, int, Load(CString&))
    SLOT(1, int, Save(CString&))
    ~HostDocument() override { ++s_destroyed; }
    SLOT(3, void, Release())
    SLOT(4, void, Serialize(CArchive&))
};

TEST(HostTest, Document) {
    auto* derived = new HostDocument;
    CUIDocument* base = derived;
    CString path;
    base->Load(path);
    base->Save(path);
    base->Release();
    CSharedFile file;
    CArchive ar(&file, CArchive::store);
    base->Serialize(ar);
    derived->ExpectAll(0, 5, 2);
    Tally::ExpectDestroyed(base);
}

class HostCanvas : public CUICanvas, public Tally {
public:
    SLOT(0, BOOL, OnCommand(WPARAM, LPARAM))
    SLOT(1, BOOL, PreTranslateMessage(MSG*))
    SLOT(2, void, InvalidateObject(CUIObject*))
    SLOT(3, void, MoveTo(const int&, CPoint&, CPoint&, int))
    SLOT(4, void, OnPrepareDC(CDC*, CPrintInfo*))
};

TEST(HostTest, Canvas) {
    HostCanvas derived;
    CUICanvas* base = &derived;
    CPoint point;
    base->OnCommand(0, 0);
    base->PreTranslateMessage(nullptr);
    base->InvalidateObject(nullptr);
    base->MoveTo(8, point, point, 0);
    base->OnPrepareDC(nullptr, nullptr);
    derived.ExpectAll(0, 5);
}

template <class Tool>
class HostTool : public Tool, public Tally {
public:
    using Tool::Tool;
    SLOT(0, void, OnLButtonDown(CUICanvas*, UINT, const CPoint&))
    SLOT(1, void, OnLButtonUp(CUICanvas*, UINT, const CPoint&))
    SLOT(2, void, OnMouseMove(CUICanvas*, UINT, const CPoint&))
    SLOT(3, void, OnLButtonDblClk(CUICanvas*, UINT, const CPoint&))
    SLOT(4, void, OnRButtonDown(CUICanvas*, UINT, const CPoint&))
};

template <class Tool, class... Kind>
void CheckTool(Kind... kind) {
    SCOPED_TRACE(typeid(Tool).name());
    HostTool<Tool> derived(kind...);
    CUIToolBase* base = &derived;
    const CPoint point;
    base->OnLButtonDown(nullptr, 0, point);
    base->OnLButtonUp(nullptr, 0, point);
    base->OnMouseMove(nullptr, 0, point);
    base->OnLButtonDblClk(nullptr, 0, point);
    base->OnRButtonDown(nullptr, 0, point);
    derived.ExpectAll(0, 5);
}

TEST(HostTest, Tools) {
    CheckTool<CUIToolBase>(DS_ARC);
    CheckTool<CUISelectTool>();
    CheckTool<CUIDownTool>(DS_ARC);
    CheckTool<CUISymbolTool>(DS_ARC);
    CheckTool<CUIDownUpTool>(DS_ARC);
    CheckTool<CUIMultiDownTool>(DS_ARC);
    CheckTool<CUITextTool>();
    CheckTool<CUIConfigurationTool>(DS_ARC);
    CheckTool<CUIRunningTool>(DS_ARC);
    EXPECT_EQ(CUIToolBase::FindTool(DS_ARC), nullptr);
}

template <class Handler>
class HostHandler : public Handler, public Tally {
public:
    SLOT(0, void, OnLButtonDown(CWnd*, UINT, UINT, LPARAM))
    SLOT(1, void, OnLButtonUp(CWnd*, UINT, UINT, LPARAM))
    SLOT(2, void, OnLButtonDblClk(CWnd*, UINT, UINT, LPARAM))
    SLOT(3, void, OnRButtonDown(CWnd*, UINT, UINT, LPARAM))
    SLOT(4, void, OnRButtonUp(CWnd*, UINT, UINT, LPARAM))
    SLOT(5, void, OnRButtonDblClk(CWnd*, UINT, UINT, LPARAM))
    SLOT(6, void, OnMButtonDown(CWnd*, UINT, UINT, LPARAM))
    SLOT(7, void, OnMButtonUp(CWnd*, UINT, UINT, LPARAM))
    SLOT(8, void, OnMButtonDblClk(CWnd*, UINT, UINT, LPARAM))
    SLOT(9, void, OnMouseMove(CWnd*, UINT, UINT, LPARAM))
    SLOT(10, void, OnMouseWheel(CWnd*, UINT, UINT, LPARAM))
    SLOT(11, void, OnDragEnter(CWnd*, UINT, const CPoint&))
    SLOT(12, void, OnDrag(CWnd*, UINT, const CPoint&))
    SLOT(13, void, OnDragLeave(CWnd*, UINT, const CPoint&))
    SLOT(14, void, OnKeyDown(CWnd*, UINT, UINT, LPARAM))
};

template <class Handler>
void CheckHandler() {
    HostHandler<Handler> derived;
    Handler* base = &derived;
    const CPoint point;
    using OnEvent = void (Handler::*)(CWnd*, UINT, UINT, LPARAM);
    const OnEvent events[] = {&Handler::OnLButtonDown, &Handler::OnLButtonUp,  &Handler::OnLButtonDblClk,
                              &Handler::OnRButtonDown, &Handler::OnRButtonUp,  &Handler::OnRButtonDblClk,
                              &Handler::OnMButtonDown, &Handler::OnMButtonUp,  &Handler::OnMButtonDblClk,
                              &Handler::OnMouseMove,   &Handler::OnMouseWheel, &Handler::OnKeyDown};
    for (const OnEvent event : events)
        (base->*event)(nullptr, 0, 0, 0);
    using OnDrag = void (Handler::*)(CWnd*, UINT, const CPoint&);
    const OnDrag drags[] = {&Handler::OnDragEnter, &Handler::OnDrag, &Handler::OnDragLeave};
    for (const OnDrag drag : drags)
        (base->*drag)(nullptr, 0, point);
    derived.ExpectAll(0, 15);
}

TEST(HostTest, Handlers) {
    CheckHandler<CUINotifyHandler>();
    CheckHandler<CUINotifyHandlerEx>();
}

}  // namespace
