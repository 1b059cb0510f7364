// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/BoundingBoxTree.h>
#include <xsg/values/SbBox.h>
#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbPlane.h>

namespace xsg
{

/// What a camera can see, as six planes.
class XSG_API Frustum
{
public:
    using Found = BoundingBoxTree::Found;

    explicit Frustum(const SbMatrix& viewProjection);

    /// How much of the box is in sight; that nothing is, or everything, is certain.
    Found classify(const SbBox3f& box) const;
    bool mayShow(const SbBox3f& box) const { return classify(box) != Found::Nothing; }

private:
    SbPlane m_planes[6]; // their normals, of any length, point inwards
};

} // namespace xsg
