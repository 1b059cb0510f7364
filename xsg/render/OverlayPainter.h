// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GlFunctions.h>
#include <xsg/render/SoOverlay.h>
#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbSentence.h>

namespace xsg
{

/// Draws an overlay over the picture in two calls, whatever is in it. Uses the context that is current.
class OverlayPainter
{
public:
    /// False with a sentence where OpenGL refuses. Leaves depth test on, blending off, and another program
    /// and vertex array bound.
    bool draw(const SoOverlay& overlay, const SbMatrix& viewProjection, int width, int height,
              SbSentence& error);
    void release();

private:
    bool prepare(SbSentence& error);
    void drawMarks(const std::vector<SoOverlay::Mark>& marks, bool isOnTop);

    GlProgram m_program;
    GlVertexArray m_array;
    GlBuffer m_buffer;
    GLint m_viewProjection = -1;
    GLint m_viewport = -1;
    GLint m_nearer = -1;
};

} // namespace xsg
