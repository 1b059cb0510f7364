// SPDX-License-Identifier: MIT
// The program ends in the middle of unsaved edits without having asked, and gives them back.
#include <support/Waiting.h>

#include <gtest/gtest.h>

#include <QtTest>

#include <csignal>
#include <random>

namespace
{

class Crash : public testing::Test
{
protected:
    Crash()
    {
        QFile file(scene);
        file.open(QIODevice::WriteOnly);
        file.write("#Xsg V1.0 utf8\nSeparator {\n    Material \"Paint\" {}\n    Cube {}\n}\n");
    }
    void start(QProcess& process, const QByteArray& act, const QStringList& arguments,
               const QString& display = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", display.isEmpty() ? "offscreen" : "xcb");
        environment.insert("DISPLAY", display);
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(name, home.path());
        environment.insert("SCOPIX_TEST_ACT", act);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(SCOPIX_PROGRAM, arguments + QStringList{"--plugin", SESSION_PLUGIN});
    }
    int run(const QByteArray& act, const QStringList& arguments) const
    {
        QProcess process;
        start(process, act, arguments);
        EXPECT_TRUE(process.waitForFinished(120000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }
    QByteArray kept() const
    {
        const QString folder = home.filePath("scopix/recovery/");
        return contentOf(folder + QDir(folder).entryList({"*.xsg"}).value(0, "none"));
    }
    // Edits until the last line says at least so much.
    void editUpTo(QProcess& process, int least)
    {
        ASSERT_TRUE(QTest::qWaitFor(
            [&] {
                readCounts(process);
                return m_count >= least || process.state() == QProcess::NotRunning;
            },
            120000));
        ASSERT_GE(m_count, least);
    }
    void readCounts(QProcess& process)
    {
        process.readyRead();
        while (process.canReadLine())
            m_count = process.readLine().trimmed().toInt();
    }
    // The value that the next session recovers and saves.
    int recovered()
    {
        EXPECT_EQ(run("recover", {}), 0);
        EXPECT_FALSE(QFileInfo::exists(home.filePath("scopix/recovery")));
        const QString text = contentOf(scene);
        return QRegularExpression("transparency: (\\d+)").match(text).captured(1).toInt();
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir home;
    QString scene = home.filePath("scene.xsg");
    int m_count = 0; // the last edit that is known of
};

TEST_F(Crash, TheNextStartGivesTheEditsBack)
{
    {
        QProcess killed;
        start(killed, "edit", {scene, "--select", "Paint.transparency"});
        EXPECT_TRUE(waitFor([&] { return kept().contains("transparency: 0.5"); }));
        ::kill(static_cast<pid_t>(killed.processId()), SIGKILL);
        ASSERT_TRUE(killed.waitForFinished(MostWaitMs));
        ASSERT_EQ(killed.exitStatus(), QProcess::CrashExit);
    }
    EXPECT_FALSE(contentOf(scene).contains("transparency"));

    // Who only wants a picture is not asked, and takes nothing away.
    EXPECT_EQ(run("", {scene, "--quit"}), 0);
    EXPECT_EQ(run("", {scene, "--screenshot", home.filePath("picture.png")}), 0);
    EXPECT_TRUE(kept().contains("transparency: 0.5"));

    EXPECT_EQ(run("recover", {}), 0);
    EXPECT_TRUE(contentOf(scene).contains("transparency: 0.5")) << "under its own name";
    EXPECT_FALSE(QFileInfo::exists(home.filePath("scopix/recovery")));
}

// Whenever it comes, in the middle of edits too: nothing is lost, no question is asked, and who sent the
// signal sees that the program died of it.
TEST_F(Crash, ASignalThatAsksToEndLosesNothing)
{
    std::minstd_rand random(5);
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        QProcess program;
        m_count = 0;
        start(program, "count", {scene, "--select", "Paint.transparency"});
        editUpTo(program, 1 + static_cast<int>(random() % 200));
        ::kill(static_cast<pid_t>(program.processId()), signal);
        ASSERT_TRUE(program.waitForFinished(60000));
        EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(program.exitCode(), signal);
        readCounts(program);
        EXPECT_EQ(recovered(), m_count);
    }
}

TEST_F(Crash, ASecondSignalEndsAtOnce)
{
    QProcess program;
    start(program, "count", {scene, "--select", "Paint.transparency"});
    editUpTo(program, 1);
    ::kill(static_cast<pid_t>(program.processId()), SIGSTOP); // both come before it can act on the first
    ::kill(static_cast<pid_t>(program.processId()), SIGTERM);
    ::kill(static_cast<pid_t>(program.processId()), SIGHUP);
    ::kill(static_cast<pid_t>(program.processId()), SIGCONT);
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
}

TEST_F(Crash, TheEndOfTheUsersSessionLosesNothing)
{
    QProcess program;
    start(program, "logout", {scene, "--select", "Paint.transparency"});
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitCode(), SIGKILL);
    EXPECT_TRUE(kept().contains("transparency: 0.5"));
    EXPECT_EQ(run("recover", {}), 0);
    EXPECT_TRUE(contentOf(scene).contains("transparency: 0.5"));
}

TEST_F(Crash, ALostDisplayLosesNothing)
{
    QProcess display;
    display.setProcessChannelMode(QProcess::SeparateChannels);
    display.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
    ASSERT_TRUE(display.waitForReadyRead(60000)) << "no Xvfb";
    const QString name = ':' + display.readLine().trimmed();
    QProcess program;
    start(program, "count", {scene, "--select", "Paint.transparency"}, name);
    editUpTo(program, 20);
    display.kill();
    ASSERT_TRUE(display.waitForFinished(60000));
    ASSERT_TRUE(program.waitForFinished(60000));
    readCounts(program);
    EXPECT_EQ(recovered(), m_count);
}

// What was edited in the last second may be lost, and nothing else.
TEST_F(Crash, KilledWhileItEditsItGivesBackAWholeScene)
{
    std::minstd_rand random(15);
    for (int round = 0; round < 2; ++round) {
        QProcess program;
        m_count = 0;
        start(program, "count", {scene, "--select", "Paint.transparency"});
        EXPECT_TRUE(waitFor([&] { return !kept().isEmpty(); }));
        editUpTo(program, m_count + 1 + static_cast<int>(random() % 300));
        ::kill(static_cast<pid_t>(program.processId()), SIGKILL);
        ASSERT_TRUE(program.waitForFinished(60000));
        readCounts(program);
        const int value = recovered();
        EXPECT_GT(value, 0);
        EXPECT_LE(value, m_count + 1);
    }
}

} // namespace
