#include "appearance/PictureFile.h"

#include <wincodec.h>

#include <algorithm>
#include <map>
#include <memory>

// The one way to the factory that needs no COM on the calling thread; not every compiler's headers have it.
extern "C" HRESULT WINAPI WICCreateImagingFactory_Proxy(UINT version, IWICImagingFactory** factory);

namespace Lumo {

namespace {

constexpr ULONGLONG kMostBytes = 256ull << 20;
constexpr size_t kMostAnswers = 1000;

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

template <class T>
using ComPtr = std::unique_ptr<T, Releaser>;

// Calls one of the system's functions that hand out an object by their last argument; null when it fails.
template <class T, class Make>
ComPtr<T> Made(Make make) {
    T* object = nullptr;
    return ComPtr<T>(SUCCEEDED(make(&object)) ? object : nullptr);
}

// Whole bytes, so that a picture of two colours does not count less than what drawing it takes.
ULONGLONG BytesOfPixel(IWICImagingFactory& factory, IWICBitmapFrameDecode& frame) {
    constexpr ULONGLONG kMostUsual = 4;
    WICPixelFormatGUID format;
    if (FAILED(frame.GetPixelFormat(&format)))
        return kMostUsual;
    const auto component = Made<IWICComponentInfo>(
        [&](IWICComponentInfo** made) { return factory.CreateComponentInfo(format, made); });
    const auto info = Made<IWICPixelFormatInfo>([&](IWICPixelFormatInfo** made) {
        return component
                   ? component->QueryInterface(__uuidof(IWICPixelFormatInfo), reinterpret_cast<void**>(made))
                   : E_FAIL;
    });
    UINT bits = 0;
    return info && SUCCEEDED(info->GetBitsPerPixel(&bits)) ? (std::max)(1u, (bits + 7) / 8) : kMostUsual;
}

bool ClaimsTooMuch(LPCTSTR path) {
    const auto factory = Made<IWICImagingFactory>([](IWICImagingFactory** made) {
        return ::WICCreateImagingFactory_Proxy(WINCODEC_SDK_VERSION, made);
    });
    const auto decoder = Made<IWICBitmapDecoder>([&](IWICBitmapDecoder** made) {
        return factory ? factory->CreateDecoderFromFilename(path, nullptr, GENERIC_READ,
                                                            WICDecodeMetadataCacheOnDemand, made)
                       : E_FAIL;
    });
    const auto frame = Made<IWICBitmapFrameDecode>(
        [&](IWICBitmapFrameDecode** made) { return decoder ? decoder->GetFrame(0, made) : E_FAIL; });
    UINT width = 0, height = 0;
    return frame && SUCCEEDED(frame->GetSize(&width, &height)) &&
           ULONGLONG(width) * height > kMostBytes / BytesOfPixel(*factory, *frame);
}

struct Answer {
    WIN32_FILE_ATTRIBUTE_DATA file = {};
    bool oversized = false;
};

bool SameFile(const WIN32_FILE_ATTRIBUTE_DATA& a, const WIN32_FILE_ATTRIBUTE_DATA& b) {
    return ::CompareFileTime(&a.ftLastWriteTime, &b.ftLastWriteTime) == 0 &&
           a.nFileSizeLow == b.nFileSizeLow && a.nFileSizeHigh == b.nFileSizeHigh;
}

}  // namespace

bool IsOversizedPicture(LPCTSTR path) {
    static std::map<CString, Answer> answers;
    WIN32_FILE_ATTRIBUTE_DATA file;
    if (!::GetFileAttributesEx(path, GetFileExInfoStandard, &file))
        return false;
    const auto known = answers.find(path);
    if (known != answers.end() && SameFile(known->second.file, file))
        return known->second.oversized;
    if (answers.size() >= kMostAnswers)
        answers.clear();
    const bool oversized = ClaimsTooMuch(path);
    answers[path] = {file, oversized};
    return oversized;
}

}  // namespace Lumo
