// SPDX-License-Identifier: MIT
// The host as a program embeds it, around a window of its own.
#include "PluginParts.h"

#include "app/HostSession.h"

#include <scopix/SpxExtension.h>
#include <xsg/core/SoPreferences.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

using namespace scopix;

namespace
{

class TestWindow : public HostWindow
{
public:
    explicit TestWindow(UserNotifier& notifier)
        : m_messages(notifier)
    {
    }
    QMenu* viewMenu() override { return &m_view; }
    QMenu* profilesMenu() override { return &m_profiles; }
    void openFile(const QString& path) override
    {
        m_acts += "open " + path;
        const bool good = path.startsWith("good");
        if (!good)
            m_messages.error("There is no file \"" + path + "\".");
        emit openFinished(good);
    }
    bool selectField(const QString& node, const QString& field) override
    {
        m_acts += "select " + node + " " + field;
        return true;
    }
    bool saveScreenshot(const QString& path) override
    {
        m_acts += "screenshot " + path;
        return true;
    }
    void enterInteractiveMode() override { m_acts += "session"; }

    UserNotifier& m_messages;
    QMenu m_view;
    QMenu m_profiles;
    QStringList m_acts;
};

class Application : public ::testing::Test
{
protected:
    Application()
    {
        qputenv("XDG_CONFIG_HOME", m_home.path().toLocal8Bit());
        qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit());
        takePluginLog();
        ::testing::internal::CaptureStderr();
        m_host = std::make_unique<HostSession>([this](HostServices&, UserNotifier& notifier) {
            auto window = std::make_unique<TestWindow>(notifier);
            m_window = window.get();
            return window;
        });
    }
    ~Application() override
    {
        m_host.reset();
        ::testing::internal::GetCapturedStderr();
    }
    int run(const QStringList& arguments)
    {
        return m_host->run(CommandLine::parse(QStringList{"scopix"} + arguments));
    }

    QTemporaryDir m_home;
    TestWindow* m_window = nullptr;
    std::unique_ptr<HostSession> m_host;
};

TEST_F(Application, DoesWhatTheCommandLineAsksInOrder)
{
    EXPECT_EQ(run({"good.glb", "--plugin", testPlugin("Good"), "--select", "Material.transparency",
                   "--screenshot", "out.png"}),
              0);
    EXPECT_EQ(m_window->m_acts,
              (QStringList{"open good.glb", "select Material transparency", "screenshot out.png"}));
    EXPECT_TRUE(m_host->plugins().pluginNames().contains("Test"));
}

TEST_F(Application, BadInputMakesTheExitStatusOne)
{
    EXPECT_EQ(run({"missing.glb", "--quit"}), 1);
    EXPECT_EQ(m_window->m_acts, QStringList{"open missing.glb"});
}

TEST_F(Application, ABadPluginOrProfileMakesTheExitStatusOne)
{
    EXPECT_EQ(run({"--plugin", "/nowhere.so", "--quit"}), 1);
}

TEST_F(Application, ReportsAnUnknownProfile)
{
    EXPECT_EQ(run({"--profile", "No such", "--quit"}), 1);
    EXPECT_EQ(m_host->notifier().errorCount(), 1);
}

TEST_F(Application, ReportsADamagedProfilesFile)
{
    m_host.reset();
    QDir(m_home.path()).mkpath("scopix");
    QFile file(m_home.filePath("scopix/profiles.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{");
    file.close();
    m_host = std::make_unique<HostSession>(
        [](HostServices&, UserNotifier& notifier) { return std::make_unique<TestWindow>(notifier); });
    EXPECT_EQ(run({"--quit"}), 1);
}

TEST_F(Application, UsesTheProfileOfTheCommandLine)
{
    EXPECT_EQ(run({"--profile", "Measure", "--plugin", testPlugin("Good"), "--quit"}), 0);
    EXPECT_EQ(m_host->plugins().profiles().activeProfile()->name(), "Measure");
    EXPECT_EQ(takePluginLog().filter("activate"), QStringList());
}

TEST_F(Application, SwitchesTheCountersOn)
{
    qunsetenv("XSG_PERFCOUNTER_ENABLE");
    run({"--counters", "--quit"});
    EXPECT_TRUE(SoPreferences::getBool("XSG_PERFCOUNTER_ENABLE", false));
    EXPECT_FALSE(qEnvironmentVariableIsSet("XSG_PERFCOUNTER_ENABLE")) << "the process's own is left alone";
    SoPreferences::setValue("XSG_PERFCOUNTER_ENABLE", SbString());
}

TEST_F(Application, StartsASessionOnceTheFileIsOpenAndAttended)
{
    QTimer waiting;
    QObject::connect(&waiting, &QTimer::timeout, m_window, [this] {
        if (m_window->m_acts.contains("session"))
            QCoreApplication::quit();
    });
    waiting.start(1);
    EXPECT_EQ(run({"good.glb"}), 0);
    EXPECT_EQ(m_window->m_acts, (QStringList{"open good.glb", "session"}));
    m_window->m_acts.clear();
    run({"good.glb", "--quit"});
    EXPECT_EQ(m_window->m_acts, QStringList{"open good.glb"});
}

TEST_F(Application, KeepsTheLayoutOfAnAttendedSession)
{
    QTimer::singleShot(0, m_window, [this] {
        m_host->shell().setShown(m_host->shell().extensions().last(), false);
        QCoreApplication::quit();
    });
    run({"--plugin", testPlugin("Other")});
    m_host.reset();
    m_host = std::make_unique<HostSession>(
        [](HostServices&, UserNotifier& notifier) { return std::make_unique<TestWindow>(notifier); });
    QTimer::singleShot(0, m_host.get(), [] { QCoreApplication::quit(); });
    run({"--plugin", testPlugin("Other")});
    SpxExtension* third = m_host->shell().extensions().last();
    EXPECT_TRUE(m_host->shell().isHiddenByPerson(third));
    EXPECT_FALSE(third->isShown());
}

TEST_F(Application, UnloadsThePluginsBeforeDestroyingTheWindow)
{
    run({"--plugin", testPlugin("Good"), "--quit"});
    QPointer<QDockWidget> dock = m_window->findChild<QDockWidget*>("First");
    ASSERT_TRUE(dock);
    QStringList atEnd;
    QObject::connect(m_window, &QObject::destroyed, [&] { atEnd = takePluginLog(); });
    m_host.reset();
    EXPECT_FALSE(dock);
    EXPECT_TRUE(atEnd.contains("Test destroyed"));
}

TEST_F(Application, TheMenusFollowExtensionsAndProfiles)
{
    run({"--plugin", testPlugin("Good"), "--quit"});
    QStringList tools;
    for (const QAction* action : m_window->m_view.actions())
        tools += action->text();
    EXPECT_TRUE(tools.contains("First") && tools.contains("Second")) << tools.join(' ').toStdString();
    m_window->m_profiles.actions().at(1)->trigger();
    EXPECT_EQ(m_host->plugins().profiles().activeProfile()->name(), "Edit");
    EXPECT_TRUE(m_window->m_profiles.actions().at(1)->isChecked());
}

} // namespace
