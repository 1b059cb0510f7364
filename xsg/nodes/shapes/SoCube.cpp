// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoCube.h>

#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoCube, SoSolid>;

namespace
{

// One side: its outward normal, and the directions in which its texture runs.
struct Side {
    SbVec3f normal;
    SbVec3f right;
    SbVec3f up;
};

constexpr Side Sides[] = {
    {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},  {{0, 0, -1}, {-1, 0, 0}, {0, 1, 0}},
    {{1, 0, 0}, {0, 0, -1}, {0, 1, 0}}, {{-1, 0, 0}, {0, 0, 1}, {0, 1, 0}},
    {{0, 1, 0}, {1, 0, 0}, {0, 0, -1}}, {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}},
};

void addSide(SoGeometry& g, const Side& side)
{
    const auto first = static_cast<std::uint32_t>(g.points.size());
    for (unsigned corner = 0; corner < 4; ++corner) {
        const float u = corner == 1 || corner == 2 ? 1.0F : 0.0F;
        const float v = corner >= 2 ? 1.0F : 0.0F;
        g.points.push_back(side.normal + side.right * (2 * u - 1) + side.up * (2 * v - 1));
        g.normals.push_back(side.normal);
        g.textureCoordinates.emplace_back(u, v);
    }
    g.index.insert(g.index.end(), {first, first + 1, first + 2, first, first + 2, first + 3});
}

} // namespace

SbVec3f SoCube::getExtent() const
{
    return SbVec3f(width.getValue(), height.getValue(), depth.getValue()) * 0.5F;
}

SoGeometryKey SoCube::getGeometryKey(const SoState& /*state*/) const
{
    return makeKey(0);
}

void SoCube::generate(const SoState& /*state*/, SoGeometry& geometry) const
{
    for (const Side& side : Sides)
        addSide(geometry, side);
}
