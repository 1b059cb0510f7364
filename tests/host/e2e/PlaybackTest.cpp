// SPDX-License-Identifier: MIT
// Playing a scene's clips in the window, which is no edit.
#include <support/Session.h>
#include <support/Waiting.h>

#include "viewport/SceneView.h"
#include "window/MainWindow.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/base/SoTimeSource.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QSignalSpy>
#include <QToolButton>

using namespace scopix;

namespace
{

constexpr char SceneText[] = R"(#Xsg V1.0 utf8
Separator {
    Sphere "Ball" @1 {
        radius: 2
    }
    Animation "grow" {
        Track {
            target: @1
            field: radius
            times: [ 0, 1, 4 ]
            values: [ 1, 2, 8 ]
        }
    }
    Animation "shrink" {
        Track {
            target: @1
            field: radius
            times: [ 0, 2 ]
            values: [ 1, 0.5 ]
        }
    }
}
)";

class Playing : public testing::Test
{
protected:
    void SetUp() override
    {
        window().resize(1200, 800);
        open(SceneText);
        window().getView().setAnimated(false); // time passes by the test
        window().getView().setFocus();
    }
    MainWindow& window() { return static_cast<MainWindow&>(session.host.window()); }
    void open(const char* text)
    {
        QFile file(folder.filePath("scene.xsg"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
        file.close();
        QSignalSpy done(&window(), &HostWindow::openFinished);
        window().openFile(file.fileName());
        ASSERT_TRUE(waitFor([&] { return !done.isEmpty(); }));
        Session::settle();
    }
    template <class Node>
    Node* find()
    {
        SoSearchAction search;
        search.setType(Node::getClassTypeId());
        const auto paths = search.apply(window().getScene());
        return paths.empty() ? nullptr : static_cast<Node*>(paths.front().getTail());
    }
    float radius() { return find<SoSphere>()->radius.getValue(); }
    QFrame* bar() { return window().findChild<QFrame*>("playbackBar"); }
    template <class Widget>
    Widget* inBar(const char* name)
    {
        return bar()->findChild<Widget*>(name);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        // What comes and goes over the window may have taken the focus.
        window().activateWindow();
        ASSERT_TRUE(waitForActive(&window()));
        window().getView().setFocus();
        QTest::keyClick(&window().getView(), key, modifiers);
        Session::settle();
    }
    void pass(double seconds)
    {
        SoTimeSource::getInstance().advance(seconds, window().getScene());
        Session::settle();
    }
    void expectNoEdit()
    {
        EXPECT_EQ(session.stack().count(), 0);
        EXPECT_FALSE(window().isWindowModified());
    }

    Session session{[](HostServices& services, UserNotifier& notifier) {
        return std::make_unique<MainWindow>(services, notifier);
    }};
    QTemporaryDir folder;
};

TEST_F(Playing, ShowsABarForScenesWithClipsOnly)
{
    EXPECT_TRUE(bar()->isVisible());
    open("#Xsg V1.0 utf8\nSeparator {\n    Cube {}\n}\n");
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_FALSE(window().findChild<QAction*>("animationPlay")->isEnabled());
}

TEST_F(Playing, GoesByKeys)
{
    press(Qt::Key_Space);
    EXPECT_EQ(radius(), 1);
    pass(0.5);
    EXPECT_EQ(radius(), 1.5F);
    EXPECT_EQ(inBar<QLabel>("playbackSeconds")->text(), "0.50 / 4.00 s");
    EXPECT_EQ(inBar<QSlider>("playbackTime")->value(), 500);
    press(Qt::Key_BracketRight);
    pass(0.5);
    EXPECT_EQ(radius(), 3); // twice as fast
    press(Qt::Key_Space);
    pass(0.5);
    EXPECT_EQ(radius(), 3); // paused
    press(Qt::Key_Period);
    EXPECT_EQ(radius(), 8);
    press(Qt::Key_Comma);
    EXPECT_EQ(radius(), 2);
    press(Qt::Key_N, Qt::ShiftModifier);
    EXPECT_EQ(inBar<QComboBox>("playbackClips")->currentText(), "shrink");
    press(Qt::Key_Period);
    EXPECT_EQ(radius(), 0.5F);
    press(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(radius(), 2);
    EXPECT_FALSE(SoAnimatedValues::getInstance().isAnimated(find<SoSphere>()->radius));
    expectNoEdit();
}

TEST_F(Playing, GoesByTheBar)
{
    session.click(inBar<QToolButton>("animationPlayButton"));
    pass(1);
    EXPECT_EQ(radius(), 2);
    inBar<QSlider>("playbackTime")->setValue(2500);
    EXPECT_EQ(radius(), 5);
    session.click(inBar<QToolButton>("animationLoopButton"));
    pass(9);
    EXPECT_EQ(radius(), 8);
    EXPECT_FALSE(SoTimeSource::getInstance().isNeeded(window().getScene()));
    session.click(inBar<QToolButton>("animationStopButton"));
    EXPECT_EQ(radius(), 2);
    EXPECT_FALSE(inBar<QToolButton>("animationStopButton")->isEnabled());
    expectNoEdit();
}

TEST_F(Playing, RepaintsNothingWhilePaused)
{
    press(Qt::Key_Space);
    pass(0.5);
    press(Qt::Key_Space);
    Session::settle();
    ASSERT_TRUE(waitFor([&] { return !window().getView().isDrawing(); }));
    const int drawn = window().getView().getDrawCount();
    window().getView().setAnimated(true);
    EXPECT_FALSE(window().getView().isAnimating());
    pass(0.5);
    EXPECT_EQ(window().getView().getDrawCount(), drawn);
}

TEST_F(Playing, DrawsWhileItGoesOn)
{
    window().getView().setAnimated(true);
    press(Qt::Key_Space);
    EXPECT_TRUE(window().getView().isAnimating());
    const int drawn = window().getView().getDrawCount();
    EXPECT_TRUE(waitFor([&] { return window().getView().getDrawCount() > drawn + 3; }));
    EXPECT_NE(radius(), 2);
    press(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_FALSE(window().getView().isAnimating());
    EXPECT_EQ(radius(), 2);
    expectNoEdit();
}

TEST_F(Playing, IsSavedAtRest)
{
    press(Qt::Key_Space);
    pass(1);
    const QString path = folder.filePath("saved.xsg");
    EXPECT_EQ(window().getFiles().getDocument().save(path), "");
    QFile saved(path);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll().toStdString(), SceneText);
    EXPECT_EQ(radius(), 2); // and goes on
}

TEST_F(Playing, AnEditIsUndoneToTheValueAtRest)
{
    SoSFFloat& field = find<SoSphere>()->radius;
    press(Qt::Key_Space);
    pass(0.5);
    EXPECT_EQ(field.getValue(), 1.5F);
    session.select(&field);
    ASSERT_TRUE(session.editorShown());
    session.typeAnew("7");
    QTest::keyClick(session.input(), Qt::Key_Return);
    Session::settle();
    EXPECT_EQ(field.getValue(), 7);
    pass(0.5);
    EXPECT_EQ(field.getValue(), 7); // it left the clip
    EXPECT_EQ(session.stack().count(), 1);
    session.stack().undo();
    EXPECT_EQ(field.getValue(), 2);
    session.stack().redo();
    EXPECT_EQ(field.getValue(), 7);
}

TEST_F(Playing, StopsAClipThatIsTakenOut)
{
    press(Qt::Key_Space);
    EXPECT_EQ(radius(), 1);
    auto* scene = static_cast<SoGroup*>(window().getScene());
    const SoRef<SoAnimation> clip(find<SoAnimation>());
    scene->removeChild(scene->findChild(clip.get()));
    Session::settle();
    EXPECT_EQ(radius(), 2);
    EXPECT_TRUE(bar()->isVisible()); // there is another
}

TEST_F(Playing, PlaysAllClipsTogether)
{
    press(Qt::Key_N, Qt::ShiftModifier);
    press(Qt::Key_N, Qt::ShiftModifier);
    EXPECT_EQ(inBar<QComboBox>("playbackClips")->currentText(), "All clips");
    press(Qt::Key_Space);
    pass(1);
    for (const SoAnimation* clip : SoAnimation::findBelow(*window().getScene()))
        EXPECT_EQ(clip->time.getValue(), SbTime(1));
}

} // namespace
