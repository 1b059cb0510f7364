// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/BoundingBoxTree.h>
#include <xsg/values/SbBox.h>
#include <xsg/values/SbMatrix.h>

namespace xsg
{

/// What a camera can see, as planes.
class Frustum
{
public:
    using Found = BoundingBoxTree::Found;

    explicit Frustum(const SbMatrix& viewProjection)
    {
        // A point p is inside where -w <= x, y, z <= w for p times the matrix.
        for (int axis = 0; axis < 3; ++axis) {
            for (int row = 0; row < 4; ++row) {
                const float w = viewProjection[row][3];
                m_planes[2 * axis][row] = w + viewProjection[row][axis];
                m_planes[2 * axis + 1][row] = w - viewProjection[row][axis];
            }
        }
    }

    /// What of the box is in sight; nothing and everything are certain.
    Found classify(const SbBox3f& box) const
    {
        const SbVec3f& low = box.getMin();
        const SbVec3f& high = box.getMax();
        Found sight = Found::Everything;
        for (const auto& plane : m_planes) {
            float most = plane[3];
            float least = plane[3];
            for (int i = 0; i < 3; ++i) {
                most += plane[i] * (plane[i] > 0 ? high[i] : low[i]);
                least += plane[i] * (plane[i] > 0 ? low[i] : high[i]);
            }
            if (most < 0)
                return Found::Nothing;
            if (!(least >= 0))
                sight = Found::Some;
        }
        return sight;
    }
    bool mayShow(const SbBox3f& box) const { return classify(box) != Found::Nothing; }

private:
    float m_planes[6][4];
};

} // namespace xsg
