// SPDX-License-Identifier: MIT
// The 3D view of a running host, while the scene is edited, saved, and changed by the application.
#include <support/Session.h>
#include <support/Waiting.h>

#include "viewport/SceneView.h"
#include "window/MainWindow.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <QFile>

using namespace scopix;

namespace
{

constexpr char SceneText[] = R"(#Xsg V1.0 utf8
Separator "scene" {
    PerspectiveCamera "eye" {
        position: 0 0 9
        heightAngle: 0.5
    }
    Cube {}
}
)";

class LiveView : public testing::Test
{
protected:
    MainWindow& window() { return static_cast<MainWindow&>(session.host.window()); }
    SceneView& view() { return window().getView(); }

    bool open(const QString& path)
    {
        QSignalSpy done(&window(), &HostWindow::openFinished);
        window().openFile(path);
        EXPECT_TRUE(waitFor([&] { return !done.isEmpty(); }));
        Session::settle();
        return done.value(0).value(0).toBool();
    }
    QString write(const QByteArray& text)
    {
        QFile file(folder.filePath("scene.xsg"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        return file.fileName();
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QImage picture()
    {
        Session::settle();
        return view().grab().toImage();
    }
    SoPath pathTo(const char* name)
    {
        SoSearchAction search;
        search.setName(name);
        search.apply(window().getScene());
        return search.getPaths().empty() ? SoPath() : search.getPaths().front();
    }

    QTemporaryDir folder;
    Session session{[](HostServices& services, UserNotifier& notifier) {
        return std::make_unique<MainWindow>(services, notifier);
    }};
};

} // namespace

TEST_F(LiveView, FollowsTheEditOfTheCameraThatItLooksThrough)
{
    ASSERT_TRUE(open(write(SceneText)));
    ASSERT_TRUE(window().selectField("eye", "heightAngle"));
    Session::settle();
    ASSERT_TRUE(session.editorShown());
    const QImage before = picture();
    session.typeAnew("0.25");
    QTest::keyClick(session.input(), Qt::Key_Return);
    const QImage nearer = picture();
    EXPECT_NE(nearer, before);
    EXPECT_TRUE(window().isWindowModified());
    session.stack().undo();
    EXPECT_EQ(picture(), before);
    EXPECT_FALSE(window().isWindowModified());

    QTest::keyClick(&view(), Qt::Key_Left);
    const QImage turned = picture();
    EXPECT_NE(turned, before);
    session.stack().redo();
    EXPECT_EQ(picture(), turned) << "the user had looked around since";
    QTest::keyClick(&view(), Qt::Key_Home);
    EXPECT_EQ(picture(), nearer);
}

TEST_F(LiveView, LookingAroundIsNoEdit)
{
    const QString path = write(SceneText);
    ASSERT_TRUE(open(path));
    const auto* eye = static_cast<SoPerspectiveCamera*>(pathTo("eye").getTail());
    const auto changes = eye->getChangeCount();
    const QImage before = picture();
    QTest::mousePress(&view(), Qt::LeftButton, {}, {100, 100});
    for (const QPoint at : {QPoint(120, 110), QPoint(160, 120)}) {
        QMouseEvent move(QEvent::MouseMove, at, view().mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&view(), &move);
    }
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, {160, 120});
    QTest::keyClick(&view(), Qt::Key_Plus);
    EXPECT_NE(picture(), before);
    EXPECT_EQ(eye->getChangeCount(), changes);
    EXPECT_EQ(session.stack().count(), 0);
    EXPECT_FALSE(window().isWindowModified());
    ASSERT_TRUE(window().getFiles().saveTo(path));
    EXPECT_EQ(contentOf(path), SceneText);
    EXPECT_FALSE(window().isWindowModified());
}

// What an application does to its scene while the host looks at it.
TEST_F(LiveView, RemovingANodeChangesThePictureAndInsertingItRestoresIt)
{
    window().resize(1400, 700); // all of it is in the picture
    ASSERT_TRUE(open(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg"));
    const QImage before = picture();
    for (const char* name :
         {"camera", "sun",     "sky",     "haze",    "stage", "solids",   "stage light",  "polished",
          "glass",  "knife",   "lamp",    "leaning", "ring",  "pick one", "near and far", "planks",
          "tiles",  "corners", "palette", "thick",   "steps", "caption"}) {
        const SoPath path = pathTo(name);
        ASSERT_GE(path.getLength(), 2) << name;
        const SoRef<SoNode> node(path.getTail());
        auto* parent = static_cast<SoGroup*>(path.getNode(path.getLength() - 2));
        const int place = parent->findChild(node.get());
        parent->removeChild(place);
        EXPECT_EQ(picture() == before, std::string(name) == "camera") << name;
        EXPECT_TRUE(parent->insertChild(node.get(), place));
        EXPECT_EQ(picture(), before) << name;
    }
}

TEST_F(LiveView, AnInsertedNodeIsVisibleUntilItIsRemoved)
{
    ASSERT_TRUE(open(SCOPIX_SOURCE_DIR "/data/models/crate.gltf"));
    const QImage before = picture();
    auto* scene = static_cast<SoGroup*>(window().getScene());
    const SoRef<SoSphere> solid(new SoSphere);
    solid->radius.setValue(2);
    const int place = scene->getNumChildren();
    ASSERT_TRUE(scene->addChild(solid.get()));
    EXPECT_NE(picture(), before);
    scene->removeChild(place);
    EXPECT_EQ(picture(), before);
    const std::vector<SoNode*> children(scene->getChildren());
    std::vector<SoRef<SoNode>> kept(children.begin(), children.end());
    scene->removeAllChildren();
    const QImage empty = picture();
    EXPECT_NE(empty, before);
    EXPECT_EQ(empty.pixel(empty.rect().center()), empty.pixel(0, 0));
    for (const auto& child : kept)
        scene->addChild(child.get());
    EXPECT_EQ(picture(), before);
}
