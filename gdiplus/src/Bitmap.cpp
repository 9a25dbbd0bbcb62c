#include "gdiplus/BitmapObject.h"
#include "gdiplus/GraphicsObject.h"
#include "raster/Paint.h"

namespace flat {

namespace {

raster::Format ToFormat(PixelFormat format) {
    switch (format) {
        case PixelFormat32bppPARGB:
            return raster::Format::Premultiplied32;
        case PixelFormat32bppARGB:
            return raster::Format::Plain32;
        case PixelFormat32bppRGB:
            return raster::Format::Opaque32;
        case PixelFormat24bppRGB:
            return raster::Format::Opaque24;
        default:
            throw Refusal{NotImplemented};
    }
}

uint32_t ReadPlain(const raster::Surface& surface, int x, int y) {
    if (surface.format == raster::Format::Plain32)
        return *reinterpret_cast<const uint32_t*>(surface.At(x, y));
    return raster::Unpremultiply(raster::ReadPixel(surface, x, y));
}

void WritePlain(const raster::Surface& surface, int x, int y, uint32_t color) {
    uint8_t* const to = surface.At(x, y);
    if (surface.format == raster::Format::Premultiplied32)
        color = raster::Premultiply(color);
    else if (surface.format == raster::Format::Opaque32)
        color |= 0xFF000000;
    memcpy(to, &color, surface.format == raster::Format::Opaque24 ? 3 : 4);
}

// A rectangle of one in the place of a rectangle of the same size of the other.
void Copy(const raster::Surface& from, int fromX, int fromY, const raster::Surface& to, int toX, int toY,
          int width, int height) {
    for (int y = 0; y < height; ++y) {
        if (from.format == to.format) {
            memcpy(to.At(toX, toY + y), from.At(fromX, fromY + y),
                   static_cast<size_t>(width) * (from.format == raster::Format::Opaque24 ? 3 : 4));
            continue;
        }
        for (int x = 0; x < width; ++x)
            WritePlain(to, toX + x, toY + y, ReadPlain(from, fromX + x, fromY + y));
    }
}

}  // namespace

BitmapObject::BitmapObject(int across, int down, PixelFormat pixelFormat, INT rowBytes, BYTE* pixels)
    : width(across), height(down), format(pixelFormat), stride(rowBytes), bits(pixels) {
    ToFormat(format);
    Require(width > 0 && height > 0);
    if (bits)
        return;
    const int bytes = format == PixelFormat24bppRGB ? 3 : 4;
    Require(width <= (INT_MAX - 3) / bytes / height, OutOfMemory);
    stride = (width * bytes + 3) / 4 * 4;
    m_own.resize(static_cast<size_t>(stride) * static_cast<size_t>(height));
    bits = m_own.data();
}

raster::Surface BitmapObject::Surface() const {
    return {bits, stride, width, height, ToFormat(format)};
}

std::vector<uint32_t> BitmapObject::Premultiplied() const {
    std::vector<uint32_t> pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
    Copy(Surface(), 0, 0, {reinterpret_cast<uint8_t*>(pixels.data()), ptrdiff_t{4} * width, width, height}, 0,
         0, width, height);
    return pixels;
}

namespace {

// What LockBits keeps beside the pixels until they are unlocked.
constexpr UINT_PTR kDirect = 1, kCopied = 2;

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreateBitmapFromScan0(INT width, INT height, INT stride, PixelFormat format,
                                              BYTE* scan0, GpBitmap** bitmap) {
    return Answer([&] {
        Require(bitmap);
        *bitmap = nullptr;
        Require(width > 0 && height > 0);
        Require(!scan0 || (stride != 0 && stride % 4 == 0));
        Give(bitmap, std::make_unique<BitmapObject>(width, height, format, stride, scan0));
    });
}

GpStatus WINGDIPAPI GdipCloneImage(GpImage* image, GpImage** clone) {
    return Answer([&] {
        const BitmapObject& own = Get<BitmapObject>(image);
        auto copy = std::make_unique<BitmapObject>(own.width, own.height, own.format);
        flat::Copy(own.Surface(), 0, 0, copy->Surface(), 0, 0, own.width, own.height);
        copy->dpiX = own.dpiX;
        copy->dpiY = own.dpiY;
        Give(clone, std::move(copy));
    });
}

GpStatus WINGDIPAPI GdipDisposeImage(GpImage* image) {
    return Answer([&] { Destroy<BitmapObject>(image); });
}

GpStatus WINGDIPAPI GdipGetImageWidth(GpImage* image, UINT* width) {
    return Answer([&] { Out(width) = static_cast<UINT>(Get<BitmapObject>(image).width); });
}

GpStatus WINGDIPAPI GdipGetImageHeight(GpImage* image, UINT* height) {
    return Answer([&] { Out(height) = static_cast<UINT>(Get<BitmapObject>(image).height); });
}

GpStatus WINGDIPAPI GdipGetImageBounds(GpImage* image, GpRectF* bounds, GpUnit* unit) {
    return Answer([&] {
        const BitmapObject& own = Get<BitmapObject>(image);
        Require(bounds && unit);
        *bounds = {0, 0, static_cast<REAL>(own.width), static_cast<REAL>(own.height)};
        *unit = UnitPixel;
    });
}

GpStatus WINGDIPAPI GdipGetImagePixelFormat(GpImage* image, PixelFormat* format) {
    return Answer([&] { Out(format) = Get<BitmapObject>(image).format; });
}

GpStatus WINGDIPAPI GdipGetImageType(GpImage* image, ImageType* type) {
    return Answer([&] {
        Get<BitmapObject>(image);
        Out(type) = ImageTypeBitmap;
    });
}

GpStatus WINGDIPAPI GdipBitmapGetPixel(GpBitmap* bitmap, INT x, INT y, ARGB* color) {
    return Answer([&] {
        const BitmapObject& own = Get<BitmapObject>(bitmap);
        Require(color && own.Surface().Bounds().Contains(x, y));
        *color = ReadPlain(own.Surface(), x, y);
    });
}

GpStatus WINGDIPAPI GdipBitmapSetPixel(GpBitmap* bitmap, INT x, INT y, ARGB color) {
    return Answer([&] {
        const BitmapObject& own = Get<BitmapObject>(bitmap);
        Require(own.Surface().Bounds().Contains(x, y));
        WritePlain(own.Surface(), x, y, color);
    });
}

GpStatus WINGDIPAPI GdipBitmapLockBits(GpBitmap* bitmap, const GpRect* rect, UINT flags, PixelFormat format,
                                       BitmapData* data) {
    return Answer([&] {
        BitmapObject& own = Get<BitmapObject>(bitmap);
        Require(data);
        Require(!own.locked, WrongState);
        const raster::IntRect box =
            rect ? raster::IntRect{rect->X, rect->Y, rect->X + rect->Width, rect->Y + rect->Height}
                 : own.Surface().Bounds();
        Require(!box.Empty() && Intersect(box, own.Surface().Bounds()) == box);
        const int bytes = ToFormat(format) == raster::Format::Opaque24 ? 3 : 4;
        data->Width = static_cast<UINT>(box.Width());
        data->Height = static_cast<UINT>(box.Height());
        data->PixelFormat = format;
        if (format == own.format && !(flags & ImageLockModeUserInputBuf)) {
            data->Stride = own.stride;
            data->Scan0 = own.Surface().At(box.left, box.top);
            data->Reserved = kDirect;
        } else {
            if (!(flags & ImageLockModeUserInputBuf)) {
                data->Stride = (box.Width() * bytes + 3) / 4 * 4;
                data->Scan0 = GdipAlloc(static_cast<size_t>(data->Stride) * data->Height);
                Require(data->Scan0, OutOfMemory);
            }
            Require(data->Scan0);
            data->Reserved = kCopied | (flags & ImageLockModeUserInputBuf ? 4u : 0u) |
                             (flags & ImageLockModeWrite ? 8u : 0u) | static_cast<UINT_PTR>(box.left) << 8 |
                             static_cast<UINT_PTR>(box.top) << 32;
            if (flags & ImageLockModeRead)
                flat::Copy(own.Surface(), box.left, box.top,
                           {static_cast<uint8_t*>(data->Scan0), data->Stride, box.Width(), box.Height(),
                            ToFormat(format)},
                           0, 0, box.Width(), box.Height());
        }
        own.locked = true;
    });
}

GpStatus WINGDIPAPI GdipBitmapUnlockBits(GpBitmap* bitmap, BitmapData* data) {
    return Answer([&] {
        BitmapObject& own = Get<BitmapObject>(bitmap);
        Require(data);
        Require(own.locked, WrongState);
        own.locked = false;
        if ((data->Reserved & 3) != kCopied)
            return;
        const int x = static_cast<int>(data->Reserved >> 8 & 0xFFFFFF),
                  y = static_cast<int>(data->Reserved >> 32);
        const int width = static_cast<int>(data->Width), height = static_cast<int>(data->Height);
        if (data->Reserved & 8) {
            Require(Intersect({x, y, x + width, y + height}, own.Surface().Bounds()).Width() == width &&
                    Intersect({x, y, x + width, y + height}, own.Surface().Bounds()).Height() == height);
            flat::Copy({static_cast<uint8_t*>(data->Scan0), data->Stride, width, height,
                        ToFormat(data->PixelFormat)},
                       0, 0, own.Surface(), x, y, width, height);
        }
        if (!(data->Reserved & 4))
            GdipFree(data->Scan0);
    });
}

GpStatus WINGDIPAPI GdipGetImageGraphicsContext(GpImage* image, GpGraphics** graphics) {
    return Answer([&] {
        BitmapObject& own = Get<BitmapObject>(image);
        Give(graphics, std::make_unique<GraphicsObject>(own.Surface(), own.dpiX, own.dpiY));
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
