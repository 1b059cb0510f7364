// SPDX-License-Identifier: MIT
#include <xsg/render/Tangents.h>

#include <cmath>

namespace
{

// How the surface runs along both coordinates.
struct Directions {
    SbVec3f along;
    SbVec3f across;
};

// Of a triangle, by its size on the surface; none where its coordinates lie on a line.
Directions directionsOf(const SbVec3f (&p)[3], const SbVec2f (&t)[3])
{
    const SbVec3f a = p[1] - p[0];
    const SbVec3f b = p[2] - p[0];
    const SbVec2f s = t[1] - t[0];
    const SbVec2f r = t[2] - t[0];
    const float area = s[0] * r[1] - s[1] * r[0];
    if (area == 0 || !std::isfinite(area))
        return {};
    const float side = area < 0 ? -1.0F : 1.0F;
    const float size = cross(a, b).length();
    return {((a * r[1] - b * s[1]) * side).normalized() * size,
            ((b * s[0] - a * r[0]) * side).normalized() * size};
}

SbVec3f anyAcross(const SbVec3f& normal)
{
    const bool isAlongX = std::abs(normal[0]) > std::abs(normal[1]);
    return cross(normal, isAlongX ? SbVec3f(0, 1, 0) : SbVec3f(1, 0, 0)).normalized();
}

SbVec4f tangentOf(const SbVec3f& normal, const Directions& directions)
{
    const SbVec3f n = normal.normalized();
    SbVec3f t = (directions.along - n * n.dot(directions.along)).normalized();
    if (t.length() == 0)
        t = anyAcross(n);
    return {t[0], t[1], t[2], cross(n, t).dot(directions.across) < 0 ? -1.0F : 1.0F};
}

} // namespace

std::vector<SbVec4f> xsg::computeTangents(const SoGeometry& geometry, const std::vector<SbVec2f>& coordinates)
{
    const std::size_t count = geometry.points.size();
    if (geometry.kind != SoGeometry::Kind::Triangles || geometry.normals.size() != count ||
        coordinates.size() != count)
        return {};
    std::vector<Directions> sums(count);
    for (std::size_t i = 0; i + 2 < geometry.index.size(); i += 3) {
        const std::uint32_t* at = &geometry.index[i];
        const Directions face =
            directionsOf({geometry.points[at[0]], geometry.points[at[1]], geometry.points[at[2]]},
                         {coordinates[at[0]], coordinates[at[1]], coordinates[at[2]]});
        for (int corner = 0; corner < 3; ++corner) {
            sums[at[corner]].along = sums[at[corner]].along + face.along;
            sums[at[corner]].across = sums[at[corner]].across + face.across;
        }
    }
    std::vector<SbVec4f> tangents;
    tangents.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        tangents.push_back(tangentOf(geometry.normals[i], sums[i]));
    return tangents;
}
