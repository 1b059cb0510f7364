// SPDX-License-Identifier: MIT
#include "PluginParts.h"

#include <scopix/SpxExtension.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace
{

QString text(const SbString& string)
{
    return QString::fromLatin1(string.getString());
}

QStringList names(const HostPluginsManager& manager)
{
    QStringList list;
    for (const SpxProfile* profile : manager.getProfilesList())
        list += text(profile->getName());
    return list;
}

ProfileChoice only(const QString& name, const QStringList& tools)
{
    return {name, {true, {}}, {false, tools}};
}

class ProfilesFile : public ::testing::Test
{
protected:
    void put(const QByteArray& content)
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("profiles.json");
    ProfileFile m_file{m_path};
    QString m_error;
};

TEST_F(ProfilesFile, ShipsFourProfiles)
{
    const ProfileSettings settings = m_file.read(m_error);
    ASSERT_EQ(settings.profiles.size(), 4U);
    EXPECT_EQ(settings.profiles[0].name, "Default");
    EXPECT_TRUE(settings.profiles[0].editors.all && settings.profiles[0].tools.all);
    EXPECT_EQ(settings.profiles[1].name, "Edit");
    EXPECT_EQ(settings.profiles[2].name, "Measure");
    EXPECT_EQ(settings.profiles[3].name, "Classic");
    EXPECT_EQ(settings.active, "Default");
    EXPECT_EQ(m_error, "");
}

TEST_F(ProfilesFile, ClassicHasTheDefaultExtensionsAndNoOthers)
{
    const HostProfile classic(ProfileFile::shipped().profiles.back());
    for (const bool isEditor : {true, false}) {
        EXPECT_TRUE(classic.controls("SpxDefaults/Console", isEditor));
        EXPECT_FALSE(classic.controls("SpxDefaults2/Console", isEditor));
        EXPECT_FALSE(classic.controls("Inspector/Panel", isEditor));
    }
}

TEST_F(ProfilesFile, ReadsBackWhatItWrote)
{
    ProfileSettings settings = ProfileFile::shipped();
    settings.profiles.push_back({"Grün \"1\"", {false, {"A/b"}}, {false, {}}});
    settings.active = "Edit";
    ASSERT_EQ(m_file.write(settings), "");
    const ProfileSettings back = m_file.read(m_error);
    EXPECT_EQ(m_error, "");
    ASSERT_EQ(back.profiles.size(), 5U);
    EXPECT_EQ(back.profiles[4].name, "Grün \"1\"");
    EXPECT_EQ(back.profiles[4].editors.names, QStringList{"A/b"});
    EXPECT_FALSE(back.profiles[4].tools.all);
    EXPECT_EQ(back.active, "Edit");
}

TEST_F(ProfilesFile, MayBeginWithAByteOrderMark)
{
    ASSERT_EQ(m_file.write(ProfileFile::shipped()), "");
    QFile file(m_path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    file.close();
    put("\xEF\xBB\xBF" + content);
    EXPECT_EQ(m_file.read(m_error).profiles.size(), ProfileFile::shipped().profiles.size());
    EXPECT_EQ(m_error, "");
    EXPECT_EQ(files(), QStringList("profiles.json")) << "it was taken for damaged";
}

TEST_F(ProfilesFile, DefaultIsAlwaysThereAndWhole)
{
    put(R"({"active":"Mine","profiles":[{"name":"Mine","editors":[],"tools":"all"},)"
        R"({"name":"Default","editors":[],"tools":[]}]})");
    ProfileSettings settings = m_file.read(m_error);
    ASSERT_EQ(settings.profiles.size(), 2U);
    EXPECT_TRUE(settings.profiles[1].editors.all);
    put(R"({"active":"Mine","profiles":[]})");
    settings = m_file.read(m_error);
    ASSERT_EQ(settings.profiles.size(), 1U);
    EXPECT_EQ(settings.profiles[0].name, "Default");
    EXPECT_EQ(m_error, "");
}

struct Damaged {
    QByteArray content;
    const char* expected;
};

class DamagedFile : public ProfilesFile, public ::testing::WithParamInterface<Damaged>
{
};

TEST_P(DamagedFile, IsReportedAndKeptUnderAnotherName)
{
    put(GetParam().content);
    const ProfileSettings settings = m_file.read(m_error);
    EXPECT_EQ(settings.profiles.size(), 4U);
    EXPECT_TRUE(m_error.contains(m_path)) << m_error.toStdString();
    EXPECT_TRUE(m_error.contains(QString::fromUtf8(GetParam().expected))) << m_error.toStdString();
    EXPECT_TRUE(m_error.contains("profiles.damaged.json"));
    EXPECT_EQ(m_error.count('\n'), 0);
    ASSERT_EQ(files(), QStringList{"profiles.damaged.json"});
    QFile kept(m_folder.filePath("profiles.damaged.json"));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), GetParam().content);
}

const char* const Good = R"({"name":"A","editors":"all","tools":"all"})";

INSTANTIATE_TEST_SUITE_P(
    Cases, DamagedFile,
    ::testing::Values(
        Damaged{"", "line 1"}, Damaged{"{\n\"active\": \"A\",\n oops }", "line 3"},
        Damaged{"[]", "one object"}, Damaged{"{}", "“profiles” must be a list"},
        Damaged{R"({"active":"A","profiles":[7]})", "profile 1 must be an object"},
        Damaged{R"({"active":"A","profiles":[{}]})", "“name” of profile 1"},
        Damaged{R"({"active":"A","profiles":[{"name":""}]})", "profile 1"},
        Damaged{R"({"active":"A","profiles":[{"name":"A","editors":"some","tools":[]}]})", "“editors”"},
        Damaged{R"({"active":"A","profiles":[{"name":"A","editors":[],"tools":[1]}]})", "“tools”"},
        Damaged{R"({"active":"A","profiles":[{"name":" ","editors":[],"tools":[]}]})", "needs a name"},
        Damaged{QByteArray(R"({"active":"A","profiles":[)") + Good + "," + Good + "]}", "already"},
        Damaged{QByteArray(R"({"profiles":[)") + Good + "]}", "“active”"},
        Damaged{QByteArray(5 * 1024 * 1024, 'x'), "larger"}, Damaged{QByteArray(100000, '['), "line 1"}));

TEST_F(ProfilesFile, DamagedTwiceKeepsBoth)
{
    put("one");
    m_file.read(m_error);
    put("two");
    m_file.read(m_error);
    EXPECT_EQ(files(), (QStringList{"profiles.damaged-2.json", "profiles.damaged.json"}));
}

TEST_F(ProfilesFile, ReportsAFileThatCannotBeWritten)
{
    put("a file where a folder should be");
    const ProfileFile below(m_path + "/profiles.json");
    const QString problem = below.write(ProfileFile::shipped());
    EXPECT_TRUE(problem.contains(m_path)) << problem.toStdString();
}

TEST(Profiles, AreRememberedFromOneSessionToTheNext)
{
    PluginHost first;
    first.manager.profiles().setProfiles({only("Mine", {"Test/First"})}, "Mine");
    HostPluginsManager second(first.services, first.shell, ProfileFile(first.profilesPath()));
    second.profiles().read();
    EXPECT_EQ(names(second), (QStringList{"Default", "Mine"}));
    EXPECT_EQ(second.profiles().activeProfile()->name(), "Mine");
    EXPECT_EQ(first.failures, QStringList());
}

TEST(Profiles, ASessionsProfileIsNotRemembered)
{
    PluginHost host;
    host.manager.profiles().read();
    EXPECT_TRUE(host.manager.profiles().useProfile("Edit"));
    EXPECT_FALSE(host.manager.profiles().useProfile("No such"));
    EXPECT_EQ(host.manager.profiles().activeProfile()->name(), "Edit");
    EXPECT_FALSE(QFile::exists(host.profilesPath()));
}

TEST(Profiles, ControlTheirExtensionsInTheOrderOfRegistration)
{
    PluginHost host;
    host.manager.profiles().setProfiles({only("Mine", {"Other/Third", "Test/First"})}, "Mine");
    host.manager.loadPlugin(testPlugin("Good"));
    host.manager.loadPlugin(testPlugin("Other"));
    QStringList controlled;
    for (const SpxExtension* each :
         host.manager.profiles().activeProfile()->setting().getControlledExtensions())
        controlled += text(each->getName());
    EXPECT_EQ(controlled, (QStringList{"First", "Editor", "Third"}));
    const SpxExtension* second = host.manager.extensions()[2].extension();
    EXPECT_FALSE(second->isActive());
    EXPECT_EQ(second->getProfileSetting(), &host.manager.profiles().activeProfile()->setting());
}

class Switching : public ::testing::Test
{
protected:
    Switching()
    {
        m_host.manager.profiles().setProfiles({only("Mine", {"Test/Second"})}, "Default");
        m_host.manager.loadPlugin(testPlugin("Good"));
        runLoop();
        takePluginLog();
    }
    void switchTo(const QString& name)
    {
        m_host.manager.setActiveProfile(m_host.manager.profiles().findProfile(name));
    }

    PluginHost m_host;
};

TEST_F(Switching, TakesEffectInTheNextTurnAndReportsTheSelectionAgain)
{
    SoRef<SoMaterial> material = new SoMaterial;
    m_host.services.select(material.get());
    takePluginLog();
    switchTo("Mine");
    EXPECT_EQ(m_host.manager.profiles().activeProfile()->name(), "Mine");
    EXPECT_EQ(takePluginLog(), QStringList());
    runLoop();
    EXPECT_EQ(takePluginLog(), (QStringList{"Second deactivate", "First deactivate", "Second activate",
                                            "Second show", "Second selected"}));
    EXPECT_EQ(m_host.services.selectedNode(), material.get());
}

TEST_F(Switching, WaitsForAModalDialogToClose)
{
    QDialog dialog(&m_host.window);
    dialog.open();
    switchTo("Mine");
    runLoop();
    EXPECT_EQ(takePluginLog(), QStringList());
    dialog.accept();
    runLoop();
    EXPECT_EQ(takePluginLog().size(), 5);
}

TEST_F(Switching, ManyTimesLeavesNothingBehind)
{
    for (int i = 0; i < 200; ++i) {
        switchTo(i % 2 ? "Default" : "Mine");
        runLoop();
        EXPECT_EQ(m_host.window.findChildren<QDockWidget*>().size(), i % 2 ? 2 : 1);
        EXPECT_EQ(m_host.shell.extensions().size(), i % 2 ? 2 : 1);
    }
    EXPECT_EQ(m_host.failures, QStringList());
}

TEST_F(Switching, BackAndForthInOneTurnSwitchesOnce)
{
    switchTo("Mine");
    switchTo("Default");
    runLoop();
    EXPECT_EQ(takePluginLog().count("First activate"), 1);
}

TEST_F(Switching, AnUnknownProfileIsIgnored)
{
    SpxProfile stranger("Stranger");
    m_host.manager.setActiveProfile(&stranger);
    m_host.manager.setActiveProfile(nullptr);
    runLoop();
    EXPECT_EQ(m_host.manager.profiles().activeProfile()->name(), "Default");
    EXPECT_EQ(takePluginLog(), QStringList());
}

TEST_F(Switching, DeletingTheActiveProfileFallsBackToDefault)
{
    switchTo("Mine");
    runLoop();
    m_host.manager.profiles().setProfiles({}, "Mine");
    runLoop();
    EXPECT_EQ(names(m_host.manager), QStringList{"Default"});
    EXPECT_EQ(m_host.manager.getActiveProfile(), m_host.manager.getProfilesList().first());
    EXPECT_EQ(m_host.shell.extensions().size(), 2);
}

TEST_F(Switching, UnloadingRightAfterASwitchWasAskedForIsSafe)
{
    switchTo("Mine");
    m_host.manager.unloadAll();
    takePluginLog();
    runLoop();
    EXPECT_EQ(takePluginLog(), QStringList());
}

} // namespace
