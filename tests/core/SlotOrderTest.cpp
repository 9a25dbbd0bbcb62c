// The order of the virtual members is a promise to hosts that were built earlier: they call by table entry.
#ifdef __GNUC__

#include <cstring>

#include <gtest/gtest.h>

#include "appearance/UIObjectRectangle.h"
#include "behaviour/UIObjectButton.h"
#include "behaviour/UIObjectChartBase.h"
#include "behaviour/UIObjectOle.h"
#include "behaviour/UIObjectTextEdit.h"
#include "behaviour/UIPreference.h"
#include "canvas/UICanvas.h"
#include "canvas/UINotifyHandler.h"
#include "canvas/UITool.h"
#include "core/UIDocument.h"
#include "core/UIObjectPoly.h"

using namespace Lumo;
using Gdiplus::Graphics;
using Gdiplus::PointF;
using Gdiplus::RectF;

namespace {

// A pointer to a virtual member holds 1 + the offset of its table entry. A virtual destructor is one slot of
// the promised order and takes two entries, so a slot behind it stands one entry further on.
template <class Member>
size_t Entry(Member member) {
    size_t encoded = 0;
    std::memcpy(&encoded, &member, sizeof encoded);
    return (encoded - 1) / sizeof(void*);
}

constexpr size_t kDestructor = SIZE_MAX;
// Slots of `CUIObject`, its destructor included, and the entries that they take.
constexpr size_t kObjectSlots = 32;
constexpr size_t kObjectEntries = kObjectSlots + 1;

template <class Base>
struct After : Base {
    virtual void FirstOfTheHost() {}
};

/// Checks the entries of slots `first` and up, and that a host's own first member follows the last of them.
template <class Class>
void ExpectSlots(size_t first, std::initializer_list<size_t> members) {
    SCOPED_TRACE(typeid(Class).name());
    size_t slot = first;
    size_t entry = first == 0 ? 0 : first + 1;
    for (size_t member : members) {
        if (member == kDestructor)
            ++entry;
        else
            EXPECT_EQ(entry, member) << "slot " << slot;
        ++slot;
        ++entry;
    }
    EXPECT_EQ(entry, Entry(&After<Class>::FirstOfTheHost)) << "number of slots";
}

TEST(SlotOrder, Object) {
    using O = CUIObject;
    ExpectSlots<O>(0, {Entry(&O::Init),
                       Entry(&O::GetRoundRectPath),
                       Entry(&O::ShowCoordinateDialog),
                       Entry(&O::ShowPreferenceDialog),
                       Entry(&O::ControlHandle),
                       Entry<int (O::*)(RectF&)>(&O::HitTest),
                       Entry<int (O::*)(PointF&, int)>(&O::HitTest),
                       Entry(&O::RelayEvent),
                       Entry(&O::ResetColor),
                       Entry(&O::Serialize),
                       Entry(&O::Draw),
                       Entry(&O::DrawType),
                       Entry(&O::DrawDragImage),
                       Entry(&O::DrawTracker),
                       Entry<void (O::*)(float, RectF&, PointF&)>(&O::Rotate),
                       Entry<void (O::*)(float, RectF&)>(&O::Rotate),
                       Entry<void (O::*)(float)>(&O::Rotate),
                       Entry(&O::RotateRect),
                       Entry(&O::RotatePoint),
                       Entry(&O::Invert),
                       Entry(&O::GetHandleCount),
                       Entry(&O::GetHandlePoint),
                       Entry(&O::GetHandleRect),
                       Entry(&O::GetHandleCursor),
                       Entry(&O::NormalizeHandle),
                       Entry(&O::MoveTo),
                       Entry(&O::FocusMoveTo),
                       Entry(&O::MoveHandleTo),
                       Entry(&O::GetItemRect),
                       Entry(&O::GetType),
                       Entry(&O::Release),
                       kDestructor});
    EXPECT_EQ(kObjectEntries, Entry(&After<O>::FirstOfTheHost));
}

TEST(SlotOrder, ObjectsOfEveryKind) {
    using Poly = CUIObjectPoly;
    const auto poly = {Entry(&Poly::AddPoint), Entry(&Poly::LastPoint), Entry(&Poly::RecalcBounds),
                       Entry(&Poly::RectMode), Entry(&Poly::RotatePoints)};
    ExpectSlots<Poly>(kObjectSlots, poly);
    ExpectSlots<CUIObjectLine>(kObjectSlots, poly);
    ExpectSlots<CUIObjectPolyLine>(kObjectSlots, poly);

    using Rectangle = CUIObjectRectangle;
    ExpectSlots<Rectangle>(kObjectSlots, {Entry(&Rectangle::DrawContents), Entry(&Rectangle::DrawDragImage)});
    using Ellipse = CUIObjectEllipse;
    ExpectSlots<Ellipse>(kObjectSlots, {Entry(&Ellipse::DrawContents), Entry(&Ellipse::DrawDragImage)});
    using TextEdit = CUIObjectTextEdit;
    ExpectSlots<TextEdit>(kObjectSlots, {Entry(&TextEdit::DrawContents), Entry(&TextEdit::DrawDragImage)});
    using Ole = CUIObjectOle;
    ExpectSlots<Ole>(kObjectSlots, {Entry<void (Ole::*)(CDC*)>(&Ole::Draw)});

    using Button = CUIObjectButton;
    const auto button = {Entry(&Button::DrawNormal),   Entry(&Button::DrawDown),
                         Entry(&Button::DrawFocus),    Entry(&Button::DrawOver),
                         Entry(&Button::DrawDisabled), Entry(&Button::DrawChecked)};
    ExpectSlots<Button>(kObjectSlots, button);
    ExpectSlots<CUIObjectButtonRect>(kObjectSlots, button);
    ExpectSlots<CUIObjectButtonRectRound>(kObjectSlots, button);
    ExpectSlots<CUIObjectButtonEllipse>(kObjectSlots, button);

    using Group = CUIObjectList;
    const auto group = {Entry(&Group::MakeGroup), Entry(&Group::MakeUnGroup),
                        Entry<void (Group::*)(Graphics*, POINT)>(&Group::DrawDragImage)};
    ExpectSlots<Group>(kObjectSlots, group);
    ExpectSlots<CUIObjectSymbol>(kObjectSlots, group);
    ExpectSlots<CUIObjectChartBase>(kObjectSlots, group);
}

template <class Record>
void ExpectFormatSlots() {
    using Base = CUIShapeFormat;
    ExpectSlots<Record>(0, {kDestructor, Entry<void (Base::*)(const Base&)>(&Base::Set),
                            Entry(&Base::LoadDefault), Entry(&Base::Serialize), Entry(&Base::Release),
                            Entry<void (Record::*)(const Record&)>(&Record::Set)});
}

template <class... Records>
void ExpectPreferenceSlots() {
    (ExpectSlots<Records>(0, {kDestructor, Entry(&Records::Serialize)}), ...);
}

TEST(SlotOrder, Records) {
    ExpectFormatSlots<CUIShapeFormatText>();
    ExpectFormatSlots<CUIShapeFormatFill>();
    ExpectFormatSlots<CUIShapeFormatLineColor>();
    ExpectFormatSlots<CUIShapeFormatLineStyle>();
    ExpectFormatSlots<CUIShapeFormatShadow>();
    ExpectFormatSlots<CUIShapeFormatScale>();
    ExpectFormatSlots<CUIShapeFormatPosition>();
    ExpectFormatSlots<CUIShapeFormatTextBox>();
    ExpectSlots<CUICoordinate>(0, {kDestructor, Entry(&CUICoordinate::Serialize)});
    ExpectPreferenceSlots<CPrefBase, CPrefBlink, CPrefButton, CPrefColor, CPrefCondition, CPrefFill,
                          CPrefHide, CPrefInput, CPrefMove, CPrefPage, CPrefRotate, CPrefSize, CPrefSlider,
                          CPrefText, CPrefTrend, CPrefTrendLine, CUIPreference>();
}

template <class Handler>
void ExpectHandlerSlots() {
    ExpectSlots<Handler>(
        0, {Entry(&Handler::OnLButtonDown), Entry(&Handler::OnLButtonUp), Entry(&Handler::OnLButtonDblClk),
            Entry(&Handler::OnRButtonDown), Entry(&Handler::OnRButtonUp), Entry(&Handler::OnRButtonDblClk),
            Entry(&Handler::OnMButtonDown), Entry(&Handler::OnMButtonUp), Entry(&Handler::OnMButtonDblClk),
            Entry(&Handler::OnMouseMove), Entry(&Handler::OnMouseWheel), Entry(&Handler::OnDragEnter),
            Entry(&Handler::OnDrag), Entry(&Handler::OnDragLeave), Entry(&Handler::OnKeyDown)});
}

template <class... Tools>
void ExpectToolSlots() {
    (ExpectSlots<Tools>(0,
                        {Entry(&Tools::OnLButtonDown), Entry(&Tools::OnLButtonUp), Entry(&Tools::OnMouseMove),
                         Entry(&Tools::OnLButtonDblClk), Entry(&Tools::OnRButtonDown)}),
     ...);
}

TEST(SlotOrder, DocumentToolsAndHandlers) {
    using Document = CUIDocument;
    ExpectSlots<Document>(0, {Entry(&Document::Load), Entry(&Document::Save), kDestructor,
                              Entry(&Document::Release), Entry(&Document::Serialize)});
    ExpectToolSlots<CUIToolBase, CUISelectTool, CUIDownTool, CUISymbolTool, CUIDownUpTool, CUIMultiDownTool,
                    CUITextTool, CUIConfigurationTool, CUIRunningTool>();
    ExpectHandlerSlots<CUINotifyHandler>();
    ExpectHandlerSlots<CUINotifyHandlerEx>();
}

// The canvas adds three operations to those of the window class, whose number is the class library's affair.
TEST(SlotOrder, CanvasEndsWithThreeOfItsOwn) {
    const size_t first = Entry(&After<CWnd>::FirstOfTheHost);
    EXPECT_EQ(first, Entry(&CUICanvas::InvalidateObject));
    EXPECT_EQ(first + 1, Entry(&CUICanvas::MoveTo));
    EXPECT_EQ(first + 2, Entry(&CUICanvas::OnPrepareDC));
    EXPECT_EQ(first + 3, Entry(&After<CUICanvas>::FirstOfTheHost));
}

}  // namespace

#endif
