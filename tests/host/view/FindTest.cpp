// SPDX-License-Identifier: MIT
#include "panels/SceneFinder.h"
#include "panels/ScenePanel.h"
#include "panels/SceneTreeModel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/sensors/SoSensorQueue.h>

using namespace scopix;

namespace
{

/// A window with a street of houses, each with a wall and a lamp.
class Find : public testing::Test
{
protected:
    static constexpr int Houses = 30;

    Find()
    {
        notifier.setAttended(false);
        root->setName("Street");
        for (int i = 0; i < Houses; ++i) {
            auto* house = new SoSeparator;
            house->setName(("House" + std::to_string(i)).c_str());
            auto* wall = new SoCube;
            wall->setName(i % 2 ? "Wall" : "Fence");
            house->addChild(wall);
            house->addChild(new SoSphere);
            root->addChild(house);
        }
        window.setScene(root.get(), QStringLiteral("Street"));
        window.show();
        window.activateWindow();
        EXPECT_TRUE(waitForActive(&window));
    }
    ~Find() override { QTest::qWait(0); }

    QLineEdit* line() { return window.findChild<QWidget*>("findBar")->findChild<QLineEdit*>(); }
    QToolButton* button(const char* name) { return window.findChild<QToolButton*>(name); }
    SceneFinder& finder() { return window.getScenePanel().getFinder(); }
    SceneTreeView& tree() { return window.getTree(); }

    void type(const QString& text)
    {
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text);
        waitForAll();
    }
    void waitForAll()
    {
        EXPECT_TRUE(waitFor([this] { return finder().isFinished(); }));
    }
    SoNode* house(int index) const { return root->getChild(index); }
    SoNode* in(int houseIndex, int child) const
    {
        return static_cast<SoSeparator*>(house(houseIndex))->getChild(child);
    }
    bool isInSight(const SoNode* node)
    {
        const QModelIndex index = tree().getModel().indexOf(node);
        return tree().viewport()->rect().intersects(tree().visualRect(index)) &&
               tree().isExpanded(index.parent());
    }
    int rowsShown(const SoNode* group)
    {
        return tree().getModel().rowCount(tree().getModel().indexOf(group));
    }
    QString count() { return window.findChild<QWidget*>("findBar")->findChild<QLabel*>()->text(); }

    SoRef<SoSwitch> root{new SoSwitch}; // shows nothing: drawing is not the matter here
    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
};

TEST_F(Find, TypingUnfoldsTheFirstHitAndEnterGoesFromOneToTheNext)
{
    type("wall");
    EXPECT_EQ(line(), QApplication::focusWidget());
    EXPECT_EQ(finder().getFound().size(), std::size_t{Houses / 2});
    EXPECT_EQ(count(), "15");
    EXPECT_TRUE(isInSight(in(1, 0)));
    EXPECT_FALSE(services.selectedNode()) << "looking is not selecting";

    QTest::keyClick(line(), Qt::Key_Return);
    EXPECT_EQ(services.selectedNode(), in(1, 0));
    EXPECT_EQ(count(), "1 of 15");
    QTest::keyClick(line(), Qt::Key_Return);
    EXPECT_EQ(services.selectedNode(), in(3, 0));
    QTest::keyClick(line(), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(line(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(services.selectedNode(), in(29, 0)) << "around the end";
    EXPECT_TRUE(isInSight(in(29, 0)));
    QTest::mouseClick(button("action-next"), Qt::LeftButton);
    EXPECT_EQ(services.selectedNode(), in(1, 0));
    QTest::mouseClick(button("action-previous"), Qt::LeftButton);
    EXPECT_EQ(services.selectedNode(), in(29, 0));
}

TEST_F(Find, MarksTheRowsOfWhatItFound)
{
    type("wall");
    EXPECT_TRUE(tree().isMarked(in(1, 0)));
    EXPECT_FALSE(tree().isMarked(in(0, 0)));
    QTest::keyClick(line(), Qt::Key_Escape);
    EXPECT_TRUE(line()->text().isEmpty());
    EXPECT_FALSE(tree().isMarked(in(1, 0)));
    QTest::keyClick(line(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &tree());
}

TEST_F(Find, TheFilterKeepsParentsAndGivesBackWhatWasExpanded)
{
    tree().selectNode(in(4, 1));
    ASSERT_EQ(services.selectedNode(), in(4, 1));
    QTest::mouseClick(button("action-filter"), Qt::LeftButton);
    EXPECT_EQ(rowsShown(root.get()), Houses) << "nothing is looked for yet";

    type("name:house7 | name:fence");
    EXPECT_EQ(rowsShown(root.get()), Houses / 2 + 1);
    EXPECT_EQ(rowsShown(house(4)), 1) << "the sphere is no hit";
    EXPECT_EQ(rowsShown(house(7)), 0) << "a hit shows no more than hits below it";
    EXPECT_TRUE(isInSight(in(0, 0)));
    EXPECT_EQ(services.selectedNode(), in(4, 1)) << "it is only out of sight";

    QTest::mouseClick(button("action-filter"), Qt::LeftButton);
    EXPECT_EQ(rowsShown(root.get()), Houses);
    EXPECT_EQ(rowsShown(house(4)), 2);
    EXPECT_TRUE(tree().isExpanded(tree().getModel().indexOf(house(4))));
    EXPECT_FALSE(tree().isExpanded(tree().getModel().indexOf(house(0)))) << "it was not before";
    EXPECT_EQ(services.selectedNode(), in(4, 1));
}

TEST_F(Find, FollowsTheScene)
{
    QTest::mouseClick(button("action-filter"), Qt::LeftButton);
    type("name:wall");
    in(0, 0)->setName("Wall");
    root->removeChild(3);
    SoSensorQueue::getInstance().process();
    EXPECT_TRUE(waitFor([this] { return tree().isMarked(in(0, 0)) && finder().isFinished(); }));
    EXPECT_EQ(finder().getFound().size(), std::size_t{Houses / 2});
    EXPECT_TRUE(waitFor([this] { return rowsShown(root.get()) == Houses / 2; }));
}

TEST_F(Find, ARepeatedSearchThatFindsTheSameLeavesRowsFolded)
{
    QTest::mouseClick(button("action-filter"), Qt::LeftButton);
    type("name:fence");
    tree().collapse(tree().getModel().indexOf(house(0)));
    QSignalSpy repeated(&finder(), &SceneFinder::foundChanged);
    house(1)->setName("Elsewhere");
    SoSensorQueue::getInstance().process();
    ASSERT_TRUE(waitFor([&] { return !repeated.isEmpty(); }));
    EXPECT_FALSE(tree().isExpanded(tree().getModel().indexOf(house(0))));
}

TEST_F(Find, SaysWhatIsWrongWithTheQuery)
{
    type("transparency>");
    const auto* error = window.findChild<QLabel*>("findError");
    EXPECT_TRUE(error->isVisible());
    EXPECT_TRUE(error->text().contains("needs a number"));
    QTest::keyClicks(line(), "0");
    waitForAll();
    EXPECT_FALSE(error->isVisible());
}

TEST_F(Find, AnotherSceneIsSearchedToo)
{
    type("sphere");
    SoRef<SoSeparator> other(new SoSeparator);
    other->addChild(new SoSphere);
    window.setScene(other.get(), QStringLiteral("Other"));
    waitForAll();
    EXPECT_EQ(finder().getFound().size(), 1U);
    EXPECT_EQ(finder().getFound().front().get(), other->getChild(0));
}

TEST_F(Find, ASearchInALargeSceneLeavesTheEventLoopAlive)
{
    SoRef<SoSwitch> large(new SoSwitch);
    for (int i = 0; i < 100'000; ++i)
        large->addChild(new SoCube);
    large->addChild(new SoMaterial);
    window.setScene(large.get(), QStringLiteral("Large"));
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(line(), "materia");
    EXPECT_FALSE(finder().isFinished());
    QTest::keyClicks(line(), "l");
    waitForAll();
    EXPECT_EQ(finder().getFound().size(), 1U);
}

} // namespace
