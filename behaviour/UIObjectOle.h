// The embedded object.
#pragma once

#include "core/UIObject.h"

class COleClientItem;

namespace Lumo {

/// An embedded OLE object on the page. The host attaches the client item and draws it.
class TESSEL_API CUIObjectOle : public CUIObject {
public:
    /// Both values 0, no client item, the kind not set.
    CUIObjectOle();
    /// An embedded object on `rect` (page units); both values 0, no client item.
    CUIObjectOle(const Gdiplus::RectF& rect, DrawShape kind);
    /// Shares the client item, which neither of the two owns.
    CUIObjectOle(const CUIObjectOle& source) = default;
    CUIObjectOle& operator=(const CUIObjectOle& source) = default;

    using CUIObject::Draw;

    /// Begins and ends a wait cursor; a host shows its dialog here.
    void ShowPreferenceDialog(CUICanvas* canvas) override;
    /// The base data and the two values (4 bytes each). The client item is not archived.
    void Serialize(CArchive& ar) override;
    /// The base object's, except that an offset of exactly (0, 0) does nothing.
    void MoveTo(const int& handle, const Gdiplus::PointF& offset) override;
    ~CUIObjectOle() override;

    /// Slot 32: draws nothing; a host draws the embedded item here.
    virtual void Draw(CDC* dc);

    /// The first of two archived values; the host gives them their meaning.
    float GetFirstValue() const { return m_fFirstValue; }
    void SetFirstValue(float value) { m_fFirstValue = value; }
    /// The second one.
    float GetSecondValue() const { return m_fSecondValue; }
    void SetSecondValue(float value) { m_fSecondValue = value; }
    /// The client item that holds the embedded object, null until the host attaches one. Not owned.
    COleClientItem* GetClientItem() const { return m_pClientItem; }
    void SetClientItem(COleClientItem* item) { m_pClientItem = item; }

    /// Whether a host shows embedded items; the library does not read it. Initially TRUE.
    static BOOL c_bShowItems;

protected:
    float m_fFirstValue = 0.0f;               ///< see `GetFirstValue`
    float m_fSecondValue = 0.0f;              ///< see `GetSecondValue`
    COleClientItem* m_pClientItem = nullptr;  ///< see `GetClientItem`
};

}  // namespace Lumo
