// SPDX-License-Identifier: MIT
// Several sessions that have the same profiles file.
#include "profiles/ProfileList.h"
#include "profiles/ProfileMerge.h"
#include "support/ChildProcess.h"

#include <xsg/support/FileLock.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <random>

#include <sys/stat.h>

using namespace scopix;

namespace
{

using Choices = std::vector<ProfileChoice>;

ProfileChoice only(const QString& name, const QStringList& tools)
{
    return {name, {true, {}}, {false, tools}};
}

QStringList namesOf(const Choices& choices)
{
    QStringList names;
    for (const ProfileChoice& each : choices)
        names += each.name;
    return names;
}

void add(ProfileList& list, const ProfileChoice& profile)
{
    Choices choices = list.choices();
    choices.push_back(profile);
    list.setProfiles(choices, list.activeProfile()->name());
}

class SharedProfiles : public testing::Test
{
protected:
    QString path() const { return m_folder.filePath("profiles.json"); }
    ProfileFile file() const { return ProfileFile(path()); }
    ProfileSettings written() const
    {
        QString error;
        ProfileSettings settings = file().read(error);
        EXPECT_EQ(error, "");
        return settings;
    }

    QTemporaryDir m_folder;
};

TEST_F(SharedProfiles, OneSessionChoosesWhatAnotherDoesNotKnow)
{
    ProfileList one(file());
    ProfileList other(file());
    one.read();
    other.read();
    add(one, only("Mine", {"A/a"}));
    other.setActiveProfile(other.findProfile("Edit"));
    EXPECT_EQ(namesOf(written().profiles), (QStringList{"Default", "Edit", "Measure", "Classic", "Mine"}));
    EXPECT_EQ(written().active, "Edit");
    EXPECT_TRUE(other.findProfile("Mine")) << "it has joined";
    add(other, only("Yours", {"A/b"}));
    EXPECT_EQ(namesOf(written().profiles),
              (QStringList{"Default", "Edit", "Measure", "Classic", "Mine", "Yours"}));
    EXPECT_EQ(written().active, "Edit");
    EXPECT_EQ(one.activeProfile()->name(), "Default") << "each session has an active one of its own";
}

TEST_F(SharedProfiles, AProfileThatIsChosenIsWantedAgain)
{
    ProfileList one(file());
    ProfileList other(file());
    one.read();
    other.read();
    one.setProfiles({}, "Default");
    EXPECT_EQ(namesOf(written().profiles), QStringList{"Default"});
    other.setActiveProfile(other.findProfile("Measure"));
    EXPECT_EQ(namesOf(written().profiles), (QStringList{"Default", "Measure"}));
    EXPECT_EQ(other.activeProfile()->name(), "Measure");
}

TEST_F(SharedProfiles, MergingLosesNothing)
{
    const ProfileChoice a = only("a", {"x"});
    const ProfileChoice changed = only("a", {"x", "y"});
    ProfileChoice withoutEditors = a;
    withoutEditors.editors = {false, {}};
    ProfileChoice both = changed;
    both.editors = {false, {}};
    const ProfileChoice b = only("b", {});
    const ProfileChoice otherB = only("b", {"z"});
    EXPECT_EQ(mergeProfiles({}, {a}, {b}), (Choices{a, b}));
    EXPECT_EQ(mergeProfiles({a}, {a}, {a, b}), (Choices{a, b})) << "added there";
    EXPECT_EQ(mergeProfiles({a, b}, {a}, {a, b}), Choices{a}) << "removed here";
    EXPECT_EQ(mergeProfiles({a, b}, {a, b}, {a}), Choices{a}) << "removed there";
    EXPECT_EQ(mergeProfiles({a}, {}, {changed}), Choices{changed}) << "removed here, changed there";
    EXPECT_EQ(mergeProfiles({a}, {changed}, {}), Choices{changed}) << "changed here, removed there";
    EXPECT_EQ(mergeProfiles({a}, {changed}, {withoutEditors}), Choices{both}) << "another choice each";
    EXPECT_EQ(mergeProfiles({}, {b}, {b}), Choices{b}) << "the same added twice";
    EXPECT_EQ(mergeProfiles({}, {b}, {otherB}), (Choices{otherB, only("b 2", {})})) << "two of one name";
}

TEST_F(SharedProfiles, WhatAnotherProgramKeepsLockedIsSaidAndNotWritten)
{
    ProfileList list(file());
    list.read();
    QString problem;
    QObject::connect(&list, &ProfileList::failed, [&](const QString& text) { problem = text; });
    {
        const xsg::FileLock lock(m_folder.filePath("settings.lock").toStdString(),
                                 xsg::FileLock::Kind::Exclusive);
        list.setActiveProfile(list.findProfile("Edit"));
    }
    EXPECT_EQ(list.activeProfile()->name(), "Edit") << "in this session";
    EXPECT_TRUE(problem.contains(path()) && problem.contains("another program")) << qPrintable(problem);
    EXPECT_FALSE(QFile::exists(path()));
    list.setActiveProfile(list.findProfile("Measure"));
    EXPECT_EQ(written().active, "Measure");
}

TEST_F(SharedProfiles, WhatCouldNotBeWrittenIsWrittenTheNextTime)
{
    ProfileList list(file());
    list.setProfiles(list.choices(), "Default");
    auto lock = std::make_unique<xsg::FileLock>(m_folder.filePath("settings.lock").toStdString(),
                                                xsg::FileLock::Kind::Exclusive);
    add(list, only("Mine", {}));
    EXPECT_EQ(namesOf(written().profiles), QStringList{"Default"});
    lock.reset();
    add(list, only("Next", {}));
    EXPECT_EQ(namesOf(written().profiles), (QStringList{"Default", "Mine", "Next"}));
}

TEST_F(SharedProfiles, APipeIsNeitherReadNorReplaced)
{
    ASSERT_EQ(mkfifo(path().toLocal8Bit().constData(), 0600), 0);
    ProfileList list(file());
    QStringList problems;
    QObject::connect(&list, &ProfileList::failed, [&](const QString& text) { problems += text; });
    list.read();
    list.setActiveProfile(list.findProfile("Default"));
    add(list, only("Mine", {}));
    ASSERT_EQ(problems.size(), 2);
    for (const QString& problem : problems)
        EXPECT_TRUE(problem.contains(path()) && problem.contains("no regular file")) << qPrintable(problem);
    EXPECT_TRUE(list.findProfile("Mine")) << "in this session";
}

TEST_F(SharedProfiles, ADamagedFileIsKeptAndItsProfilesAreWrittenAgain)
{
    ProfileList list(file());
    add(list, only("Mine", {}));
    QFile damaged(path());
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("half");
    damaged.close();
    list.setActiveProfile(list.findProfile("Mine"));
    EXPECT_EQ(namesOf(written().profiles), (QStringList{"Default", "Mine"}));
    EXPECT_TRUE(QFile::exists(m_folder.filePath("profiles.damaged.json")));
}

constexpr int Processes = 3;

// At random; what it has in the end is beside the file.
const ChildAct changeProfiles("changeProfiles", [](const ChildAct::Words& words) {
    constexpr int Steps = 15;
    constexpr int MostAttempts = 30;
    const QString path = QString::fromStdString(words[0]);
    const int number = std::stoi(words[1]);
    std::mt19937 random(unsigned(number) + qEnvironmentVariableIntValue("SCOPIX_WALK_SEED"));
    ProfileList list{ProfileFile(path)};
    bool isGood = true; // the others may have kept it locked all the time
    QObject::connect(&list, &ProfileList::failed, [&](const QString&) { isGood = false; });
    list.read();
    QStringList mine;
    for (int step = 0; step < Steps; ++step) {
        Choices choices = list.choices();
        const auto action = random() % 4;
        if (action == 0 && !mine.isEmpty()) {
            const QString removed = mine.takeFirst();
            choices.erase(std::find_if(choices.begin(), choices.end(),
                                       [&](const ProfileChoice& each) { return each.name == removed; }));
            list.setProfiles(choices, "Default");
        } else if (action == 1) {
            list.setActiveProfile(list.findProfile(mine.value(0, "Default")));
        } else {
            mine += QString("%1-%2").arg(number).arg(step);
            add(list, only(mine.last(), {mine.last()}));
        }
    }
    isGood = false;
    for (int attempt = 0; attempt < MostAttempts && !isGood; ++attempt) {
        isGood = true;
        list.setProfiles(list.choices(), "Default");
    }
    if (!isGood)
        return false;
    QFile result(QFileInfo(path).dir().filePath(QString("mine-%1").arg(number)));
    return result.open(QIODevice::WriteOnly) && result.write(mine.join(' ').toLatin1()) >= 0;
});

// Each process adds, removes and chooses at random; what it has in the end is in the file.
TEST_F(SharedProfiles, ProcessesAtOnceLoseNothing)
{
    EXPECT_TRUE(changeProfiles.areDone(ChildAct::numbered(Processes, {path().toStdString()})));
    QStringList expected{"Default", "Edit", "Measure", "Classic"};
    for (int number = 0; number < Processes; ++number) {
        QFile result(m_folder.filePath(QString("mine-%1").arg(number)));
        ASSERT_TRUE(result.open(QIODevice::ReadOnly));
        expected += QString::fromLatin1(result.readAll()).split(' ', Qt::SkipEmptyParts);
    }
    QStringList found = namesOf(written().profiles);
    found.sort();
    expected.sort();
    EXPECT_GT(expected.size(), 10);
    EXPECT_EQ(found, expected);
}

} // namespace

// Files of earlier versions do not say what was offered.
TEST_F(SharedProfiles, AShippedProfileThatCameLaterIsOfferedOnce)
{
    QFile earlier(path());
    ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
    earlier.write(R"({"active":"Mine","profiles":[{"name":"Mine","editors":"all","tools":"all"}]})");
    earlier.close();
    for (const bool isFirst : {true, false}) {
        ProfileList list(file());
        list.read();
        EXPECT_EQ(list.findProfile("Classic") != nullptr, isFirst);
        EXPECT_EQ(list.activeProfile()->name(), "Mine");
        std::vector<ProfileChoice> others = list.choices();
        others.erase(std::remove_if(others.begin(), others.end(),
                                    [](const ProfileChoice& each) { return each.name == "Classic"; }),
                     others.end());
        list.setProfiles(others, "Mine");
        EXPECT_EQ(namesOf(written().profiles), (QStringList{"Default", "Mine"}));
    }
}
