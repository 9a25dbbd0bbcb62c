// Behaviours that change where an object is and how large: moving, resizing, rotating. See PrefBase.h for
// what is common to all records.
#pragma once

#include "behaviour/PrefBase.h"

/// Movement; an object has two of them.
class TESSEL_API CPrefMove : public CPrefBase {
public:
    CPrefMove() = default;
    /// Copies the values, not the name.
    CPrefMove(CPrefMove& source) : CPrefBase() { *this = source; }
    CPrefMove& operator=(const CPrefMove& source);
    ~CPrefMove() override = default;
    void Serialize(CArchive& ar) override;

    int m_nDirection = 1;       ///< direction code
    int m_nMode = 0;            ///< movement mode
    float m_fDistance = 10.0f;  ///< distance covered, in page units
    int m_nLowValue = 0;        ///< bound value at the beginning of the way
    int m_nHighValue = 100;     ///< bound value at the end of the way
};

/// Resizing; an object has two of them.
class TESSEL_API CPrefSize : public CPrefBase {
public:
    CPrefSize() = default;
    /// Copies the values, not the name.
    CPrefSize(CPrefSize& source) : CPrefBase() { *this = source; }
    CPrefSize& operator=(const CPrefSize& source);
    ~CPrefSize() override = default;
    void Serialize(CArchive& ar) override;

    int m_nDirection = 0;    ///< direction code
    int m_nMode = 0;         ///< resizing mode
    int m_nSmallSize = 0;    ///< size at the lower value
    int m_nLargeSize = 0;    ///< size at the upper value
    int m_nLowValue = 0;     ///< bound value of the smallest size
    int m_nHighValue = 100;  ///< bound value of the largest size
};

/// Rotation.
class TESSEL_API CPrefRotate : public CPrefBase {
public:
    CPrefRotate() = default;
    /// Copies the values, not the name.
    CPrefRotate(CPrefRotate& source) : CPrefBase() { *this = source; }
    CPrefRotate& operator=(const CPrefRotate& source);
    ~CPrefRotate() override = default;
    void Serialize(CArchive& ar) override;

    int m_nStartAngle = 0;      ///< angle at the lower value, in degrees
    int m_nEndAngle = 90;       ///< angle at the upper value, in degrees
    int m_nLowValue = 0;        ///< bound value at the start angle
    int m_nHighValue = 100;     ///< bound value at the end angle
    POINT m_ptCenter = {0, 0};  ///< centre of the rotation
};
