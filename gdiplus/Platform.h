// The declarations of the flat interface, without the classes that call it.
#pragma once

#include <windows.h>
#include <objidl.h>
#include <wincodec.h>

#include <cmath>
#include <cstddef>

struct IDirectDrawSurface7;

namespace Gdiplus {

typedef float REAL;
typedef SHORT INT16;
typedef WORD UINT16;

#include <gdiplus/gdiplusenums.h>
#include <gdiplus/gdiplustypes.h>
#include <gdiplus/gdiplusgpstubs.h>
#include <gdiplus/gdiplusimaging.h>
#include <gdiplus/gdiplusinit.h>
#include <gdiplus/gdiplusmem.h>
#include <gdiplus/gdiplusmetaheader.h>
#include <gdiplus/gdipluspixelformats.h>
#include <gdiplus/gdipluscolor.h>
#include <gdiplus/gdipluscolormatrix.h>
#include <gdiplus/gdiplusflat.h>

}  // namespace Gdiplus
