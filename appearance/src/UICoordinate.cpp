#include "appearance/UICoordinate.h"

#include <utility>

#include "appearance/internal/ArchiveFields.h"
#include "core/Geometry.h"

namespace Lumo {

namespace {

template <class Value>
void Store(Value* to, Value value) {
    if (to != nullptr)
        *to = value;
}

}  // namespace

CUICoordinate::CUICoordinate() {
    LoadDefaultAll();
}

CUICoordinate::~CUICoordinate() = default;

void CUICoordinate::Serialize(CArchive& ar) {
    static const CString name(L"Coordinate");
    CString tag = name;  // not looked at when loading: a file with another tag loads just the same
    ArchiveFields(ar, tag);
    m_text.Serialize(ar);
    m_fill.Serialize(ar);
    m_lineColor.Serialize(ar);
    m_lineStyle.Serialize(ar);
    m_shadow.Serialize(ar);
    m_scale.Serialize(ar);
    m_position.Serialize(ar);
    m_textBox.Serialize(ar);
}

CUIShapeFormat* CUICoordinate::GetShapeFormat(ShapeFormatType type) {
    return const_cast<CUIShapeFormat*>(std::as_const(*this).GetShapeFormat(type));
}

const CUIShapeFormat* CUICoordinate::GetShapeFormat(ShapeFormatType type) const {
    switch (type) {
        case SFT_TEXT:
            return &m_text;
        case SFT_FILL:
            return &m_fill;
        case SFT_LINECOLOR:
            return &m_lineColor;
        case SFT_LINESTYLE:
            return &m_lineStyle;
        case SFT_SHADOW:
            return &m_shadow;
        case SFT_SCALE:
            return &m_scale;
        case SFT_POSITION:
            return &m_position;
        case SFT_TEXTBOX:
            return &m_textBox;
    }
    return nullptr;
}

void CUICoordinate::LoadDefault(ShapeFormatType type) {
    if (CUIShapeFormat* format = GetShapeFormat(type))
        format->LoadDefault();
}

void CUICoordinate::LoadDefaultAll() {
    m_text.LoadDefault();
    m_fill.LoadDefault();
    m_lineColor.LoadDefault();
    m_lineStyle.LoadDefault();
    m_shadow.LoadDefault();
    m_scale.LoadDefault();
    m_position.LoadDefault();
    m_textBox.LoadDefault();
}

void CUICoordinate::EnableShapeFormat(ShapeFormatType, int) {}

void CUICoordinate::SetText(const CString& text) {
    if (!text.IsEmpty())
        m_text.m_strText = text;
}

CString CUICoordinate::GetTextFontName() {
    if (m_text.m_strFontName.IsEmpty())
        m_text.m_strFontName = L"Arial";
    return m_text.m_strFontName;
}

void CUICoordinate::SetTextFontName(const CString& name) {
    if (!name.IsEmpty())
        m_text.m_strFontName = name;
}

void CUICoordinate::GetLineDashValue(float* first, float* second, float* third, float* fourth) const {
    Store(first, m_lineStyle.m_fDash[0]);
    Store(second, m_lineStyle.m_fDash[1]);
    Store(third, m_lineStyle.m_fDash[2]);
    Store(fourth, m_lineStyle.m_fDash[3]);
}

void CUICoordinate::SetLineDashValue(float first, float second, float third, float fourth) {
    m_lineStyle.m_fDash[0] = first;
    m_lineStyle.m_fDash[1] = second;
    m_lineStyle.m_fDash[2] = third;
    m_lineStyle.m_fDash[3] = fourth;
}

void CUICoordinate::GetLineStartArrow(float* width, float* height, int* filled) const {
    Store(width, m_lineStyle.m_fStartArrowWidth);
    Store(height, m_lineStyle.m_fStartArrowHeight);
    Store(filled, m_lineStyle.m_bStartArrowFilled);
}

void CUICoordinate::SetLineStartArrow(float width, float height, int filled) {
    m_lineStyle.m_fStartArrowWidth = width;
    m_lineStyle.m_fStartArrowHeight = height;
    m_lineStyle.m_bStartArrowFilled = filled;
}

void CUICoordinate::GetLineEndArrow(float* width, float* height, int* filled) const {
    Store(width, m_lineStyle.m_fEndArrowWidth);
    Store(height, m_lineStyle.m_fEndArrowHeight);
    Store(filled, m_lineStyle.m_bEndArrowFilled);
}

void CUICoordinate::SetLineEndArrow(float width, float height, int filled) {
    m_lineStyle.m_fEndArrowWidth = width;
    m_lineStyle.m_fEndArrowHeight = height;
    m_lineStyle.m_bEndArrowFilled = filled;
}

Gdiplus::SizeF CUICoordinate::GetSize() const {
    return {m_scale.m_fWidth, m_scale.m_fHeight};
}

void CUICoordinate::SetSize(const Gdiplus::SizeF& size) {
    m_scale.m_fWidth = size.Width;
    m_scale.m_fHeight = size.Height;
}

Gdiplus::SizeF CUICoordinate::GetScale() const {
    return {m_scale.m_fScaleX, m_scale.m_fScaleY};
}

void CUICoordinate::SetScale(const Gdiplus::SizeF& scale) {
    m_scale.m_fScaleX = scale.Width;
    m_scale.m_fScaleY = scale.Height;
}

Gdiplus::PointF CUICoordinate::GetPositionPoint() const {
    return {m_position.m_fX, m_position.m_fY};
}

void CUICoordinate::SetPositionPoint(const Gdiplus::PointF& point) {
    m_position.m_fX = point.X;
    m_position.m_fY = point.Y;
}

Gdiplus::PointF CUICoordinate::GetPositionOffset() const {
    return {static_cast<float>(m_position.m_nOffsetX), static_cast<float>(m_position.m_nOffsetY)};
}

void CUICoordinate::SetPositionOffset(const Gdiplus::PointF& offset) {
    m_position.m_nOffsetX = TruncToInt(offset.X);
    m_position.m_nOffsetY = TruncToInt(offset.Y);
}

Gdiplus::RectF CUICoordinate::GetPosition() const {
    return {m_position.m_fX + static_cast<float>(m_position.m_nOffsetX),
            m_position.m_fY + static_cast<float>(m_position.m_nOffsetY), m_scale.m_fWidth, m_scale.m_fHeight};
}

void CUICoordinate::SetPosition(const Gdiplus::RectF& rect) {
    // Kept: the offset stays and rides on top of the stored rectangle.
    SetPositionPoint({rect.X, rect.Y});
    SetSize({rect.Width, rect.Height});
}

}  // namespace Lumo
