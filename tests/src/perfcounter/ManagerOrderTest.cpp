// SPDX-License-Identifier: MIT
// The profile manager: the order of its signals, and that nothing is left half done.
#include "CounterFixture.h"

#include <QSignalSpy>
#include <QTimer>

class CounterManagerOrder : public CounterHome
{
protected:
    // With the profile of this index on screen.
    void openAt(int index)
    {
        writeExample();
        open();
        dock->m_listConfig->setCurrentIndex(index);
        const auto note = [this](const char* what) { return [this, what] { told.append(what); }; };
        const auto noteIndex = [this](const char* what) {
            return [this, what](QList<SoPerfCounterProfile*>*, int at) {
                told.append(QString("%1 %2").arg(what).arg(at));
            };
        };
        using Dock = SoPerfCounterDockWin;
        using Manager = SoPerfCounterProfileManager;
        QObject::connect(dock.get(), &Dock::currentProfileChanged, note("currentProfileChanged"));
        QObject::connect(dock.get(), &Dock::needUpdateViewer, note("needUpdateViewer"));
        QObject::connect(dock.get(), &Dock::needClearViewer, note("needClearViewer"));
        QObject::connect(dock.get(), qOverload<QList<SoPerfCounterProfile*>*, int>(&Dock::openingProfile),
                         noteIndex("openingProfile of"));
        QObject::connect(dock.get(), qOverload<>(&Dock::openingProfile), note("openingProfile"));
        manager = openManager();
        QObject::connect(manager, &Manager::deletedCounter,
                         [this](const QString& name) { told.append("deletedCounter " + name); });
        QObject::connect(manager, qOverload<QList<SoPerfCounterProfile*>*, int>(&Manager::okProfile),
                         noteIndex("okProfile of"));
        QObject::connect(manager, qOverload<>(&Manager::okProfile), note("okProfile"));
        QObject::connect(manager, &Manager::cancelProfile, note("cancelProfile"));
        QObject::connect(manager, &Manager::filepathChanged,
                         [this](const QString&) { told.append("filepathChanged"); });
    }
    QStringList take()
    {
        QStringList taken;
        taken.swap(told);
        return taken;
    }
    void press(QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(manager->m_buttonBox->button(button), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void deleteCustom(const char* name)
    {
        boxes.answer(QMessageBox::Ok);
        manager->m_listCounter->selectRow(
            manager->m_listCounter->findItems(name, Qt::MatchExactly).first()->row());
        manager->deleteCounter();
        EXPECT_EQ(boxes.take().size(), 1);
    }
    void createCustom(const char* name)
    {
        CustomCounter counter;
        counter.name = name;
        counter.firstParent = "testA";
        counter.secondParent = "testB";
        counter.operation = "+";
        ASSERT_TRUE(counter.registerIt());
        manager->updateCounterList(name);
    }

    QStringList told;
    QPointer<SoPerfCounterProfileManager> manager;
};

TEST_F(CounterManagerOrder, OpeningHandsOverTheProfilesThenStopsTheClock)
{
    openAt(1);
    EXPECT_EQ(take(), (QStringList{"openingProfile of 1", "openingProfile"}));
    EXPECT_FALSE(dock->m_viewer->getTimer()->isActive());
    EXPECT_EQ(manager->windowModality(), Qt::WindowModal);
}

TEST_F(CounterManagerOrder, OkOnTheFirstProfile)
{
    openAt(0);
    take();
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(take(), (QStringList{"needUpdateViewer", "okProfile of 0", "okProfile"}));
    EXPECT_TRUE(dock->m_viewer->getTimer()->isActive());
}

TEST_F(CounterManagerOrder, OkOnAnotherProfile)
{
    openAt(1);
    take();
    press(QDialogButtonBox::Ok);
    // The first two come from the combo box, whose list is new.
    EXPECT_EQ(take(), (QStringList{"currentProfileChanged", "needUpdateViewer", "needUpdateViewer",
                                   "okProfile of 1", "okProfile"}));
}

TEST_F(CounterManagerOrder, OkOnTheFirstProfileAfterAnother)
{
    openAt(1);
    manager->m_tabProfile->setCurrentIndex(0);
    take();
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(take(), (QStringList{"needUpdateViewer", "okProfile of 0", "okProfile"}));
    EXPECT_EQ(dock->getCurrentProfile(), 0);
    EXPECT_EQ(dock->m_listConfig->currentIndex(), 0);
    EXPECT_EQ(offered(), QStringList{"testA"});
    EXPECT_TRUE(viewed().isEmpty());
}

TEST_F(CounterManagerOrder, OkWithoutAProfile)
{
    openAt(1);
    manager->deleteProfile();
    manager->deleteProfile();
    take();
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(take(), (QStringList{"needClearViewer", "needUpdateViewer", "okProfile of -1", "okProfile"}));
}

TEST_F(CounterManagerOrder, ADeletedCounterLeavesEveryProfile)
{
    openAt(1);
    manager->createNewProfile("third");
    manager->m_listCounter->selectRow(
        manager->m_listCounter->findItems("perFrame", Qt::MatchExactly).first()->row());
    manager->downArrowAction();
    manager->m_tabProfile->setCurrentIndex(0);
    deleteCustom("perFrame");
    take();
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(take().constFirst(), "deletedCounter perFrame");
    EXPECT_TRUE(dock->getProfiles()[2]->getList()->isEmpty());
    EXPECT_FALSE(readFile(path()).contains("perFrame"));
}

TEST_F(CounterManagerOrder, CancelTakesBackWhatWasCreatedAndDeleted)
{
    openAt(1);
    createCustom("created");
    deleteCustom("perFrame");
    take();
    press(QDialogButtonBox::Cancel);
    EXPECT_EQ(take(), (QStringList{"cancelProfile", "filepathChanged"}));
    EXPECT_FALSE(isRegistered("created"));
    ASSERT_TRUE(isRegistered("perFrame"));
    EXPECT_TRUE(SoPerfCounterManager::getInstance()->getCounter("perFrame")->isEnabled());
    EXPECT_TRUE(dock->m_viewer->getTimer()->isActive());
}

TEST_F(CounterManagerOrder, DestroyingTheDockFirstCancelsToo)
{
    openAt(1);
    createCustom("created");
    deleteCustom("perFrame");
    dock.reset();
    EXPECT_FALSE(manager);
    EXPECT_FALSE(isRegistered("created"));
    EXPECT_TRUE(SoPerfCounterManager::getInstance()->getCounter("perFrame")->isEnabled());
}

TEST_F(CounterManagerOrder, ARowDescribesItsCounter)
{
    openAt(1);
    const QTableWidget& table = *manager->m_listCounter;
    const auto rowOf = [&](const char* name) {
        QStringList texts;
        const int row = table.findItems(name, Qt::MatchExactly).first()->row();
        for (int column = 0; column < table.columnCount(); ++column)
            texts.append(table.item(row, column)->text());
        return texts;
    };
    EXPECT_EQ(rowOf("testA"), (QStringList{"testA", "", "Accumulation", "Low", "Tests", "for tests"}));
    EXPECT_EQ(rowOf("perFrame"), (QStringList{"perFrame", "c", "Accumulation", "High", "m", "d"}));
    QStringList names;
    for (int row = 0; row < table.rowCount(); ++row)
        names.append(table.item(row, 0)->text());
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end(), [](const QString& left, const QString& right) {
        return left.localeAwareCompare(right) < 0;
    }));
}
