// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GlFunctions.h>
#include <xsg/values/SbSentence.h>
#include <xsg/values/SbVec.h>

namespace xsg
{

/// A line around what is drawn into its mask, as wide at every size of the picture: in a colour with a rim
/// that sets it off, and weaker where something else covers it. What it costs depends on the picture, not on
/// how many triangles there are.
///
/// The mask is the depth of what is marked. Tiles of the picture are looked through for the mask's edge, so
/// that only near it each pixel looks for the nearest marked one; it takes over that one's depth, by which
/// OpenGL compares it with the scene.
class Outline
{
public:
    /// Makes programs and buffers where they are not there yet; false with a sentence where OpenGL refuses.
    bool prepare(int width, int height, SbSentence& error);
    void release();

    /// Clears the mask. From here on until draw() or endMask() everything is drawn into it.
    void beginMask();
    /// Back to the framebuffer that was bound before; goOnWithMask() draws into the mask again.
    void endMask();
    void goOnWithMask();
    /// Draws the line into the framebuffer that was bound before. `thickness` in pixels.
    void draw(const SbColor& color, float thickness);

private:
    struct Target {
        GlFramebuffer framebuffer;
        GlTexture texture;
    };
    struct Program {
        GlProgram program;
        GLint thickness = -1;
        GLint color = -1;
        GLint rim = -1;
    };

    bool buildPrograms(SbSentence& error);
    void buildTargets(int width, int height);
    static void fillTarget(Target& target, int width, int height, GLint format);
    void drawTiles(Program& program, float thickness);
    void compose(const SbColor& color, float thickness);

    Program m_tilesProgram;
    Program m_edgesProgram;
    Program m_composeProgram;
    Target m_mask;  // depth; 1 where nothing is marked
    Target m_tiles; // for each, whether some, none or all of its pixels are marked
    Target m_edges; // depth in three bytes, and how much of the line is in a pixel
    GlVertexArray m_noVertices;
    GLint m_outer = 0; // the framebuffer of the picture
    int m_width = 0;
    int m_height = 0;
};

} // namespace xsg
