#include "behaviour/PrefAction.h"

#include "behaviour/src/PrefFields.h"

namespace {

constexpr std::tuple kInputFields(&CPrefInput::m_nType, &CPrefInput::m_nStep);

constexpr std::tuple kButtonFields(&CPrefButton::m_strOffText, &CPrefButton::m_strOnText,
                                   &CPrefButton::m_nAction, &CPrefButton::m_nValue, &CPrefButton::m_bConfirm,
                                   &CPrefButton::m_strConfirmText, &CPrefButton::m_strPressCommand,
                                   &CPrefButton::m_strReleaseCommand, &CPrefButton::m_strArguments);

constexpr std::tuple kPageFields(&CPrefPage::m_nMode, &CPrefPage::m_nPage, &CPrefPage::m_strPageName,
                                 &CPrefPage::m_strPagePath);

constexpr std::tuple kTextFields(&CPrefText::m_nType, &CPrefText::m_strFormat);

constexpr std::tuple kSliderFields(&CPrefSlider::m_nDirection, &CPrefSlider::m_nMode,
                                   &CPrefSlider::m_nLowValue, &CPrefSlider::m_nHighValue);

}  // namespace

CPrefInput& CPrefInput::operator=(const CPrefInput& source) {
    pref::CopyFields(*this, source, kInputFields);
    return *this;
}

void CPrefInput::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kInputFields);
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): a field copied onto itself stays as it is
CPrefButton& CPrefButton::operator=(const CPrefButton& source) {
    pref::CopyFields(*this, source, kButtonFields);
    return *this;
}

void CPrefButton::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kButtonFields);
}

CPrefPage& CPrefPage::operator=(const CPrefPage& source) {
    pref::CopyFields(*this, source, kPageFields);
    return *this;
}

void CPrefPage::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kPageFields);
}

CPrefText& CPrefText::operator=(const CPrefText& source) {
    pref::CopyFields(*this, source, kTextFields);
    return *this;
}

void CPrefText::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kTextFields);
}

CPrefSlider& CPrefSlider::operator=(const CPrefSlider& source) {
    pref::CopyFields(*this, source, kSliderFields);
    return *this;
}

void CPrefSlider::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kSliderFields);
}
