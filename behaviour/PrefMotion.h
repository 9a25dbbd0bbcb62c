// Behaviours that change where an object is and how large: moving, resizing, rotating. See PrefBase.h for
// what is common to all records.
#pragma once

#include "behaviour/PrefBase.h"

/// Movement; an object has two of them.
class AFX_EXT_CLASS CPrefMove : public CPrefBase {
public:
    CPrefMove() = default;
    CPrefMove(CPrefMove& source) : CPrefBase() { *this = source; }
    CPrefMove& operator=(const CPrefMove& source);
    ~CPrefMove() override = default;
    void Serialize(CArchive& ar) override;

    /// Direction code.
    int m_nDirection = 1;
    /// Movement mode.
    int m_nMode = 0;
    /// Distance covered, in page units.
    float m_fDistance = 10.0f;
    /// Bound value at the beginning and at the end of the way.
    int m_nLowValue = 0;
    int m_nHighValue = 100;
};

/// Resizing; an object has two of them.
class AFX_EXT_CLASS CPrefSize : public CPrefBase {
public:
    CPrefSize() = default;
    CPrefSize(CPrefSize& source) : CPrefBase() { *this = source; }
    CPrefSize& operator=(const CPrefSize& source);
    ~CPrefSize() override = default;
    void Serialize(CArchive& ar) override;

    /// Direction code.
    int m_nDirection = 0;
    /// Resizing mode.
    int m_nMode = 0;
    /// Size at the lower and at the upper value.
    int m_nSmallSize = 0;
    int m_nLargeSize = 0;
    /// Bound value of the smallest and of the largest size.
    int m_nLowValue = 0;
    int m_nHighValue = 100;
};

/// Rotation.
class AFX_EXT_CLASS CPrefRotate : public CPrefBase {
public:
    CPrefRotate() = default;
    CPrefRotate(CPrefRotate& source) : CPrefBase() { *this = source; }
    CPrefRotate& operator=(const CPrefRotate& source);
    ~CPrefRotate() override = default;
    void Serialize(CArchive& ar) override;

    /// Angle at the lower and at the upper value, in degrees.
    int m_nStartAngle = 0;
    int m_nEndAngle = 90;
    /// Bound value at the start and at the end angle.
    int m_nLowValue = 0;
    int m_nHighValue = 100;
    /// Centre of the rotation.
    POINT m_ptCenter = {0, 0};
};
