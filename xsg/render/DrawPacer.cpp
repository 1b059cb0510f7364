// SPDX-License-Identifier: MIT
#include <xsg/render/DrawPacer.h>

#include <string_view>

void xsg::DrawPacer::begin()
{
    const auto* name = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    const std::string_view renderer = name ? name : "";
    m_isSoftware = renderer.find("llvmpipe") != std::string_view::npos ||
                   renderer.find("softpipe") != std::string_view::npos ||
                   renderer.find("SWR") != std::string_view::npos;
    m_backlog = 0;
}

void xsg::DrawPacer::drawn(std::int64_t indices)
{
    if (!m_isSoftware)
        return;
    m_backlog += indices;
    if (m_backlog < MostIndices)
        return;
    const GLsync now = glFenceSync(GL_SYNC_GPU_COMMANDS_COMPLETE, 0);
    wait();
    m_before = now;
    m_backlog = 0;
}

void xsg::DrawPacer::wait()
{
    constexpr GLuint64 Patience = 10'000'000'000; // nanoseconds
    if (!m_before)
        return;
    glClientWaitSync(m_before, GL_SYNC_FLUSH_COMMANDS_BIT, Patience);
    glDeleteSync(std::exchange(m_before, nullptr));
}

void xsg::DrawPacer::end()
{
    if (m_before)
        glDeleteSync(std::exchange(m_before, nullptr));
}
