// SPDX-License-Identifier: MIT
// A profile file that several programs have open.
#include "ManagerFixture.h"

#include "CounterProfileFile.h"
#include "OwedSaves.h"
#include "support/ChildProcess.h"
#include "support/FileAnswer.h"

#include <xsg/support/FileLock.h>

#include <QDomDocument>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <random>

#include <sys/resource.h>
#include <sys/stat.h>

class SharedCounterFile : public CounterProfileManager
{
protected:
    // What another program makes of the file.
    void replaceInFile(const QByteArray& text, const QByteArray& by) const
    {
        const QByteArray before = readFile(path());
        ASSERT_TRUE(before.contains(text));
        writeFile(path(), QByteArray(before).replace(text, by));
    }
    void addElsewhere(const QByteArray& name) const
    {
        replaceInFile("</profiles>", "<profile name='" + name +
                                         "'><listcounters><pc>testB</pc></listcounters><listview/></profile>"
                                         "</profiles>");
    }
    static QStringList profilesIn(const QByteArray& file)
    {
        QDomDocument document;
        EXPECT_TRUE(document.setContent(file));
        QStringList names;
        const QDomNodeList all = document.elementsByTagName("profile");
        for (int i = 0; i < all.size(); ++i)
            names.append(all.at(i).toElement().attribute("name"));
        return names;
    }
    QStringList shownNames() const
    {
        QStringList names;
        for (int i = 0; i < dock->m_listConfig->count(); ++i)
            names.append(dock->m_listConfig->itemText(i));
        return names;
    }
    void saveView() { QTest::mouseClick(dock->m_saveView, Qt::LeftButton); }
    const QStringList all{"first", "second", "added"};
};

TEST_F(SharedCounterFile, SavingTheViewKeepsWhatAnotherProgramAdded)
{
    writeExample();
    open();
    addElsewhere("added");
    replaceInFile("</customPC>",
                  "<counter name='theirs' type='S'><operation>+</operation></counter></customPC>");
    saveView();
    EXPECT_EQ(profilesIn(readFile(path())), all);
    EXPECT_TRUE(readFile(path()).contains("\"theirs\""));
    EXPECT_EQ(profileNames(), all) << "they have joined the list";
    EXPECT_EQ(shownNames(), all);
    EXPECT_TRUE(isRegistered("theirs"));
    EXPECT_EQ(dock->m_listConfig->currentText(), "second") << "which nobody has changed";
    dock->m_listConfig->setCurrentIndex(2);
    EXPECT_EQ(dock->m_preSelectedListView->count(), 1);
    EXPECT_EQ(boxes.take(), QStringList());
}

TEST_F(SharedCounterFile, OkKeepsWhatAnotherProgramAdded)
{
    openBoth();
    manager->createNewProfile("mine");
    addElsewhere("added");
    press(QDialogButtonBox::Ok);
    const QStringList both{"first", "second", "mine", "added"};
    EXPECT_EQ(profilesIn(readFile(path())), both);
    EXPECT_EQ(profileNames(), both);
    EXPECT_EQ(shownNames(), both);
    // What is removed afterwards is removed.
    manager = openManager();
    manager->m_tabProfile->setCurrentIndex(3);
    manager->deleteProfile();
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(profilesIn(readFile(path())), (QStringList{"first", "second", "mine"}));
}

TEST_F(SharedCounterFile, CancelTakesWhatAnotherProgramAdded)
{
    openBoth();
    addElsewhere("added");
    press(QDialogButtonBox::Cancel);
    EXPECT_EQ(profileNames(), all);
    EXPECT_EQ(shownNames(), all);
    manager = openManager();
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(profilesIn(readFile(path())), all);
}

TEST_F(SharedCounterFile, TakesTheListsThatOnlyAnotherProgramChanged)
{
    writeExample();
    open();
    replaceInFile("<listcounters><pc>testA</pc></listcounters>",
                  "<listcounters><pc>testA</pc><pc>testC</pc></listcounters>");
    replaceInFile("<pcviewed>testB</pcviewed>", "<pcviewed>testC</pcviewed>");
    dock->addPcViewed("testA"); // changed here, too
    saveView();
    EXPECT_EQ(*dock->getProfiles()[0]->getList(), (QStringList{"testA", "testC"}));
    EXPECT_EQ(*dock->getProfiles()[1]->getView(), (QStringList{"testB", "testA"}));
    EXPECT_TRUE(readFile(path()).contains("<pcviewed>testA</pcviewed>"));
    EXPECT_FALSE(readFile(path()).contains("<pcviewed>testC</pcviewed>"));
}

TEST_F(SharedCounterFile, TwoProfilesOfOneNameStayTwo)
{
    openBoth();
    manager->createNewProfile("added");
    addElsewhere("added");
    press(QDialogButtonBox::Ok);
    const QStringList both{"first", "second", "added", "added"};
    EXPECT_EQ(profilesIn(readFile(path())), both);
    saveView();
    EXPECT_EQ(profilesIn(readFile(path())), both);
}

TEST_F(SharedCounterFile, WaitsForAnotherProgramForAWhileOnly)
{
    writeExample();
    open();
    const QByteArray before = readFile(path());
    {
        const xsg::FileLock lock(path().toStdString(), xsg::FileLock::Kind::Exclusive);
        saveView();
    }
    EXPECT_EQ(boxes.take(), QStringList{"Performance counter profile: Cannot write file " + path() +
                                        ":\nAnother program is using it."});
    EXPECT_EQ(readFile(path()), before);
    saveView();
    EXPECT_EQ(boxes.take(), QStringList());
    EXPECT_NE(readFile(path()), before);
}

TEST_F(SharedCounterFile, APipeIsNeitherReadNorWritten)
{
    QDir().mkpath(QFileInfo(path()).path());
    ASSERT_EQ(mkfifo(path().toLocal8Bit(), 0600), 0);
    open();
    ASSERT_FALSE(boxes.take().isEmpty());
    EXPECT_EQ(dock->getFilepath(), "");
    dock->changeFilepath(path());
    saveView();
    EXPECT_EQ(boxes.take(), QStringList{"Performance counter profile: Cannot write file " + path() +
                                        ":\nIt is no regular file."});
    manager = openManager();
    FileAnswer answer(path());
    manager->openProfile();
    EXPECT_EQ(boxes.take(), QStringList{"Performance counter profile: Cannot read file " + path() +
                                        ":\nIt is no regular file."});
}

TEST_F(SharedCounterFile, AProtectedFileAndAnotherKindAreNotWritten)
{
    openBoth();
    const QByteArray before = readFile(path());
    chmod(path().toLocal8Bit(), 0444);
    manager->saveProfile();
    EXPECT_EQ(boxes.take(), QStringList{"Performance counter profile: Cannot write file " + path() + ":\n" +
                                        strerrordesc_np(EACCES) + "."});
    EXPECT_EQ(readFile(path()), before);
    const QString scene = folder.filePath("scene.xsg");
    FileAnswer answer(scene);
    manager->saveAsProfile();
    EXPECT_EQ(boxes.take(), QStringList{"Performance counter profile: Cannot write file " + scene +
                                        ":\nIts name was expected to end in .xml."});
    EXPECT_FALSE(QFile::exists(scene));
}

// A limit on the size of files stands for a full disk.
TEST_F(SharedCounterFile, SaysThatTheDiskIsFull)
{
    writeExample();
    open();
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{100, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    saveView();
    setrlimit(RLIMIT_FSIZE, &before);
    const QStringList said = boxes.take();
    ASSERT_EQ(said.size(), 1);
    EXPECT_EQ(said[0], "Performance counter profile: Cannot write file " + path() + ":\n" +
                           QString::fromLocal8Bit(strerrordesc_np(EFBIG)) + ".");
    saveView();
    EXPECT_EQ(profilesIn(readFile(path())), (QStringList{"first", "second"})) << "the next time";
}

static constexpr int Processes = 3;

// At random; what it has in the end is in a file of its own.
static const ChildAct changeProfiles("changeProfiles", [](const ChildAct::Words& words) {
    using namespace counterProfileFile;
    constexpr int Steps = 15;
    constexpr int MostAttempts = 30;
    const QString path = QString::fromStdString(words[0]);
    const int number = std::stoi(words[2]);
    for (const char* counter : {"testA", "testB", "testC"})
        accumCounter(counter);
    std::mt19937 random(unsigned(number) + unsigned(qEnvironmentVariableIntValue("SCOPIX_WALK_SEED")));
    OwedSaves saves;
    QDomDocument document;
    {
        const xsg::FileLock lock(words[0], xsg::FileLock::Kind::Shared);
        QFile file(path);
        QString problem;
        if (!openToRead(file).isEmpty() || !parse(&file, document, problem))
            return false;
    }
    saves.noteRead(path, document);
    QList<SoPerfCounterProfile*> profiles = readProfiles(document);
    QStringList mine;
    bool isGood = true;
    for (int step = 0; step < Steps && isGood; ++step) {
        const auto isOldest = [&](const SoPerfCounterProfile* each) {
            return each->getName() == mine.value(0);
        };
        if (random() % 3 == 0 && !mine.isEmpty()) {
            const auto found = std::find_if(profiles.begin(), profiles.end(), isOldest);
            delete *found;
            profiles.erase(found);
            mine.removeFirst();
        } else {
            mine += QString("%1-%2").arg(number).arg(step);
            profiles += new SoPerfCounterProfile(mine.last());
            profiles.last()->getView()->append("testA");
        }
        writeProfiles(document, profiles);
        OwedSaves::JoinedProfiles joined;
        // The others may have kept it locked all the time.
        isGood = false;
        for (int attempt = 0; attempt < MostAttempts && !isGood; ++attempt)
            isGood = saves.save(path, document, nullptr, joined);
        counterMerge::apply(joined, profiles);
    }
    qDeleteAll(profiles);
    QFile result(QString::fromStdString(words[1]) + QString("/mine-%1").arg(number));
    return isGood && result.open(QIODevice::WriteOnly) && result.write(mine.join(' ').toLatin1()) >= 0;
});

// Each process adds, removes and saves at random; what it has in the end is in the file.
TEST_F(SharedCounterFile, ProcessesAtOnceLoseNothing)
{
    writeExample();
    EXPECT_TRUE(changeProfiles.areDone(
        ChildAct::numbered(Processes, {path().toStdString(), folder.path().toStdString()})));
    QStringList expected{"first", "second"};
    for (int number = 0; number < Processes; ++number)
        expected += QString::fromLatin1(readFile(folder.filePath(QString("mine-%1").arg(number))))
                        .split(' ', Qt::SkipEmptyParts);
    QStringList found = profilesIn(readFile(path()));
    for (const QString& name : expected)
        EXPECT_EQ(found.count(name), 1) << qPrintable(name);
}
