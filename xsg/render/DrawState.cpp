// SPDX-License-Identifier: MIT
#include <xsg/render/DrawState.h>

#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoFog.h>

#include <algorithm>

void xsg::DrawState::begin(int width, int height, const std::vector<SoLightSource>& headlights)
{
    m_headlights = &headlights;
    m_isKnown = false;
    m_geometry = nullptr;
    m_faces = Faces::Both;
    m_isMirrored = false;
    m_changes = 0;
    // The context may be shared with a toolkit that leaves its own settings behind.
    glViewport(0, 0, width, height);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glDepthMask(GL_TRUE);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glDisable(GL_SCISSOR_TEST);
    glDisable(GL_STENCIL_TEST);
    glDisable(GL_CULL_FACE);
    glDisable(GL_BLEND);
    glFrontFace(GL_CCW);
    glActiveTexture(GL_TEXTURE0);
    // For geometry without these attributes: without a normal there is no lighting, and a red below 0 selects
    // the material's colour.
    glVertexAttrib3f(NormalAttribute, 0, 0, 0);
    glVertexAttrib2f(TextureAttribute, 0, 0);
    glVertexAttrib3f(ColorAttribute, -1, -1, -1);
    if (m_lineWidths[1] == 0) {
        glGetFloatv(GL_ALIASED_LINE_WIDTH_RANGE, m_lineWidths);
        GLint flags = 0;
        glGetIntegerv(GL_CONTEXT_FLAGS, &flags);
        // Such a context refuses wide lines, whatever range it names.
        if ((static_cast<GLuint>(flags) & GL_CONTEXT_FLAG_FORWARD_COMPATIBLE_BIT) != 0)
            m_lineWidths[1] = std::min(m_lineWidths[1], 1.0F);
    }
}

void xsg::DrawState::end()
{
    glBindVertexArray(0);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    Shader::unbindTextures();
    glUseProgram(0);
    glDisable(GL_CULL_FACE);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    for (GLenum i = 0; i < Shader::MaxClipPlanes; ++i)
        glDisable(GL_CLIP_DISTANCE0 + i);
}

void xsg::DrawState::setEdgesOnly(bool on)
{
    m_edgesOnly = on;
    // Also after an outline, which leaves settings and a vertex array of its own behind.
    m_isKnown = false;
    m_geometry = nullptr;
}

void xsg::DrawState::setState(const DrawStateKey& now)
{
    static const std::vector<SbPlane> noPlanes;
    if (m_shader.setSurface(now.clipPlanes != nullptr, now.features)) {
        ++m_changes;
        m_isKnown = false;
    }
    if (!m_isKnown || now.lights != m_now.lights || now.ambientLight != m_now.ambientLight ||
        now.environment != m_now.environment)
        setLights(now);
    if (!m_isKnown || now.clipPlanes != m_now.clipPlanes) {
        m_shader.setClipPlanes(now.clipPlanes ? *now.clipPlanes : noPlanes);
        ++m_changes;
    }
    if (!m_isKnown || now.texture != m_now.texture || now.textureModel != m_now.textureModel ||
        now.textureMatrix != m_now.textureMatrix)
        setTexture(now);
    if (now.pictures && (!m_isKnown || now.pictures != m_now.pictures))
        setPictures(now);
    if (!m_isKnown || now.fog != m_now.fog)
        setFog(now.fog);
    if (!m_isKnown || now.drawStyle != m_now.drawStyle)
        setDrawStyle(now.drawStyle);
    m_now = now;
    m_isKnown = true;
}

// A physically based surface spreads light over the half of all directions, so that a light of intensity 1
// makes it pi times darker than another material (decisions.md: light-of-physical-materials). The headlight
// makes up for that, and steps back where there are surroundings.
void xsg::DrawState::setLights(const DrawStateKey& now)
{
    static const std::vector<SoLightSource> noLights;
    constexpr float Pi = 3.14159265F;
    ++m_changes;
    if (now.lights)
        m_shader.setLights(*now.lights, now.ambientLight);
    else
        m_shader.setLights(now.environment ? noLights : *m_headlights, now.ambientLight,
                           now.features != 0 ? Pi : 1);
    if (now.environment)
        m_shader.setEnvironment(now.environment->front());
}

// They are bound to units of their own, but for the first.
void xsg::DrawState::setPictures(const DrawStateKey& now)
{
    ++m_changes;
    m_shader.setPictures(*now.pictures);
}

void xsg::DrawState::setTexture(const DrawStateKey& now)
{
    ++m_changes;
    if (now.texture)
        glBindTexture(GL_TEXTURE_2D, now.texture->texture.get());
    m_shader.setTexture(now.textureModel, now.textureMatrix ? now.textureMatrix->front() : SbMatrix());
}

void xsg::DrawState::setFog(const SoFog* fog)
{
    ++m_changes;
    if (fog)
        m_shader.setFog(fog->kind.getValue(), fog->color.getValue(), fog->visibility.getValue());
    else
        m_shader.setFog(-1, {}, 1);
}

void xsg::DrawState::setDrawStyle(const SoDrawStyle* style)
{
    ++m_changes;
    const int kind = style && !style->style.isIgnored() ? style->style.getValue() : SoDrawStyle::Filled;
    const bool edges = m_edgesOnly || kind == SoDrawStyle::Lines;
    glPolygonMode(GL_FRONT_AND_BACK, edges ? GL_LINE : kind == SoDrawStyle::Points ? GL_POINT : GL_FILL);
    const float width = style ? style->lineWidth.getValue() : 1.0F;
    glLineWidth(width > m_lineWidths[0] ? std::min(width, m_lineWidths[1]) : m_lineWidths[0]);
    const float size = style ? style->pointSize.getValue() : 1.0F;
    glPointSize(size > 1 ? size : 1.0F);
}

void xsg::DrawState::setGeometry(GpuGeometry& geometry)
{
    if (&geometry == m_geometry)
        return;
    if (!m_geometry || m_geometry->isScreenSpace != geometry.isScreenSpace)
        m_shader.setScreenSpace(geometry.isScreenSpace);
    m_geometry = &geometry;
    glBindVertexArray(geometry.vertexArray.get());
}

void xsg::DrawState::setFaces(Faces faces, bool isMirrored)
{
    if (faces != m_faces) {
        ++m_changes;
        if (faces == Faces::Both)
            glDisable(GL_CULL_FACE);
        else if (m_faces == Faces::Both)
            glEnable(GL_CULL_FACE);
        if (faces != Faces::Both)
            glCullFace(faces == Faces::Back ? GL_FRONT : GL_BACK);
        m_faces = faces;
    }
    if (isMirrored != m_isMirrored) {
        ++m_changes;
        glFrontFace(isMirrored ? GL_CW : GL_CCW);
        m_isMirrored = isMirrored;
    }
}
