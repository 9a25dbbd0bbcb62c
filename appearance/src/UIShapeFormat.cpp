#include "appearance/UIShapeFormat.h"

#include "appearance/internal/ArchiveFields.h"
#include "core/Geometry.h"

namespace Lumo {

namespace {

// Kept: merged by OR, so the colour's own alpha bits stay.
DWORD MergeAlpha(float alpha, DWORD color) {
    return static_cast<DWORD>(TruncToInt(alpha)) << 24 | color;
}

// A record's number as one of GDI+'s, the last of which is `last`.
template <class Value>
Value ValueOf(int number, Value last, Value otherwise) {
    return number >= 0 && number <= last ? static_cast<Value>(number) : otherwise;
}

Gdiplus::LineCap CapOf(int code) {
    const auto cap = ValueOf(code, Gdiplus::LineCapCustom, Gdiplus::LineCapFlat);
    return cap == Gdiplus::LineCapCustom ? Gdiplus::LineCapFlat : cap;
}

}  // namespace

CUIShapeFormat::CUIShapeFormat(ShapeFormatType type, const CString& name, int enabled)
    : m_nType(type), m_strName(name), m_bEnabled(enabled) {}

CUIShapeFormat::~CUIShapeFormat() = default;

void CUIShapeFormat::Set(const CUIShapeFormat& other) {
    m_nType = other.m_nType;
    m_strName = other.m_strName;
    m_bEnabled = other.m_bEnabled;
}

void CUIShapeFormat::LoadDefault() {
    // Kept: kind 1 in every class; archives of default records carry it.
    m_nType = SFT_TEXT;
    m_strName.Empty();
    m_bEnabled = 1;
}

void CUIShapeFormat::Serialize(CArchive& ar) {
    int type = m_nType;
    ArchiveFields(ar, type);
    m_nType = static_cast<ShapeFormatType>(type);
    ArchiveFields(ar, m_strName, m_bEnabled);
}

void CUIShapeFormat::Release() {
    delete this;
}

CUIShapeFormatText::CUIShapeFormatText() : CUIShapeFormatText(L"ShapeFormatText", 1) {}

CUIShapeFormatText::CUIShapeFormatText(const CString& name, int enabled)
    : CUIShapeFormat(Type, name, enabled) {}

void CUIShapeFormatText::LoadDefault() {
    // Constants, so that all objects share one buffer for each string.
    static const CString text(L"Text");
    static const CString fontName(L"Arial");
    CUIShapeFormat::LoadDefault();
    m_strText = text;
    m_fFontSize = 22.0f;
    m_strFontName = fontName;
    m_dwTextColor = 0x80FFFFFF;
    m_dwBackColor = 0xFF000000;
    m_nAlignment = Gdiplus::StringAlignmentCenter;
    m_nUnit = Gdiplus::UnitPixel;
    m_nFontStyle = Gdiplus::FontStyleRegular;
    m_nRenderHint = Gdiplus::TextRenderingHintAntiAlias;
}

void CUIShapeFormatText::Serialize(CArchive& ar) {
    CUIShapeFormat::Serialize(ar);
    ArchiveFields(ar, m_strText, m_fFontSize, m_strFontName, m_dwTextColor);
    // Kept: the background colour stands twice, the unit is written but not restored, the alignment is
    // neither.
    int unit = m_nUnit;
    ArchiveFields(ar, m_dwBackColor, m_dwBackColor, unit, m_nFontStyle, m_nRenderHint);
}

Gdiplus::StringAlignment CUIShapeFormatText::GetAlignment() const {
    return ValueOf(m_nAlignment, Gdiplus::StringAlignmentFar, Gdiplus::StringAlignmentNear);
}

Gdiplus::Unit CUIShapeFormatText::GetUnit() const {
    return ValueOf(m_nUnit, Gdiplus::UnitMillimeter, Gdiplus::UnitDisplay);
}

Gdiplus::TextRenderingHint CUIShapeFormatText::GetRenderHint() const {
    return ValueOf(m_nRenderHint, Gdiplus::TextRenderingHintClearTypeGridFit,
                   Gdiplus::TextRenderingHintSystemDefault);
}

CUIShapeFormatFill::CUIShapeFormatFill() : CUIShapeFormatFill(L"ShapeFormatFill", 1) {
    m_nShapeMode = 1;
}

CUIShapeFormatFill::CUIShapeFormatFill(const CString& name, int enabled)
    : CUIShapeFormat(Type, name, enabled) {}

void CUIShapeFormatFill::LoadDefault() {
    CUIShapeFormat::LoadDefault();
    m_nShapeMode = 1;
    m_dwColor = 0x800000FF;
    m_fAlpha = 128.0f;
    m_fBlight = 128.0f;
    m_dwGradientColor = 0x80FFFF00;
    m_nGradientType = 0;
    m_dwGradientDirection = 1;
    m_strImagePath.Empty();
    m_nPatternStyle = 53;
    m_dwForeColor = MergeAlpha(m_fAlpha, 0x00FF6767);
    m_dwBackColor = MergeAlpha(m_fAlpha, 0x00000000);
}

void CUIShapeFormatFill::Serialize(CArchive& ar) {
    CUIShapeFormat::Serialize(ar);
    ArchiveFields(ar, m_nShapeMode, m_dwColor, m_fAlpha, m_fBlight, m_dwGradientColor, m_nGradientType,
                  m_dwGradientDirection, m_strImagePath, m_nPatternStyle, m_dwForeColor, m_dwBackColor);
}

DWORD CUIShapeFormatFill::GetBrushColor() const {
    return MergeAlpha(m_fAlpha, m_dwColor);
}

CUIShapeFormatLineColor::CUIShapeFormatLineColor() : CUIShapeFormatLineColor(L"ShapeFormatLineColor", 1) {
    m_nShapeMode = 1;
}

CUIShapeFormatLineColor::CUIShapeFormatLineColor(const CString& name, int enabled)
    : CUIShapeFormat(Type, name, enabled) {}

void CUIShapeFormatLineColor::LoadDefault() {
    CUIShapeFormat::LoadDefault();
    m_nShapeMode = 1;
    m_dwColor = 0x800000FF;
    m_fAlpha = 128.0f;
    m_fBlight = 128.0f;
    m_dwGradientColor = 0x80FFFF00;
    m_nGradientType = 0;
    m_dwGradientDirection = 1;
}

void CUIShapeFormatLineColor::Serialize(CArchive& ar) {
    CUIShapeFormat::Serialize(ar);
    ArchiveFields(ar, m_nShapeMode, m_dwColor, m_fAlpha, m_fBlight, m_dwGradientColor, m_nGradientType,
                  m_dwGradientDirection);
}

bool CUIShapeFormatLineColor::GetPenColor(DWORD* color) const {
    if (m_bEnabled == 0 || (m_nShapeMode != 1 && m_nShapeMode != 2))
        return false;
    *color = m_nShapeMode == 1 ? m_dwColor | 0xFF000000 : MergeAlpha(m_fAlpha, m_dwColor);
    return true;
}

CUIShapeFormatLineStyle::CUIShapeFormatLineStyle() : CUIShapeFormatLineStyle(L"ShapeFormatLineStyle", 1) {}

CUIShapeFormatLineStyle::CUIShapeFormatLineStyle(const CString& name, int enabled)
    : CUIShapeFormat(Type, name, enabled) {}

void CUIShapeFormatLineStyle::LoadDefault() {
    CUIShapeFormat::LoadDefault();
    m_fWidth = 2.0f;
    m_nAlignment = Gdiplus::PenAlignmentCenter;
    m_nDashStyle = Gdiplus::DashStyleSolid;
    m_nDashCap = Gdiplus::DashCapRound;
    m_nJoin = Gdiplus::LineJoinRound;
    m_nStartCap = Gdiplus::LineCapRoundAnchor;
    m_nEndCap = Gdiplus::LineCapRoundAnchor;
    m_fDash[0] = m_fDash[2] = 1.0f;
    m_fDash[1] = m_fDash[3] = 2.0f;
    m_nCapType = 0;
    m_nReserved1 = 1;
    m_nReserved2 = 3;
    // Kept: no size at the start, 10 by 10 at the end.
    m_fStartArrowWidth = m_fStartArrowHeight = 0.0f;
    m_bStartArrowFilled = 1;
    m_fEndArrowWidth = m_fEndArrowHeight = 10.0f;
    m_bEndArrowFilled = 1;
}

void CUIShapeFormatLineStyle::Serialize(CArchive& ar) {
    CUIShapeFormat::Serialize(ar);
    // Kept: the pen alignment is not archived.
    ArchiveFields(ar, m_fWidth, m_nDashStyle, m_nDashCap, m_nJoin, m_nStartCap, m_nEndCap, m_fDash[0],
                  m_fDash[1], m_fDash[2], m_fDash[3], m_nCapType, m_nReserved1, m_nReserved2,
                  m_fStartArrowWidth, m_fStartArrowHeight, m_bStartArrowFilled, m_fEndArrowWidth,
                  m_fEndArrowHeight, m_bEndArrowFilled);
}

void CUIShapeFormatLineStyle::SetPenCaps(Gdiplus::Pen& pen) const {
    pen.SetStartCap(CapOf(m_nStartCap));
    pen.SetEndCap(CapOf(m_nEndCap));
}

CUIShapeFormatShadow::CUIShapeFormatShadow() : CUIShapeFormatShadow(L"ShapeFormatShadow", 1) {}

CUIShapeFormatShadow::CUIShapeFormatShadow(const CString& name, int enabled)
    : CUIShapeFormat(Type, name, enabled) {}

void CUIShapeFormatShadow::LoadDefault() {
    CUIShapeFormat::LoadDefault();
    m_dwColor = 0x80202020;
    m_fAlpha = 128.0f;
    m_fReal = 1.0f;
    m_fAngle = 45.0f;
    m_first = Gdiplus::PointF();
    m_second = Gdiplus::PointF(10.0f, 10.0f);
}

void CUIShapeFormatShadow::Serialize(CArchive& ar) {
    CUIShapeFormat::Serialize(ar);
    ArchiveFields(ar, m_dwColor, m_fAlpha, m_fReal, m_fAngle, m_first.X, m_first.Y, m_second.X, m_second.Y);
}

CUIShapeFormatScale::CUIShapeFormatScale() : CUIShapeFormatScale(L"ShapeFormatScale", 1) {}

CUIShapeFormatScale::CUIShapeFormatScale(const CString& name, int enabled)
    : CUIShapeFormat(Type, name, enabled) {}

void CUIShapeFormatScale::LoadDefault() {
    CUIShapeFormat::LoadDefault();
    m_fWidth = m_fHeight = 1.0f;
    m_fScaleX = m_fScaleY = 1.0f;
    m_fRotateAngle = 45.0f;
    m_nRatio = 0;
}

void CUIShapeFormatScale::Serialize(CArchive& ar) {
    CUIShapeFormat::Serialize(ar);
    ArchiveFields(ar, m_fWidth, m_fHeight, m_fScaleX, m_fScaleY, m_fRotateAngle, m_nRatio);
}

CUIShapeFormatPosition::CUIShapeFormatPosition() : CUIShapeFormatPosition(L"ShapeFormatPosition", 1) {}

CUIShapeFormatPosition::CUIShapeFormatPosition(const CString& name, int enabled)
    : CUIShapeFormat(Type, name, enabled) {}

void CUIShapeFormatPosition::LoadDefault() {
    CUIShapeFormat::LoadDefault();
    m_fX = m_fY = 0.0f;
    m_nOffsetX = m_nOffsetY = 0;
}

void CUIShapeFormatPosition::Serialize(CArchive& ar) {
    CUIShapeFormat::Serialize(ar);
    ArchiveFields(ar, m_fX, m_fY, m_nOffsetX, m_nOffsetY);
}

CUIShapeFormatTextBox::CUIShapeFormatTextBox() : CUIShapeFormatTextBox(L"ShapeFormatTextBox", 1) {}

CUIShapeFormatTextBox::CUIShapeFormatTextBox(const CString& name, int enabled)
    : CUIShapeFormat(Type, name, enabled) {}

void CUIShapeFormatTextBox::LoadDefault() {
    CUIShapeFormat::LoadDefault();
    m_nCode1 = m_nCode2 = m_nCode3 = 0;
    m_fReal1 = m_fReal2 = m_fReal3 = m_fReal4 = 0.0f;
    m_nFlag = 1;
    m_fReal5 = 0.0f;
}

void CUIShapeFormatTextBox::Serialize(CArchive& ar) {
    CUIShapeFormat::Serialize(ar);
    ArchiveFields(ar, m_nCode1, m_nCode2, m_nCode3, m_fReal1, m_fReal2, m_fReal3, m_fReal4, m_nFlag,
                  m_fReal5);
}

}  // namespace Lumo
