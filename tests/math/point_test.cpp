#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <random>

#include <kvt/math/matrix.h>

#include "math/point_checks.h"

namespace {

// Float to int: towards zero, the scaled product rounded to float first,
// and out-of-range values saturating instead of being undefined.
TEST(PointTest, FloatToIntTruncatesTowardsZero)
{
    const struct { float value, scale; int want; } cases[] = {
        {1.7f, 1, 1}, {-1.7f, 1, -1}, {-0.9f, 1, 0}, {0.9f, 1, 0}, {2.0f, 1, 2},
        {3, 0.5f, 1}, {-3, 0.5f, -1}, {1.5f, 2, 3}, {-0.5f, 4, -2},
        // 3 x 3.66666651 is 10.9999995, which rounds to 11 in float.
        {3, std::nextafter(11.0f / 3.0f, 0.0f), 11},
        {2147483520.0f, 1, 2147483520}, {-2147483648.0f, 1, INT_MIN},
        {2147483648.0f, 1, INT_MAX}, {1073741824.0f, 2, INT_MAX},
        {3e9f, 1, INT_MAX}, {-3e9f, 1, INT_MIN}, {1e30f, -1, INT_MIN}, {NAN, 1, 0},
    };
    for (const auto &c : cases) {
        point3D p = setPoint3D(c.value, c.value, c.value);
        point3Di want = setPoint3Di(c.want, c.want, c.want);
        EXPECT_EQ(want, setPoint3Di(p, c.scale)) << c.value << " * " << c.scale;
        EXPECT_EQ(want, setPoint3Di(c.scale, p)) << c.value << " * " << c.scale;
        EXPECT_TRUE(c.scale != 1 || want == setPoint3Di(p)) << c.value << " unscaled";
    }
}

TEST(PointTest, IntegerLengthIsTruncated)
{
    const struct { point3Di p; int want; } cases[] = {
        {{3, 4, 0}, 5}, {{1, 1, 0}, 1}, {{1, 1, 1}, 1}, {{0, 0, 0}, 0}, {{-3, 0, -4}, 5},
        {{0, 46340, 0}, 46340},
        // The square wraps negative; its root is not-a-number, defined as 0.
        {{0, 0, 46341}, 0},
    };
    for (const auto &c : cases)
        EXPECT_EQ(c.want, lenPoint3D(c.p)) << c.p.x << ", " << c.p.y << ", " << c.p.z;
}

TEST(PointTest, CrossProductFollowsTheRightHand)
{
    const struct { point3D a, b, want; } cases[] = {
        {kUnitAxes[0], kUnitAxes[1], kUnitAxes[2]}, {kUnitAxes[1], kUnitAxes[0], {0, 0, -1}},
        {kUnitAxes[1], kUnitAxes[2], kUnitAxes[0]}, {kUnitAxes[2], kUnitAxes[0], kUnitAxes[1]},
        {{1, 2, 3}, {4, 5, 6}, {-3, 6, -3}}, {{1, 2, 3}, {1, 2, 3}, {0, 0, 0}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(c.want, mulPoint3D(c.a, c.b)) << "cross product case " << &c - cases;
}

TEST(PointTest, LimitsCapTheFirstArgument)
{
    const struct { float a, b, want; } floats[] = {
        {2, 2, 2}, {3, 1, 1}, {1, 3, 1}, {-5, -4, -5}, {1, NAN, 1}, {NAN, 1, NAN},
    };
    for (const auto &c : floats) {
        float got = limitAt(c.a, c.b);
        EXPECT_TRUE(got == c.want || (std::isnan(got) && std::isnan(c.want)))
            << "limitAt(" << c.a << ", " << c.b << ") gave " << got;
    }
    const struct { int a, b, want; } ints[] = {
        {3, 1, 1}, {1, 3, 1}, {2, 2, 2}, {INT_MIN, -1, INT_MIN}};
    for (const auto &c : ints)
        EXPECT_EQ(c.want, limitAti(c.a, c.b)) << "limitAti(" << c.a << ", " << c.b << ")";
}

TEST(PointTest, NormalisedPointHasUnitLength)
{
    EXPECT_LE(Distance(setPoint3D(0, 0.6f, 0.8f), normPoint3D(setPoint3D(0, 3, 4))), 1e-7f);
    point3D zero = normPoint3D(setPoint3D(0, 0, 0));
    EXPECT_TRUE(std::isnan(zero.x) && std::isnan(zero.y) && std::isnan(zero.z))
        << "the zero point must normalise to not-a-number";
}

// On small integers float arithmetic is exact, so both families must agree
// coordinate by coordinate, also through a matrix on either side.
TEST(PointTest, IntegerFamilyAgreesWithFloatFamilyOnSmallValues)
{
    std::mt19937 rng(42);
    std::uniform_int_distribution<int> small(-200, 200);
    auto next = [&] { return setPoint3Di(small(rng), small(rng), small(rng)); };
    auto toFloat = [](point3Di p) { return setPoint3D(float(p.x), float(p.y), float(p.z)); };
    for (int round = 0; round < 200; ++round) {
        point3Di a = next(), b = next(), c = next(), d = next(), e = next();
        int s = small(rng);
        int mi[3][3];
        float mf[3][3];
        setMatrix3i(mi, b.x, b.y, b.z, c.x, c.y, c.z, d.x, d.y, d.z);
        setMatrix3(mf, toFloat(b), toFloat(c), toFloat(d));
        point3D fa = toFloat(a), fb = toFloat(b);
        EXPECT_EQ(addPoint3D(fa, fb), toFloat(addPoint3D(a, b)));
        EXPECT_EQ(addPoints3D(fa, fb, toFloat(e)), toFloat(addPoints3D(a, b, e)));
        EXPECT_EQ(difPoint3D(fa, fb), toFloat(difPoint3D(a, b)));
        EXPECT_EQ(scaPoint3D(fa, fb), float(scaPoint3D(a, b)));
        EXPECT_EQ(sqaPoint3D(fa), float(sqaPoint3D(a)));
        EXPECT_EQ(scaPoint2D(setPoint2D(fa.x, fa.y), setPoint2D(fb.x, fb.y)),
                  float(scaPoint3D(setPoint3Di(a.x, a.y, 0), b)));
        EXPECT_EQ(mulPoint3D(fa, float(s)), toFloat(mulPoint3D(s, a)));
        EXPECT_EQ(mulPoint3D(float(s), fa), toFloat(mulPoint3D(a, s)));
        EXPECT_EQ(mulPoint3D(mf, fa), toFloat(mulPoint3D(mi, a)));
        EXPECT_EQ(mulPoint3D(fa, mf), toFloat(mulPoint3D(a, mi)));
        EXPECT_EQ(int(lenPoint3D(fa)), lenPoint3D(a));
    }
}

} // namespace
