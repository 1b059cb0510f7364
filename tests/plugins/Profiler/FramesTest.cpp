// SPDX-License-Identifier: MIT
// The dock "Frames" in the real host.
#include "frames/FrameReport.h"
#include "frames/FramesPanel.h"
#include "frames/RecordingFiles.h"

#include "panels/ScenePanel.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"

#include <support/Session.h>
#include <support/Waiting.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

using namespace profiler;

namespace
{

// A panel of its own with a log of its own, for what a test files in it.
class FramesWidget : public testing::Test
{
protected:
    FramesWidget()
    {
        qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
        panel = std::make_unique<FramesPanel>(log);
        panel->resize(700, 300);
        panel->show();
        EXPECT_TRUE(waitForExposed(panel.get()));
    }
    ~FramesWidget() override { qunsetenv("XDG_CONFIG_HOME"); }

    void add(double milliseconds, std::int64_t triangles = 100)
    {
        SoFrame frame;
        frame[SoFrame::Begin] = time += 16'000'000;
        frame[SoFrame::Whole] = frame[SoFrame::Draw] = std::llround(milliseconds * 1e6);
        frame[SoFrame::Triangles] = triangles;
        log.add(frame);
    }
    void addMany(int count)
    {
        for (int i = 0; i < count; ++i)
            add(2);
        panel->getStore().takeNow();
    }
    FrameBars& bars() { return panel->getBars(); }
    QString line(const char* name) const { return panel->findChild<QLabel*>(QLatin1String(name))->text(); }

    QTemporaryDir settings;
    SoFrameLog log;
    std::int64_t time = SoFrameLog::now() - 10'000'000'000; // of the last frame
    std::unique_ptr<FramesPanel> panel;
};

QColor colorAt(QWidget& widget, const QPoint& place)
{
    return widget.grab().toImage().pixelColor(place);
}

} // namespace

TEST_F(FramesWidget, NumbersHaveAUnitThatFitsTheirSize)
{
    EXPECT_EQ(readable(0.1, "ms"), "0.1 ms");
    EXPECT_EQ(readable(0.034, "ms"), QString::fromUtf8("34 µs"));
    EXPECT_EQ(readable(16.667, "ms"), "16.7 ms");
    EXPECT_EQ(readable(2'500'000, "B"), "2.5 MB");
    EXPECT_EQ(readable(1999, "B/s"), "2 kB/s");
    EXPECT_EQ(readable(2840027.3, "/s"), "2.84 M/s");
    EXPECT_EQ(readable(284002.3, "/s"), "284,002 /s");
    EXPECT_EQ(readable(7000, ""), "7000");
    EXPECT_EQ(readable(std::nan(""), "ms"), QString::fromUtf8("–"));
}

TEST_F(FramesWidget, MeasuresOnlyWhileItIsSeen)
{
    EXPECT_TRUE(log.isOn());
    panel->hide();
    EXPECT_FALSE(log.isOn());
}

TEST_F(FramesWidget, MayEndWithFramesThatNobodyHasSeen)
{
    ASSERT_TRUE(panel->addCurve("Triangles"));
    for (int i = 0; i < 50; ++i)
        add(1);
    panel.reset();
    EXPECT_FALSE(log.isOn());
}

TEST_F(FramesWidget, SummarizesWhatIsInSight)
{
    for (int i = 1; i <= 100; ++i)
        add(i);
    panel->getStore().takeNow();
    bars().setBarWidth(1);
    EXPECT_EQ(
        FrameReport::summary(panel->getStore().getFrames(), 0, 100, 16.7),
        "100 frames: longest 100 ms, mean 50.5 ms, 95 % within 95 ms, 99 % within 99 ms; 84 over 16.7 ms");
    EXPECT_TRUE(line("framesSummary").startsWith("100 frames"));
}

TEST_F(FramesWidget, ABarIsAsHighAsItsFrameWasLong)
{
    add(10);
    add(5);
    panel->getStore().takeNow();
    bars().setBarWidth(24);
    const QRect bar = bars().getBar(1);
    const double perMs = bar.height() / bars().getScale();
    const QColor ground = bars().palette().color(QPalette::Base);
    const int x = bar.center().x();
    const int top = bar.bottom() + 1 - static_cast<int>(5 * perMs);
    EXPECT_NE(colorAt(bars(), {x, top + 2}), ground);
    EXPECT_EQ(colorAt(bars(), {x, top - 3}), ground);
    const int higher = bar.bottom() + 1 - static_cast<int>(10 * perMs);
    EXPECT_NE(colorAt(bars(), {bars().getBar(0).center().x(), higher + 2}), ground);
}

TEST_F(FramesWidget, AClickTellsWhatWasDifferentAboutAFrame)
{
    addMany(10);
    log.mark("Change Material.shininess");
    time = SoFrameLog::now();
    add(30, 7000);
    addMany(10);
    QTest::mouseClick(&bars(), Qt::LeftButton, {}, bars().getBar(10).center());
    EXPECT_EQ(bars().getChosen(), 10);
    const QString details = line("frameDetails");
    EXPECT_TRUE(details.startsWith("This frame took 30 ms, its neighbours 2 ms")) << qPrintable(details);
    EXPECT_TRUE(details.contains(QString::fromUtf8("“Change Material.shininess”"))) << qPrintable(details);
    EXPECT_TRUE(details.contains("Draw 30 ms instead of 2 ms")) << qPrintable(details);
    EXPECT_TRUE(details.contains("Triangles 7000 instead of 100")) << qPrintable(details);
    QTest::keyClick(&bars(), Qt::Key_Right);
    EXPECT_EQ(bars().getChosen(), 11);
    EXPECT_TRUE(line("frameDetails").startsWith("This frame took 2 ms"));
    EXPECT_TRUE(bars().accessibleDescription().contains("This frame took 2 ms"));
}

TEST_F(FramesWidget, StandsStillWhileItIsPausedAndGoesOnAfterwards)
{
    addMany(1000);
    const int end = bars().getEndSeen();
    EXPECT_EQ(end, 1000);
    QTest::keyClick(&bars(), Qt::Key_Space);
    addMany(50);
    EXPECT_EQ(bars().getEndSeen(), end);
    QTest::keyClick(&bars(), Qt::Key_Space);
    EXPECT_EQ(bars().getEndSeen(), 1050);
}

TEST_F(FramesWidget, ScrollsBackToTheFirstFrameAndZooms)
{
    addMany(1000);
    for (int i = 0; i < 30; ++i)
        QTest::keyClick(&bars(), Qt::Key_PageUp);
    EXPECT_EQ(bars().getFirstSeen(), 0);
    EXPECT_TRUE(bars().isPaused());
    QTest::keyClick(&bars(), Qt::Key_End);
    EXPECT_EQ(bars().getEndSeen(), 1000);
    const int before = bars().getBarWidth();
    QTest::keyClick(&bars(), Qt::Key_Plus);
    EXPECT_GT(bars().getBarWidth(), before);
    FramesPanel later(log);
    EXPECT_EQ(later.getBars().getBarWidth(), bars().getBarWidth());
}

TEST_F(FramesWidget, KeepsTheLastFramesOnly)
{
    const std::size_t most = FrameStore::MostFrames;
    for (std::size_t i = 0; i < most + 100; i += 100)
        addMany(100);
    EXPECT_EQ(panel->getStore().getFrames().getNumFrames(), most);
    EXPECT_EQ(panel->getStore().getFirst(), 100U);
    EXPECT_EQ(panel->getStore().getFrames().columns.back().values.size(), most);
}

TEST_F(FramesWidget, ACurveThatWasTypedShowsItsValueAndIsRemembered)
{
    addMany(10);
    auto* input = panel->findChild<QComboBox*>("curveInput");
    input->setFocus();
    QTest::keyClicks(input->lineEdit(), "Triangles / 8");
    QTest::keyClick(input->lineEdit(), Qt::Key_Return);
    ASSERT_EQ(panel->getCurves().size(), 1U);
    EXPECT_EQ(panel->getCurves()[0].getValues(), std::vector<double>(10, 12.5));
    auto* button = panel->findChild<QToolButton*>("curve0");
    EXPECT_TRUE(button->text().startsWith("Triangles / 8 12.5")) << qPrintable(button->text());
    EXPECT_EQ(FramesPanel(log).getCurves().size(), 1U);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(panel->getCurves().size(), 0U);
    EXPECT_EQ(FramesPanel(log).getCurves().size(), 0U);
}

// However many frames there are, and while nobody looks on, none.
TEST_F(FramesWidget, ACurveIsComputedForNewFramesOnly)
{
    ASSERT_TRUE(panel->addCurve("mean(Triangles, 500 ms) + Whole"));
    addMany(1000);
    const FrameFormula& formula = panel->getCurves()[0].formula;
    const std::uint64_t before = formula.getNumComputed();
    addMany(6);
    EXPECT_EQ(formula.getNumComputed(), before + 6);
    panel->resize(720, 300);
    bars().scroll(-100);
    EXPECT_EQ(formula.getNumComputed(), before + 6);
    EXPECT_EQ(panel->getCurves()[0].getValues(),
              FrameFormula(formula.getText()).evaluate(panel->getStore().getFrames()));

    ASSERT_EQ(panel->getStore().startRecording(settings.filePath("test.xsgframes")), QString());
    panel->hide();
    addMany(5);
    EXPECT_EQ(formula.getNumComputed(), before + 6);
    panel->show();
    EXPECT_EQ(formula.getNumComputed(), before + 11);
}

TEST_F(FramesWidget, ACurveThatCannotBeComputedIsRefusedInASentence)
{
    addMany(3);
    EXPECT_FALSE(panel->addCurve("Nonsense / 2"));
    EXPECT_TRUE(line("frameDetails").startsWith(QString::fromUtf8("“Nonsense / 2” cannot be shown: ")));
}

TEST_F(FramesWidget, CountersOfAllKindsAreNotedWithEachFrame)
{
    ASSERT_TRUE(panel->addCurve("Picks"));
    ASSERT_TRUE(panel->addCurve("NodesAlive"));
    add(1);
    xsg::feeds.picks.add(3);
    add(1);
    panel->getStore().takeNow();
    EXPECT_EQ(panel->getCurves()[0].getValues().back(), 3);
    EXPECT_EQ(panel->getCurves()[1].getValues().back(), static_cast<double>(xsg::feeds.nodesAlive.get()));
}

TEST_F(FramesWidget, ACounterWithAScaleShowsWhatItTells)
{
    SoPerfCounterManager& manager = *SoPerfCounterManager::getInstance();
    auto* counter = new SoPerfStateCounter("Load", "", "", SoPerfCounter::LOW);
    counter->setScaleFactor(1e6);
    ASSERT_TRUE(manager.registerCounter(counter));
    ASSERT_TRUE(panel->addCurve("Load * 2"));
    add(1);
    counter->setState(2'500'000);
    add(1);
    panel->getStore().takeNow();
    EXPECT_EQ(panel->getCurves()[0].getValues().back(), 5);
    const QString path = settings.filePath("test.csv");
    EXPECT_EQ(RecordingFiles::write(path, panel->getStore().getFrames()), QString());
    SoFrameRecording again;
    QString problem;
    ASSERT_TRUE(RecordingFiles::read(path, again, problem)) << qPrintable(problem);
    ASSERT_TRUE(again.findColumn("Load"));
    EXPECT_EQ(again.findColumn("Load")->getKnown().back(), 2.5);
    EXPECT_EQ(again.findColumn("Load")->getShownUnit(), "");
    manager.disableCounter("Load");
    manager.removeDisabledCounters();
}

TEST_F(FramesWidget, ARecordingCanBeOpenedAgain)
{
    const QString path = settings.filePath("test.xsgframes");
    EXPECT_EQ(panel->getStore().startRecording(path), QString());
    panel->hide(); // recording goes on
    for (int i = 0; i < 5; ++i)
        add(i + 1);
    panel->getStore().stopRecording();
    EXPECT_FALSE(log.isOn());
    SoFrameRecording recording;
    QString problem;
    ASSERT_TRUE(RecordingFiles::read(path, recording, problem)) << qPrintable(problem);
    EXPECT_EQ(recording.findColumn("Whole")->values,
              (std::vector<std::int64_t>{1'000'000, 2'000'000, 3'000'000, 4'000'000, 5'000'000}));
    EXPECT_FALSE(recording.getAbout("began").empty());
    panel->getStore().show(recording);
    EXPECT_TRUE(line("framesSummary").startsWith(QString::fromUtf8("“test.xsgframes”: 5 frames")));

    const QString table = settings.filePath("test.csv");
    EXPECT_EQ(RecordingFiles::write(table, recording), QString());
    SoFrameRecording again;
    ASSERT_TRUE(RecordingFiles::read(table, again, problem)) << qPrintable(problem);
    EXPECT_EQ(again.getNumFrames(), 5U);
}

TEST_F(FramesWidget, ARecordingKnowsTheSceneAndTheFileThatItIsOf)
{
    QMainWindow window;
    window.setWindowFilePath("/data/harbour.xsg");
    auto* dock = new QDockWidget;
    dock->setWidget(panel.release());
    window.addDockWidget(Qt::BottomDockWidgetArea, dock);
    auto* inside = static_cast<FramesPanel*>(dock->widget());
    EXPECT_EQ(inside->findScene(), "/data/harbour.xsg");
    const QString path = settings.filePath("test.xsgframes");
    EXPECT_EQ(inside->getStore().startRecording(path, inside->findScene()), QString());
    inside->getStore().stopRecording();
    SoFrameRecording recording;
    QString problem;
    ASSERT_TRUE(RecordingFiles::read(path, recording, problem)) << qPrintable(problem);
    EXPECT_EQ(recording.getAbout("scene"), "/data/harbour.xsg");
}

// Though the graphics card never answers, and no other frame comes.
TEST_F(FramesWidget, ARecordingHoldsBackNoFrameForLong)
{
    const QString path = settings.filePath("test.xsgframes");
    EXPECT_EQ(panel->getStore().startRecording(path), QString());
    for (int i = 0; i < 3; ++i)
        add(1);
    EXPECT_TRUE(waitFor([this] { return panel->getStore().getNumRecorded() == 3; }));
}

// A child of its own writes a recording until it is killed.
TEST_F(FramesWidget, ARecordingSurvivesThatTheProgramIsKilled)
{
    const QString path = settings.filePath("killed.xsgframes");
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("RECORDING_TO_KILL", path);
    child.setProcessEnvironment(environment);
    child.setReadChannel(QProcess::StandardError);
    child.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=RecordingToKill.*"});
    // It says how many frames it has recorded.
    std::size_t said = 0;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            while (child.canReadLine()) {
                const QByteArray line = child.readLine();
                if (line.startsWith("recorded "))
                    said = line.mid(9).trimmed().toULong();
            }
            return said >= 100;
        },
        120000));
    child.kill();
    EXPECT_TRUE(child.waitForFinished(MostWaitMs));
    EXPECT_EQ(child.exitStatus(), QProcess::CrashExit);
    SoFrameRecording recording;
    QString problem;
    ASSERT_TRUE(RecordingFiles::read(path, recording, problem)) << qPrintable(problem);
    EXPECT_GE(recording.getNumFrames(), said);
}

TEST(RecordingToKill, GoesOn)
{
    const QString path = qEnvironmentVariable("RECORDING_TO_KILL");
    if (path.isEmpty())
        return; // see ARecordingSurvivesThatTheProgramIsKilled
    SoFrameLog log;
    FrameStore store(log);
    EXPECT_EQ(store.startRecording(path), QString());
    QTimer frames;
    QObject::connect(&frames, &QTimer::timeout, [&] {
        SoFrame frame;
        frame[SoFrame::Begin] = SoFrameLog::now();
        log.add(frame);
        std::fprintf(stderr, "recorded %zu\n", store.getNumRecorded());
    });
    frames.start(5);
    EXPECT_FALSE(QTest::qWaitFor([] { return false; }, 240000));
}

TEST_F(FramesWidget, ARecordingThatCannotBeWrittenOrReadIsRefusedInASentence)
{
    EXPECT_FALSE(panel->getStore().startRecording(settings.filePath("no/such/folder.xsgframes")).isEmpty());
    EXPECT_FALSE(panel->getStore().isRecording());
    SoFrameRecording recording;
    QString problem;
    EXPECT_FALSE(RecordingFiles::read(settings.filePath("missing.csv"), recording, problem));
    EXPECT_TRUE(problem.contains("cannot be opened")) << qPrintable(problem);
    EXPECT_FALSE(RecordingFiles::write("/dev/null", recording).isEmpty());
}

// SCOPIX_PICTURES=docs/pictures makes the picture of the page on frames.
TEST_F(FramesWidget, PhasesAndCurvesCanBeToldApart)
{
    ASSERT_TRUE(panel->addCurve("rate(Triangles)"));
    ASSERT_TRUE(panel->addCurve("mean(Whole, 500 ms)"));
    bars().setBarWidth(6);
    time = SoFrameLog::now() - 111 * 16'000'000;
    for (int i = 0; i < 150; ++i) {
        SoFrame frame;
        const bool isSlow = i == 110;
        if (isSlow) {
            log.mark("Change Sea.quality");
            time = SoFrameLog::now() - 16'000'000;
        }
        frame[SoFrame::Begin] = time += 16'000'000;
        const std::int64_t spent[] = {400'000 + i % 7 * 90'000, isSlow ? 9'000'000 : 1'100'000, 500'000,
                                      isSlow ? 11'000'000 : 100'000, 3'000'000 + i % 11 * 300'000};
        for (std::size_t phase = 0; phase < SoFrame::NumPhases; ++phase) {
            frame.figures[SoFrame::Update + phase] = spent[phase];
            frame[SoFrame::Whole] += spent[phase];
        }
        frame[SoFrame::Gpu] = 5'000'000;
        frame[SoFrame::Triangles] = 20'000 + i % 40 * 500;
        log.add(frame);
    }
    panel->getStore().takeNow();
    bars().choose(110);
    const QImage picture = panel->grab().toImage();
    const QRect bar = bars().getBar(111);
    QSet<QRgb> colors;
    const QImage own = bars().grab().toImage();
    for (int y = bar.top(); y <= bar.bottom(); ++y)
        colors += own.pixel(bar.center().x(), y);
    EXPECT_GE(colors.size(), 6); // the ground and the phases
    const QByteArray folder = qgetenv("SCOPIX_PICTURES");
    EXPECT_TRUE(folder.isEmpty() || picture.save(QString::fromLocal8Bit(folder) + "/frames.png"));
}

namespace
{

class ProfilerSession : public Session
{
public:
    ProfilerSession()
        : Session([](HostServices& services, UserNotifier& notifier) {
            return std::make_unique<MainWindow>(services, notifier);
        })
    {
        EXPECT_TRUE(host.plugins().loadPlugin(QStringLiteral(PROFILER_FILE)));
    }
};

} // namespace

TEST(FramesDock, IsHiddenAtFirstAndThenShowsTheFramesOfTheView)
{
    ProfilerSession session;
    QDockWidget* dock = session.dock(QStringLiteral("Frames"));
    ASSERT_TRUE(dock);
    EXPECT_FALSE(dock->isVisible());
    EXPECT_FALSE(SoFrameLog::getInstance().isOn());
    dock->show();
    dock->raise();
    EXPECT_TRUE(waitFor([] { return SoFrameLog::getInstance().isOn(); }));
    auto* view = session.host.window().findChild<SceneView*>();
    const auto frames = [&] { return dock->findChild<QLabel*>("framesSummary")->text(); };
    EXPECT_TRUE(waitFor([&] {
        view->redraw();
        return !frames().startsWith("No frames");
    }));
    dock->hide();
    EXPECT_TRUE(waitFor([] { return !SoFrameLog::getInstance().isOn(); }));
}

TEST(FramesDock, MarksWhatTheUserDid)
{
    ProfilerSession session;
    SoFrameLog& log = SoFrameLog::getInstance();
    log.addUser();
    const std::uint64_t before = log.getLastMark();
    session.host.services().select(session.material.get());
    session.settle();
    SoFrameMark mark;
    ASSERT_TRUE(log.getMark(before + 1, mark));
    EXPECT_EQ(mark.text, "Select Material");
    session.host.services().select(static_cast<SoFieldContainer*>(nullptr));
    log.removeUser();
}

TEST(FramesDock, IsNotInTheClassicProfile)
{
    ProfilerSession session;
    ProfileList& profiles = session.host.plugins().profiles();
    profiles.read();
    ASSERT_TRUE(profiles.useProfile("Classic"));
    session.settle();
    EXPECT_FALSE(session.dock(QStringLiteral("Frames")));
    ASSERT_TRUE(profiles.useProfile("Default"));
    EXPECT_TRUE(waitFor([&] { return session.dock(QStringLiteral("Frames")); }));
}
