// The loops over premultiplied pixels, for each instruction set.
#pragma once

#include <cstdint>

namespace raster {

/// Instruction sets that this build knows. What they compute is the same to the last bit.
enum class Instructions { Scalar, Sse2, Avx2 };

/// Loops over `count` premultiplied pixels at `to`. `mask` has the coverage of each pixel.
struct Kernels {
    /// Puts `color` over the pixels.
    void (*blendColor)(uint32_t* to, int count, uint32_t color);
    void (*blendColorMask)(uint32_t* to, int count, uint32_t color, const uint8_t* mask);
    /// The same for `rows` rows; strides are in bytes.
    void (*blendColorMasks)(uint32_t* to, intptr_t stride, int count, int rows, uint32_t color,
                            const uint8_t* mask, intptr_t maskStride);
    /// Puts the pixels `from` over the pixels.
    void (*blendPixels)(uint32_t* to, int count, const uint32_t* from);
    void (*blendPixelsMask)(uint32_t* to, int count, const uint32_t* from, const uint8_t* mask);
    /// Replaces the pixels as far as they are covered.
    void (*copyPixelsMask)(uint32_t* to, int count, const uint32_t* from, const uint8_t* mask);
    /// `blendColor` for `rows` rows.
    void (*blendColorRows)(uint32_t* to, intptr_t stride, int count, int rows, uint32_t color);
};

/// The loops for a set; those of the best set below it where the processor does not have it.
const Kernels& KernelsFor(Instructions set);

/// The loops for this processor, chosen once.
const Kernels& BestKernels();

}  // namespace raster
