// Run mode: all pages of a document, operated instead of edited.
#pragma once

#include "canvas/UITool.h"
#include "studio/editing/StudioCanvas.h"
#include "studio/runtime/BackBuffer.h"
#include "studio/runtime/ObjectRun.h"

#include <map>
#include <utility>

namespace Studio {

class StudioDocument;

/// Runs a document from construction to destruction. Afterwards every object, the selection and the drawing
/// tool are exactly as before. The document must not be edited, saved or closed meanwhile.
///
/// Mouse messages reach the objects on the library's way: the canvas is in run mode and finds this session's
/// tool, which gives them to the object under the pointer with `RelayEvent`; a drag stays with the object
/// that was pressed.
class RunSession : public PageOperator, private Lumo::CUIRunningTool {
public:
    /// Nothing is owned; all outlive the session.
    RunSession(StudioDocument& document, Device& device, RunHost& host);
    ~RunSession() override;
    RunSession(const RunSession&) = delete;
    RunSession& operator=(const RunSession&) = delete;

    /// Lets time pass: device, behaviours, controls. Repaints what changed on the current page.
    void Tick(double seconds);
    /// Brings the current page up to date without letting time pass, after an event.
    void Update();
    /// Another page became the current one.
    void PageShown();

    void PaintPage(StudioCanvas& page) override;
    bool Wheel(StudioCanvas& page, UINT flags, short turn, CPoint at) override;
    void PointerLeft(StudioCanvas& page) override;
    HCURSOR CursorAt(StudioCanvas& page, CPoint at) override;

    /// Objects that run on the current page.
    size_t LiveCount();
    /// Pixels painted since the last call, for measurements.
    long long TakePaintedPixels() { return std::exchange(m_paintedPixels, 0); }

private:
    // An object of the page itself, with the area outside of which it paints nothing.
    struct Shown {
        Lumo::CUIObject* object;
        ObjectRun* run;
        Gdiplus::RectF reach;
        bool runs;
        bool mayMove;
        bool inGround = false;
    };
    struct RunningPage {
        std::vector<std::unique_ptr<ObjectRun>> live;
        std::vector<Shown> shown;
        Lumo::CUIObjectDeque selection;
        int mode = 0;
        // What never changes and lies under nothing that does, drawn once.
        BackBuffer ground;
        BackBuffer buffer;
        CPoint origin;  // the page's point at the buffers' corner
        bool whole = true;
    };

    void OnLButtonDown(Lumo::CUICanvas* canvas, UINT flags, const CPoint& point) override;
    void OnLButtonUp(Lumo::CUICanvas* canvas, UINT flags, const CPoint& point) override;
    void OnMouseMove(Lumo::CUICanvas* canvas, UINT flags, const CPoint& point) override;
    void OnLButtonDblClk(Lumo::CUICanvas* canvas, UINT flags, const CPoint& point) override;

    void Prepare(StudioCanvas& page);
    void Show(RunningPage& page, Lumo::CUIObject& object);
    static void ChooseGround(RunningPage& page);
    static void PaintGround(RunningPage& page, CSize size);
    void Collect(RunningPage& page, Lumo::CUIObject& object, std::vector<Lumo::CUIObject*>& groups);
    RunningPage* Current();
    ObjectRun* RunAt(CPoint at);
    void Press(Lumo::CUICanvas* canvas, UINT message, UINT flags, CPoint point);
    void Relay(ObjectRun* run, Lumo::CUICanvas* canvas, UINT message, UINT flags, CPoint at);
    void SetHover(ObjectRun* run, Lumo::CUICanvas* canvas);
    void LetGo();
    void PaintDirty(StudioCanvas& page, RunningPage& running, std::vector<Gdiplus::RectF>& dirty);
    void PaintPart(RunningPage& running, const CRect& part);

    StudioDocument& m_document;
    Device& m_device;
    RunHost& m_host;
    std::map<StudioCanvas*, RunningPage> m_pages;
    Lumo::DrawShape m_toolBefore;
    ObjectRun* m_grabbed = nullptr;
    ObjectRun* m_hover = nullptr;
    bool m_releasing = false;
    double m_time = 0.0;
    std::vector<Gdiplus::RectF> m_dirty;
    long long m_paintedPixels = 0;
};

}  // namespace Studio
