// SPDX-License-Identifier: MIT
#include <xsg/render/OverlayPainter.h>

#include <xsg/render/OverlayText.h>
#include <xsg/render/Shader.h>

namespace
{

using Mark = SoOverlay::Mark;
// Part of the way to the eye by which marks within the scene are in front of what is as near.
constexpr float Nearer = 0.002F;

void setAttribute(GLuint number, GLint size, std::size_t offset)
{
    glEnableVertexAttribArray(number);
    glVertexAttribPointer(number, size, GL_FLOAT, GL_FALSE, sizeof(Mark),
                          reinterpret_cast<const void*>(offset));
    glVertexAttribDivisor(number, 1);
}

} // namespace

bool xsg::OverlayPainter::prepare(SbSentence& error)
{
    if (m_program)
        return true;
    if (!buildProgram(m_program, {}, OverlayVertexText, OverlayFragmentText, error)) {
        m_program.release();
        return false;
    }
    const GLuint name = m_program.get();
    m_viewProjection = glGetUniformLocation(name, "viewProjection");
    m_viewport = glGetUniformLocation(name, "viewport");
    m_nearer = glGetUniformLocation(name, "nearer");
    glBindVertexArray(m_array.get());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.get());
    for (GLuint corner = 0; corner < 3; ++corner)
        setAttribute(corner, 3, offsetof(Mark, corners) + 3 * corner * sizeof(float));
    setAttribute(3, 4, offsetof(Mark, color));
    setAttribute(4, 1, offsetof(Mark, pixels));
    return true;
}

bool xsg::OverlayPainter::draw(const SoOverlay& overlay, const SbMatrix& viewProjection, int width,
                               int height, SbSentence& error)
{
    if (!prepare(error))
        return false;
    for (GLenum i = 0; i < Shader::MaxClipPlanes; ++i)
        glDisable(GL_CLIP_DISTANCE0 + i);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glDisable(GL_CULL_FACE);
    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    glDepthMask(GL_FALSE);
    glUseProgram(m_program.get());
    glUniformMatrix4fv(m_viewProjection, 1, GL_FALSE, viewProjection.getValue());
    glUniform2f(m_viewport, static_cast<float>(width), static_cast<float>(height));
    glBindVertexArray(m_array.get());
    drawMarks(overlay.getMarks(SoOverlay::Depth::WithinScene), false);
    drawMarks(overlay.getMarks(SoOverlay::Depth::OnTop), true);
    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
    return true;
}

void xsg::OverlayPainter::drawMarks(const std::vector<Mark>& marks, bool isOnTop)
{
    if (marks.empty())
        return;
    glUniform1f(m_nearer, isOnTop ? 0 : Nearer);
    if (isOnTop)
        glDisable(GL_DEPTH_TEST);
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.get());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(marks.size() * sizeof(Mark)), marks.data(),
                 GL_STREAM_DRAW);
    glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, static_cast<GLsizei>(marks.size()));
    glEnable(GL_DEPTH_TEST);
}

void xsg::OverlayPainter::release()
{
    m_program.release();
    m_array.release();
    m_buffer.release();
}
