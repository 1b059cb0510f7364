// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFramePhase.h>
#include <xsg/render/GpuTimer.h>
#include <xsg/render/SoRenderer.h>

namespace xsg
{

/// Measures a renderer's pictures for a log of frames, while it is on. To ask a driver costs some of its
/// time: of pictures that take little, so many are asked about as take a 200th of the time of all.
class FrameMeter
{
public:
    void setLog(SoFrameLog* log) { m_log = log; }
    /// Around all that is done for a piece of a picture, which `begins` with the first.
    void beginPiece(bool begins);
    void endPiece();
    /// The picture is finished.
    void file(const SoRenderer::Statistics& statistics);
    /// Frees what it has of OpenGL's.
    void release();

private:
    template <class Act>
    void ask(const Act& act);
    void collect();

    SoFrameLog* m_log = nullptr;
    bool m_isOn = false;    // for the present picture
    bool m_isTimed = false; // by the graphics card
    bool m_wasLong = false;
    std::int64_t m_saved = 0; // nanoseconds for asking; below 0: owed
    int m_sinceCollected = 0; // pictures
    FrameClock m_clock;
    GpuTimer m_gpu;
};

} // namespace xsg
