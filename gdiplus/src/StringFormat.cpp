#include "gdiplus/FontObject.h"

namespace flat {

namespace {

template <class T>
GpStatus Set(GpStringFormat* format, T FormatObject::*member, T value) {
    return Answer([&] { Get<FormatObject>(format).*member = value; });
}

template <class T>
GpStatus Read(const GpStringFormat* format, T FormatObject::*member, T* value) {
    return Answer([&] { Out(value) = Get<FormatObject>(format).*member; });
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreateStringFormat(INT flags, LANGID language, GpStringFormat** format) {
    return Answer([&] {
        auto own = std::make_unique<FormatObject>();
        own->flags = flags;
        own->language = language;
        Give(format, std::move(own));
    });
}

GpStatus WINGDIPAPI GdipStringFormatGetGenericDefault(GpStringFormat** format) {
    return GdipCreateStringFormat(0, 0, format);
}

GpStatus WINGDIPAPI GdipStringFormatGetGenericTypographic(GpStringFormat** format) {
    return Answer([&] {
        auto own = std::make_unique<FormatObject>();
        own->flags = StringFormatFlagsNoFitBlackBox | StringFormatFlagsLineLimit | StringFormatFlagsNoClip;
        own->trimming = StringTrimmingNone;
        own->margin = 0;
        Give(format, std::move(own));
    });
}

GpStatus WINGDIPAPI GdipDeleteStringFormat(GpStringFormat* format) {
    return Answer([&] { Destroy<FormatObject>(format); });
}

GpStatus WINGDIPAPI GdipCloneStringFormat(const GpStringFormat* format, GpStringFormat** clone) {
    return Answer([&] { Give(clone, std::make_unique<FormatObject>(Get<FormatObject>(format))); });
}

GpStatus WINGDIPAPI GdipSetStringFormatFlags(GpStringFormat* format, INT flags) {
    return Set(format, &FormatObject::flags, flags);
}

GpStatus WINGDIPAPI GdipGetStringFormatFlags(const GpStringFormat* format, INT* flags) {
    return Read(format, &FormatObject::flags, flags);
}

GpStatus WINGDIPAPI GdipSetStringFormatAlign(GpStringFormat* format, StringAlignment align) {
    return Set(format, &FormatObject::align, align);
}

GpStatus WINGDIPAPI GdipGetStringFormatAlign(const GpStringFormat* format, StringAlignment* align) {
    return Read(format, &FormatObject::align, align);
}

GpStatus WINGDIPAPI GdipSetStringFormatLineAlign(GpStringFormat* format, StringAlignment align) {
    return Set(format, &FormatObject::lineAlign, align);
}

GpStatus WINGDIPAPI GdipGetStringFormatLineAlign(const GpStringFormat* format, StringAlignment* align) {
    return Read(format, &FormatObject::lineAlign, align);
}

GpStatus WINGDIPAPI GdipSetStringFormatTrimming(GpStringFormat* format, StringTrimming trimming) {
    return Set(format, &FormatObject::trimming, trimming);
}

GpStatus WINGDIPAPI GdipGetStringFormatTrimming(const GpStringFormat* format, StringTrimming* trimming) {
    return Read(format, &FormatObject::trimming, trimming);
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
