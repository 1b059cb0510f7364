// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbVec.h>
#include <xsg/values/XsgExport.h>

#include <cstddef>
#include <vector>

/// Lines, points and triangles that a view draws over its scene, such as handles, a grid or marks: in world
/// coordinates, with thickness in pixels that does not depend on the distance. They have no light, take no
/// part in picking, and are drawn in the order in which they are added. Plain data; a renderer draws its own
/// with every picture (SoRenderer::getOverlay()).
class XSG_API SoOverlay
{
public:
    enum class Depth {
        OnTop,       // of everything
        WithinScene, // hidden by what is nearer; in front of what is as near
    };
    struct Color {
        Color(const SbColor& color, float itsOpacity = 1) // NOLINT(google-explicit-constructor)
            : rgb(color)
            , opacity(itsOpacity)
        {
        }
        SbColor rgb;
        float opacity;
    };

    void clear();
    bool isEmpty() const { return m_onTop.empty() && m_withinScene.empty(); }

    void addLine(const SbVec3f& from, const SbVec3f& to, const Color& color, float pixels = 1,
                 Depth depth = Depth::OnTop);
    /// A disc.
    void addPoint(const SbVec3f& place, const Color& color, float pixels, Depth depth = Depth::OnTop);
    void addTriangle(const SbVec3f& a, const SbVec3f& b, const SbVec3f& c, const Color& color,
                     Depth depth = Depth::OnTop);

    /// As the renderer uploads them: `pixels` is the thickness; below 0, the three corners are a triangle's.
    struct Mark {
        float corners[9];
        float color[4];
        float pixels;
    };
    const std::vector<Mark>& getMarks(Depth depth) const
    {
        return depth == Depth::OnTop ? m_onTop : m_withinScene;
    }

private:
    void add(const SbVec3f (&corners)[3], const Color& color, float pixels, Depth depth);

    std::vector<Mark> m_onTop;
    std::vector<Mark> m_withinScene;
};
