#ifndef KVT_MATH_MATRIX_H
#define KVT_MATH_MATRIX_H

// 3x3 matrices in arrays that the caller owns: float m[3][3] or int
// m[3][3], first index the column, second the line, so m[c] is column c.
// The products of a point and a matrix are the mulPoint3D overloads of
// point.h. Nothing here allocates.

#include <kvt/math/point.h>
#include <kvt/export.h>

// The nine numbers in storage order: column 0 first, then 1, then 2.
KVT_API void setMatrix3(float (*m)[3], float c0l0, float c0l1, float c0l2, float c1l0, float c1l1,
                        float c1l2, float c2l0, float c2l1, float c2l2);
KVT_API void setMatrix3(float (*m)[3], float (*source)[3]);
// a, b and c become columns 0, 1 and 2.
KVT_API void setMatrix3(float (*m)[3], point3D a, point3D b, point3D c);
KVT_API void setMatrix3i(int (*m)[3], int c0l0, int c0l1, int c0l2, int c1l0, int c1l1, int c1l2,
                         int c2l0, int c2l1, int c2l2);

// result[i][j] = sum of a[i][k] * b[k][j], which is B times A: a acts
// first. result must be a third matrix.
KVT_API void mulMatrix3(float (*a)[3], float (*b)[3], float (*result)[3]);

// Gauss-Jordan on lines; m ends as the identity and result holds the
// inverse. False when a column offers no non-zero pivot; m and result then
// hold a half-done elimination. m and result must differ.
KVT_API bool invMatrix3(float (*m)[3], float (*result)[3]);

// i from 0 to 2.
KVT_API point3D columnOf(float (*m)[3], int i);
KVT_API point3D lineOf(float (*m)[3], int i);

// Makes the columns perpendicular again once they have drifted: keeps
// column 1, rebuilds column 2 as c0 x c1 and then column 0 as c1 x c2.
// Lengths are left as the cross products give them; see normMatrix3.
KVT_API void sharpMatrix3(float (*m)[3]);
// Each column divided by its length; a zero column becomes not-a-number.
KVT_API void normMatrix3(float (*m)[3]);

#endif
