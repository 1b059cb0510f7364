// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GlFunctions.h>

#include <cstdint>

namespace xsg
{

/// Counts the pixels that are drawn, each as often as it passes the test of depths; in a picture of several
/// samples, these. Waits for the graphics card. Its context has to be current.
class PixelCounter
{
public:
    void begin()
    {
        if (m_query == 0)
            glGenQueries(1, &m_query);
        glBeginQuery(GL_SAMPLES_PASSED, m_query);
    }
    /// How many since begin().
    std::int64_t end() const
    {
        GLuint64 count = 0;
        glEndQuery(GL_SAMPLES_PASSED);
        glGetQueryObjectui64v(m_query, GL_QUERY_RESULT, &count);
        return static_cast<std::int64_t>(count);
    }
    void release()
    {
        glDeleteQueries(1, &m_query);
        m_query = 0;
    }

private:
    GLuint m_query = 0;
};

} // namespace xsg
