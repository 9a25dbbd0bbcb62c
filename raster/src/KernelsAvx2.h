// The loops that KernelsAvx2.cpp has.
#pragma once

#include "raster/Kernels.h"

namespace raster {

/// Null where the build or the processor does not have the instructions.
const Kernels* Avx2Kernels();

}  // namespace raster
