// SPDX-License-Identifier: MIT
#include "document/RecoverySlot.h"
#include "support/ChildProcess.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

using namespace scopix;

namespace
{

class Slots : public testing::Test
{
protected:
    static void fill(const RecoverySlot& slot, const char* title)
    {
        ASSERT_TRUE(slot.setOrigin({"/somewhere/" + QString(title), title}));
        QFile scene(slot.scenePath());
        ASSERT_TRUE(scene.open(QIODevice::WriteOnly));
        scene.write("edits");
    }
    // What a session leaves that is killed.
    static void crash(const QString& path, const char* title) { fill(*RecoverySlot::make(path), title); }
    void crash(const char* title) const { crash(path, title); }
    static const ChildAct s_takeOverAndDie;

    QTemporaryDir folder;
    QString path = folder.filePath("recovery");
};

TEST_F(Slots, AreAccessibleToTheUserOnly)
{
    const auto slot = RecoverySlot::make(path);
    ASSERT_TRUE(slot);
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther), 0);
}

TEST_F(Slots, FindsALostFileWithItsOrigin)
{
    EXPECT_FALSE(RecoverySlot::findOrphaned(path)) << "no folder yet";
    crash("a.xsg");
    const auto slot = RecoverySlot::findOrphaned(path);
    ASSERT_TRUE(slot);
    EXPECT_EQ(slot->getOrigin().title, "a.xsg");
    EXPECT_EQ(slot->getOrigin().path, "/somewhere/a.xsg");
    EXPECT_TRUE(slot->getTime().isValid());
}

TEST_F(Slots, IgnoresThoseOfRunningProcesses)
{
    const auto living = RecoverySlot::make(path);
    fill(*living, "mine.xsg");
    EXPECT_FALSE(RecoverySlot::findOrphaned(path));
    crash("theirs.xsg");
    const auto lost = RecoverySlot::findOrphaned(path);
    ASSERT_TRUE(lost);
    EXPECT_EQ(lost->getOrigin().title, "theirs.xsg");
    EXPECT_FALSE(RecoverySlot::findOrphaned(path)) << "who finds it has it";
}

const ChildAct Slots::s_takeOverAndDie("takeOverAndDie", [](const ChildAct::Words& words) {
    const QString path = QString::fromStdString(words[0]);
    crash(path, "killed.xsg");
    const auto held = RecoverySlot::findOrphaned(path);
    return held && raise(SIGKILL) == 0;
});

TEST_F(Slots, FindsThoseOfAKilledProcess)
{
    ChildProcess killed(s_takeOverAndDie.command({path.toStdString()}));
    ASSERT_EQ(killed.waitForEnd().signal, SIGKILL);
    ASSERT_FALSE(QDir(path).entryList({"*.lock"}).isEmpty()) << "the lock outlives its process";
    const auto slot = RecoverySlot::findOrphaned(path);
    ASSERT_TRUE(slot);
    EXPECT_EQ(slot->getOrigin().title, "killed.xsg");
}

TEST_F(Slots, ListsTheNewestFirst)
{
    crash("old.xsg");
    crash("new.xsg");
    crash("older.xsg");
    for (const QString& name : QDir(path).entryList({"*.json"})) {
        QFile origin(path + '/' + name);
        ASSERT_TRUE(origin.open(QIODevice::ReadOnly));
        const QByteArray text = origin.readAll();
        QFile scene(path + '/' + QString(name).replace(".json", ".xsg"));
        ASSERT_TRUE(scene.open(QIODevice::ReadWrite));
        const int age = text.contains("new.xsg") ? 10 : text.contains("/old.xsg") ? 20 : 30;
        scene.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFileDevice::FileModificationTime);
    }
    for (const char* title : {"new.xsg", "old.xsg", "older.xsg"}) {
        const auto slot = RecoverySlot::findOrphaned(path);
        ASSERT_TRUE(slot);
        EXPECT_EQ(slot->getOrigin().title, title);
        slot->remove();
    }
    EXPECT_FALSE(RecoverySlot::findOrphaned(path));
}

TEST_F(Slots, RemovalLeavesNoFileBehind)
{
    const auto slot = RecoverySlot::make(path);
    fill(*slot, "a.xsg");
    QFile half(slot->scenePath() + ".Xy12ab");
    ASSERT_TRUE(half.open(QIODevice::WriteOnly));
    slot->remove();
    EXPECT_FALSE(QDir(path).exists());
    EXPECT_TRUE(QDir(folder.path()).exists());
}

TEST_F(Slots, RemovingOneLeavesTheOthers)
{
    const auto mine = RecoverySlot::make(path);
    const auto other = RecoverySlot::make(path);
    fill(*mine, "mine.xsg");
    fill(*other, "other.xsg");
    mine->remove();
    EXPECT_TRUE(QFile::exists(other->scenePath()));
    EXPECT_EQ(other->getOrigin().title, "other.xsg");
}

TEST_F(Slots, IgnoresACrashBeforeTheFirstWrite)
{
    RecoverySlot::make(path)->setOrigin({"/a.xsg", "a.xsg"});
    EXPECT_FALSE(RecoverySlot::findOrphaned(path));
    EXPECT_FALSE(QDir(path).exists());
}

TEST_F(Slots, AFolderThatCannotBeMadeGivesNone)
{
    QFile inTheWay(path);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_FALSE(RecoverySlot::make(path));
    EXPECT_FALSE(RecoverySlot::findOrphaned(path));
}

TEST_F(Slots, ARelativePathOfAnEarlierBuildNamesNoFile)
{
    const auto slot = RecoverySlot::make(path);
    ASSERT_TRUE(slot->setOrigin({"scene.xsg", "scene.xsg"}));
    EXPECT_EQ(slot->getOrigin().path, QString());
    EXPECT_EQ(slot->getOrigin().title, "scene.xsg");
}

} // namespace
