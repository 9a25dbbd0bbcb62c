// Reading and writing files of pictures, through the platform's imaging component.
#include "gdiplus/BitmapObject.h"

#include <shlwapi.h>

namespace flat {

namespace {

// A reference to an interface.
template <class T>
class Com {
public:
    Com() = default;
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;
    ~Com() {
        if (m_pointer)
            m_pointer->Release();
    }
    T** operator&() { return &m_pointer; }
    T* operator->() const { return m_pointer; }
    operator T*() const { return m_pointer; }

private:
    T* m_pointer = nullptr;
};

struct Format {
    const wchar_t* name;
    const wchar_t* description;
    const wchar_t* extension;
    const wchar_t* mime;
    GUID id;         // of the format
    CLSID encoder;   // as callers know it
    GUID container;  // as the imaging component knows it
};

constexpr GUID FormatId(BYTE last) {
    return {0xb96b3c00u | last, 0x0728, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
}
constexpr CLSID EncoderId(BYTE last) {
    return {0x557cf400u | last, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
}

const Format kFormats[] = {
    {L"Built-in BMP Codec", L"BMP", L"*.BMP;*.DIB;*.RLE", L"image/bmp", FormatId(0xab), EncoderId(0x00),
     GUID_ContainerFormatBmp},
    {L"Built-in JPEG Codec", L"JPEG", L"*.JPG;*.JPEG;*.JPE;*.JFIF", L"image/jpeg", FormatId(0xae),
     EncoderId(0x01), GUID_ContainerFormatJpeg},
    {L"Built-in GIF Codec", L"GIF", L"*.GIF", L"image/gif", FormatId(0xb0), EncoderId(0x02),
     GUID_ContainerFormatGif},
    {L"Built-in TIFF Codec", L"TIFF", L"*.TIF;*.TIFF", L"image/tiff", FormatId(0xb1), EncoderId(0x05),
     GUID_ContainerFormatTiff},
    {L"Built-in PNG Codec", L"PNG", L"*.PNG", L"image/png", FormatId(0xaf), EncoderId(0x06),
     GUID_ContainerFormatPng},
};
constexpr UINT kFormatCount = 5;

void Check(HRESULT result, GpStatus otherwise = GenericError) {
    if (result == E_OUTOFMEMORY)
        throw std::bad_alloc();
    Require(SUCCEEDED(result), otherwise);
}

void MakeFactory(Com<IWICImagingFactory>& factory) {
    HRESULT result = CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IWICImagingFactory, reinterpret_cast<void**>(&factory));
    if (result == CO_E_NOTINITIALIZED) {
        // The caller's thread need not know of it; it stays so until the thread ends.
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        result = CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                  IID_IWICImagingFactory, reinterpret_cast<void**>(&factory));
    }
    Check(result);
}

std::unique_ptr<BitmapObject> Load(IStream* stream) {
    Com<IWICImagingFactory> factory;
    MakeFactory(factory);
    Com<IWICBitmapDecoder> decoder;
    Check(factory->CreateDecoderFromStream(stream, nullptr, WICDecodeMetadataCacheOnDemand, &decoder),
          OutOfMemory);
    Com<IWICBitmapFrameDecode> frame;
    Check(decoder->GetFrame(0, &frame), OutOfMemory);
    UINT width = 0, height = 0;
    Check(frame->GetSize(&width, &height));
    Require(width > 0 && height > 0 && width <= 1u << 20 && height <= 1u << 20, OutOfMemory);
    WICPixelFormatGUID native;
    Check(frame->GetPixelFormat(&native));
    const bool opaque = native == GUID_WICPixelFormat24bppBGR || native == GUID_WICPixelFormat24bppRGB ||
                        native == GUID_WICPixelFormat32bppBGR || native == GUID_WICPixelFormat8bppGray;
    Com<IWICFormatConverter> converter;
    Check(factory->CreateFormatConverter(&converter));
    Check(converter->Initialize(frame, opaque ? GUID_WICPixelFormat24bppBGR : GUID_WICPixelFormat32bppBGRA,
                                WICBitmapDitherTypeNone, nullptr, 0, WICBitmapPaletteTypeCustom),
          OutOfMemory);
    auto bitmap = std::make_unique<BitmapObject>(static_cast<int>(width), static_cast<int>(height),
                                                 opaque ? PixelFormat24bppRGB : PixelFormat32bppARGB);
    Check(converter->CopyPixels(nullptr, static_cast<UINT>(bitmap->stride),
                                static_cast<UINT>(bitmap->stride) * height, bitmap->bits),
          OutOfMemory);
    double x = 0, y = 0;
    if (SUCCEEDED(frame->GetResolution(&x, &y)) && x > 0 && y > 0) {
        bitmap->dpiX = static_cast<REAL>(x);
        bitmap->dpiY = static_cast<REAL>(y);
    }
    return bitmap;
}

void Save(const BitmapObject& bitmap, IStream* stream, const CLSID* encoderId) {
    Require(encoderId);
    const Format* format = nullptr;
    for (const Format& one : kFormats)
        if (one.encoder == *encoderId)
            format = &one;
    Require(format, UnknownImageFormat);
    Com<IWICImagingFactory> factory;
    MakeFactory(factory);
    Com<IWICBitmapEncoder> encoder;
    Check(factory->CreateEncoder(format->container, nullptr, &encoder));
    Check(encoder->Initialize(stream, WICBitmapEncoderNoCache));
    Com<IWICBitmapFrameEncode> frame;
    Check(encoder->CreateNewFrame(&frame, nullptr));
    Check(frame->Initialize(nullptr));
    const UINT width = static_cast<UINT>(bitmap.width), height = static_cast<UINT>(bitmap.height);
    Check(frame->SetSize(width, height));
    frame->SetResolution(bitmap.dpiX, bitmap.dpiY);
    const bool opaque = bitmap.format == PixelFormat24bppRGB || bitmap.format == PixelFormat32bppRGB;
    WICPixelFormatGUID wanted = opaque ? GUID_WICPixelFormat24bppBGR : GUID_WICPixelFormat32bppBGRA;
    Check(frame->SetPixelFormat(&wanted));
    std::vector<uint32_t> pixels = bitmap.Premultiplied();
    for (uint32_t& pixel : pixels)
        pixel = raster::Unpremultiply(pixel);
    Com<IWICBitmap> source;
    Check(factory->CreateBitmapFromMemory(width, height, GUID_WICPixelFormat32bppBGRA, width * 4,
                                          static_cast<UINT>(pixels.size() * 4),
                                          reinterpret_cast<BYTE*>(pixels.data()), &source));
    Com<IWICBitmapSource> converted;
    Check(WICConvertBitmapSource(wanted, source, &converted));
    Check(frame->WriteSource(converted, nullptr));
    Check(frame->Commit());
    Check(encoder->Commit());
}

void OpenStream(const WCHAR* name, bool write, Com<IStream>& stream) {
    Require(name);
    Com<IWICImagingFactory> factory;
    MakeFactory(factory);
    Com<IWICStream> file;
    Check(factory->CreateStream(&file));
    Check(file->InitializeFromFilename(name, write ? GENERIC_WRITE : GENERIC_READ),
          write ? GenericError : InvalidParameter);
    Check(file->QueryInterface(IID_IStream, reinterpret_cast<void**>(&stream)));
}

template <class H>
GpStatus FromFile(const WCHAR* name, H** out) {
    return Answer([&] {
        Require(out);
        Com<IStream> stream;
        OpenStream(name, false, stream);
        Give(out, Load(stream));
    });
}

template <class H>
GpStatus FromStream(IStream* stream, H** out) {
    return Answer([&] {
        Require(stream && out);
        Give(out, Load(stream));
    });
}

// Entries first, then their texts.
UINT CodecBytes() {
    size_t size = kFormatCount * sizeof(ImageCodecInfo);
    for (const Format& format : kFormats)
        for (const wchar_t* text : {format.name, format.description, format.extension, format.mime})
            size += (wcslen(text) + 1) * sizeof(wchar_t);
    return static_cast<UINT>(size);
}

GpStatus Codecs(UINT count, UINT size, ImageCodecInfo* out, DWORD kind) {
    return Answer([&] {
        Require(out && count == kFormatCount && size == CodecBytes());
        auto* texts = reinterpret_cast<wchar_t*>(out + kFormatCount);
        const auto put = [&](const wchar_t* text) {
            wchar_t* const at = texts;
            wcscpy(at, text);
            texts += wcslen(text) + 1;
            return at;
        };
        for (UINT i = 0; i < kFormatCount; ++i) {
            const Format& format = kFormats[i];
            out[i] = {};
            out[i].Clsid = format.encoder;
            out[i].FormatID = format.id;
            out[i].CodecName = put(format.name);
            out[i].FormatDescription = put(format.description);
            out[i].FilenameExtension = put(format.extension);
            out[i].MimeType = put(format.mime);
            out[i].Flags = kind | ImageCodecFlagsSupportBitmap | ImageCodecFlagsBuiltin;
            out[i].Version = 1;
        }
    });
}

GpStatus CodecSizes(UINT* count, UINT* size) {
    return Answer([&] {
        Require(count && size);
        *count = kFormatCount;
        *size = CodecBytes();
    });
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipLoadImageFromFile(const WCHAR* name, GpImage** image) {
    return FromFile(name, image);
}

GpStatus WINGDIPAPI GdipLoadImageFromStream(IStream* stream, GpImage** image) {
    return FromStream(stream, image);
}

GpStatus WINGDIPAPI GdipCreateBitmapFromFile(const WCHAR* name, GpBitmap** bitmap) {
    return FromFile(name, bitmap);
}

GpStatus WINGDIPAPI GdipCreateBitmapFromStream(IStream* stream, GpBitmap** bitmap) {
    return FromStream(stream, bitmap);
}

GpStatus WINGDIPAPI GdipSaveImageToStream(GpImage* image, IStream* stream, const CLSID* encoder,
                                          const EncoderParameters*) {
    return Answer([&] {
        Require(stream);
        Save(Get<BitmapObject>(image), stream, encoder);
    });
}

GpStatus WINGDIPAPI GdipSaveImageToFile(GpImage* image, const WCHAR* name, const CLSID* encoder,
                                        const EncoderParameters*) {
    return Answer([&] {
        const BitmapObject& own = Get<BitmapObject>(image);
        Com<IStream> stream;
        OpenStream(name, true, stream);
        Save(own, stream, encoder);
    });
}

GpStatus WINGDIPAPI GdipGetImageEncodersSize(UINT* count, UINT* size) {
    return CodecSizes(count, size);
}

GpStatus WINGDIPAPI GdipGetImageEncoders(UINT count, UINT size, ImageCodecInfo* encoders) {
    return Codecs(count, size, encoders, ImageCodecFlagsEncoder);
}

GpStatus WINGDIPAPI GdipGetImageDecodersSize(UINT* count, UINT* size) {
    return CodecSizes(count, size);
}

GpStatus WINGDIPAPI GdipGetImageDecoders(UINT count, UINT size, ImageCodecInfo* decoders) {
    return Codecs(count, size, decoders, ImageCodecFlagsDecoder);
}

GpStatus WINGDIPAPI GdipCreateBitmapFromHBITMAP(HBITMAP handle, HPALETTE, GpBitmap** bitmap) {
    return Answer([&] {
        BITMAP info{};
        Require(bitmap && GetObjectW(handle, sizeof info, &info) != 0);
        auto own = std::make_unique<BitmapObject>(info.bmWidth, info.bmHeight, PixelFormat32bppRGB);
        BITMAPINFO wanted{};
        wanted.bmiHeader.biSize = sizeof wanted.bmiHeader;
        wanted.bmiHeader.biWidth = info.bmWidth;
        wanted.bmiHeader.biHeight = -info.bmHeight;
        wanted.bmiHeader.biPlanes = 1;
        wanted.bmiHeader.biBitCount = 32;
        HDC dc = CreateCompatibleDC(nullptr);
        const int rows =
            GetDIBits(dc, handle, 0, static_cast<UINT>(info.bmHeight), own->bits, &wanted, DIB_RGB_COLORS);
        DeleteDC(dc);
        Require(rows == info.bmHeight, GenericError);
        Give(bitmap, std::move(own));
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
