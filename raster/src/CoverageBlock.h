// Cells of changes added up to coverage.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace raster {

inline constexpr int kWhole = 2 * 256 * 256;  // a cell wholly covered
inline constexpr int kBlock = 8;              // cells that are handled together

/// 255 of kWhole, rounded; in a way that has no number too large in the middle.
inline uint8_t ToCoverage(int cell) {
    const int area = std::abs(cell);
    return static_cast<uint8_t>(std::min((area - (area >> 8) + 256) >> 9, 255));
}

/// Whole cells, of which an odd number covers.
inline uint8_t AlternateCoverage(int cell) {
    return (cell / kWhole) % 2 != 0 ? 255 : 0;
}

/// As AddUpPlain, for those.
inline int AddUpAlternate(int* cells, int count, int sum, uint8_t* coverage) {
    for (int i = 0; i < count; ++i) {
        sum += cells[i];
        cells[i] = 0;
        coverage[i] = AlternateCoverage(sum);
    }
    return sum;
}

/// Adds up `count` cells (a multiple of kBlock) from `sum` on, writes what they cover and makes them 0.
/// Returns the last sum.
inline int AddUpPlain(int* cells, int count, int sum, uint8_t* coverage) {
    for (int i = 0; i < count; ++i) {
        sum += cells[i];
        cells[i] = 0;
        coverage[i] = ToCoverage(sum);
    }
    return sum;
}

#if defined(__SSE2__)

/// The same, to the last bit.
inline int AddUp(int* cells, int count, int sum, uint8_t* coverage) {
    const __m128i zero = _mm_setzero_si128(), half = _mm_set1_epi32(256);
    const auto prefix = [](__m128i v) {
        v = _mm_add_epi32(v, _mm_slli_si128(v, 4));
        return _mm_add_epi32(v, _mm_slli_si128(v, 8));
    };
    const auto covered = [&](__m128i v) {
        const __m128i sign = _mm_srai_epi32(v, 31);
        v = _mm_sub_epi32(_mm_xor_si128(v, sign), sign);
        return _mm_srli_epi32(_mm_add_epi32(_mm_sub_epi32(v, _mm_srli_epi32(v, 8)), half), 9);
    };
    __m128i before = _mm_set1_epi32(sum);
    for (int i = 0; i < count; i += kBlock) {
        auto* at = reinterpret_cast<__m128i*>(cells + i);
        const __m128i first = _mm_add_epi32(before, prefix(_mm_loadu_si128(at)));
        const __m128i second = _mm_add_epi32(_mm_shuffle_epi32(first, 0xFF), prefix(_mm_loadu_si128(at + 1)));
        before = _mm_shuffle_epi32(second, 0xFF);
        _mm_storeu_si128(at, zero);
        _mm_storeu_si128(at + 1, zero);
        const __m128i words = _mm_packs_epi32(covered(first), covered(second));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(coverage + i), _mm_packus_epi16(words, zero));
    }
    return _mm_cvtsi128_si32(before);
}

#else

inline int AddUp(int* cells, int count, int sum, uint8_t* coverage) {
    return AddUpPlain(cells, count, sum, coverage);
}

#endif

}  // namespace raster
