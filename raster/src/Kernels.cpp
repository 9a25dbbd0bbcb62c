#include "raster/Kernels.h"

#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "KernelLoops.h"
#include "KernelsAvx2.h"

namespace {

#if defined(__SSE2__)
// Four pixels.
struct FourPixels {
    using Value = __m128i;
    static constexpr int kCount = 4;

    static Value Load(const uint32_t* from) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
    }
    static void Store(uint32_t* to, Value v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(to), v); }
    static Value Fill(uint32_t color) { return _mm_set1_epi32(static_cast<int>(color)); }
    static int Word(const uint8_t* mask) {
        int word;
        std::memcpy(&word, mask, sizeof(word));
        return word;
    }
    static bool Nothing(const uint8_t* mask) { return Word(mask) == 0; }
    static Value Masks(const uint8_t* mask) {
        const __m128i bytes = _mm_cvtsi32_si128(Word(mask));
        const __m128i pairs = _mm_unpacklo_epi8(bytes, bytes);
        return _mm_unpacklo_epi16(pairs, pairs);
    }
    static Value Alphas(Value v) {
        const __m128i alpha = _mm_srli_epi32(v, 24);
        const __m128i pairs = _mm_or_si128(alpha, _mm_slli_epi32(alpha, 8));
        return _mm_or_si128(pairs, _mm_slli_epi32(pairs, 16));
    }
    static Value Inverse(Value v) { return _mm_xor_si128(v, _mm_set1_epi8(-1)); }
    static Value Add(Value a, Value b) { return _mm_adds_epu8(a, b); }
    static Value Scale(Value v, Value factors) {
        const __m128i zero = _mm_setzero_si128();
        return _mm_packus_epi16(Scale16(_mm_unpacklo_epi8(v, zero), _mm_unpacklo_epi8(factors, zero)),
                                Scale16(_mm_unpackhi_epi8(v, zero), _mm_unpackhi_epi8(factors, zero)));
    }

private:
    static __m128i Scale16(__m128i v, __m128i factors) {
        const __m128i product = _mm_add_epi16(_mm_mullo_epi16(v, factors), _mm_set1_epi16(128));
        return _mm_srli_epi16(_mm_add_epi16(product, _mm_srli_epi16(product, 8)), 8);
    }
};
using Base = Both<FourPixels, OnePixel>;
#else
using Base = Both<OnePixel, OnePixel>;
#endif

}  // namespace

namespace raster {

const Kernels& KernelsFor(Instructions set) {
    switch (set) {
        case Instructions::Scalar:
            return Both<OnePixel, OnePixel>::kTable;
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
