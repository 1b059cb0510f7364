// SPDX-License-Identifier: MIT
// A further window on a real screen: OpenGL in two windows at once, and a place where it can be seen.
#include <support/Session.h>
#include <support/Waiting.h>

#include "viewport/SceneView.h"
#include "window/FurtherWindows.h"
#include "window/MainWindow.h"
#include "window/TreeAndView.h"

#include <QOpenGLWidget>
#include <QScreen>
#include <QWindow>

using namespace scopix;

namespace
{

class FurtherOnScreen : public testing::Test
{
protected:
    MainWindow& window() { return static_cast<MainWindow&>(session.host.window()); }
    FurtherWindow& openAnother()
    {
        FurtherWindow& further = window().getFurtherWindows().open();
        EXPECT_TRUE(waitForExposed(&further));
        return further;
    }
    static bool waitForColors(SceneView& view)
    {
        return waitFor([&view] {
            const QImage picture = view.grab().toImage();
            QSet<QRgb> colors;
            for (int y = 0; y < picture.height(); y += 4)
                for (int x = 0; x < picture.width(); x += 4)
                    colors.insert(picture.pixel(x, y));
            return colors.size() > 10;
        });
    }

    Session session{[](HostServices& services, UserNotifier& notifier) {
        return std::make_unique<MainWindow>(services, notifier);
    }};
};

} // namespace

TEST_F(FurtherOnScreen, DrawsBesideTheMainWindow)
{
    FurtherWindow& further = openAnother();
    SceneView& view = further.getPane().getView();
    EXPECT_TRUE(view.findChild<QOpenGLWidget*>());
    EXPECT_TRUE(waitForColors(view));
    EXPECT_TRUE(waitForColors(window().getView()));
    EXPECT_EQ(further.windowHandle()->transientParent(), nullptr);
    const QPointer<FurtherWindow> lives = &further;
    further.close();
    EXPECT_TRUE(waitFor([&] { return !lives; }));
    const int drawn = window().getView().getDrawCount();
    window().getView().turn(0.1F, 0);
    EXPECT_TRUE(waitFor([&] { return window().getView().getDrawCount() > drawn; }));
    EXPECT_TRUE(waitForColors(window().getView()));
}

TEST_F(FurtherOnScreen, OpensOnTheScreenWhereverItWas)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    FurtherWindow& further = openAnother();
    further.setGeometry(screen.right() + 3000, -2000, 500, 400);
    const QPointer<FurtherWindow> lives = &further;
    further.close();
    EXPECT_TRUE(waitFor([&] { return !lives; }));
    EXPECT_TRUE(screen.contains(openAnother().geometry()));
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(screen.contains(openAnother().geometry()));
}

TEST_F(FurtherOnScreen, OpensAgainOnTheScreenAndLeavesTheKeysToTheMainWindow)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    openAnother().setGeometry(screen.right() + 3000, -2000, 500, 400);
    window().close();
    EXPECT_TRUE(window().getFurtherWindows().getAll().isEmpty());
    session.host.notifier().setAttended(true);
    window().show();
    const QList<FurtherWindow*>& again = window().getFurtherWindows().getAll();
    ASSERT_TRUE(waitFor([&] { return again.size() == 1; }));
    EXPECT_TRUE(waitForExposed(again.first()));
    EXPECT_TRUE(waitForActive(&window()));
    EXPECT_TRUE(screen.contains(again.first()->geometry()));
    session.host.notifier().setAttended(false);
}
