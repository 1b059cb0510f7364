// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrame.h>
#include <xsg/values/SbName.h>

#include <atomic>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class SoPerfCounter;

/// Something that happened at a moment, such as an edit of the user.
struct SoFrameMark {
    std::int64_t time = 0; // as SoFrame::Begin
    std::string text;
};

namespace xsg
{
struct FrameSlot;
struct MarkSlot;
} // namespace xsg

/// The last frames that were drawn, in memory that never grows. Renderers that were given a log
/// (SoRenderer::setFrameLog) add to it while it is on; a log that is off costs them a look at a flag. All of
/// it takes no lock and may be used on any thread, also while frames are added; setCounters() belongs to one
/// thread at a time.
///
/// One log, getInstance(), is the process's: views add to it, and tools read it. Others are for who measures
/// something apart.
class XSG_API SoFrameLog
{
public:
    static constexpr std::uint64_t Capacity = 4096; // frames
    static constexpr std::uint64_t MarkCapacity = 1024;
    static constexpr std::size_t LongestMark = 56; // bytes; what is longer is cut

    /// Takes its memory, about 3 MB, when it is switched on for the first time, and keeps it to its end.
    SoFrameLog();
    ~SoFrameLog();
    SoFrameLog(const SoFrameLog&) = delete;
    SoFrameLog& operator=(const SoFrameLog&) = delete;
    static SoFrameLog& getInstance();

    /// Several may want it on: it is on until all of them have taken that back.
    void addUser();
    void removeUser();
    bool isOn() const noexcept { return m_users.load(std::memory_order_relaxed) > 0; }

    /// Whether renderers ask the graphics card about every frame. At first they do of those that take 2 ms or
    /// more, and of so many others as it takes a 200th of their time, since asking takes time too.
    void setTimesEach(bool on) noexcept { m_timesEach.store(on, std::memory_order_relaxed); }
    bool timesEach() const noexcept { return m_timesEach.load(std::memory_order_relaxed); }

    /// Files a finished frame and returns its number, or 0 while the log is off. Number, counters, Memory and
    /// the four figures that follow ShapesCulled are filled in; the time noted by addUpdate() is added to
    /// Update and Whole.
    std::uint64_t add(SoFrame& frame) noexcept;
    /// Files a frame that another program has drawn: what it does not say is Missing, and only the counters
    /// are filled in.
    std::uint64_t addOther(SoFrame& frame) noexcept;
    /// What the graphics card needed for it, known later. Nothing where the frame has left the log.
    void setGpu(std::uint64_t number, std::int64_t nanoseconds) noexcept;
    /// Time spent on the next frame before it was begun.
    void addUpdate(std::int64_t nanoseconds) noexcept;
    /// Marks this moment. Nothing while the log is off.
    void mark(std::string_view text) noexcept;

    /// The number of the newest frame; 0 where there is none.
    std::uint64_t getLast() const noexcept { return m_last.load(std::memory_order_acquire); }
    /// False for a frame that is not there: too old, or not yet filed.
    bool get(std::uint64_t number, SoFrame& frame) const noexcept;
    /// As getLast() and get(), for marks.
    std::uint64_t getLastMark() const noexcept { return m_lastMark.load(std::memory_order_acquire); }
    bool getMark(std::uint64_t number, SoFrameMark& mark) const;

    /// From the next frame on, these counters are noted too, SoFrame::MostCounters at most; what nobody has
    /// registered reads 0. SoFrame::counterSet is then what getCounterSet() returns.
    void setCounters(const std::vector<SbName>& names);
    const std::vector<SbName>& getCounters() const { return m_names; }
    std::uint64_t getCounterSet() const noexcept { return m_counterSet.load(std::memory_order_acquire); }

    /// The clock of SoFrame::Begin, in nanoseconds.
    static std::int64_t now() noexcept;

private:
    struct Memory;
    Memory* memory() const noexcept { return m_memory.load(std::memory_order_acquire); }
    void fillIn(SoFrame& frame) noexcept;
    void fillInCounters(SoFrame& frame) const noexcept;
    std::uint64_t file(SoFrame& frame) noexcept;

    std::atomic<int> m_users{0};
    std::atomic<bool> m_timesEach{false};
    std::atomic<Memory*> m_memory{nullptr};
    std::atomic<std::uint64_t> m_next{0}; // claimed by writers
    std::atomic<std::uint64_t> m_last{0};
    std::atomic<std::uint64_t> m_nextMark{0};
    std::atomic<std::uint64_t> m_lastMark{0};
    std::atomic<std::int64_t> m_update{0};
    std::atomic<std::int64_t> m_totals[4]{}; // of what is told as a difference, at the last frame
    std::atomic<SoPerfCounter*> m_counters[SoFrame::MostCounters]{};
    std::atomic<std::uint64_t> m_counterSet{0};
    std::vector<SbName> m_names;
};
