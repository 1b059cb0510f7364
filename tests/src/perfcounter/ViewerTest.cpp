// SPDX-License-Identifier: MIT
// The viewer: sampling with a clock of the test's own, the three views, the legend, scales and lengths.
#include "SoPerfCounterCurve.h"
#include "SoPerfCounterGraph.h"
#include "ViewerFixture.h"

#include <QMimeData>
#include <QSignalSpy>

#include <qwt_scale_widget.h>

TEST_F(CounterViewer, StartsWithSixtyPointsEveryHalfSecond)
{
    EXPECT_EQ(viewer.getTimer()->interval(), 500);
    EXPECT_EQ(viewer.getTimer()->timerType(), Qt::PreciseTimer);
    EXPECT_EQ(viewer.getHistoryLength(), 60);
    EXPECT_EQ(viewer.m_timeBox->currentText(), "30");
    EXPECT_EQ(viewer.m_freqBox->currentText(), "2");
    EXPECT_DOUBLE_EQ(viewer.getXValues().front(), -0.5);
    EXPECT_DOUBLE_EQ(viewer.getXValues().back(), -30.0);
    EXPECT_TRUE(viewer.getCurvePlot()->isVisible());
    EXPECT_FALSE(viewer.m_textView->isVisible());
    EXPECT_FALSE(viewer.getGraphPlot()->isVisible());
}

TEST_F(CounterViewer, ASampleIsARatePerSecondAndPushesTheOthers)
{
    show({"testA"});
    a->increment(10);
    viewer.viewTimer();
    EXPECT_DOUBLE_EQ(sample("testA"), 20.0);
    a->increment(3);
    viewer.viewTimer();
    EXPECT_DOUBLE_EQ(sample("testA"), 6.0) << "reset after each sample";
    EXPECT_DOUBLE_EQ(sample("testA", 1), 20.0);
    EXPECT_EQ(viewer.getFilled(), 2);
    EXPECT_DOUBLE_EQ(viewer.getXValues().front(), 0.5);
}

TEST_F(CounterViewer, NoTimeBetweenTwoSamplesGivesZero)
{
    show({"testA"});
    a->increment(10);
    clock.seconds = 0;
    viewer.viewTimer();
    EXPECT_EQ(sample("testA"), 0.0);
}

TEST_F(CounterViewer, AFullHistoryLosesItsOldest)
{
    show({"testA"});
    for (int i = 0; i < 70; ++i) {
        a->increment(i);
        viewer.viewTimer();
    }
    EXPECT_EQ(viewer.getFilled(), 60);
    EXPECT_DOUBLE_EQ(sample("testA", 0), 138.0);
    EXPECT_DOUBLE_EQ(sample("testA", 59), 20.0);
    // The axis follows the newest sample once that is past its end.
    const QwtInterval shown = viewer.getCurvePlot()->axisInterval(QwtPlot::xBottom);
    EXPECT_NEAR(shown.maxValue(), viewer.getXValues().front(), 1e-6);
    EXPECT_NEAR(shown.width(), 29.0, 1e-6);
}

TEST_F(CounterViewer, AFrequencyOfEightMeansEightPointsASecond)
{
    show({"testA"});
    a->increment(1);
    viewer.viewTimer();
    viewer.m_freqBox->setCurrentText("8");
    EXPECT_EQ(viewer.getTimer()->interval(), 125);
    EXPECT_EQ(viewer.getHistoryLength(), 240);
    EXPECT_DOUBLE_EQ(sample("testA"), 2.0) << "the samples stay";
    EXPECT_DOUBLE_EQ(viewer.getXValues().front(), 0.0) << "they stay in their place";
    EXPECT_DOUBLE_EQ(viewer.getXValues().back(), -239.0 / 8);
    viewer.m_timeBox->setCurrentText("15");
    EXPECT_EQ(viewer.getHistoryLength(), 120);
    for (int i = 0; i < 150; ++i)
        viewer.viewTimer();
    viewer.m_freqBox->setCurrentText("1");
    EXPECT_EQ(viewer.getHistoryLength(), 15);
    EXPECT_EQ(viewer.getFilled(), 15);
    viewer.viewTimer();
}

TEST_F(CounterViewer, ANewScaleAppliesToThePastToo)
{
    show({"testA"});
    a->increment(10);
    viewer.viewTimer();
    viewer.m_legend->selectRow(0);
    viewer.changeScale("2");
    EXPECT_DOUBLE_EQ(sample("testA"), 10.0);
    EXPECT_DOUBLE_EQ(a->getScaleFactor(), 2.0);
    for (const char* refused : {"0", "-1", "abc", "", "nan"})
        viewer.changeScale(refused);
    EXPECT_DOUBLE_EQ(sample("testA"), 10.0);
    EXPECT_DOUBLE_EQ(a->getScaleFactor(), 2.0);
    a->increment(10);
    viewer.viewTimer();
    EXPECT_DOUBLE_EQ(sample("testA"), 10.0);
}

TEST_F(CounterViewer, ACustomCounterResetsItsParents)
{
    CustomCounter ratio;
    ratio.name = "ratio";
    ratio.firstParent = "testA";
    ratio.secondParent = "testB";
    ratio.operation = "/";
    ASSERT_TRUE(ratio.registerIt());
    show({"ratio"});
    clock.seconds = 1;
    a->increment(12);
    b->increment(4);
    viewer.viewTimer();
    EXPECT_DOUBLE_EQ(sample("ratio"), 3.0);
    EXPECT_EQ(a->getValue(), 0.0);
    EXPECT_EQ(b->getValue(), 0.0);
}

TEST_F(CounterViewer, AnUnknownCounterReadsZeroAndIsShownAsSuch)
{
    show({"nobody"});
    viewer.viewTimer();
    viewer.textView();
    EXPECT_EQ(sample("nobody"), 0.0);
    EXPECT_EQ(viewer.m_legend->item(0, 4)->text(), "No such counter");
    viewer.m_legend->selectRow(0);
    viewer.changeScale("3");
}

TEST_F(CounterViewer, ANameThatIsShownIsNotAddedAgain)
{
    QSignalSpy added(&viewer, &SoPerfCounterViewer::newPcViewed);
    show({"testA", "testA"});
    EXPECT_EQ(viewer.getViewed()->size(), 1);
    EXPECT_EQ(added.size(), 1);
    EXPECT_EQ(viewer.getCurvePlot()->getCurveList().size(), 1);
}

TEST_F(CounterViewer, ADropFromElsewhereIsRefused)
{
    QMimeData data;
    data.setText("testA##testB##");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&viewer, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&viewer, &drop);
    EXPECT_FALSE(drop.isAccepted());
    EXPECT_TRUE(viewer.getViewed()->isEmpty());
}

TEST_F(CounterViewer, BackspaceRemovesTheSelectedRowsAndDeleteDoesNot)
{
    show({"testA", "testB", "testC"});
    QSignalSpy removed(&viewer, &SoPerfCounterViewer::deletedPcViewed);
    viewer.m_legend->selectRow(1);
    viewer.m_legend->setFocus();
    QTest::keyClick(viewer.m_legend, Qt::Key_Delete);
    EXPECT_EQ(viewer.getViewed()->size(), 3);
    QTest::keyClick(viewer.m_legend, Qt::Key_Backspace);
    ASSERT_EQ(viewer.getViewed()->size(), 2);
    EXPECT_EQ(removed.takeFirst().first().toString(), "testB");
    EXPECT_EQ(viewer.getCurvePlot()->getCurveList().size(), 2);
    EXPECT_EQ(viewer.getCurvePlot()->getCurveList()[1]->title().text(), "testC");
}

TEST_F(CounterViewer, ADoubleClickInTheLegendRemovesTheRow)
{
    show({"testA", "testB"});
    QSignalSpy removed(&viewer, &SoPerfCounterViewer::deletedPcViewed);
    const QPoint at = viewer.m_legend->visualItemRect(viewer.m_legend->item(0, 0)).center();
    QTest::mouseClick(viewer.m_legend->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(viewer.m_legend->viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(removed.size(), 1);
    EXPECT_EQ(viewer.m_legend->rowCount(), 1);
    EXPECT_EQ(viewer.m_legend->item(0, 0)->text(), "testB");
}

TEST_F(CounterViewer, TheLegendHasFiveTextsInTheCurvesColour)
{
    show({"testA"});
    ASSERT_EQ(viewer.m_legend->columnCount(), 5);
    EXPECT_EQ(viewer.m_legend->item(0, 0)->foreground().color(), viewer.findViewed("testA")->getColor());
    EXPECT_EQ(viewer.getCurvePlot()->getCurveList()[0]->pen().color(),
              viewer.findViewed("testA")->getColor());
    EXPECT_EQ(viewer.m_legend->item(0, 2)->text(), "Low");
    EXPECT_EQ(viewer.m_legend->item(0, 3)->text(), "Tests");
    EXPECT_EQ(viewer.m_legend->rowHeight(0), 15);
}

TEST_F(CounterViewer, TextAndBarsShowTheNewestSamples)
{
    show({"testA", "testB"});
    viewer.m_legend->selectRow(1);
    viewer.changeScale("4");
    viewer.textView();
    a->increment(1);
    b->increment(8);
    viewer.viewTimer();
    EXPECT_EQ(viewer.m_textView->item(0, 1)->text(), "2");
    EXPECT_EQ(viewer.m_textView->item(1, 1)->text(), "4");
    EXPECT_EQ(viewer.m_textView->item(1, 2)->text(), "x 4");
    viewer.graphView();
    ASSERT_EQ(viewer.getGraph()->data().size(), 2);
    EXPECT_EQ(viewer.getGraph()->data()[1].value, 4.0);
    EXPECT_EQ(viewer.getGraph()->data()[1].interval.minValue(), 1.0);
    EXPECT_EQ(viewer.getGraphPlot()->axisInterval(QwtPlot::xBottom).maxValue(), 2.0);
}

TEST_F(CounterViewer, AHiddenViewerSamplesButDrawsNothing)
{
    show({"testA"});
    viewer.textView();
    viewer.hide();
    a->increment(5);
    viewer.viewTimer();
    EXPECT_DOUBLE_EQ(sample("testA"), 10.0);
    EXPECT_EQ(viewer.m_textView->item(0, 1)->text(), "0");
    viewer.show();
    EXPECT_EQ(viewer.m_textView->item(0, 1)->text(), "10");
}

TEST_F(CounterViewer, StopAndPlay)
{
    viewer.start();
    EXPECT_TRUE(viewer.getTimer()->isActive());
    QTest::mouseClick(viewer.m_stop, Qt::LeftButton);
    EXPECT_FALSE(viewer.getTimer()->isActive());
    QTest::mouseClick(viewer.m_stop, Qt::LeftButton);
    EXPECT_TRUE(viewer.getTimer()->isActive());
    viewer.getTimer()->stop();
}

TEST_F(CounterViewer, ResettingRestartsTheTime)
{
    show({"testA"});
    a->increment(1);
    viewer.viewTimer();
    QTest::mouseClick(viewer.m_resetDisplay, Qt::LeftButton);
    EXPECT_EQ(viewer.getFilled(), 0);
    EXPECT_EQ(sample("testA"), 0.0);
    EXPECT_DOUBLE_EQ(viewer.getXValues().front(), -0.5);
}

TEST_F(CounterViewer, AnotherListKeepsTheCurvesThatStay)
{
    show({"testA", "testB"});
    a->increment(1);
    viewer.viewTimer();
    const SoPerfCounterPcViewed* kept = viewer.findViewed("testA");
    const QList<QString> list{"testC", "testA", "testC"};
    viewer.setViewList(&list);
    ASSERT_EQ(viewer.getViewed()->size(), 2);
    EXPECT_EQ(viewer.getViewed()->at(0)->getName(), "testC");
    EXPECT_EQ(viewer.getViewed()->at(1), kept);
    EXPECT_DOUBLE_EQ(sample("testA"), 2.0);
    EXPECT_EQ(viewer.getCurvePlot()->getCurveList()[1]->title().text(), "testA");
}

TEST_F(CounterViewer, TheValueUnderThePointerIsNamed)
{
    show({"testA"});
    for (int i = 0; i < 5; ++i) {
        a->increment(5);
        viewer.viewTimer();
    }
    SoPerfCounterCurve* plot = viewer.getCurvePlot();
    const double x = plot->transform(QwtPlot::xBottom, viewer.getXValues()[1]);
    const double y = plot->transform(QwtPlot::yLeft, 10.0);
    EXPECT_EQ(plot->textAt(QPointF(x, y).toPoint()), "testA: 10 (undivided: 5)");
    EXPECT_EQ(plot->textAt(QPoint(-400, -400)), "");
}
