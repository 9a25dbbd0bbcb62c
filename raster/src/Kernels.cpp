#include "raster/Kernels.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "KernelLoops.h"
#include "KernelsAvx2.h"

namespace {

#if defined(__SSE2__)
using Base = InTurn<FourPixels, OnePixel, OnePixel>;
#else
using Base = InTurn<OnePixel, OnePixel, OnePixel>;
#endif

}  // namespace

namespace raster {

const Kernels& KernelsFor(Instructions set) {
    switch (set) {
        case Instructions::Scalar:
            return InTurn<OnePixel, OnePixel, OnePixel>::kTable;
        case Instructions::Avx2:
            if (const Kernels* kernels = Avx2Kernels())
                return *kernels;
            [[fallthrough]];
        case Instructions::Sse2:
            break;
    }
    return Base::kTable;
}

const Kernels& BestKernels() {
    static const Kernels& best = KernelsFor(Instructions::Avx2);
    return best;
}

}  // namespace raster
