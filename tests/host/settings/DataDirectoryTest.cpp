// SPDX-License-Identifier: MIT
#include "settings/DataDirectory.h"

#include <xsg/core/SoPreferences.h>
#include <xsg/counters/SoPerfCounterManager.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>

using namespace scopix;

namespace
{

class Home : public testing::Test
{
protected:
    Home()
    {
        qunsetenv("XSGHOME");
        qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    }
    ~Home() override
    {
        qunsetenv("XSGHOME");
        qunsetenv("XDG_DATA_HOME");
        SoPreferences::setValue("XSGHOME", SbString());
    }
    QString file() const { return folder.path() + "/scopix/data/Scopix/PerfCounter.xml"; }

    QTemporaryDir folder;
};

} // namespace

TEST_F(Home, IsFilledOnFirstUseAndKeptAfterwards)
{
    EXPECT_EQ(DataDirectory::ensure(), "");
    EXPECT_EQ(SoPreferences::getString("XSGHOME", ""), SbString((folder.path() + "/scopix").toStdString()));
    QFile saved(file());
    ASSERT_TRUE(saved.open(QIODevice::ReadWrite)) << "the user may change it";
    saved.resize(0);
    saved.write("mine");
    saved.close();
    EXPECT_EQ(DataDirectory::ensure(), "");
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll(), "mine");
}

TEST_F(Home, KeepsOneThatIsSet)
{
    qputenv("XSGHOME", "/somewhere/else");
    EXPECT_EQ(DataDirectory::ensure(), "");
    EXPECT_EQ(qgetenv("XSGHOME"), "/somewhere/else");
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(Home, KeepsOneOfThePreferences)
{
    SoPreferences::setValue("XSGHOME", "/somewhere/else");
    EXPECT_EQ(DataDirectory::ensure(), "");
    EXPECT_EQ(SoPreferences::getString("XSGHOME", ""), SbString("/somewhere/else"));
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(Home, TheEnvironmentOfTheProcessStaysAsItIs)
{
    EXPECT_EQ(DataDirectory::ensure(), "");
    EXPECT_FALSE(qEnvironmentVariableIsSet("XSGHOME"));
}

TEST_F(Home, ReportsAFolderThatCannotBeMade)
{
    QFile inTheWay(folder.path() + "/scopix");
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    EXPECT_TRUE(DataDirectory::ensure().contains(file()));
}

TEST_F(Home, TheShippedProfilesNameOnlyCountersThatExist)
{
    ASSERT_EQ(DataDirectory::ensure(), "");
    QFile shipped(file());
    QDomDocument document;
    ASSERT_TRUE(document.setContent(&shipped));
    EXPECT_EQ(document.elementsByTagName("profile").size(), 3);
    QStringList custom;
    const QDomNodeList counters = document.elementsByTagName("counter");
    for (int i = 0; i < counters.size(); ++i)
        custom.append(counters.at(i).toElement().attribute("name"));
    EXPECT_EQ(custom.size(), 2);
    for (const char* tag : {"pc", "pcviewed", "firstparent", "secondparent"}) {
        const QDomNodeList names = document.elementsByTagName(tag);
        EXPECT_GT(names.size(), 0);
        for (int i = 0; i < names.size(); ++i) {
            const QString name = names.at(i).toElement().text();
            EXPECT_TRUE(custom.contains(name) ||
                        SoPerfCounterManager::getInstance()->getCounter(name.toLatin1().constData()))
                << name.toStdString();
        }
    }
}
