// SPDX-License-Identifier: MIT
#include <xsg/render/GpuTimer.h>

namespace
{

constexpr int MostQueries = 128;

bool hasClock()
{
    GLint bits = 0;
    glGetQueryiv(GL_TIMESTAMP, GL_QUERY_COUNTER_BITS, &bits);
    return bits > 0;
}

std::int64_t resultOf(GLuint query)
{
    GLuint64 time = 0;
    glGetQueryObjectui64v(query, GL_QUERY_RESULT, &time);
    return static_cast<std::int64_t>(time);
}

bool isThere(GLuint query)
{
    GLuint there = GL_FALSE;
    glGetQueryObjectuiv(query, GL_QUERY_RESULT_AVAILABLE, &there);
    return there == GL_TRUE;
}

} // namespace

GLuint xsg::GpuTimer::takeQuery()
{
    if (m_free.empty()) {
        GLuint query = 0;
        glGenQueries(1, &query);
        ++m_numQueries;
        return query;
    }
    const GLuint query = m_free.back();
    m_free.pop_back();
    return query;
}

void xsg::GpuTimer::giveBack(const std::vector<Piece>& pieces)
{
    for (const Piece& piece : pieces)
        m_free.insert(m_free.end(), {piece.begin, piece.end});
}

void xsg::GpuTimer::beginPiece()
{
    m_isTiming = (m_numQueries < MostQueries || m_free.size() > 1) && (m_numQueries > 0 || hasClock());
    m_isWhole &= m_isTiming;
    if (!m_isTiming)
        return;
    m_pieces.push_back({takeQuery(), takeQuery()});
    glQueryCounter(m_pieces.back().begin, GL_TIMESTAMP);
}

void xsg::GpuTimer::endPiece()
{
    if (m_isTiming)
        glQueryCounter(m_pieces.back().end, GL_TIMESTAMP);
    m_isTiming = false;
}

void xsg::GpuTimer::endFrame(std::uint64_t frame)
{
    if (!m_pieces.empty())
        m_waiting.push_back({frame, std::move(m_pieces), m_isWhole});
    m_pieces.clear();
    m_isWhole = true;
}

bool xsg::GpuTimer::takeAnswer(Answer& answer)
{
    while (!m_waiting.empty() && isThere(m_waiting.front().pieces.back().end)) {
        const Frame frame = std::move(m_waiting.front());
        m_waiting.pop_front();
        answer = {frame.number, 0};
        for (const Piece& piece : frame.pieces)
            answer.nanoseconds += resultOf(piece.end) - resultOf(piece.begin);
        giveBack(frame.pieces);
        if (frame.number > 0 && frame.isWhole)
            return true;
    }
    return false;
}

void xsg::GpuTimer::release()
{
    endPiece();
    endFrame(0);
    for (const Frame& frame : m_waiting)
        giveBack(frame.pieces);
    m_waiting.clear();
    glDeleteQueries(static_cast<GLsizei>(m_free.size()), m_free.data());
    m_free.clear();
    m_numQueries = 0;
}
