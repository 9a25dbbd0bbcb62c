// A pixel between four.
#pragma once

#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace raster {

/// Both, in parts of 256 of the second.
inline uint32_t Between(uint32_t a, uint32_t b, uint32_t part) {
    constexpr uint32_t halves = 0x00FF00FF, half = 0x00800080;
    const uint32_t low = (a & halves) * (256 - part) + (b & halves) * part + half;
    const uint32_t high = (a >> 8 & halves) * (256 - part) + (b >> 8 & halves) * part + half;
    return (low >> 8 & halves) | (high & ~halves);
}

/// Of two pixels at `upper` and two at `lower`, in parts of 256 of the right and of the lower ones.
inline uint32_t BilinearPlain(const uint32_t* upper, const uint32_t* lower, uint32_t across, uint32_t down) {
    return Between(Between(upper[0], lower[0], down), Between(upper[1], lower[1], down), across);
}

#if defined(__SSE2__)

/// The same, to the last bit.
inline uint32_t Bilinear(const uint32_t* upper, const uint32_t* lower, uint32_t across, uint32_t down) {
    const __m128i zero = _mm_setzero_si128(), half = _mm_set1_epi16(128);
    const auto load = [&](const uint32_t* from) {
        return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(from)), zero);
    };
    const auto all = [](uint32_t part) { return _mm_set1_epi16(static_cast<int16_t>(part)); };
    const __m128i column =
        _mm_add_epi16(_mm_mullo_epi16(load(upper), all(256 - down)), _mm_mullo_epi16(load(lower), all(down)));
    const __m128i both = _mm_srli_epi16(_mm_add_epi16(column, half), 8);
    const __m128i parts = _mm_mullo_epi16(both, _mm_unpacklo_epi64(all(256 - across), all(across)));
    const __m128i sum = _mm_add_epi16(_mm_add_epi16(parts, _mm_srli_si128(parts, 8)), half);
    return static_cast<uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(_mm_srli_epi16(sum, 8), zero)));
}

#else

inline uint32_t Bilinear(const uint32_t* upper, const uint32_t* lower, uint32_t across, uint32_t down) {
    return BilinearPlain(upper, lower, across, down);
}

#endif

}  // namespace raster
