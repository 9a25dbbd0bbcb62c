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

// What the wide loops leave over goes to the narrow ones.
template <class Wide, class Narrow>
struct Both {
    static void BlendColor(uint32_t* to, int count, uint32_t color) {
        const int done = Loops<Wide>::BlendColor(to, count, color);
        Loops<Narrow>::BlendColor(to + done, count - done, color);
    }
    static void BlendColorMask(uint32_t* to, int count, uint32_t color, const uint8_t* mask) {
        const int done = Loops<Wide>::BlendColorMask(to, count, color, mask);
        Loops<Narrow>::BlendColorMask(to + done, count - done, color, mask + done);
    }
    static void BlendColorMasks(uint32_t* to, intptr_t stride, int count, int rows, uint32_t color,
                                const uint8_t* mask, intptr_t maskStride) {
        for (int row = 0; row < rows; ++row, mask += maskStride) {
            BlendColorMask(to, count, color, mask);
            to = reinterpret_cast<uint32_t*>(reinterpret_cast<uint8_t*>(to) + stride);
        }
    }
    static void BlendPixels(uint32_t* to, int count, const uint32_t* from) {
        const int done = Loops<Wide>::BlendPixels(to, count, from);
        Loops<Narrow>::BlendPixels(to + done, count - done, from + done);
    }
    static void BlendPixelsMask(uint32_t* to, int count, const uint32_t* from, const uint8_t* mask) {
        const int done = Loops<Wide>::BlendPixelsMask(to, count, from, mask);
        Loops<Narrow>::BlendPixelsMask(to + done, count - done, from + done, mask + done);
    }
    static void CopyPixelsMask(uint32_t* to, int count, const uint32_t* from, const uint8_t* mask) {
        const int done = Loops<Wide>::CopyPixelsMask(to, count, from, mask);
        Loops<Narrow>::CopyPixelsMask(to + done, count - done, from + done, mask + done);
    }
    static constexpr raster::Kernels kTable = {BlendColor,  BlendColorMask,  BlendColorMasks,
                                               BlendPixels, BlendPixelsMask, CopyPixelsMask};
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

}  // namespace
