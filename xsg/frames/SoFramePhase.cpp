// SPDX-License-Identifier: MIT
#include <xsg/frames/SoFramePhase.h>

#include <utility>

namespace
{

thread_local xsg::FrameClock* s_current = nullptr;

} // namespace

xsg::FrameClock* xsg::FrameClock::current() noexcept
{
    return s_current;
}

void xsg::FrameClock::run() noexcept
{
    m_outer = std::exchange(s_current, this);
    m_phase = SoFrame::Draw;
    m_since = SoFrameLog::now();
    if (m_begin == 0)
        m_begin = m_since;
}

void xsg::FrameClock::stop() noexcept
{
    enter(SoFrame::Draw);
    s_current = m_outer;
}

SoFrame::Figure xsg::FrameClock::enter(SoFrame::Figure phase) noexcept
{
    const std::int64_t now = SoFrameLog::now();
    m_spent[m_phase - SoFrame::Update] += now - m_since;
    m_since = now;
    return std::exchange(m_phase, phase);
}

void xsg::FrameClock::fillIn(SoFrame& frame) const noexcept
{
    frame[SoFrame::Begin] = m_begin;
    frame[SoFrame::Whole] = 0;
    for (int i = 0; i < SoFrame::NumPhases; ++i) {
        frame.figures[static_cast<std::size_t>(SoFrame::Update + i)] = m_spent[i];
        frame[SoFrame::Whole] += m_spent[i];
    }
}
