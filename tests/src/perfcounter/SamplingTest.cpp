// SPDX-License-Identifier: MIT
// The arithmetic of sampling: rates, what is reset, what stays when the length changes.
#include "ViewerFixture.h"

#include <QSignalSpy>

#include <limits>

namespace
{

void registerCustom(const char* name, const char* operation, const char* second = "testB")
{
    CustomCounter counter;
    counter.name = name;
    counter.firstParent = "testA";
    counter.secondParent = second;
    counter.operation = operation;
    ASSERT_TRUE(counter.registerIt());
}

void removeCounter(const char* name)
{
    SoPerfCounterManager::getInstance()->disableCounter(name);
    SoPerfCounterManager::getInstance()->removeDisabledCounters();
}

} // namespace

TEST_F(CounterViewer, EverySampleIsDividedByItsOwnTime)
{
    show({"testA"});
    for (const double seconds : {0.25, 2.0, 0.001}) {
        clock.seconds = seconds;
        a->increment(8);
        viewer.viewTimer();
        EXPECT_DOUBLE_EQ(sample("testA"), 8 / seconds);
    }
    EXPECT_DOUBLE_EQ(sample("testA", 1), 4.0);
    EXPECT_DOUBLE_EQ(sample("testA", 2), 32.0);
    EXPECT_EQ(sample("testA", 3), 0.0);
}

TEST_F(CounterViewer, EachSampleRestartsTheClock)
{
    const int before = clock.resets;
    viewer.viewTimer();
    viewer.viewTimer();
    EXPECT_EQ(clock.resets, before + 2);
    viewer.start();
    viewer.getTimer()->stop();
    EXPECT_EQ(clock.resets, before + 3);
}

TEST_F(CounterViewer, AStateIsReadAndNotReset)
{
    auto* registry = SoPerfCounterManager::getInstance();
    if (!isRegistered("testState"))
        registry->registerCounter(new SoPerfStateCounter("testState", "for tests", "Tests", 0));
    static_cast<SoPerfStateCounter*>(registry->getCounter("testState"))->setState(7);
    show({"testState"});
    viewer.viewTimer();
    viewer.viewTimer();
    EXPECT_DOUBLE_EQ(sample("testState"), 14.0);
    EXPECT_DOUBLE_EQ(sample("testState", 1), 14.0);
}

TEST_F(CounterViewer, IgnoresCountsFromBeforeTheStart)
{
    show({"testA"});
    a->increment(1000);
    viewer.start();
    viewer.getTimer()->stop();
    viewer.viewTimer();
    EXPECT_EQ(sample("testA"), 0.0);
    a->increment(1000);
    viewer.resetView();
    viewer.viewTimer();
    EXPECT_EQ(sample("testA"), 0.0);
}

TEST_F(CounterViewer, EachSampleMovesTheTimeByOnePeriod)
{
    viewer.m_freqBox->setCurrentText("4");
    EXPECT_DOUBLE_EQ(viewer.getXValues().front(), -0.25) << "nothing sampled yet: the time starts again";
    for (int i = 0; i < 3; ++i)
        viewer.viewTimer();
    for (std::size_t i = 0; i < viewer.getXValues().size(); ++i)
        ASSERT_DOUBLE_EQ(viewer.getXValues()[i], 0.5 - double(i) / 4);
}

TEST_F(CounterViewer, SamplesStayWhenTheLengthChanges)
{
    show({"testA", "testB"});
    for (int i = 1; i <= 40; ++i) {
        a->increment(i);
        viewer.viewTimer();
    }
    const double newest = viewer.getXValues().front();
    viewer.m_timeBox->setCurrentText("15");
    EXPECT_EQ(viewer.getHistoryLength(), 30);
    EXPECT_EQ(viewer.getFilled(), 30);
    EXPECT_DOUBLE_EQ(sample("testA", 0), 80.0);
    EXPECT_DOUBLE_EQ(sample("testA", 29), 22.0);
    viewer.m_timeBox->setCurrentText("60");
    EXPECT_EQ(viewer.getHistoryLength(), 120);
    EXPECT_EQ(viewer.getFilled(), 30);
    EXPECT_DOUBLE_EQ(sample("testA", 29), 22.0);
    EXPECT_EQ(sample("testA", 30), 0.0) << "what was dropped does not come back";
    EXPECT_DOUBLE_EQ(viewer.getXValues().front(), newest);
    EXPECT_DOUBLE_EQ(viewer.getXValues()[30], newest - 15);
    a->increment(1);
    viewer.viewTimer();
    EXPECT_DOUBLE_EQ(sample("testA", 30), 22.0);
    EXPECT_EQ(viewer.getFilled(), 31);
}

TEST_F(CounterViewer, ResettingWhileFullStartsFromTheLeft)
{
    show({"testA"});
    a->increment(5);
    for (int i = 0; i < 100; ++i)
        viewer.viewTimer();
    viewer.resetHistory();
    EXPECT_DOUBLE_EQ(viewer.getXValues().front(), -0.5);
    EXPECT_DOUBLE_EQ(viewer.getXValues().back(), -30.0);
    EXPECT_EQ(viewer.getFilled(), 0);
    for (int i = 0; i < 60; ++i)
        EXPECT_EQ(sample("testA", i), 0.0);
}

TEST_F(CounterViewer, TheScaleChangesOnlyTheSelectedCounter)
{
    show({"testA", "testB"});
    a->increment(10);
    b->increment(10);
    viewer.viewTimer();
    viewer.changeScale("5");
    EXPECT_DOUBLE_EQ(a->getScaleFactor(), 1.0) << "no row is selected";
    viewer.m_legend->selectRow(1);
    viewer.changeScale("0.5");
    EXPECT_DOUBLE_EQ(sample("testA"), 20.0);
    EXPECT_DOUBLE_EQ(sample("testB"), 40.0);
    viewer.changeScale("1");
    EXPECT_DOUBLE_EQ(sample("testB"), 20.0);
}

TEST_F(CounterViewer, SurvivesExtremeScales)
{
    show({"testA"});
    viewer.m_legend->selectRow(0);
    for (int i = 0; i < 4; ++i) {
        a->increment(std::numeric_limits<int>::max());
        viewer.viewTimer();
        viewer.changeScale(i % 2 ? "1e308" : "1e-308");
        viewer.changeScale("1e999");
    }
    clock.seconds = 1e-320;
    viewer.changeScale("1e-300");
    a->increment(1);
    viewer.viewTimer();
    for (int i = 0; i < viewer.getHistoryLength(); ++i)
        EXPECT_TRUE(std::isfinite(sample("testA", i))) << i;
    viewer.graphView();
    viewer.textView();
}

TEST_F(CounterViewer, EveryOperationOfACustomCounterIsARateToo)
{
    const std::pair<const char*, double> expected[] = {{"+", 16.0}, {"-", 8.0}, {"*", 48.0}, {"/", 3.0}};
    for (const auto& [operation, value] : expected) {
        registerCustom(operation, operation);
        show({operation});
        clock.seconds = 2;
        a->increment(12);
        b->increment(4);
        viewer.viewTimer();
        EXPECT_DOUBLE_EQ(sample(operation), value / 2);
        viewer.clearViewer();
    }
}

TEST_F(CounterViewer, ACustomCounterWithoutAParentReadsZero)
{
    registerCustom("halved", "/", "nobody");
    show({"halved"});
    a->increment(12);
    viewer.viewTimer();
    EXPECT_EQ(sample("halved"), 0.0);
    EXPECT_EQ(a->getValue(), 0.0) << "the parent that is there is reset";
}

TEST_F(CounterViewer, ACounterThatVanishesReadsZeroAndIsShownSo)
{
    registerCustom("fleeting", "+");
    show({"fleeting", "testC"});
    a->increment(3);
    viewer.viewTimer();
    EXPECT_DOUBLE_EQ(sample("fleeting"), 6.0);
    removeCounter("fleeting");
    viewer.viewTimer();
    EXPECT_EQ(sample("fleeting"), 0.0);
    EXPECT_DOUBLE_EQ(sample("fleeting", 1), 6.0);
    for (const auto view :
         {&SoPerfCounterViewer::textView, &SoPerfCounterViewer::graphView, &SoPerfCounterViewer::curveView}) {
        (viewer.*view)();
        viewer.updateViewer();
        viewer.viewTimer();
    }
    EXPECT_EQ(viewer.m_textView->item(0, 2)->text(), "x 1");
    EXPECT_EQ(viewer.m_legend->item(0, 4)->text(), "No such counter");
    EXPECT_EQ(viewer.m_legend->item(0, 1)->text(), "");
    viewer.m_legend->selectRow(0);
    viewer.changeScale("2");
    viewer.changeColor(Qt::red);
    registerCustom("fleeting", "+");
    viewer.updateViewer();
    EXPECT_EQ(viewer.m_legend->item(0, 1)->text(), "Accumulation") << "back again";
}

TEST_F(CounterViewer, LengthsThatAreNoneAreIgnored)
{
    for (const char* text : {"", "abc", "0", "-5"}) {
        viewer.changeTimeHistory(text);
        viewer.changeFreqHistory(text);
    }
    EXPECT_EQ(viewer.getHistoryLength(), 60);
    EXPECT_EQ(viewer.getTimer()->interval(), 500);
}

TEST_F(CounterViewer, EveryFrequencyAndEveryTimeMakeTheirLength)
{
    for (const auto& [text, interval] : {std::pair{"1", 1000}, {"2", 500}, {"4", 250}, {"8", 125}}) {
        viewer.m_freqBox->setCurrentText(text);
        EXPECT_EQ(viewer.getTimer()->interval(), interval);
        for (const char* time : {"15", "30", "45", "60", "90", "120"}) {
            viewer.m_timeBox->setCurrentText(time);
            EXPECT_EQ(viewer.getHistoryLength(), QString(time).toInt() * QString(text).toInt());
            EXPECT_EQ(int(viewer.getXValues().size()), viewer.getHistoryLength());
        }
    }
}

TEST_F(CounterViewer, BackspaceRemovesAllSelectedRowsAtOnce)
{
    show({"testA", "testB", "testC"});
    QSignalSpy removed(&viewer, &SoPerfCounterViewer::deletedPcViewed);
    viewer.m_legend->setRangeSelected({0, 0, 0, 4}, true);
    viewer.m_legend->setRangeSelected({2, 0, 2, 4}, true);
    QTest::keyClick(viewer.m_legend, Qt::Key_Backspace);
    ASSERT_EQ(viewer.getViewed()->size(), 1);
    EXPECT_EQ(viewer.getViewed()->first()->getName(), "testB");
    EXPECT_EQ(removed.size(), 2);
    EXPECT_EQ(viewer.m_legend->rowCount(), 1);
    QTest::keyClick(viewer.m_legend, Qt::Key_Backspace);
    EXPECT_EQ(viewer.getViewed()->size(), 1) << "nothing is selected";
}

TEST_F(CounterViewer, EachSampleReadsTheRegistryAgain)
{
    SoPerfCounterManager::getInstance()->setInterval(SbTime(10.0));
    const SoPerfCounterViewer another;
    EXPECT_EQ(SoPerfCounterManager::getInstance()->getInterval(), SbTime(0.0));
}
