// What the nine audio controls have in common.
//
// A control shows values of a device. In edit mode that is a sample, in run mode the device that runs; the
// control is bound to it by the front part of the values' names ("out1.peq"). Mouse messages of run mode
// arrive through `RelayEvent` and become the notifications of the library's handler, drags included.
#pragma once

#include "behaviour/UIObjectButton.h"
#include "behaviour/UIObjectChartBase.h"
#include "canvas/UINotifyHandler.h"
#include "studio/controls/Picture.h"
#include "studio/device/Device.h"

#include <tuple>
#include <vector>

namespace Studio {

/// Turns a mouse message into the notification of a handler; other messages are left out.
void Notify(Lumo::CUINotifyHandler& handler, CWnd* window, UINT message, UINT flags, LPARAM packed);

/// A control's link to the device, its picture and its mouse.
class Control : public Lumo::CUINotifyHandler {
public:
    /// Run mode gives the device (not owned) and takes it away (null).
    virtual void Connect(Device* device);
    /// The corner of the group that holds the control, (0, 0) outside of groups.
    void SetOrigin(const Gdiplus::PointF& origin) { m_origin = origin; }
    /// Whether the control has to be repainted since the last call; run mode asks after every tick and event.
    /// When that is true and there are `parts` (pixels from the control's corner) afterwards, they are
    /// enough.
    virtual bool TakeChange(std::vector<CRect>& parts);

    /// A message of run mode that the object was given.
    void Hear(CWnd* window, UINT message, UINT flags, LPARAM packed);
    /// The pointer has left the control.
    virtual void Leave() {}

    /// Name that a new control is bound to.
    virtual LPCWSTR DefaultBinding() const = 0;
    /// Whether the object's binding leads to the values that the control needs.
    virtual bool IsBound() = 0;

protected:
    Control() = default;
    Control(const Control&) {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): nothing is copied
    Control& operator=(const Control&) { return *this; }
    virtual ~Control() = default;

    /// The object this control is.
    virtual Lumo::CUIObject& Self() = 0;
    /// Draws the whole control.
    virtual void Render(Picture& picture) = 0;

    bool IsRunning() const { return m_device != nullptr; }
    const Device& Source() const { return m_device ? *m_device : SampleDevice(); }
    Device* Running() const { return m_device; }
    /// Binding of the object, the default one when it has none; upper case for captions.
    CString Binding();
    /// Number of the value `binding + suffix`, -1 when there is none.
    int ValueOf(LPCWSTR suffix);
    double Value(LPCWSTR suffix, double otherwise = 0.0);
    /// Number in the binding: 3 for "in3" or "out3.peq"; 0 when there is none.
    int Channel();

    /// The values that the control shows, for `TakeChange`; asked once when the device is connected.
    virtual void Watch(std::vector<int>& values) = 0;
    void WatchAll(std::vector<int>& values, LPCWSTR prefix);

    /// The picture is out of date.
    void Touch() { m_stale = true; }
    /// Draws the picture, rendered when it is out of date.
    void DrawPicture(Gdiplus::Graphics& g);
    CSize Size();
    /// Client point of a message, measured from the control's corner.
    CPoint Local(LPARAM packed) const;
    CPoint Local(const CPoint& point) const;

private:
    CPoint Corner() const;
    void RenderUnbound(Picture& picture);

    Device* m_device = nullptr;
    Gdiplus::PointF m_origin;
    std::vector<int> m_watched;
    std::vector<unsigned> m_seen;
    unsigned m_seenAll = 0;
    CString m_drawnBinding;
    bool m_stale = true;
    bool m_changed = false;
    std::unique_ptr<Picture> m_picture;
};

/// A control that is one of the library's charts.
class ChartControl : public Lumo::CUIObjectChartBase, public Control {
public:
    explicit ChartControl(Lumo::DrawShape kind) : CUIObjectChartBase(Gdiplus::RectF(), kind) {}

    using CUIObjectChartBase::HitTest;
    /// The whole rectangle, unlike a group's.
    int HitTest(Gdiplus::RectF& rect) override { return CUIObject::HitTest(rect); }
    void Draw(Gdiplus::Graphics* g) override;
    void RelayEvent(Lumo::CUICanvas* canvas, UINT message, UINT wParam, long lParam) override;
    /// The base object's data: a chart has no children.
    void Serialize(CArchive& ar) override { CUIObject::Serialize(ar); }

protected:
    Lumo::CUIObject& Self() override { return *this; }
};

/// A control that is one of the library's buttons: its state operations draw the picture of that state.
class ButtonControl : public Lumo::CUIObjectButtonRectRound, public Control {
public:
    explicit ButtonControl(Lumo::DrawShape kind);

    using CUIObjectButtonRectRound::HitTest;
    /// The whole rectangle.
    int HitTest(Gdiplus::RectF& rect) override { return CUIObject::HitTest(rect); }
    /// The button's state, which is archived, is after run mode what it was before.
    void Connect(Device* device) override;
    void Draw(Gdiplus::Graphics* g) override;
    void DrawNormal(Gdiplus::Graphics* g) override { DrawPicture(*g); }
    void DrawDown(Gdiplus::Graphics* g) override { DrawPicture(*g); }
    void DrawFocus(Gdiplus::Graphics* g) override { DrawPicture(*g); }
    void DrawOver(Gdiplus::Graphics* g) override { DrawPicture(*g); }
    void DrawDisabled(Gdiplus::Graphics* g) override { DrawPicture(*g); }
    void DrawChecked(Gdiplus::Graphics* g, int) override { DrawPicture(*g); }
    void RelayEvent(Lumo::CUICanvas* canvas, UINT message, UINT wParam, long lParam) override;

    void OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void Leave() override;

protected:
    Lumo::CUIObject& Self() override { return *this; }
    /// The button was pressed and released over itself.
    virtual void Click() = 0;
    /// The face with its frame, by state; `lit` frames it in that colour (0: not).
    void RenderFace(Picture& picture, DWORD lit);
    /// The library's button states.
    enum State : DWORD { kNormal, kDown, kFocus, kOver, kDisabled, kChecked };
    void ChangeState(DWORD state);

    bool m_pressed = false;
    bool m_dragged = false;

private:
    std::tuple<DWORD, BOOL, BOOL, BOOL, BOOL, BOOL, BOOL> m_drawnState;
};

}  // namespace Studio
