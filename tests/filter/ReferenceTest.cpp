// Filters against the designs of an independent library, from the file that reference.py writes.
#include "filter/Design.h"
#include "filter/Section.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <complex>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

using namespace Lumo::Filter;
using Complex = std::complex<double>;

namespace {

constexpr double kTolerance = 1e-9;

struct Point {
    double frequency, real, imaginary, delay;
};

struct Reference {
    Request request;
    Layout layout;
    std::vector<Section> sections;
    std::vector<Point> points;
};

// The numbers of a file, one after the other.
class Reader {
public:
    explicit Reader(const char* path) {
        std::ifstream file(path);
        m_text.assign(std::istreambuf_iterator<char>(file), {});
        m_at = m_text.data();
    }

    bool IsSound() const { return m_sound; }
    bool AtEnd() {
        SkipSpace();
        return m_at == End();
    }

    Reader& operator>>(double& number) {
        SkipSpace();
        const auto [after, error] = std::from_chars(m_at, End(), number);
        m_sound = m_sound && error == std::errc();
        m_at = after;
        return *this;
    }
    template <typename Whole>
    requires(std::is_integral_v<Whole> || std::is_enum_v<Whole>) Reader& operator>>(Whole& whole) {
        double number = 0.0;
        *this >> number;
        whole = static_cast<Whole>(static_cast<int>(number));
        return *this;
    }
    Reader& operator>>(Complex& root) {
        double real = 0.0, imaginary = 0.0;
        *this >> real >> imaginary;
        root = {real, imaginary};
        return *this;
    }
    Reader& operator>>(Request& r) {
        return *this >> r.family >> r.kind >> r.order >> r.rate >> r.edge >> r.upperEdge >> r.ripple >>
               r.attenuation >> r.besselEdge;
    }
    Reader& operator>>(Section& s) { return *this >> s.b0 >> s.b1 >> s.b2 >> s.a1 >> s.a2; }
    Reader& operator>>(Point& p) { return *this >> p.frequency >> p.real >> p.imaginary >> p.delay; }
    template <typename Item>
    Reader& operator>>(std::vector<Item>& items) {
        std::size_t count = 0;
        *this >> count;
        items.resize(count);
        for (Item& item : items)
            *this >> item;
        return *this;
    }

private:
    const char* End() const { return m_text.data() + m_text.size(); }
    void SkipSpace() {
        while (m_at != End() && std::isspace(static_cast<unsigned char>(*m_at)))
            ++m_at;
    }

    std::string m_text;
    const char* m_at;
    bool m_sound = true;
};

std::string Describe(const Request& request) {
    std::ostringstream text;
    text << "family " << static_cast<int>(request.family) << ", kind " << static_cast<int>(request.kind)
         << ", order " << request.order << ", " << request.edge << " to " << request.upperEdge << " Hz of "
         << request.rate << ", " << request.ripple << " and " << request.attenuation << " dB";
    return text.str();
}

// Largest relative distance of a root from the one nearest to it among those that are left.
double Distance(const std::vector<Complex>& roots, std::vector<Complex> wanted) {
    if (roots.size() != wanted.size())
        return 1e300;
    double worst = 0.0;
    for (Complex root : roots) {
        const auto nearest =
            std::ranges::min_element(wanted, {}, [&](Complex other) { return std::abs(other - root); });
        worst = std::max(worst, std::abs(*nearest - root) / std::max(1e-3, std::abs(*nearest)));
        wanted.erase(nearest);
    }
    return worst;
}

double Distance(const std::vector<Section>& sections, const std::vector<Section>& wanted, double gain) {
    if (sections.size() != wanted.size())
        return 1e300;
    double worst = 0.0;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const Section &ours = sections[i], &other = wanted[i];
        const double scale = i == 0 ? std::abs(gain) : 1.0;
        for (double apart : {(ours.b0 - other.b0) / scale, (ours.b1 - other.b1) / scale,
                             (ours.b2 - other.b2) / scale, ours.a1 - other.a1, ours.a2 - other.a2})
            worst = std::max(worst, std::abs(apart));
    }
    return worst;
}

// How much the last digits of the roots count at a point of the unit circle: the sum of 1 / distance^power.
double Closeness(const Layout& layout, Complex z, double power) {
    double sum = 0.0;
    for (const auto* roots : {&layout.poles, &layout.zeros})
        for (Complex root : *roots)
            sum += std::pow(std::max(1e-12, std::abs(z - root)), -power);
    return sum;
}

}  // namespace

TEST(FilterReferenceTest, RootsSectionsResponsesAndDelaysAreThoseOfTheReference) {
    Reader file(TESSEL_FILTER_REFERENCE);
    Reference wanted;
    int designs = 0;
    while (!file.AtEnd()) {
        file >> wanted.request >> wanted.layout.poles >> wanted.layout.zeros >> wanted.layout.gain >>
            wanted.sections >> wanted.points;
        ASSERT_TRUE(file.IsSound()) << "after " << designs << " designs";
        SCOPED_TRACE(Describe(wanted.request));
        ++designs;
        const auto layout = MakeLayout(wanted.request);
        ASSERT_TRUE(layout);
        EXPECT_LT(Distance(layout->poles, wanted.layout.poles), kTolerance);
        EXPECT_LT(Distance(layout->zeros, wanted.layout.zeros), kTolerance);
        EXPECT_NEAR(layout->gain / wanted.layout.gain, 1.0, kTolerance);
        if (!wanted.sections.empty()) {
            EXPECT_LT(Distance(MakeSections(*layout), wanted.sections, layout->gain), kTolerance);
        }
        for (const auto& [frequency, real, imaginary, delay] : wanted.points) {
            const Complex z = std::polar(1.0, frequency), value(real, imaginary);
            EXPECT_LT(std::abs(Response(*layout, frequency) - value),
                      std::abs(value) * (kTolerance + 1e-14 * Closeness(*layout, z, 1.0)) + 1e-200);
            EXPECT_NEAR(GroupDelay(*layout, frequency), delay,
                        kTolerance * std::max(1.0, std::abs(delay)) + 1e-14 * Closeness(*layout, z, 2.0));
        }
    }
    EXPECT_GT(designs, 1500);
}
