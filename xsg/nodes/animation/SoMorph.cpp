// SPDX-License-Identifier: MIT
#include <xsg/nodes/animation/SoMorph.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>

template class SoTyped<SoMorph, SoNode>;

namespace
{

bool fits(const SoMFVec3f& offsets, int targets, int points)
{
    return static_cast<std::int64_t>(targets) * points == offsets.getNum();
}

void addOffsets(const SoMFFloat& weights, const SoMFVec3f& offsets, int points, SbVec3f* to)
{
    for (int target = 0; target < weights.getNum(); ++target) {
        const float weight = weights[target];
        if (weight == 0)
            continue;
        const SbVec3f* from = offsets.getValues(target * points);
        for (int i = 0; i < points; ++i)
            to[i] = to[i] + from[i] * weight;
    }
}

} // namespace

void SoMorph::apply(SoState& state) const
{
    const int count = state.points ? state.points->points.getNum() : 0;
    if (count == 0 || !fits(pointOffsets, weights.getNum(), count))
        return;
    if (m_made.isOld(state, getFieldChangeCount())) {
        m_made.make(state, getFieldChangeCount(), [&](SbVec3f* points, SbVec3f* normals) {
            std::copy_n(state.points->points.getValues(), count, points);
            addOffsets(weights, pointOffsets, count, points);
            if (!normals)
                return;
            std::copy_n(state.normals->vectors.getValues(), count, normals);
            if (!fits(normalOffsets, weights.getNum(), count))
                return;
            addOffsets(weights, normalOffsets, count, normals);
            std::transform(normals, normals + count, normals,
                           [](const SbVec3f& n) { return n.normalized(); });
        });
    }
    m_made.apply(state);
}
