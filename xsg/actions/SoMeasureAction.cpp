// SPDX-License-Identifier: MIT
#include <xsg/actions/SoMeasureAction.h>

#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr std::size_t MostKept = 256; // geometries, for shapes that share theirs

SbVec3d multiplied(const SbVec3d& point, const SbMatrix& matrix)
{
    double sums[4];
    for (int column = 0; column < 4; ++column) {
        sums[column] = static_cast<double>(matrix[3][column]);
        for (int row = 0; row < 3; ++row)
            sums[column] += point[row] * static_cast<double>(matrix[row][column]);
    }
    return {sums[0] / sums[3], sums[1] / sums[3], sums[2] / sums[3]};
}

double triangleArea(const SbVec3d& a, const SbVec3d& b, const SbVec3d& c)
{
    const SbVec3d u = b - a;
    const SbVec3d v = c - a;
    return SbVec3d(u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]).length() /
           2;
}

} // namespace

void SoMeasureAction::Sum::add(const Sum& other)
{
    shapes += other.shapes;
    triangles += other.triangles;
    area += other.area;
    if (!other.hasBox)
        return;
    for (int i = 0; i < 3; ++i) {
        min[i] = hasBox ? std::min(min[i], other.min[i]) : other.min[i];
        max[i] = hasBox ? std::max(max[i], other.max[i]) : other.max[i];
    }
    hasBox = true;
}

SbVec3d SoMeasureAction::toWorld(const SbVec3f& point, const SbMatrix& placement, const SbMatrix& matrix)
{
    const SbVec3d precise(static_cast<double>(point[0]), static_cast<double>(point[1]),
                          static_cast<double>(point[2]));
    return multiplied(multiplied(precise, placement), matrix);
}

void SoMeasureAction::begin(const SoPath& part)
{
    m_sum = {};
    m_geometry.clear();
    follow(part);
    resetState();
    state().chooseAll = true; // what is chosen by distance has its size, wherever the eye is
    SoTraversal::begin(part.getHead());
}

bool SoMeasureAction::advance(std::chrono::steady_clock::time_point until)
{
    return SoTraversal::advance(until);
}

void SoMeasureAction::visitPartShape(SoShape* shape)
{
    if (state().drawStyle && !state().drawStyle->isVisible())
        return;
    const SoGeometry& geometry = geometryOf(shape);
    if (geometry.isScreenSpace)
        return;
    ++m_sum.shapes;
    state().forEachInstance(
        [&](const SbMatrix& matrix) { measure(geometry, shape->getPlacement(), matrix); });
}

void SoMeasureAction::measure(const SoGeometry& geometry, const SbMatrix& placement, const SbMatrix& matrix)
{
    m_points.clear();
    for (const SbVec3f& point : geometry.points)
        m_points.push_back(toWorld(point, placement, matrix));
    Sum sum;
    for (const std::uint32_t i : geometry.index) {
        const SbVec3d& point = m_points[i];
        for (int axis = 0; axis < 3; ++axis) {
            sum.min[axis] = sum.hasBox ? std::min(sum.min[axis], point[axis]) : point[axis];
            sum.max[axis] = sum.hasBox ? std::max(sum.max[axis], point[axis]) : point[axis];
        }
        sum.hasBox = true;
    }
    if (geometry.kind == SoGeometry::Kind::Triangles) {
        sum.triangles = static_cast<std::int64_t>(geometry.index.size() / 3);
        for (std::size_t i = 0; i + 2 < geometry.index.size(); i += 3)
            sum.area += triangleArea(m_points[geometry.index[i]], m_points[geometry.index[i + 1]],
                                     m_points[geometry.index[i + 2]]);
    }
    m_sum.add(sum);
}

const SoGeometry& SoMeasureAction::geometryOf(SoShape* shape)
{
    if (m_geometry.size() >= MostKept)
        m_geometry.clear();
    const auto [place, isNew] = m_geometry.try_emplace(shape->getGeometryKey(state()));
    if (isNew)
        shape->generate(state(), place->second);
    return place->second;
}
