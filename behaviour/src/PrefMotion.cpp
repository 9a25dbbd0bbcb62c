#include "behaviour/PrefMotion.h"

#include "behaviour/src/PrefFields.h"

namespace {

constexpr std::tuple kMoveFields(&CPrefMove::m_nDirection, &CPrefMove::m_nMode, &CPrefMove::m_fDistance,
                                 &CPrefMove::m_nLowValue, &CPrefMove::m_nHighValue);

constexpr std::tuple kSizeFields(&CPrefSize::m_nDirection, &CPrefSize::m_nMode, &CPrefSize::m_nSmallSize,
                                 &CPrefSize::m_nLargeSize, &CPrefSize::m_nLowValue, &CPrefSize::m_nHighValue);

constexpr std::tuple kRotateFields(&CPrefRotate::m_nStartAngle, &CPrefRotate::m_nEndAngle,
                                   &CPrefRotate::m_nLowValue, &CPrefRotate::m_nHighValue,
                                   &CPrefRotate::m_ptCenter);

}  // namespace

CPrefMove& CPrefMove::operator=(const CPrefMove& source) {
    pref::CopyFields(*this, source, kMoveFields);
    return *this;
}

void CPrefMove::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kMoveFields);
}

CPrefSize& CPrefSize::operator=(const CPrefSize& source) {
    pref::CopyFields(*this, source, kSizeFields);
    return *this;
}

void CPrefSize::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kSizeFields);
}

CPrefRotate& CPrefRotate::operator=(const CPrefRotate& source) {
    pref::CopyFields(*this, source, kRotateFields);
    return *this;
}

void CPrefRotate::Serialize(CArchive& ar) {
    pref::ArchiveFields(ar, *this, kRotateFields);
}
