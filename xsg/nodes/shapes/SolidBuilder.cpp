// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SolidBuilder.h>

#include <cmath>

namespace
{

constexpr double TwoPi = 6.283185307179586;

struct Direction {
    float sine;
    float cosine;
};

Direction directionAt(int step, int segments)
{
    const double angle = TwoPi * (step % segments) / segments;
    return {static_cast<float>(std::sin(angle)), static_cast<float>(std::cos(angle))};
}

void addVertex(SoGeometry& g, const SbVec3f& point, const SbVec3f& normal, const SbVec2f& texture)
{
    g.points.push_back(point);
    g.normals.push_back(normal);
    g.textureCoordinates.push_back(texture);
}

} // namespace

void xsg::turn(SoGeometry& g, const std::vector<ProfileRing>& rings, int segments)
{
    const auto first = static_cast<std::uint32_t>(g.points.size());
    for (const ProfileRing& ring : rings) {
        for (int i = 0; i <= segments; ++i) {
            const auto [s, c] = directionAt(i, segments);
            const float across = ring.normal[0];
            addVertex(g, {ring.radius * s, ring.y, ring.radius * c}, {across * s, ring.normal[1], across * c},
                      {static_cast<float>(i) / static_cast<float>(segments), ring.v});
        }
    }
    const auto row = static_cast<std::uint32_t>(segments + 1);
    for (std::uint32_t r = 0; r + 1 < rings.size(); ++r) {
        for (std::uint32_t i = 0; i + 1 < row; ++i) {
            const std::uint32_t a = first + r * row + i;
            // A ring of no radius is a tip: one of its two triangles is empty.
            if (rings[r].radius > 0)
                g.index.insert(g.index.end(), {a, a + 1, a + row});
            if (rings[r + 1].radius > 0)
                g.index.insert(g.index.end(), {a + 1, a + row + 1, a + row});
        }
    }
}

void xsg::disc(SoGeometry& g, float y, bool upward, int segments)
{
    const auto center = static_cast<std::uint32_t>(g.points.size());
    const SbVec3f normal(0, upward ? 1.0F : -1.0F, 0);
    addVertex(g, {0, y, 0}, normal, {0.5F, 0.5F});
    for (int i = 0; i <= segments; ++i) {
        const auto [s, c] = directionAt(i, segments);
        addVertex(g, {s, y, c}, normal, {0.5F + 0.5F * s, 0.5F + 0.5F * (upward ? -c : c)});
    }
    for (std::uint32_t i = 1; i <= static_cast<std::uint32_t>(segments); ++i) {
        const std::uint32_t a = center + i;
        g.index.insert(g.index.end(), {center, upward ? a : a + 1, upward ? a + 1 : a});
    }
}
