// How an object ends: the one road that every destruction takes.
#pragma once

#include "core/UIDocument.h"

#include <set>
#include <unordered_map>
#include <variant>

namespace Lumo {

class CUIObjectList;

/// The rule: however an object is destroyed, by `Release`, by `delete` or through its document, nothing in
/// the library points to it afterwards.
///
/// 1. Who may hold an object is noted when it gets there: its canvas (`AppendObject`, `Select`, `EditText`,
///    `SetCanvas`), its groups. Only they are searched, so the end of an object costs what its holders hold,
///    and nothing when it has none. A note stays when the object leaves by hand; it costs one look in vain.
/// 2. First it is forgotten: it leaves the pages of its canvases, its groups and all selections, which hosts
///    fill by hand, and an editor open on it closes without saving. Then it is released.
///    Before that its page repaints the place where it was, with its handles; a page that is cleared repaints
///    as a whole.
/// 3. Several are forgotten in one walk and then released one after the other. One that the `Release` of
///    another has destroyed in between is passed over; none is released twice at a time.
/// 4. `Release` decides. An object whose override destroys nothing lives on, held by nobody. A group's own
///    `Release` leaves the emptied group, which is deleted here; a group lives on when its override keeps
///    from calling that one.
/// 5. The destructor forgets once more, for objects that end in any other way, and clears the pointers
///    that are watched: another object may come to lie where this one was.
class Destruction {
public:
    /// A canvas, for its page and its selection, or a group.
    using Holder = std::variant<CUICanvas*, CUIObjectList*>;

    /// Notes that `holder` may hold `object`; neither is null.
    static void Note(CUIObject* object, Holder holder);
    /// Takes that note back.
    static void Unnote(CUIObject* object, Holder holder);

    /// Forgets and releases `object`, which is not null.
    static void Destroy(CUIObject* object);
    /// The same for every entry of `objects` that is not null.
    static void DestroyAll(const CUIObjectDeque& objects);

    /// From now on `*pointer` becomes null when the object that it points to ends. For pointers that live as
    /// long as the library.
    static void Watch(const CUIObject** pointer);

    /// For a group's own `Release`: it is empty now, and may be deleted by whoever destroys it.
    static void NoteEmptied(CUIObjectList* group);
    /// For the destructor of `object`.
    static void NoteEnded(CUIObject* object);

private:
    static std::unordered_multimap<CUIObject*, Holder>& Notes();
    static void TakeHolders(CUIObject* object, std::set<Holder>& holders);
    static void Forget(CUIObject* object);
    static void Repaint(CUIObject* object, const std::set<Holder>& holders);
    template <class IsDoomed>
    static void Forget(const std::set<Holder>& holders, IsDoomed isDoomed);
    static void Release(CUIObject* object);
};

}  // namespace Lumo
