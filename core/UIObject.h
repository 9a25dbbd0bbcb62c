// The base of every drawable object.
#pragma once

#include "appearance/UICoordinate.h"
#include "core/DrawShape.h"
#include "core/Hiding.h"

namespace Lumo {

class CUICanvas;
class CUIDocument;

/// An object on a page: shape kind, name, geometry and style, handles, hit tests, moving, drawing and
/// archiving. The base draws its caption only. Objects live on the heap and end through `Release`; document
/// and canvas are plain back pointers.
///
/// Handles: corners 0 to 3 clockwise from the top left, edge middles 4 to 7 clockwise from the top, the last
/// handle is the body. Geometry is in page units, angles are degrees clockwise on the screen.
class TESSEL_API CUIObject {
public:
    /// Empty name, kind unknown, default style: `Init` must follow.
    CUIObject();
    /// An object of kind `shape`, named after it, at `rect`.
    CUIObject(const Gdiplus::RectF& rect, DrawShape shape);
    /// Copies every field, back pointers included.
    CUIObject(const CUIObject&) = default;
    CUIObject& operator=(const CUIObject&) = default;

    // Virtual slots 0 to 31. The order is part of the interface: add new virtual members in derived classes.

    /// Sets kind, name (the kind's display name), position and rectangle mode 1.
    virtual void Init(DrawShape shape, Gdiplus::RectF& rect);

    /// Replaces `path` by the outline of a rounded rectangle; `radius` is the diameter of its corners.
    virtual void GetRoundRectPath(Gdiplus::GraphicsPath* path, Gdiplus::RectF rect, int radius);

    /// For derived classes: shows a dialog for geometry and style. Does nothing here.
    virtual void ShowCoordinateDialog(CUICanvas* canvas);

    /// For derived classes: shows the preference dialog. Shows a message box here.
    virtual void ShowPreferenceDialog(CUICanvas* canvas);

    /// For derived classes: 1 when `handle` is a special one, with its rectangle. Returns 0 here.
    virtual int ControlHandle(const int& handle, Gdiplus::RectF& rect);

#ifdef _MSC_VER  // overloads get their slots last first
    virtual int HitTest(Gdiplus::PointF& point, int selected);
    virtual int HitTest(Gdiplus::RectF& rect);
#else
    /// 1 when both the left top and the right bottom corner of `rect` lie in the position, else 0.
    virtual int HitTest(Gdiplus::RectF& rect);

    /// The handle at a point, -1 when there is none. With `selected` 0 only the body is tested, with a square
    /// of 2 by 2 about the point; otherwise all handles from 0 up.
    virtual int HitTest(Gdiplus::PointF& point, int selected);
#endif

    /// For derived classes: a window message in run mode. Does nothing here.
    virtual void RelayEvent(CUICanvas* canvas, unsigned int message, unsigned int wParam, long lParam);

    /// Loads the defaults of the fill and line colour records.
    virtual void ResetColor();

    /// Writes or reads kind, name, archived flag and coordinate record. Raises the archive's exceptions.
    virtual void Serialize(CArchive& ar);

    /// Paints the caption, centred; a caption wider than the object is not painted.
    virtual void Draw(Gdiplus::Graphics* graphics);

    /// For derived classes. Does nothing here.
    virtual void DrawType(Gdiplus::Graphics* graphics);

    TESSEL_HIDING_BEGIN
    /// For derived classes: paints the object displaced by `offset` during a drag. Does nothing here.
    virtual void DrawDragImage(Gdiplus::Graphics* graphics, Gdiplus::PointF offset);
    TESSEL_HIDING_END

    /// Paints the selection handles: circles on the corners, squares on the edges.
    virtual void DrawTracker(Gdiplus::Graphics* graphics);

#ifdef _MSC_VER  // as above
    virtual void Rotate(float angle);
    virtual void Rotate(float angle, Gdiplus::RectF& rect);
    virtual void Rotate(float angle, Gdiplus::RectF& rect, Gdiplus::PointF& centre);
#else
    /// Replaces `rect` by the bounds of it turned about `centre`.
    virtual void Rotate(float angle, Gdiplus::RectF& rect, Gdiplus::PointF& centre);

    /// Replaces `rect` by the bounds of it turned about its own centre.
    virtual void Rotate(float angle, Gdiplus::RectF& rect);

    /// Turns the position about its centre and stores the bounds as the new position.
    virtual void Rotate(float angle);
#endif

    /// Bounds of `rect` turned about (width / 2, height / 2) measured from the origin.
    virtual Gdiplus::RectF RotateRect(float angle, const Gdiplus::RectF& rect);

    /// Where a point of `rect` goes when it turns; (0, 0) for a point outside it.
    virtual Gdiplus::PointF RotatePoint(float angle, const Gdiplus::PointF& point,
                                        const Gdiplus::RectF& rect);

    /// Flips about the right edge (`horizontal` not 0) or the bottom edge.
    virtual void Invert(int horizontal);

    /// Number of handles; the last one is the body.
    virtual int GetHandleCount();

    /// Point of a handle, (0, 0) for a number that is no handle.
    virtual Gdiplus::PointF GetHandlePoint(int handle);

    /// Square of 8 by 8 about a handle's point; for the last handle the position shrunk by 1.
    virtual Gdiplus::RectF GetHandleRect(int handle);

    /// System cursor of a handle (shared, not to be destroyed).
    virtual HCURSOR GetHandleCursor(int handle);

    /// The handle that stands where `handle` would stand if width and height were not negative.
    virtual int NormalizeHandle(const int& handle);

    /// Moves a handle, or the whole object with handle 8, by `delta`.
    virtual void MoveTo(const int& handle, const Gdiplus::PointF& delta);

    /// For derived classes: a move by `delta` (page units) of an object that has the focus. Does nothing
    /// here.
    virtual void FocusMoveTo(const int& handle, const Gdiplus::PointF& delta);

    /// Moves the edges that belong to a handle by `delta` truncated to integers; the position is rounded to
    /// whole units even when nothing moves.
    virtual void MoveHandleTo(const int& handle, const Gdiplus::PointF& delta);

    /// Stores the position in `rect`.
    virtual void GetItemRect(Gdiplus::RectF* rect);

    /// Type code of a derived class, -1 here.
    virtual int GetType();

    /// Destroys the object.
    virtual void Release();

    /// Takes the object off every page, out of every selection and group, and closes an editor open on it,
    /// whoever destroys it.
    virtual ~CUIObject();

    // After the conditions above every member below would get three lines.
    // clang-format off
    /// The document that holds the object, null when none does; not owned.
    CUIDocument* GetDocument() const { return m_pDocument; }
    void SetDocument(CUIDocument* document) { m_pDocument = document; }

    /// The canvas that shows the object, null when none does; not owned. An object that a host puts into a
    /// page's list by hand needs it set: there the object is looked for when it is destroyed.
    CUICanvas* GetCanvas() const { return m_pCanvas; }
    void SetCanvas(CUICanvas* canvas);

    /// The user-visible name; unique on its page once the document has named the object.
    CString& GetShapeName() { return m_strShapeName; }
    const CString& GetShapeName() const { return m_strShapeName; }
    void SetShapeName(const CString& name) { m_strShapeName = name; }

    /// Shape kind.
    DrawShape GetDrawShape() const { return m_nDrawShape; }
    void SetDrawShape(DrawShape shape) { m_nDrawShape = shape; }

    /// 1 when the object is edited through rectangle handles, 0 when through points of its own.
    int GetRectMode() const { return m_bRectMode; }
    void SetRectMode(int rectMode) { m_bRectMode = rectMode; }

    /// 1 while an in-place editor edits the caption.
    int GetEditing() const { return m_bEditing; }
    void SetEditing(int editing) { m_bEditing = editing; }

    /// A word of the archive, 1 in a new object; kept for the host.
    int GetArchived() const { return m_bArchived; }
    void SetArchived(int archived) { m_bArchived = archived; }

    /// Not 0 when the object was taken off its page without being destroyed: it is not drawn and not found.
    int GetRemoved() const { return m_bRemoved; }
    void SetRemoved(int removed) { m_bRemoved = removed; }

    /// A word for the host; copied, not archived.
    int GetStateC() const { return m_nStateC; }
    void SetStateC(int state) { m_nStateC = state; }

    /// Geometry and style.
    CUICoordinate& GetCoordinate() { return m_coordinate; }
    const CUICoordinate& GetCoordinate() const { return m_coordinate; }

    /// 1 when width or height of the position is 0, next to 0 or negative; else 0.
    int IsEmptyArea() const;

    /// Loads the defaults of the record of kind `type`.
    void LoadDefault(ShapeFormatType type) { m_coordinate.LoadDefault(type); }
    /// Loads the defaults of all records.
    void LoadDefaultAll() { m_coordinate.LoadDefaultAll(); }

    /// Caption. An empty argument leaves the old text.
    CString GetText() const { return m_coordinate.GetText(); }
    void SetText(const CString& text) { m_coordinate.SetText(text); }

    /// Font family. An empty argument leaves the old name; an empty stored name becomes "Arial" when
    /// read.
    CString GetTextFontName() { return m_coordinate.GetTextFontName(); }
    void SetTextFontName(const CString& name) { m_coordinate.SetTextFontName(name); }

    /// Em size of the caption, in the text unit.
    float GetTextFontSize() const { return m_coordinate.GetTextFontSize(); }
    void SetTextFontSize(float size) { m_coordinate.SetTextFontSize(size); }

    /// Colour of the caption, ARGB.
    DWORD GetTextColor() const { return m_coordinate.GetTextColor(); }
    void SetTextColor(DWORD color) { m_coordinate.SetTextColor(color); }

    /// Background colour of the caption, ARGB; not painted.
    DWORD GetTextBackColor() const { return m_coordinate.GetTextBackColor(); }
    void SetTextBackColor(DWORD color) { m_coordinate.SetTextBackColor(color); }

    /// `Gdiplus::StringAlignment` code, for both directions; not archived.
    int GetTextAlignment() const { return m_coordinate.GetTextAlignment(); }
    void SetTextAlignment(int alignment) { m_coordinate.SetTextAlignment(alignment); }

    /// `Gdiplus::Unit` code of the font size; not restored from an archive.
    int GetTextUnit() const { return m_coordinate.GetTextUnit(); }
    void SetTextUnit(int unit) { m_coordinate.SetTextUnit(unit); }

    /// `Gdiplus::FontStyle` bits.
    int GetTextFontStyle() const { return m_coordinate.GetTextFontStyle(); }
    void SetTextFontStyle(int style) { m_coordinate.SetTextFontStyle(style); }

    /// `Gdiplus::TextRenderingHint` code.
    int GetTextRenderHint() const { return m_coordinate.GetTextRenderHint(); }
    void SetTextRenderHint(int hint) { m_coordinate.SetTextRenderHint(hint); }

    /// How the interior is painted: 1 and 2 solid, 3 gradient, 4 tiled image, 5 image at its own
    /// size, 6 faded picture; others nothing.
    int GetFillShapeMode() const { return m_coordinate.GetFillShapeMode(); }
    void SetFillShapeMode(int mode) { m_coordinate.SetFillShapeMode(mode); }

    /// Main colour of the fill, ARGB.
    DWORD GetFillColor() const { return m_coordinate.GetFillColor(); }
    void SetFillColor(DWORD color) { m_coordinate.SetFillColor(color); }

    /// Opacity of a solid fill, 0 to 255.
    float GetFillAlpha() const { return m_coordinate.GetFillAlpha(); }
    void SetFillAlpha(float alpha) { m_coordinate.SetFillAlpha(alpha); }

    /// Brightness, 0 to 255; kept for the host.
    float GetFillBlight() const { return m_coordinate.GetFillBlight(); }
    void SetFillBlight(float blight) { m_coordinate.SetFillBlight(blight); }

    /// Gradient type; kept for the host.
    int GetFillGradientType() const { return m_coordinate.GetFillGradientType(); }
    void SetFillGradientType(int type) { m_coordinate.SetFillGradientType(type); }

    /// Gradient direction; kept for the host.
    DWORD GetFillGradientDirection() const { return m_coordinate.GetFillGradientDirection(); }
    void SetFillGradientDirection(DWORD direction) { m_coordinate.SetFillGradientDirection(direction); }

    /// Pattern foreground, ARGB; kept for the host.
    DWORD GetFillForeColor() const { return m_coordinate.GetFillForeColor(); }
    void SetFillForeColor(DWORD color) { m_coordinate.SetFillForeColor(color); }

    /// Pattern background, ARGB; kept for the host.
    DWORD GetFillBackColor() const { return m_coordinate.GetFillBackColor(); }
    void SetFillBackColor(DWORD color) { m_coordinate.SetFillBackColor(color); }

    /// 1 outlines in the opaque colour, 2 with the line alpha merged in, others not at all.
    int GetLineShapeMode() const { return m_coordinate.GetLineShapeMode(); }
    void SetLineShapeMode(int mode) { m_coordinate.SetLineShapeMode(mode); }

    /// Colour of the outline, ARGB.
    DWORD GetLineColor() const { return m_coordinate.GetLineColor(); }
    void SetLineColor(DWORD color) { m_coordinate.SetLineColor(color); }

    /// Opacity of the outline in mode 2, 0 to 255.
    float GetLineAlpha() const { return m_coordinate.GetLineAlpha(); }
    void SetLineAlpha(float alpha) { m_coordinate.SetLineAlpha(alpha); }

    /// Brightness, 0 to 255; kept for the host.
    float GetLineBlight() const { return m_coordinate.GetLineBlight(); }
    void SetLineBlight(float blight) { m_coordinate.SetLineBlight(blight); }

    /// Second colour of the line, ARGB; kept for the host.
    DWORD GetLineGradientColor() const { return m_coordinate.GetLineGradientColor(); }
    void SetLineGradientColor(DWORD color) { m_coordinate.SetLineGradientColor(color); }

    /// Gradient type; kept for the host.
    int GetLineGradientType() const { return m_coordinate.GetLineGradientType(); }
    void SetLineGradientType(int type) { m_coordinate.SetLineGradientType(type); }

    /// Gradient direction; kept for the host.
    DWORD GetLineGradientDirection() const { return m_coordinate.GetLineGradientDirection(); }
    void SetLineGradientDirection(DWORD direction) { m_coordinate.SetLineGradientDirection(direction); }

    /// Pen width in page units.
    float GetLineWidth() const { return m_coordinate.GetLineWidth(); }
    void SetLineWidth(float width) { m_coordinate.SetLineWidth(width); }

    /// `Gdiplus::PenAlignment` code; not archived.
    int GetLineAlignment() const { return m_coordinate.GetLineAlignment(); }
    void SetLineAlignment(int alignment) { m_coordinate.SetLineAlignment(alignment); }

    /// `Gdiplus::DashStyle` code.
    int GetLineDashStyle() const { return m_coordinate.GetLineDashStyle(); }
    void SetLineDashStyle(int style) { m_coordinate.SetLineDashStyle(style); }

    /// `Gdiplus::DashCap` code.
    int GetLineDashCap() const { return m_coordinate.GetLineDashCap(); }
    void SetLineDashCap(int cap) { m_coordinate.SetLineDashCap(cap); }

    /// `Gdiplus::LineJoin` code.
    int GetLineJoin() const { return m_coordinate.GetLineJoin(); }
    void SetLineJoin(int join) { m_coordinate.SetLineJoin(join); }

    /// `Gdiplus::LineCap` code of the line's start.
    int GetLineStartCap() const { return m_coordinate.GetLineStartCap(); }
    void SetLineStartCap(int cap) { m_coordinate.SetLineStartCap(cap); }

    /// `Gdiplus::LineCap` code of the line's end.
    int GetLineEndCap() const { return m_coordinate.GetLineEndCap(); }
    void SetLineEndCap(int cap) { m_coordinate.SetLineEndCap(cap); }

    /// Cap variant; kept for the host.
    int GetLineCapType() const { return m_coordinate.GetLineCapType(); }
    void SetLineCapType(int type) { m_coordinate.SetLineCapType(type); }

    /// The four values of a custom dash pattern, in order: `first`, `second`, `third`, `fourth`.
    void GetLineDashValue(float* first, float* second, float* third, float* fourth) const {
        m_coordinate.GetLineDashValue(first, second, third, fourth);
    }
    void SetLineDashValue(float first, float second, float third, float fourth) {
        m_coordinate.SetLineDashValue(first, second, third, fourth);
    }

    /// Start arrow, kept for the host: first size `width`, second size `height`, `filled` 0 or 1.
    void GetLineStartArrow(float* width, float* height, int* filled) const {
        m_coordinate.GetLineStartArrow(width, height, filled);
    }
    void SetLineStartArrow(float width, float height, int filled) {
        m_coordinate.SetLineStartArrow(width, height, filled);
    }

    /// End arrow, kept for the host: first size `width`, second size `height`, `filled` 0 or 1.
    void GetLineEndArrow(float* width, float* height, int* filled) const {
        m_coordinate.GetLineEndArrow(width, height, filled);
    }
    void SetLineEndArrow(float width, float height, int filled) {
        m_coordinate.SetLineEndArrow(width, height, filled);
    }

    /// Width and height in page units.
    Gdiplus::SizeF GetSize() const { return m_coordinate.GetSize(); }
    void SetSize(const Gdiplus::SizeF& size) { m_coordinate.SetSize(size); }

    /// Horizontal and vertical scale factor.
    Gdiplus::SizeF GetScale() const { return m_coordinate.GetScale(); }
    void SetScale(const Gdiplus::SizeF& scale) { m_coordinate.SetScale(scale); }

    /// Rotation in degrees, clockwise.
    float GetRotateAngle() const { return m_coordinate.GetRotateAngle(); }
    void SetRotateAngle(float angle) { m_coordinate.SetRotateAngle(angle); }

    /// 1 to keep the aspect ratio, else 0.
    int GetRatio() const { return m_coordinate.GetRatio(); }
    void SetRatio(int ratio) { m_coordinate.SetRatio(ratio); }

    /// Left top corner without the offset, page units.
    Gdiplus::PointF GetPositionPoint() const { return m_coordinate.GetPositionPoint(); }
    void SetPositionPoint(const Gdiplus::PointF& point) { m_coordinate.SetPositionPoint(point); }

    /// Displacement on top of the position point; stored truncated to integers.
    Gdiplus::PointF GetPositionOffset() const { return m_coordinate.GetPositionOffset(); }
    void SetPositionOffset(const Gdiplus::PointF& offset) { m_coordinate.SetPositionOffset(offset); }

    /// Position rectangle. Reading adds the offset to the position point; writing stores the point
    /// and the size and leaves the offset, so that it rides on top.
    Gdiplus::RectF GetPosition() const { return m_coordinate.GetPosition(); }
    void SetPosition(const Gdiplus::RectF& rect) { m_coordinate.SetPosition(rect); }

    // clang-format on

protected:
    CUIDocument* m_pDocument = nullptr;   ///< see `GetDocument`
    CUICanvas* m_pCanvas = nullptr;       ///< see `GetCanvas`
    CString m_strShapeName;               ///< see `GetShapeName`
    DrawShape m_nDrawShape = DS_UNKNOWN;  ///< shape kind
    int m_bRectMode = 1;                  ///< see `GetRectMode`
    int m_bEditing = 0;                   ///< see `GetEditing`
    int m_bArchived = 1;                  ///< see `GetArchived`
    int m_bRemoved = 0;                   ///< see `GetRemoved`
    int m_nStateC = 0;                    ///< see `GetStateC`
    CUICoordinate m_coordinate;           ///< geometry and style
};

}  // namespace Lumo
