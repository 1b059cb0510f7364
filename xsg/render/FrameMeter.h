// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFramePhase.h>
#include <xsg/render/GpuTimer.h>
#include <xsg/render/SoRenderer.h>

namespace xsg
{

/// Measures a renderer's pictures for a log of frames, while it is on.
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
    void collect();

    SoFrameLog* m_log = nullptr;
    bool m_isOn = false; // for the present picture
    FrameClock m_clock;
    GpuTimer m_gpu;
};

} // namespace xsg
