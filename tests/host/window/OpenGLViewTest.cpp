// SPDX-License-Identifier: MIT
// The way of a picture to the screen: from a model's file over OpenGL inside the window, and through an edit.
#include <support/Session.h>
#include <support/Waiting.h>

#include "viewport/OrientationCube.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"
#include "window/ViewActions.h"

#include <xsg/errors/SoGLError.h>

#include <QOpenGLContext>
#include <QOpenGLWidget>
#include <QScreen>
#include <QWindow>

using namespace scopix;

namespace
{

class OpenGLView : public testing::Test
{
protected:
    MainWindow& window() { return static_cast<MainWindow&>(session.host.window()); }
    QOpenGLWidget* surface() { return window().getView().findChild<QOpenGLWidget*>(); }

    bool open(const char* model)
    {
        bool done = false;
        bool opened = false;
        const auto connection = QObject::connect(&window(), &HostWindow::openFinished, [&](bool success) {
            done = true;
            opened = success;
        });
        window().openFile(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/") + QLatin1String(model));
        EXPECT_TRUE(waitFor([&] { return done; }));
        QObject::disconnect(connection);
        Session::settle();
        return opened;
    }
    // What the user sees in the view: the screen's own pixels.
    QImage onScreen()
    {
        const QRect place(surface()->mapTo(&window(), QPoint()), surface()->size());
        return window().screen()->grabWindow(window().winId()).toImage().copy(place);
    }
    bool waitForPicture(const QImage& picture)
    {
        return waitFor([&] { return onScreen() == picture; });
    }
    // The first picture that differs from this one and stays on the screen.
    QImage waitForAnotherThan(const QImage& picture)
    {
        QImage last;
        EXPECT_TRUE(waitFor([&] {
            const QImage now = onScreen();
            return now != picture && now == std::exchange(last, now);
        }));
        return last;
    }
    static int colors(const QImage& image)
    {
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); y += 2) {
            for (int x = 0; x < image.width(); x += 2)
                colors.insert(image.pixel(x, y));
        }
        return colors.size();
    }

    Session session{[](HostServices& services, UserNotifier& notifier) {
        return std::make_unique<MainWindow>(services, notifier);
    }};
};

} // namespace

TEST_F(OpenGLView, ShowsTheModelInTheWindow)
{
    ASSERT_TRUE(surface()) << "the view draws no OpenGL in its window";
    window().getViewActions().getCube().setShown(false); // it lies on a sheet over the picture
    const QImage before = onScreen();
    ASSERT_TRUE(open("crate.gltf"));
    const QImage shown = waitForAnotherThan(before);
    EXPECT_GT(colors(shown), 50);
    const QImage drawn = surface()->grabFramebuffer().convertToFormat(shown.format());
    EXPECT_EQ(drawn, shown);
}

// Wide lines were an error in each frame of the window, and nowhere else.
TEST_F(OpenGLView, ShowsTheShippedSceneWithoutAnErrorOfOpenGL)
{
    ASSERT_TRUE(surface());
    SoErrorCB* before = SoGLError::getHandlerCallback();
    void* data = SoGLError::getHandlerData();
    int errors = 0;
    SoGLError::setHandlerCallback([](const SoError*, void* count) { ++*static_cast<int*>(count); }, &errors);
    EXPECT_TRUE(open("../scenes/showcase.xsg"));
    EXPECT_GT(colors(waitForAnotherThan(QImage())), 200);
    SoGLError::setHandlerCallback(before, data);
    EXPECT_EQ(errors, 0);
    EXPECT_TRUE(surface()->context()->format().testOption(QSurfaceFormat::DeprecatedFunctions));
}

TEST_F(OpenGLView, FollowsAnEditAndItsUndo)
{
    ASSERT_TRUE(surface());
    ASSERT_TRUE(open("crate.obj"));
    ASSERT_TRUE(window().selectField("Planks", "transparency"));
    Session::settle();
    ASSERT_TRUE(session.editorShown());
    const QImage before = waitForAnotherThan(QImage());
    EXPECT_GT(colors(before), 50);

    session.typeAnew("0.75");
    EXPECT_EQ(onScreen(), before);
    QTest::keyClick(session.input(), Qt::Key_Return);
    const QImage edited = waitForAnotherThan(before);
    EXPECT_GT(colors(edited), 50);

    QTest::keyClick(session.input(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(waitForPicture(before)) << "undo left another picture on the screen";
    QTest::keyClick(session.input(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(waitForPicture(edited));
}

TEST_F(OpenGLView, FollowsASliderWhileItIsDragged)
{
    ASSERT_TRUE(surface());
    ASSERT_TRUE(open("crate.obj"));
    ASSERT_TRUE(window().selectField("Planks", "transparency"));
    Session::settle();
    ASSERT_TRUE(session.editorShown());
    const QImage before = waitForAnotherThan(QImage());
    QImage last = before;
    session.drag(3, 15, [&] { last = waitForAnotherThan(last); });
    EXPECT_EQ(session.stack().count(), 1);
    session.stack().undo();
    EXPECT_TRUE(waitForPicture(before));
}
