// SPDX-License-Identifier: MIT
// Where plug-ins are found, and what the window says where there are none.
#include "PluginParts.h"

#include "plugins/NoPluginsNotice.h"
#include "plugins/PluginSearchPath.h"
#include "support/OwnLibrary.h"

#include <gtest/gtest.h>

#include <QtWidgets>

using namespace scopix;

namespace
{

class SearchPath : public ::testing::Test
{
protected:
    SearchPath() { qputenv("XDG_DATA_HOME", at("home").toLocal8Bit()); }

    QString at(const QString& path) const { return QDir(m_folder.path()).filePath(path); }
    QString make(const QString& path) const
    {
        QDir().mkpath(QFileInfo(at(path)).path());
        QFile file(at(path));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return at(path);
    }
    QStringList find() const { return PluginSearchPath(at("app/bin"), at("sdk/lib")).findAll(); }

    QTemporaryDir m_folder;
};

TEST_F(SearchPath, SearchesTheProgramThenTheHostLibraryThenTheUser)
{
    const QString mine = make("home/scopix/plugins/mine.so");
    const QString installed = make("sdk/lib/scopix/plugins/a.so");
    const QString besideLibrary = make("sdk/lib/libSpxB.so");
    const QString inTree = make("app/lib/scopix/plugins/c.so");
    const QString inLibraries = make("app/lib/libSpxD.so");
    const QString besideProgram = make("app/bin/libSpxE.so");
    make("sdk/lib/libOther.so");
    make("sdk/lib/scopix/plugins/readme.txt");
    EXPECT_EQ(find(), (QStringList{besideProgram, inLibraries, inTree, besideLibrary, installed, mine}));
}

TEST_F(SearchPath, TheDefaultExtensionsComeFirst)
{
    const QString first = make("app/bin/libSpxA.so");
    const QString second = make("app/bin/libSpxB.so");
    const QString defaults = make("sdk/lib/scopix/plugins/libSpxDefaults.so");
    EXPECT_EQ(find(), (QStringList{defaults, first, second}));
}

TEST_F(SearchPath, TheFirstOfTwoFilesOfOneNameIsUsed)
{
    const QString first = make("app/bin/libSpxDefaults.so");
    make("sdk/lib/libSpxDefaults.so");
    EXPECT_EQ(find(), QStringList{first});
}

TEST_F(SearchPath, NoFileComesTwiceWhateverLinksLeadToIt)
{
    const QString file = make("app/bin/libSpxA.so");
    QDir().mkpath(at("sdk"));
    ASSERT_TRUE(QFile::link(at("app/bin"), at("sdk/lib")));
    QDir().mkpath(at("home/scopix/plugins"));
    ASSERT_TRUE(QFile::link(file, at("home/scopix/plugins/another.so")));
    EXPECT_EQ(find(), QStringList{file});
}

TEST_F(SearchPath, ThisProgramFindsWhatLiesBesideIt)
{
    EXPECT_TRUE(PluginSearchPath().findAll().contains(QDir::cleanPath(SCOPIX_PLUGIN)));
    EXPECT_TRUE(PluginSearchPath().folders().contains(OwnLibrary::folder() + "/scopix/plugins"));
    EXPECT_TRUE(PluginSearchPath().folders().contains(PluginSearchPath::ofUser()));
}

TEST(NoPlugins, TheWindowSaysWhereTheyWereLookedFor)
{
    QMainWindow window;
    const PluginSearchPath path("/app/bin", "/sdk/lib");
    const auto* notice = new NoPluginsNotice(window, path.folders());
    window.show();
    EXPECT_EQ(window.dockWidgetArea(window.findChild<QDockWidget*>("noPlugins")), Qt::RightDockWidgetArea);
    EXPECT_TRUE(notice->isVisible());
    const QString text = notice->findChild<QPlainTextEdit*>()->toPlainText();
    for (const QString& folder : path.folders())
        EXPECT_TRUE(text.contains(folder)) << text.toStdString();
}

} // namespace
