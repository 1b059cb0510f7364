// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/RenderList.h>
#include <xsg/render/SoShapeColors.h>

namespace xsg
{

/// Fills in what is drawn of a shape, with the state at it; takes geometry and texture from their stores.
class RenderItemFiller
{
public:
    RenderItemFiller(DrawStateTable& drawStates, GeometryStore& geometry, TextureStore& textures)
        : m_drawStates(drawStates)
        , m_geometry(geometry)
        , m_textures(textures)
    {
    }
    /// The item becomes a user of its geometry and draw state; those it had before are not released.
    void fill(RenderItem& item, const SoShape& shape, const SoState& state, const SbMatrix& toWorld);
    /// In place of the shapes' own looks; null, as at first: none.
    void setColors(const SoShapeColors* colors) { m_colors = colors; }

private:
    void fillColored(RenderItem& item, const SoShape& shape, const SoState& state);
    void fillSurface(RenderItem& item, const SoShape& shape, const SoState& state);
    void fillPhysicalSurface(RenderItem& item, const SoShape& shape, const SoState& state);

    DrawStateTable& m_drawStates;
    GeometryStore& m_geometry;
    TextureStore& m_textures;
    const SoShapeColors* m_colors = nullptr;
};

} // namespace xsg
