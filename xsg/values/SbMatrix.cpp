// SPDX-License-Identifier: MIT
#include <xsg/values/SbMatrix.h>

#include <xsg/values/SbRotation.h>

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>

namespace
{

using RowMajor = Eigen::Matrix<float, 4, 4, Eigen::RowMajor>;

Eigen::Map<const RowMajor> view(const SbMatrix& m)
{
    return Eigen::Map<const RowMajor>(m.getValue());
}

template <class Expression>
SbMatrix fromEigen(const Expression& expression)
{
    const RowMajor m = expression;
    return SbMatrix(m.data());
}

} // namespace

SbMatrix::SbMatrix(const float* sixteen)
{
    setValue(sixteen);
}

void SbMatrix::setValue(const float* sixteen)
{
    std::copy_n(sixteen, 16, m_values);
}

SbMatrix SbMatrix::translation(const SbVec3f& by)
{
    SbMatrix m;
    std::copy_n(by.getValue(), 3, m[3]);
    return m;
}

SbMatrix SbMatrix::scale(const SbVec3f& by)
{
    SbMatrix m;
    for (int i = 0; i < 3; ++i)
        m[i][i] = by[i];
    return m;
}

SbMatrix SbMatrix::rotation(const SbRotation& by)
{
    SbMatrix m;
    const SbVec3f axes[3] = {by.multVec({1, 0, 0}), by.multVec({0, 1, 0}), by.multVec({0, 0, 1})};
    for (int r = 0; r < 3; ++r)
        std::copy_n(axes[r].getValue(), 3, m[r]);
    return m;
}

SbMatrix SbMatrix::perspective(float fieldOfView, float aspect, float nearDistance, float farDistance)
{
    const float f = 1.0F / std::tan(fieldOfView * 0.5F);
    const float depth = nearDistance - farDistance;
    const float values[16] = {f / aspect,
                              0,
                              0,
                              0,
                              0,
                              f,
                              0,
                              0,
                              0,
                              0,
                              (farDistance + nearDistance) / depth,
                              -1,
                              0,
                              0,
                              2 * farDistance * nearDistance / depth,
                              0};
    return SbMatrix(values);
}

SbMatrix SbMatrix::orthographic(float height, float aspect, float nearDistance, float farDistance)
{
    SbMatrix m = scale({2 / (height * aspect), 2 / height, -2 / (farDistance - nearDistance)});
    m[3][2] = -(farDistance + nearDistance) / (farDistance - nearDistance);
    return m;
}

std::optional<SbMatrix> SbMatrix::inverse() const
{
    bool invertible = false;
    RowMajor result;
    const RowMajor m = view(*this);
    // Double precision, so that small but honest scales are not taken for singular.
    const Eigen::Matrix4d wide = m.cast<double>();
    Eigen::Matrix4d inverted;
    double determinant = 0;
    wide.computeInverseAndDetWithCheck(inverted, determinant, invertible, 1e-300);
    if (!invertible || !inverted.allFinite())
        return std::nullopt;
    return fromEigen(inverted.cast<float>());
}

SbMatrix SbMatrix::transposed() const
{
    return fromEigen(view(*this).transpose());
}

SbVec3f SbMatrix::multPoint(const SbVec3f& p) const
{
    const SbMatrix& m = *this;
    float out[4];
    for (int c = 0; c < 4; ++c)
        out[c] = p[0] * m[0][c] + p[1] * m[1][c] + p[2] * m[2][c] + m[3][c];
    const float w = out[3] != 0 ? 1.0F / out[3] : 1.0F;
    return {out[0] * w, out[1] * w, out[2] * w};
}

SbVec3f SbMatrix::multDirection(const SbVec3f& d) const
{
    const SbMatrix& m = *this;
    SbVec3f out;
    for (int c = 0; c < 3; ++c)
        out[c] = d[0] * m[0][c] + d[1] * m[1][c] + d[2] * m[2][c];
    return out;
}

SbBox3f SbMatrix::transform(const SbBox3f& box) const
{
    if (box.isEmpty())
        return box;
    return isAffine() ? transformAffine(box) : transformCorners(box);
}

bool SbMatrix::isAffine() const
{
    const float* m = m_values;
    return m[3] == 0 && m[7] == 0 && m[11] == 0 && m[15] == 1;
}

// Each side of the result takes, of each side of the box, what leads farther that way.
SbBox3f SbMatrix::transformAffine(const SbBox3f& box) const
{
    const auto m = view(*this).array();
    using Row = Eigen::Array<float, 1, 4>;
    Row low = Row::Zero();
    Row high = Row::Zero();
    for (int r = 0; r < 3; ++r) {
        const Row a = m.row(r) * box.getMin()[r];
        const Row b = m.row(r) * box.getMax()[r];
        low += a.min(b);
        high += a.max(b);
    }
    low += m.row(3);
    high += m.row(3);
    return {SbVec3f(low.data()), SbVec3f(high.data())};
}

SbBox3f SbMatrix::transformCorners(const SbBox3f& box) const
{
    SbBox3f result;
    for (unsigned corner = 0; corner < 8; ++corner) {
        SbVec3f p;
        for (int i = 0; i < 3; ++i)
            p[i] = (corner >> i) & 1U ? box.getMax()[i] : box.getMin()[i];
        result.extendBy(multPoint(p));
    }
    return result;
}

SbMatrix operator*(const SbMatrix& a, const SbMatrix& b)
{
    return fromEigen(view(a) * view(b));
}

bool operator==(const SbMatrix& a, const SbMatrix& b)
{
    return std::equal(a.m_values, a.m_values + 16, b.m_values);
}
