// SPDX-License-Identifier: MIT
#include "PluginParts.h"

#include "profiles/ProfilesDialog.h"
#include "profiles/ProfilesMenu.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

using namespace scopix;

namespace
{

class Dialog : public ::testing::Test
{
protected:
    Dialog()
    {
        m_host.manager.loadPlugin(testPlugin("Good"));
        m_host.manager.profiles().setProfiles({{"Mine", {true, {}}, {false, {"Test/First", "Absent/Tool"}}}},
                                              "Mine");
        runLoop();
        m_dialog = std::make_unique<ProfilesDialog>(m_host.manager.profiles());
        m_dialog->show();
    }
    QListWidget& list() { return *m_dialog->findChild<QListWidget*>("profiles"); }
    QTreeWidget& tree() { return *m_dialog->findChild<QTreeWidget*>("extensions"); }
    QPushButton& button(const char* name) { return *m_dialog->findChild<QPushButton*>(name); }
    void click(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    QTreeWidgetItem& tool(const QString& name)
    {
        return *tree().findItems(name, Qt::MatchExactly | Qt::MatchRecursive).first();
    }
    void nameInPlace(const QString& name)
    {
        auto* edit = list().findChild<QLineEdit*>();
        ASSERT_TRUE(edit);
        edit->selectAll();
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
        runLoop();
    }
    QStringList names() const
    {
        QStringList list;
        for (const auto& profile : m_host.manager.profiles().profiles())
            list += profile->name();
        return list;
    }

    PluginHost m_host;
    std::unique_ptr<ProfilesDialog> m_dialog;
};

TEST_F(Dialog, ShowsTheActiveProfilesChoice)
{
    EXPECT_EQ(list().currentItem()->text(), "Mine");
    EXPECT_EQ(tool("First").checkState(0), Qt::Checked);
    EXPECT_EQ(tool("Second").checkState(0), Qt::Unchecked);
    EXPECT_EQ(tool("Editor").checkState(0), Qt::Checked);
}

TEST_F(Dialog, MakesAProfileFromTheActiveOneAndNamesIt)
{
    click("newProfile");
    nameInPlace("Other");
    tool("Second").setCheckState(0, Qt::Checked);
    tool("First").setCheckState(0, Qt::Unchecked);
    EXPECT_EQ(names(), (QStringList{"Default", "Mine"}));
    m_dialog->accept();
    EXPECT_EQ(names(), (QStringList{"Default", "Mine", "Other"}));
    EXPECT_EQ(m_host.manager.profiles().activeProfile()->name(), "Mine");
    EXPECT_EQ(m_host.manager.profiles().findProfile("Other")->choice().tools.names,
              (QStringList{"Test/Second", "Absent/Tool"}));
    EXPECT_EQ(m_host.manager.profiles().findProfile("Mine")->choice().tools.names,
              (QStringList{"Test/First", "Absent/Tool"}));
    EXPECT_EQ(m_host.failures, QStringList());
}

TEST_F(Dialog, RenamesTheActiveProfileWhichStaysActive)
{
    click("renameProfile");
    nameInPlace("Renamed");
    m_dialog->accept();
    runLoop();
    EXPECT_EQ(names(), (QStringList{"Default", "Renamed"}));
    EXPECT_EQ(m_host.manager.profiles().activeProfile()->name(), "Renamed");
}

TEST_F(Dialog, RefusesANameThatIsTakenEmptyOrOutsideLatin1)
{
    for (const QString& bad : {QString("Default"), QString(" "), QString::fromUtf8("\u4e2d")}) {
        list().currentItem()->setText(bad);
        EXPECT_EQ(list().currentItem()->text(), "Mine");
        EXPECT_FALSE(m_dialog->findChild<QLabel*>("problem")->text().isEmpty());
    }
}

TEST_F(Dialog, DeletesTheActiveProfile)
{
    click("deleteProfile");
    m_dialog->accept();
    runLoop();
    EXPECT_EQ(names(), QStringList{"Default"});
    EXPECT_EQ(m_host.manager.profiles().activeProfile()->name(), "Default");
}

TEST_F(Dialog, DeletesAProfileBetweenOthers)
{
    m_host.manager.profiles().setProfiles({{"First", {true, {}}, {false, {"Test/First"}}},
                                           {"Second", {true, {}}, {false, {"Test/Second"}}},
                                           {"Default", {true, {}}, {true, {}}},
                                           {"Last", {true, {}}, {false, {}}}},
                                          "Last");
    m_dialog = std::make_unique<ProfilesDialog>(m_host.manager.profiles());
    m_dialog->show();
    EXPECT_TRUE(list().item(3)->font().bold());
    list().setCurrentRow(0);
    click("deleteProfile");
    EXPECT_EQ(list().currentItem()->text(), "Second");
    EXPECT_EQ(tool("Second").checkState(0), Qt::Checked);
    EXPECT_EQ(tool("First").checkState(0), Qt::Unchecked);
    // Without the active profile, "Default" is active, wherever it stands.
    list().setCurrentRow(2);
    click("deleteProfile");
    EXPECT_TRUE(list().item(1)->font().bold());
    m_dialog->accept();
    EXPECT_EQ(names(), (QStringList{"Second", "Default"}));
    EXPECT_EQ(m_host.manager.profiles().activeProfile()->name(), "Default");
}

TEST_F(Dialog, NewCopiesTheActiveProfileWhicheverIsShown)
{
    list().setCurrentRow(0);
    click("newProfile");
    nameInPlace("Other");
    EXPECT_EQ(tool("First").checkState(0), Qt::Checked);
    EXPECT_EQ(tool("Second").checkState(0), Qt::Unchecked);
}

TEST_F(Dialog, DefaultCannotBeChanged)
{
    list().setCurrentRow(0);
    EXPECT_FALSE(button("deleteProfile").isEnabled());
    EXPECT_FALSE(button("renameProfile").isEnabled());
    EXPECT_FALSE(list().currentItem()->flags() & Qt::ItemIsEditable);
    EXPECT_TRUE(tool("First").isDisabled());
    EXPECT_TRUE(m_dialog->findChild<QLabel*>("problem")->text().contains("stays as it is"));
    list().setCurrentRow(1);
    EXPECT_TRUE(button("deleteProfile").isEnabled());
    EXPECT_EQ(m_dialog->findChild<QLabel*>("problem")->text(), "");
}

TEST_F(Dialog, AllToolsMeansThoseOfLaterPluginsToo)
{
    tool("Second").setCheckState(0, Qt::Checked);
    m_dialog->accept();
    EXPECT_TRUE(m_host.manager.profiles().findProfile("Mine")->choice().tools.all);
}

TEST_F(Dialog, CancelChangesNothing)
{
    click("deleteProfile");
    m_dialog->reject();
    EXPECT_EQ(names(), (QStringList{"Default", "Mine"}));
}

TEST_F(Dialog, TheMenuOpensItAndSwitchesProfiles)
{
    QMainWindow window;
    QMenu menu(&window);
    new ProfilesMenu(m_host.manager.profiles(), menu);
    ASSERT_EQ(menu.actions().size(), 4);
    EXPECT_TRUE(menu.actions().at(1)->isChecked());
    menu.actions().at(0)->trigger();
    EXPECT_EQ(m_host.manager.profiles().activeProfile()->name(), "Default");
    EXPECT_TRUE(menu.actions().at(0)->isChecked());
    menu.findChild<QAction*>("manageProfiles")->trigger();
    auto* dialog = qobject_cast<ProfilesDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    dialog->reject();
}

} // namespace
