// SPDX-License-Identifier: MIT
#include "export/BentPoints.h"

#include "export/ExportNames.h"

#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/base/SoState.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>

namespace scopix
{

void BentPointsWalk::note(const SoState& state)
{
    m_points = state.points;
    m_normals = state.normals;
}

void BentPointsWalk::noteNode(const SoNode& node, const SoState& state)
{
    const bool isMorph = isA<SoMorph>(node);
    if (state.points == m_points || (!isMorph && !isA<SoSkin>(node)))
        return;
    const auto before = m_bent.find(m_points);
    BentPoints bent = before == m_bent.end() ? BentPoints{m_points, m_normals} : before->second;
    bent.isKnown = bent.isKnown && !bent.skin && !(isMorph && bent.morph);
    if (isMorph)
        bent.morph = static_cast<const SoMorph*>(&node);
    else
        bent.skin = static_cast<const SoSkin*>(&node);
    m_bent[state.points] = bent;
}

const BentPoints* BentPointsWalk::find(const SoState& state) const
{
    const auto found = m_bent.find(state.points);
    return found == m_bent.end() ? nullptr : &found->second;
}

SoState withoutBending(const SoState& state, const BentPoints& bent)
{
    SoState result = state;
    result.points = bent.points;
    result.normals = bent.normals;
    return result;
}

// A shape may repeat points: it is asked what it makes of points that say their places. Single precision
// holds half of the bits of a place for certain.
std::vector<std::uint32_t> placesOfCorners(const SoShape& shape, const SoState& state)
{
    constexpr std::uint32_t Half = 1U << 16U;
    const SoRef<SoPoints> numbered(new SoPoints);
    numbered->points.setNum(state.points->points.getNum());
    SbVec3f* points = numbered->points.startEditing();
    for (std::uint32_t i = 0; i < static_cast<std::uint32_t>(numbered->points.getNum()); ++i)
        points[i] = SbVec3f(static_cast<float>(i % Half), static_cast<float>(i / Half), 0);
    numbered->points.finishEditing();
    SoState numbering = state;
    numbering.points = numbered.get();
    SoGeometry geometry;
    shape.generate(numbering, geometry);
    std::vector<std::uint32_t> places(geometry.points.size());
    std::transform(geometry.points.begin(), geometry.points.end(), places.begin(), [](const SbVec3f& p) {
        return static_cast<std::uint32_t>(p[0]) + static_cast<std::uint32_t>(p[1]) * Half;
    });
    return places;
}

} // namespace scopix
