// SPDX-License-Identifier: MIT
// Tools in the 3D view: who gets an event, and what is drawn over the picture.
#include "ViewPictures.h"

#include <support/Waiting.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/render/SoOverlay.h>

#include <QPainter>

namespace
{

struct RecordingTool : ViewTool {
    bool mousePressed(QMouseEvent& /*event*/) override { return note("press"); }
    bool mouseMoved(QMouseEvent& /*event*/) override { return note("move"); }
    bool mouseReleased(QMouseEvent& /*event*/) override { return note("release"); }
    bool mouseDoubleClicked(QMouseEvent& /*event*/) override { return note("double"); }
    bool keyPressed(QKeyEvent& /*event*/) override { return note("key"); }
    void mouseLeft() override { note("leave"); }
    std::optional<QCursor> getCursor() const override { return cursor; }
    void draw(SoOverlay& overlay, const ViewSight& /*sight*/) override
    {
        if (draws)
            overlay.addPoint({0, 0, 0}, SbColor(0, 1, 0), 20);
    }
    void paint(QPainter& painter, const ViewSight& /*sight*/) override
    {
        painted += paints ? 1 : 0;
        if (paints)
            painter.fillRect(QRect(10, 10, 20, 20), Qt::magenta);
    }

    bool note(const QString& what)
    {
        heard << what;
        return takes;
    }

    QStringList heard;
    bool takes = false;
    bool draws = false;
    bool paints = false;
    int painted = 0;
    std::optional<QCursor> cursor;
};

class Tools : public testing::Test
{
protected:
    Tools()
    {
        scene->addChild(new SoCube);
        view.resize(300, 200);
        view.setScene(scene.get());
        view.addTool(&first);
        view.addTool(&second);
        view.show();
        pictureOf(view);
        QObject::connect(&view, &SceneView::picked, [this](const SoPath&) { ++picked; });
    }
    void send(QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, at, view.mapToGlobal(at), button, held, {});
        QCoreApplication::sendEvent(&view, &event);
    }
    void drag()
    {
        send(QEvent::MouseButtonPress, {150, 100}, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, {200, 100}, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, {200, 100}, Qt::LeftButton, {});
    }

    RecordingTool first;
    RecordingTool second;
    SoRef<SoSeparator> scene{new SoSeparator};
    SceneView view;
    int picked = 0;
};

TEST_F(Tools, AreAskedInTheirOrderBeforeTheViewNavigates)
{
    const SbVec3f place = view.getCamera().position.getValue();
    second.takes = true;
    drag();
    EXPECT_EQ(first.heard, QStringList({"press"}));
    EXPECT_EQ(second.heard, QStringList({"press", "move", "release"}));
    EXPECT_EQ(view.getCamera().position.getValue(), place);
    EXPECT_EQ(picked, 0);
    second.takes = false;
    drag();
    EXPECT_NE(view.getCamera().position.getValue(), place);
}

TEST_F(Tools, ThatTakeNothingLeaveClicksToTheView)
{
    QTest::mouseClick(&view, Qt::LeftButton, {}, {150, 100});
    EXPECT_EQ(picked, 1);
}

TEST_F(Tools, AreToldWhenThePointerHoversOverAnotherOrLeaves)
{
    second.takes = true;
    send(QEvent::MouseMove, {150, 100}, Qt::NoButton, {});
    EXPECT_EQ(second.heard, QStringList({"move"}));
    first.heard.clear();
    first.takes = true;
    send(QEvent::MouseMove, {151, 100}, Qt::NoButton, {});
    EXPECT_EQ(second.heard, QStringList({"move", "leave"}));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    EXPECT_EQ(first.heard, QStringList({"move", "leave"}));
}

TEST_F(Tools, GetKeysAndShowTheirCursor)
{
    first.takes = true;
    first.cursor = QCursor(Qt::SizeHorCursor);
    QTest::keyClick(&view, Qt::Key_A);
    EXPECT_EQ(first.heard, QStringList({"key"}));
    EXPECT_EQ(second.heard, QStringList());
    EXPECT_EQ(view.cursor().shape(), Qt::SizeHorCursor);
    view.removeTool(&first);
    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Tools, DrawOverTheScene)
{
    first.draws = true;
    second.paints = true;
    view.redraw();
    const QImage picture = pictureOf(view);
    const QPoint origin = placeOf(view, {0, 0, 0});
    EXPECT_GT(picture.pixelColor(origin).green(), 240);
    EXPECT_LT(picture.pixelColor(origin).red(), 20);
    EXPECT_EQ(picture.pixelColor(20, 20), QColor(Qt::magenta));
}

TEST_F(Tools, AreRepaintedWithoutAnotherPicture)
{
    const int drawn = view.getDrawCount();
    first.paints = true;
    view.repaintTools();
    EXPECT_TRUE(waitFor([this] { return first.painted > 0; }));
    EXPECT_EQ(view.getDrawCount(), drawn);
    EXPECT_EQ(pictureOf(view).pixelColor(20, 20), QColor(Qt::magenta));
}

TEST_F(Tools, SeeThroughTheViewsCamera)
{
    const ViewSight sight = view.getSight();
    const auto place = sight.toScreen({0.5F, 0.25F, 0});
    ASSERT_TRUE(place);
    EXPECT_LT((place->toPoint() - placeOf(view, {0.5F, 0.25F, 0})).manhattanLength(), 3);
    const SbRay ray = sight.getRay(*place);
    const SbVec3f toPoint = SbVec3f(0.5F, 0.25F, 0) - ray.origin;
    EXPECT_LT(cross(toPoint, ray.direction).length(), 1e-4F);
    // A pixel is as long as what lies between the places beside each other.
    const float pixel = sight.getPixelLength({0, 0, 0});
    const auto beside = sight.toScreen(sight.getRight() * (10 * pixel));
    ASSERT_TRUE(beside);
    EXPECT_NEAR(beside->x() - sight.toScreen({0, 0, 0})->x(), 10, 1e-2);
    const SbVec3f eye = view.getCamera().position.getValue();
    EXPECT_FALSE(sight.toScreen(eye - view.getCamera().getDirection()));
    // What lies beside the eye, and hardly before it, has no place that a widget could be asked about.
    EXPECT_FALSE(sight.toScreen(eye + sight.getRight() * 1000.0F + view.getCamera().getDirection() * 0.01F));
}

} // namespace
