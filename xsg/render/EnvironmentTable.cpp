// SPDX-License-Identifier: MIT
#include <xsg/render/EnvironmentTable.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double Pi = 3.14159265358979323846;
// Directions around a mirrored one that are looked into: rings, and places on each.
constexpr int Rings = 24;
constexpr int PlacesOnRing = 16;

double smoothStep(double from, double to, double x)
{
    const double t = std::clamp((x - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

// The cosine of the angle to the mirrored direction within which this share of the light comes from, and its
// weight.
struct Ring {
    double cosine;
    double weight;
};

// Facets are turned away from the normal as Trowbridge and Reitz have it; eye and normal are at the mirrored
// direction.
Ring roughRing(double share, double roughness)
{
    const double alpha = roughness * roughness;
    const double facetCosine = std::sqrt((1 - share) / (1 + (alpha * alpha - 1) * share));
    const double cosine = 2 * facetCosine * facetCosine - 1;
    return {cosine, std::max(cosine, 0.0)};
}

Ring matteRing(double share)
{
    return {std::sqrt(1 - share), 1};
}

// The mean of what comes from around a direction of this height.
template <class RingOf>
SbVec3f blurred(double height, const RingOf& ringOf)
{
    const double level = std::sqrt(std::max(0.0, 1 - height * height));
    double sums[3] = {0, 0, 0};
    double weights = 0;
    for (int ring = 0; ring < Rings; ++ring) {
        const Ring now = ringOf((ring + 0.5) / Rings);
        const double aside = std::sqrt(std::max(0.0, 1 - now.cosine * now.cosine));
        for (int place = 0; place < PlacesOnRing; ++place) {
            const double angle = 2 * Pi * (place + 0.5) / PlacesOnRing;
            const SbVec3f parts = xsg::environmentParts(
                static_cast<float>(height * now.cosine + level * aside * std::cos(angle)));
            for (int i = 0; i < 3; ++i)
                sums[i] += now.weight * static_cast<double>(parts[i]);
        }
        weights += now.weight * PlacesOnRing;
    }
    const auto mean = [&](int i) { return static_cast<float>(sums[i] / weights); };
    return {mean(0), mean(1), mean(2)};
}

xsg::EnvironmentTable makeTable()
{
    using Table = xsg::EnvironmentTable;
    Table table;
    table.parts.reserve(static_cast<std::size_t>(Table::Columns) * Table::Rows);
    for (int row = 0; row < Table::Rows; ++row) {
        const double roughness = static_cast<double>(row) / (Table::RoughRows - 1);
        for (int column = 0; column < Table::Columns; ++column) {
            const double height = 2.0 * column / (Table::Columns - 1) - 1;
            table.parts.push_back(
                row < Table::RoughRows
                    ? blurred(height, [&](double share) { return roughRing(share, roughness); })
                    : blurred(height, matteRing));
        }
    }
    return table;
}

} // namespace

// The sky brightens slowly from horizon to zenith; the ground begins soon below the horizon.
SbVec3f xsg::environmentParts(float height)
{
    const auto above = static_cast<float>(smoothStep(0, 1, height));
    const auto below = static_cast<float>(smoothStep(0, 0.3, -height));
    return {above, 1 - above - below, below};
}

const xsg::EnvironmentTable& xsg::getEnvironmentTable()
{
    static const EnvironmentTable table = makeTable();
    return table;
}
