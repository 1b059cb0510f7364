// SPDX-License-Identifier: MIT
// Bad libraries in the user's own folder for plug-ins: the program starts, at once or at the next start, says
// which one it left out, and goes on to load the others.
#include <gtest/gtest.h>

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

class PluginAttack : public testing::Test
{
protected:
    PluginAttack()
    {
        EXPECT_TRUE(QDir(home.path()).mkpath("scopix/plugins"));
        add("Other", "libOther.so"); // which is good
    }

    struct Outcome {
        bool hasEnded; // by itself
        int status;
        QStringList said;
    };
    Outcome start(const QStringList& arguments = {}) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
            environment.insert(name, home.path());
        process.setProcessEnvironment(environment);
        process.start(SCOPIX_PROGRAM, QStringList{"--quit"} + arguments);
        EXPECT_TRUE(process.waitForFinished(120000));
        QStringList said;
        for (const QString& line : QString::fromUtf8(process.readAllStandardError()).split('\n')) {
            if (line.startsWith("scopix: "))
                said << line.mid(8);
        }
        return {process.exitStatus() == QProcess::NormalExit, process.exitCode(), said};
    }
    void expectOneSentence(const char* reason, const QStringList& arguments = {}) const
    {
        const Outcome outcome = start(arguments);
        EXPECT_TRUE(outcome.hasEnded);
        EXPECT_EQ(outcome.status, 1);
        ASSERT_EQ(outcome.said.size(), 1) << outcome.said.join('\n').toStdString();
        EXPECT_TRUE(outcome.said[0].contains("libBad.so")) << outcome.said[0].toStdString();
        EXPECT_TRUE(outcome.said[0].contains(QString::fromUtf8(reason))) << outcome.said[0].toStdString();
    }
    QString folder() const { return home.filePath("scopix/plugins/"); }
    QString add(const char* variant, const QString& name) const
    {
        QFile::remove(folder() + name);
        EXPECT_TRUE(
            QFile::copy(QStringLiteral(TEST_PLUGINS "TestPlugin%1.so").arg(variant), folder() + name));
        return folder() + name;
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void addBad(const QByteArray& content) const
    {
        QFile file(folder() + "libBad.so");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
    }

    QTemporaryDir home;
};

TEST_F(PluginAttack, AGoodOneIsNoTrouble)
{
    for (int i = 0; i < 2; ++i) {
        const Outcome outcome = start();
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.said, QStringList());
    }
}

TEST_F(PluginAttack, AHalfCopiedLibrary)
{
    const QByteArray whole = contentOf(QStringLiteral(TEST_PLUGINS "TestPluginGood.so"));
    addBad(whole.left(whole.size() / 2));
    expectOneSentence("the file is incomplete");
}

// What a disk or a copy that reserves its room makes of the code in the middle.
TEST_F(PluginAttack, ALibraryWithAHoleInItsMiddle)
{
    QByteArray whole = contentOf(QStringLiteral(TEST_PLUGINS "TestPluginGood.so"));
    whole.replace(0x1000, whole.size() / 3, QByteArray(whole.size() / 3, '\0'));
    addBad(whole);
    for (int i = 0; i < 2; ++i) {
        const Outcome outcome = start();
        EXPECT_TRUE(outcome.hasEnded);
        ASSERT_EQ(outcome.said.size(), 1) << outcome.said.join('\n').toStdString();
        EXPECT_TRUE(outcome.said[0].contains("libBad.so")) << outcome.said[0].toStdString();
    }
}

TEST_F(PluginAttack, AnInitialiserThatThrows)
{
    add("InitThrows", "libBad.so");
    expectOneSentence("its initialisation failed: no luck from the start");
    expectOneSentence("no luck from the start");
}

TEST_F(PluginAttack, ALoadPluginThatCrashes)
{
    add("Crashes", "libBad.so");
    expectOneSentence("its code");
    expectOneSentence("View > Tools > Try Again");
}

TEST_F(PluginAttack, ALibraryThatIsNamed)
{
    const QString path = add("Crashes", "libBad.so");
    ASSERT_TRUE(QFile::rename(path, home.filePath("libBad.so")));
    for (int i = 0; i < 2; ++i)
        expectOneSentence("its code", {"--plugin", home.filePath("libBad.so")});
}

// It lies where it is found, and is named too: one of the two is enough.
TEST_F(PluginAttack, ALibraryThatIsFoundAndNamed)
{
    const QStringList named{"--plugin", add("LoadCrashes", "libBad.so")};
    EXPECT_NE(start(named).status, 0);
    expectOneSentence("the program ended the last time while it was being loaded", named);
}

// Its code is fine until the program itself calls load(): that ends one start, and no other.
TEST_F(PluginAttack, ALoadThatCrashesEndsOneStartOnly)
{
    add("LoadCrashes", "libBad.so");
    EXPECT_NE(start().status, 0);
    expectOneSentence("the program ended the last time while it was being loaded");
    expectOneSentence("the program ended the last time while it was being loaded");
    add("Good", "libBad.so"); // mended
    EXPECT_EQ(start().status, 0);
}

TEST_F(PluginAttack, WhatItHasPutOffAndThenCrashesEndsOneStartOnly)
{
    EXPECT_EQ(start().status, 0); // the other one is known by then
    add("CrashesLater", "libBad.so");
    EXPECT_NE(start().status, 0);
    expectOneSentence("the program ended the last time while it was being loaded");
}

TEST_F(PluginAttack, ALibraryThatEveryUserMayWriteTo)
{
    const QString path = add("Good", "libBad.so");
    ASSERT_EQ(chmod(qPrintable(path), 0666), 0);
    expectOneSentence("every user may write to it");
}

TEST_F(PluginAttack, ALibraryForAnotherMachine)
{
    QByteArray other = contentOf(QStringLiteral(TEST_PLUGINS "TestPluginGood.so"));
    constexpr int Machine = 18; // where an ELF header says it
    other[Machine] = char(other[Machine] == char(183) ? 62 : 183);
    addBad(other);
    expectOneSentence("it was built for another kind of machine (");
}

} // namespace
