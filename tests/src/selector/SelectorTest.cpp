// SPDX-License-Identifier: MIT
#include "SpxProfileSelectorExtension.h"

#include <support/TestHost.h>

#include <gtest/gtest.h>

#include <QComboBox>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>

namespace
{

using Log = TestHost::Log;

// A host whose list and active profile a test can choose freely.
class ProfileHost : public TestHost
{
public:
    QList<SpxProfile*> getProfilesList() const override
    {
        return m_empty ? QList<SpxProfile*>() : TestHost::getProfilesList();
    }
    SpxProfile* getActiveProfile() const override
    {
        return m_stranger ? m_stranger : TestHost::getActiveProfile();
    }

    bool m_empty = false;
    SpxProfile* m_stranger = nullptr; // active, yet not in the list
};

class Selector : public ::testing::Test
{
protected:
    Selector()
    {
        m_host.addProfile("Edit");
        m_host.addProfile("M\xe9trer");
        m_host.window().show();
    }

    void start() { m_host.start(m_selector); }
    QToolBar& bar() { return *m_host.window().findChild<QToolBar*>(); }
    QComboBox& box() { return *m_host.window().findChild<QComboBox*>(); }
    QStringList items()
    {
        QStringList texts;
        for (int i = 0; i < box().count(); ++i)
            texts << box().itemText(i);
        return texts;
    }
    // Opens the list and moves to the entry with the keys, as a user does.
    void choose(int index)
    {
        box().setFocus();
        const Qt::Key key = index > box().currentIndex() ? Qt::Key_Down : Qt::Key_Up;
        while (box().currentIndex() != index)
            QTest::keyClick(&box(), key);
    }

    ProfileHost m_host;
    SpxProfileSelectorExtension m_selector;
};

const QStringList Names{"Default", "Edit", QString::fromLatin1("M\xe9trer")};

} // namespace

TEST_F(Selector, HasItsNames)
{
    EXPECT_EQ(m_selector.getName(), "Profile Selector");
    EXPECT_EQ(m_selector.getDescription(), "A toolbar to select the active profile.");
    EXPECT_EQ(m_selector.getVendor(), "Arvex");
    EXPECT_EQ(m_selector.getVersion(), "1.0.0");
}

TEST_F(Selector, ListsTheProfilesAndShowsTheActiveOne)
{
    m_host.setActiveProfile(m_host.getProfilesList()[1]);
    m_host.takeLog();
    start();
    EXPECT_EQ(items(), Names);
    EXPECT_EQ(box().currentIndex(), 1);
    EXPECT_FALSE(box().currentData().isValid());
    EXPECT_TRUE(box().itemIcon(1).isNull());
    EXPECT_EQ(box().toolTip(), "Select the active profile.");
    EXPECT_EQ(bar().windowTitle(), "Profile Selector");
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(m_host.window().toolBarArea(&bar()), Qt::TopToolBarArea);
    // Showing the active profile does not choose it.
    EXPECT_EQ(m_host.takeLog(),
              (Log{"addToolBar \"Profile Selector\" 4", "attachExtension \"Profile Selector\" true"}));
}

TEST_F(Selector, NotifiesTheHostFirstAndTheBaseLast)
{
    m_selector.load();
    QStringList order;
    QObject::connect(&m_selector, &SpxExtension::activeChanged, [&](bool active) {
        order << QString("active %1 after %2").arg(active).arg(m_host.log().size());
    });
    QObject::connect(&m_selector, &SpxExtension::shownChanged, [&](bool shown) {
        order << QString("shown %1 after %2").arg(shown).arg(m_host.log().size());
    });
    m_selector.activate();
    EXPECT_EQ(order, (QStringList{"shown 1 after 2", "active 1 after 2"}));
    m_host.takeLog();
    order.clear();
    m_selector.deactivate();
    EXPECT_EQ(order, QStringList{"active 0 after 0"});
    EXPECT_EQ(m_host.takeLog(),
              (Log{"removeToolBar \"Profile Selector\"", "detachExtension \"Profile Selector\""}));
    m_selector.unload();
}

TEST_F(Selector, AnEmptyListGivesAnEmptyBox)
{
    m_host.m_empty = true;
    start();
    EXPECT_EQ(box().count(), 0);
    EXPECT_EQ(box().currentIndex(), -1);
}

TEST_F(Selector, SelectsNothingWhenTheActiveProfileIsNotListed)
{
    SpxProfile stranger("Stranger");
    m_host.m_stranger = &stranger;
    start();
    EXPECT_EQ(items(), Names);
    EXPECT_EQ(box().currentIndex(), -1);
    EXPECT_EQ(m_host.log().size(), 2U);
    m_host.m_stranger = nullptr;
}

TEST_F(Selector, ChoosingAnEntrySetsItsProfileOnceAndAppendsTheNamesAgain)
{
    start();
    m_host.takeLog();
    choose(1);
    EXPECT_EQ(m_host.takeLog(), Log{"setActiveProfile Edit"});
    EXPECT_EQ(m_host.getActiveProfile(), m_host.getProfilesList()[1]);
    EXPECT_EQ(items(), Names + Names);
    EXPECT_EQ(box().currentIndex(), 1);
    choose(0);
    EXPECT_EQ(m_host.takeLog(), Log{"setActiveProfile Default"});
    EXPECT_EQ(items(), Names + Names + Names);
}

TEST_F(Selector, AnEntryBeyondTheListSetsNoProfile)
{
    start();
    choose(1);
    m_host.takeLog();
    box().setCurrentIndex(4);
    EXPECT_EQ(m_host.takeLog(), Log{});
    EXPECT_EQ(m_host.getActiveProfile(), m_host.getProfilesList()[1]);
    EXPECT_EQ(items(), Names + Names + Names);
}

TEST_F(Selector, TheNextActivationRefillsIt)
{
    start();
    choose(2);
    m_selector.deactivate();
    EXPECT_EQ(m_host.window().findChild<QToolBar*>(), nullptr);
    m_host.takeLog();
    m_selector.activate();
    EXPECT_EQ(items(), Names);
    EXPECT_EQ(box().currentIndex(), 2);
    // Connected once, however often it was activated.
    choose(1);
    EXPECT_EQ(m_host.takeLog().back(), "setActiveProfile Edit");
    EXPECT_EQ(items(), Names + Names);
}

TEST_F(Selector, SetsNothingWhileInactive)
{
    m_selector.load();
    m_selector.activate();
    QComboBox* kept = &box();
    m_selector.deactivate();
    m_host.takeLog();
    kept->setCurrentIndex(1);
    EXPECT_EQ(m_host.takeLog(), Log{});
    EXPECT_EQ(kept->count(), 3);
    m_selector.unload();
}

TEST_F(Selector, IsShownAndHidden)
{
    start();
    m_selector.hide();
    EXPECT_FALSE(bar().isVisible());
    EXPECT_FALSE(m_selector.isShown());
    m_selector.show();
    EXPECT_TRUE(bar().isVisible());
    EXPECT_TRUE(m_selector.isShown());
}

TEST_F(Selector, FreesItsWidgetsWhenUnloaded)
{
    start();
    const QPointer<QToolBar> bar = &this->bar();
    const QPointer<QComboBox> box = &this->box();
    m_host.stop(m_selector);
    EXPECT_TRUE(bar.isNull());
    EXPECT_TRUE(box.isNull());
    m_host.start(m_selector);
    EXPECT_EQ(items(), Names);
}
