// SPDX-License-Identifier: MIT
// What a user does with the counters, from the first drag to the next start of the program.
#include "CounterSession.h"

#include <support/Waiting.h>

#include <QColorDialog>

namespace
{

const QColor Chosen(200, 20, 120);

// Answers the colour dialog as soon as it is open.
void chooseColorSoon(const QColor& color)
{
    auto* watch = new QTimer(qApp);
    QObject::connect(watch, &QTimer::timeout, [watch, color] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        watch->deleteLater();
        dialog->setCurrentColor(color);
        dialog->accept();
    });
    watch->start(5);
}

// The pictures of the documentation come from here: SCOPIX_PICTURES names the folder that they go to.
QString picturesFolder()
{
    return qEnvironmentVariable("SCOPIX_PICTURES");
}

void savePicture(QWidget& widget, const QString& name)
{
    if (!picturesFolder().isEmpty()) {
        EXPECT_TRUE(widget.grab().save(QDir(picturesFolder()).filePath(name + ".png")));
    }
}

void selectThree(CounterSession& session)
{
    session.click(session.placeOf(session.listed("Triangles")));
    session.click(session.placeOf(session.listed("Vertices")), Qt::ControlModifier);
    session.click(session.placeOf(session.listed("NodesTraversed")), Qt::ControlModifier);
    ASSERT_EQ(session.list()->selectedItems().size(), 3);
}

} // namespace

TEST(Counters, ThreeAreDraggedChangedSavedAndFoundAgain)
{
    CounterHome home;
    const QStringList all{"Frames", "DrawCalls", "Triangles", "Vertices", "NodesTraversed"};
    {
        CounterSession session;
        ASSERT_TRUE(session.dock()->isVisible());
        EXPECT_EQ(session.legendNames(), (QStringList{"Frames", "DrawCalls"}));
        selectThree(session);
        session.drag(session.placeOf(session.listed("Triangles")), "m_viewer");
        EXPECT_EQ(session.legendNames(), all);

        session.clickLegend("Vertices");
        ASSERT_TRUE(session.part("m_propertiesGroupBox")->isEnabled());
        chooseColorSoon(Chosen);
        session.click("m_colorButton");
        EXPECT_EQ(session.legendColor("Vertices"), Chosen);
        auto* scale = session.part<QLineEdit>("m_scaleEdit");
        session.click("m_scaleEdit");
        QTest::keyClick(scale, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(scale, "1000");

        session.click("m_text");
        EXPECT_TRUE(session.part("m_textView")->isVisible());
        EXPECT_FALSE(session.part("m_curvePlot")->isVisible());
        auto* texts = session.part<QTableWidget>("m_textView");
        ASSERT_EQ(texts->rowCount(), all.size());
        EXPECT_EQ(texts->item(3, 2)->text(), "x 1000");
        session.click("m_graph");
        EXPECT_TRUE(session.part("m_graphPlot")->isVisible());
        EXPECT_FALSE(session.part("m_textView")->isVisible());
        session.click("m_curve");
        EXPECT_TRUE(session.part("m_curvePlot")->isVisible());
        EXPECT_FALSE(session.part("m_graphPlot")->isVisible());

        session.click("m_saveView");
        EXPECT_EQ(session.takeBoxes(), QStringList());
    }
    CounterSession again;
    EXPECT_EQ(again.part<QComboBox>("m_listConfig")->currentText(), "Rendering");
    EXPECT_EQ(again.legendNames(), all);
}

TEST(Counters, OnlyWhatComesFromTheListAndIsNotShownYetIsTaken)
{
    CounterHome home;
    CounterSession session;
    const QStringList before = session.legendNames();
    const QString name = session.list()->objectName();
    session.list()->setObjectName("anotherList");
    session.drag(session.placeOf(session.listed("Triangles")), "m_viewer");
    EXPECT_EQ(session.legendNames(), before);
    session.list()->setObjectName(name);
    session.drag(session.placeOf(session.listed("Frames")), "m_viewer");
    EXPECT_EQ(session.legendNames(), before);
    session.drag(session.placeOf(session.listed("Triangles")), "m_viewer");
    EXPECT_EQ(session.legendNames(), before + QStringList{"Triangles"});
}

TEST(Counters, OrbitingTheModelMovesFramesAndDrawCalls)
{
    CounterHome home;
    CounterSession session;
    session.click("m_text");
    // Nothing moves: once the window has come to rest, nothing is drawn.
    ASSERT_TRUE(waitFor([&] { return session.shownValue("Frames") == 0; }));
    double frames = 0;
    double drawCalls = 0;
    session.orbit([&] {
        frames = std::max(frames, session.shownValue("Frames"));
        drawCalls = std::max(drawCalls, session.shownValue("DrawCalls"));
        return frames > 0 && drawCalls > 0;
    });
    EXPECT_GT(frames, 0);
    EXPECT_GT(drawCalls, frames) << "the model takes several calls";
    EXPECT_TRUE(waitFor([&] { return session.shownValue("Frames") == 0; }));
}

TEST(Counters, EachViewShowsEachCounterInItsColour)
{
    CounterHome home;
    CounterSession session;
    session.clickLegend("Frames");
    chooseColorSoon({0, 85, 170});
    session.click("m_colorButton");
    session.clickLegend("DrawCalls");
    chooseColorSoon({255, 85, 0});
    session.click("m_colorButton");
    session.legend()->clearSelection();
    session.part<QComboBox>("m_freqBox")->setCurrentText("8");
    session.part<QComboBox>("m_timeBox")->setCurrentText("15");
    QSignalSpy samples(session.clock(), &QTimer::timeout);
    const int enough = picturesFolder().isEmpty() ? 8 : 110;
    while (samples.count() < enough) {
        const int until = samples.count() + 6;
        session.orbit([&] { return samples.count() >= until; });
        ASSERT_TRUE(waitFor([&] { return samples.count() >= until + 3; }));
    }
    for (const auto& [button, view, picture] : {std::array{"m_curve", "m_curvePlot", "counters-curves"},
                                                std::array{"m_graph", "m_graphPlot", "counters-bars"},
                                                std::array{"m_text", "m_textView", "counters-text"}}) {
        session.click(button);
        const bool isPlot = session.part(view)->findChild<QWidget*>("QwtPlotCanvas");
        for (const char* name : {"Frames", "DrawCalls"}) {
            // Curves that run together hide one another now and then, and on a busy machine a sample may see
            // no frame.
            bool isSeen = false;
            const int next = samples.count() + 2;
            const int most = samples.count() + 100;
            session.orbit([&] {
                isSeen = isSeen || (samples.count() >= next &&
                                    (isPlot ? session.pixelsOf(view, session.legendColor(name)) > 5
                                            : session.shownValue(name) > 0));
                return isSeen || samples.count() >= most;
            });
            EXPECT_TRUE(isSeen) << name << " in " << view;
        }
        savePicture(*session.dock(), picture);
    }
}

TEST(Counters, TheManagerMakesAProfileThatIsUsedAtOnce)
{
    CounterHome home;
    CounterSession session;
    session.click("m_openConfigButton");
    auto* manager = session.dock()->findChild<QMainWindow*>();
    ASSERT_TRUE(manager && waitForExposed(manager));
    const auto click = [&](const char* button) {
        QTest::mouseClick(manager->findChild<QPushButton*>(button), Qt::LeftButton);
    };
    click("m_addProfile");
    auto* dialog = manager->findChild<QDialog*>();
    ASSERT_TRUE(dialog && waitForExposed(dialog));
    QTest::keyClicks(dialog->findChild<QLineEdit*>("m_name"), "Mine");
    QTest::keyClick(dialog->findChild<QLineEdit*>("m_name"), Qt::Key_Return);
    auto* all = manager->findChild<QTableWidget*>("m_listCounter");
    for (const char* name : {"Picks", "RenderTime"}) {
        const QTableWidgetItem* row = all->findItems(name, Qt::MatchExactly).value(0);
        ASSERT_TRUE(row) << name;
        all->scrollToItem(row);
        QTest::mouseClick(all->viewport(), Qt::LeftButton, {}, all->visualItemRect(row).center());
        click("m_downArrow");
    }
    savePicture(*manager, "counters-manager");
    QTest::mouseClick(manager->centralWidget()->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    EXPECT_EQ(session.part<QComboBox>("m_listConfig")->currentText(), "Mine");
    EXPECT_EQ(session.list()->count(), 2);
    EXPECT_TRUE(session.listed("Picks") && session.listed("RenderTime"));
    QFile file(home.profileFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("<profile name=\"Mine\">"));
    EXPECT_EQ(session.takeBoxes(), QStringList());
}

TEST(Counters, SwitchedOffTheyWaitInTheMenu)
{
    CounterHome home;
    const auto entryOf = [](CounterSession& session) {
        emit session.window().viewMenu()->aboutToShow();
        for (QAction* action : session.window().viewMenu()->actions()) {
            if (action->text() == "Performance Counter")
                return action;
        }
        return static_cast<QAction*>(nullptr);
    };
    for (int start = 0; start < 2; ++start) {
        qunsetenv("XSG_PERFCOUNTER_ENABLE");
        CounterSession off;
        EXPECT_FALSE(off.dock()->isVisible()) << "it would only show how it is switched on";
        QAction* entry = entryOf(off);
        ASSERT_TRUE(entry);
        EXPECT_FALSE(entry->isChecked());
        if (start == 1)
            continue; // and is not asked for
        entry->trigger();
        EXPECT_TRUE(off.dock()->isVisible());
        EXPECT_TRUE(off.dock()->findChild<QLabel*>()->text().contains("XSG_PERFCOUNTER_ENABLE"));
    }
    qputenv("XSG_PERFCOUNTER_ENABLE", "1");
    CounterSession on;
    EXPECT_TRUE(on.dock()->isVisible()) << "the user did not hide it";
    EXPECT_TRUE(on.part("m_viewer"));
}

TEST(Counters, ADamagedFileIsReplacedByItsLastGoodCopy)
{
    const CounterHome home;
    const auto content = [&] {
        QFile file(home.profileFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray whole = content();
    for (const char* button : {"", "Leave As It Is", "Put Back"}) {
        QStringList asked;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            asked += box->objectName();
            for (QAbstractButton* each : box->buttons()) {
                if (box->buttons().size() == 1 || each->text().remove('&') == button)
                    return QTest::mouseClick(each, Qt::LeftButton);
            }
        });
        user.start(5);
        HostSession host([](HostServices& services, UserNotifier& notifier) {
            return std::make_unique<MainWindow>(services, notifier);
        });
        host.start(CommandLine::parse({"scopix"}));
        const bool isWhole = content() == whole;
        EXPECT_EQ(isWhole, QByteArray(button) != "Leave As It Is");
        EXPECT_EQ(asked.contains("counterCopy"), QByteArray(button) != "");
        EXPECT_EQ(asked.size() > 1, !isWhole) << "the tool says what it cannot read";
        QFile::resize(home.profileFile(), whole.size() / 2);
    }
}
