// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/DrawStateTable.h>
#include <xsg/render/GeometryStore.h>
#include <xsg/render/Shader.h>

namespace xsg
{

/// OpenGL's settings while a frame is drawn: sets what the next thing needs, and only what differs from what
/// is set already.
class DrawState
{
public:
    /// Which sides of surfaces are drawn.
    enum class Faces { Both, Back, Front };

    explicit DrawState(Shader& shader)
        : m_shader(shader)
    {
    }
    /// Assumes nothing about the settings, since others may have drawn in between. `headlights` are used
    /// where the scene has no light; they must not change until the frame is drawn.
    void begin(int width, int height, const std::vector<SoLightSource>& headlights);
    /// Resets what would affect others that draw in this context.
    void end();

    void setEdgesOnly(bool on);
    void setState(const DrawStateKey& now);
    void setGeometry(GpuGeometry& geometry);
    void setFaces(Faces faces, bool isMirrored);

    /// Settings that were changed since begin().
    std::int64_t getChanges() const { return m_changes; }

private:
    void setLights(const DrawStateKey& now);
    void setTexture(const DrawStateKey& now);
    void setPictures(const DrawStateKey& now);
    void setFog(const SoFog* fog);
    void setDrawStyle(const SoDrawStyle* style);

    Shader& m_shader;
    const std::vector<SoLightSource>* m_headlights = nullptr;
    DrawStateKey m_now;
    bool m_isKnown = false; // m_now is what is set
    GpuGeometry* m_geometry = nullptr;
    Faces m_faces = Faces::Both;
    bool m_isMirrored = false;
    bool m_edgesOnly = false;
    float m_lineWidths[2] = {0, 0}; // that this system can draw
    std::int64_t m_changes = 0;
};

} // namespace xsg
