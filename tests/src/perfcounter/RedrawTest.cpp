// SPDX-License-Identifier: MIT
// What the viewer draws, and when it draws nothing.
#include "SoPerfCounterCurve.h"
#include "SoPerfCounterGraph.h"
#include "ViewerFixture.h"

#include <support/Waiting.h>

#include <QHelpEvent>
#include <QMainWindow>
#include <QProcess>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QTextDocument>
#include <QToolTip>

#include <qwt_plot_canvas.h>
#include <qwt_point_data.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

namespace
{

// Counts how often a plot is redrawn, by what changes each time: its time axis.
class Redraws
{
public:
    explicit Redraws(const QwtPlot& plot)
        : m_spy(plot.axisWidget(QwtPlot::xBottom), &QwtScaleWidget::scaleDivChanged)
    {
    }
    int take()
    {
        const int count = m_spy.size();
        m_spy.clear();
        return count;
    }

private:
    QSignalSpy m_spy;
};

QString tipAt(QwtPlot& plot, const QPoint& place)
{
    QToolTip::hideText(); // which takes its time
    EXPECT_TRUE(waitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent help(QEvent::ToolTip, place, plot.canvas()->mapToGlobal(place));
    QCoreApplication::sendEvent(plot.canvas(), &help);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

} // namespace

class CounterRedraw : public CounterViewer
{
protected:
    CounterRedraw()
    {
        show({"testA"});
        for (int i = 0; i < 60; ++i) // from here on the axis moves with each sample
            viewer.viewTimer();
        redraws = std::make_unique<Redraws>(*viewer.getCurvePlot());
    }
    void sampleThrice()
    {
        for (int i = 0; i < 3; ++i) {
            a->increment(5);
            viewer.viewTimer();
            QCoreApplication::processEvents();
        }
    }

    std::unique_ptr<Redraws> redraws;
};

TEST_F(CounterRedraw, ASampleThatIsSeenIsDrawnOnce)
{
    sampleThrice();
    EXPECT_EQ(redraws->take(), 3);
}

TEST_F(CounterRedraw, AHiddenViewerDrawsNothingUntilItIsSeen)
{
    viewer.hide();
    sampleThrice();
    EXPECT_EQ(redraws->take(), 0);
    EXPECT_DOUBLE_EQ(sample("testA"), 10.0) << "but it samples";
    viewer.show();
    EXPECT_EQ(redraws->take(), 1);
    EXPECT_NEAR(viewer.getCurvePlot()->axisInterval(QwtPlot::xBottom).maxValue(), viewer.getXValues().front(),
                1e-9);
}

TEST_F(CounterRedraw, AViewerBehindAnotherTabDrawsNothingUntilItIsSeen)
{
    QMainWindow window;
    QDockWidget front;
    QDockWidget back;
    back.setWidget(&viewer);
    window.addDockWidget(Qt::RightDockWidgetArea, &back);
    window.addDockWidget(Qt::RightDockWidgetArea, &front);
    window.tabifyDockWidget(&back, &front);
    window.resize(800, 600);
    window.show();
    front.raise();
    QCoreApplication::processEvents();
    redraws->take();
    sampleThrice();
    EXPECT_EQ(redraws->take(), 0);
    back.raise();
    EXPECT_TRUE(waitFor([this] { return redraws->take() > 0; }));
    EXPECT_NEAR(viewer.getCurvePlot()->axisInterval(QwtPlot::xBottom).maxValue(), viewer.getXValues().front(),
                1e-9);
    sampleThrice();
    EXPECT_EQ(redraws->take(), 3);
    viewer.setParent(nullptr);
}

TEST_F(CounterRedraw, TheViewsThatAreNotChosenAreNotMade)
{
    viewer.textView();
    redraws->take();
    sampleThrice();
    EXPECT_EQ(redraws->take(), 0);
    EXPECT_TRUE(viewer.getGraph()->data().isEmpty());
    viewer.curveView();
    EXPECT_EQ(redraws->take(), 1);
}

TEST_F(CounterRedraw, AFrozenViewerDoesNothing)
{
    viewer.start();
    QTest::mouseClick(viewer.m_stop, Qt::LeftButton);
    QSignalSpy ticks(viewer.getTimer(), &QTimer::timeout);
    redraws->take();
    const int filled = viewer.getFilled();
    const int resets = clock.resets;
    a->increment(5);
    // As long as a timer that runs beside it needs for ten turns, the viewer's own has none.
    QTimer beside;
    QSignalSpy turns(&beside, &QTimer::timeout);
    beside.start(viewer.getTimer()->interval() / 5);
    ASSERT_TRUE(waitFor([&] { return turns.size() >= 10; }));
    EXPECT_EQ(ticks.size(), 0);
    EXPECT_EQ(redraws->take(), 0);
    EXPECT_EQ(viewer.getFilled(), filled);
    EXPECT_EQ(clock.resets, resets);
}

TEST_F(CounterRedraw, ARunningViewerSamplesByItsTimer)
{
    viewer.m_freqBox->setCurrentText("8");
    QSignalSpy ticks(viewer.getTimer(), &QTimer::timeout);
    redraws->take();
    viewer.start();
    EXPECT_TRUE(waitFor([&] { return ticks.size() >= 2; }));
    EXPECT_GE(redraws->take(), 2);
}

TEST_F(CounterRedraw, TheButtonShowsWhatItWillDo)
{
    const auto imageOf = [](const QIcon& icon) { return icon.pixmap(16).toImage(); };
    const QImage pause = imageOf(QIcon(":/PerfCounter_icons/Icons/player_pause.png"));
    const QImage play = imageOf(QIcon(":/PerfCounter_icons/Icons/player_play.png"));
    ASSERT_NE(pause, play);
    viewer.start();
    EXPECT_EQ(imageOf(viewer.m_stop->icon()), pause);
    viewer.freezeView();
    EXPECT_EQ(imageOf(viewer.m_stop->icon()), play);
    viewer.freezeView();
    EXPECT_EQ(imageOf(viewer.m_stop->icon()), pause);
}

TEST_F(CounterRedraw, TheButtonFollowsTheTimerWhoeverStopsOrStartsIt)
{
    writeExample();
    open();
    SoPerfCounterViewer& shown = *dock->m_viewer;
    const auto isPause = [&] {
        const QImage image = shown.m_stop->icon().pixmap(16).toImage();
        const auto of = [](const char* file) {
            return QIcon(QStringLiteral(":/PerfCounter_icons/Icons/") + file).pixmap(16).toImage();
        };
        EXPECT_TRUE(image == of("player_pause.png") || image == of("player_play.png"));
        return image == of("player_pause.png");
    };
    const QImage asRunning = shown.m_stop->grab().toImage();
    EXPECT_TRUE(isPause());
    for (const auto button : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel}) {
        QTest::mouseClick(shown.m_stop, Qt::LeftButton);
        EXPECT_FALSE(isPause());
        EXPECT_NE(shown.m_stop->grab().toImage(), asRunning) << "what is seen too";
        SoPerfCounterProfileManager* manager = openManager();
        EXPECT_FALSE(isPause());
        QTest::mouseClick(manager->m_buttonBox->button(button), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_TRUE(shown.getTimer()->isActive());
        EXPECT_TRUE(isPause());
        EXPECT_EQ(shown.m_stop->grab().toImage(), asRunning);
    }
    openManager();
    EXPECT_FALSE(isPause()) << "nothing is sampled while the manager is open";
}

TEST_F(CounterRedraw, CurvesAreDrawnFromTheHistoriesThemselves)
{
    const auto pointsOf = [this](int index) {
        return static_cast<const QwtCPointerData*>(viewer.getCurvePlot()->getCurveList()[index]->data());
    };
    sampleThrice();
    EXPECT_EQ(pointsOf(0)->yData(), viewer.findViewed("testA")->getHistory());
    EXPECT_EQ(pointsOf(0)->xData(), viewer.getXValues().data());
    EXPECT_EQ(pointsOf(0)->size(), 60U);
    // No curve keeps an array that is freed, not even while the plot is hidden.
    viewer.hide();
    viewer.m_timeBox->setCurrentText("120");
    EXPECT_EQ(pointsOf(0)->yData(), viewer.findViewed("testA")->getHistory());
    EXPECT_EQ(pointsOf(0)->xData(), viewer.getXValues().data());
}

TEST_F(CounterRedraw, TheCurveIsDrawnInItsColourUpToItsNewestSample)
{
    viewer.m_legend->selectRow(0);
    viewer.changeColor(QColor(255, 0, 0));
    for (int i = 0; i < 60; ++i) {
        a->increment(i < 30 ? 50 : 100);
        viewer.viewTimer();
    }
    QCoreApplication::processEvents();
    const QImage image = viewer.getCurvePlot()->canvas()->grab().toImage();
    const auto redIn = [&](int left, int right) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = left; x < right; ++x)
                count += image.pixelColor(x, y).green() < 128;
        }
        return count;
    };
    EXPECT_GT(redIn(image.width() * 3 / 4, image.width() - 3), image.width() / 8);
    EXPECT_GT(redIn(3, image.width() / 4), image.width() / 8);
}

TEST_F(CounterRedraw, ManyPointsAreDrawnInFineLinesOnADenseScreen)
{
    if (viewer.devicePixelRatioF() < 2) { // the screen is what it is from the start, so this runs once more
        viewer.m_freqBox->setCurrentText("8");
        viewer.m_timeBox->setCurrentText("120");
        for (int i = 0; i < 2000; ++i)
            viewer.viewTimer();
        EXPECT_FALSE(viewer.getCurvePlot()->getCurveList()[0]->pen().isCosmetic())
            << "here they all are fine";
        QProcess dense;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_SCALE_FACTOR", "2");
        dense.setProcessEnvironment(environment);
        dense.start(QCoreApplication::applicationFilePath(),
                    {"--gtest_filter=CounterRedraw.ManyPointsAreDrawnInFineLinesOnADenseScreen"});
        ASSERT_TRUE(dense.waitForFinished(200'000));
        EXPECT_EQ(dense.exitCode(), 0) << dense.readAllStandardOutput().toStdString();
        return;
    }
    const auto isFine = [this] { return viewer.getCurvePlot()->getCurveList()[0]->pen().isCosmetic(); };
    EXPECT_FALSE(isFine());
    viewer.m_freqBox->setCurrentText("8");
    viewer.m_timeBox->setCurrentText("120");
    show({"testB"});
    viewer.resetHistory();
    while (viewer.getFilled() < 501)
        viewer.viewTimer();
    EXPECT_TRUE(isFine());
    const QColor color = viewer.findViewed("testA")->getColor();
    EXPECT_EQ(viewer.getCurvePlot()->getCurveList()[0]->pen().color(), color);
    viewer.resetHistory();
    EXPECT_FALSE(isFine());
}

TEST_F(CounterRedraw, TheVerticalAxisFitsTheSamples)
{
    const auto shown = [this] { return viewer.getCurvePlot()->axisInterval(QwtPlot::yLeft); };
    a->increment(1000);
    viewer.viewTimer();
    EXPECT_TRUE(shown().contains(2000.0) && shown().contains(0.0));
    EXPECT_LE(shown().maxValue(), 4000.0);
    viewer.resetHistory();
    a->increment(1);
    viewer.viewTimer();
    a->increment(2);
    viewer.viewTimer();
    EXPECT_LE(shown().maxValue(), 10.0);
    viewer.graphView();
    a->increment(3000);
    viewer.viewTimer();
    const QwtInterval bars = viewer.getGraphPlot()->axisInterval(QwtPlot::yLeft);
    EXPECT_TRUE(bars.contains(6000.0) && bars.contains(0.0));
}

TEST_F(CounterRedraw, TheAxisWithoutCountsIsFromZeroToOne)
{
    for (const auto& [view, plot] :
         {std::pair{&SoPerfCounterViewer::curveView, static_cast<QwtPlot*>(viewer.getCurvePlot())},
          std::pair{&SoPerfCounterViewer::graphView, viewer.getGraphPlot()}}) {
        (viewer.*view)();
        viewer.viewTimer();
        EXPECT_EQ(plot->axisInterval(QwtPlot::yLeft), QwtInterval(0, 1));
    }
}

TEST_F(CounterRedraw, TheAxesSayWhatTheyMeasure)
{
    EXPECT_EQ(viewer.getCurvePlot()->axisTitle(QwtPlot::xBottom).text(), "Time (s)");
    for (QwtPlot* plot : {static_cast<QwtPlot*>(viewer.getCurvePlot()), viewer.getGraphPlot()}) {
        EXPECT_EQ(plot->axisTitle(QwtPlot::yLeft).text(), "Per second");
        EXPECT_FALSE(plot->autoReplot());
        EXPECT_EQ(plot->canvasBackground().color(), QColor(Qt::white));
        for (const auto axis : {QwtPlot::yLeft, QwtPlot::xBottom})
            EXPECT_EQ(plot->axisScaleDraw(axis)->penWidth(), 2);
    }
}

TEST_F(CounterRedraw, AToolTipShowsTheValueAlsoBetweenTwoSamples)
{
    viewer.m_timeBox->setCurrentText("15");
    viewer.m_freqBox->setCurrentText("1");
    viewer.resetHistory();
    for (int i = 0; i < 10; ++i) {
        a->increment(i < 5 ? 4 : 8);
        viewer.viewTimer();
    }
    SoPerfCounterCurve* plot = viewer.getCurvePlot();
    const auto place = [&](double x, double y) {
        return QPointF(plot->transform(QwtPlot::xBottom, x), plot->transform(QwtPlot::yLeft, y)).toPoint();
    };
    EXPECT_EQ(tipAt(*plot, place(8.4, 16)), "testA: 16 (undivided: 8)")
        << "far from the samples at 8 and 9, near to the line";
    EXPECT_EQ(tipAt(*plot, place(2, 8)), "testA: 8 (undivided: 4)");
    EXPECT_EQ(tipAt(*plot, place(2, 14)), "") << "no line here";
}

TEST_F(CounterRedraw, AToolTipShowsTheValueOfABar)
{
    show({"testB"});
    b->increment(3);
    viewer.viewTimer();
    viewer.graphView();
    QwtPlot* plot = viewer.getGraphPlot();
    const auto place = [&](double x) { return QPointF(plot->transform(QwtPlot::xBottom, x), 20).toPoint(); };
    EXPECT_EQ(tipAt(*plot, place(0.5)), "testA: 0 (undivided: 0)");
    EXPECT_EQ(tipAt(*plot, place(1.5)), "testB: 6 (undivided: 3)");
    EXPECT_EQ(tipAt(*plot, place(-0.5)), "");
    EXPECT_EQ(tipAt(*plot, place(2.5)), "");
}

TEST_F(CounterRedraw, AToolTipTakesNoNameForMarkup)
{
    viewer.clearViewer();
    show({"<b>bold</b>"});
    viewer.viewTimer();
    viewer.graphView();
    QwtPlot* plot = viewer.getGraphPlot();
    QTextDocument shown;
    shown.setHtml(tipAt(*plot, QPointF(plot->transform(QwtPlot::xBottom, 0.5), 20).toPoint()));
    EXPECT_EQ(shown.toPlainText(), "<b>bold</b>: 0 (undivided: 0)");
}

TEST_F(CounterRedraw, TheLegendShowsNamesInWhole)
{
    const QString name = "aCounterWithALongName";
    show({name});
    EXPECT_GE(viewer.m_legend->columnWidth(0), viewer.m_legend->fontMetrics().horizontalAdvance(name));
}

TEST_F(CounterRedraw, ABarStaysWithinItsInterval)
{
    for (int i = 0; i < 2; ++i) {
        a->increment(50);
        viewer.viewTimer();
    }
    viewer.graphView();
    viewer.m_legend->selectRow(0);
    viewer.changeColor(QColor(200, 0, 0));
    QCoreApplication::processEvents();
    QwtPlot* plot = viewer.getGraphPlot();
    const QImage image = plot->canvas()->grab().toImage();
    const auto colorAt = [&](double x, double y) {
        return image.pixelColor(qRound(plot->transform(QwtPlot::xBottom, x)),
                                qRound(plot->transform(QwtPlot::yLeft, y)));
    };
    EXPECT_EQ(colorAt(0.5, 50), QColor(200, 0, 0));
    EXPECT_EQ(colorAt(0.05, 50), QColor(Qt::white));
    const int top = qRound(plot->transform(QwtPlot::yLeft, 100));
    for (int x = 4; x < image.width() - 4; ++x)
        ASSERT_EQ(image.pixelColor(x, top - 1), QColor(Qt::white)) << "over the bar, at " << x;
}

TEST_F(CounterRedraw, ColoursAreVisibleAndDistinguishable)
{
    QStringList names;
    for (int i = 0; i < 40; ++i)
        names.append(QStringLiteral("coloured%1").arg(i));
    show(names);
    QSet<QRgb> colors;
    const QSet<int> levels{0, 85, 127, 170, 255};
    for (const SoPerfCounterPcViewed* viewed : *viewer.getViewed()) {
        const QColor color = viewed->getColor();
        // The brightest greens and yellows are lost on white.
        EXPECT_LE(color.green() + color.red() / 4, 175) << color.name().toStdString();
        EXPECT_TRUE(levels.contains(color.red()) && levels.contains(color.green()) &&
                    levels.contains(color.blue()));
        EXPECT_FALSE(colors.contains(color.rgb()));
        colors.insert(color.rgb());
    }
    EXPECT_EQ(viewer.m_legend->item(1, 0)->background().color(), QColor(Qt::white))
        << "as readable as the curve";
}

TEST_F(CounterRedraw, MoreCountersThanColoursAreShownToo)
{
    QStringList names;
    for (int i = 0; i < 150; ++i)
        names.append(QStringLiteral("many%1").arg(i));
    show(names);
    EXPECT_EQ(viewer.getViewed()->size(), 151);
}

TEST_F(CounterRedraw, TheButtonsMarkTheCurrentView)
{
    QTest::mouseClick(viewer.m_graph, Qt::LeftButton);
    EXPECT_TRUE(viewer.m_graph->isChecked());
    EXPECT_FALSE(viewer.m_curve->isChecked());
    EXPECT_TRUE(viewer.getGraphPlot()->isVisible());
    viewer.textView();
    EXPECT_TRUE(viewer.m_text->isChecked());
}
