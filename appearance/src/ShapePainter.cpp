#include "appearance/src/ShapePainter.h"

#include <cmath>

#include "appearance/PictureFile.h"
#include "core/EllipseOutline.h"
#include "core/Geometry.h"
#include "core/internal/Caption.h"
#include "core/internal/GraphicsStateScope.h"
#include "core/PaintScope.h"

namespace Lumo {

namespace {

enum FillMode { kSolid = 1, kSolidToo = 2, kGradient = 3, kTiled = 4, kOwnSize = 5, kFaded = 6 };

constexpr float kGradientAbove = 100.0f;
constexpr float kGradientBelow = 2.0f;
constexpr float kFadedAlpha = 0.8f;

class ShapePainter {
public:
    ShapePainter(Gdiplus::Graphics& graphics, const CUICoordinate& coordinate, ShapeKind kind,
                 PaintStage stage)
        : m_graphics(graphics),
          m_part(PaintScope::PartOf(graphics)),
          m_coordinate(coordinate),
          m_fill(coordinate.Format<CUIShapeFormatFill>()),
          m_lineColor(coordinate.Format<CUIShapeFormatLineColor>()),
          m_position(coordinate.GetPosition()),
          m_penWidth(coordinate.GetLineWidth() * (stage == PaintStage::Dragged ? 2.0f : 1.0f)),
          m_kind(kind),
          m_stage(stage) {}

    void PaintCaption() {
        if (HasCaption(m_coordinate))
            DrawCaption(m_graphics, m_coordinate, m_part);
    }

    void PaintOutline() {
        DWORD color = 0;
        if (!m_lineColor.GetPenColor(&color) || !Shows(std::fabs(m_penWidth) * 0.5f))
            return;
        GraphicsStateScope state(m_graphics);
        Gdiplus::Pen pen{Gdiplus::Color(color), m_penWidth};
        if (m_kind == ShapeKind::Ellipse)
            DrawEllipseOutline(m_graphics, pen, m_position);
        else
            m_graphics.DrawRectangle(&pen, m_position);
    }

    void PaintFill() {
        // An image at its own size stands where its file says.
        if (m_fill.m_bEnabled == 0 || (m_fill.m_nShapeMode != kOwnSize && !Shows(0.0f)))
            return;
        GraphicsStateScope state(m_graphics);
        switch (m_fill.m_nShapeMode) {
            case kSolid:
                if (m_stage == PaintStage::Normal)
                    FillSolid();
                break;
            case kSolidToo:
                FillSolid();
                break;
            case kGradient:
                FillGradient();
                break;
            case kTiled:
            case kOwnSize:
                FillTexture();
                break;
            case kFaded:
                DrawFadedPicture();
                break;
        }
    }

private:
    // Whether anything within `reach` of the position is to be painted, and a unit more for rounding.
    bool Shows(float reach) const {
        const Gdiplus::RectF area = Inflated(Normalised(m_position), reach + 1.0f);
        return IsDrawable(area) && Touches(m_part, area);
    }

    void Fill(const Gdiplus::Brush& brush, const Gdiplus::RectF& area) {
        if (m_kind == ShapeKind::Ellipse)
            m_graphics.FillEllipse(&brush, area);
        else
            m_graphics.FillRectangle(&brush, area);
    }

    void FillSolid() { Fill(Gdiplus::SolidBrush{Gdiplus::Color(m_fill.GetBrushColor())}, m_position); }

    // Kept: top to bottom and from far above the shape, whatever type and direction say.
    void FillGradient() {
        const float middle = CentreOf(m_position).X;
        Gdiplus::LinearGradientBrush brush(
            Gdiplus::PointF(middle, m_position.Y - kGradientAbove),
            Gdiplus::PointF(middle, m_position.Y + m_position.Height + kGradientBelow),
            Gdiplus::Color(m_fill.m_dwColor), Gdiplus::Color(m_fill.m_dwGradientColor));
        brush.SetGammaCorrection(TRUE);
        Fill(brush, m_position);
    }

    void FillTexture() {
        if (IsOversizedPicture(m_fill.m_strImagePath))
            return;
        Gdiplus::Image image(m_fill.m_strImagePath);
        if (image.GetLastStatus() != Gdiplus::Ok)
            return;
        Gdiplus::TextureBrush brush(&image, Gdiplus::WrapModeTile);
        Gdiplus::RectF area = m_position;
        if (m_fill.m_nShapeMode == kOwnSize) {
            Gdiplus::Unit unit;
            image.GetBounds(&area, &unit);
        }
        Fill(brush, area);
    }

    // Kept: into the whole rectangle for the ellipse, too.
    void DrawFadedPicture() {
        if (IsOversizedPicture(m_fill.m_strImagePath))
            return;
        Gdiplus::Bitmap bitmap(m_fill.m_strImagePath);
        if (bitmap.GetLastStatus() != Gdiplus::Ok)
            return;
        Gdiplus::ColorMatrix matrix = {};
        for (int i = 0; i < 5; ++i)
            matrix.m[i][i] = 1.0f;
        matrix.m[3][3] = kFadedAlpha;
        Gdiplus::ImageAttributes attributes;
        attributes.SetColorMatrix(&matrix, Gdiplus::ColorMatrixFlagsDefault, Gdiplus::ColorAdjustTypeBitmap);
        m_graphics.DrawImage(&bitmap, m_position, 0.0f, 0.0f, static_cast<float>(bitmap.GetWidth()),
                             static_cast<float>(bitmap.GetHeight()), Gdiplus::UnitPixel, &attributes);
    }

    Gdiplus::Graphics& m_graphics;
    Gdiplus::RectF m_part;
    const CUICoordinate& m_coordinate;
    const CUIShapeFormatFill& m_fill;
    const CUIShapeFormatLineColor& m_lineColor;
    Gdiplus::RectF m_position;
    float m_penWidth;
    ShapeKind m_kind;
    PaintStage m_stage;
};

}  // namespace

void PaintShape(Gdiplus::Graphics& graphics, const CUICoordinate& coordinate, ShapeKind kind,
                PaintStage stage) {
    ShapePainter painter(graphics, coordinate, kind, stage);
    // Kept: the fill comes last and covers the inner half of the outline, and the caption drawn before both.
    if (stage == PaintStage::Normal)
        painter.PaintCaption();
    painter.PaintOutline();
    painter.PaintFill();
}

}  // namespace Lumo
