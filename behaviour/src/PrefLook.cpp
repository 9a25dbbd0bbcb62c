#include "behaviour/PrefLook.h"

#include "behaviour/src/PrefFields.h"

namespace {

constexpr std::tuple kBlinkFields(&CPrefBlink::m_nSpeed, &CPrefBlink::m_bBlinkFill, &CPrefBlink::m_bBlinkLine,
                                  &CPrefBlink::m_bBlinkText, &CPrefBlink::m_nCompare,
                                  &CPrefBlink::m_nLowValue, &CPrefBlink::m_nHighValue);

constexpr std::tuple kColorFields(&CPrefColor::m_dwFillOnColor, &CPrefColor::m_dwFillOffColor,
                                  &CPrefColor::m_dwTextOnColor, &CPrefColor::m_dwTextOffColor,
                                  &CPrefColor::m_dwLineColor, &CPrefColor::m_dwAlarmColor,
                                  &CPrefColor::m_dwNormalColor);

constexpr std::tuple kHideFields(&CPrefHide::m_nMode, &CPrefHide::m_bHideFill, &CPrefHide::m_bHideLine,
                                 &CPrefHide::m_bHideText, &CPrefHide::m_nCompare, &CPrefHide::m_nLowValue,
                                 &CPrefHide::m_nHighValue);

constexpr std::tuple kFillFields(&CPrefFill::m_nMode, &CPrefFill::m_strImagePath, &CPrefFill::m_nDirection,
                                 &CPrefFill::m_nLowValue, &CPrefFill::m_nHighValue,
                                 &CPrefFill::m_dwEmptyColor, &CPrefFill::m_dwFilledColor,
                                 &CPrefFill::m_dwBorderColor);

}  // namespace

CPrefBlink& CPrefBlink::operator=(const CPrefBlink& source) {
    pref::CopyFields(*this, source, kBlinkFields);
    return *this;
}

void CPrefBlink::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kBlinkFields);
}

CPrefColor& CPrefColor::operator=(const CPrefColor& source) {
    pref::CopyFields(*this, source, kColorFields);
    return *this;
}

void CPrefColor::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kColorFields);
}

CPrefHide& CPrefHide::operator=(const CPrefHide& source) {
    pref::CopyFields(*this, source, kHideFields);
    return *this;
}

void CPrefHide::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kHideFields);
}

CPrefFill& CPrefFill::operator=(const CPrefFill& source) {
    pref::CopyFields(*this, source, kFillFields);
    return *this;
}

void CPrefFill::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kFillFields);
}
