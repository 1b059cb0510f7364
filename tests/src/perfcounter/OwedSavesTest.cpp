// SPDX-License-Identifier: MIT
// What becomes of the profiles where the disk refuses: nothing is lost, and nothing is silent.
#include "ManagerFixture.h"
#include "SpxPerfCounterExtension.h"
#include "support/FileAnswer.h"

#include <QDomDocument>

class CounterOwed : public CounterProfileManager
{
protected:
    QString away() const { return folder.path() + "/away"; }
    QString data() const { return folder.path() + "/data"; }
    void takeFolderAway() { ASSERT_TRUE(QDir().rename(data(), away())); }
    void bringFolderBack() { ASSERT_TRUE(QDir().rename(away(), data())); }
    QStringList refusal() const
    {
        return {"Performance counter profile: Cannot write file " + path() + ":\nNo such file or directory."};
    }
    static QStringList profilesOf(const QByteArray& file)
    {
        QDomDocument document;
        EXPECT_TRUE(document.setContent(file));
        return namesOf(document);
    }
    static QStringList namesOf(const QDomDocument& document)
    {
        QStringList names;
        const QDomNodeList all = document.elementsByTagName("profile");
        for (int i = 0; i < all.size(); ++i)
            names.append(all.at(i).toElement().attribute("name"));
        return names;
    }
    // A third profile, and a counter of its own in it, that OK could not save.
    void makeThirdWhileAway()
    {
        openBoth();
        createCounter("product");
        manager->createNewProfile("third");
        select(*manager->m_listCounter, {"product"});
        QTest::mouseClick(manager->m_downArrow, Qt::LeftButton);
        takeFolderAway();
        press(QDialogButtonBox::Ok);
        EXPECT_EQ(boxes.take(), refusal());
        EXPECT_EQ(profileNames(), all);
    }
    void openOther()
    {
        writeFile(folder.path() + "/other.xml",
                  "<perfCounterModule><customPC><counter name='others' type='S'/></customPC>"
                  "<profiles><profile name='fourth'/></profiles></perfCounterModule>");
        FileAnswer answer(folder.path() + "/other.xml");
        manager->openProfile();
        EXPECT_EQ(manager->m_tabProfile->count(), 1);
        EXPECT_TRUE(isRegistered("others"));
        EXPECT_FALSE(isRegistered("perFrame"));
    }
    void expectExample()
    {
        EXPECT_TRUE(isRegistered("perFrame"));
        EXPECT_FALSE(isRegistered("others"));
        EXPECT_EQ(namesOf(dock->getDocument()), (QStringList{"first", "second"}));
        const SoPerfCounter* custom = SoPerfCounterManager::getInstance()->getCounter("perFrame");
        ASSERT_TRUE(custom);
        EXPECT_EQ(custom->getLevel(), SoPerfCounter::HIGH);
        EXPECT_EQ(custom->getDescription(), SbString("d"));
        EXPECT_EQ(custom->getModule(), SbString("m"));
        EXPECT_EQ(custom->getFirstParent(), SbName("testA"));
        EXPECT_EQ(custom->getOperation(), SbString("/"));
    }
    const QStringList all{"first", "second", "third"};
};

TEST_F(CounterOwed, SavingTheViewTriesAgainAndSaysSo)
{
    makeThirdWhileAway();
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_EQ(boxes.take(), refusal());
    bringFolderBack();
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_EQ(boxes.take(), QStringList());
    EXPECT_EQ(profilesOf(readFile(path())), all);
    EXPECT_TRUE(readFile(path()).contains("<pc>product</pc>"));
    EXPECT_TRUE(readFile(path()).contains("\"product\""));
}

TEST_F(CounterOwed, TheNextOkTriesAgainAndSaysSo)
{
    makeThirdWhileAway();
    manager = openManager();
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(boxes.take(), refusal());
    bringFolderBack();
    manager = openManager();
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(boxes.take(), QStringList());
    EXPECT_EQ(profilesOf(readFile(path())), all);
}

TEST_F(CounterOwed, CancelKeepsWhatCouldNotBeSaved)
{
    makeThirdWhileAway();
    manager = openManager();
    press(QDialogButtonBox::Cancel);
    bringFolderBack();
    for (int turn = 0; turn < 2; ++turn) {
        manager = openManager();
        if (turn == 1)
            openOther();
        press(QDialogButtonBox::Cancel); // reads a file that lacks the third
        EXPECT_EQ(namesOf(dock->getDocument()), all);
        EXPECT_TRUE(isRegistered("product"));
        EXPECT_FALSE(isRegistered("others"));
    }
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_EQ(profilesOf(readFile(path())), all);
    EXPECT_EQ(boxes.take(), QStringList());
}

TEST_F(CounterOwed, AnotherFileThatIsSavedLeavesTheFirstOneOwed)
{
    makeThirdWhileAway();
    manager = openManager();
    openOther();
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(boxes.take(), refusal()) << "the other is written, the first still is not";
    bringFolderBack();
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_EQ(boxes.take(), QStringList());
    EXPECT_EQ(profilesOf(readFile(path())), all);
    EXPECT_EQ(profilesOf(readFile(folder.path() + "/other.xml")), QStringList{"fourth"});
}

TEST_F(CounterOwed, ASaveAsThatFailsIsNotOwed)
{
    openBoth();
    {
        FileAnswer answer("/proc/counters.xml");
        manager->saveAsProfile();
    }
    EXPECT_EQ(boxes.take().size(), 1);
    press(QDialogButtonBox::Ok);
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_EQ(boxes.take(), QStringList());
}

TEST_F(CounterOwed, WithoutAFileItIsOwedUntilThereIsOne)
{
    open();
    boxes.take();
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    const QStringList none{"Performance counter profile: Cannot write file :\nNo file name specified."};
    EXPECT_EQ(boxes.take(), none);
    dock->saveOwed();
    EXPECT_EQ(boxes.take(), none);
    manager = openManager();
    manager->createNewProfile("new");
    manager->setFilepath(folder.path() + "/new.xml");
    press(QDialogButtonBox::Ok);
    dock->saveOwed();
    EXPECT_EQ(boxes.take(), QStringList());
    EXPECT_EQ(profilesOf(readFile(folder.path() + "/new.xml")), QStringList{"new"});
}

TEST_F(CounterOwed, UnloadingTriesOnceMore)
{
    for (const bool comesBack : {false, true}) {
        writeExample();
        qputenv("XSG_PERFCOUNTER_ENABLE", "1");
        TestHost host;
        SpxPerfCounterExtension extension;
        host.window().show();
        host.start(extension);
        auto* tool = host.window().findChild<SoPerfCounterDockWin*>();
        ASSERT_TRUE(tool);
        tool->openProfileManager();
        manager = tool->findChild<SoPerfCounterProfileManager*>();
        manager->createNewProfile("third");
        takeFolderAway();
        press(QDialogButtonBox::Ok);
        EXPECT_EQ(boxes.take(), refusal());
        if (comesBack)
            bringFolderBack();
        host.stop(extension);
        EXPECT_EQ(boxes.take(), comesBack ? QStringList() : refusal());
        if (!comesBack)
            bringFolderBack();
        EXPECT_EQ(profilesOf(readFile(path())).size(), comesBack ? 3 : 2);
    }
    qunsetenv("XSG_PERFCOUNTER_ENABLE");
}

TEST_F(CounterOwed, WritesNothingAtTheEndOnceSaved)
{
    openBoth();
    press(QDialogButtonBox::Ok);
    writeFile("changed by another program");
    dock->saveOwed();
    EXPECT_EQ(readFile(path()), "changed by another program");
}

TEST_F(CounterOwed, CancelWithoutTheFilePutsBackWhatWasThereAtOpening)
{
    openBoth();
    openOther();
    takeFolderAway();
    press(QDialogButtonBox::Cancel);
    expectExample();
    EXPECT_EQ(dock->getFilepath(), path());
    EXPECT_EQ(boxes.take(), QStringList());
}

TEST_F(CounterOwed, CancelWithAFileOfAnotherKindPutsBackWhatWasThereAtOpening)
{
    openBoth();
    openOther();
    writeFile("<html/>");
    press(QDialogButtonBox::Cancel);
    expectExample();
    EXPECT_EQ(boxes.take().size(), 1) << "the file is said to be another";
}

TEST_F(CounterOwed, CancelWithoutAnyFilePutsBackWhatWasThereAtOpening)
{
    open();
    boxes.take();
    manager = openManager();
    openOther();
    press(QDialogButtonBox::Cancel);
    EXPECT_FALSE(isRegistered("others"));
    EXPECT_EQ(namesOf(dock->getDocument()), QStringList());
    EXPECT_EQ(dock->getFilepath(), "");
    EXPECT_EQ(dock->getDocument().documentElement().tagName(), "perfCounterModule");
}

TEST_F(CounterOwed, DestroyingTheDockWithItsManagerLeavesNoOtherCounters)
{
    openBoth();
    openOther();
    dock.reset();
    EXPECT_TRUE(isRegistered("perFrame"));
    EXPECT_FALSE(isRegistered("others"));
}
