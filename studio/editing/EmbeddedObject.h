// An embedded item of another program on a page.
#pragma once

#include "behaviour/UIObjectOle.h"
#include "studio/editing/EmbeddedItem.h"
#include "studio/editing/ObjectFactory.h"

namespace Studio {

/// Shows the item's last picture, stretched over its rectangle; a frame with the name of the item's class
/// when it has none. The item itself is made when it is opened, and kept until the object goes or is given
/// other contents.
class EmbeddedObject : public Lumo::CUIObjectOle {
public:
    /// Without contents, at an empty rectangle.
    EmbeddedObject();
    EmbeddedObject(const EmbeddedObject&) = delete;
    EmbeddedObject& operator=(const EmbeddedObject&) = delete;
    /// Closes the item's window.
    ~EmbeddedObject() override;

    /// Null in a new object.
    const EmbeddedContentsPtr& Contents() const { return m_contents; }
    /// Other contents close the item that was open.
    void SetContents(EmbeddedContentsPtr contents);
    /// Takes a living item, of which `contents` was captured.
    void Adopt(std::unique_ptr<EmbeddedItem> item, EmbeddedContentsPtr contents);

    /// Opens the item in its program. What is saved there becomes a step of the page's history. False, with a
    /// status that says why, when that fails.
    bool Open(CWnd& owner, SCODE* status);

    void Draw(Gdiplus::Graphics* g) override;
    /// Draws what `Draw` draws on a page.
    void Draw(CDC* dc) override;

    /// What the archive keeps beyond the library's record.
    void StoreContents(CArchive& ar) const;
    /// Raises the archive's exceptions and `FileFault`.
    void LoadContents(CArchive& ar);

private:
    void Attach(std::unique_ptr<EmbeddedItem> item);
    void TakeSaved();
    bool IsOnPage() const;
    void DrawPlaceholder(Gdiplus::Graphics& g, const Gdiplus::RectF& bounds) const;

    EmbeddedContentsPtr m_contents;
    std::unique_ptr<EmbeddedItem> m_item;
};

/// A new object that shows an item about the middle `centre` (page units), at its natural size as far as that
/// fits into `room`, with the proportions kept.
ObjectPtr MakeEmbedded(std::unique_ptr<EmbeddedItem> item, const Gdiplus::PointF& centre,
                       const Gdiplus::SizeF& room);

}  // namespace Studio
