// SPDX-License-Identifier: MIT
#include <xsg/frames/SoFrameLog.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/frames/FrameSlots.h>
#include <xsg/frames/ProcessMemory.h>

#include <chrono>

struct SoFrameLog::Memory {
    xsg::FrameSlot frames[Capacity];
    xsg::MarkSlot marks[MarkCapacity];
    xsg::ProcessMemory process;
};

namespace
{

SoPerfFeed* const Differences[] = {&xsg::feeds.allocations, &xsg::feeds.fieldChanges,
                                   &xsg::feeds.sensorsTriggered, &xsg::feeds.bytesParsed};

// Writers may overtake each other.
void raise(std::atomic<std::uint64_t>& last, std::uint64_t number)
{
    std::uint64_t seen = last.load(std::memory_order_relaxed);
    while (seen < number &&
           !last.compare_exchange_weak(seen, number, std::memory_order_release, std::memory_order_relaxed))
        ;
}

} // namespace

SoFrameLog::SoFrameLog() = default;

SoFrameLog::~SoFrameLog()
{
    delete memory();
}

SoFrameLog& SoFrameLog::getInstance()
{
    static SoFrameLog log;
    return log;
}

void SoFrameLog::addUser()
{
    if (!memory()) {
        auto fresh = std::make_unique<Memory>();
        Memory* none = nullptr;
        if (m_memory.compare_exchange_strong(none, fresh.get(), std::memory_order_acq_rel))
            static_cast<void>(fresh.release());
    }
    if (m_users.fetch_add(1, std::memory_order_acq_rel) > 0)
        return;
    m_update.store(0, std::memory_order_relaxed);
    for (std::size_t i = 0; i < std::size(Differences); ++i)
        m_totals[i].store(Differences[i]->get(), std::memory_order_relaxed);
}

void SoFrameLog::removeUser()
{
    m_users.fetch_sub(1, std::memory_order_acq_rel);
}

void SoFrameLog::fillIn(SoFrame& frame) noexcept
{
    const std::int64_t update = m_update.exchange(0, std::memory_order_relaxed);
    frame[SoFrame::Update] += update;
    frame[SoFrame::Whole] += update;
    frame[SoFrame::Memory] = memory()->process.get(now());
    for (std::size_t i = 0; i < std::size(Differences); ++i) {
        const std::int64_t total = Differences[i]->get();
        frame.figures[SoFrame::Allocations + i] =
            total - m_totals[i].exchange(total, std::memory_order_relaxed);
    }
    fillInCounters(frame);
}

void SoFrameLog::fillInCounters(SoFrame& frame) const noexcept
{
    frame.counterSet = m_counterSet.load(std::memory_order_acquire);
    for (std::size_t i = 0; i < SoFrame::MostCounters; ++i) {
        const SoPerfCounter* counter = m_counters[i].load(std::memory_order_relaxed);
        frame.counters[i] = counter ? counter->getTotal() : 0;
    }
}

std::uint64_t SoFrameLog::add(SoFrame& frame) noexcept
{
    if (!isOn())
        return 0;
    fillIn(frame);
    return file(frame);
}

std::uint64_t SoFrameLog::addOther(SoFrame& frame) noexcept
{
    if (!isOn())
        return 0;
    fillInCounters(frame);
    return file(frame);
}

std::uint64_t SoFrameLog::file(SoFrame& frame) noexcept
{
    frame.number = m_next.fetch_add(1, std::memory_order_relaxed) + 1;
    memory()->frames[frame.number % Capacity].write(frame);
    raise(m_last, frame.number);
    return frame.number;
}

void SoFrameLog::setGpu(std::uint64_t number, std::int64_t nanoseconds) noexcept
{
    if (number > 0 && memory())
        memory()->frames[number % Capacity].setGpu(number, nanoseconds);
}

void SoFrameLog::addUpdate(std::int64_t nanoseconds) noexcept
{
    if (isOn())
        m_update.fetch_add(nanoseconds, std::memory_order_relaxed);
}

void SoFrameLog::mark(std::string_view text) noexcept
{
    if (!isOn())
        return;
    const std::uint64_t number = m_nextMark.fetch_add(1, std::memory_order_relaxed) + 1;
    memory()->marks[number % MarkCapacity].write(number, now(), text);
    raise(m_lastMark, number);
}

bool SoFrameLog::get(std::uint64_t number, SoFrame& frame) const noexcept
{
    return number > 0 && memory() && memory()->frames[number % Capacity].read(number, frame);
}

bool SoFrameLog::getMark(std::uint64_t number, SoFrameMark& mark) const
{
    return number > 0 && memory() && memory()->marks[number % MarkCapacity].read(number, mark);
}

void SoFrameLog::setCounters(const std::vector<SbName>& names)
{
    m_names = names;
    m_names.resize(std::min<std::size_t>(names.size(), SoFrame::MostCounters));
    for (std::size_t i = 0; i < SoFrame::MostCounters; ++i) {
        SoPerfCounter* counter =
            i < m_names.size() ? SoPerfCounterManager::getInstance()->getCounter(m_names[i]) : nullptr;
        m_counters[i].store(counter, std::memory_order_relaxed);
    }
    m_counterSet.fetch_add(1, std::memory_order_release);
}

std::int64_t SoFrameLog::now() noexcept
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}
