// SPDX-License-Identifier: MIT
// Samples say what happened in their own period, and nothing about the time before it.
#include "CounterSampler.h"
#include "ManagerFixture.h"
#include "SoPerfCounterCurve.h"
#include "SoPerfCounterGraph.h"
#include "ViewerFixture.h"

#include <support/Waiting.h>

#include <QDomDocument>

#include <cmath>
#include <functional>

class CounterTruth : public CounterViewer
{
protected:
    void sampleTimes(int times)
    {
        for (int i = 0; i < times; ++i) {
            a->increment(5);
            b->increment(7);
            viewer.viewTimer();
        }
    }
    std::size_t drawn(int index) { return viewer.getCurvePlot()->getCurveList()[index]->dataSize(); }
};

TEST_F(CounterTruth, ACounterAddedLateHasNoPast)
{
    show({"testA"});
    sampleTimes(10);
    show({"testB"});
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(std::isnan(sample("testB", i))) << i;
    EXPECT_EQ(drawn(0), 10U);
    EXPECT_EQ(drawn(1), 0U);
    sampleTimes(3);
    EXPECT_DOUBLE_EQ(sample("testB", 2), 14.0);
    EXPECT_TRUE(std::isnan(sample("testB", 3)));
    EXPECT_EQ(drawn(0), 13U);
    EXPECT_EQ(drawn(1), 3U);
    const QRectF limits = viewer.getCurvePlot()->getCurveList()[1]->boundingRect();
    EXPECT_DOUBLE_EQ(limits.left(), viewer.getXValues()[2]);
    EXPECT_DOUBLE_EQ(limits.right(), viewer.getXValues()[0]);
    EXPECT_DOUBLE_EQ(limits.top(), 14.0);
}

TEST_F(CounterTruth, ThePastStaysUnknownThroughScalesAndLengths)
{
    show({"testA"});
    sampleTimes(10);
    show({"testB"});
    sampleTimes(2);
    viewer.m_legend->selectRow(1);
    viewer.changeScale("2");
    EXPECT_DOUBLE_EQ(sample("testB", 1), 7.0);
    EXPECT_TRUE(std::isnan(sample("testB", 2)));
    viewer.m_timeBox->setCurrentText("60");
    EXPECT_TRUE(std::isnan(sample("testB", 11)));
    EXPECT_EQ(drawn(1), 2U);
    for (const char* time : {"15", "120"}) {
        viewer.m_timeBox->setCurrentText(time);
        sampleTimes(1);
        EXPECT_EQ(drawn(1) + 10, std::size_t(viewer.getFilled())) << time;
    }
    sampleTimes(400);
    EXPECT_EQ(drawn(1), 240U) << "by now it has a past";
    viewer.resetHistory();
    sampleTimes(1);
    EXPECT_EQ(drawn(1), 1U);
}

TEST_F(CounterTruth, ShowsNothingForUnknownSamples)
{
    show({"testA"});
    sampleTimes(10);
    viewer.graphView();
    show({"testB"});
    EXPECT_TRUE(std::isnan(viewer.getGraph()->data().at(1).value));
    EXPECT_DOUBLE_EQ(viewer.getGraph()->boundingRect().bottom(), 10.0);
    viewer.textView();
    EXPECT_EQ(viewer.m_textView->item(1, 1)->text(), "");
    EXPECT_EQ(viewer.m_textView->item(1, 1)->toolTip(), "");
    sampleTimes(1);
    EXPECT_EQ(viewer.m_textView->item(1, 1)->text(), "14");
}

TEST_F(CounterTruth, ACounterFromTheStartHasAllOfIt)
{
    show({"testA"});
    EXPECT_EQ(sample("testA"), 0.0);
    sampleTimes(1);
    EXPECT_EQ(drawn(0), 1U);
}

TEST_F(CounterTruth, EveryChangeOfTheViewRestartsThePeriod)
{
    const std::pair<const char*, std::function<void()>> acts[] = {
        {"add", [&] { viewer.doubleClickEvent("testB"); }},
        {"remove by key",
         [&] {
             viewer.m_legend->selectRow(0);
             QTest::keyClick(viewer.m_legend, Qt::Key_Backspace);
         }},
        {"remove by a double click", [&] { viewer.doubleClickLegend(viewer.m_legend->item(0, 0)); }},
        {"time", [&] { viewer.m_timeBox->setCurrentText("45"); }},
        {"frequency", [&] { viewer.m_freqBox->setCurrentText("1"); }},
        {"reset", [&] { QTest::mouseClick(viewer.m_resetDisplay, Qt::LeftButton); }},
        {"update", [&] { viewer.updateViewer(); }}};
    show({"testA", "testC"});
    for (const auto& [name, act] : acts) {
        viewer.m_freqBox->setCurrentText(QLatin1String(name) == "frequency" ? "2" : "1");
        viewer.start();
        // A sample may come while it waits, and begins another period.
        const auto left = [&] { return viewer.getTimer()->remainingTime(); };
        const int half = viewer.getTimer()->interval() / 2;
        ASSERT_TRUE(waitFor([&] { return left() < half && left() > 50; })) << name;
        const int before = left();
        const int resets = clock.resets;
        act();
        EXPECT_GT(left(), before) << name;
        EXPECT_GT(clock.resets, resets) << name;
        viewer.freezeView();
        act();
        EXPECT_FALSE(viewer.getTimer()->isActive()) << name << ": a frozen one stays so";
        if (viewer.getViewed()->size() < 2)
            show({"testA", "testC"});
    }
}

TEST_F(CounterTruth, ALateSampleDoesNotShiftTheNext)
{
    viewer.start();
    ASSERT_TRUE(waitFor([this] { return viewer.getTimer()->remainingTime() < 300; }));
    viewer.viewTimer();
    EXPECT_LT(viewer.getTimer()->remainingTime(), 400);
}

TEST_F(CounterTruth, TheUndividedValueIsInTheToolTip)
{
    auto* registry = SoPerfCounterManager::getInstance();
    if (!isRegistered("testState"))
        registry->registerCounter(new SoPerfStateCounter("testState", "for tests", "Tests", 0));
    static_cast<SoPerfStateCounter*>(registry->getCounter("testState"))->setState(124);
    show({"testState"});
    clock.seconds = 0.4;
    viewer.viewTimer();
    clock.seconds = 0.5005;
    viewer.viewTimer();
    viewer.textView();
    EXPECT_EQ(viewer.m_textView->item(0, 1)->text(), "247.752");
    EXPECT_EQ(viewer.m_textView->item(0, 1)->toolTip(), "undivided: 124");
    viewer.curveView();
    SoPerfCounterCurve* plot = viewer.getCurvePlot();
    const auto tipOf = [&](int index) {
        return plot->textAt(
            QPointF(plot->transform(QwtPlot::xBottom, viewer.getXValues()[std::size_t(index)]),
                    plot->transform(QwtPlot::yLeft, sample("testState", index)))
                .toPoint());
    };
    EXPECT_EQ(tipOf(0), "testState: 247.752 (undivided: 124)");
    EXPECT_EQ(tipOf(1), "testState: 310 (undivided: 124)") << "each by its own seconds";
    viewer.m_legend->selectRow(0);
    viewer.changeScale("2");
    EXPECT_EQ(tipOf(1), "testState: 155 (undivided: 62)");
}

TEST_F(CounterTruth, ACustomCounterStartsEachPeriodAtZero)
{
    const auto makeSum = [](const char* name, const char* first, const char* second) {
        CustomCounter counter;
        counter.name = name;
        counter.firstParent = first;
        counter.secondParent = second;
        counter.operation = "+";
        ASSERT_TRUE(counter.registerIt());
    };
    makeSum("inner", "testA", "testB");
    makeSum("middle", "inner", "testC");
    makeSum("outer", "middle", "inner");
    show({"outer"});
    clock.seconds = 1;
    for (int i = 0; i < 4; ++i) {
        a->increment(6);
        b->increment(3);
        c->increment(2);
        viewer.viewTimer();
        EXPECT_DOUBLE_EQ(sample("outer"), 20.0) << i;
    }
}

using CounterProfileChoice = CounterProfileManager;

TEST_F(CounterProfileChoice, AnotherProfileStartsWithAnEmptyViewer)
{
    writeFile(
        "<perfCounterModule><profiles><profile name='one'><listview><pcviewed>testA</pcviewed></listview>"
        "</profile><profile name='two'><listview><pcviewed>testA</pcviewed><pcviewed>testB</pcviewed>"
        "</listview></profile></profiles></perfCounterModule>");
    open();
    SoPerfCounterViewer& viewer = *dock->m_viewer;
    viewer.getTimer()->stop();
    viewer.viewTimer();
    QStringList seen;
    QObject::connect(dock.get(), &SoPerfCounterDockWin::currentProfileChanged, [&] { seen = viewed(); });
    dock->m_listConfig->setCurrentIndex(1);
    EXPECT_EQ(seen, (QStringList{"testA", "testB"}));
    EXPECT_TRUE(std::isnan(viewer.findViewed("testA")->getHistory()[0]))
        << "nothing is kept of the other profile";
    // The manager's list keeps what stays, whichever profile is chosen there.
    for (const int index : {1, 0, 1}) {
        viewer.viewTimer();
        const SoPerfCounterPcViewed* kept = viewer.findViewed("testA");
        const double* history = kept->getHistory();
        manager = openManager();
        manager->m_tabProfile->setCurrentIndex(index);
        press(QDialogButtonBox::Ok);
        viewer.getTimer()->stop();
        EXPECT_EQ(dock->getCurrentProfile(), index);
        ASSERT_EQ(viewer.findViewed("testA"), kept);
        EXPECT_EQ(kept->getHistory(), history);
        EXPECT_EQ(viewed().size(), index + 1);
    }
    EXPECT_EQ(boxes.take(), QStringList());
}

TEST(CounterShipped, ProfilesHoldOnlyCountersThatAreTrueAsRates)
{
    QFile file(SCOPIX_SOURCE_DIR "/data/Scopix/PerfCounter.xml");
    QDomDocument document;
    ASSERT_TRUE(document.setContent(&file));
    const auto* registry = SoPerfCounterManager::getInstance();
    const auto isRate = [&](const QString& name) {
        const SoPerfCounter* counter = registry->getCounter(toCounterName(name));
        return counter && counter->getTypeCode() == SbString("A");
    };
    QStringList custom;
    const QDomNodeList counters = document.elementsByTagName("counter");
    for (int i = 0; i < counters.size(); ++i) {
        const QDomElement counter = counters.at(i).toElement();
        custom.append(counter.attribute("name"));
        EXPECT_TRUE(QStringList({"+", "-"}).contains(counter.firstChildElement("operation").text()))
            << custom.last().toStdString();
        for (const char* parent : {"firstparent", "secondparent"})
            EXPECT_TRUE(isRate(counter.firstChildElement(parent).text())) << custom.last().toStdString();
    }
    for (const char* tag : {"pc", "pcviewed"}) {
        const QDomNodeList names = document.elementsByTagName(tag);
        EXPECT_GT(names.size(), 0);
        for (int i = 0; i < names.size(); ++i) {
            const QString name = names.at(i).toElement().text();
            EXPECT_TRUE(custom.contains(name) || isRate(name)) << name.toStdString();
        }
    }
}

TEST_F(CounterTruth, AsManyPeriodsAreKeptAsSamples)
{
    CounterSampler sampler;
    for (int filled = 0; filled < 3; ++filled)
        sampler.sample({}, filled, 5);
    EXPECT_EQ(sampler.periods().size(), 3U);
    for (int more = 0; more < 4; ++more)
        sampler.sample({}, 5, 5);
    EXPECT_EQ(sampler.periods().size(), 5U);
    sampler.keepPeriods(2);
    EXPECT_EQ(sampler.periods().size(), 2U);
    sampler.keepPeriods(0);
    EXPECT_EQ(sampler.newestPeriod(), 0.0);
}
