// What a page keeps of an embedded item of another program: its data and its last picture.
#pragma once

#include "core/Platform.h"

#include <memory>
#include <vector>

namespace Studio {

/// Nothing here changes once it is made: objects, undo steps and open items share it. The picture is what a
/// page shows, so that opening a page starts no other program; the data is read only when the item is opened.
class EmbeddedContents {
public:
    /// `name` is the user's name for the item's class, `data` a compound file (empty for an item that cannot
    /// be stored), `picture` a PNG file (empty for an item that draws nothing).
    EmbeddedContents(const CString& name, std::vector<BYTE> data, std::vector<BYTE> picture);
    ~EmbeddedContents();

    const CString& Name() const { return m_name; }
    const std::vector<BYTE>& Data() const { return m_data; }
    const std::vector<BYTE>& Picture() const { return m_picture; }

    /// The picture, decoded at the first call; null when there is none, or none that can be decoded.
    Gdiplus::Bitmap* Image() const;

    bool operator==(const EmbeddedContents& other) const;

    void Store(CArchive& ar) const;
    /// Raises the archive's exceptions, and `FileFault` for what was never stored. Takes no more memory than
    /// the bytes that are there justify, the later decoding of the picture included.
    static std::shared_ptr<const EmbeddedContents> Load(CArchive& ar);

    /// Pixels of the longer side of a picture, at most.
    static constexpr int kLargestSide = 2048;

private:
    const CString m_name;
    const std::vector<BYTE> m_data;
    const std::vector<BYTE> m_picture;
    mutable std::unique_ptr<Gdiplus::Bitmap> m_image;
    mutable bool m_decoded = false;
};

using EmbeddedContentsPtr = std::shared_ptr<const EmbeddedContents>;

}  // namespace Studio
