// Studio's mouse tools. Each stands ahead of the library's tool for the same shape in the registry.
#pragma once

#include "canvas/UITool.h"
#include "studio/editing/StudioCanvas.h"

namespace Studio {

/// Turns the messages of a canvas into gestures: a press starts one, everything else goes to the one that is
/// going on.
class PageTool : public Lumo::CUIToolBase {
public:
    /// Registers the tool in front of all others.
    explicit PageTool(Lumo::DrawShape kind);
    virtual ~PageTool() = default;

    void OnLButtonDown(Lumo::CUICanvas* canvas, UINT flags, const CPoint& point) override;
    void OnLButtonUp(Lumo::CUICanvas* canvas, UINT flags, const CPoint& point) override;
    void OnMouseMove(Lumo::CUICanvas* canvas, UINT flags, const CPoint& point) override;
    void OnLButtonDblClk(Lumo::CUICanvas* canvas, UINT flags, const CPoint& point) override;

    /// The cursor over a point of the page while no button is down.
    virtual HCURSOR CursorAt(StudioCanvas& page, CPoint at) const;

protected:
    /// The first press of a gesture.
    virtual void Press(StudioCanvas& page, CPoint at, UINT flags) = 0;
    /// The second press of a double click without a gesture: another press, unless a tool knows better.
    virtual void DoubleClick(StudioCanvas& page, CPoint at, UINT flags) { Press(page, at, flags); }
};

/// Selects, moves and resizes; a double click edits a text box or opens an embedded object.
class SelectTool : public PageTool {
public:
    SelectTool() : PageTool(Lumo::DS_SELECT) {}
    HCURSOR CursorAt(StudioCanvas& page, CPoint at) const override;

protected:
    void Press(StudioCanvas& page, CPoint at, UINT flags) override;
    void DoubleClick(StudioCanvas& page, CPoint at, UINT flags) override;
};

/// Drags out rectangles, ellipses, text boxes and audio controls.
class ShapeTool : public PageTool {
public:
    using PageTool::PageTool;

protected:
    void Press(StudioCanvas& page, CPoint at, UINT flags) override;
};

/// Draws lines and polylines point by point.
class FigureTool : public PageTool {
public:
    using PageTool::PageTool;

protected:
    void Press(StudioCanvas& page, CPoint at, UINT flags) override;
};

/// The kind of the picture tool, which is no shape's.
inline constexpr auto kPictureTool = static_cast<Lumo::DrawShape>(0xFF10);

/// Drags out the place of a picture, or clicks its middle; the host asks for the file then.
class PictureTool : public PageTool {
public:
    PictureTool() : PageTool(kPictureTool) {}

protected:
    void Press(StudioCanvas& page, CPoint at, UINT flags) override;
};

/// Whether a kind's tool draws points: line or polyline.
bool IsFigureTool(Lumo::DrawShape kind);

/// Makes a drawing tool current, and the page's mode the one that goes with it.
void ChooseTool(StudioCanvas& page, Lumo::DrawShape kind);

/// All of Studio's tools; they are registered as long as this object lives.
struct PageTools {
    SelectTool select;
    ShapeTool rectangle{Lumo::DS_RECTANGLE};
    ShapeTool ellipse{Lumo::DS_ELLIPSE};
    ShapeTool textBox{Lumo::DS_TEXTEDIT};
    ShapeTool peqChart{Lumo::DS_CHARTPEQ};
    ShapeTool bandButton{Lumo::DS_BUTTONBAND};
    ShapeTool deviceChart{Lumo::DS_CHARTDEVICE};
    ShapeTool deviceButton{Lumo::DS_BUTTONDEVICE};
    ShapeTool levelChart{Lumo::DS_CHARTLEVEL};
    ShapeTool levelButton{Lumo::DS_BUTTONLEVEL};
    ShapeTool crossover{Lumo::DS_STATECROSSOVER};
    ShapeTool geqState{Lumo::DS_STATEGEQ};
    ShapeTool peqState{Lumo::DS_STATEPEQ};
    FigureTool line{Lumo::DS_LINE};
    FigureTool polyline{Lumo::DS_POLYLINE};
    PictureTool picture;
};

}  // namespace Studio
