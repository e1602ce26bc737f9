#include <kvt/math/matrix.h>

#include <cmath>

namespace {

void SetColumn(float (*m)[3], int i, point3D p)
{
    m[i][0] = p.x;
    m[i][1] = p.y;
    m[i][2] = p.z;
}

void SetIdentity(float (*m)[3])
{
    setMatrix3(m, 1, 0, 0, 0, 1, 0, 0, 0, 1);
}

// First line j from i on whose element in column i is not zero; a
// not-a-number counts as not zero. -1 when there is none.
int FirstPivotLine(float (*m)[3], int i)
{
    for (int j = i; j < 3; ++j)
        if (m[i][j] != 0.0f)
            return j;
    return -1;
}

void SwapLines(float (*m)[3], int i, int j)
{
    for (int c = 0; c < 3; ++c)
        swapFloat(&m[c][j], &m[c][i]);
}

void ScaleLine(float (*m)[3], int i, float d)
{
    for (int c = 0; c < 3; ++c)
        m[c][i] *= d;
}

// Line j -= line i * f.
void SubtractLine(float (*m)[3], int j, int i, float f)
{
    for (int c = 0; c < 3; ++c)
        m[c][j] -= m[c][i] * f;
}

} // namespace

void setMatrix3(float (*m)[3], float c0l0, float c0l1, float c0l2, float c1l0, float c1l1,
                float c1l2, float c2l0, float c2l1, float c2l2)
{
    SetColumn(m, 0, setPoint3D(c0l0, c0l1, c0l2));
    SetColumn(m, 1, setPoint3D(c1l0, c1l1, c1l2));
    SetColumn(m, 2, setPoint3D(c2l0, c2l1, c2l2));
}

void setMatrix3(float (*m)[3], float (*source)[3])
{
    for (int c = 0; c < 3; ++c)
        for (int l = 0; l < 3; ++l)
            m[c][l] = source[c][l];
}

void setMatrix3(float (*m)[3], point3D a, point3D b, point3D c)
{
    SetColumn(m, 0, a);
    SetColumn(m, 1, b);
    SetColumn(m, 2, c);
}

void setMatrix3i(int (*m)[3], int c0l0, int c0l1, int c0l2, int c1l0, int c1l1, int c1l2,
                 int c2l0, int c2l1, int c2l2)
{
    const int values[9] = {c0l0, c0l1, c0l2, c1l0, c1l1, c1l2, c2l0, c2l1, c2l2};
    for (int k = 0; k < 9; ++k)
        m[k / 3][k % 3] = values[k];
}

void mulMatrix3(float (*a)[3], float (*b)[3], float (*result)[3])
{
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) {
            float sum = 0.0f;
            for (int k = 0; k < 3; ++k)
                sum += a[i][k] * b[k][j];
            result[i][j] = sum;
        }
}

// The first non-zero pivot is taken, not the largest, and it is compared
// with zero exactly: a tiny pivot is used as it is.
bool invMatrix3(float (*m)[3], float (*result)[3])
{
    SetIdentity(result);
    for (int i = 0; i < 3; ++i) {
        int pivotLine = FirstPivotLine(m, i);
        if (pivotLine < 0)
            return false;
        if (pivotLine != i) {
            SwapLines(m, i, pivotLine);
            SwapLines(result, i, pivotLine);
        }
        float d = 1.0f / m[i][i];
        ScaleLine(m, i, d);
        ScaleLine(result, i, d);
        m[i][i] = 1.0f; // d * m[i][i] may be off by rounding
        for (int j = 0; j < 3; ++j) {
            if (j == i)
                continue;
            float f = m[i][j];
            SubtractLine(m, j, i, f);
            SubtractLine(result, j, i, f);
        }
    }
    return true;
}

point3D columnOf(float (*m)[3], int i)
{
    return setPoint3D(m[i][0], m[i][1], m[i][2]);
}

point3D lineOf(float (*m)[3], int i)
{
    return setPoint3D(m[0][i], m[1][i], m[2][i]);
}

void sharpMatrix3(float (*m)[3])
{
    point3D c0 = columnOf(m, 0);
    point3D c1 = columnOf(m, 1);
    point3D c2 = columnOf(m, 2);
    float drift = std::fabs(scaPoint3D(c0, c1)) + std::fabs(scaPoint3D(c0, c2)) +
                  std::fabs(scaPoint3D(c1, c2));
    // Strict, and false for not-a-number: such columns are left alone.
    // No float lies between 1e-06f and the decimal 1e-06, so the float
    // constant draws the same line.
    if (drift > 1e-06f) {
        c2 = mulPoint3D(c0, c1);
        c0 = mulPoint3D(c1, c2);
    }
    setMatrix3(m, c0, c1, c2);
}

void normMatrix3(float (*m)[3])
{
    for (int i = 0; i < 3; ++i)
        SetColumn(m, i, normPoint3D(columnOf(m, i)));
}
