#include "studio/editing/ObjectFactory.h"

#include "appearance/UIObjectRectangle.h"
#include "core/UIDocument.h"
#include "core/UIObjectPoly.h"
#include "studio/controls/LevelControls.h"
#include "studio/controls/MatrixControls.h"
#include "studio/controls/PeqChart.h"
#include "studio/controls/StateControls.h"
#include "studio/editing/EmbeddedObject.h"
#include "studio/editing/GroupObject.h"
#include "studio/editing/PictureFill.h"
#include "studio/editing/StyledShapes.h"
#include "studio/editing/TextBox.h"
#include "studio/runtime/LiveObject.h"

namespace Studio {

using Gdiplus::RectF;
using Lumo::CUIObject;

namespace {

using Rectangle = PictureShape<StyledShape<Lumo::CUIObjectRectangle, OutlineKind::kRectangle>>;
using Ellipse = PictureShape<StyledShape<Lumo::CUIObjectEllipse, OutlineKind::kEllipse>>;
// The library draws its lines three times as wide as their record says.
using Line = StyledFigure<Lumo::CUIObjectLine, 3>;
using PolyLine = StyledFigure<Lumo::CUIObjectPolyLine, 1>;

struct Style {
    DWORD fill;
    float fillAlpha;
    DWORD line;
    float lineWidth;
};

// Muted colours that stay readable on the black page; the caption lies under the fill, so the fill is thin.
constexpr Style kShape = {0x483E7BFA, 72.0f, 0xFF7FB0FF, 2.0f};
constexpr Style kFigure = {0x483E7BFA, 72.0f, 0xFFFFC46B, 2.0f};
// The line class triples its width.
constexpr Style kLine = {0x483E7BFA, 72.0f, 0xFFFFC46B, 1.0f};
constexpr Style kTextBox = {0x20FFFFFF, 32.0f, 0x70FFFFFF, 1.0f};

constexpr DWORD kTextColor = 0xFFF2F5FA;
constexpr float kFontSize = 15.0f;

const Style& StyleOf(ObjectClass objectClass) {
    switch (objectClass) {
        case ObjectClass::kLine:
            return kLine;
        case ObjectClass::kPolyLine:
            return kFigure;
        case ObjectClass::kTextBox:
            return kTextBox;
        default:
            return kShape;
    }
}

void ApplyStyle(CUIObject& object, ObjectClass objectClass) {
    const Style& style = StyleOf(objectClass);
    object.SetFillColor(style.fill);
    object.SetFillAlpha(style.fillAlpha);
    object.SetLineColor(style.line);
    object.SetLineAlpha(static_cast<float>(style.line >> 24));
    object.SetLineShapeMode(2);
    object.SetLineWidth(style.lineWidth);
    object.SetLineStartCap(Gdiplus::LineCapRound);
    object.SetLineEndCap(Gdiplus::LineCapRound);
    object.SetTextColor(kTextColor);
    object.SetTextFontSize(kFontSize);
    object.SetRotateAngle(0.0f);
}

ObjectClass ClassOfKind(Lumo::DrawShape kind) {
    if (IsControl(kind))
        return static_cast<ObjectClass>(kind);
    switch (kind) {
        case Lumo::DS_RECTANGLE:
            return ObjectClass::kRectangle;
        case Lumo::DS_ELLIPSE:
            return ObjectClass::kEllipse;
        case Lumo::DS_TEXTEDIT:
            return ObjectClass::kTextBox;
        case Lumo::DS_LINE:
            return ObjectClass::kLine;
        case Lumo::DS_POLYLINE:
            return ObjectClass::kPolyLine;
        default:
            return ObjectClass::kNone;
    }
}

}  // namespace

void ReleaseObject(CUIObject* object) {
    if (!object)
        return;
    Lumo::CUIObjectDeque doomed{object};
    ReleaseObjects(doomed);
}

void ReleaseObjects(Lumo::CUIObjectDeque& objects) {
    // Each group would look for its own children on their page: they go with the others instead.
    for (size_t i = 0; i < objects.size(); ++i) {
        const bool isGroup = objects[i] && objects[i]->GetDrawShape() == Lumo::DS_GROUP;
        if (auto* group = isGroup ? dynamic_cast<GroupObject*>(objects[i]) : nullptr) {
            const Lumo::CUIObjectDeque children = group->TakeApart();
            objects.insert(objects.end(), children.begin(), children.end());
        }
    }
    // A group's Release keeps the group itself; the document's own way of clearing a list ends both kinds.
    Lumo::CUIDocument loose;
    loose.ClearObject(&objects);
}

ObjectClass ClassOf(const CUIObject& object) {
    if (dynamic_cast<const Lumo::CUIObjectRectangle*>(&object))
        return ObjectClass::kRectangle;
    if (dynamic_cast<const Lumo::CUIObjectEllipse*>(&object))
        return ObjectClass::kEllipse;
    if (dynamic_cast<const TextBox*>(&object))
        return ObjectClass::kTextBox;
    if (dynamic_cast<const Lumo::CUIObjectLine*>(&object))
        return ObjectClass::kLine;
    if (dynamic_cast<const Lumo::CUIObjectPolyLine*>(&object))
        return ObjectClass::kPolyLine;
    if (dynamic_cast<const GroupObject*>(&object))
        return ObjectClass::kGroup;
    if (dynamic_cast<const EmbeddedObject*>(&object))
        return ObjectClass::kEmbedded;
    if (dynamic_cast<const Control*>(&object))
        return static_cast<ObjectClass>(object.GetDrawShape());
    return ObjectClass::kNone;
}

ObjectPtr MakeObject(ObjectClass objectClass) {
    RectF none(0.0f, 0.0f, 0.0f, 0.0f);
    const Lumo::DrawShape kind = KindOf(objectClass);
    switch (objectClass) {
        case ObjectClass::kRectangle:
            return ObjectPtr(new LiveObject<Rectangle>(none, kind));
        case ObjectClass::kEllipse:
            return ObjectPtr(new LiveObject<Ellipse>(none, kind));
        case ObjectClass::kTextBox:
            return ObjectPtr(new LiveObject<PictureShape<TextBox>>(none));
        case ObjectClass::kLine:
            return ObjectPtr(new LiveObject<Line>(none, kind));
        case ObjectClass::kPolyLine:
            return ObjectPtr(new LiveObject<PolyLine>(none, kind));
        case ObjectClass::kGroup:
            return ObjectPtr(new LiveObject<GroupObject>);
        case ObjectClass::kEmbedded:
            return ObjectPtr(new LiveObject<EmbeddedObject>);
        case ObjectClass::kPeqChart:
            return ObjectPtr(new LiveObject<PeqChart>);
        case ObjectClass::kBandButton:
            return ObjectPtr(new LiveObject<BandButton>);
        case ObjectClass::kDeviceChart:
            return ObjectPtr(new LiveObject<DeviceChart>);
        case ObjectClass::kDeviceButton:
            return ObjectPtr(new LiveObject<DeviceButton>);
        case ObjectClass::kLevelChart:
            return ObjectPtr(new LiveObject<LevelChart>);
        case ObjectClass::kLevelButton:
            return ObjectPtr(new LiveObject<LevelButton>);
        case ObjectClass::kCrossoverState:
            return ObjectPtr(new LiveObject<CrossoverState>);
        case ObjectClass::kGeqState:
            return ObjectPtr(new LiveObject<GeqState>);
        case ObjectClass::kPeqState:
            return ObjectPtr(new LiveObject<PeqState>);
        default:
            return nullptr;
    }
}

Lumo::DrawShape KindOf(ObjectClass objectClass) {
    if (const auto kind = static_cast<Lumo::DrawShape>(objectClass); IsControl(kind))
        return kind;
    switch (objectClass) {
        case ObjectClass::kRectangle:
            return Lumo::DS_RECTANGLE;
        case ObjectClass::kEllipse:
            return Lumo::DS_ELLIPSE;
        case ObjectClass::kTextBox:
            return Lumo::DS_TEXTEDIT;
        case ObjectClass::kLine:
            return Lumo::DS_LINE;
        case ObjectClass::kPolyLine:
            return Lumo::DS_POLYLINE;
        case ObjectClass::kGroup:
            return Lumo::DS_GROUP;
        case ObjectClass::kEmbedded:
            return Lumo::DS_OLE;
        default:
            return Lumo::DS_UNKNOWN;
    }
}

ObjectPtr MakeDrawnObject(Lumo::DrawShape kind, const RectF& rect) {
    const ObjectClass objectClass = ClassOfKind(kind);
    ObjectPtr object = MakeObject(objectClass);
    if (object) {
        object->SetPosition(rect);
        ApplyStyle(*object, objectClass);
    }
    if (const auto* control = dynamic_cast<const Control*>(object.get()))
        EditExtras(*object)->binding = control->DefaultBinding();
    return object;
}

}  // namespace Studio
