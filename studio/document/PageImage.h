// Pictures of pages that no window shows.
#pragma once

#include "studio/document/PageContents.h"

namespace Studio {

/// Draws objects as their page shows them, without handles and grid. Objects that are marked removed are left
/// out.
void DrawObjects(Gdiplus::Graphics& g, const Lumo::CUIObjectDeque& objects);

/// The rectangle around everything that objects paint, in page units; empty when there is nothing.
Gdiplus::RectF PaintedBounds(const Lumo::CUIObjectDeque& objects);

/// A picture of a page from its corner to the end of what is on it; of an empty page, a small one.
std::unique_ptr<Gdiplus::Bitmap> DrawPage(const Lumo::CUIObjectDeque& objects);

/// Draws objects in the middle of a field of `size` at the origin, scaled down as far as they do not fit.
void DrawFitted(Gdiplus::Graphics& g, const Lumo::CUIObjectDeque& objects, CSize size);

/// Writes a picture of a page as a PNG file, whole or not at all. Raises `FileFault` and the exceptions of
/// files.
void WritePagePicture(const Lumo::CUIObjectDeque& objects, const CString& path);

/// The encoder of PNG pictures. Raises `FileFault` when the system has none.
CLSID PngEncoder();

/// A picture as the bytes of a PNG file; empty when it cannot be made. Raises `FileFault` as above.
std::vector<BYTE> EncodePng(Gdiplus::Bitmap& bitmap);

}  // namespace Studio
