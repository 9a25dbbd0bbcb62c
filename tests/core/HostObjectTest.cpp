// A host derives from every class of objects and overrides all virtual members: each override must be reached
// through a pointer to the library's class, by the library and by other modules alike.
#include <afxwin.h>
#include <afxadv.h>

#include "appearance/UIObjectRectangle.h"
#include "behaviour/UIObjectButton.h"
#include "behaviour/UIObjectChartBase.h"
#include "behaviour/UIObjectOle.h"
#include "behaviour/UIObjectTextEdit.h"
#include "core/Tally.h"
#include "core/UIObjectPoly.h"

#include <gtest/gtest.h>

using namespace Lumo;
using Gdiplus::Graphics;
using Gdiplus::GraphicsPath;
using Gdiplus::PointF;
using Gdiplus::RectF;

// Each class overrides one of the operations that share a name.
#pragma GCC diagnostic ignored "-Woverloaded-virtual"

namespace {

constexpr int kDestructor = 31;
constexpr int kFirstOwn = 32;

template <class Base>
class Host : public Base, public Tally {
public:
    using Base::Base;
    SLOT(0, void, Init(DrawShape, RectF&))
    SLOT(1, void, GetRoundRectPath(GraphicsPath*, RectF, int))
    SLOT(2, void, ShowCoordinateDialog(CUICanvas*))
    SLOT(3, void, ShowPreferenceDialog(CUICanvas*))
    SLOT(4, int, ControlHandle(const int&, RectF&))
    SLOT(5, int, HitTest(RectF&))
    SLOT(6, int, HitTest(PointF&, int))
    SLOT(7, void, RelayEvent(CUICanvas*, unsigned int, unsigned int, long))
    SLOT(8, void, ResetColor())
    SLOT(9, void, Serialize(CArchive&))
    SLOT(10, void, Draw(Graphics*))
    SLOT(11, void, DrawType(Graphics*))
    SLOT(12, void, DrawDragImage(Graphics*, PointF))
    SLOT(13, void, DrawTracker(Graphics*))
    SLOT(14, void, Rotate(float, RectF&, PointF&))
    SLOT(15, void, Rotate(float, RectF&))
    SLOT(16, void, Rotate(float))
    SLOT(17, RectF, RotateRect(float, const RectF&))
    SLOT(18, PointF, RotatePoint(float, const PointF&, const RectF&))
    SLOT(19, void, Invert(int))
    SLOT(20, int, GetHandleCount())
    SLOT(21, PointF, GetHandlePoint(int))
    SLOT(22, RectF, GetHandleRect(int))
    SLOT(23, HCURSOR, GetHandleCursor(int))
    SLOT(24, int, NormalizeHandle(const int&))
    SLOT(25, void, MoveTo(const int&, const PointF&))
    SLOT(26, void, FocusMoveTo(const int&, const PointF&))
    SLOT(27, void, MoveHandleTo(const int&, const PointF&))
    SLOT(28, void, GetItemRect(RectF*))
    SLOT(29, int, GetType())
    SLOT(30, void, Release())
    ~Host() override { ++s_destroyed; }
};

void CallObject(CUIObject* object, CArchive& ar) {
    RectF rect;
    PointF point;
    object->Init(DS_LINE, rect);
    object->GetRoundRectPath(nullptr, rect, 0);
    object->ShowCoordinateDialog(nullptr);
    object->ShowPreferenceDialog(nullptr);
    object->ControlHandle(0, rect);
    object->HitTest(rect);
    object->HitTest(point, 0);
    object->RelayEvent(nullptr, 0, 0, 0);
    object->ResetColor();
    object->Serialize(ar);
    object->Draw(nullptr);
    object->DrawType(nullptr);
    object->DrawDragImage(nullptr, point);
    object->DrawTracker(nullptr);
    object->Rotate(0, rect, point);
    object->Rotate(0, rect);
    object->Rotate(0);
    object->RotateRect(0, rect);
    object->RotatePoint(0, point, rect);
    object->Invert(0);
    object->GetHandleCount();
    object->GetHandlePoint(0);
    object->GetHandleRect(0);
    object->GetHandleCursor(0);
    object->NormalizeHandle(0);
    object->MoveTo(0, point);
    object->FocusMoveTo(0, point);
    object->MoveHandleTo(0, point);
    object->GetItemRect(&rect);
    object->GetType();
    object->Release();
}

template <class Base>
class HostPoly : public Host<Base> {
public:
    using Host<Base>::Host;
    SLOT(32, int, AddPoint(PointF&))
    SLOT(33, int, LastPoint(PointF&, int))
    SLOT(34, int, RecalcBounds())
    SLOT(35, void, RectMode())
    SLOT(36, void, RotatePoints(float, const PointF&, const RectF&))
};

int CallOwn(CUIObjectPoly* poly) {
    RectF rect;
    PointF point;
    poly->AddPoint(point);
    poly->LastPoint(point, 0);
    poly->RecalcBounds();
    poly->RectMode();
    poly->RotatePoints(0, point, rect);
    return 5;
}

/// Rectangle, ellipse and text box.
template <class Base>
class HostShape : public Host<Base> {
public:
    using Host<Base>::Host;
    SLOT(32, void, DrawContents(Graphics*))
    SLOT(33, void, DrawDragImage(Graphics*, PointF&))
};

template <class Shape>
requires requires(Shape* shape) {
    shape->DrawContents(nullptr);
}
int CallOwn(Shape* shape) {
    PointF point;
    shape->DrawContents(nullptr);
    shape->DrawDragImage(nullptr, point);
    return 2;
}

template <class Base>
class HostButton : public Host<Base> {
public:
    using Host<Base>::Host;
    SLOT(32, void, DrawNormal(Graphics*))
    SLOT(33, void, DrawDown(Graphics*))
    SLOT(34, void, DrawFocus(Graphics*))
    SLOT(35, void, DrawOver(Graphics*))
    SLOT(36, void, DrawDisabled(Graphics*))
    SLOT(37, void, DrawChecked(Graphics*, int))
};

int CallOwn(CUIObjectButton* button) {
    button->DrawNormal(nullptr);
    button->DrawDown(nullptr);
    button->DrawFocus(nullptr);
    button->DrawOver(nullptr);
    button->DrawDisabled(nullptr);
    button->DrawChecked(nullptr, 0);
    return 6;
}

template <class Base>
class HostGroup : public Host<Base> {
public:
    using Host<Base>::Host;
    SLOT(32, void, MakeGroup(CUIObject*))
    SLOT(33, void, MakeUnGroup(std::deque<CUIObject*>*))
    SLOT(34, void, DrawDragImage(Graphics*, POINT))
};

int CallOwn(CUIObjectList* group) {
    group->MakeGroup(nullptr);
    group->MakeUnGroup(nullptr);
    group->DrawDragImage(nullptr, POINT());
    return 3;
}

class HostOle : public Host<CUIObjectOle> {
public:
    using Host<CUIObjectOle>::Host;
    SLOT(32, void, Draw(CDC*))
};

int CallOwn(CUIObjectOle* ole) {
    ole->Draw(static_cast<CDC*>(nullptr));
    return 1;
}

class HostObjectTest : public ::testing::Test {
protected:
    ~HostObjectTest() override { m_ar.Close(); }

    template <class Base, class Derived>
    void Check() {
        SCOPED_TRACE(typeid(Base).name());
        auto* derived = new Derived(RectF(0, 0, 10, 10), DS_LINE);
        Base* base = derived;
        CallObject(base, m_ar);
        const int own = CallOwn(base);
        derived->ExpectAll(0, kFirstOwn + own, kDestructor);
        Tally::ExpectDestroyed<CUIObject>(base);
    }

    CSharedFile m_file;
    CArchive m_ar{&m_file, CArchive::store};
};

TEST_F(HostObjectTest, EveryKind) {
    Check<CUIObjectPoly, HostPoly<CUIObjectPoly>>();
    Check<CUIObjectLine, HostPoly<CUIObjectLine>>();
    Check<CUIObjectPolyLine, HostPoly<CUIObjectPolyLine>>();
    Check<CUIObjectRectangle, HostShape<CUIObjectRectangle>>();
    Check<CUIObjectEllipse, HostShape<CUIObjectEllipse>>();
    Check<CUIObjectTextEdit, HostShape<CUIObjectTextEdit>>();
    Check<CUIObjectButton, HostButton<CUIObjectButton>>();
    Check<CUIObjectButtonRect, HostButton<CUIObjectButtonRect>>();
    Check<CUIObjectButtonRectRound, HostButton<CUIObjectButtonRectRound>>();
    Check<CUIObjectButtonEllipse, HostButton<CUIObjectButtonEllipse>>();
    Check<CUIObjectList, HostGroup<CUIObjectList>>();
    Check<CUIObjectSymbol, HostGroup<CUIObjectSymbol>>();
    Check<CUIObjectChartBase, HostGroup<CUIObjectChartBase>>();
    Check<CUIObjectOle, HostOle>();
}

}  // namespace
