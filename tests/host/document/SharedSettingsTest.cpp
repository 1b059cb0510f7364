// SPDX-License-Identifier: MIT
// Several sessions that have the same window settings.
#include "document/RecentFiles.h"
#include "settings/SettingsFile.h"
#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace scopix;

namespace
{

// The others may keep it locked for all the time that one waits.
template <class Change>
bool untilFree(Change change)
{
    for (int attempt = 0; attempt < 30; ++attempt) {
        if (change().isEmpty())
            return true;
    }
    return false;
}

class SharedSettings : public testing::Test
{
protected:
    QString path() const { return folder.filePath("window.ini"); }
    QStringList filesInFolder() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir folder;
};

TEST_F(SharedSettings, AreThoseOfEarlierBuilds)
{
    QSettings(path(), QSettings::IniFormat).setValue("palette", "dark");
    const SettingsFile file(path());
    EXPECT_EQ(file.value("palette").toString(), "dark");
    EXPECT_EQ(file.setValue("geometry", QByteArray("\0\xff", 2)), "");
    const QSettings settings(path(), QSettings::IniFormat);
    EXPECT_EQ(settings.value("palette").toString(), "dark");
    EXPECT_EQ(settings.value("geometry").toByteArray(), QByteArray("\0\xff", 2));
}

TEST_F(SharedSettings, LeaveNoOtherFileBehind)
{
    QFile left(folder.filePath("window.ini.scopix-q1w2e3"));
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    QFile lock(left.fileName() + ".lock");
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    EXPECT_EQ(SettingsFile(path()).setValue("palette", "dark"), "");
    EXPECT_EQ(filesInFolder(), (QStringList{"settings.lock", "window.ini"}));
}

TEST_F(SharedSettings, ThatCannotBeWrittenAreSaid)
{
    ASSERT_EQ(SettingsFile(path()).setValue("palette", "dark"), "");
    QFile::setPermissions(path(), QFile::ReadOwner);
    const QString problem = RecentFiles(path()).add("/a.xsg");
    EXPECT_TRUE(problem.contains(path()) && problem.contains("write-protected")) << qPrintable(problem);
    EXPECT_TRUE(RecentFiles(path()).list().isEmpty());
}

TEST_F(SharedSettings, ThatArePipesKeepNobodyWaiting)
{
    ASSERT_EQ(mkfifo(path().toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(SettingsFile(path()).value("palette").isValid());
    const QString problem = SettingsFile(path()).setValue("palette", "dark");
    EXPECT_TRUE(problem.contains(path()) && problem.contains("no regular file")) << qPrintable(problem);
    EXPECT_TRUE(RecentFiles(path()).list().isEmpty());
}

constexpr int Processes = 3;
constexpr int Steps = 10;

const ChildAct changeSettings("changeSettings", [](const ChildAct::Words& words) {
    const QString path = QString::fromStdString(words[0]);
    RecentFiles recent(path);
    const SettingsFile settings(path);
    bool isGood = true;
    for (int step = 0; step < Steps && isGood; ++step) {
        const QString file = QString("/%1-%2.xsg").arg(words[1].c_str()).arg(step % 3);
        const QString key = QString("key-%1-%2").arg(words[1].c_str()).arg(step);
        isGood = untilFree([&] { return recent.add(file); }) &&
                 untilFree([&] { return settings.setValue(key, step); });
    }
    return isGood;
});

TEST_F(SharedSettings, OfProcessesAtOnceLoseNothing)
{
    EXPECT_TRUE(changeSettings.areDone(ChildAct::numbered(Processes, {path().toStdString()})));
    const QStringList recent = RecentFiles(path()).list();
    EXPECT_EQ(recent.size(), 9);
    const SettingsFile settings(path());
    for (int number = 0; number < Processes; ++number) {
        for (int step = 0; step < Steps; ++step) {
            EXPECT_EQ(settings.value(QString("key-%1-%2").arg(number).arg(step)).toInt(), step);
            EXPECT_TRUE(recent.contains(QString("/%1-%2.xsg").arg(number).arg(step % 3)));
        }
    }
}

} // namespace
