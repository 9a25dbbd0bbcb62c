// The project that Studio comes with: four pages that show a 16 by 16 matrix at work.
#pragma once

#include "studio/document/PageContents.h"

namespace Studio {

/// The pages overview, matrix, equaliser and levels in the language of the texts.
DocumentContents MakeDemoProject();

}  // namespace Studio
