// One object of a page that runs: its behaviours, and how it was before.
#pragma once

#include "canvas/UINotifyHandler.h"
#include "studio/editing/Geometry.h"
#include "studio/runtime/Behaviours.h"
#include "studio/runtime/LiveObject.h"
#include "studio/runtime/TrendGraph.h"

#include <utility>

namespace Studio {

class Control;

/// What an object's behaviours ask of the program.
class RunHost {
public:
    virtual ~RunHost() = default;
    /// Shows another page: by name, by number (from 1), or the one `step` further.
    virtual void GoToPage(const CString& name) = 0;
    virtual void GoToPage(int number) = 0;
    virtual void StepPage(int step) = 0;
    /// Asks the user a question; true for yes.
    virtual bool Confirm(const CString& question) = 0;
    /// Lets the user type a new number for a value over an area of the page.
    virtual void EnterNumber(int value, const Gdiplus::RectF& over) = 0;
};

/// Runs the behaviours of an object as long as it lives; afterwards the object is exactly as it was. An audio
/// control is connected to the device meanwhile.
class ObjectRun : public LiveState, public Lumo::CUINotifyHandler {
public:
    /// `groups` are the groups that hold the object, if any.
    ObjectRun(Lumo::CUIObject& object, Device& device, RunHost& host, std::vector<Lumo::CUIObject*> groups);
    ~ObjectRun() override;
    ObjectRun(const ObjectRun&) = delete;
    ObjectRun& operator=(const ObjectRun&) = delete;

    /// Whether an object needs to be run at all.
    static bool Concerns(const Lumo::CUIObject& object);

    /// Brings the object up to date. Everything that has to be repainted is added to `dirty` (page units).
    void Update(double time, std::vector<Gdiplus::RectF>& dirty);

    /// Whether a behaviour moves, resizes or turns the object.
    bool MayMove() const;
    /// Whether `PaintedBounds` may have changed since the last call.
    bool TakeMoved() { return std::exchange(m_moved, false); }
    /// Everything the object paints now, in page units.
    Gdiplus::RectF PaintedBounds();
    /// Whether a point (page units) lies in the object and something would answer a press there.
    bool Answers(Gdiplus::PointF point);
    Lumo::CUIObject& Object() const { return m_object; }

    void Draw(Gdiplus::Graphics& g, const std::function<void()>& own) override;
    bool Relay(Lumo::CUICanvas* canvas, UINT message, UINT wParam, LPARAM lParam) override;

    void OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseWheel(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnDrag(CWnd* window, UINT flags, const CPoint& point) override;

private:
    Gdiplus::PointF Origin() const;
    bool IsDue(double time);
    void Change(const Look& look, std::vector<Gdiplus::RectF>& dirty);
    void Apply(const Look& look);
    void ApplyColors(const Look& look);
    bool TakesMouse() const;
    bool IsUsed(Behaviour behaviour) const;
    void PressButton();
    void ReleaseButton();
    void SwitchPage();
    void Input();
    void Slide(CPoint at);
    double SliderPart(CPoint at) const;
    void DrawFilled(Gdiplus::Graphics& g);
    void DrawSlider(Gdiplus::Graphics& g);
    void DrawUpright(Gdiplus::Graphics& g, const std::function<void()>& own);

    Lumo::CUIObject& m_object;
    ExtrasHolder& m_holder;
    const ObjectExtras m_extras;
    Device& m_device;
    RunHost& m_host;
    Control* m_control;
    const std::vector<Lumo::CUIObject*> m_groups;
    BoundValues m_values;
    std::vector<int> m_watched;
    std::vector<unsigned> m_seen;

    // The object as it was drawn.
    const Lumo::CUICoordinate m_coordinate;
    const Geometry m_geometry;
    Gdiplus::RectF m_rest;

    std::vector<CRect> m_parts;
    Look m_look;
    Gdiplus::RectF m_placed;
    bool m_started = false;
    bool m_moved = true;
    long long m_blinkPhase = 0;
    bool m_pressed = false;
    double m_partAtPress = 0.0;
    std::unique_ptr<TrendGraph> m_trend;
    std::unique_ptr<Gdiplus::Image> m_image;
};

}  // namespace Studio
