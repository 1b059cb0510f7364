// SPDX-License-Identifier: MIT
// Scenes, profiles, the window's state and recovered edits, as earlier builds saved them, open unchanged.
// Each folder of saved/ holds what one build wrote; add one whenever a format changes.
#include "app/HostSession.h"
#include "document/RecentFiles.h"
#include "document/RecoverySlot.h"
#include "profiles/ProfileFile.h"
#include "window/MainWindow.h"

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/properties/SoFog.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace scopix;

namespace
{

class EarlierBuild : public testing::TestWithParam<std::string>
{
protected:
    static QString saved(const char* name)
    {
        return QString::fromLatin1(SAVED_BY_EARLIER_BUILDS) + QString::fromStdString(GetParam()) + '/' + name;
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }
    /// A copy of a saved file, in a folder of the test's own.
    QString copied(const char* name, const char* to)
    {
        const QString target = m_home.filePath(to);
        QDir().mkpath(QFileInfo(target).path());
        EXPECT_TRUE(QFile::copy(saved(name), target));
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        return target;
    }
    static SoRef<SoNode> read(const QString& path)
    {
        std::string error;
        SoRef<SoNode> root = SoSceneFile::read(QFile::encodeName(path).toStdString(), error);
        EXPECT_EQ(error, "");
        return root;
    }
    template <class Node>
    static Node* last(const SoRef<SoNode>& root)
    {
        Node* found = nullptr;
        for (SoNode* child : root->asGroup()->getChildren()) {
            if (auto* node = dynamic_cast<Node*>(child))
                found = node;
        }
        return found;
    }

    QTemporaryDir m_home;
};

std::vector<std::string> builds()
{
    std::vector<std::string> names;
    for (const QString& name : QDir(SAVED_BY_EARLIER_BUILDS).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        names.push_back(name.toStdString());
    return names;
}

} // namespace

TEST_P(EarlierBuild, SavedScenesThatReadBackToTheSameText)
{
    const SoRef<SoNode> root = read(saved("everything.xsg"));
    ASSERT_TRUE(root);
    EXPECT_EQ(SoSceneFile::writeText(root.get()), contentOf(saved("everything.xsg")).toStdString());
    const auto* paint = last<SoMaterial>(root);
    ASSERT_TRUE(paint);
    EXPECT_EQ(paint->transparency.getValue(), 0.25F);
    EXPECT_TRUE(paint->transparency.isIgnored());
    EXPECT_EQ(paint->shininess.getValue(), 0.75F);
    EXPECT_TRUE(paint->shininess.isConnected());
    EXPECT_EQ(last<SoFog>(root)->kind.getValue(), SoFog::Exp2);
    const auto& children = root->asGroup()->getChildren();
    EXPECT_EQ(children[children.size() - 1], children[children.size() - 2]) << "a shared node stays shared";
}

TEST_P(EarlierBuild, SavedProfiles)
{
    QString error;
    const ProfileSettings settings = ProfileFile(copied("profiles.json", "profiles.json")).read(error);
    EXPECT_EQ(error, QString());
    EXPECT_EQ(settings.active, "Mine");
    ASSERT_EQ(settings.profiles.size(), 2U);
    EXPECT_EQ(settings.profiles[1].name, "Mine");
}

TEST_P(EarlierBuild, SavedWhereEverythingStandsInTheWindow)
{
    copied("window.ini", "scopix/window.ini");
    copied("profiles.json", "scopix/profiles.json");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
    HostSession session([](HostServices& services, UserNotifier& notifier) {
        return std::make_unique<MainWindow>(services, notifier);
    });
    session.notifier().setAttended(false);
    session.start({});
    QCoreApplication::processEvents();
    EXPECT_EQ(session.window().size(), QSize(1111, 777));
    QDockWidget* console = nullptr;
    for (auto* dock : session.window().findChildren<QDockWidget*>()) {
        if (dock->windowTitle() == "Console")
            console = dock;
    }
    ASSERT_TRUE(console);
    EXPECT_EQ(session.window().dockWidgetArea(console), Qt::RightDockWidgetArea);
    EXPECT_EQ(RecentFiles(m_home.filePath("scopix/window.ini")).list(),
              (QStringList{"/home/user/cube.xsg", "/home/user/everything.xsg"}));
}

TEST_P(EarlierBuild, LeftEditsThatAreRecovered)
{
    copied("recovery.xsg", "recovery/edits.xsg");
    copied("recovery.json", "recovery/edits.json");
    const auto slot = RecoverySlot::findOrphaned(m_home.filePath("recovery"));
    ASSERT_TRUE(slot);
    EXPECT_EQ(slot->getOrigin().path, "/home/user/cube.xsg");
    const SoRef<SoNode> root = read(slot->scenePath());
    ASSERT_TRUE(root);
    EXPECT_EQ(last<SoMaterial>(root)->transparency.getValue(), 0.5F);
}

INSTANTIATE_TEST_SUITE_P(Saved, EarlierBuild, testing::ValuesIn(builds()), [](const auto& info) {
    std::string name = info.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
});
