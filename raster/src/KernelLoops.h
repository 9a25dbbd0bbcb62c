// The loops of Kernels.h, over a type that holds several pixels. Each source that includes this has functions
// of its own of it, compiled for its instruction set; nothing here may be shared between them.
//
// Lanes has kCount pixels and: Load, Store, Fill(color), Masks(mask) (each coverage in all channels of its
// pixel), Alphas(a) (each alpha likewise), Scale(a, factors), Inverse(a) (255 - a), Add(a, b).

namespace {

template <class Lanes>
struct Loops {
    using Value = typename Lanes::Value;

    static Value Over(Value above, Value below) {
        return Lanes::Add(above, Lanes::Scale(below, Lanes::Inverse(Lanes::Alphas(above))));
    }

    static int BlendColor(uint32_t* to, int count, uint32_t color) {
        const Value above = Lanes::Fill(color);
        const Value rest = Lanes::Inverse(Lanes::Alphas(above));
        int i = 0;
        for (; i + Lanes::kCount <= count; i += Lanes::kCount)
            Lanes::Store(to + i, Lanes::Add(above, Lanes::Scale(Lanes::Load(to + i), rest)));
        return i;
    }

    static int BlendColorMask(uint32_t* to, int count, uint32_t color, const uint8_t* mask) {
        const Value whole = Lanes::Fill(color);
        int i = 0;
        for (; i + Lanes::kCount <= count; i += Lanes::kCount) {
            if (Lanes::Nothing(mask + i))
                continue;
            const Value above = Lanes::Scale(whole, Lanes::Masks(mask + i));
            Lanes::Store(to + i, Over(above, Lanes::Load(to + i)));
        }
        return i;
    }

    static int BlendPixels(uint32_t* to, int count, const uint32_t* from) {
        int i = 0;
        for (; i + Lanes::kCount <= count; i += Lanes::kCount)
            Lanes::Store(to + i, Over(Lanes::Load(from + i), Lanes::Load(to + i)));
        return i;
    }

    static int BlendPixelsMask(uint32_t* to, int count, const uint32_t* from, const uint8_t* mask) {
        int i = 0;
        for (; i + Lanes::kCount <= count; i += Lanes::kCount) {
            const Value above = Lanes::Scale(Lanes::Load(from + i), Lanes::Masks(mask + i));
            Lanes::Store(to + i, Over(above, Lanes::Load(to + i)));
        }
        return i;
    }

    static int CopyPixelsMask(uint32_t* to, int count, const uint32_t* from, const uint8_t* mask) {
        int i = 0;
        for (; i + Lanes::kCount <= count; i += Lanes::kCount) {
            const Value cover = Lanes::Masks(mask + i);
            const Value above = Lanes::Scale(Lanes::Load(from + i), cover);
            Lanes::Store(to + i, Lanes::Add(above, Lanes::Scale(Lanes::Load(to + i), Lanes::Inverse(cover))));
        }
        return i;
    }
};

// What wider loops leave over goes to the narrower ones, out of line: mostly that is nothing.
template <class Wide, class Middle, class Narrow>
struct InTurn {
    static void BlendColor(uint32_t* to, int count, uint32_t color) {
        int done = Loops<Wide>::BlendColor(to, count, color);
        if (done < count)
            done += Loops<Middle>::BlendColor(to + done, count - done, color);
        if (done < count)
            BlendColorRest(to + done, count - done, color);
    }
    static void BlendColorMask(uint32_t* to, int count, uint32_t color, const uint8_t* mask) {
        const int done = Loops<Wide>::BlendColorMask(to, count, color, mask);
        if (done < count)
            BlendColorMaskRest(to + done, count - done, color, mask + done);
    }
    static void BlendColorMasks(uint32_t* to, intptr_t stride, int count, int rows, uint32_t color,
                                const uint8_t* mask, intptr_t maskStride) {
        for (int row = 0; row < rows; ++row, mask += maskStride) {
            BlendColorMask(to, count, color, mask);
            to = reinterpret_cast<uint32_t*>(reinterpret_cast<uint8_t*>(to) + stride);
        }
    }
    static void BlendColorRows(uint32_t* to, intptr_t stride, int count, int rows, uint32_t color) {
        for (int row = 0; row < rows; ++row) {
            BlendColor(to, count, color);
            to = reinterpret_cast<uint32_t*>(reinterpret_cast<uint8_t*>(to) + stride);
        }
    }
    static void BlendPixels(uint32_t* to, int count, const uint32_t* from) {
        int done = Loops<Wide>::BlendPixels(to, count, from);
        done += Loops<Middle>::BlendPixels(to + done, count - done, from + done);
        Loops<Narrow>::BlendPixels(to + done, count - done, from + done);
    }
    static void BlendPixelsMask(uint32_t* to, int count, const uint32_t* from, const uint8_t* mask) {
        int done = Loops<Wide>::BlendPixelsMask(to, count, from, mask);
        done += Loops<Middle>::BlendPixelsMask(to + done, count - done, from + done, mask + done);
        Loops<Narrow>::BlendPixelsMask(to + done, count - done, from + done, mask + done);
    }
    static void CopyPixelsMask(uint32_t* to, int count, const uint32_t* from, const uint8_t* mask) {
        int done = Loops<Wide>::CopyPixelsMask(to, count, from, mask);
        done += Loops<Middle>::CopyPixelsMask(to + done, count - done, from + done, mask + done);
        Loops<Narrow>::CopyPixelsMask(to + done, count - done, from + done, mask + done);
    }
    static constexpr raster::Kernels kTable = {BlendColor,      BlendColorMask, BlendColorMasks, BlendPixels,
                                               BlendPixelsMask, CopyPixelsMask, BlendColorRows};

private:
    [[gnu::noinline]] static void BlendColorRest(uint32_t* to, int count, uint32_t color) {
        Loops<Narrow>::BlendColor(to, count, color);
    }
    [[gnu::noinline]] static void BlendColorMaskRest(uint32_t* to, int count, uint32_t color,
                                                     const uint8_t* mask) {
        const int done = Loops<Middle>::BlendColorMask(to, count, color, mask);
        Loops<Narrow>::BlendColorMask(to + done, count - done, color, mask + done);
    }
};

// One pixel, its channels in the halves of two words.
struct OnePixel {
    struct Value {
        uint32_t even, odd;  // blue and red, green and alpha
    };
    static constexpr int kCount = 1;

    static Value Split(uint32_t pixel) { return {pixel & 0x00FF00FF, pixel >> 8 & 0x00FF00FF}; }
    static Value Load(const uint32_t* from) { return Split(*from); }
    static void Store(uint32_t* to, Value v) { *to = v.even | v.odd << 8; }
    static Value Fill(uint32_t color) { return Split(color); }
    static bool Nothing(const uint8_t* mask) { return *mask == 0; }
    static Value Masks(const uint8_t* mask) { return {*mask * 0x00010001u, *mask * 0x00010001u}; }
    static Value Alphas(Value v) { return {(v.odd >> 16) * 0x00010001u, (v.odd >> 16) * 0x00010001u}; }
    static Value Inverse(Value v) { return {0x00FF00FF - v.even, 0x00FF00FF - v.odd}; }
    static Value Add(Value a, Value b) { return {Saturate(a.even + b.even), Saturate(a.odd + b.odd)}; }
    static Value Scale(Value v, Value factors) {
        return {ScaleHalves(v.even, factors.even), ScaleHalves(v.odd, factors.odd)};
    }

private:
    // Pixels whose channels exceed their alpha are not sound, but must give the same in every set.
    static uint32_t Saturate(uint32_t halves) {
        const uint32_t over = halves >> 8 & 0x00010001;
        return (halves | over * 255) & 0x00FF00FF;
    }
    static uint32_t ScaleHalves(uint32_t halves, uint32_t factors) {
        const uint32_t low = (halves & 255) * (factors & 255) + 128;
        const uint32_t high = (halves >> 16) * (factors >> 16) + 128;
        return ((low + (low >> 8)) >> 8) | ((high + (high >> 8)) >> 8) << 16;
    }
};

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
        __builtin_memcpy(&word, mask, sizeof(word));
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
        // Times 257 and the upper half is (product + product / 256) / 256.
        const __m128i product = _mm_add_epi16(_mm_mullo_epi16(v, factors), _mm_set1_epi16(128));
        return _mm_mulhi_epu16(product, _mm_set1_epi16(257));
    }
};
#endif

}  // namespace
