// SPDX-License-Identifier: MIT
#include <xsg/render/FrameMeter.h>

#include <xsg/frames/SoFrameLog.h>

void xsg::FrameMeter::beginPiece(bool begins)
{
    if (begins) {
        if (m_isOn)
            m_gpu.endFrame(0); // of a picture that was given up
        m_isOn = m_log && m_log->isOn();
        m_clock.begin();
    }
    if (!m_isOn)
        return;
    collect();
    m_clock.run();
    m_gpu.beginPiece();
}

void xsg::FrameMeter::endPiece()
{
    if (!m_isOn)
        return;
    m_gpu.endPiece();
    m_clock.stop();
}

void xsg::FrameMeter::file(const SoRenderer::Statistics& statistics)
{
    if (!std::exchange(m_isOn, false))
        return;
    SoFrame frame;
    m_clock.fillIn(frame);
    frame[SoFrame::DrawCalls] = statistics.drawCalls;
    frame[SoFrame::Triangles] = statistics.triangles;
    frame[SoFrame::StateChanges] = statistics.stateChanges;
    frame[SoFrame::Uploads] = statistics.bufferUploads;
    frame[SoFrame::UploadedBytes] = statistics.uploadedBytes;
    frame[SoFrame::TextureBytes] = statistics.textureBytes;
    frame[SoFrame::NodesVisited] = statistics.nodes;
    frame[SoFrame::ShapesCulled] = statistics.culled;
    m_gpu.endFrame(m_log->add(frame));
}

void xsg::FrameMeter::collect()
{
    GpuTimer::Answer answer{};
    while (m_gpu.takeAnswer(answer))
        m_log->setGpu(answer.frame, answer.nanoseconds);
}

void xsg::FrameMeter::release()
{
    m_isOn = false;
    m_gpu.release();
}
