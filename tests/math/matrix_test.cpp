#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>

#include <kvt/math/matrix.h>

#include "math/point_checks.h"

namespace {

// A matrix that can sit in a table and be copied; m[column][line].
struct Matrix {
    float m[3][3];
};

const Matrix kIdentity = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

bool SameBits(const Matrix &a, const Matrix &b)
{
    return std::memcmp(a.m, b.m, sizeof a.m) == 0;
}

// Whole numbers in [-3, 3] or reals in [-2, 2].
Matrix RandomMatrix(std::mt19937 &rng, bool whole)
{
    std::uniform_real_distribution<float> value(whole ? -3.99f : -2, whole ? 3.99f : 2);
    Matrix r;
    for (auto &column : r.m)
        for (float &v : column)
            v = whole ? std::trunc(value(rng)) : value(rng);
    return r;
}

TEST(MatrixTest, StorageIsColumnFirst)
{
    point3D a = {1, 2, 3}, b = {4, 5, 6}, c = {7, 8, 10}, p = {1, -2, 3};
    Matrix m, nine, copy, symmetric;
    setMatrix3(m.m, a, b, c);
    setMatrix3(nine.m, 1, 2, 3, 4, 5, 6, 7, 8, 10);
    setMatrix3(copy.m, m.m);
    EXPECT_EQ(b, columnOf(m.m, 1));
    EXPECT_EQ(setPoint3D(a.x, b.x, c.x), lineOf(m.m, 0));
    EXPECT_TRUE(SameBits(m, nine) && SameBits(m, copy)) << "the three setters disagree";
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(columnOf(m.m, i), mulPoint3D(m.m, kUnitAxes[i])) << "M times axis " << i;
        EXPECT_EQ(lineOf(m.m, i), mulPoint3D(kUnitAxes[i], m.m)) << "axis " << i << " times M";
        for (int j = 0; j < 3; ++j)
            symmetric.m[i][j] = m.m[i][j] + m.m[j][i];
    }
    EXPECT_FALSE(mulPoint3D(m.m, p) == mulPoint3D(p, m.m)) << "sides of an asymmetric matrix";
    EXPECT_EQ(mulPoint3D(symmetric.m, p), mulPoint3D(p, symmetric.m));
}

// Products of floats are exact in double, so rounding the reference to
// float after every step reproduces the float sum bit for bit.
TEST(MatrixTest, ProductIsBTimesAWithAFixedSummingOrder)
{
    std::mt19937 rng(3);
    for (int round = 0; round < 100; ++round) {
        Matrix a = RandomMatrix(rng, false), b = RandomMatrix(rng, false), r, identity = kIdentity;
        mulMatrix3(a.m, b.m, r.m);
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j) {
                double sum = 0;
                for (int k = 0; k < 3; ++k)
                    sum = float(sum + float(double(a.m[i][k]) * b.m[k][j]));
                ASSERT_EQ(float(sum), r.m[i][j]) << "element " << i << "," << j;
            }
        point3D p = columnOf(RandomMatrix(rng, false).m, 0);
        EXPECT_LE(Distance(mulPoint3D(b.m, mulPoint3D(a.m, p)), mulPoint3D(r.m, p)), 1e-3f)
            << "the product must apply a first, then b";
        mulMatrix3(identity.m, a.m, r.m);
        EXPECT_TRUE(SameBits(a, r)) << "identity as first factor";
        mulMatrix3(a.m, identity.m, r.m);
        EXPECT_TRUE(SameBits(a, r)) << "identity as second factor";
    }
}

// On success m ends as the identity and the inverse undoes the matrix.
void ExpectInversion(Matrix m, bool invertible, const std::string &name)
{
    Matrix before = m, inverse;
    ASSERT_EQ(invertible, invMatrix3(m.m, inverse.m)) << name;
    for (int i = 0; invertible && i < 3; ++i) {
        EXPECT_EQ(kUnitAxes[i], columnOf(m.m, i)) << name << ": m must end as the identity";
        point3D p = addPoint3D(kUnitAxes[i], setPoint3D(0.5f, -3, 7));
        EXPECT_LE(Distance(p, mulPoint3D(inverse.m, mulPoint3D(before.m, p))), 1e-4f) << name;
    }
}

// A not-a-number counts as a pivot; only exact zeros fail.
TEST(MatrixTest, InversionTakesTheFirstNonZeroPivot)
{
    const struct { const char *name; Matrix m; bool invertible; } cases[] = {
        {"identity", kIdentity, true},
        {"pivot on line 1", {{{0, 2, 0}, {1, 0, 0}, {0, 0, 3}}}, true},
        {"pivot on line 2", {{{0, 0, 5}, {0, 1, 0}, {2, 0, 0}}}, true},
        {"full", {{{2, 1, 1}, {1, 3, 2}, {1, 0, 0}}}, true},
        {"tiny pivot", {{{1e-30f, 1, 0}, {1, 0, 0}, {0, 0, 1}}}, true},
        {"zero matrix", {{{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}}, false},
        {"zero column 0", {{{0, 0, 0}, {1, 2, 3}, {4, 5, 7}}}, false},
        {"zero column 2", {{{1, 2, 3}, {4, 5, 7}, {0, 0, 0}}}, false},
        {"zero line 1", {{{1, 0, 2}, {3, 0, 4}, {5, 0, 6}}}, false},
        {"proportional columns", {{{1, 0, 2}, {2, 1, 1}, {2, 0, 4}}}, false},
    };
    for (const auto &c : cases)
        ExpectInversion(c.m, c.invertible, c.name);
    std::mt19937 rng(5);
    for (int round = 0; round < 300; ++round) {
        Matrix m = RandomMatrix(rng, true);
        m.m[0][0] = round % 2 ? 0.0f : m.m[0][0]; // forces a line exchange
        float det = scaPoint3D(columnOf(m.m, 0), mulPoint3D(columnOf(m.m, 1), columnOf(m.m, 2)));
        ExpectInversion(m, det != 0, "random " + std::to_string(round));
    }
    Matrix identity = kIdentity, nan = {{{NAN, 1, 0}, {0, 1, 0}, {0, 0, 1}}}, inverse;
    invMatrix3(identity.m, inverse.m);
    EXPECT_TRUE(SameBits(kIdentity, inverse)) << "the inverse of the identity";
    EXPECT_TRUE(invMatrix3(nan.m, inverse.m)) << "a not-a-number is a pivot";
    // Taken however small: here its reciprocal overflows, where the larger
    // pivot below it would not.
    Matrix denormal = {{{1e-45f, 1, 0}, {1, 0, 0}, {0, 0, 1}}};
    EXPECT_TRUE(invMatrix3(denormal.m, inverse.m));
    EXPECT_FALSE(std::isfinite(inverse.m[0][0])) << "the first pivot must be taken";
}

TEST(MatrixTest, SharpeningKeepsColumn1AndMakesColumnsPerpendicular)
{
    const float overThreshold = std::nextafter(1e-06f, 1.0f);
    const struct { const char *name; Matrix m; bool changes; } cases[] = {
        {"identity", kIdentity, false},
        {"drift of exactly 1e-06", {{{1, 0, 0}, {1e-06f, 1, 0}, {0, 0, 1}}}, false},
        {"not-a-number", {{{NAN, 0, 0}, {0, 1, 0}, {0, 0, 1}}}, false},
        {"drift just over 1e-06", {{{1, 0, 0}, {overThreshold, 1, 0}, {0, 0, 1}}}, true},
        {"column 0 drifted", {{{1, 0.1f, 0}, {0, 1, 0}, {0, 0, 1}}}, true},
        {"left-handed column 2", {{{1, 0.1f, 0}, {0, 1, 0}, {0, 0, -1}}}, true},
        {"garbage column 2", {{{1, 0.1f, 0.05f}, {0, 2, 0.1f}, {3, 3, 3}}}, true},
    };
    for (const auto &c : cases) {
        Matrix m = c.m, before = c.m;
        sharpMatrix3(m.m);
        EXPECT_EQ(c.changes, !SameBits(before, m)) << c.name;
        if (!c.changes)
            continue;
        point3D c0 = columnOf(m.m, 0), c1 = columnOf(m.m, 1), c2 = columnOf(m.m, 2);
        EXPECT_EQ(columnOf(before.m, 1), c1) << c.name << ": column 1 must survive";
        EXPECT_LE(std::fabs(scaPoint3D(c0, c1)) + std::fabs(scaPoint3D(c0, c2)) +
                      std::fabs(scaPoint3D(c1, c2)), 1e-5f) << c.name;
        EXPECT_GT(scaPoint3D(mulPoint3D(c0, c1), c2), 0.0f) << c.name << " must be right-handed";
        EXPECT_GT(scaPoint3D(columnOf(before.m, 0), c0), 0.0f) << c.name << ": column 0 flipped";
    }
}

TEST(MatrixTest, NormalisingGivesUnitColumnsAndNanForAZeroColumn)
{
    Matrix m = {{{2, 0.2f, 0}, {0, 3, 0}, {0, 0, 0}}};
    Matrix withZero = {{{2, 0, 0}, {0, 0, 0}, {0, 0, 5}}};
    sharpMatrix3(m.m);
    normMatrix3(m.m);
    normMatrix3(withZero.m);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(1.0f, lenPoint3D(columnOf(m.m, i)), 1e-6f) << "column " << i;
    EXPECT_TRUE(std::isnan(withZero.m[1][0]) && std::isnan(withZero.m[1][1]) &&
                std::isnan(withZero.m[1][2]) && withZero.m[0][0] == 1 && withZero.m[2][2] == 1)
        << "only the zero column becomes not-a-number";
}

} // namespace
