// How a clipboard format becomes the platform's full description.
#pragma once

#include <objidl.h>

/// The description of a format: the given one, or the content in any of the media.
inline FORMATETC FormatFor(CLIPFORMAT format, const FORMATETC* given, DWORD media) {
    FORMATETC result{format, nullptr, DVASPECT_CONTENT, -1, media};
    if (given) {
        result = *given;
        if (format)
            result.cfFormat = format;
    }
    return result;
}
