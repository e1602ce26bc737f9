#ifndef KVT_MATH_POINT_H
#define KVT_MATH_POINT_H

#include <kvt/export.h>

// Float and integer points in two and three dimensions, as plain records
// passed by value. Every function returns a new value and changes none of
// its arguments.
//
// Short names: sca = scalar product, sqa = squared length, len = length,
// dif = difference, norm = normalised, mul = scale, cross product or
// matrix product depending on the arguments.
//
// Float to int conversions truncate towards zero (-1.7 gives -1). A float
// outside the int range saturates to INT_MIN or INT_MAX and not-a-number
// gives 0, so no input is undefined. Integer arithmetic wraps around in 32
// bits; callers keep coordinates small enough for their results to fit.

struct point2D {
    float x, y;
};

struct point3D {
    float x, y, z;
};

struct point2Di {
    int x, y;
};

struct point3Di {
    int x, y, z;
};

KVT_API point3D setPoint3D(float x, float y, float z);
KVT_API point3D addPoint3D(point3D a, point3D b);
KVT_API point3D addPoints3D(point3D a, point3D b, point3D c);
KVT_API point3D difPoint3D(point3D a, point3D b);
KVT_API float scaPoint3D(point3D a, point3D b);
KVT_API float sqaPoint3D(point3D a);
// sqrt taken in double precision, then rounded to float.
KVT_API float lenPoint3D(point3D a);
KVT_API point3D mulPoint3D(point3D a, float s);
KVT_API point3D mulPoint3D(float s, point3D a);
// Cross product a x b: the unit x times the unit y gives the unit z.
KVT_API point3D mulPoint3D(point3D a, point3D b);
// Matrices keep m[column][line]. Point first: p as a row times M, the
// scalar product of p with each column. Matrix first: M times p, the
// columns weighted by p's coordinates.
KVT_API point3D mulPoint3D(point3D a, float (*m)[3]);
KVT_API point3D mulPoint3D(float (*m)[3], point3D a);
// The zero point gives not-a-number in every coordinate.
KVT_API point3D normPoint3D(point3D a);

KVT_API point2D setPoint2D(float x, float y);
KVT_API float scaPoint2D(point2D a, point2D b);

KVT_API point3Di setPoint3Di(int x, int y, int z);
KVT_API point3Di setPoint3Di(point3D a);
// The product is formed in float and truncated after: 3 times 0.5 gives 1.
KVT_API point3Di setPoint3Di(point3D a, float s);
KVT_API point3Di setPoint3Di(float s, point3D a);
KVT_API point3Di addPoint3D(point3Di a, point3Di b);
KVT_API point3Di addPoints3D(point3Di a, point3Di b, point3Di c);
KVT_API point3Di difPoint3D(point3Di a, point3Di b);
KVT_API int scaPoint3D(point3Di a, point3Di b);
KVT_API int sqaPoint3D(point3Di a);
// Truncated: the length of (1, 1, 1) is 1.
KVT_API int lenPoint3D(point3Di a);
KVT_API point3Di mulPoint3D(point3Di a, int s);
KVT_API point3Di mulPoint3D(int s, point3Di a);
KVT_API point3Di mulPoint3D(point3Di a, int (*m)[3]);
KVT_API point3Di mulPoint3D(int (*m)[3], point3Di a);

KVT_API point2Di setPoint2Di(int x, int y);

// Caps a at b: b when a > b, else a (also when either is not-a-number).
KVT_API float limitAt(float a, float b);
// Caps a at b: a when a <= b, else b.
KVT_API int limitAti(int a, int b);
KVT_API void swapFloat(float *a, float *b);

#endif
