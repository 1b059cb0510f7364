// SPDX-License-Identifier: MIT
#include "viewport/ViewGrid.h"

#include "viewport/SceneView.h"

#include <xsg/render/SoOverlay.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr int Squares = 10; // to each side of the middle, and between the strong lines

float toSpacing(float value, float spacing)
{
    return std::round(value / spacing) * spacing;
}

} // namespace

ViewGrid::ViewGrid(SceneView& view)
    : m_view(view)
{
}

void ViewGrid::setGrid(bool on)
{
    m_hasGrid = on;
    m_view.redraw();
}

void ViewGrid::setAxes(bool on)
{
    m_hasAxes = on;
    m_view.redraw();
}

float ViewGrid::spacingFor(const SbBox3f& scene)
{
    const SbVec3f size = scene.isEmpty() ? SbVec3f() : scene.getSize();
    const float extent = std::max({size[0], size[1], size[2]});
    if (!(extent > 0) || !std::isfinite(extent))
        return 1;
    const float power = std::pow(10.0F, std::floor(std::log10(extent)));
    for (const float factor : {1.0F, 2.0F, 5.0F}) {
        if (factor * power >= extent)
            return factor * power / Squares;
    }
    return power;
}

SbBox3f ViewGrid::getExtent(const SbBox3f& scene) const
{
    const float spacing = spacingFor(scene);
    const SbVec3f middle = scene.isEmpty() ? SbVec3f() : scene.getCenter();
    const float reach = spacing * Squares;
    const SbVec3f corner(toSpacing(middle[0], spacing), 0, toSpacing(middle[2], spacing));
    SbBox3f extent;
    if (m_hasGrid) {
        extent.extendBy(corner - SbVec3f(reach, 0, reach));
        extent.extendBy(corner + SbVec3f(reach, 0, reach));
    }
    if (m_hasAxes) {
        extent.extendBy(SbVec3f());
        for (int i = 0; i < 3; ++i) {
            SbVec3f end;
            end[i] = reach;
            extent.extendBy(end);
        }
    }
    return extent;
}

void ViewGrid::extend(SbBox3f& seen)
{
    m_scene = seen;
    if (m_hasGrid || m_hasAxes)
        seen.extendBy(getExtent(seen));
}

void ViewGrid::draw(SoOverlay& overlay, const ViewSight& /*sight*/)
{
    const float spacing = spacingFor(m_scene);
    const float reach = spacing * Squares;
    const auto dense = static_cast<float>(m_view.devicePixelRatioF());
    const QColor ink = m_view.palette().color(QPalette::WindowText);
    const SbColor color(static_cast<float>(ink.redF()), static_cast<float>(ink.greenF()),
                        static_cast<float>(ink.blueF()));
    const SbVec3f middle = m_scene.isEmpty() ? SbVec3f() : m_scene.getCenter();
    const SbVec3f corner(toSpacing(middle[0], spacing), 0, toSpacing(middle[2], spacing));
    for (int i = -Squares; i <= Squares && m_hasGrid; ++i) {
        const float by = static_cast<float>(i) * spacing;
        for (const int along : {0, 2}) {
            SbVec3f from = corner;
            from[2 - along] += by;
            SbVec3f to = from;
            from[along] -= reach;
            to[along] += reach;
            const bool isStrong = std::lround(from[2 - along] / spacing) % Squares == 0;
            overlay.addLine(from, to, {color, isStrong ? 0.45F : 0.18F}, dense,
                            SoOverlay::Depth::WithinScene);
        }
    }
    const SbColor colors[] = {{0.9F, 0.28F, 0.3F}, {0.27F, 0.65F, 0.35F}, {0.24F, 0.55F, 0.95F}};
    for (int i = 0; i < 3 && m_hasAxes; ++i) {
        SbVec3f end;
        end[i] = reach;
        overlay.addLine({}, end, colors[i], 2 * dense, SoOverlay::Depth::WithinScene);
    }
}

} // namespace scopix
