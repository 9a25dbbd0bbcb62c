// Compiled for AVX2. It includes nothing with inline functions that other sources use: the linker keeps one
// of each, and that must not be the one for newer processors.
#include "KernelsAvx2.h"

#if defined(__AVX2__)

#include <immintrin.h>

#include "KernelLoops.h"

namespace {

// Eight pixels.
struct EightPixels {
    using Value = __m256i;
    static constexpr int kCount = 8;

    static Value Load(const uint32_t* from) {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from));
    }
    static void Store(uint32_t* to, Value v) { _mm256_storeu_si256(reinterpret_cast<__m256i*>(to), v); }
    static Value Fill(uint32_t color) { return _mm256_set1_epi32(static_cast<int>(color)); }
    static __m128i Bytes(const uint8_t* mask) {
        return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(mask));
    }
    static bool Nothing(const uint8_t* mask) {
        const __m128i bytes = Bytes(mask);
        return _mm_testz_si128(bytes, bytes) != 0;
    }
    static Value Masks(const uint8_t* mask) { return Spread(_mm256_cvtepu8_epi32(Bytes(mask))); }
    static Value Alphas(Value v) { return Spread(_mm256_srli_epi32(v, 24)); }
    static Value Inverse(Value v) { return _mm256_xor_si256(v, _mm256_set1_epi8(-1)); }
    static Value Add(Value a, Value b) { return _mm256_adds_epu8(a, b); }
    static Value Scale(Value v, Value factors) {
        const __m256i zero = _mm256_setzero_si256();
        return _mm256_packus_epi16(
            Scale16(_mm256_unpacklo_epi8(v, zero), _mm256_unpacklo_epi8(factors, zero)),
            Scale16(_mm256_unpackhi_epi8(v, zero), _mm256_unpackhi_epi8(factors, zero)));
    }

private:
    // The lowest byte of each pixel into all of its bytes.
    static __m256i Spread(__m256i v) {
        const __m256i pairs = _mm256_or_si256(v, _mm256_slli_epi32(v, 8));
        return _mm256_or_si256(pairs, _mm256_slli_epi32(pairs, 16));
    }
    static __m256i Scale16(__m256i v, __m256i factors) {
        const __m256i product = _mm256_add_epi16(_mm256_mullo_epi16(v, factors), _mm256_set1_epi16(128));
        return _mm256_mulhi_epu16(product, _mm256_set1_epi16(257));
    }
};

}  // namespace

const raster::Kernels* raster::Avx2Kernels() {
    return __builtin_cpu_supports("avx2") ? &InTurn<EightPixels, FourPixels, OnePixel>::kTable : nullptr;
}

#else

const raster::Kernels* raster::Avx2Kernels() {
    return nullptr;
}

#endif
