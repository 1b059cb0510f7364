// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrameLog.h>

namespace xsg
{

/// Adds up what a frame spends in which phase. A frame may be drawn in pieces: between run() and stop() the
/// clock is that of its thread. One thread.
class XSG_API FrameClock
{
public:
    void begin() { *this = {}; }
    /// What follows on this thread counts as drawing, save for what SoFramePhase tells apart.
    void run() noexcept;
    void stop() noexcept;
    /// Fills in Begin, Whole and the phases.
    void fillIn(SoFrame& frame) const noexcept;

    static FrameClock* current() noexcept;
    SoFrame::Figure enter(SoFrame::Figure phase) noexcept;

private:
    std::int64_t m_begin = 0;
    std::int64_t m_since = 0;
    FrameClock* m_outer = nullptr;
    SoFrame::Figure m_phase = SoFrame::Draw;
    std::int64_t m_spent[SoFrame::NumPhases]{};
};

} // namespace xsg

/// While it lives, what this thread spends on the frame that it draws counts for this phase, and not for the
/// one around it:
///
///     const SoFramePhase phase(SoFrame::Upload);
///
/// Where no frame is being measured, it costs a look at a pointer.
class SoFramePhase
{
public:
    explicit SoFramePhase(SoFrame::Figure phase) noexcept
        : m_clock(xsg::FrameClock::current())
    {
        if (m_clock)
            m_before = m_clock->enter(phase);
    }
    ~SoFramePhase()
    {
        if (m_clock)
            m_clock->enter(m_before);
    }
    SoFramePhase(const SoFramePhase&) = delete;
    SoFramePhase& operator=(const SoFramePhase&) = delete;

private:
    xsg::FrameClock* m_clock;
    SoFrame::Figure m_before = SoFrame::Draw;
};

/// While it lives, what this thread does counts as the update before the next frame of the log. Nothing while
/// the log is off.
class SoFrameUpdate
{
public:
    explicit SoFrameUpdate(SoFrameLog& log) noexcept
        : m_log(log)
        , m_begin(log.isOn() ? SoFrameLog::now() : 0)
    {
    }
    ~SoFrameUpdate()
    {
        if (m_begin != 0)
            m_log.addUpdate(SoFrameLog::now() - m_begin);
    }
    SoFrameUpdate(const SoFrameUpdate&) = delete;
    SoFrameUpdate& operator=(const SoFrameUpdate&) = delete;

private:
    SoFrameLog& m_log;
    const std::int64_t m_begin;
};
