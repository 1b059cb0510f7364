// SPDX-License-Identifier: MIT
#include <xsg/render/Outline.h>

#include <xsg/render/OutlineText.h>
#include <xsg/render/Shader.h>

namespace
{

constexpr int TileSize = 16; // the line must not reach farther
constexpr float MostThickness = 2.0F * TileSize / 3 - 1;
constexpr float Hidden = 0.4F; // how strong the line is behind something
constexpr float RimStrength = 0.7F;
constexpr GLint MaskUnit = 0;
constexpr GLint TilesUnit = 1;
constexpr GLint EdgesUnit = 2;

int tilesAlong(int pixels)
{
    return (pixels + TileSize - 1) / TileSize;
}

float brightness(const SbColor& c)
{
    return 0.3F * c[0] + 0.59F * c[1] + 0.11F * c[2];
}

void bindTexture(GLint unit, GLuint texture)
{
    glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
    glBindTexture(GL_TEXTURE_2D, texture);
}

} // namespace

bool xsg::Outline::prepare(int width, int height, SbSentence& error)
{
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &m_outer);
    const bool isReady = buildPrograms(error);
    if (isReady)
        buildTargets(width, height);
    glBindFramebuffer(GL_FRAMEBUFFER, static_cast<GLuint>(m_outer));
    return isReady;
}

bool xsg::Outline::buildPrograms(SbSentence& error)
{
    if (m_composeProgram.program)
        return true;
    const std::string defines = "#define TileSize " + std::to_string(TileSize) + "\n";
    const auto build = [&](Program& to, const char* vertexText, const char* fragmentText) {
        if (!buildProgram(to.program, defines, vertexText, fragmentText, error))
            return false;
        const GLuint name = to.program.get();
        glUseProgram(name);
        glUniform1i(glGetUniformLocation(name, "mask"), MaskUnit);
        glUniform1i(glGetUniformLocation(name, "tiles"), TilesUnit);
        glUniform1i(glGetUniformLocation(name, "edges"), EdgesUnit);
        to.thickness = glGetUniformLocation(name, "thickness");
        to.color = glGetUniformLocation(name, "color");
        to.rim = glGetUniformLocation(name, "rim");
        return true;
    };
    return build(m_tilesProgram, WholePictureText, TilesText) &&
           build(m_edgesProgram, TileVertexText, EdgesText) &&
           build(m_composeProgram, TileVertexText, ComposeText);
}

void xsg::Outline::buildTargets(int width, int height)
{
    if (width == m_width && height == m_height)
        return;
    fillTarget(m_mask, width, height, GL_DEPTH_COMPONENT24);
    fillTarget(m_tiles, tilesAlong(width), tilesAlong(height), GL_R8);
    fillTarget(m_edges, width, height, GL_RGBA8);
    m_width = width;
    m_height = height;
}

void xsg::Outline::fillTarget(Target& target, int width, int height, GLint format)
{
    const bool isDepth = format == GL_DEPTH_COMPONENT24;
    bindTexture(MaskUnit, target.texture.get());
    const GLenum kind = isDepth ? GL_DEPTH_COMPONENT : format == GL_R8 ? GL_RED : GL_RGBA;
    glTexImage2D(GL_TEXTURE_2D, 0, format, width, height, 0, kind,
                 isDepth ? GL_UNSIGNED_INT : GL_UNSIGNED_BYTE, nullptr);
    for (const int filter : {GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER})
        glTexParameteri(GL_TEXTURE_2D, static_cast<GLenum>(filter), GL_NEAREST);
    glBindTexture(GL_TEXTURE_2D, 0);
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer.get());
    glFramebufferTexture2D(GL_FRAMEBUFFER, isDepth ? GL_DEPTH_ATTACHMENT : GL_COLOR_ATTACHMENT0,
                           GL_TEXTURE_2D, target.texture.get(), 0);
    if (isDepth) {
        glDrawBuffer(GL_NONE);
        glReadBuffer(GL_NONE);
    }
}

void xsg::Outline::release()
{
    for (Target* each : {&m_mask, &m_tiles, &m_edges}) {
        each->framebuffer.release();
        each->texture.release();
    }
    for (Program* each : {&m_tilesProgram, &m_edgesProgram, &m_composeProgram})
        each->program.release();
    m_noVertices.release();
    m_width = m_height = 0;
}

void xsg::Outline::beginMask()
{
    goOnWithMask();
    glClear(GL_DEPTH_BUFFER_BIT);
}

void xsg::Outline::goOnWithMask()
{
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &m_outer);
    glBindFramebuffer(GL_FRAMEBUFFER, m_mask.framebuffer.get());
}

void xsg::Outline::endMask()
{
    glBindFramebuffer(GL_FRAMEBUFFER, static_cast<GLuint>(m_outer));
}

void xsg::Outline::draw(const SbColor& color, float thickness)
{
    thickness = thickness < 1 ? 1 : thickness > MostThickness ? MostThickness : thickness;
    for (GLenum i = 0; i < Shader::MaxClipPlanes; ++i)
        glDisable(GL_CLIP_DISTANCE0 + i);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glBindVertexArray(m_noVertices.get());
    bindTexture(MaskUnit, m_mask.texture.get());
    bindTexture(TilesUnit, m_tiles.texture.get());
    bindTexture(EdgesUnit, m_edges.texture.get());

    glDisable(GL_DEPTH_TEST);
    glBindFramebuffer(GL_FRAMEBUFFER, m_tiles.framebuffer.get());
    glViewport(0, 0, tilesAlong(m_width), tilesAlong(m_height));
    glUseProgram(m_tilesProgram.program.get());
    glDrawArrays(GL_TRIANGLES, 0, 3);

    glBindFramebuffer(GL_FRAMEBUFFER, m_edges.framebuffer.get());
    glViewport(0, 0, m_width, m_height);
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT);
    drawTiles(m_edgesProgram, thickness);

    glBindFramebuffer(GL_FRAMEBUFFER, static_cast<GLuint>(m_outer));
    glEnable(GL_DEPTH_TEST);
    compose(color, thickness);
    for (const GLint unit : {EdgesUnit, TilesUnit, MaskUnit}) // unit 0 stays the active one
        bindTexture(unit, 0);
}

void xsg::Outline::drawTiles(Program& program, float thickness)
{
    glUseProgram(program.program.get());
    glUniform1f(program.thickness, thickness);
    glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, tilesAlong(m_width) * tilesAlong(m_height));
}

// What is behind something else first, then the rest.
void xsg::Outline::compose(const SbColor& color, float thickness)
{
    const float contrast = brightness(color) > 0.5F ? 0.0F : 1.0F;
    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    glDepthMask(GL_FALSE);
    glUseProgram(m_composeProgram.program.get());
    for (const bool isHidden : {true, false}) {
        const float strength = isHidden ? Hidden : 1.0F;
        glUniform4f(m_composeProgram.color, color[0], color[1], color[2], strength);
        glUniform4f(m_composeProgram.rim, contrast, contrast, contrast, strength * RimStrength);
        glDepthFunc(isHidden ? GL_GREATER : GL_LEQUAL);
        drawTiles(m_composeProgram, thickness);
    }
    glDepthFunc(GL_LEQUAL);
    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
}
