// What shapes are filled with.
#pragma once

#include "gdiplus/MatrixObject.h"
#include "raster/Paint.h"

#include <memory>
#include <vector>

namespace flat {

/// What of a Graphics a paint depends on.
struct PaintPlace {
    raster::Matrix matrix;  // from the brush's units to pixels of the surface
    INT originX = 0, originY = 0;
};

class Brush : public Object {
public:
    static constexpr Kind kFirst = Kind::SolidBrush, kLast = Kind::LinearGradientBrush;
    virtual Kind Which() const = 0;
    virtual std::unique_ptr<Brush> Clone() const = 0;
    /// The brush keeps what the paint uses.
    virtual std::unique_ptr<raster::Paint> Paint(const PaintPlace& place) const = 0;
};

struct SolidBrush final : Brush {
    static constexpr Kind kFirst = Kind::SolidBrush, kLast = Kind::SolidBrush;
    explicit SolidBrush(ARGB value) : color(value) {}
    Kind Which() const override { return kFirst; }
    std::unique_ptr<Brush> Clone() const override { return std::make_unique<SolidBrush>(*this); }
    std::unique_ptr<raster::Paint> Paint(const PaintPlace&) const override {
        return std::make_unique<raster::SolidPaint>(color);
    }
    ARGB color;
};

struct HatchBrush final : Brush {
    static constexpr Kind kFirst = Kind::HatchBrush, kLast = Kind::HatchBrush;
    HatchBrush(GpHatchStyle which, ARGB front, ARGB behind) : style(which), fore(front), back(behind) {}
    Kind Which() const override { return kFirst; }
    std::unique_ptr<Brush> Clone() const override { return std::make_unique<HatchBrush>(*this); }
    std::unique_ptr<raster::Paint> Paint(const PaintPlace& place) const override {
        return std::make_unique<raster::Hatch>(style, fore, back, place.originX, place.originY);
    }
    GpHatchStyle style;
    ARGB fore, back;
};

struct LinearGradientBrush final : Brush {
    static constexpr Kind kFirst = Kind::LinearGradientBrush, kLast = Kind::LinearGradientBrush;
    Kind Which() const override { return kFirst; }
    std::unique_ptr<Brush> Clone() const override { return std::make_unique<LinearGradientBrush>(*this); }
    std::unique_ptr<raster::Paint> Paint(const PaintPlace& place) const override;
    raster::Point from, to;  // before `matrix`
    raster::Rect rect;
    ARGB colors[2] = {};
    bool gamma = false;
    GpWrapMode wrap = WrapModeTile;
    raster::Matrix matrix;
    std::vector<raster::BlendStop> blend;
    std::vector<raster::GradientStop> preset;
};

/// Pixels of its own, premultiplied.
struct TextureBrush final : Brush {
    static constexpr Kind kFirst = Kind::TextureBrush, kLast = Kind::TextureBrush;
    Kind Which() const override { return kFirst; }
    std::unique_ptr<Brush> Clone() const override { return std::make_unique<TextureBrush>(*this); }
    std::unique_ptr<raster::Paint> Paint(const PaintPlace& place) const override;
    std::shared_ptr<const std::vector<uint32_t>> pixels;
    int width = 0, height = 0;
    GpWrapMode wrap = WrapModeTile;
    raster::Matrix matrix;
};

inline raster::Wrap ToWrap(GpWrapMode mode) {
    return static_cast<raster::Wrap>(mode);
}

}  // namespace flat
