#include "appearance/PictureFile.h"

#include <wincodec.h>

#include <memory>

// The one way to the factory that needs no COM on the calling thread; not every compiler's headers have it.
extern "C" HRESULT WINAPI WICCreateImagingFactory_Proxy(UINT version, IWICImagingFactory** factory);

namespace Lumo {

namespace {

constexpr ULONGLONG kMostPixels = 64'000'000;

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

template <class T>
using ComPtr = std::unique_ptr<T, Releaser>;

}  // namespace

bool IsOversizedPicture(LPCTSTR path) {
    IWICImagingFactory* factory = nullptr;
    if (FAILED(::WICCreateImagingFactory_Proxy(WINCODEC_SDK_VERSION, &factory)))
        return false;
    const ComPtr<IWICImagingFactory> factoryEnd(factory);
    IWICBitmapDecoder* decoder = nullptr;
    if (FAILED(factory->CreateDecoderFromFilename(path, nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                                  &decoder)))
        return false;
    const ComPtr<IWICBitmapDecoder> decoderEnd(decoder);
    IWICBitmapFrameDecode* frame = nullptr;
    if (FAILED(decoder->GetFrame(0, &frame)))
        return false;
    const ComPtr<IWICBitmapFrameDecode> frameEnd(frame);
    UINT width = 0, height = 0;
    return SUCCEEDED(frame->GetSize(&width, &height)) && ULONGLONG(width) * height > kMostPixels;
}

}  // namespace Lumo
