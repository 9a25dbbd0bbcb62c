// Groups and symbols: objects that hold other objects and treat them as one.
#pragma once

#include <deque>

#include "core/UIObject.h"

namespace Lumo {

/// A group. While an object is a child, the X and Y of its position are measured from the group's position
/// point; its width and height stay as they are.
///
/// Lifetime: `Release` destroys the children and leaves the group itself alive, unlike the base object's.
/// When the group is being destroyed, it is deleted afterwards, unless an override of `Release` has done so
/// or has not called the group's own. The destructor and the copies destroy no child.
class TESSEL_API CUIObjectList : public CUIObject {
public:
    /// A group on `bounds` (page units), marked as grouped although it has no children yet; the shape name is
    /// "List" whatever the kind.
    CUIObjectList(const Gdiplus::RectF& bounds, DrawShape kind);
    /// Shares the children: both groups then refer to the same objects. The first of them that is released
    /// destroys these objects, and they leave every other group as they go.
    CUIObjectList(const CUIObjectList& source);
    /// Shares the source's children like the copy constructor; the former children are let go, not destroyed.
    CUIObjectList& operator=(const CUIObjectList& source);

    using CUIObject::HitTest;
    using CUIObject::Rotate;

    /// 1 at the first child that is hit at its stored position. Every child asked has a dragging offset of
    /// its coordinate record folded into its stored point.
    int HitTest(Gdiplus::RectF& rect) override;
    /// The base data, the number of children (32 bits), the grouped flag (16 bits), then kind (32 bits) and
    /// data of each child. Loading consumes the children's data and keeps none of them. Raises the archive's
    /// exception for groups that are nested deeper than `kDeepest`.
    void Serialize(CArchive& ar) override;
    /// Moves every child to page coordinates and draws it there; the child stays where it was drawn. Nothing
    /// is drawn for the group itself.
    void Draw(Gdiplus::Graphics* g) override;
    /// Turns every child about the centre of the group by `angle` degrees, clockwise.
    void Rotate(float angle) override;
    /// The shape kind.
    int GetType() override;
    /// Destroys the children and forgets them. The group itself stays alive.
    void Release() override;
    /// Destroys no child.
    ~CUIObjectList() override;

    /// Slot 32: takes `child` as the last (topmost) one and makes its position relative to the group. Null,
    /// the group itself and a group that holds this one are ignored. The group's own bounds stay.
    virtual void MakeGroup(CUIObject* child);
    /// Slot 33: gives the children back in page coordinates, appended to `out`, and destroys the group, which
    /// must not be touched after the call. Without children, or without `out`, nothing happens.
    virtual void MakeUnGroup(std::deque<CUIObject*>* out);
    using CUIObject::DrawDragImage;  // not further up: some compilers give the slot where the name comes
                                     // first
    /// Slot 34: outlines the group where it stands, in black, 2 units wide; `point` is not used.
    virtual void DrawDragImage(Gdiplus::Graphics* g, POINT point);

    /// Turns a rectangle relative to the group into page coordinates.
    void NormalizeRect(Gdiplus::RectF& rect);

    /// The children in drawing order (the first is drawn first). Owned by the group, never null entries.
    const std::deque<CUIObject*>& GetChildren() const { return m_children; }
    /// Width at construction, rounded to whole units.
    int GetInitialWidth() const { return m_nInitialWidth; }
    /// Height at construction, rounded to whole units.
    int GetInitialHeight() const { return m_nInitialHeight; }
    /// How many groups are nested here, this one included.
    int GetDepth() const;
    /// The greatest depth that can be stored, read and made by the canvas's command; deeper archives are
    /// refused.
    static constexpr int kDeepest = 64;
    /// 1 from construction with a rectangle or the first child on, 0 after ungrouping.
    BOOL GetGrouped() const { return m_bGrouped; }

protected:
    /// Kind 18, name "List", no size, not grouped.
    CUIObjectList();

    /// Takes `child` as the last one without touching its position.
    void AppendChild(CUIObject* child);
    /// Lets all children go without destroying them.
    void DetachChildren();

    /// What the constructors with a rectangle have in common: the initial size and the grouped flag.
    void SetInitialSize(const Gdiplus::RectF& bounds);

private:
    friend class Destruction;

    bool Holds(const CUIObject* object) const;
    void StoreChildren(CArchive& ar);
    void SkipStoredChildren(CArchive& ar);

    std::deque<CUIObject*> m_children;

protected:
    int m_nInitialWidth = 0;   ///< see `GetInitialWidth`
    int m_nInitialHeight = 0;  ///< see `GetInitialHeight`
    BOOL m_bGrouped = FALSE;   ///< see `GetGrouped`
};

/// A group that was inserted from a symbol file. It differs from a group in its name and default kind only.
class TESSEL_API CUIObjectSymbol : public CUIObjectList {
public:
    /// A symbol on `bounds` (page units) of the given kind; the shape name is "Symbol".
    CUIObjectSymbol(const Gdiplus::RectF& bounds, DrawShape kind);
    /// Copies every field.
    CUIObjectSymbol(const CUIObjectSymbol& source) = default;
    CUIObjectSymbol& operator=(const CUIObjectSymbol& source) = default;

    /// The group's, unchanged.
    void Serialize(CArchive& ar) override;
    /// The group's, unchanged.
    void Release() override;

protected:
    /// Kind 14, name "Symbol", no size, not grouped.
    CUIObjectSymbol();
};

}  // namespace Lumo
