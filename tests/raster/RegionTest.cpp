#include "raster/Region.h"

#include "raster/Truth.h"

#include <gtest/gtest.h>

namespace raster {

namespace {

constexpr int kWidth = 23, kHeight = 17;

// The same set of pixels as a region and as a bitmap.
struct Both {
    Region region;
    std::vector<bool> bitmap = std::vector<bool>(kWidth * kHeight);

    static Both Of(const IntRect& rect) {
        Both both{Region(rect)};
        for (int i = 0; i < kWidth * kHeight; ++i)
            both.bitmap[i] = rect.Contains(i % kWidth, i / kWidth);
        return both;
    }

    void Apply(const Both& other, Combine how) {
        region.Apply(other.region, how);
        for (size_t i = 0; i < bitmap.size(); ++i) {
            const bool a = bitmap[i], b = other.bitmap[i];
            const bool results[] = {b, a && b, a || b, a != b, a && !b, b && !a};
            bitmap[i] = results[static_cast<int>(how)];
        }
    }

    // The region made anew, row by row: it must be the same to the last band.
    Region Again() const {
        Region again;
        for (int y = 0; y < kHeight; ++y) {
            std::vector<Region::Span> row;
            for (int x = 0; x < kWidth; ++x) {
                if (bitmap[y * kWidth + x])
                    row.push_back({x, x + 1});
            }
            again.Append(y, row);
        }
        return again;
    }
};

}  // namespace

TEST(RegionTest, AlgebraIsThatOfBitmaps) {
    for (int seed = 0; seed < 200; ++seed) {
        Random random(seed);
        const auto rectangle = [&] {
            const int left = random.Below(kWidth), top = random.Below(kHeight);
            return Both::Of(
                {left, top, left + random.Below(kWidth - left + 1), top + random.Below(kHeight - top + 1)});
        };
        Both all[2];
        for (Both& both : all) {
            for (int i = 0; i < 6; ++i)
                both.Apply(rectangle(), static_cast<Combine>(2 + random.Below(3)));
        }
        all[0].Apply(all[1], static_cast<Combine>(seed % 6));
        const Both& result = all[0];
        ASSERT_TRUE(result.region == result.Again()) << seed;
        EXPECT_TRUE(result.region.Bounds() == result.Again().Bounds()) << seed;
        for (int i = 0; i < kWidth * kHeight; ++i)
            ASSERT_EQ(result.region.Contains(i % kWidth, i / kWidth), result.bitmap[i]) << seed;
        int area = 0;
        for (const IntRect& rect : result.region.Rectangles()) {
            area += rect.Width() * rect.Height();
            EXPECT_TRUE(result.region.Touches(rect));
        }
        EXPECT_EQ(area, std::count(result.bitmap.begin(), result.bitmap.end(), true));
        Region moved = result.region;
        moved.Move(5, -3);
        EXPECT_EQ(moved.Contains(5 + 7, 9 - 3), result.region.Contains(7, 9));
        moved.Move(-5, 3);
        EXPECT_TRUE(moved == result.region);
    }
}

TEST(RegionTest, EverythingHasAnOutside) {
    Region region = Region::Everything();
    region.Apply(Region({3, 4, 9, 6}), Combine::Exclude);
    EXPECT_FALSE(region.Contains(3, 4));
    EXPECT_TRUE(region.Contains(9, 5));
    EXPECT_TRUE(region.Contains(-100000, 100000));
    region.Apply(Region::Everything(), Combine::Complement);
    EXPECT_TRUE(region == Region({3, 4, 9, 6}));
    EXPECT_FALSE(region.Touches({9, 4, 12, 6}));
    region.Move(kFarthestPixel, 0);
    EXPECT_TRUE(region.Empty());
}

}  // namespace raster
