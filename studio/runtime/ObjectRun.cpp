#include "studio/runtime/ObjectRun.h"

#include "canvas/UICanvas.h"
#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "behaviour/UIObjectTextEdit.h"
#include "studio/controls/Control.h"
#include "studio/controls/GraphicsStateScope.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/ObjectFactory.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;
using Lumo::CUIObject;

namespace {

constexpr DWORD kPressedVeil = 0x30FFFFFF;
constexpr DWORD kSliderFill = 0x704DA3FF;
constexpr DWORD kSliderThumb = 0xFFF2F5FA;
constexpr float kThumb = 4.0f;

enum Direction { kUp, kRight, kDown, kLeft };

// The part of a rectangle that lies between two shares of the way in a direction.
RectF Slice(const RectF& bounds, int direction, float from, float to) {
    switch (direction) {
        case kRight:
            return {bounds.X + bounds.Width * from, bounds.Y, bounds.Width * (to - from), bounds.Height};
        case kDown:
            return {bounds.X, bounds.Y + bounds.Height * from, bounds.Width, bounds.Height * (to - from)};
        case kLeft:
            return {bounds.X + bounds.Width * (1 - to), bounds.Y, bounds.Width * (to - from), bounds.Height};
        default:
            return {bounds.X, bounds.Y + bounds.Height * (1 - to), bounds.Width, bounds.Height * (to - from)};
    }
}

// The line across a rectangle at a share of the way.
RectF Across(const RectF& bounds, int direction, float at, float thickness) {
    const bool vertical = direction != kRight && direction != kLeft;
    const float half =
        std::min(0.5f, thickness / std::max(1.0f, vertical ? bounds.Height : bounds.Width) / 2);
    const float middle = std::clamp(at, half, 1.0f - half);
    return Slice(bounds, direction, middle - half, middle + half);
}

// Opaque areas go straight to the device context where there is one: a tenth of the cost.
bool FillDirectly(Gdiplus::Graphics& g, DWORD color, const RectF& area) {
    const HDC target = DirectPaint::Target();
    if (!target || color >> 24 != 0xFF)
        return false;
    PointF corners[] = {{area.X, area.Y}, {area.X + area.Width, area.Y + area.Height}};
    g.TransformPoints(Gdiplus::CoordinateSpaceDevice, Gdiplus::CoordinateSpaceWorld, corners, 2);
    const RECT pixels = {Lumo::RoundToInt(corners[0].X), Lumo::RoundToInt(corners[0].Y),
                         Lumo::RoundToInt(corners[1].X), Lumo::RoundToInt(corners[1].Y)};
    ::SetBkColor(target, RGB(color >> 16 & 0xFF, color >> 8 & 0xFF, color & 0xFF));
    ::ExtTextOut(target, 0, 0, ETO_OPAQUE, &pixels, nullptr, 0, nullptr);
    return true;
}

void FillArea(Gdiplus::Graphics& g, DWORD color, const RectF& area) {
    if (FillDirectly(g, color, area))
        return;
    const Gdiplus::SolidBrush brush{Gdiplus::Color(color)};
    g.FillRectangle(&brush, area);
}

// How far beyond its bounds an object paints while it runs: there are no selection handles then.
float RunMargin(CUIObject& object) {
    switch (object.GetDrawShape()) {
        case Lumo::DS_RECTANGLE:
        case Lumo::DS_ELLIPSE:
        case Lumo::DS_TEXTEDIT:
            return object.GetLineWidth() / 2 + 1.0f;
        default:
            return IsControl(object.GetDrawShape()) ? 0.0f : PaintMargin(object);
    }
}

bool IsSame(const RectF& a, const RectF& b) {
    return a.X == b.X && a.Y == b.Y && a.Width == b.Width && a.Height == b.Height;
}

}  // namespace

bool ObjectRun::Concerns(const CUIObject& object) {
    const ObjectExtras* extras = FindExtras(object);
    return (extras && extras->HasBehaviours()) || dynamic_cast<const Control*>(&object);
}

ObjectRun::ObjectRun(CUIObject& object, Device& device, RunHost& host, std::vector<CUIObject*> groups)
    : m_object(object),
      m_holder(dynamic_cast<ExtrasHolder&>(object)),
      m_extras(m_holder.extras ? *m_holder.extras : ObjectExtras()),
      m_device(device),
      m_host(host),
      m_control(dynamic_cast<Control*>(&object)),
      m_groups(std::move(groups)),
      m_values(m_extras, device),
      m_coordinate(object.GetCoordinate()),
      m_geometry(CaptureGeometry(object)),
      m_rest(Lumo::Normalised(object.GetPosition())),
      m_placed(m_rest) {
    for (int value : m_values.of) {
        if (value >= 0)
            m_watched.push_back(value);
    }
    m_seen.assign(m_watched.size(), 0);
    if (m_extras.IsOn(Behaviour::kTrend))
        m_trend = std::make_unique<TrendGraph>(m_extras, device);
    if (m_extras.IsOn(Behaviour::kFill) && m_extras.prefs.m_fill.m_nMode == 1)
        m_image = std::make_unique<Gdiplus::Image>(m_extras.prefs.m_fill.m_strImagePath);
    if (m_control)
        m_control->Connect(&device);
    m_holder.live = this;
}

ObjectRun::~ObjectRun() {
    m_holder.live = nullptr;
    if (m_control)
        m_control->Connect(nullptr);
    RestoreGeometry(m_object, m_geometry);
    m_object.GetCoordinate() = m_coordinate;
}

PointF ObjectRun::Origin() const {
    PointF origin;
    for (CUIObject* group : m_groups) {
        const RectF bounds = group->GetPosition();
        origin = origin + PointF(bounds.X, bounds.Y);
    }
    return origin;
}

bool ObjectRun::IsDue(double time) {
    bool due = !m_started;
    for (size_t i = 0; i < m_watched.size(); ++i) {
        const unsigned generation = m_device.Generation(m_watched[i]);
        due |= generation != m_seen[i];
        m_seen[i] = generation;
    }
    if (m_extras.IsOn(Behaviour::kBlink)) {
        const auto phase = static_cast<long long>(time / BlinkPeriod(m_extras.prefs.m_blink));
        due |= phase != m_blinkPhase;
        m_blinkPhase = phase;
    }
    return due;
}

void ObjectRun::Update(double time, std::vector<RectF>& dirty) {
    if (IsDue(time)) {
        const Look look = Evaluate(m_extras, m_values, m_device, m_rest, time);
        if (look != m_look || !m_started)
            Change(look, dirty);
        m_started = true;
    }
    if (m_trend && m_trend->Sample(time))
        dirty.push_back(PaintedBounds());
    if (!m_control)
        return;
    const PointF origin = Origin();
    m_control->SetOrigin(origin);
    std::vector<CRect>& parts = m_parts;
    if (!m_control->TakeChange(parts))
        return;
    if (parts.empty())
        dirty.push_back(PaintedBounds());
    for (const CRect& part : parts) {
        RectF area = Lumo::RectGdiFromAtl(part);
        area.Offset(m_object.GetPosition().X + origin.X, m_object.GetPosition().Y + origin.Y);
        dirty.push_back(area);
    }
}

void ObjectRun::Change(const Look& look, std::vector<RectF>& dirty) {
    Look level = m_look;
    level.filled = look.filled;
    const bool onlyLevel =
        m_started && level == look && m_look.filled >= 0.0f && look.filled >= 0.0f && look.angle == 0.0f;
    if (onlyLevel) {
        // The strip between the old and the new level, with the border between the parts.
        const auto [from, to] = std::minmax(m_look.filled, look.filled);
        RectF strip =
            Slice(Lumo::Normalised(m_object.GetPosition()), m_extras.prefs.m_fill.m_nDirection, from, to);
        strip.Offset(Origin());
        dirty.push_back(Lumo::Inflated(strip, 2.0f));
        m_look = look;
        return;
    }
    if (m_started)
        dirty.push_back(PaintedBounds());
    Apply(look);
    dirty.push_back(PaintedBounds());
    m_moved = true;
}

void ObjectRun::Apply(const Look& look) {
    m_look = look;
    if (!m_extras.HasBehaviours())
        return;
    RectF bounds(look.x, look.y, look.width, look.height);
    ApplyColors(look);
    if (IsSame(bounds, m_placed))
        return;
    m_placed = bounds;
    if (IsSame(bounds, m_rest))
        RestoreGeometry(m_object, m_geometry);
    else
        PlaceFitted(m_object, m_geometry, bounds);
}

// The position belongs to the coordinate record, too: it is put back behind the colours.
void ObjectRun::ApplyColors(const Look& look) {
    auto& coordinate = m_object.GetCoordinate();
    coordinate.SetShapeFormatText(m_coordinate.GetShapeFormatText());
    coordinate.SetShapeFormatFill(m_coordinate.GetShapeFormatFill());
    coordinate.SetShapeFormatLineColor(m_coordinate.GetShapeFormatLineColor());
    if (look.fill) {
        m_object.SetFillColor(look.fill);
        m_object.SetFillAlpha(static_cast<float>(look.fill >> 24));
        if (m_object.GetFillShapeMode() != 1)
            m_object.SetFillShapeMode(2);
    }
    if (look.line)
        m_object.SetLineColor(look.line);
    if (look.text)
        m_object.SetTextColor(look.text);
    if (look.hideFill || look.filled >= 0.0f)
        m_object.SetFillShapeMode(0);
    if (look.hideLine)
        m_object.SetLineShapeMode(0);
    auto& text = coordinate.Format<Lumo::CUIShapeFormatText>();
    if (look.hasCaption) {
        text.m_strText = look.caption;
        text.m_bEnabled = 1;
    }
    if (look.hideText)
        text.m_bEnabled = 0;
}

bool ObjectRun::MayMove() const {
    constexpr Behaviour kMoving[] = {Behaviour::kMove1, Behaviour::kMove2, Behaviour::kSize1,
                                     Behaviour::kSize2, Behaviour::kRotate};
    return std::any_of(std::begin(kMoving), std::end(kMoving),
                       [this](Behaviour behaviour) { return IsUsed(behaviour); });
}

RectF ObjectRun::PaintedBounds() {
    RectF bounds = Lumo::Normalised(m_object.GetPosition());
    const PointF centre = Lumo::CentreOf(bounds) + PointF(m_look.centreX, m_look.centreY);
    bounds = Lumo::Inflated(bounds, RunMargin(m_object));
    if (m_look.angle != 0.0f)
        bounds = Lumo::Inflated(Lumo::RotatedBounds(m_look.angle, bounds, centre), 1.0f);
    bounds.Offset(Origin());
    return bounds;
}

bool ObjectRun::Answers(PointF point) {
    if (m_look.hideAll || !(m_control || TakesMouse()))
        return false;
    RectF bounds = Lumo::Normalised(m_object.GetPosition());
    bounds.Offset(Origin());
    // A thin line, too, can be hit.
    constexpr float kLeast = 8.0f;
    const float grow = std::max(0.0f, (kLeast - std::min(bounds.Width, bounds.Height)) / 2);
    return Lumo::ContainsPoint(Lumo::Inflated(bounds, grow), point);
}

void ObjectRun::Draw(Gdiplus::Graphics& g, const std::function<void()>& own) {
    if (m_look.hideAll)
        return;
    if (m_look.angle == 0.0f) {
        DrawUpright(g, own);
        return;
    }
    const RectF bounds = Lumo::Normalised(m_object.GetPosition());
    const PointF centre = Lumo::CentreOf(bounds) + PointF(m_look.centreX, m_look.centreY);
    GraphicsStateScope state(g);
    g.TranslateTransform(centre.X, centre.Y);
    g.RotateTransform(m_look.angle);
    g.TranslateTransform(-centre.X, -centre.Y);
    // Pictures cannot be copied as they are.
    const DirectPaint none(nullptr);
    DrawUpright(g, own);
}

void ObjectRun::DrawUpright(Gdiplus::Graphics& g, const std::function<void()>& own) {
    const RectF bounds = Lumo::Normalised(m_object.GetPosition());
    const bool shape = m_look.filled >= 0.0f || m_look.fill || m_look.slider >= 0.0f;
    if (!shape && !m_trend && !m_pressed) {
        own();
        return;
    }
    if (Lumo::PaintScope::Misses(g, Lumo::Inflated(bounds, RunMargin(m_object))))
        return;
    if (m_look.filled >= 0.0f && !m_look.hideFill)
        DrawFilled(g);
    // The library draws a caption below the fill: opaque colours would hide it.
    auto& text = m_object.GetCoordinate().Format<Lumo::CUIShapeFormatText>();
    const auto enabled = text.m_bEnabled;
    const bool captionAbove = !dynamic_cast<Lumo::CUIObjectTextEdit*>(&m_object) && !m_control;
    if (captionAbove)
        text.m_bEnabled = 0;
    own();
    text.m_bEnabled = enabled;
    if (m_trend)
        m_trend->Draw(g, Lumo::Inflated(bounds, -m_object.GetLineWidth() / 2 - 1.0f));
    if (m_look.slider >= 0.0f)
        DrawSlider(g);
    if (captionAbove)
        m_object.CUIObject::Draw(&g);
    if (m_pressed && IsUsed(Behaviour::kButton))
        FillArea(g, kPressedVeil, bounds);
}

void ObjectRun::DrawFilled(Gdiplus::Graphics& g) {
    const CPrefFill& fill = m_extras.prefs.m_fill;
    const RectF bounds = Lumo::Normalised(m_object.GetPosition());
    GraphicsStateScope state(g);
    const bool round = m_object.GetDrawShape() == Lumo::DS_ELLIPSE;
    const DirectPaint direct(round ? nullptr : DirectPaint::Target());
    if (round) {
        Gdiplus::GraphicsPath path;
        path.AddEllipse(bounds);
        g.SetClip(&path, Gdiplus::CombineModeIntersect);
    }
    FillArea(g, fill.m_dwEmptyColor, bounds);
    const RectF filled = Slice(bounds, fill.m_nDirection, 0.0f, m_look.filled);
    if (m_image && m_image->GetLastStatus() == Gdiplus::Ok) {
        g.SetClip(filled, Gdiplus::CombineModeIntersect);
        g.DrawImage(m_image.get(), bounds);
        return;
    }
    FillArea(g, fill.m_dwFilledColor, filled);
    if (m_look.filled > 0.0f && m_look.filled < 1.0f)
        FillArea(g, fill.m_dwBorderColor, Across(bounds, fill.m_nDirection, m_look.filled, 1.0f));
}

void ObjectRun::DrawSlider(Gdiplus::Graphics& g) {
    const int direction = m_extras.prefs.m_slider.m_nDirection;
    const RectF bounds = Lumo::Normalised(m_object.GetPosition());
    if (m_look.filled < 0.0f)
        FillArea(g, kSliderFill, Slice(bounds, direction, 0.0f, m_look.slider));
    FillArea(g, kSliderThumb, Across(bounds, direction, m_look.slider, kThumb));
}

bool ObjectRun::IsUsed(Behaviour behaviour) const {
    return m_extras.IsOn(behaviour);
}

}  // namespace Studio
