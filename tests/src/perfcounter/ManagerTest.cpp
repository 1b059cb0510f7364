// SPDX-License-Identifier: MIT
// The profile manager: what OK hands over, what Cancel takes back, and every refusal.
#include "ManagerFixture.h"

#include <QDomDocument>

TEST_F(CounterProfileManager, ShowsCopiesOfTheProfilesAndEveryCounter)
{
    openBoth();
    ASSERT_TRUE(manager);
    EXPECT_EQ(manager->windowTitle(), "Profile Manager - " + path());
    EXPECT_EQ(manager->m_tabProfile->count(), 2);
    EXPECT_EQ(manager->m_tabProfile->currentIndex(), 1);
    EXPECT_EQ(namesIn(page(1)), (QStringList{"testA", "testB", "testC"}));
    EXPECT_TRUE(namesIn(*manager->m_listCounter).contains("perFrame"));
    EXPECT_EQ(manager->m_listCounter->rowHeight(0), 15);
    EXPECT_FALSE(dock->m_viewer->getTimer()->isActive());
    EXPECT_EQ(openManager(), manager) << "one at a time";
    press(QDialogButtonBox::Cancel);
    EXPECT_FALSE(manager);
    EXPECT_TRUE(dock->m_viewer->getTimer()->isActive());
    EXPECT_EQ(profileNames(), (QStringList{"first", "second"}));
}

TEST_F(CounterProfileManager, ACustomCounterNeedsExactlyTwoOthers)
{
    openBoth();
    for (const QStringList& parents : {QStringList{"testA"}, QStringList{"testA", "testB", "testC"}}) {
        EXPECT_EQ(createDialog(parents), nullptr);
        EXPECT_EQ(boxes.take(),
                  QStringList{"Profile Manager - " + path() +
                              ": To create a custom counter you have to select exactly TWO counters "
                              "from the list."});
    }
}

TEST_F(CounterProfileManager, TheCreateDialogWantsAFreeName)
{
    openBoth();
    SoPerfCounterCreateCounter* dialog = createDialog({"testA", "testB"});
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->m_firstLabel->text(), "testA");
    dialog->okButtonAction();
    EXPECT_TRUE(boxes.take().constFirst().endsWith("You have to give a name to your counter."));
    dialog->m_name->setText("testC");
    dialog->okButtonAction();
    EXPECT_TRUE(
        boxes.take().constFirst().endsWith("There is already a counter with this name. Please rename it."));
    EXPECT_TRUE(dialog->isVisible());
    dialog->m_name->setText("product");
    dialog->m_statRadio->setChecked(true);
    dialog->okButtonAction();
    const SoPerfCounter* made = SoPerfCounterManager::getInstance()->getCounter("product");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->getTypeCode(), SbString("S"));
    EXPECT_EQ(made->getOperation(), SbString("+"));
    EXPECT_TRUE(namesIn(*manager->m_listCounter).contains("product"));
    press(QDialogButtonBox::Cancel);
    EXPECT_FALSE(isRegistered("product")) << "Cancel takes it back";
    EXPECT_TRUE(isRegistered("perFrame"));
}

TEST_F(CounterProfileManager, OkHandsOverAndSaves)
{
    openBoth();
    createCounter("product");
    select(*manager->m_listCounter, {"product"});
    QTest::mouseClick(manager->m_downArrow, Qt::LeftButton);
    manager->createNewProfile("third");
    EXPECT_EQ(manager->m_tabProfile->currentIndex(), 2);
    manager->m_tabProfile->setCurrentIndex(1);
    press(QDialogButtonBox::Ok);
    EXPECT_FALSE(manager);
    EXPECT_EQ(profileNames(), (QStringList{"first", "second", "third"}));
    EXPECT_EQ(dock->getCurrentProfile(), 1);
    EXPECT_EQ(*dock->getProfiles()[1]->getList(), (QStringList{"testC", "testA", "testB", "product"}));
    QDomDocument document;
    ASSERT_TRUE(document.setContent(readFile(path())));
    EXPECT_EQ(document.elementsByTagName("profile").size(), 3);
    const QDomNodeList counters =
        document.documentElement().firstChildElement("customPC").elementsByTagName("counter");
    ASSERT_EQ(counters.size(), 2) << "only what is custom is written";
    EXPECT_EQ(counters.at(1).toElement().attribute("name"), "product");
    EXPECT_EQ(counters.at(1).firstChildElement("operation").text(), "*");
    EXPECT_EQ(counters.at(1).firstChildElement("level").text(), "1");
    EXPECT_EQ(document.documentElement().firstChildElement("profileview").attribute("name"), "second");
}

TEST_F(CounterProfileManager, AddingAgainMovesToTheEnd)
{
    openBoth();
    select(*manager->m_listCounter, {"testC"});
    QTest::mouseClick(manager->m_downArrow, Qt::LeftButton);
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(*dock->getProfiles()[1]->getList(), (QStringList{"testA", "testB", "testC"}));
}

TEST_F(CounterProfileManager, RemovingTakesACounterOutOfTheViewToo)
{
    openBoth();
    select(page(1), {"testB"});
    QTest::mouseClick(manager->m_upArrow, Qt::LeftButton);
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(*dock->getProfiles()[1]->getList(), (QStringList{"testC", "testA"}));
    EXPECT_TRUE(viewed().isEmpty());
}

TEST_F(CounterProfileManager, OnlyCustomCountersAreDeletedAndOnlyOnOk)
{
    openBoth();
    boxes.answer(QMessageBox::Cancel);
    select(*manager->m_listCounter, {"testA", "perFrame"});
    QTest::mouseClick(manager->m_deleteCounter, Qt::LeftButton);
    EXPECT_TRUE(namesIn(*manager->m_listCounter).contains("perFrame"));
    boxes.take();
    boxes.answer(QMessageBox::Ok);
    select(*manager->m_listCounter, {"testA", "perFrame"});
    QTest::mouseClick(manager->m_deleteCounter, Qt::LeftButton);
    EXPECT_TRUE(boxes.take().constFirst().endsWith(
        "Do you really want to delete definitively these counters ?\n\nNote "
        "that only custom counters will be affected."));
    EXPECT_FALSE(namesIn(*manager->m_listCounter).contains("perFrame"));
    EXPECT_TRUE(isRegistered("perFrame"));
    EXPECT_TRUE(isRegistered("testA"));
    press(QDialogButtonBox::Ok);
    EXPECT_FALSE(isRegistered("perFrame"));
    EXPECT_TRUE(isRegistered("testA"));
}

TEST_F(CounterProfileManager, WithoutAProfileEachButtonSaysSo)
{
    writeFile("<perfCounterModule/>");
    open();
    manager = openManager();
    QTest::mouseClick(manager->m_downArrow, Qt::LeftButton);
    QTest::mouseClick(manager->m_upArrow, Qt::LeftButton);
    QTest::mouseClick(manager->m_deleteProfile, Qt::LeftButton);
    QTest::mouseClick(manager->m_resetProfile, Qt::LeftButton);
    EXPECT_EQ(boxes.take(),
              (QStringList{"No profiles: You have to create al least one profile before adding counters.",
                           "No profiles: There is no profile from which you can remove a counter.",
                           "No profiles: There is no profile you can remove.",
                           "No profiles: There is no profile you can reset."}));
    press(QDialogButtonBox::Cancel);
}

TEST_F(CounterProfileManager, DeletingEveryProfileEmptiesTheDock)
{
    openBoth();
    QTest::mouseClick(manager->m_deleteProfile, Qt::LeftButton);
    QTest::mouseClick(manager->m_deleteProfile, Qt::LeftButton);
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(dock->getCurrentProfile(), -1);
    EXPECT_TRUE(offered().isEmpty());
    EXPECT_TRUE(viewed().isEmpty());
}

TEST_F(CounterProfileManager, ResettingEmptiesAProfile)
{
    openBoth();
    manager->m_tabProfile->setCurrentIndex(0);
    QTest::mouseClick(manager->m_resetProfile, Qt::LeftButton);
    press(QDialogButtonBox::Ok);
    EXPECT_TRUE(dock->getProfiles()[0]->getList()->isEmpty());
    EXPECT_EQ(dock->getCurrentProfile(), 0);
    EXPECT_TRUE(offered().isEmpty());
}

TEST_F(CounterProfileManager, TheFirstProfileChosenAgainIsShownAgain)
{
    openBoth();
    dock->m_listConfig->setCurrentIndex(0);
    manager->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    manager = openManager();
    select(*manager->m_listCounter, {"testB"});
    QTest::mouseClick(manager->m_downArrow, Qt::LeftButton);
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(offered(), (QStringList{"testA", "testB"}));
}

TEST_F(CounterProfileManager, WithoutAPathOkIsRefusedUntilThereIsOne)
{
    open();
    boxes.take();
    manager = openManager();
    press(QDialogButtonBox::Ok);
    const QString refusal =
        "Path invalid: Please choose a new path where you want to save your modifications with the "
        "\"save as\" action";
    EXPECT_EQ(boxes.take(), QStringList{refusal});
    ASSERT_TRUE(manager);
    EXPECT_FALSE(manager->close());
    EXPECT_EQ(boxes.take(), QStringList{refusal});
    manager->setFilepath(folder.path() + "/saved.xml");
    EXPECT_TRUE(manager->close());
    EXPECT_TRUE(QFile::exists(folder.path() + "/saved.xml"));
    EXPECT_EQ(dock->getFilepath(), folder.path() + "/saved.xml");
}

TEST_F(CounterProfileManager, ClosingTheWindowIsCancelling)
{
    openBoth();
    createCounter("product");
    manager->createNewProfile("third");
    manager->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(isRegistered("product"));
    EXPECT_EQ(profileNames(), (QStringList{"first", "second"}));
}

TEST_F(CounterProfileManager, SurvivesTheEndOfItsDock)
{
    openBoth();
    dock.reset();
    EXPECT_FALSE(manager);
}

TEST_F(CounterProfileManager, HundredsOfProfilesAndCountersSurviveTheRoundTrip)
{
    QByteArray content = "<perfCounterModule><customPC>";
    for (int i = 0; i < 200; ++i) {
        content += "<counter name=\"custom" + QByteArray::number(i) +
                   "\" type=\"A\"><description>&lt;d&gt; \xc3\xa4</description><module/><level>1</level>"
                   "<firstparent>testA</firstparent><secondparent>testB</secondparent><operation>-</"
                   "operation></counter>";
    }
    content += "</customPC><profiles>";
    for (int i = 0; i < 200; ++i) {
        content += "<profile name=\"p" + QByteArray::number(i) +
                   "\"><listcounters><pc>testA</pc><pc>custom1</pc></listcounters><listview><pcviewed>testA</"
                   "pcviewed>"
                   "</listview></profile>";
    }
    content += "</profiles><profileview name=\"p7\"/></perfCounterModule>";
    writeFile(content);
    open();
    EXPECT_EQ(dock->getCurrentProfile(), 7);
    manager = openManager();
    press(QDialogButtonBox::Ok);
    const auto sectionsOf = [](const QByteArray& text) {
        QDomDocument document;
        EXPECT_TRUE(document.setContent(text));
        QStringList texts;
        const QDomNodeList all = document.elementsByTagName("*");
        for (int i = 0; i < all.size(); ++i) {
            const QDomElement e = all.at(i).toElement();
            texts.append(e.tagName() + "|" + e.attribute("name") + "|" + e.attribute("type") + "|" +
                         (e.firstChildElement().isNull() ? e.text() : QString()));
        }
        return texts;
    };
    EXPECT_EQ(sectionsOf(readFile(path())), sectionsOf(content));
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(CounterProfileManager, UpdatesACounterInEveryTab)
{
    openBoth();
    select(*manager->m_listCounter, {"perFrame"});
    for (const int tab : {0, 1}) {
        manager->m_tabProfile->setCurrentIndex(tab);
        QTest::mouseClick(manager->m_downArrow, Qt::LeftButton);
        EXPECT_TRUE(namesIn(page(tab)).contains("perFrame"));
    }
    boxes.answer(QMessageBox::Ok);
    select(*manager->m_listCounter, {"perFrame"});
    QTest::mouseClick(manager->m_deleteCounter, Qt::LeftButton);
    EXPECT_EQ(namesIn(page(1)), (QStringList{"testA", "testB", "testC"}));
    EXPECT_EQ(namesIn(page(0)), QStringList{"testA"});
    press(QDialogButtonBox::Cancel);
}

TEST_F(CounterProfileManager, ACounterThatProfilesWaitForIsSeenInEveryTabOnceItIsMade)
{
    writeFile(
        "<perfCounterModule><profiles><profile "
        "name='one'><listcounters><pc>late</pc></listcounters></profile>"
        "<profile "
        "name='two'><listcounters><pc>late</pc></listcounters></profile></profiles></perfCounterModule>");
    open();
    manager = openManager();
    for (const int tab : {1, 0}) {
        manager->m_tabProfile->setCurrentIndex(tab);
        EXPECT_EQ(namesIn(page(tab)), QStringList());
    }
    createCounter("late");
    for (const int tab : {0, 1})
        EXPECT_EQ(namesIn(page(tab)), QStringList{"late"});
    press(QDialogButtonBox::Cancel);
}

TEST_F(CounterProfileManager, ADeletedNameCanBeGivenAgainAfterOk)
{
    openBoth();
    SoPerfCounterManager::getInstance()->getCounter("perFrame")->setScaleFactor(7);
    boxes.answer(QMessageBox::Ok);
    select(*manager->m_listCounter, {"perFrame"});
    QTest::mouseClick(manager->m_deleteCounter, Qt::LeftButton);
    boxes.take();
    createCounter("perFrame");
    EXPECT_TRUE(
        boxes.take().join('|').endsWith("There is already a counter with this name. Please rename it."));
    manager->findChild<SoPerfCounterCreateCounter*>()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    press(QDialogButtonBox::Ok);
    manager = openManager();
    createCounter("perFrame");
    EXPECT_EQ(boxes.take(), QStringList());
    press(QDialogButtonBox::Ok);
    const SoPerfCounter* made = SoPerfCounterManager::getInstance()->getCounter("perFrame");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->getOperation(), SbString("*"));
    EXPECT_EQ(made->getScaleFactor(), 1.0) << "another counter than the one before";
    EXPECT_TRUE(readFile(path()).contains("<operation>*</operation>"));
}

TEST_F(CounterProfileManager, OpeningItKeepsTheScales)
{
    openBoth();
    press(QDialogButtonBox::Cancel);
    const auto scaleOf = [](const char* name) {
        return SoPerfCounterManager::getInstance()->getCounter(name)->getScaleFactor();
    };
    dock->m_viewer->doubleClickEvent("perFrame");
    for (const char* name : {"perFrame", "testA"})
        SoPerfCounterManager::getInstance()->getCounter(name)->setScaleFactor(3);
    for (const auto button : {QDialogButtonBox::Cancel, QDialogButtonBox::Ok}) {
        manager = openManager();
        press(button);
        EXPECT_EQ(scaleOf("perFrame"), 3.0);
        EXPECT_EQ(scaleOf("testA"), 3.0);
    }
    // Nor does a file that no longer exists.
    manager = openManager();
    QFile::remove(path());
    press(QDialogButtonBox::Cancel);
    EXPECT_EQ(scaleOf("perFrame"), 3.0);
}
