// SPDX-License-Identifier: MIT
#include "import/TransformBuilder.h"

#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

SbVec3f row(const SbMatrix& m, int r)
{
    return {m[r][0], m[r][1], m[r][2]};
}

// From three directions at right angles to each other.
SbRotation rotationOf(const SbVec3f axes[3])
{
    // Row vectors: r[i][j] is component j of the image of axis i.
    const auto r = [&](int i, int j) { return static_cast<double>(axes[i][j]); };
    double q[4];
    const double trace = r(0, 0) + r(1, 1) + r(2, 2);
    if (trace > 0) {
        const double s = 2 * std::sqrt(trace + 1);
        q[0] = (r(1, 2) - r(2, 1)) / s;
        q[1] = (r(2, 0) - r(0, 2)) / s;
        q[2] = (r(0, 1) - r(1, 0)) / s;
        q[3] = s / 4;
    } else {
        const int i = r(0, 0) > r(1, 1) && r(0, 0) > r(2, 2) ? 0 : r(1, 1) > r(2, 2) ? 1 : 2;
        const int j = (i + 1) % 3;
        const int k = (i + 2) % 3;
        const double s = 2 * std::sqrt(1 + r(i, i) - r(j, j) - r(k, k));
        q[i] = s / 4;
        q[j] = (r(i, j) + r(j, i)) / s;
        q[k] = (r(i, k) + r(k, i)) / s;
        q[3] = (r(j, k) - r(k, j)) / s;
    }
    const float four[4] = {static_cast<float>(q[0]), static_cast<float>(q[1]), static_cast<float>(q[2]),
                           static_cast<float>(q[3])};
    return SbRotation(four);
}

bool isNear(const SbMatrix& a, const SbMatrix& b)
{
    float largest = 0;
    float apart = 0;
    for (int i = 0; i < 16; ++i) {
        largest = std::max(largest, std::fabs(b.getValue()[i]));
        apart = std::max(apart, std::fabs(a.getValue()[i] - b.getValue()[i]));
    }
    return apart <= 1e-4F * largest;
}

} // namespace

SoTransform* makeMovablePlacement(const SbMatrix& matrix)
{
    SbVec3f axes[3] = {row(matrix, 0), row(matrix, 1), row(matrix, 2)};
    SbVec3f scale(axes[0].length(), axes[1].length(), axes[2].length());
    if (cross(axes[0], axes[1]).dot(axes[2]) < 0)
        scale[0] = -scale[0]; // a mirror
    bool turns = true;
    for (int i = 0; i < 3; ++i) {
        turns = turns && scale[i] != 0;
        axes[i] = axes[i] * (scale[i] != 0 ? 1 / scale[i] : 1);
    }
    auto* transform = new SoTransform;
    if (const SbVec3f move = row(matrix, 3); move != SbVec3f())
        transform->translation.setValue(move);
    if (const SbRotation turn = turns ? rotationOf(axes) : SbRotation(); turn != SbRotation())
        transform->rotation.setValue(turn);
    if (scale != SbVec3f(1, 1, 1))
        transform->scaleFactor.setValue(scale);
    return transform;
}

SoTransformation* makePlacement(const SbMatrix& matrix)
{
    SoRef<SoTransform> transform(makeMovablePlacement(matrix));
    const SbVec3f scale = transform->scaleFactor.getValue();
    const bool isFlat = scale[0] == 0 || scale[1] == 0 || scale[2] == 0;
    if (!isFlat && isNear(transform->getMatrix(), matrix))
        return transform.release();
    auto* exact = new SoMatrixTransform;
    exact->matrix.setValue(matrix);
    return exact;
}

} // namespace scopix
