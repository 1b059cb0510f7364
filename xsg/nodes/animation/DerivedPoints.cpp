// SPDX-License-Identifier: MIT
#include <xsg/nodes/animation/DerivedPoints.h>

#include <xsg/nodes/base/SoState.h>

namespace
{

template <class List>
void resize(List& list, int count)
{
    if (list.getNum() != count)
        list.setNum(count);
}

} // namespace

xsg::DerivedPoints::Source xsg::DerivedPoints::sourceOf(const SoNode* node)
{
    return node ? Source{node->getNodeId(), node->getChangeCount()} : Source();
}

bool xsg::DerivedPoints::isOld(const SoState& state, std::uint64_t count) const
{
    return !m_points || m_count != count || !(m_fromPoints == sourceOf(state.points)) ||
           !(m_fromNormals == sourceOf(state.normals));
}

void xsg::DerivedPoints::begin(const SoState& state, std::uint64_t count)
{
    if (!m_points) {
        m_points = SoRef<SoPoints>(new SoPoints);
        m_normals = SoRef<SoNormals>(new SoNormals);
    }
    m_count = count;
    m_fromPoints = sourceOf(state.points);
    m_fromNormals = sourceOf(state.normals);
    const int points = state.points->points.getNum();
    resize(m_points->points, points);
    resize(m_normals->vectors, state.normals && state.normals->vectors.getNum() == points ? points : 0);
}

void xsg::DerivedPoints::apply(SoState& state) const
{
    state.points = m_points.get();
    if (hasNormals())
        state.normals = m_normals.get();
}
