// A group that behaves as its user expects.
#pragma once

#include "behaviour/UIObjectList.h"

namespace Studio {

/// The library's group lets its children drift when they are drawn and loses them in an archive. This one
/// draws and hit-tests them where they are, moves the points of lines along, and leaves the archiving of the
/// children to the document. It covers exactly its children, measured from its corner.
class GroupObject : public Lumo::CUIObjectList {
public:
    /// An empty group; `AdoptAll` or a file fills it.
    GroupObject();

    using CUIObjectList::HitTest;

    /// Takes over objects that are in no list any more, in drawing order, and sizes the group to them.
    void AdoptAll(const std::deque<Lumo::CUIObject*>& objects);
    /// Takes over one object whose geometry is already measured from the group's corner.
    void AdoptStored(Lumo::CUIObject* child);

    /// Replaces the children; those that were there are let go and live on. Their geometry, measured from the
    /// group's corner, and the group's own stay as they are.
    void SetChildren(const std::deque<Lumo::CUIObject*>& children);

    /// Lets the children go and gives them back where they stand on the page, in drawing order. The group is
    /// empty then, and lives on.
    std::deque<Lumo::CUIObject*> TakeApart();

    /// Draws the children where they stand.
    void Draw(Gdiplus::Graphics* g) override;
    /// TRUE when a child is hit.
    BOOL HitTest(Gdiplus::RectF& rect) override;
    /// The base object's data; the document stores the children.
    void Serialize(CArchive& ar) override;
    /// As the library's, with the points of lines.
    void MakeGroup(Lumo::CUIObject* child) override;
    /// As the library's, with the points of lines.
    void MakeUnGroup(std::deque<Lumo::CUIObject*>* out) override;
};

}  // namespace Studio
