// SPDX-License-Identifier: MIT
// The dock "Cost" in the real host.
#include "cost/CostPanel.h"
#include "cost/HeatColors.h"
#include "cost/TreeMap.h"

#include "panels/SceneTreeView.h"
#include "structure/SceneStates.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"

#include <support/Session.h>

#include <xsg/actions/SoHiding.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/render/SoOffscreenRenderer.h>

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
    MainWindow& window() { return static_cast<MainWindow&>(session.host.window()); }
    QTreeWidgetItem* choose(const char* name)
    {
        auto* tree = panel.findChild<QTreeWidget*>("costTree");
        QTreeWidgetItem* item = tree->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
        tree->setCurrentItem(item);
        return item;
    }
    QTreeWidgetItem* itemOf(const SoNode* node)
    {
        QTreeWidgetItem* top = panel.findChild<QTreeWidget*>("costTree")->topLevelItem(0);
        const std::vector<SoBranchCost>& branches = panel.getRun().getCosts().branches;
        for (int i = 0; i < top->childCount(); ++i) {
            if (branches[top->child(i)->data(0, Qt::UserRole).toUInt()].node.get() == node)
                return top->child(i);
        }
        return nullptr;
    }
    QString inTree(const SoNode* node, const char* caption)
    {
        const SceneTreeModel& model = window().getTree().getModel();
        for (int column = 0; column < model.columnCount(); ++column) {
            if (model.headerData(column, Qt::Horizontal) == caption)
                return model.indexOf(node).siblingAtColumn(column).data().toString();
        }
        return "no column";
    }
    // Where the picture of the page goes.
    void saveColors(SceneView& view)
    {
        const QByteArray folder = qgetenv("SCOPIX_PICTURES");
        if (folder.isEmpty())
            return;
        const SoShapeColors colors = view.getShapeColors();
        SoOffscreenRenderer renderer;
        renderer.getRenderer().setShapeColors(&colors);
        renderer.getRenderer().setBackground({0.25F, 0.25F, 0.27F});
        SoPixels pixels;
        ASSERT_TRUE(renderer.render(root.get(), &view.getCamera(), 720, 300, pixels));
        const QImage image(pixels.rgba.data(), 720, 300, QImage::Format_RGBA8888);
        EXPECT_TRUE(image.save(QString::fromLocal8Bit(folder) + "/cost-colors.png"));
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

TEST_F(CostWidget, StandsInColumnsOfTheSceneTreeToo)
{
    measure();
    const SoCosts& costs = panel.getRun().getCosts();
    const auto number = [](double value) { return QLocale().toString(value, 'f', 0); };
    EXPECT_EQ(inTree(root.get(), "Drawn triangles"),
              number(static_cast<double>(costs.branches.front().triangles)));
    EXPECT_EQ(inTree(small, "Drawn triangles"), "12");
    EXPECT_EQ(inTree(large, "Pixels"), number(static_cast<double>(costs.find(large)->pixels)));
    EXPECT_GT(costs.find(large)->pixels, 0);
    EXPECT_EQ(inTree(large, "Draw calls"), number(static_cast<double>(costs.find(large)->drawCalls)));
    EXPECT_FALSE(inTree(large, "Time, ms").isEmpty());
    EXPECT_EQ(inTree(large->getChild(0), "Time, ms"), ""); // a transform
    panel.clear();
    EXPECT_EQ(inTree(small, "Drawn triangles"), "no column");
}

TEST_F(CostWidget, WithoutABranchItIsMeasuredAndTheBranchIsHidden)
{
    measure();
    ASSERT_TRUE(choose("Large"));
    auto* without = panel.findChild<QPushButton*>("withoutBranch");
    const std::uint32_t changes = root->getChangeCount();
    QTest::mouseClick(without, Qt::LeftButton);
    EXPECT_TRUE(panel.getRun().isRunning());
    EXPECT_TRUE(window().getStates().isHidden(large));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !panel.getRun().isRunning(); }, 240000));
    EXPECT_TRUE(line().startsWith(QString::fromUtf8("Without “Large” a picture takes ")))
        << qPrintable(line());
    EXPECT_TRUE(line().contains(QString::fromUtf8(" ± "))) << qPrintable(line());
    EXPECT_EQ(root->getChangeCount(), changes); // nothing was written
    EXPECT_TRUE(without->isChecked());
    QTest::mouseClick(without, Qt::LeftButton);
    EXPECT_FALSE(window().getStates().isHidden(large));
    EXPECT_EQ(panel.getRun().getCosts().branches.empty(), false);
}

TEST_F(CostWidget, AnotherBranchBringsTheHiddenOneBack)
{
    measure();
    ASSERT_TRUE(choose("Large"));
    QTest::mouseClick(panel.findChild<QPushButton*>("withoutBranch"), Qt::LeftButton);
    QTreeWidgetItem* top = panel.findChild<QTreeWidget*>("costTree")->topLevelItem(0);
    panel.findChild<QTreeWidget*>("costTree")->setCurrentItem(top);
    EXPECT_FALSE(window().getStates().isHidden(large));
    EXPECT_FALSE(panel.getRun().isRunning());
    EXPECT_FALSE(panel.findChild<QPushButton*>("withoutBranch")->isEnabled()); // nothing would be left
}

TEST_F(CostWidget, WhatTheUserHidesIsNotMeasured)
{
    window().getStates().setHidden({large}, true);
    measure();
    EXPECT_EQ(panel.getRun().getCosts().branches.front().triangles, 12);
    EXPECT_TRUE(window().getStates().isHidden(large));
}

// Each column and each area beside what a walk, a picture and the costs tell.
TEST_F(CostWidget, EveryFigureIsWhatWasCounted)
{
    measure();
    const SoCosts& costs = panel.getRun().getCosts();
    const std::int64_t ofLarge = costs.branches.front().triangles - 12;
    EXPECT_EQ(costs.find(large)->triangles, ofLarge);
    EXPECT_EQ(ofLarge, 8 * costs.find(large->getChild(1))->triangles);
    for (const auto& [node, bodies] : {std::pair{large, 8}, std::pair{small, 1}}) {
        const QTreeWidgetItem* item = itemOf(node);
        ASSERT_TRUE(item);
        SoOffscreenRenderer renderer;
        SoHiding hiding;
        hiding.isolate({node});
        renderer.setSamples(1);
        renderer.getRenderer().setHiding(&hiding);
        renderer.getRenderer().setCountsPixels(true);
        SoPixels pixels;
        auto* view = window().findChild<SceneView*>();
        const QSize size = panel.getRun().getSize();
        ASSERT_TRUE(renderer.render(root.get(), &view->getCamera(), size.width(), size.height(), pixels));
        const auto& drawn = renderer.getRenderer().getStatistics();
        const auto shown = [&](int column) { return item->data(column, Qt::DisplayRole).toDouble(); };
        EXPECT_EQ(shown(6), bodies);
        EXPECT_EQ(shown(5), drawn.triangles);
        EXPECT_EQ(shown(7), drawn.drawCalls);
        EXPECT_EQ(shown(9), drawn.pixels);
        EXPECT_NEAR(shown(8), double(costs.find(node)->meshBytes + costs.find(node)->pictureBytes) / 1000,
                    0.001);
        EXPECT_NEAR(shown(1), costs.find(node)->getTime(), 0.001);
    }
    auto* map = panel.findChild<TreeMap*>("costMap");
    const TreeMap::Figure figures[] = {
        [](const SoBranchCost& each) { return each.getTime(); },
        [](const SoBranchCost& each) { return double(each.triangles); },
        [](const SoBranchCost& each) { return double(each.meshBytes + each.pictureBytes); },
        [](const SoBranchCost& each) { return double(each.shapes); }};
    for (int i = 0; i < 4; ++i) {
        panel.findChild<QComboBox*>("areasFigure")->setCurrentIndex(i);
        const auto sizeOf = [&](const SoNode* node) {
            for (const TreeMap::Area& area : map->getAreas()) {
                if (costs.branches[std::size_t(area.branch)].node.get() == node)
                    return area.place.width() * area.place.height();
            }
            return 0.0;
        };
        if (figures[i](*costs.find(small)) <= 0 || figures[i](*costs.find(large)) <= 0) {
            EXPECT_EQ(i, 0); // a time within the noise
            continue;
        }
        // As to time, either may be the smaller one on a busy machine.
        const bool isSwapped = figures[i](*costs.find(small)) > figures[i](*costs.find(large));
        const SoNode* less = isSwapped ? large : small;
        const SoNode* more = isSwapped ? small : large;
        const double wanted = figures[i](*costs.find(less)) / figures[i](*costs.find(more));
        if (sizeOf(less) > 0) // none where it is too small to be seen
            EXPECT_NEAR(sizeOf(less) / sizeOf(more), wanted, 0.02 * (1 + wanted)) << i;
        else
            EXPECT_LT(wanted, 0.1) << i;
    }
    panel.findChild<QComboBox*>("areasFigure")->setCurrentIndex(0);
}

TEST_F(CostWidget, WhatIsIsolatedAwayIsNotMeasured)
{
    window().getStates().isolate({small});
    measure();
    const SoCosts& costs = panel.getRun().getCosts();
    EXPECT_EQ(costs.branches.front().triangles, 12);
    EXPECT_EQ(costs.branches.front().pixels, costs.find(small)->pixels);
    EXPECT_GT(costs.find(small)->pixels, 0);
    window().getStates().isolate({});
    measure();
    EXPECT_GT(panel.getRun().getCosts().branches.front().triangles, 12);
}

TEST_F(CostWidget, ColoursTheViewWhileItIsInSight)
{
    auto* view = window().findChild<SceneView*>();
    auto* colors = panel.findChild<QComboBox*>("heatColors");
    colors->setCurrentIndex(1);
    EXPECT_TRUE(view->getShapeColors().isEmpty());
    EXPECT_TRUE(line().startsWith("The view has these colours as soon")) << qPrintable(line());
    measure();
    const SoNode* sphere = large->getChild(1);
    EXPECT_FALSE(view->getShapeColors().isEmpty());
    const SoCosts& costs = panel.getRun().getCosts();
    double longest = 0;
    for (const SoBranchCost& branch : costs.branches)
        longest = std::max(longest, branch.node->asShape() ? HeatColors::timeOf(costs, branch) : 0);
    const double share = longest > 0 ? HeatColors::timeOf(costs, *costs.find(sphere)) / longest : 0;
    EXPECT_EQ(view->getShapeColors().get(*sphere), HeatColors::at(share));
    saveColors(*view);
    panel.hide();
    EXPECT_TRUE(view->getShapeColors().isEmpty());
    panel.show();
    EXPECT_FALSE(view->getShapeColors().isEmpty());
    colors->setCurrentIndex(3);
    EXPECT_TRUE(view->getShapeColors().isEmpty());
    EXPECT_TRUE(view->isOverdrawShown());
    EXPECT_EQ(view->getShading(), SoRenderer::Shading::Full); // as the menu says
    colors->setCurrentIndex(0);
    EXPECT_FALSE(view->isOverdrawShown());
}

TEST_F(CostWidget, RemembersWhatWasChosen)
{
    panel.findChild<QComboBox*>("areasFigure")->setCurrentIndex(2);
    panel.findChild<QTreeWidget*>("costTree")->sortByColumn(5, Qt::AscendingOrder);
    const CostPanel other;
    EXPECT_EQ(other.findChild<QComboBox*>("areasFigure")->currentIndex(), 2);
    const QHeaderView* header = other.findChild<QTreeWidget*>("costTree")->header();
    EXPECT_EQ(header->sortIndicatorSection(), 5);
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::AscendingOrder);
    panel.findChild<QComboBox*>("areasFigure")->setCurrentIndex(0);
    panel.findChild<QTreeWidget*>("costTree")->sortByColumn(1, Qt::DescendingOrder);
}

TEST(HeatColorsOf, ShapesHaveTheirShareOfTheBranchThatWasMeasured)
{
    SoCosts costs;
    costs.branches.resize(3);
    costs.branches[0].node = SoRef<SoNode>(new SoSeparator);
    costs.branches[0].isMeasured = true;
    costs.branches[0].processor = 8;
    costs.branches[0].triangles = 400;
    costs.branches[0].pixels = 4000;
    for (std::size_t i = 1; i < 3; ++i) {
        costs.branches[i].node = SoRef<SoNode>(new SoCube);
        costs.branches[i].parent = 0;
        costs.branches[i].shapes = 1;
        costs.branches[i].triangles = i == 1 ? 100 : 300;
    }
    EXPECT_EQ(HeatColors::timeOf(costs, costs.branches[1]), 2);
    EXPECT_EQ(HeatColors::timeOf(costs, costs.branches[2]), 6);
    EXPECT_EQ(HeatColors::trianglesPerPixelOf(costs, costs.branches[1]), 0.1);
    costs.branches[1].isMeasured = true;
    costs.branches[1].processor = 5;
    costs.branches[1].pixels = 10;
    EXPECT_EQ(HeatColors::timeOf(costs, costs.branches[1]), 5);
    EXPECT_EQ(HeatColors::trianglesPerPixelOf(costs, costs.branches[1]), 10);
    const SoShapeColors byTime = HeatColors::ofTime(costs);
    EXPECT_EQ(byTime.get(*costs.branches[2].node), HeatColors::at(1));
    EXPECT_EQ(byTime.get(*costs.branches[1].node), HeatColors::at(5.0 / 6));
    EXPECT_GT(HeatColors::at(1)[0], HeatColors::at(0)[0]);
    EXPECT_LT(HeatColors::at(1)[2], HeatColors::at(0)[2]);
}
