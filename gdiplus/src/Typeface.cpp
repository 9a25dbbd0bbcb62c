#include "gdiplus/Typeface.h"

namespace flat {

void ReleaseTypefaces() {}

}  // namespace flat
