#ifndef KVT_TESTS_MATH_POINT_CHECKS_H
#define KVT_TESTS_MATH_POINT_CHECKS_H

// Exact comparison and printing of points, so that EXPECT_EQ shows the
// coordinates that differ.

#include <cmath>
#include <ostream>

#include <kvt/math/point.h>

inline const point3D kUnitAxes[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};

// As numbers: -0 equals 0, and a not-a-number equals nothing.
inline bool operator==(point3D a, point3D b) { return a.x == b.x && a.y == b.y && a.z == b.z; }
inline bool operator==(point3Di a, point3Di b) { return a.x == b.x && a.y == b.y && a.z == b.z; }
inline void PrintTo(point3D p, std::ostream *out) { *out << p.x << ", " << p.y << ", " << p.z; }
inline void PrintTo(point3Di p, std::ostream *out) { *out << p.x << ", " << p.y << ", " << p.z; }

// Sum of the coordinate differences; not-a-number when any is.
inline float Distance(point3D a, point3D b)
{
    return std::fabs(a.x - b.x) + std::fabs(a.y - b.y) + std::fabs(a.z - b.z);
}

#endif
