// SPDX-License-Identifier: MIT
// The dock "Cost" in the real host.
#include "cost/CostPanel.h"
#include "cost/TreeMap.h"

#include "viewport/SceneView.h"
#include "window/MainWindow.h"

#include <support/Session.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QLabel>
#include <QListWidget>
#include <QTreeWidget>

using namespace profiler;

namespace
{

class CostWidget : public testing::Test
{
protected:
    CostWidget()
        : session([](HostServices& services, UserNotifier& notifier) {
            return std::make_unique<MainWindow>(services, notifier);
        })
    {
        large->setName("Large");
        root->addChild(large);
        for (int i = 0; i < 8; ++i) {
            auto* aside = new SoTransform;
            aside->translation.setValue(SbVec3f(2.5F, static_cast<float>(i % 2), 0));
            large->addChild(aside);
            large->addChild(new SoSphere);
        }
        root->addChild(small);
        small->addChild(new SoCube);
        session.host.window().resize(500, 400);
        static_cast<MainWindow&>(session.host.window()).setScene(root.get(), "test");
        session.settle();
        panel.resize(900, 260);
        panel.show();
    }
    ~CostWidget() override
    {
        static_cast<MainWindow&>(session.host.window()).setScene(nullptr, "none");
        session.host.services().clearSelection();
    }
    void measure()
    {
        QTest::mouseClick(panel.findChild<QPushButton*>("measureCost"), Qt::LeftButton);
        EXPECT_TRUE(panel.getRun().isRunning());
        EXPECT_TRUE(QTest::qWaitFor([this] { return !panel.getRun().isRunning(); }, 240000));
    }
    QString line() { return panel.findChild<QLabel*>("costLine")->text(); }

    Session session;
    SoRef<SoSeparator> root{new SoSeparator};
    SoSeparator* large = new SoSeparator;
    SoSeparator* small = new SoSeparator;
    CostPanel panel;
};

} // namespace

TEST_F(CostWidget, ShowsEachBranchSummedUpTheTree)
{
    measure();
    auto* tree = panel.findChild<QTreeWidget*>("costTree");
    QTreeWidgetItem* top = tree->topLevelItem(0);
    ASSERT_TRUE(top);
    ASSERT_EQ(top->childCount(), 2);
    tree->sortItems(5, Qt::DescendingOrder);
    EXPECT_EQ(top->child(0)->text(0), "Large");
    const double sum = top->child(0)->data(5, Qt::DisplayRole).toDouble() + 12;
    EXPECT_EQ(top->data(5, Qt::DisplayRole).toDouble(), sum);
    EXPECT_EQ(top->child(1)->data(5, Qt::DisplayRole).toDouble(), 12);
    tree->sortItems(5, Qt::AscendingOrder);
    EXPECT_EQ(top->child(1)->text(0), "Large");
    EXPECT_TRUE(line().startsWith("The whole takes ")) << qPrintable(line());
}

TEST_F(CostWidget, AnAreaChoosesItsBranchAndTellsWhatWouldBeWithoutIt)
{
    measure();
    auto* map = panel.findChild<TreeMap*>("costMap");
    panel.findChild<QComboBox*>()->setCurrentIndex(1); // triangles
    const auto& areas = map->getAreas();
    ASSERT_GE(areas.size(), 3U);
    EXPECT_EQ(areas[0].branch, 0);
    const QRectF first = areas[1].place;
    const double share = first.width() * first.height() / (map->width() * map->height());
    EXPECT_GT(share, 0.7); // nearly all triangles
    QTest::mouseClick(map, Qt::LeftButton, {}, first.topLeft().toPoint() + QPoint(2, 2));
    auto* tree = panel.findChild<QTreeWidget*>("costTree");
    ASSERT_TRUE(tree->currentItem());
    EXPECT_EQ(tree->currentItem()->text(0), "Large");
    EXPECT_TRUE(line().startsWith(QString::fromUtf8("Without “Large” a picture would take")))
        << qPrintable(line());
    const QByteArray folder = qgetenv("SCOPIX_PICTURES"); // where the picture of the page goes
    EXPECT_TRUE(folder.isEmpty() || panel.grab().save(QString::fromLocal8Bit(folder) + "/cost.png"));
    emit tree->itemActivated(tree->currentItem(), 0);
    EXPECT_EQ(session.host.services().selectedNode(), large);
}

TEST_F(CostWidget, MeasuresWhatTheViewShowsNow)
{
    auto* view = session.host.window().findChild<SceneView*>();
    panel.measure();
    EXPECT_EQ(panel.getRun().getSize(), view->size() * view->devicePixelRatioF());
    view->getCamera().position.setValue(1, 2, 30);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !panel.getRun().isRunning(); }, 240000));
    EXPECT_TRUE(line().contains("the view has moved meanwhile")) << qPrintable(line());
}

TEST_F(CostWidget, EndsWithASentenceWhenTheSceneChanges)
{
    panel.measure();
    small->addChild(new SoCube);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !panel.getRun().isRunning(); }, 240000));
    EXPECT_TRUE(line().contains("the scene has changed meanwhile")) << qPrintable(line());
    EXPECT_FALSE(panel.findChild<QTreeWidget*>("costTree")->topLevelItem(0));
}
