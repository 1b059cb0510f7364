// SPDX-License-Identifier: MIT
// A scene that takes longer to draw than a user waits.
#include "ViewPictures.h"

#include <support/Waiting.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QLabel>

using namespace scopix;

namespace
{

class LargeSceneView : public testing::Test
{
protected:
    LargeSceneView()
    {
        for (int i = 0; i < 12'000; ++i) {
            auto* group = new SoSeparator;
            auto* move = new SoTransform;
            move->translation.setValue(static_cast<float>(3 * (i % 120)), static_cast<float>(3 * (i / 120)),
                                       0);
            group->addChild(move);
            group->addChild(new SoCube);
            scene->addChild(group);
        }
        view.resize(300, 200);
        view.show();
        QCoreApplication::processEvents();
    }
    bool isSaid() const { return view.findChild<QLabel*>(QStringLiteral("preparingPicture"))->isVisible(); }
    bool waitForPicture()
    {
        return waitFor([&] { return !view.isDrawing(); });
    }

    SoRef<SoSeparator> scene{new SoSeparator};
    SceneView view;
};

} // namespace

TEST_F(LargeSceneView, IsDrawnBetweenEventsAndSaysSo)
{
    const int before = view.getDrawCount();
    view.setScene(scene.get());
    ASSERT_TRUE(waitFor([&] { return view.isDrawing(); }));
    EXPECT_EQ(view.getDrawCount(), before);
    EXPECT_TRUE(isSaid());
    ASSERT_TRUE(waitForPicture());
    EXPECT_FALSE(isSaid());
    EXPECT_EQ(view.getDrawCount(), before + 1);
}

TEST_F(LargeSceneView, GivesAWholePictureWhenOneIsTaken)
{
    view.setScene(scene.get());
    ASSERT_TRUE(waitFor([&] { return view.isDrawing(); }));
    const QImage taken = pictureOf(view);
    ASSERT_TRUE(waitForPicture());
    EXPECT_EQ(taken, pictureOf(view));
}

TEST_F(LargeSceneView, MayBeEditedTurnedAndClosedMeanwhile)
{
    view.setScene(scene.get());
    ASSERT_TRUE(waitFor([&] { return view.isDrawing(); }));
    scene->removeChild(0);
    QTest::keyClick(&view, Qt::Key_Right);
    SoSensorQueue::getInstance().process();
    ASSERT_TRUE(waitForPicture());
    const QImage shown = pictureOf(view);
    view.setWireframe(true);
    EXPECT_NE(pictureOf(view), shown);
    view.setWireframe(false);
    EXPECT_EQ(pictureOf(view), shown);
    view.setWireframe(true);
    ASSERT_TRUE(waitFor([&] { return view.isDrawing(); }));
    scene = nullptr;
    view.setScene(nullptr);
    EXPECT_TRUE(waitForPicture());
    EXPECT_FALSE(isSaid());
}
