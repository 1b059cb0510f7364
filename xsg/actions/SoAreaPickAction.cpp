// SPDX-License-Identifier: MIT
#include <xsg/actions/SoAreaPickAction.h>

#include <xsg/actions/DepthGrid.h>
#include <xsg/actions/GroupCache.h>
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>

namespace
{

constexpr int MostPixels = 2048; // along each side
constexpr float LeastPart = 1e-6F;

using Corner = xsg::DepthGrid::Corner;

Corner cornerAt(const SbMatrix& matrix, const SbVec3f& point)
{
    Corner corner;
    for (int i = 0; i < 4; ++i) {
        double sum = static_cast<double>(matrix[3][i]);
        for (int axis = 0; axis < 3; ++axis)
            sum += static_cast<double>(point[axis]) * static_cast<double>(matrix[axis][i]);
        corner[static_cast<std::size_t>(i)] = sum;
    }
    return corner;
}

SbMatrix cropTo(const SoAreaPickAction::Area& area)
{
    SbMatrix crop;
    const auto along = [&crop](int axis, float from, float to) {
        const float size = std::max(to - from, LeastPart);
        crop[axis][axis] = 1 / size;
        crop[3][axis] = (1 - from - to) / size;
    };
    along(0, area.left, area.right);
    along(1, area.bottom, area.top);
    return crop;
}

} // namespace

SoAreaPickAction::SoAreaPickAction() = default;
SoAreaPickAction::~SoAreaPickAction() = default;

void SoAreaPickAction::setClipPlane(const SbPlane* plane)
{
    m_hasClipPlane = plane != nullptr;
    m_clipPlane = plane ? *plane : SbPlane();
}

std::vector<SoPath> SoAreaPickAction::pick(SoNode* root, const SbMatrix& viewProjection, const Area& area,
                                           int width, int height)
{
    if (!root)
        return {};
    SoPath all;
    all.append(root);
    draw(all, viewProjection, area, width, height);
    std::vector<bool> isSeen(m_paths.size() + 1);
    for (const std::uint32_t number : m_grid->getNumbers())
        isSeen[number] = true;
    std::vector<SoPath> seen;
    for (std::size_t i = 0; i < m_paths.size(); ++i) {
        if (isSeen[i + 1])
            seen.push_back(std::move(m_paths[i]));
    }
    m_grid.reset();
    m_paths.clear();
    return seen;
}

std::vector<std::uint32_t> SoAreaPickAction::cover(const SoPath& part, const SbMatrix& viewProjection,
                                                   const Area& area, int width, int height)
{
    if (part.isEmpty())
        return {};
    draw(part, viewProjection, area, width, height);
    m_paths.clear();
    return std::exchange(m_grid, nullptr)->takeNumbers();
}

void SoAreaPickAction::draw(const SoPath& part, const SbMatrix& viewProjection, const Area& area, int width,
                            int height)
{
    m_toArea = viewProjection * cropTo(area);
    m_grid =
        std::make_unique<xsg::DepthGrid>(std::clamp(width, 1, MostPixels), std::clamp(height, 1, MostPixels));
    m_paths.clear();
    // Fills the boxes that let the walk skip what is out of sight.
    SoBoundingBoxAction().getBox(part.getHead());
    resetState();
    state().eye = m_eye;
    m_planesOf.reset();
    findPlanes();
    follow(part);
    traverse(part.getHead());
    m_geometry.clear();
}

bool SoAreaPickAction::wantsGroup(SoGroup* group)
{
    if (!SoPartTraversal::wantsGroup(group))
        return false;
    xsg::GroupCache* cache = group->asSeparator() ? xsg::GroupCache::find(*group) : nullptr;
    return !cache || !cache->hasBox(*group, xsg::BoxInputs::of(state())) || mayBeSeen(cache->getBox());
}

bool SoAreaPickAction::mayBeSeen(const SbBox3f& box)
{
    bool isSeen = false;
    state().forEachInstance([&](const SbMatrix& matrix) { isSeen = isSeen || mayBeSeen(box, matrix); });
    return isSeen;
}

// False only where all corners are beyond the same side.
bool SoAreaPickAction::mayBeSeen(const SbBox3f& box, const SbMatrix& toWorld) const
{
    if (box.isEmpty())
        return false;
    const SbMatrix matrix = toWorld * m_toArea;
    unsigned outside = 0x3F;
    for (unsigned corner = 0; corner < 8; ++corner) {
        SbVec3f point;
        for (int i = 0; i < 3; ++i)
            point[i] = ((corner >> i) & 1U ? box.getMax() : box.getMin())[i];
        const Corner c = cornerAt(matrix, point);
        unsigned sides = 0;
        for (unsigned axis = 0; axis < 3; ++axis)
            sides |= (c[axis] > c[3] ? 1U : 0U) << (2 * axis) | (-c[axis] > c[3] ? 2U : 0U) << (2 * axis);
        outside &= sides;
    }
    return outside == 0;
}

void SoAreaPickAction::findPlanes()
{
    m_planes.clear();
    const auto toWorld = m_toArea.inverse();
    if (!toWorld)
        return;
    if (m_hasClipPlane)
        addPlane(m_clipPlane, *toWorld);
    if (m_planesOf) {
        for (const SbPlane& plane : *m_planesOf)
            addPlane(plane, *toWorld);
    }
}

void SoAreaPickAction::addPlane(const SbPlane& plane, const SbMatrix& toWorld)
{
    Plane& cut = m_planes.emplace_back();
    const SbVec3f& n = plane.getNormal();
    for (int row = 0; row < 4; ++row) {
        double sum =
            -static_cast<double>(plane.getDistanceFromOrigin()) * static_cast<double>(toWorld[row][3]);
        for (int axis = 0; axis < 3; ++axis)
            sum += static_cast<double>(n[axis]) * static_cast<double>(toWorld[row][axis]);
        cut[static_cast<std::size_t>(row)] = sum;
    }
}

void SoAreaPickAction::visitPartShape(SoShape* shape)
{
    if (state().drawStyle && !state().drawStyle->isVisible())
        return;
    if (state().clipPlanes != m_planesOf) {
        m_planesOf = state().clipPlanes;
        findPlanes();
    }
    state().forEachInstance([&](const SbMatrix& matrix) { drawShape(shape, matrix); });
}

void SoAreaPickAction::drawShape(SoShape* shape, const SbMatrix& toWorld)
{
    if (!mayBeSeen(shape->getBox(state()), toWorld))
        return;
    const SoGeometry& g = geometryOf(shape);
    const SbMatrix matrix = shape->getPlacement() * toWorld * m_toArea;
    const auto cornersPer = static_cast<std::size_t>(3 - static_cast<int>(g.kind));
    m_grid->begin(static_cast<std::uint32_t>(m_paths.size() + 1));
    bool isSeen = false;
    std::vector<Corner> corners;
    for (std::size_t i = 0; i + cornersPer <= g.index.size(); i += cornersPer) {
        corners.clear();
        for (std::size_t corner = 0; corner < cornersPer; ++corner)
            corners.push_back(cornerAt(matrix, g.isScreenSpace ? SbVec3f() : g.points[g.index[i + corner]]));
        for (const Plane& plane : m_planes)
            xsg::DepthGrid::clip(corners, plane);
        if (corners.empty())
            continue;
        if (g.isScreenSpace || cornersPer == 1)
            isSeen |= m_grid->drawPoint(corners[0]);
        else if (cornersPer == 2)
            isSeen |= corners.size() > 1 && m_grid->drawLine(corners[0], corners[1]);
        else
            for (std::size_t c = 2; c < corners.size(); ++c)
                isSeen |= m_grid->drawTriangle(corners[0], corners[c - 1], corners[c]);
    }
    if (!isSeen)
        return;
    SoPath& path = m_paths.emplace_back();
    for (const Frame& frame : getFrames())
        path.append(frame.group);
    path.append(shape);
}

const SoGeometry& SoAreaPickAction::geometryOf(SoShape* shape)
{
    const auto [place, isNew] = m_geometry.try_emplace(shape->getGeometryKey(state()));
    if (isNew)
        shape->generate(state(), place->second);
    return place->second;
}
