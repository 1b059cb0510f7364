// SPDX-License-Identifier: MIT
// Handles, grid and cube as they look in the window. The pictures of the documentation come from here:
// SCOPIX_PICTURES names the folder that they go to.
#include "ViewPictures.h"

#include "handles/HandleTool.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/core/SoField.h>

#include <QDir>

namespace
{

class NavigationPictures : public testing::Test
{
protected:
    NavigationPictures()
    {
        notifier.setAttended(false);
        services.setSceneSource(&window);
        window.resize(1000, 640);
        window.show();
        bool isOpen = false;
        const auto opened =
            QObject::connect(&window, &HostWindow::openFinished, [&](bool is) { isOpen = is; });
        window.openFile(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/lighthouse.glb"));
        EXPECT_TRUE(waitFor([&] { return isOpen; }));
        QObject::disconnect(opened);
        window.activateWindow();
        EXPECT_TRUE(waitForActive(&window));
        pictureOf(view);
    }
    ~NavigationPictures() override { services.setSceneSource(nullptr); }
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        view.setFocus();
        QTest::keyClick(&view, static_cast<Qt::Key>(key), modifiers);
        pictureOf(view);
    }
    void trigger(const char* name)
    {
        auto* action = window.findChild<QAction*>(QString::fromLatin1(name));
        ASSERT_TRUE(action);
        action->trigger();
    }
    QImage take(const QString& name)
    {
        const QImage picture = pictureOf(view);
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        EXPECT_TRUE(folder.isEmpty() || picture.save(QDir(folder).filePath(name)));
        return picture;
    }

    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    SceneView& view = window.getView();
    HandleTool& handles = window.getHandles();
};

TEST_F(NavigationPictures, OfPlaying)
{
    bool isOpen = false;
    const auto opened = QObject::connect(&window, &HostWindow::openFinished, [&](bool is) { isOpen = is; });
    window.openFile(QStringLiteral(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg"));
    EXPECT_TRUE(waitFor([&] { return isOpen; }));
    QObject::disconnect(opened);
    const QImage before = pictureOf(view);
    trigger("animationAhead"); // to the second key
    EXPECT_NE(take("playback.png"), before);
    trigger("animationStop");
    EXPECT_EQ(pictureOf(view), before);
}

TEST_F(NavigationPictures, OfHandles)
{
    const QImage without = pictureOf(view);
    ASSERT_TRUE(window.selectField("Glass", "opacity"));
    QList<QImage> seen{without};
    key(Qt::Key_W);
    seen << take("handles-move.png");
    key(Qt::Key_E);
    seen << take("handles-turn.png");
    key(Qt::Key_R);
    seen << take("handles-scale.png");
    key(Qt::Key_W);
    const auto at = handles.getShape().placeOf(HandlePart::X);
    ASSERT_TRUE(at);
    const auto send = [&](QEvent::Type type, const QPointF& place, Qt::MouseButton button) {
        QMouseEvent event(type, place, view.mapToGlobal(place.toPoint()), button, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&view, &event);
    };
    send(QEvent::MouseButtonPress, *at, Qt::LeftButton);
    send(QEvent::MouseMove, *at + QPointF(70, 20), Qt::NoButton);
    QTest::keyClicks(&view, "0.75");
    seen << take("handles-number.png");
    QTest::keyClick(&view, Qt::Key_Escape);
    send(QEvent::MouseButtonRelease, *at, Qt::LeftButton);
    for (int i = 0; i < seen.size(); ++i) {
        for (int j = 0; j < i; ++j)
            EXPECT_NE(seen[i], seen[j]) << i << j;
    }
}

TEST_F(NavigationPictures, OfTheWay)
{
    const QImage plain = pictureOf(view);
    trigger("viewGrid");
    trigger("viewAxes");
    const QImage grid = take("view-grid.png");
    EXPECT_NE(grid, plain);
    key(Qt::Key_1);
    key(Qt::Key_5);
    key(Qt::Key_A);
    const QImage front = take("view-front.png");
    EXPECT_NE(front, grid);
    trigger("viewGrid");
    trigger("viewAxes");
    key(Qt::Key_Home);
    EXPECT_EQ(pictureOf(view), plain);
}

} // namespace
