// The geometry and style of one object: eight shape-format records and the accessors to their fields.
#pragma once

#include "appearance/UIShapeFormat.h"

#include <utility>

namespace Lumo {

/// Held by value in every object, copied and archived as a whole. Setters store what they are given
/// without checks or notifications unless they say otherwise.
class TESSEL_API CUICoordinate {
public:
    /// Eight records with their defaults.
    CUICoordinate();
    /// A deep copy.
    CUICoordinate(const CUICoordinate&) = default;
    CUICoordinate& operator=(const CUICoordinate&) = default;

    virtual ~CUICoordinate();

    /// Writes or reads a tag string and the eight records in order. Raises the archive's exceptions; what was
    /// read until then stays.
    virtual void Serialize(CArchive& ar);

    /// The embedded record of kind `type`, null for a value that is no kind. Valid as long as this object.
    CUIShapeFormat* GetShapeFormat(ShapeFormatType type);
    const CUIShapeFormat* GetShapeFormat(ShapeFormatType type) const;

    /// The embedded record of a class without a copy: `Format<CUIShapeFormatFill>()`.
    template <class Record>
    const Record& Format() const {
        return static_cast<const Record&>(*GetShapeFormat(Record::Type));
    }
    /// The same, for writing.
    template <class Record>
    Record& Format() {
        return static_cast<Record&>(*GetShapeFormat(Record::Type));
    }

    /// Loads the defaults of the record of kind `type`; nothing for a value that is no kind.
    void LoadDefault(ShapeFormatType type);

    /// Loads the defaults of all records.
    void LoadDefaultAll();

    /// Kept: does nothing, whatever `type` is. A record is enabled or disabled by assigning one.
    void EnableShapeFormat(ShapeFormatType type, int enabled);

    /// A copy of the text record.
    CUIShapeFormatText GetShapeFormatText() const { return m_text; }
    /// A copy of the fill record.
    CUIShapeFormatFill GetShapeFormatFill() const { return m_fill; }
    /// A copy of the line colour record.
    CUIShapeFormatLineColor GetShapeFormatLineColor() const { return m_lineColor; }
    /// A copy of the line style record.
    CUIShapeFormatLineStyle GetShapeFormatLineStyle() const { return m_lineStyle; }
    /// A copy of the scale record.
    CUIShapeFormatScale GetShapeFormatScale() const { return m_scale; }
    /// A copy of the position record.
    CUIShapeFormatPosition GetShapeFormatPosition() const { return m_position; }
    /// A copy of the shadow record. Kept: the transposed letters belong to the exported name.
    CUIShapeFormatShadow GetShpaeFormatShadow() const { return m_shadow; }

    /// Replaces the text record as a whole, kind, name and enabled flag included. The setters of the other
    /// records do the same.
    void SetShapeFormatText(CUIShapeFormatText format) { m_text = std::move(format); }
    /// Replaces the fill record.
    void SetShapeFormatFill(CUIShapeFormatFill format) { m_fill = std::move(format); }
    /// Replaces the line colour record.
    void SetShapeFormatLineColor(CUIShapeFormatLineColor format) { m_lineColor = std::move(format); }
    /// Replaces the line style record.
    void SetShapeFormatLineStyle(CUIShapeFormatLineStyle format) { m_lineStyle = std::move(format); }
    /// Replaces the scale record.
    void SetShapeFormatScale(CUIShapeFormatScale format) { m_scale = std::move(format); }
    /// Replaces the position record.
    void SetShapeFormatPosition(CUIShapeFormatPosition format) { m_position = std::move(format); }
    /// Replaces the shadow record. Kept: the transposed letters belong to the exported name.
    void SetShpaeFormatShadow(CUIShapeFormatShadow format) { m_shadow = std::move(format); }

    /// Caption. An empty argument leaves the old text.
    CString GetText() const { return m_text.m_strText; }
    void SetText(const CString& text);

    /// Font family. An empty argument leaves the old name; an empty stored name becomes "Arial" when
    /// read.
    CString GetTextFontName();
    void SetTextFontName(const CString& name);

    /// Em size of the caption, in the text unit.
    float GetTextFontSize() const { return m_text.m_fFontSize; }
    void SetTextFontSize(float size) { m_text.m_fFontSize = size; }

    /// Colour of the caption, ARGB.
    DWORD GetTextColor() const { return m_text.m_dwTextColor; }
    void SetTextColor(DWORD color) { m_text.m_dwTextColor = color; }

    /// Background colour of the caption, ARGB; not painted.
    DWORD GetTextBackColor() const { return m_text.m_dwBackColor; }
    void SetTextBackColor(DWORD color) { m_text.m_dwBackColor = color; }

    /// `Gdiplus::StringAlignment` code, for both directions; not archived.
    int GetTextAlignment() const { return m_text.m_nAlignment; }
    void SetTextAlignment(int alignment) { m_text.m_nAlignment = alignment; }

    /// `Gdiplus::Unit` code of the font size; not restored from an archive.
    int GetTextUnit() const { return m_text.m_nUnit; }
    void SetTextUnit(int unit) { m_text.m_nUnit = unit; }

    /// `Gdiplus::FontStyle` bits.
    int GetTextFontStyle() const { return m_text.m_nFontStyle; }
    void SetTextFontStyle(int style) { m_text.m_nFontStyle = style; }

    /// `Gdiplus::TextRenderingHint` code.
    int GetTextRenderHint() const { return m_text.m_nRenderHint; }
    void SetTextRenderHint(int hint) { m_text.m_nRenderHint = hint; }

    /// How the interior is painted: 1 and 2 solid, 3 gradient, 4 tiled image, 5 image at its own
    /// size, 6 faded picture; others nothing.
    int GetFillShapeMode() const { return m_fill.m_nShapeMode; }
    void SetFillShapeMode(int mode) { m_fill.m_nShapeMode = mode; }

    /// Main colour of the fill, ARGB.
    DWORD GetFillColor() const { return m_fill.m_dwColor; }
    void SetFillColor(DWORD color) { m_fill.m_dwColor = color; }

    /// Opacity of a solid fill, 0 to 255.
    float GetFillAlpha() const { return m_fill.m_fAlpha; }
    void SetFillAlpha(float alpha) { m_fill.m_fAlpha = alpha; }

    /// Brightness, 0 to 255; kept for the host.
    float GetFillBlight() const { return m_fill.m_fBlight; }
    void SetFillBlight(float blight) { m_fill.m_fBlight = blight; }

    /// Gradient type; kept for the host.
    int GetFillGradientType() const { return m_fill.m_nGradientType; }
    void SetFillGradientType(int type) { m_fill.m_nGradientType = type; }

    /// Gradient direction; kept for the host.
    DWORD GetFillGradientDirection() const { return m_fill.m_dwGradientDirection; }
    void SetFillGradientDirection(DWORD direction) { m_fill.m_dwGradientDirection = direction; }

    /// Pattern foreground, ARGB; kept for the host.
    DWORD GetFillForeColor() const { return m_fill.m_dwForeColor; }
    void SetFillForeColor(DWORD color) { m_fill.m_dwForeColor = color; }

    /// Pattern background, ARGB; kept for the host.
    DWORD GetFillBackColor() const { return m_fill.m_dwBackColor; }
    void SetFillBackColor(DWORD color) { m_fill.m_dwBackColor = color; }

    /// 1 outlines in the opaque colour, 2 with the line alpha merged in, others not at all.
    int GetLineShapeMode() const { return m_lineColor.m_nShapeMode; }
    void SetLineShapeMode(int mode) { m_lineColor.m_nShapeMode = mode; }

    /// Colour of the outline, ARGB.
    DWORD GetLineColor() const { return m_lineColor.m_dwColor; }
    void SetLineColor(DWORD color) { m_lineColor.m_dwColor = color; }

    /// Opacity of the outline in mode 2, 0 to 255.
    float GetLineAlpha() const { return m_lineColor.m_fAlpha; }
    void SetLineAlpha(float alpha) { m_lineColor.m_fAlpha = alpha; }

    /// Brightness, 0 to 255; kept for the host.
    float GetLineBlight() const { return m_lineColor.m_fBlight; }
    void SetLineBlight(float blight) { m_lineColor.m_fBlight = blight; }

    /// Second colour of the line, ARGB; kept for the host.
    DWORD GetLineGradientColor() const { return m_lineColor.m_dwGradientColor; }
    void SetLineGradientColor(DWORD color) { m_lineColor.m_dwGradientColor = color; }

    /// Gradient type; kept for the host.
    int GetLineGradientType() const { return m_lineColor.m_nGradientType; }
    void SetLineGradientType(int type) { m_lineColor.m_nGradientType = type; }

    /// Gradient direction; kept for the host.
    DWORD GetLineGradientDirection() const { return m_lineColor.m_dwGradientDirection; }
    void SetLineGradientDirection(DWORD direction) { m_lineColor.m_dwGradientDirection = direction; }

    /// Pen width in page units.
    float GetLineWidth() const { return m_lineStyle.m_fWidth; }
    void SetLineWidth(float width) { m_lineStyle.m_fWidth = width; }

    /// `Gdiplus::PenAlignment` code; not archived.
    int GetLineAlignment() const { return m_lineStyle.m_nAlignment; }
    void SetLineAlignment(int alignment) { m_lineStyle.m_nAlignment = alignment; }

    /// `Gdiplus::DashStyle` code.
    int GetLineDashStyle() const { return m_lineStyle.m_nDashStyle; }
    void SetLineDashStyle(int style) { m_lineStyle.m_nDashStyle = style; }

    /// `Gdiplus::DashCap` code.
    int GetLineDashCap() const { return m_lineStyle.m_nDashCap; }
    void SetLineDashCap(int cap) { m_lineStyle.m_nDashCap = cap; }

    /// `Gdiplus::LineJoin` code.
    int GetLineJoin() const { return m_lineStyle.m_nJoin; }
    void SetLineJoin(int join) { m_lineStyle.m_nJoin = join; }

    /// `Gdiplus::LineCap` code of the line's start.
    int GetLineStartCap() const { return m_lineStyle.m_nStartCap; }
    void SetLineStartCap(int cap) { m_lineStyle.m_nStartCap = cap; }

    /// `Gdiplus::LineCap` code of the line's end.
    int GetLineEndCap() const { return m_lineStyle.m_nEndCap; }
    void SetLineEndCap(int cap) { m_lineStyle.m_nEndCap = cap; }

    /// Cap variant; kept for the host.
    int GetLineCapType() const { return m_lineStyle.m_nCapType; }
    void SetLineCapType(int type) { m_lineStyle.m_nCapType = type; }

    /// The four values of a custom dash pattern, in order: `first`, `second`, `third`, `fourth`.
    void GetLineDashValue(float* first, float* second, float* third, float* fourth) const;
    void SetLineDashValue(float first, float second, float third, float fourth);

    /// Start arrow, kept for the host: first size `width`, second size `height`, `filled` 0 or 1.
    void GetLineStartArrow(float* width, float* height, int* filled) const;
    void SetLineStartArrow(float width, float height, int filled);

    /// End arrow, kept for the host: first size `width`, second size `height`, `filled` 0 or 1.
    void GetLineEndArrow(float* width, float* height, int* filled) const;
    void SetLineEndArrow(float width, float height, int filled);

    /// Width and height in page units.
    Gdiplus::SizeF GetSize() const;
    void SetSize(const Gdiplus::SizeF& size);

    /// Horizontal and vertical scale factor.
    Gdiplus::SizeF GetScale() const;
    void SetScale(const Gdiplus::SizeF& scale);

    /// Rotation in degrees, clockwise.
    float GetRotateAngle() const { return m_scale.m_fRotateAngle; }
    void SetRotateAngle(float angle) { m_scale.m_fRotateAngle = angle; }

    /// 1 to keep the aspect ratio, else 0.
    int GetRatio() const { return m_scale.m_nRatio; }
    void SetRatio(int ratio) { m_scale.m_nRatio = ratio; }

    /// Left top corner without the offset, page units.
    Gdiplus::PointF GetPositionPoint() const;
    void SetPositionPoint(const Gdiplus::PointF& point);

    /// Displacement on top of the position point; stored truncated to integers.
    Gdiplus::PointF GetPositionOffset() const;
    void SetPositionOffset(const Gdiplus::PointF& offset);

    /// Position rectangle. Reading adds the offset to the position point; writing stores the point
    /// and the size and leaves the offset, so that it rides on top.
    Gdiplus::RectF GetPosition() const;
    void SetPosition(const Gdiplus::RectF& rect);

private:
    CUIShapeFormatText m_text;
    CUIShapeFormatFill m_fill;
    CUIShapeFormatLineColor m_lineColor;
    CUIShapeFormatLineStyle m_lineStyle;
    CUIShapeFormatShadow m_shadow;
    CUIShapeFormatScale m_scale;
    CUIShapeFormatPosition m_position;
    CUIShapeFormatTextBox m_textBox;
};

}  // namespace Lumo
