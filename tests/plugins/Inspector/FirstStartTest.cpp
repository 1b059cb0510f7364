// SPDX-License-Identifier: MIT
// What a user meets at the first start, and after it; SCOPIX_PICTURES=FOLDER keeps pictures of the window.
#include "panels/SceneTreeView.h"
#include "plugins/Inspector/InspectorSession.h"
#include "window/MainWindow.h"

#include <scopix/SpxExtension.h>
#include <support/PlainModel.h>
#include <support/Waiting.h>
#include <xsg/actions/SoSearchAction.h>

#include <QListView>
#include <QSettings>
#include <QStatusBar>
#include <QTextEdit>

#include <iostream>

namespace
{

class FirstStart : public testing::Test
{
protected:
    FirstStart()
    {
        qputenv("XDG_CONFIG_HOME", (m_home.path() + "/config").toLocal8Bit());
        qputenv("XDG_DATA_HOME", (m_home.path() + "/data").toLocal8Bit());
    }
    ~FirstStart() override
    {
        m_host.reset();
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("XDG_DATA_HOME");
    }
    void start()
    {
        m_host.reset();
        m_host = std::make_unique<HostSession>([this](HostServices& services, UserNotifier& notifier) {
            auto made = std::make_unique<MainWindow>(services, notifier);
            window = made.get();
            return made;
        });
        bool isOpen = false;
        QObject::connect(window, &HostWindow::openFinished, [&](bool opened) { isOpen = opened; });
        m_host->start(CommandLine::parse({"scopix", writePlainLighthouse(m_home.path())}));
        ASSERT_TRUE(waitFor([&] { return isOpen; }));
        window->activateWindow();
        ASSERT_TRUE(waitForActive(window));
        Session::settle();
    }
    QString printed()
    {
        const QAbstractItemModel* lines = dock("Log")->findChild<QListView*>("logLines")->model();
        QString all;
        for (int row = 0; row < lines->rowCount(); ++row)
            all += lines->index(row, 0).data().toString() + '\n';
        return all;
    }
    QDockWidget* dock(const QString& title)
    {
        for (auto* each : window->findChildren<QDockWidget*>()) {
            if (each->windowTitle() == title)
                return each;
        }
        return nullptr;
    }
    bool isFolded() { return dock("Log")->isVisible() && dock("Log")->widget()->height() == 0; }
    QLineEdit* input(const QString& name)
    {
        for (auto* each : dock("Node Editor")->findChildren<QLineEdit*>()) {
            if (each->accessibleName() == name && each->isVisible())
                return each;
        }
        return nullptr;
    }
    void clickWater()
    {
        SoSearchAction search;
        search.setName("Water");
        ASSERT_FALSE(search.apply(window->getScene()).empty());
        window->getTree().selectPath(search.getPaths().front());
        Session::settle();
    }

    QTemporaryDir m_home;
    std::unique_ptr<HostSession> m_host;
    MainWindow* window = nullptr;
};

} // namespace

TEST_F(FirstStart, ShowsThePanelAndFoldsTheLogUntilItHasSomethingToSay)
{
    start();
    EXPECT_FALSE(dock("Performance Counters") && dock("Performance Counters")->isVisible());
    EXPECT_TRUE(isFolded()) << qPrintable(printed());
    EXPECT_GT(dock("Log")->width(), window->width() / 3) << "its title is cut";
    clickWater();
    EXPECT_FALSE(dock("Node Editor")->widget()->visibleRegion().isEmpty());
    QLineEdit* transparency = input("transparency");
    ASSERT_TRUE(transparency);
    QTest::mouseClick(transparency, Qt::LeftButton);
    Session::settle();
    EXPECT_TRUE(transparency->hasFocus());
    EXPECT_FALSE(dock("Node Editor")->widget()->visibleRegion().isEmpty()) << "it stays in front";
    const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
    for (const auto& [theme, name] : {std::pair(Theme::Light, "light"), std::pair(Theme::Dark, "dark")}) {
        if (folder.isEmpty())
            break;
        applyTheme(*window, theme);
        window->statusBar()->clearMessage(); // it names a folder of this machine
        Session::settle();
        EXPECT_TRUE(window->saveScreenshot(QStringLiteral("%1/window-%2.png").arg(folder, name)));
    }
    std::cout << "something to say\n";
    EXPECT_TRUE(waitFor([this] { return !isFolded(); }));
    EXPECT_EQ(printed(), "something to say\n");
}

TEST_F(FirstStart, WhatIsFoldedStaysSoAndWhatIsNotComesBackOpen)
{
    start();
    start();
    EXPECT_TRUE(isFolded());
    QTest::mouseClick(dock("Log"), Qt::LeftButton, {}, {5, 5});
    Session::settle();
    EXPECT_FALSE(isFolded());
    start();
    EXPECT_FALSE(isFolded());
}

TEST_F(FirstStart, WhoHasALayoutAlreadyKeepsTheLogOpen)
{
    start();
    QTest::mouseClick(dock("Log"), Qt::LeftButton, {}, {5, 5});
    m_host.reset();
    QSettings settings(m_home.path() + "/config/scopix/window.ini", QSettings::IniFormat);
    ASSERT_TRUE(settings.contains("layout"));
    settings.remove("folded"); // as an earlier version leaves it
    settings.sync();
    start();
    EXPECT_FALSE(isFolded());
}

TEST_F(FirstStart, ThePlainConsoleStaysBehindTheLogAndStandsAloneInClassic)
{
    start();
    const auto use = [this](const char* profile) {
        ASSERT_TRUE(m_host->plugins().profiles().useProfile(profile));
        ASSERT_TRUE(waitFor([&] { return (profile == QString("Classic")) == !dock("Log"); }));
        Session::settle();
    };
    EXPECT_TRUE(dock("Console")->isHidden());
    EXPECT_TRUE(dock("Log")->isVisible());
    use("Classic");
    EXPECT_TRUE(dock("Console")->isVisible());
    use("Default");
    EXPECT_TRUE(dock("Console")->isHidden());
    // Hidden, it has all the same; and who shows it has it shown from then on.
    std::cout << "heard by both\n";
    EXPECT_TRUE(dock("Console")->findChild<QTextEdit*>()->toPlainText().contains("heard by both"));
    EXPECT_TRUE(waitFor([this] { return printed().contains("heard by both"); }));
    for (SpxExtension* each : m_host->shell().extensions()) {
        if (each->getName() == "Console")
            m_host->shell().setShown(each, true);
    }
    EXPECT_TRUE(dock("Console")->isVisible());
    use("Classic");
    use("Default");
    EXPECT_TRUE(dock("Console")->isVisible());
    start();
    EXPECT_TRUE(dock("Console")->isVisible());
}
