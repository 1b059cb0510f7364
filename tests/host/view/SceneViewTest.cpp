// SPDX-License-Identifier: MIT
#include "ViewPictures.h"

#include "window/DefaultScene.h"

#include <support/Waiting.h>

#include <xsg/nodes/base/SoTimeSource.h>
#include <xsg/nodes/groups/SoInstances.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoSpin.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/render/SoOffscreenRenderer.h>

using namespace scopix;

namespace
{

// A red cube at the left, a green one at the right.
class View : public testing::Test
{
protected:
    View()
    {
        addCube(-2, left, {1, 0, 0});
        addCube(2, right, {0, 1, 0});
        view.resize(300, 200);
        view.setScene(scene.get());
        view.show();
        QObject::connect(&view, &SceneView::picked, [this](const SoPath& path) { picked.push_back(path); });
    }
    void addCube(float x, SoRef<SoCube>& cube, const SbColor& color)
    {
        SoRef<SoSeparator> part(new SoSeparator);
        auto* place = new SoTransform;
        place->translation.setValue(x, 0, 0);
        auto* look = new SoMaterial;
        look->diffuseColor.setValue(color);
        part->addChild(place);
        part->addChild(look);
        part->addChild(cube.get());
        scene->addChild(part.get());
    }
    QImage picture() { return pictureOf(view); }
    QPoint placeOf(const SbVec3f& point) { return ::placeOf(view, point); }
    // The part of the picture that has the corners of the box.
    QRect cornersOf(const SbBox3f& box)
    {
        QRect part;
        for (unsigned corner = 0; corner < 8; ++corner) {
            SbVec3f point;
            for (int i = 0; i < 3; ++i)
                point[i] = (corner >> i) & 1U ? box.getMax()[i] : box.getMin()[i];
            part |= QRect(placeOf(point), QSize(1, 1));
        }
        return part;
    }
    void drag(Qt::MouseButton button, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys = {})
    {
        const auto send = [&](QEvent::Type type, const QPoint& at, Qt::MouseButtons held) {
            QMouseEvent event(type, at, view.mapToGlobal(at),
                              type == QEvent::MouseMove ? Qt::NoButton : button, held, keys);
            QCoreApplication::sendEvent(&view, &event);
        };
        send(QEvent::MouseButtonPress, from, button);
        send(QEvent::MouseMove, (from + to) / 2, button);
        send(QEvent::MouseMove, to, button);
        send(QEvent::MouseButtonRelease, to, {});
    }

    SoRef<SoSeparator> scene{new SoSeparator};
    SoRef<SoCube> left{new SoCube};
    SoRef<SoCube> right{new SoCube};
    SceneView view;
    std::vector<SoPath> picked;
};

TEST_F(View, ShowsTheScene)
{
    const QImage image = picture();
    const QColor red = image.pixelColor(placeOf({-2, 0, 1}));
    const QColor green = image.pixelColor(placeOf({2, 0, 1}));
    EXPECT_GT(red.red(), red.green() + 40);
    EXPECT_GT(green.green(), green.red() + 40);
}

// What Qt reads is more than what the scene-graph library reads by itself.
TEST_F(View, ReadsTexturesByQtAndLeavesOtherRenderersAlone)
{
    const QTemporaryDir folder;
    QImage blue(2, 2, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    ASSERT_TRUE(blue.save(folder.filePath("blue.png")));
    auto* texture = new SoTexture2;
    texture->fileName.setValue(SbString(folder.filePath("blue.png").toStdString()));
    texture->model.setValue(SoTexture2::Replace);
    scene->insertChild(texture, 0);
    const QPoint place = placeOf({-2, 0, 1});
    const QColor inView = picture().pixelColor(place);
    EXPECT_GT(inView.blue(), inView.red() + 40);
    SoOffscreenRenderer other;
    SoPixels pixels;
    ASSERT_TRUE(other.render(scene.get(), &view.getCamera(), view.width(), view.height(), pixels));
    const unsigned char* pixel = pixels.at(place.x(), place.y());
    EXPECT_GT(pixel[0], pixel[2] + 40);
}

TEST_F(View, DrawsOnlyWhenSomethingChanged)
{
    picture();
    const int drawn = view.getDrawCount();
    EXPECT_GT(drawn, 0);
    picture();
    view.update();
    picture();
    EXPECT_EQ(view.getDrawCount(), drawn);
    left->width.setValue(1);
    left->height.setValue(1);
    picture();
    EXPECT_EQ(view.getDrawCount(), drawn + 1);
    for (int times = 0; times < 3; ++times) {
        view.setHighlight(left.get());
        picture();
        EXPECT_EQ(view.getDrawCount(), drawn + 2);
    }
}

TEST_F(View, FollowsTheScene)
{
    const QImage before = picture();
    scene->removeChild(0);
    EXPECT_NE(picture(), before);
}

TEST_F(View, AClickPicksWhatIsUnderThePointer)
{
    QTest::mouseClick(&view, Qt::LeftButton, {}, placeOf({-2, 0, 0}));
    ASSERT_EQ(picked.size(), 1U);
    EXPECT_EQ(picked[0].getTail(), left.get());
    EXPECT_EQ(picked[0].getHead(), scene.get());
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(2, 2));
    ASSERT_EQ(picked.size(), 2U);
    EXPECT_TRUE(picked[1].isEmpty());
}

TEST_F(View, DraggingTurnsAroundTheMiddleAndPicksNothing)
{
    const SbVec3f eye = view.getCamera().position.getValue();
    const SbVec3f middle = view.getCamera().getFocalPoint();
    const float distance = (eye - middle).length();
    drag(Qt::LeftButton, {150, 100}, {220, 100});
    const SbVec3f now = view.getCamera().position.getValue();
    EXPECT_GT((now - eye).length(), 0.1F * distance);
    EXPECT_NEAR((now - middle).length(), distance, 1e-3F * distance);
    EXPECT_LT((view.getCamera().getFocalPoint() - middle).length(), 1e-3F * distance);
    EXPECT_TRUE(picked.empty());
}

TEST_F(View, MovingCarriesWhatIsUnderThePointerAlong)
{
    const std::pair<Qt::MouseButton, Qt::KeyboardModifiers> ways[] = {{Qt::MiddleButton, Qt::NoModifier},
                                                                      {Qt::RightButton, Qt::NoModifier},
                                                                      {Qt::LeftButton, Qt::ShiftModifier}};
    for (const auto& [button, keys] : ways) {
        view.setScene(scene.get());
        const SbVec3f middle = view.getCamera().getFocalPoint();
        const QPoint from = placeOf(middle);
        drag(button, from, from + QPoint(40, -30), keys);
        EXPECT_LE((placeOf(middle) - from - QPoint(40, -30)).manhattanLength(), 3);
    }
    EXPECT_TRUE(picked.empty());
}

TEST_F(View, TheWheelZoomsAtThePointer)
{
    const SbVec3f target(-2, 0, 1);
    const QPoint at = placeOf(target);
    const float before = (view.getCamera().position.getValue() - target).length();
    QWheelEvent wheel(at, view.mapToGlobal(at), {}, {0, 240}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view, &wheel);
    EXPECT_LT((view.getCamera().position.getValue() - target).length(), before);
    EXPECT_LE((placeOf(target) - at).manhattanLength(), 6);
}

TEST_F(View, HomeShowsEverythingAgain)
{
    const QImage before = picture();
    drag(Qt::MiddleButton, {150, 100}, {20, 190});
    EXPECT_NE(picture(), before);
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(picture(), before);
}

TEST_F(View, HomeRestoresTheInitialView)
{
    const QImage before = picture();
    drag(Qt::LeftButton, {150, 100}, {220, 130});
    QTest::keyClick(&view, Qt::Key_A);
    EXPECT_NE(picture(), before); // everything, from where it is looked at now
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(picture(), before);
}

TEST_F(View, ArrowKeysTurnAndMove)
{
    const auto eye = [this] { return view.getCamera().position.getValue(); };
    const SbVec3f middle = view.getCamera().getFocalPoint();
    for (const auto& [there, back] :
         {std::make_pair(Qt::Key_Left, Qt::Key_Right), std::make_pair(Qt::Key_Up, Qt::Key_Down)}) {
        const SbVec3f before = eye();
        const QPoint place = placeOf(middle);
        QTest::keyClick(&view, there);
        EXPECT_GT((eye() - before).length(), 0.5F);
        EXPECT_LT((view.getCamera().getFocalPoint() - middle).length(), 1e-3F);
        QTest::keyClick(&view, back);
        EXPECT_LT((eye() - before).length(), 1e-3F);
        QTest::keyClick(&view, there, Qt::ShiftModifier);
        const QPoint moved = placeOf(middle) - place;
        EXPECT_NEAR(moved.x(), there == Qt::Key_Left ? -view.height() / 12 : 0, 2);
        EXPECT_NEAR(moved.y(), there == Qt::Key_Up ? -view.height() / 12 : 0, 2);
        QTest::keyClick(&view, back, Qt::ShiftModifier);
        EXPECT_LT((eye() - before).length(), 1e-3F);
    }
}

TEST_F(View, PlusAndMinusZoom)
{
    const auto distance = [this] { return view.getCamera().focalDistance.getValue(); };
    const float before = distance();
    QTest::keyClick(&view, Qt::Key_Plus);
    EXPECT_NEAR(distance(), before * 0.85F, 1e-3F * before);
    QTest::keyClick(&view, Qt::Key_Minus);
    EXPECT_NEAR(distance(), before, 1e-3F * before);
    QTest::keyClick(&view, Qt::Key_Minus);
    EXPECT_GT(distance(), before * 1.1F);
}

TEST_F(View, FAndADoubleClickAskForTheSelection)
{
    QSignalSpy asked(&view, &SceneView::viewSelectedRequested);
    QTest::keyClick(&view, Qt::Key_F);
    EXPECT_EQ(asked.size(), 1);
    QTest::mouseDClick(&view, Qt::LeftButton, {}, placeOf({-2, 0, 0}));
    EXPECT_EQ(asked.size(), 2);
    QTest::mouseDClick(&view, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(asked.size(), 2);
}

TEST_F(View, WireframeShowsEdgesOnly)
{
    const QImage before = picture();
    const QPoint inside = placeOf({-2.3F, 0.2F, 1});
    EXPECT_NE(before.pixelColor(inside), before.pixelColor(2, 2));
    view.setWireframe(true);
    EXPECT_EQ(picture().pixelColor(inside), before.pixelColor(2, 2));
    view.setWireframe(false);
    EXPECT_EQ(picture(), before);
}

TEST_F(View, StatisticsDescribeThePictureAndStopRedrawing)
{
    auto* text = view.findChild<QLabel*>("statistics");
    ASSERT_TRUE(text);
    EXPECT_FALSE(text->isVisible());
    view.setShowsStatistics(true);
    picture();
    EXPECT_TRUE(text->isVisible());
    EXPECT_TRUE(text->text().startsWith("Shapes: 2,")) << qPrintable(text->text());
    const QString shown = text->text();
    const int drawn = view.getDrawCount();
    for (int turn = 0; turn < 20; ++turn)
        QCoreApplication::processEvents();
    EXPECT_EQ(view.getDrawCount(), drawn);
    scene->removeChild(0);
    picture();
    EXPECT_TRUE(text->text().startsWith("Shapes: 1,")) << qPrintable(text->text());
    view.setShowsStatistics(false);
    EXPECT_FALSE(text->isVisible());
}

TEST_F(View, DrawsContinuouslyOnlyWhileSomethingTurns)
{
    picture();
    EXPECT_FALSE(view.isAnimating());
    auto* spin = new SoSpin;
    scene->insertChild(spin, 0);
    picture();
    EXPECT_TRUE(view.isAnimating());
    const auto turnedFurther = [&, from = spin->time.getValue()] {
        SoSensorQueue::getInstance().process();
        return from < spin->time.getValue();
    };
    const int drawn = view.getDrawCount();
    EXPECT_TRUE(waitFor([&] { return turnedFurther() && view.getDrawCount() > drawn + 3; }));
    spin->on.setValue(false);
    picture();
    EXPECT_FALSE(view.isAnimating());
    const auto rests = [&] {
        const int before = view.getDrawCount();
        for (int turn = 0; turn < 20; ++turn) {
            SoSensorQueue::getInstance().process();
            QCoreApplication::processEvents();
        }
        return view.getDrawCount() == before;
    };
    EXPECT_TRUE(rests());
    spin->on.setValue(true);
    picture();
    EXPECT_TRUE(view.isAnimating());
    view.hide();
    EXPECT_FALSE(view.isAnimating());
    view.show();
    EXPECT_TRUE(view.isAnimating());
    spin->turnsPerSecond.setValue(0);
    picture();
    EXPECT_FALSE(view.isAnimating());
    spin->turnsPerSecond.setValue(1);
    picture();
    EXPECT_TRUE(view.isAnimating());
    view.setAnimated(false);
    EXPECT_FALSE(view.isAnimating());
    view.setAnimated(true);
    EXPECT_TRUE(view.isAnimating());
    scene->removeChild(0);
    picture();
    EXPECT_FALSE(view.isAnimating());
    EXPECT_TRUE(rests());
}

TEST_F(View, IgnoresAnimationsOfOtherScenes)
{
    SoRef<SoSeparator> other(new SoSeparator);
    auto* spin = new SoSpin;
    other->addChild(spin);
    picture();
    EXPECT_FALSE(view.isAnimating());
    EXPECT_TRUE(SoTimeSource::getInstance().isNeeded());
    EXPECT_FALSE(SoTimeSource::getInstance().isNeeded(scene.get()));
    EXPECT_FALSE(SoTimeSource::getInstance().advance(1.0, scene.get()));
    EXPECT_TRUE(SoTimeSource::getInstance().advance(1.0, other.get()));
    EXPECT_EQ(spin->time.getValue(), SbTime(1.0));
}

TEST_F(View, AResizedWindowKeepsEverythingInSightUntilTheUserMoves)
{
    view.resize(120, 400);
    picture();
    for (const float x : {-3.0F, 3.0F})
        EXPECT_TRUE(view.rect().contains(placeOf({x, 0, 0})));
}

TEST_F(View, EveryCornerIsInSightAndTheSceneFillsThePicture)
{
    for (const QSize& size : {QSize(300, 200), QSize(150, 400), QSize(800, 120)}) {
        view.resize(size);
        view.viewAll();
        const QRect seen = cornersOf({-3, -1, -1, 3, 1, 1});
        const double wide = double(seen.width()) / view.width();
        const double high = double(seen.height()) / view.height();
        EXPECT_NEAR(std::max(wide, high), 0.88, 0.02) << size.width();
        EXPECT_LE((seen.center() - view.rect().center()).manhattanLength(), 4) << size.width();
    }
}

TEST_F(View, ShowsAllOfOneNode)
{
    view.viewNode(left.get());
    EXPECT_LE((cornersOf({-3, -1, -1, -1, 1, 1}).center() - view.rect().center()).manhattanLength(), 3);
    const auto width = [this] { return placeOf({-1, 0, 0}).x() - placeOf({-3, 0, 0}).x(); };
    const int near = width();
    view.viewAll();
    EXPECT_GT(near, width());
}

// Each place where it stands, where the groups around it put it.
TEST_F(View, ShowsAllOfANodeThatIsRepeated)
{
    auto* copies = new SoInstances;
    copies->matrices.setValues(
        std::vector<SbMatrix>{SbMatrix::translation({0, 5, 0}), SbMatrix::translation({0, 9, 0})});
    SoRef<SoCube> block(new SoCube);
    auto* group = new SoGroup; // does not isolate: what follows is moved too
    auto* moved = new SoTransform;
    moved->translation.setValue(20, 0, 0);
    group->addChild(moved);
    copies->addChild(group);
    copies->addChild(block.get());
    scene->addChild(copies);
    view.viewNode(block.get());
    const QRect seen = cornersOf({19, 4, -1, 21, 10, 1});
    EXPECT_NEAR(seen.height() / double(view.height()), 0.88, 0.03);
    EXPECT_LE((seen.center() - view.rect().center()).manhattanLength(), 3);
}

TEST_F(View, MarksTheSelectedNode)
{
    const QImage before = picture();
    view.setHighlight(left.get());
    EXPECT_NE(picture(), before);
    view.setHighlight(nullptr);
    EXPECT_EQ(picture(), before);
}

TEST_F(View, AnEmptySceneShowsTheGround)
{
    view.setScene(nullptr);
    const QImage image = picture();
    EXPECT_EQ(image.pixelColor(10, 10), image.pixelColor(150, 100));
    EXPECT_FALSE(view.pick({150, 100}));
}

TEST(ViewOfTheShippedScene, IsNotTrivial)
{
    SceneView view;
    view.resize(400, 300);
    view.setScene(makeDefaultScene().get());
    view.show();
    QCoreApplication::processEvents();
    const QImage image = view.grab().toImage();
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); x += 3)
            colors.insert(image.pixel(x, y));
    }
    EXPECT_GT(colors.size(), 300);
}

} // namespace
