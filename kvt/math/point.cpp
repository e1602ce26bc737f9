#include <kvt/math/point.h>

#include <climits>
#include <cmath>
#include <cstdint>

static_assert(sizeof(int) == 4, "integer points are 32-bit");

namespace {

// Truncation towards zero. A plain cast of a value outside the int range
// is undefined, so those saturate and not-a-number gives 0. Every float is
// exact as a double, so the bounds are tested exactly.
int TruncateToInt(double v)
{
    if (v != v)
        return 0;
    if (v >= 2147483648.0)
        return INT_MAX;
    if (v <= -2147483649.0)
        return INT_MIN;
    return static_cast<int>(v);
}

// 32-bit sums and products that wrap instead of overflowing, since signed
// overflow is undefined and unsigned arithmetic is not.
int Add(int a, int b)
{
    return static_cast<int>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}

int Sub(int a, int b)
{
    return static_cast<int>(static_cast<uint32_t>(a) - static_cast<uint32_t>(b));
}

int Mul(int a, int b)
{
    return static_cast<int>(static_cast<uint32_t>(a) * static_cast<uint32_t>(b));
}

int Dot(int ax, int ay, int az, int bx, int by, int bz)
{
    return Add(Add(Mul(ax, bx), Mul(ay, by)), Mul(az, bz));
}

} // namespace

point3D setPoint3D(float x, float y, float z)
{
    point3D p = {x, y, z};
    return p;
}

point3D addPoint3D(point3D a, point3D b)
{
    return setPoint3D(a.x + b.x, a.y + b.y, a.z + b.z);
}

point3D addPoints3D(point3D a, point3D b, point3D c)
{
    return setPoint3D(a.x + b.x + c.x, a.y + b.y + c.y, a.z + b.z + c.z);
}

point3D difPoint3D(point3D a, point3D b)
{
    return setPoint3D(a.x - b.x, a.y - b.y, a.z - b.z);
}

float scaPoint3D(point3D a, point3D b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

float sqaPoint3D(point3D a)
{
    return a.x * a.x + a.y * a.y + a.z * a.z;
}

float lenPoint3D(point3D a)
{
    return static_cast<float>(std::sqrt(static_cast<double>(sqaPoint3D(a))));
}

point3D mulPoint3D(point3D a, float s)
{
    return setPoint3D(a.x * s, a.y * s, a.z * s);
}

point3D mulPoint3D(float s, point3D a)
{
    return mulPoint3D(a, s);
}

point3D mulPoint3D(point3D a, point3D b)
{
    return setPoint3D(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
}

point3D mulPoint3D(point3D a, float (*m)[3])
{
    return setPoint3D(a.x * m[0][0] + a.y * m[0][1] + a.z * m[0][2],
                      a.x * m[1][0] + a.y * m[1][1] + a.z * m[1][2],
                      a.x * m[2][0] + a.y * m[2][1] + a.z * m[2][2]);
}

point3D mulPoint3D(float (*m)[3], point3D a)
{
    return setPoint3D(a.x * m[0][0] + a.y * m[1][0] + a.z * m[2][0],
                      a.x * m[0][1] + a.y * m[1][1] + a.z * m[2][1],
                      a.x * m[0][2] + a.y * m[1][2] + a.z * m[2][2]);
}

point3D normPoint3D(point3D a)
{
    float length = lenPoint3D(a);
    return setPoint3D(a.x / length, a.y / length, a.z / length);
}

point2D setPoint2D(float x, float y)
{
    point2D p = {x, y};
    return p;
}

float scaPoint2D(point2D a, point2D b)
{
    return a.x * b.x + a.y * b.y;
}

point3Di setPoint3Di(int x, int y, int z)
{
    point3Di p = {x, y, z};
    return p;
}

point3Di setPoint3Di(point3D a)
{
    return setPoint3Di(TruncateToInt(a.x), TruncateToInt(a.y), TruncateToInt(a.z));
}

point3Di setPoint3Di(point3D a, float s)
{
    // Each product is rounded to float before it is truncated.
    return setPoint3Di(mulPoint3D(a, s));
}

point3Di setPoint3Di(float s, point3D a)
{
    return setPoint3Di(a, s);
}

point3Di addPoint3D(point3Di a, point3Di b)
{
    return setPoint3Di(Add(a.x, b.x), Add(a.y, b.y), Add(a.z, b.z));
}

point3Di addPoints3D(point3Di a, point3Di b, point3Di c)
{
    return addPoint3D(addPoint3D(a, b), c);
}

point3Di difPoint3D(point3Di a, point3Di b)
{
    return setPoint3Di(Sub(a.x, b.x), Sub(a.y, b.y), Sub(a.z, b.z));
}

int scaPoint3D(point3Di a, point3Di b)
{
    return Dot(a.x, a.y, a.z, b.x, b.y, b.z);
}

int sqaPoint3D(point3Di a)
{
    return scaPoint3D(a, a);
}

int lenPoint3D(point3Di a)
{
    // A sum of squares that wrapped negative has no root: it gives 0.
    return TruncateToInt(std::sqrt(static_cast<double>(sqaPoint3D(a))));
}

point3Di mulPoint3D(point3Di a, int s)
{
    return setPoint3Di(Mul(a.x, s), Mul(a.y, s), Mul(a.z, s));
}

point3Di mulPoint3D(int s, point3Di a)
{
    return mulPoint3D(a, s);
}

point3Di mulPoint3D(point3Di a, int (*m)[3])
{
    return setPoint3Di(Dot(a.x, a.y, a.z, m[0][0], m[0][1], m[0][2]),
                       Dot(a.x, a.y, a.z, m[1][0], m[1][1], m[1][2]),
                       Dot(a.x, a.y, a.z, m[2][0], m[2][1], m[2][2]));
}

point3Di mulPoint3D(int (*m)[3], point3Di a)
{
    return setPoint3Di(Dot(a.x, a.y, a.z, m[0][0], m[1][0], m[2][0]),
                       Dot(a.x, a.y, a.z, m[0][1], m[1][1], m[2][1]),
                       Dot(a.x, a.y, a.z, m[0][2], m[1][2], m[2][2]));
}

point2Di setPoint2Di(int x, int y)
{
    point2Di p = {x, y};
    return p;
}

float limitAt(float a, float b)
{
    return a > b ? b : a;
}

int limitAti(int a, int b)
{
    return a <= b ? a : b;
}

void swapFloat(float *a, float *b)
{
    float kept = *a;
    *a = *b;
    *b = kept;
}
