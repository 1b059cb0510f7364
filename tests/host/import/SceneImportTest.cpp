// SPDX-License-Identifier: MIT
#include "ModelFiles.h"

#include "import/SceneImport.h"
#include "model/GradualRelease.h"

#include <support/Waiting.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>

#include <QProgressDialog>

using namespace scopix;

namespace
{

class SceneReadingInTurns : public testing::Test
{
protected:
    SceneReadingInTurns()
    {
        SoReadError::setHandlerCallback(nullptr, nullptr);
        QObject::connect(&import, &SceneImport::finished, [this](const SoRef<SoNode>& s) {
            scene = s;
            nodes = import.getNodes();
            told << "finished";
        });
        QObject::connect(&import, &FileImport::failed, [this](const QString& sentence) {
            error = sentence;
            told << "failed";
        });
        QObject::connect(&import, &FileImport::cancelled, [this] { told << "cancelled"; });
    }
    ~SceneReadingInTurns() override { SoReadError::setHandlerCallback(SoError::defaultHandler, nullptr); }

    QString write(int cubes, const QByteArray& end = "}\n") const
    {
        QFile file(folder.filePath("scene.xsg"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#Xsg V1.0 utf8\nSeparator {\n");
        for (int i = 0; i < cubes; ++i)
            file.write("    Separator {\n        Cube { width: 2\n        }\n    }\n");
        file.write(end);
        return file.fileName();
    }
    QProgressDialog* dialog() { return window.findChild<QProgressDialog*>("importProgress"); }
    // Turns of the event loop until something was told.
    int waitForEnd()
    {
        int turns = 0;
        for (; told.isEmpty(); ++turns)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return turns;
    }

    QTemporaryDir folder;
    QWidget window;
    SceneImport import{&window};
    SoRef<SoNode> scene;
    std::vector<SoNode*> nodes;
    QString error;
    QStringList told;
};

constexpr int Many = 40000; // takes several turns on any machine

TEST_F(SceneReadingInTurns, ASmallOneIsReadAtOnce)
{
    import.start(write(3));
    EXPECT_EQ(told, QStringList{"finished"});
    ASSERT_TRUE(scene);
    EXPECT_EQ(scene->asGroup()->getNumChildren(), 3);
    EXPECT_TRUE(nodes.empty()) << "nobody asked for them";
    EXPECT_FALSE(dialog() && dialog()->isVisible());
}

TEST_F(SceneReadingInTurns, ALargeOneLetsTheUsersEventsComeThrough)
{
    import.keepNodes();
    import.start(write(Many));
    EXPECT_TRUE(told.isEmpty());
    EXPECT_GT(waitForEnd(), 3);
    EXPECT_EQ(told, QStringList{"finished"});
    ASSERT_TRUE(scene);
    EXPECT_EQ(scene->asGroup()->getNumChildren(), Many);
    ASSERT_EQ(nodes.size(), 1U + 2U * Many);
    EXPECT_EQ(nodes[0], scene.get());
    EXPECT_EQ(nodes[2], scene->asGroup()->getChild(0)->asGroup()->getChild(0));
    SoBoundingBoxAction box;
    box.getBox(scene.get());
    EXPECT_LT(box.getNumVisited(), 10) << "its box is known";
}

TEST_F(SceneReadingInTurns, SaysWhatIsWrongNearTheEnd)
{
    const QString path = write(Many, "?\n");
    import.start(path);
    waitForEnd();
    EXPECT_EQ(told, QStringList{"failed"});
    EXPECT_TRUE(error.startsWith(path + ":160003: Column 1: ")) << qPrintable(error);
}

TEST_F(SceneReadingInTurns, CancelEndsItAndGivesBackWhatItTook)
{
    const auto nodesAlive = [] { return xsg::feeds.nodesAlive.get(); };
    const auto isReleasing = [] { return qApp->findChild<QObject*>("gradualRelease") != nullptr; };
    ASSERT_TRUE(waitFor([&] { return !isReleasing(); })) << "of the tests before";
    const auto before = nodesAlive();
    import.start(write(Many));
    ASSERT_TRUE(dialog());
    while (dialog()->value() < 50)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    ASSERT_TRUE(told.isEmpty());
    emit dialog()->canceled(); // what its button and Escape do
    EXPECT_EQ(told, QStringList{"cancelled"});
    EXPECT_TRUE(isReleasing()) << "not all at once";
    EXPECT_TRUE(waitFor([&] { return !isReleasing(); }));
    EXPECT_EQ(nodesAlive(), before);
    EXPECT_EQ(told, QStringList{"cancelled"});
    EXPECT_FALSE(scene);
}

TEST_F(SceneReadingInTurns, DeletingItGivesUp)
{
    auto other = std::make_unique<SceneImport>(&window);
    QObject::connect(other.get(), &FileImport::cancelled, [this] { told << "cancelled"; });
    other->start(write(Many));
    other.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(told.isEmpty());
}

TEST(GradualRelease, LeavesWhatOthersHold)
{
    SoRef<SoSeparator> kept(new SoSeparator);
    SoRef<SoMaterial> leaf(new SoMaterial);
    kept->addChild(new SoCube);
    {
        SoRef<SoSeparator> root(new SoSeparator);
        root->addChild(kept.get());
        root->addChild(leaf.get());
        root->addChild(leaf.get());
        releaseGradually(SoRef<SoNode>(root.release()));
    }
    EXPECT_EQ(kept->getRefCount(), 1);
    EXPECT_EQ(kept->getNumChildren(), 1);
    EXPECT_TRUE(kept->getParents().empty());
    EXPECT_EQ(leaf->getRefCount(), 1);
    EXPECT_TRUE(leaf->getParents().empty());
}

} // namespace
