// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/frames/SoFramePhase.h>
#include <xsg/support/XsgMalloc.h>

#include <thread>

namespace
{

class FrameLog : public testing::Test
{
protected:
    FrameLog() { log.addUser(); }

    std::uint64_t add(std::int64_t triangles)
    {
        SoFrame frame;
        frame[SoFrame::Triangles] = triangles;
        return log.add(frame);
    }
    SoFrame get(std::uint64_t number) const
    {
        SoFrame frame;
        EXPECT_TRUE(log.get(number, frame)) << number;
        return frame;
    }
    SoFrameLog log;
};

} // namespace

TEST_F(FrameLog, KeepsFiguresAsTheyWereFiled)
{
    SoFrame frame;
    for (std::size_t i = 0; i < SoFrame::Gpu; ++i)
        frame.figures[i] = static_cast<std::int64_t>(100 + i);
    EXPECT_EQ(log.add(frame), 1U);
    const SoFrame kept = get(1);
    for (std::size_t i = 0; i < SoFrame::Gpu; ++i)
        EXPECT_EQ(kept.figures[i], static_cast<std::int64_t>(100 + i)) << i;
    EXPECT_EQ(kept.number, 1U);
    EXPECT_EQ(log.getLast(), 1U);
}

TEST_F(FrameLog, ForgetsTheOldestFrameFirst)
{
    for (std::uint64_t i = 1; i <= SoFrameLog::Capacity + 3; ++i)
        EXPECT_EQ(add(static_cast<std::int64_t>(i)), i);
    SoFrame frame;
    EXPECT_FALSE(log.get(3, frame));
    EXPECT_EQ(get(4)[SoFrame::Triangles], 4);
    EXPECT_FALSE(log.get(SoFrameLog::Capacity + 4, frame));
    EXPECT_FALSE(log.get(0, frame));
}

TEST_F(FrameLog, TakesNothingWhileItIsOff)
{
    log.removeUser();
    EXPECT_EQ(add(1), 0U);
    log.mark("nothing");
    EXPECT_EQ(log.getLast(), 0U);
    EXPECT_EQ(log.getLastMark(), 0U);
}

TEST_F(FrameLog, IsOnUntilItsLastUserHasGone)
{
    log.addUser();
    log.removeUser();
    EXPECT_TRUE(log.isOn());
    EXPECT_EQ(add(1), 1U);
}

TEST_F(FrameLog, LearnsTheTimeOfTheGraphicsCardLater)
{
    add(1);
    EXPECT_EQ(get(1)[SoFrame::Gpu], SoFrame::Unknown);
    log.setGpu(1, 0);
    EXPECT_EQ(get(1)[SoFrame::Gpu], 0);
    add(2);
    log.setGpu(2, 1234567);
    EXPECT_EQ(get(2)[SoFrame::Gpu], 1234567);
    for (std::uint64_t i = 3; i <= SoFrameLog::Capacity + 1; ++i)
        add(0);
    log.setGpu(1, 99); // its place is another frame's now
    EXPECT_EQ(get(SoFrameLog::Capacity + 1)[SoFrame::Gpu], SoFrame::Unknown);
}

TEST_F(FrameLog, AddsTheUpdateToTheNextFrameOnly)
{
    log.addUpdate(500);
    log.addUpdate(70);
    add(0);
    add(0);
    EXPECT_EQ(get(1)[SoFrame::Update], 570);
    EXPECT_EQ(get(1)[SoFrame::Whole], 570);
    EXPECT_EQ(get(2)[SoFrame::Update], 0);
}

TEST_F(FrameLog, TellsWhatHappenedSinceTheFrameBefore)
{
    add(0);
    void* memory = XsgMalloc(1000, __FILE__, __LINE__);
    add(0);
    XsgFree(memory, __FILE__, __LINE__);
    add(0);
    EXPECT_EQ(get(2)[SoFrame::Allocations], 1);
    EXPECT_EQ(get(3)[SoFrame::Allocations], 0);
}

TEST_F(FrameLog, TellsWhatFieldsSensorsAndFilesDidSinceTheFrameBefore)
{
    add(0);
    xsg::feeds.fieldChanges.add(3);
    xsg::feeds.sensorsTriggered.add(5);
    xsg::feeds.bytesParsed.add(7000);
    add(0);
    EXPECT_EQ(get(2)[SoFrame::FieldChanges], 3);
    EXPECT_EQ(get(2)[SoFrame::SensorsTriggered], 5);
    EXPECT_EQ(get(2)[SoFrame::BytesParsed], 7000);
    add(0);
    EXPECT_EQ(get(3)[SoFrame::BytesParsed], 0);
}

TEST_F(FrameLog, TellsHowMuchMemoryTheProcessHas)
{
    add(0);
    const std::int64_t before = get(1)[SoFrame::Memory];
    std::vector<char> large(64 << 20, 'x');
    std::int64_t later = before;
    while (later == before) {
        large[0] = static_cast<char>(add(0));
        later = get(log.getLast())[SoFrame::Memory];
    }
    EXPECT_GT(later - before, 60 << 20);
}

TEST_F(FrameLog, NotesChosenCountersWhateverResetsThereAre)
{
    SoPerfCounterManager& manager = *SoPerfCounterManager::getInstance();
    auto* counter = new SoPerfAccumCounter("FrameLogCounter", "", "Test", 0);
    ASSERT_TRUE(manager.registerCounter(counter));
    log.setCounters({"NoSuchCounter", "FrameLogCounter"});
    counter->increment(5);
    add(0);
    counter->reset();
    counter->increment(2);
    add(0);
    EXPECT_EQ(get(1).counters[1], 5);
    EXPECT_EQ(get(2).counters[1], 7);
    EXPECT_EQ(get(2).counters[0], 0);
    EXPECT_EQ(get(2).counterSet, log.getCounterSet());
    manager.disableCounter("FrameLogCounter");
    manager.removeDisabledCounters();
}

TEST_F(FrameLog, CutsMarksBetweenCharacters)
{
    log.mark("opened");
    log.mark(std::string(SoFrameLog::LongestMark - 1, 'x') + "é");
    SoFrameMark mark;
    ASSERT_TRUE(log.getMark(1, mark));
    EXPECT_EQ(mark.text, "opened");
    EXPECT_LE(mark.time, SoFrameLog::now());
    ASSERT_TRUE(log.getMark(2, mark));
    EXPECT_EQ(mark.text, std::string(SoFrameLog::LongestMark - 1, 'x'));
    EXPECT_FALSE(log.getMark(3, mark));
}

TEST_F(FrameLog, NeverShowsHalfAFrameToOtherThreads)
{
    std::atomic<bool> isDone{false};
    std::thread writer([this, &isDone] {
        SoFrame frame;
        for (std::int64_t i = 1; i <= 50'000; ++i) {
            frame.figures.fill(i);
            log.add(frame);
        }
        isDone = true;
    });
    std::uint64_t torn = 0;
    for (std::uint64_t seen = 0; !isDone || seen == 0;) {
        SoFrame frame;
        if (!log.get(log.getLast(), frame))
            continue;
        ++seen;
        for (const SoFrame::Figure figure : {SoFrame::Begin, SoFrame::Draw, SoFrame::ShapesCulled})
            torn += frame[figure] != static_cast<std::int64_t>(frame.number);
    }
    writer.join();
    EXPECT_EQ(torn, 0U);
    EXPECT_EQ(log.getLast(), 50'000U);
}

TEST(FramePhases, ShareOutTheTimeOfAFrame)
{
    xsg::FrameClock clock;
    const auto spend = [] {
        const std::int64_t begin = SoFrameLog::now();
        while (SoFrameLog::now() == begin)
            ;
    };
    clock.begin();
    const std::int64_t before = SoFrameLog::now();
    clock.run();
    {
        const SoFramePhase walk(SoFrame::Traverse);
        spend();
        const SoFramePhase upload(SoFrame::Upload);
        spend();
    }
    clock.stop();
    const std::int64_t after = SoFrameLog::now();
    SoFrame frame;
    clock.fillIn(frame);
    EXPECT_GT(frame[SoFrame::Traverse], 0);
    EXPECT_GT(frame[SoFrame::Upload], 0);
    EXPECT_EQ(frame[SoFrame::Cull], 0);
    EXPECT_GE(frame[SoFrame::Begin], before);
    EXPECT_LE(frame[SoFrame::Whole], after - before);
    EXPECT_EQ(frame[SoFrame::Whole],
              frame[SoFrame::Traverse] + frame[SoFrame::Upload] + frame[SoFrame::Draw]);
}

TEST(FramePhases, AreOfNoConcernWithoutAFrame)
{
    const SoFramePhase phase(SoFrame::Upload);
    EXPECT_EQ(xsg::FrameClock::current(), nullptr);
}
