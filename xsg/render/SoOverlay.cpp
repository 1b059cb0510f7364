// SPDX-License-Identifier: MIT
#include <xsg/render/SoOverlay.h>

#include <algorithm>

void SoOverlay::clear()
{
    m_onTop.clear();
    m_withinScene.clear();
}

void SoOverlay::addLine(const SbVec3f& from, const SbVec3f& to, const Color& color, float pixels, Depth depth)
{
    add({from, to, to}, color, std::max(0.0F, pixels), depth);
}

void SoOverlay::addPoint(const SbVec3f& place, const Color& color, float pixels, Depth depth)
{
    add({place, place, place}, color, std::max(0.0F, pixels), depth);
}

void SoOverlay::addTriangle(const SbVec3f& a, const SbVec3f& b, const SbVec3f& c, const Color& color,
                            Depth depth)
{
    add({a, b, c}, color, -1, depth);
}

void SoOverlay::add(const SbVec3f (&corners)[3], const Color& color, float pixels, Depth depth)
{
    Mark mark{};
    for (std::size_t i = 0; i < 9; ++i)
        mark.corners[i] = corners[i / 3][static_cast<int>(i % 3)];
    for (int i = 0; i < 3; ++i)
        mark.color[i] = color.rgb[i];
    mark.color[3] = color.opacity;
    mark.pixels = pixels;
    (depth == Depth::OnTop ? m_onTop : m_withinScene).push_back(mark);
}
