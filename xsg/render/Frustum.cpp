// SPDX-License-Identifier: MIT
#include <xsg/render/Frustum.h>

#include <Eigen/Dense>

namespace
{

using Vector = Eigen::Map<const Eigen::Vector3f>;

} // namespace

xsg::Frustum::Frustum(const SbMatrix& viewProjection)
{
    // A point p is inside where -w <= x, y, z <= w for p times the matrix.
    const Eigen::Map<const Eigen::Matrix4f> columns(viewProjection.getValue()); // the matrix's rows
    const Eigen::Vector4f w = columns.row(3).transpose();
    for (int axis = 0; axis < 3; ++axis) {
        const Eigen::Vector4f along = columns.row(axis).transpose();
        const Eigen::Vector4f bounds[2] = {w + along, w - along};
        for (int side = 0; side < 2; ++side) {
            const Eigen::Vector4f& plane = bounds[side];
            m_planes[2 * axis + side] = SbPlane({plane[0], plane[1], plane[2]}, -plane[3]);
        }
    }
}

xsg::Frustum::Found xsg::Frustum::classify(const SbBox3f& box) const
{
    // Halved first, since the corners of an empty box are as far apart as numbers reach.
    const Eigen::Vector3f low = Vector(box.getMin().getValue()) / 2;
    const Eigen::Vector3f high = Vector(box.getMax().getValue()) / 2;
    const Eigen::Vector3f center = low + high;
    const Eigen::Vector3f half = high - low;
    Found found = Found::Everything;
    for (const SbPlane& plane : m_planes) {
        const Vector normal(plane.getNormal().getValue());
        const float distance = normal.dot(center) - plane.getDistanceFromOrigin();
        const float reach = normal.cwiseAbs().dot(half);
        if (distance < -reach)
            return Found::Nothing;
        if (!(distance >= reach))
            found = Found::Some;
    }
    return found;
}
