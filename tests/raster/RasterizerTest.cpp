#include "raster/Rasterizer.h"

#include "raster/Truth.h"
#include "raster/src/CoverageBlock.h"

#include <limits>

#include <gtest/gtest.h>

namespace raster {

namespace {

Coverage Draw(const Path& path, int width, int height, FillRule rule, Edges edges,
              const Matrix& matrix = {}) {
    Coverage coverage(width, height);
    const Rect clip{0, 0, static_cast<double>(width), static_cast<double>(height)};
    Chains chains;
    Flatten(path, matrix, kTolerance, &clip, chains);
    Rasterizer rasterizer;
    rasterizer.Begin({0, 0, width, height});
    rasterizer.Add(chains, {});
    rasterizer.Finish(rule, edges, coverage);
    return coverage;
}

// Flattened far finer than what is drawn.
Chains Exact(const Path& path) {
    Chains chains;
    Flatten(path, {}, 1e-3, nullptr, chains);
    return chains;
}

// Lines, curves, figures that are open, cross themselves and hang over the clip.
Path RandomPath(Random& random, int figures, const Rect& area) {
    Path path;
    for (int figure = 0; figure < figures; ++figure) {
        path.StartFigure();
        const int pieces = 2 + random.Below(7);
        for (int i = 0; i < pieces; ++i) {
            if (random.Below(3) == 0) {
                const Point a = random.Within(area), b = random.Within(area);
                path.CurveTo(a, b, random.Within(area));
            } else {
                path.LineTo(random.Within(area));
            }
        }
        if (random.Below(2) == 0)
            path.Close();
    }
    return path;
}

void ExpectTruth(const Path& path, FillRule rule, int seed) {
    const Coverage drawn = Draw(path, 37, 29, rule, Edges::Smooth);
    const Chains exact = Exact(path);
    const Difference difference = CompareWithTruth(drawn, exact, rule);
    EXPECT_LE(difference.mean, 1) << seed;
    EXPECT_LE(difference.largest, 8) << seed << " at " << difference.x << ", " << difference.y;
}

}  // namespace

TEST(RasterizerTest, CoversTheAreaInside) {
    for (int seed = 0; seed < 60; ++seed) {
        Random random(seed);
        const Path path = RandomPath(random, 1 + seed % 3, {-11, -7, 45, 38});
        ExpectTruth(path, seed % 2 == 0 ? FillRule::Winding : FillRule::Alternate, seed);
    }
}

TEST(RasterizerTest, CoversEllipsesAndSlivers) {
    for (int seed = 0; seed < 30; ++seed) {
        Random random(seed);
        const Point at = random.Within({-5, -5, 30, 20});
        Path path;
        path.AddEllipse({at.x, at.y, at.x + random.Between(0.2, 30), at.y + random.Between(0.2, 30)});
        ExpectTruth(path, FillRule::Winding, seed);
        path.Clear();
        const Point corners[] = {at, at + Point{random.Between(20, 40), random.Between(0, 2)},
                                 at + Point{random.Between(0, 0.3), random.Between(0.1, 1)}};
        path.AddPolygon(corners);
        ExpectTruth(path, FillRule::Winding, seed);
    }
}

TEST(RasterizerTest, SharpEdgesTakeCentresAndThoseOnLeftAndUpperEdges) {
    for (int seed = 0; seed < 40; ++seed) {
        Random random(seed);
        Path path;
        // Corners on quarters of pixels, so that edges run through centres.
        for (int figure = 0; figure < 2; ++figure) {
            std::vector<Point> corners;
            for (int i = 0; i < 5; ++i)
                corners.push_back({(random.Below(200) - 20) / 4.0, (random.Below(160) - 20) / 4.0});
            path.AddPolygon(corners);
        }
        const FillRule rule = seed % 2 == 0 ? FillRule::Winding : FillRule::Alternate;
        const Coverage drawn = Draw(path, 41, 31, rule, Edges::Sharp);
        const Chains exact = Exact(path);
        for (int y = 0; y < 31; ++y) {
            const auto parts = InsideAt(exact, rule, y + 0.5);
            for (int x = 0; x < 41; ++x) {
                const bool inside = std::any_of(parts.begin(), parts.end(), [x](const auto& part) {
                    return part.first <= x + 0.5 && part.second > x + 0.5;
                });
                ASSERT_EQ(drawn.At(x, y) == 255, inside) << seed << ": " << x << ", " << y;
            }
        }
    }
}

TEST(RasterizerTest, APartIsAsTheWhole) {
    for (int seed = 0; seed < 20; ++seed) {
        Random random(seed);
        const Path path = RandomPath(random, 2, {-60, -70, 190, 140});
        const Edges edges = seed % 2 == 0 ? Edges::Smooth : Edges::Sharp;
        const Coverage whole = Draw(path, 150, 90, FillRule::Winding, edges);
        const IntRect clip{20 + random.Below(40), 10 + random.Below(30), 70 + random.Below(60),
                           50 + random.Below(30)};
        const Rect limits{1.0 * clip.left, 1.0 * clip.top, 1.0 * clip.right, 1.0 * clip.bottom};
        Chains chains;
        Flatten(path, {}, kTolerance, &limits, chains);
        Rasterizer rasterizer;
        rasterizer.Begin(clip);
        rasterizer.Add(chains, {});
        Coverage part(150, 90);
        rasterizer.Finish(FillRule::Winding, edges, part);
        for (int y = 0; y < 90; ++y) {
            for (int x = 0; x < 150; ++x)
                ASSERT_NEAR(part.At(x, y), clip.Contains(x, y) ? whole.At(x, y) : 0,
                            edges == Edges::Smooth ? 1 : 0)
                    << seed << ": " << x << ", " << y;
        }
    }
}

TEST(RasterizerTest, WideLoopsAddUpAsThePlainOnes) {
    Random random(3);
    for (int round = 0; round < 300; ++round) {
        std::vector<int> cells(24), same;
        for (int& cell : cells)
            cell = random.Below(round % 3 == 0 ? kWhole * 300 : 90000) - (round % 3 == 0 ? 1 << 24 : 45000);
        same = cells;
        uint8_t wide[24], plain[24];
        ASSERT_EQ(AddUp(cells.data(), 24, round - 99, wide), AddUpPlain(same.data(), 24, round - 99, plain));
        ASSERT_TRUE(std::equal(wide, wide + 24, plain)) << round;
        ASSERT_EQ(cells, same);
    }
}

TEST(RasterizerTest, TakesAnyNumber) {
    const double hostile[] = {
        0,     1e30,   -1e30, 3.4e38,       -3.4e38, std::numeric_limits<double>::infinity(),
        1e308, -1e308, 7.5,   std::nan(""), 1e-320,  2e9};
    Random random(7);
    for (int seed = 0; seed < 3000; ++seed) {
        Path path;
        for (int i = 0; i < 6; ++i) {
            const auto number = [&] {
                return random.Below(2) == 0 ? hostile[random.Below(12)] : random.Between(-9, 50);
            };
            const Point a{number(), number()}, b{number(), number()}, c{number(), number()};
            const int kind = random.Below(3);
            if (kind == 0)
                path.CurveTo(a, b, c);
            else if (kind == 1)
                path.AddArc({a.x, a.y, b.x, b.y}, c.x, c.y);
            else
                path.LineTo(a);
        }
        Draw(path, 33, 21, FillRule::Alternate, seed % 3 == 0 ? Edges::Sharp : Edges::Smooth,
             {1, 0.1, 3, 1e9, 0, 1e20});
        Draw(path, 33, 21, FillRule::Winding, seed % 3 == 0 ? Edges::Sharp : Edges::Smooth);
    }
    // Far larger than the clip, it still covers it.
    Path path;
    path.AddEllipse({-1e30, -1e30, 1e30, 1e30});
    EXPECT_EQ(Draw(path, 33, 21, FillRule::Winding, Edges::Smooth).At(17, 20), 255);
}

TEST(PathTest, ArcsBeginAndEndOnTheRayOfTheirAngle) {
    Path path;
    path.AddArc({-40, -10, 40, 10}, 45, 90);  // the ray of 45 degrees meets the flat ellipse where x = y
    const Point start = path.Points().front().at, end = path.Points().back().at;
    EXPECT_NEAR(start.x, start.y, 1e-9);
    EXPECT_NEAR(start.x * start.x / 1600 + start.y * start.y / 100, 1, 1e-9);
    EXPECT_NEAR(end.x, -start.x, 1e-9);
    EXPECT_NEAR(end.y, start.y, 1e-9);

    for (const double sweep : {-700.0, -360.0, -123.0, 17.0, 200.0, 360.0}) {
        path.Clear();
        path.AddArc({3, 5, 33, 25}, 210, sweep);
        Chains chains;
        Flatten(path, {}, 1e-3, nullptr, chains);
        double turned = 0;
        Point before{};
        for (const Chains::Vertex& vertex : chains.vertices) {
            const Point unit{(vertex.at.x - 18) / 15, (vertex.at.y - 15) / 10};
            EXPECT_NEAR(Length(unit), 1, 5e-4);
            if (!(before == Point{}))
                turned += std::atan2(Cross(before, unit), Dot(before, unit));
            before = unit;
        }
        EXPECT_EQ(turned > 0, sweep > 0);
        EXPECT_NEAR(std::abs(turned), std::min(std::abs(sweep), 360.0) * 3.14159265 / 180, 0.5) << sweep;
    }
}

}  // namespace raster
