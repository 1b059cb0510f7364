// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoVertexShape.h>

#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTextureCoordinates.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <numeric>

template class SoTyped<SoVertexShape, SoShape>;

namespace
{

template <class T>
void spread(std::vector<T>& values, const std::vector<std::uint32_t>& index)
{
    if (values.empty())
        return;
    std::vector<T> result;
    result.reserve(index.size());
    for (const std::uint32_t i : index)
        result.push_back(values[i]);
    values = std::move(result);
}

// Gives every corner a vertex of its own, so that faces can differ where they touch.
void separateCorners(SoGeometry& g)
{
    spread(g.points, g.index);
    spread(g.normals, g.index);
    spread(g.textureCoordinates, g.index);
    spread(g.secondTextureCoordinates, g.index);
    spread(g.colors, g.index);
    std::iota(g.index.begin(), g.index.end(), 0U);
}

void addFlatNormals(SoGeometry& g)
{
    separateCorners(g);
    g.normals.reserve(g.points.size());
    for (std::size_t i = 0; i + 2 < g.points.size(); i += 3) {
        const SbVec3f n = cross(g.points[i + 1] - g.points[i], g.points[i + 2] - g.points[i]).normalized();
        g.normals.insert(g.normals.end(), 3, n);
    }
}

// Where the list of colours is; null where there is none.
const SoNode* findColorNode(const SoState& state)
{
    if (state.physicalMaterial)
        return state.physicalMaterial;
    return state.material.diffuseNode;
}

const SoMFColor* findColors(const SoState& state)
{
    if (state.physicalMaterial)
        return &state.physicalMaterial->baseColor;
    return state.material.diffuseNode ? &state.material.diffuseNode->diffuseColor : nullptr;
}

// Only where there is one for each point.
void takeCoordinates(const SoTextureCoordinates* given, std::size_t pointCount, std::vector<SbVec2f>& to)
{
    if (given && static_cast<std::size_t>(given->points.getNum()) == pointCount)
        to.assign(given->points.getValues(), given->points.getValues() + pointCount);
}

template <class Node>
void addPart(SoGeometryKey& key, const Node* node)
{
    key.add(node ? node->getNodeId() : 0, node ? node->getChangeCount() : 0);
}

} // namespace

SoEnumTablePtr SoVertexShape::getColorBindingNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"OVERALL", Overall}, {"PER_FACE", PerFace}, {"PER_VERTEX", PerVertex}});
    return names;
}

SoGeometryKey SoVertexShape::getGeometryKey(const SoState& state) const
{
    SoGeometryKey key;
    addPart(key, this);
    addPart(key, state.points);
    addPart(key, state.normals);
    addPart(key, state.textureCoordinates);
    addPart(key, colorBinding.getValue() == Overall ? nullptr : findColorNode(state));
    if (state.secondTextureCoordinates)
        addPart(key, state.secondTextureCoordinates);
    return key;
}

void SoVertexShape::generate(const SoState& state, SoGeometry& g) const
{
    g.kind = getKind();
    if (!state.points)
        return;
    const auto pointCount = static_cast<std::size_t>(state.points->points.getNum());
    const SbVec3f* points = state.points->points.getValues();
    g.points.assign(points, points + pointCount);
    if (state.normals && static_cast<std::size_t>(state.normals->vectors.getNum()) == pointCount)
        g.normals.assign(state.normals->vectors.getValues(), state.normals->vectors.getValues() + pointCount);
    takeCoordinates(state.textureCoordinates, pointCount, g.textureCoordinates);
    takeCoordinates(state.secondTextureCoordinates, pointCount, g.secondTextureCoordinates);
    Corners corners;
    collectCorners(static_cast<std::uint32_t>(pointCount), corners);
    g.index = corners.index;
    addColors(state, corners, g);
    if (g.normals.empty() && g.kind == SoGeometry::Kind::Triangles)
        addFlatNormals(g);
}

SoVertexShape::Part SoVertexShape::findPart(int pointCount, int number) const
{
    Corners corners;
    collectCorners(static_cast<std::uint32_t>(std::max(pointCount, 0)), corners);
    const auto size = static_cast<std::size_t>(3 - static_cast<int>(getKind()));
    const auto group = static_cast<std::size_t>(number);
    Part part;
    if (number < 0 || (group + 1) * size > corners.index.size())
        return part;
    part.face = corners.faces.empty() ? number : static_cast<int>(corners.faces[group]);
    part.points.assign(corners.index.begin() + static_cast<std::ptrdiff_t>(group * size),
                       corners.index.begin() + static_cast<std::ptrdiff_t>((group + 1) * size));
    return part;
}

void SoVertexShape::addColors(const SoState& state, const Corners& corners, SoGeometry& g) const
{
    const SoMFColor* colors = findColors(state);
    const int binding = colorBinding.getValue();
    if (!colors || colors->getNum() == 0 || (binding != PerFace && binding != PerVertex))
        return;
    const auto count = static_cast<std::size_t>(colors->getNum());
    // More faces than colours: the list starts again.
    const auto color = [&](std::size_t i) { return (*colors)[static_cast<int>(i % count)]; };
    if (binding == PerFace)
        separateCorners(g);
    const auto perFace = static_cast<std::size_t>(3 - static_cast<int>(g.kind));
    g.colors.reserve(g.points.size());
    for (std::size_t i = 0; i < g.points.size(); ++i) {
        const std::size_t group = i / perFace;
        const std::size_t face =
            corners.faces.empty() ? group : corners.faces[std::min(group, corners.faces.size() - 1)];
        g.colors.push_back(color(binding == PerFace ? face : i));
    }
}

SbBox3f SoVertexShape::getBox(const SoState& state) const
{
    SbBox3f box;
    if (!state.points)
        return box;
    Corners corners;
    collectCorners(static_cast<std::uint32_t>(state.points->points.getNum()), corners);
    const SbVec3f* points = state.points->points.getValues();
    for (const std::uint32_t i : corners.index)
        box.extendBy(points[i]);
    return box;
}
