// SPDX-License-Identifier: MIT
// The program is killed in the middle of unsaved edits, and gives them back.
#include <gtest/gtest.h>

#include <QtTest>

#include <csignal>

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
    void start(QProcess& process, const QByteArray& act, const QStringList& arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(name, home.path());
        environment.insert("SCOPIX_TEST_ACT", act);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
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
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir home;
    QString scene = home.filePath("scene.xsg");
};

TEST_F(Crash, TheNextStartGivesTheEditsBack)
{
    {
        QProcess killed;
        start(killed, "edit", {scene, "--select", "Paint.transparency"});
        EXPECT_TRUE(QTest::qWaitFor([&] { return kept().contains("transparency: 0.5"); }, 60000));
        ::kill(static_cast<pid_t>(killed.processId()), SIGKILL);
        ASSERT_TRUE(killed.waitForFinished());
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

} // namespace
