// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GlFunctions.h>

#include <cstdint>
#include <deque>
#include <vector>

namespace xsg
{

/// How long the graphics card needs for frames, which may be drawn in pieces. The answers come some frames
/// later and are never waited for. Its context has to be current; queries of its own, in a count that is
/// limited.
class GpuTimer
{
public:
    /// A frame's answer.
    struct Answer {
        std::uint64_t frame;
        std::int64_t nanoseconds;
    };

    void beginPiece();
    void endPiece();
    /// The pieces since the last frame make up this one; 0: they make up none.
    void endFrame(std::uint64_t frame);
    /// The next answer that is there; false where there is none yet.
    bool takeAnswer(Answer& answer);
    /// Frees the queries.
    void release();

private:
    struct Piece {
        GLuint begin;
        GLuint end;
    };
    struct Frame {
        std::uint64_t number;
        std::vector<Piece> pieces;
        bool isWhole; // every piece was timed
    };
    GLuint takeQuery();
    void giveBack(const std::vector<Piece>& pieces);

    std::vector<GLuint> m_free;
    std::vector<Piece> m_pieces; // of the frame that is drawn
    std::deque<Frame> m_waiting;
    int m_numQueries = 0;
    bool m_isWhole = true;
    bool m_isTiming = false;
};

} // namespace xsg
