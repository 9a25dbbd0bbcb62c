// One class for every class of the library that has virtual operations, with every one of them overridden. An
// override leaves its mark and does nothing else, save for those that destroy.
#pragma once

#include "AllHeaders.h"

#include <afxext.h>

#include <set>
#include <string>

using namespace Lumo;
using Gdiplus::Graphics;
using Gdiplus::PointF;
using Gdiplus::RectF;

/// The overrides called since the set was last emptied.
inline std::set<std::string> g_marks;

inline void Mark(const char* name) {
    g_marks.insert(name);
}

template <class Base>
class HostObject : public Base {
public:
    using Base::Base;
    ~HostObject() override { Mark("destructor"); }
    void Init(DrawShape, RectF&) override { Mark("Init"); }
    void GetRoundRectPath(Gdiplus::GraphicsPath*, RectF, int) override { Mark("GetRoundRectPath"); }
    void ShowCoordinateDialog(CUICanvas*) override { Mark("ShowCoordinateDialog"); }
    void ShowPreferenceDialog(CUICanvas*) override { Mark("ShowPreferenceDialog"); }
    int ControlHandle(const int&, RectF&) override { return Mark("ControlHandle"), 0; }
    int HitTest(RectF&) override { return Mark("HitTest rectangle"), 0; }
    int HitTest(PointF&, int) override { return Mark("HitTest point"), 0; }
    void RelayEvent(CUICanvas*, unsigned, unsigned, long) override { Mark("RelayEvent"); }
    void ResetColor() override { Mark("ResetColor"); }
    void Serialize(CArchive&) override { Mark("Serialize"); }
    void Draw(Graphics*) override { Mark("Draw"); }
    void DrawType(Graphics*) override { Mark("DrawType"); }
    void DrawDragImage(Graphics*, PointF) override { Mark("DrawDragImage"); }
    void DrawTracker(Graphics*) override { Mark("DrawTracker"); }
    void Rotate(float, RectF&, PointF&) override { Mark("Rotate about a point"); }
    void Rotate(float, RectF&) override { Mark("Rotate a rectangle"); }
    void Rotate(float) override { Mark("Rotate"); }
    RectF RotateRect(float, const RectF&) override { return Mark("RotateRect"), RectF(); }
    PointF RotatePoint(float, const PointF&, const RectF&) override { return Mark("RotatePoint"), PointF(); }
    void Invert(int) override { Mark("Invert"); }
    int GetHandleCount() override { return Mark("GetHandleCount"), 0; }
    PointF GetHandlePoint(int) override { return Mark("GetHandlePoint"), PointF(); }
    RectF GetHandleRect(int) override { return Mark("GetHandleRect"), RectF(); }
    HCURSOR GetHandleCursor(int) override { return Mark("GetHandleCursor"), nullptr; }
    int NormalizeHandle(const int&) override { return Mark("NormalizeHandle"), 0; }
    void MoveTo(const int&, const PointF&) override { Mark("MoveTo"); }
    void FocusMoveTo(const int&, const PointF&) override { Mark("FocusMoveTo"); }
    void MoveHandleTo(const int&, const PointF&) override { Mark("MoveHandleTo"); }
    void GetItemRect(RectF*) override { Mark("GetItemRect"); }
    int GetType() override { return Mark("GetType"), 0; }
    void Release() override {
        Mark("Release");
        Base::Release();
    }
};

template <class Base>
class HostPoly : public HostObject<Base> {
public:
    using HostObject<Base>::HostObject;
    int AddPoint(PointF&) override { return Mark("AddPoint"), 0; }
    int LastPoint(PointF&, int) override { return Mark("LastPoint"), 0; }
    int RecalcBounds() override { return Mark("RecalcBounds"), 0; }
    void RectMode() override { Mark("RectMode"); }
    void RotatePoints(float, const PointF&, const RectF&) override { Mark("RotatePoints"); }
};

template <class Base>
class HostShape : public HostObject<Base> {
public:
    using HostObject<Base>::HostObject;
    void DrawContents(Graphics*) override { Mark("DrawContents"); }
    void DrawDragImage(Graphics*, PointF&) override { Mark("DrawDragImage of the shape"); }
};

template <class Base>
class HostGroup : public HostObject<Base> {
public:
    using HostObject<Base>::HostObject;
    void MakeGroup(CUIObject*) override { Mark("MakeGroup"); }
    void MakeUnGroup(std::deque<CUIObject*>*) override { Mark("MakeUnGroup"); }
    void DrawDragImage(Graphics*, POINT) override { Mark("DrawDragImage of the group"); }
};

template <class Base>
class HostButton : public HostObject<Base> {
public:
    using HostObject<Base>::HostObject;
    void DrawNormal(Graphics*) override { Mark("DrawNormal"); }
    void DrawDown(Graphics*) override { Mark("DrawDown"); }
    void DrawFocus(Graphics*) override { Mark("DrawFocus"); }
    void DrawOver(Graphics*) override { Mark("DrawOver"); }
    void DrawDisabled(Graphics*) override { Mark("DrawDisabled"); }
    void DrawChecked(Graphics*, int) override { Mark("DrawChecked"); }
};

class HostOle : public HostObject<CUIObjectOle> {
public:
    using HostObject<CUIObjectOle>::HostObject;
    void Draw(CDC*) override { Mark("Draw of the item"); }
};

class HostDocument : public CUIDocument {
public:
    ~HostDocument() override { Mark("destructor"); }
    int Load(CString&) override { return Mark("Load"), 0; }
    int Save(CString&) override { return Mark("Save"), 0; }
    void Serialize(CArchive&) override { Mark("Serialize"); }
    void Release() override {
        Mark("Release");
        CUIDocument::Release();
    }
};

class HostCanvas : public CUICanvas {
public:
    using CUICanvas::CUICanvas;
    ~HostCanvas() override { Mark("destructor"); }
    BOOL OnCommand(WPARAM, LPARAM) override { return Mark("OnCommand"), TRUE; }
    BOOL PreTranslateMessage(MSG*) override { return Mark("PreTranslateMessage"), TRUE; }
    void InvalidateObject(CUIObject*) override { Mark("InvalidateObject"); }
    void MoveTo(const int&, CPoint&, CPoint&, int) override { Mark("MoveTo"); }
    void OnPrepareDC(CDC*, CPrintInfo*) override { Mark("OnPrepareDC"); }
};

class HostEdit : public CUIEdit {
public:
    ~HostEdit() override { Mark("destructor"); }
    BOOL PreTranslateMessage(MSG*) override { return Mark("PreTranslateMessage"), TRUE; }
    BOOL DestroyWindow() override {
        Mark("DestroyWindow");
        return CUIEdit::DestroyWindow();
    }

protected:
    void PostNcDestroy() override {
        Mark("PostNcDestroy");
        CUIEdit::PostNcDestroy();
    }
};

template <class Base>
class HostTool : public Base {
public:
    using Base::Base;
    void OnLButtonDown(CUICanvas*, UINT, const CPoint&) override { Mark("OnLButtonDown"); }
    void OnLButtonUp(CUICanvas*, UINT, const CPoint&) override { Mark("OnLButtonUp"); }
    void OnMouseMove(CUICanvas*, UINT, const CPoint&) override { Mark("OnMouseMove"); }
    void OnLButtonDblClk(CUICanvas*, UINT, const CPoint&) override { Mark("OnLButtonDblClk"); }
    void OnRButtonDown(CUICanvas*, UINT, const CPoint&) override { Mark("OnRButtonDown"); }
};

template <class Base>
class HostHandler : public Base {
public:
    void OnLButtonDown(CWnd*, UINT, UINT, LPARAM) override { Mark("OnLButtonDown"); }
    void OnLButtonUp(CWnd*, UINT, UINT, LPARAM) override { Mark("OnLButtonUp"); }
    void OnLButtonDblClk(CWnd*, UINT, UINT, LPARAM) override { Mark("OnLButtonDblClk"); }
    void OnRButtonDown(CWnd*, UINT, UINT, LPARAM) override { Mark("OnRButtonDown"); }
    void OnRButtonUp(CWnd*, UINT, UINT, LPARAM) override { Mark("OnRButtonUp"); }
    void OnRButtonDblClk(CWnd*, UINT, UINT, LPARAM) override { Mark("OnRButtonDblClk"); }
    void OnMButtonDown(CWnd*, UINT, UINT, LPARAM) override { Mark("OnMButtonDown"); }
    void OnMButtonUp(CWnd*, UINT, UINT, LPARAM) override { Mark("OnMButtonUp"); }
    void OnMButtonDblClk(CWnd*, UINT, UINT, LPARAM) override { Mark("OnMButtonDblClk"); }
    void OnMouseMove(CWnd*, UINT, UINT, LPARAM) override { Mark("OnMouseMove"); }
    void OnMouseWheel(CWnd*, UINT, UINT, LPARAM) override { Mark("OnMouseWheel"); }
    void OnDragEnter(CWnd*, UINT, const CPoint&) override { Mark("OnDragEnter"); }
    void OnDrag(CWnd*, UINT, const CPoint&) override { Mark("OnDrag"); }
    void OnDragLeave(CWnd*, UINT, const CPoint&) override { Mark("OnDragLeave"); }
    void OnKeyDown(CWnd*, UINT, UINT, LPARAM) override { Mark("OnKeyDown"); }
};

/// The coordinate record, the behaviour records and their container.
template <class Record>
class HostRecord : public Record {
public:
    ~HostRecord() override { Mark("destructor"); }
    void Serialize(CArchive&) override { Mark("Serialize"); }
};

template <class Record>
class HostFormat : public Record {
public:
    using Record::Record;
    ~HostFormat() override { Mark("destructor"); }
    void Set(const CUIShapeFormat&) override { Mark("Set as base"); }
    void Set(const Record&) override { Mark("Set"); }
    void LoadDefault() override { Mark("LoadDefault"); }
    void Serialize(CArchive&) override { Mark("Serialize"); }
    void Release() override {
        Mark("Release");
        Record::Release();
    }
};
