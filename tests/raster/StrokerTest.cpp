#include "raster/Stroker.h"

#include "raster/Rasterizer.h"
#include "raster/Truth.h"

#include <array>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

namespace raster {

namespace {

constexpr int kWidth = 45, kHeight = 33;

Coverage Draw(const Path& path, const Pen& pen, const Matrix& matrix) {
    Stroker stroker;
    stroker.Stroke(path, pen, matrix, {0, 0, kWidth, kHeight});
    Rasterizer rasterizer;
    rasterizer.Begin({0, 0, kWidth, kHeight});
    rasterizer.Add(stroker.Outline(), {}, stroker.Apart());
    Coverage coverage(kWidth, kHeight);
    rasterizer.Finish(FillRule::Winding, Edges::Smooth, coverage);
    return coverage;
}

// A stroke by its definition: the pieces it is made of, one on another, all turning the same way.
class Pieces {
public:
    Pieces(const Pen& pen, const Matrix& matrix) : m_pen(pen), m_matrix(matrix), m_half(pen.width / 2) {}

    const Chains& Get() const { return m_chains; }

    void Chain(std::vector<Chains::Vertex> chain, bool closed) {
        if (m_pen.dashes.empty()) {
            Solid(chain, closed, m_pen.startCap, m_pen.endCap);
            return;
        }
        if (closed)
            chain.push_back(chain[0]);
        double total = 0;
        for (const double dash : m_pen.dashes)
            total += dash * m_pen.width;
        double length = 0;
        for (size_t i = 0; i + 1 < chain.size(); ++i)
            length += Length(chain[i + 1].at - chain[i].at);
        for (double at = -std::fmod(m_pen.dashOffset * m_pen.width, total) - total; at < length;) {
            for (size_t i = 0; i < m_pen.dashes.size(); ++i) {
                const double end = at + m_pen.dashes[i] * m_pen.width;
                if (i % 2 == 0 && end > 0 && at < length)
                    Solid(Part(chain, std::max(at, 0.0), std::min(end, length)), false,
                          at <= 0 && !closed ? m_pen.startCap : m_pen.dashCap,
                          end >= length && !closed ? m_pen.endCap : m_pen.dashCap);
                at = end;
            }
        }
    }

private:
    static std::vector<Chains::Vertex> Part(const std::vector<Chains::Vertex>& chain, double from,
                                            double to) {
        std::vector<Chains::Vertex> part;
        double done = 0;
        for (size_t i = 0; i + 1 < chain.size(); ++i) {
            const Point way = chain[i + 1].at - chain[i].at;
            const double length = Length(way);
            const double first = std::max(from - done, 0.0), last = std::min(to - done, length);
            if (first < last) {
                if (part.empty())
                    part.push_back({chain[i].at + way * (first / length), false});
                part.push_back({chain[i].at + way * (last / length), last == length && chain[i + 1].smooth});
            }
            done += length;
        }
        return part;
    }

    void Solid(const std::vector<Chains::Vertex>& chain, bool closed, Cap start, Cap end) {
        const size_t count = chain.size();
        if (count < 2)
            return;
        for (size_t i = 0; i + (closed ? 0 : 1) < count; ++i) {
            const Point a = chain[i].at, b = chain[(i + 1) % count].at, across = Across(b - a);
            Add({a + across, b + across, b - across, a - across});
        }
        for (size_t i = closed ? 0 : 1; i + (closed ? 0 : 1) < count; ++i)
            Corner(chain[i], chain[(i + count - 1) % count].at, chain[(i + 1) % count].at);
        if (!closed) {
            End(chain[0].at, chain[0].at - chain[1].at, start);
            End(chain[count - 1].at, chain[count - 1].at - chain[count - 2].at, end);
        }
    }

    Point Across(Point way) const { return Point{way.y, -way.x} * (m_half / Length(way)); }

    void Corner(const Chains::Vertex& corner, Point before, Point after) {
        const Point in = corner.at - before, out = after - corner.at;
        const double side = Cross(in, out) > 0 ? 1 : -1;
        const Point a = Across(in) * side, b = Across(out) * side;
        const double angle = std::acos(std::clamp(Dot(in, out) / Length(in) / Length(out), -1.0, 1.0));
        Add({corner.at, corner.at + a, corner.at + b});
        if (corner.smooth || m_pen.join == Join::Bevel)
            return;
        if (m_pen.join == Join::Round) {
            Sector(corner.at, a, side * angle);
            return;
        }
        const Point middle = (a + b) * (1 / Length(a + b));
        const double miter = 1 / std::cos(angle / 2);
        if (miter <= m_pen.miterLimit) {
            Add({corner.at + a, corner.at + middle * (miter * m_half), corner.at + b});
        } else if (m_pen.join == Join::Miter) {
            const double reach = (m_pen.miterLimit - std::cos(angle / 2)) / std::sin(angle / 2) * m_half;
            Add({corner.at + a, corner.at + a + in * (reach / Length(in)),
                 corner.at + b - out * (reach / Length(out)), corner.at + b});
        }
    }

    void End(Point at, Point outward, Cap cap) {
        const Point across = Across(outward), out = outward * (m_half / Length(outward));
        if (cap == Cap::Square)
            Add({at + across, at + across + out, at - across + out, at - across});
        else if (cap == Cap::Triangle)
            Add({at + across, at + out, at - across});
        else if (cap == Cap::Round)
            Sector(at, across, std::numbers::pi);
    }

    void Sector(Point at, Point from, double turn) {
        std::vector<Point> points = {at};
        for (int i = 0; i <= 128; ++i)
            points.push_back(at + Matrix::Rotation(turn * i / 128).MapVector(from));
        Add(points);
    }

    void Add(std::vector<Point> points) {
        double area = 0;
        for (Point& point : points)
            point = m_matrix.Map(point);
        for (size_t i = 0; i < points.size(); ++i)
            area += Cross(points[i], points[(i + 1) % points.size()]);
        if (area < 0)
            std::reverse(points.begin(), points.end());
        m_chains.chains.push_back({m_chains.vertices.size(), points.size(), true});
        for (const Point& point : points)
            m_chains.vertices.push_back({point, false});
    }

    const Pen& m_pen;
    Matrix m_matrix;
    double m_half;
    Chains m_chains;
};

void ExpectTruth(const Path& path, const Pen& pen, const Matrix& matrix, int seed) {
    Chains flat;
    Flatten(path, {}, 1e-4, nullptr, flat);
    Pieces pieces(pen, matrix);
    for (const Chains::Chain& chain : flat.chains) {
        const auto vertices = flat.Of(chain);
        pieces.Chain({vertices.begin(), vertices.end()}, chain.closed);
    }
    const Difference difference = CompareWithTruth(Draw(path, pen, matrix), pieces.Get(), FillRule::Winding);
    EXPECT_LE(difference.mean, 1) << seed;
    EXPECT_LE(difference.largest, 8) << seed << " at " << difference.x << ", " << difference.y;
}

Pen RandomPen(Random& random) {
    Pen pen;
    pen.width = random.Between(1, 6);
    pen.join = static_cast<Join>(random.Below(4));
    pen.miterLimit = random.Between(1, 4);
    pen.startCap = static_cast<Cap>(random.Below(4));
    pen.endCap = static_cast<Cap>(random.Below(4));
    pen.dashCap = static_cast<Cap>(random.Below(4));
    return pen;
}

Path RandomChain(Random& random) {
    Path path;
    for (int i = 2 + random.Below(4); i > 0; --i)
        path.LineTo(random.Within({-5, -5, 50, 38}));
    if (path.Points().size() > 2 && random.Below(2) == 0)
        path.Close();
    return path;
}

}  // namespace

TEST(StrokerTest, CoversWhatItsPiecesCover) {
    for (int seed = 0; seed < 50; ++seed) {
        Random random(seed);
        const Pen pen = RandomPen(random);
        const Path path = RandomChain(random);
        ExpectTruth(path, pen, seed % 3 == 0 ? Matrix{1.2, 0.3, -0.4, 0.9, 3, 2} : Matrix(), seed);
    }
}

TEST(StrokerTest, DashesBeginAndEndWhereTheyShould) {
    for (int seed = 0; seed < 50; ++seed) {
        Random random(seed);
        Pen pen = RandomPen(random);
        for (int i = 2 + 2 * random.Below(2); i > 0; --i)
            pen.dashes.push_back(random.Between(0.4, 4));
        pen.dashOffset = random.Between(-9, 9);
        ExpectTruth(RandomChain(random), pen, {}, seed);
    }
}

TEST(StrokerTest, CurvesAreSmooth) {
    for (int seed = 0; seed < 40; ++seed) {
        Random random(seed);
        Pen pen = RandomPen(random);
        Path path;
        if (seed % 2 == 0) {
            const Point at = random.Within({2, 2, 15, 12});
            path.AddEllipse({at.x, at.y, at.x + random.Between(6, 28), at.y + random.Between(6, 20)});
        } else {
            path.AddArc({5, 4, random.Between(15, 40), random.Between(15, 30)}, random.Between(0, 360),
                        random.Between(-300, 300));
        }
        if (seed % 4 > 1) {
            pen.dashes = {3, 1.5, 1, 1.5};
            pen.width = random.Between(1, 3);
        }
        ExpectTruth(path, pen, {}, seed);
    }
}

TEST(StrokerTest, InsetPensStayInside) {
    for (const bool clockwise : {true, false}) {
        Path path, inside;
        Point corners[] = {{5.25, 4}, {36, 7.5}, {24, 28}, {9, 21}};
        if (!clockwise)
            std::reverse(std::begin(corners), std::end(corners));
        path.AddPolygon(corners);
        Pen pen;
        pen.width = 4;
        pen.alignment = Alignment::Inset;
        const Coverage drawn = Draw(path, pen, {});
        pen.width = 8;
        pen.alignment = Alignment::Center;
        const Coverage wide = Draw(path, pen, {});
        Chains chains;
        Flatten(path, {}, kTolerance, nullptr, chains);
        Coverage shape(kWidth, kHeight);
        Rasterizer rasterizer;
        rasterizer.Begin({0, 0, kWidth, kHeight});
        rasterizer.Add(chains, {});
        rasterizer.Finish(FillRule::Winding, Edges::Smooth, shape);
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x)
                EXPECT_NEAR(drawn.At(x, y), std::max(0, wide.At(x, y) + shape.At(x, y) - 255), 2)
                    << x << ", " << y;
        }
    }
}

TEST(StrokerTest, CompoundPensLeaveOutWhatIsBetweenTheirLines) {
    Random random(2);
    for (int seed = 0; seed < 30; ++seed) {
        Path path;
        if (seed % 3 == 0)
            path.AddEllipse({8.5, 7, 36, 26});
        else
            path.AddPolygon(std::array<Point, 4>{Point{9, 8}, {35, 9.5}, {30, 24}, {11, 23}});
        if (seed % 3 == 2) {
            path.Clear();
            path.MoveTo({6, 5});
            path.LineTo({27, 7});
            path.LineTo({36, 27});
        }
        Pen pen = RandomPen(random);
        pen.width = random.Between(5, 9);
        pen.startCap = pen.endCap = seed % 2 == 0 ? Cap::Flat : Cap::Square;
        pen.miterLimit = 10;
        const Matrix matrix = seed % 2 == 0 ? Matrix() : Matrix{1, 0.1, -0.2, 1, 3, -2};
        const Coverage whole = Draw(path, pen, matrix);
        const double from = random.Between(0.1, 0.4), to = random.Between(0.5, 0.9);
        const auto drawn = [&](std::vector<double> compound) {
            pen.compound = std::move(compound);
            return Draw(path, pen, matrix);
        };
        const Coverage lines = drawn({0, from, to, 1}), between = drawn({from, to});
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x)
                ASSERT_NEAR(lines.At(x, y) + between.At(x, y), whole.At(x, y), 6)
                    << seed << ": " << x << ", " << y;
        }
        // The middle half is a line of half the width.
        const Coverage middle = drawn({0.25, 0.75});
        pen.compound.clear();
        if (pen.startCap == Cap::Square)
            continue;
        pen.width /= 2;
        EXPECT_EQ(middle, Draw(path, pen, matrix)) << seed;
    }
}

TEST(StrokerTest, AnchorsAndCustomCapsStandAtTheEnds) {
    // From (9, 17) to (33, 17), 4 wide: the arrow's tip is the end, its base two widths before it.
    Path line;
    line.MoveTo({9, 17});
    line.LineTo({33, 17});
    Pen pen;
    pen.width = 4;
    const double side = 8 / std::sqrt(3.0);
    const auto expect = [&](const std::vector<std::vector<Point>>& figures, const Path& path) {
        Chains chains;
        for (const auto& figure : figures) {
            chains.chains.push_back({chains.vertices.size(), figure.size(), true});
            for (const Point& point : figure)
                chains.vertices.push_back({point, false});
        }
        const Difference difference = CompareWithTruth(Draw(path, pen, {}), chains, FillRule::Winding);
        EXPECT_LE(difference.largest, 2) << difference.x << ", " << difference.y;
    };
    const auto box = [](double left, double top, double right, double bottom) {
        return std::vector<Point>{{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    };
    pen.endCap = Cap::ArrowAnchor;
    expect({box(9, 15, 29, 19), {{25, 17 - side}, {33, 17}, {25, 17 + side}}}, line);
    pen.startCap = Cap::DiamondAnchor;
    pen.endCap = Cap::SquareAnchor;
    const double half = 4 / std::sqrt(2.0);
    expect({box(9, 15, 33, 19),
            {{5, 17}, {9, 13}, {13, 17}, {9, 21}},
            box(33 - half, 17 - half, 33 + half, 17 + half)},
           line);
    // A flag to the left of where the line goes, half a width before its end; drawn against the clock.
    auto flag = std::make_shared<CustomCap>();
    flag->fill.AddPolygon(std::array<Point, 3>{Point{0, -1.5}, {2, -1.5}, {0, 0.5}});
    flag->inset = 0.5;
    pen.startCap = Cap::Flat;
    pen.endCustom = flag;
    expect({box(9, 15, 31, 19), {{27, 17}, {27, 9}, {35, 17}}}, line);
    // The same arrow either way, along a curve, dashed.
    auto arrow = std::make_shared<CustomCap>();
    arrow->fill.AddPolygon(
        std::array<Point, 3>{Point{0, 0}, {-2 / std::sqrt(3.0), -2}, {2 / std::sqrt(3.0), -2}});
    arrow->inset = 1;
    Path curve;
    curve.AddArc({6, 5, 40, 30}, 160, 200);
    pen = {};
    pen.width = 3;
    pen.dashes = {2, 1};
    pen.startCap = Cap::ArrowAnchor;
    const Coverage anchored = Draw(curve, pen, {});
    pen.startCustom = arrow;
    EXPECT_EQ(Draw(curve, pen, {}), anchored);
    // Lines of a cap are as wide as the pen's.
    auto bar = std::make_shared<CustomCap>();
    bar->line.MoveTo({-2, 0});
    bar->line.LineTo({2, 0});
    pen = {};
    pen.width = 4;
    pen.startCustom = bar;
    expect({box(9, 15, 33, 19), box(7, 9, 11, 25)}, line);
}

TEST(StrokerTest, ThinLinesAreAPixelWide) {
    Path path;
    path.MoveTo({3, 70});
    path.LineTo({40, 70});
    Pen pen;
    pen.width = 0;
    const Coverage drawn = Draw(path, pen, {1, 0, 0, 0.15, 0, 0});  // from (3, 10.5) to (40, 10.5)
    EXPECT_EQ(drawn.At(20, 9), 0);
    EXPECT_EQ(drawn.At(20, 10), 255);
    EXPECT_EQ(drawn.At(20, 11), 0);
    EXPECT_EQ(drawn.At(2, 10), 0);
}

TEST(StrokerTest, DashesFarAwayCostNothing) {
    Path path;
    path.MoveTo({-1e15, 12.5});
    path.LineTo({1e15, 12.5});
    Pen pen;
    pen.dashes = {2, 2};
    const Coverage drawn = Draw(path, pen, {});
    int changes = 0;
    for (int x = 1; x < kWidth; ++x)
        changes += drawn.At(x, 12) != drawn.At(x - 1, 12) ? 1 : 0;
    EXPECT_GE(changes, 15);
    // Rounding swallows each dash there, but not both together.
    pen.dashes = {0.06, 0.06};
    Draw(path, pen, {});
}

TEST(StrokerTest, TakesAnyNumber) {
    const double hostile[] = {
        0, 1e30, -1e30, std::numeric_limits<double>::infinity(), std::nan(""), 1e-30, -3, 1e300, 12, 1, 0.01};
    Random random(5);
    const auto number = [&] {
        return random.Below(3) == 0 ? hostile[random.Below(11)] : random.Between(-9, 50);
    };
    for (int seed = 0; seed < 2000; ++seed) {
        Path path;
        for (int i = 0; i < 4; ++i) {
            const Point a{number(), number()}, b{number(), number()}, c{number(), number()};
            if (random.Below(2) == 0)
                path.CurveTo(a, b, c);
            else
                path.LineTo(a);
        }
        if (seed % 2 == 0)
            path.Close();
        Pen pen = RandomPen(random);
        pen.width = number();
        pen.miterLimit = number();
        pen.alignment = static_cast<Alignment>(random.Below(2));
        pen.startCap = static_cast<Cap>(random.Below(8));
        if (seed % 3 == 0)
            pen.compound = {number(), number(), 0.5, number()};
        for (int i = random.Below(4); i > 0; --i)
            pen.dashes.push_back(number());
        pen.dashOffset = number();
        Draw(path, pen, random.Below(2) == 0 ? Matrix() : Matrix{number(), 0.2, 0.1, number(), number(), 1});
    }
}

}  // namespace raster
