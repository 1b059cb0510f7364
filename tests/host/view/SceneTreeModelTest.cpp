// SPDX-License-Identifier: MIT
#include "panels/SceneTreeModel.h"
#include "panels/SceneTreeView.h"
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/sensors/SoSensorQueue.h>

using namespace scopix;

namespace
{

void nextTurn()
{
    SoSensorQueue::getInstance().process();
}

SoRef<SoSeparator> named(const char* name)
{
    SoRef<SoSeparator> node(new SoSeparator);
    node->setName(name);
    return node;
}

QString textAt(const SceneTreeModel& model, const QModelIndex& index)
{
    return model.data(index).toString();
}

class SceneTree : public testing::Test
{
protected:
    SceneTree()
    {
        root->addChild(first.get());
        root->addChild(second.get());
        model.setRoot(root.get());
    }
    QModelIndex top() const { return model.index(0, 0); }
    QModelIndex row(int i) const { return model.index(i, 0, top()); }

    SoRef<SoSeparator> root = named("root");
    SoRef<SoSeparator> first = named("first");
    SoRef<SoSeparator> second = named("second");
    SceneTreeModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(SceneTree, ShowsNamesAndTypes)
{
    SoRef<SoCube> cube(new SoCube);
    second->addChild(cube.get());
    nextTurn();
    EXPECT_EQ(textAt(model, top()), "root");
    EXPECT_EQ(textAt(model, row(1)), "second");
    EXPECT_EQ(textAt(model, row(1).siblingAtColumn(SceneTreeModel::TypeColumn)), "Separator");
    const QModelIndex unnamed = model.index(0, 0, row(1));
    EXPECT_EQ(textAt(model, unnamed), "Cube");
    EXPECT_TRUE(model.data(unnamed, Qt::FontRole).value<QFont>().italic());
}

TEST_F(SceneTree, FollowsAddedRemovedAndReplacedChildren)
{
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    model.rowCount(top());
    const QPersistentModelIndex kept = row(1);
    const auto third = named("third");
    root->insertChild(third.get(), 1);
    nextTurn();
    ASSERT_EQ(inserted.count(), 1);
    EXPECT_EQ(kept.row(), 2);
    EXPECT_EQ(textAt(model, row(1)), "third");
    root->removeChild(0);
    nextTurn();
    ASSERT_EQ(removed.count(), 1);
    EXPECT_EQ(kept.row(), 1);
    root->replaceChild(0, first.get());
    nextTurn();
    EXPECT_EQ(textAt(model, row(0)), "first");
    EXPECT_EQ(kept.row(), 1);
    root->removeAllChildren();
    nextTurn();
    EXPECT_EQ(model.rowCount(top()), 0);
    EXPECT_FALSE(kept.isValid());
}

TEST_F(SceneTree, FollowsNames)
{
    model.rowCount(top());
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    second->setName("renamed");
    nextTurn();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex(), row(1));
    EXPECT_EQ(textAt(model, row(1)), "renamed");
    root->setName("top");
    nextTurn();
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(SceneTree, IgnoresFieldChanges)
{
    SoRef<SoTransform> transform(new SoTransform);
    first->addChild(transform.get());
    nextTurn();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    transform->translation.setValue(1, 2, 3);
    nextTurn();
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(SceneTree, ReportsTheFirstAndTheLastChildOfAClosedGroup)
{
    SceneTreeModel unopened; // the tester would open every group
    unopened.setRoot(root.get());
    const QModelIndex group = unopened.index(0, 0, unopened.index(0, 0));
    EXPECT_FALSE(unopened.hasChildren(group));
    int layouts = 0;
    QObject::connect(&unopened, &QAbstractItemModel::layoutChanged, [&] { ++layouts; });
    SoRef<SoCube> cube(new SoCube);
    first->addChild(cube.get());
    nextTurn();
    EXPECT_EQ(layouts, 1);
    EXPECT_TRUE(unopened.hasChildren(group));
    first->removeChild(0);
    nextTurn();
    EXPECT_EQ(layouts, 2);
    EXPECT_FALSE(unopened.hasChildren(group));
}

TEST_F(SceneTree, ShowsASharedNodeAtEachPlace)
{
    const auto shared = named("shared");
    SoRef<SoCube> cube(new SoCube);
    shared->addChild(cube.get());
    first->addChild(shared.get());
    second->addChild(shared.get());
    nextTurn();
    const QModelIndex here = model.index(0, 0, row(0));
    const QModelIndex there = model.index(0, 0, row(1));
    EXPECT_EQ(model.nodeAt(here), shared.get());
    EXPECT_EQ(model.nodeAt(there), shared.get());
    EXPECT_NE(here, there);
    EXPECT_EQ(model.rowCount(here), 1);
    EXPECT_EQ(model.rowCount(there), 1);
    shared->removeAllChildren();
    nextTurn();
    EXPECT_EQ(model.rowCount(here), 0);
    EXPECT_EQ(model.rowCount(there), 0);
}

TEST_F(SceneTree, FindsANodeUpwardsThroughAnyParent)
{
    const auto elsewhere = named("elsewhere");
    const auto deep = named("deep");
    elsewhere->addChild(deep.get()); // its first parent does not lead to the root
    second->addChild(deep.get());
    nextTurn();
    EXPECT_EQ(model.indexOf(deep.get()), model.index(0, 0, row(1)));
    EXPECT_FALSE(model.indexOf(elsewhere.get()).isValid());
    EXPECT_EQ(model.indexOf(root.get()), top());
}

TEST_F(SceneTree, KeepsNodesOfItsRowsAliveUntilTheNextTurn)
{
    model.rowCount(top());
    root->removeChild(0);
    first = SoRef<SoSeparator>();
    EXPECT_EQ(textAt(model, row(0)), "first"); // the row is still there, and so is its node
    nextTurn();
    EXPECT_EQ(textAt(model, row(0)), "second");
}

TEST_F(SceneTree, ManyChangesInOneTurnEndInTheScenesState)
{
    model.rowCount(top());
    for (int i = 0; i < 50; ++i) {
        root->insertChild(named("new").get(), i % 3);
        if (i % 4 == 0)
            root->removeChild(1);
        if (i % 7 == 0)
            nextTurn();
    }
    nextTurn();
    ASSERT_EQ(model.rowCount(top()), root->getNumChildren());
    for (int i = 0; i < root->getNumChildren(); ++i)
        EXPECT_EQ(model.nodeAt(row(i)), root->getChild(i));
}

// 10 x 100 x 100 nodes: a node that has a row is held by it.
TEST(SceneTreeLaziness, OpensABigSceneWithoutWalkingIt)
{
    const auto root = named("root");
    std::vector<SoNode*> all;
    for (int i = 0; i < 10; ++i) {
        SoRef<SoSeparator> branch(new SoSeparator);
        for (int j = 0; j < 100; ++j) {
            SoRef<SoSeparator> twig(new SoSeparator);
            for (int k = 0; k < 100; ++k) {
                all.push_back(new SoCube);
                twig->addChild(all.back());
            }
            all.push_back(twig.get());
            branch->addChild(twig.get());
        }
        all.push_back(branch.get());
        root->addChild(branch.get());
    }
    SceneTreeView view;
    view.resize(300, 400);
    view.setScene(root.get());
    view.show();
    QCoreApplication::processEvents();
    const auto hasRow = [](const SoNode* node) { return node->getRefCount() > 1; };
    EXPECT_EQ(std::count_if(all.begin(), all.end(), hasRow), 10);
    view.expand(view.getModel().index(3, 0, view.getModel().index(0, 0)));
    QCoreApplication::processEvents();
    EXPECT_EQ(std::count_if(all.begin(), all.end(), hasRow), 110);
    view.showNode(all[0]);
    EXPECT_EQ(view.getModel().nodeAt(view.currentIndex()), all[0]);
    EXPECT_EQ(std::count_if(all.begin(), all.end(), hasRow), 310);
}

// Counts how many rows are measured or painted.
class CountingDelegate : public QStyledItemDelegate
{
public:
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        ++asked;
        return QStyledItemDelegate::sizeHint(option, index);
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        ++asked;
        QStyledItemDelegate::paint(painter, option, index);
    }
    mutable int asked = 0;
};

TEST(SceneTreeLaziness, MeasuresAndPaintsOnlyWhatIsSeenOfAFlatGroup)
{
    const auto root = named("root");
    const auto shared = named("below");
    for (int i = 0; i < 100000; ++i) {
        SoRef<SoSeparator> child(new SoSeparator);
        if (i < 50)
            child->addChild(shared.get());
        root->addChild(child.get());
    }
    const int before = shared->getRefCount();
    SceneTreeView view;
    CountingDelegate rows;
    view.setItemDelegate(&rows);
    view.resize(300, 400);
    view.setScene(root.get());
    view.show();
    QCoreApplication::processEvents();
    ASSERT_EQ(view.getModel().rowCount(view.getModel().index(0, 0)), 100000);
    EXPECT_GT(rows.asked, 10);
    EXPECT_LT(rows.asked, 500);
    rows.asked = 0;
    view.showNode(root->getChild(99999));
    EXPECT_EQ(view.currentIndex().row(), 99999);
    QCoreApplication::processEvents();
    EXPECT_LT(rows.asked, 500);
    EXPECT_EQ(shared->getRefCount(), before) << "nobody looked below them";
}

TEST(SceneTreeDepth, TakesDownRowsNestedDeeperThanTheStack)
{
    const auto root = named("root");
    const auto deepest = named("deepest");
    SoRef<SoSeparator> top = deepest; // built from below, so that no addition notifies many ancestors
    for (int i = 0; i < 100000; ++i) {
        SoRef<SoSeparator> above(new SoSeparator);
        above->addChild(top.get());
        top = above;
    }
    root->addChild(top.get());
    top = {};
    SceneTreeModel model;
    model.setRoot(root.get());
    EXPECT_TRUE(model.indexOf(deepest.get()).isValid());
    root->removeAllChildren();
    nextTurn();
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
}

class SceneTreeSelection : public testing::Test
{
protected:
    SceneTreeSelection()
    {
        root->addChild(first.get());
        root->addChild(second.get());
        view.setScene(root.get());
        QObject::connect(&view, &SceneTreeView::nodeSelected,
                         [this](SoNode* node) { selected.push_back(node); });
        view.resize(300, 300);
        view.show();
    }
    void click(const QModelIndex& index)
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    }
    QModelIndex row(int i) { return view.getModel().index(i, 0, view.getModel().index(0, 0)); }

    SoRef<SoSeparator> root = named("root");
    SoRef<SoSeparator> first = named("first");
    SoRef<SoSeparator> second = named("second");
    SceneTreeView view;
    std::vector<SoNode*> selected;
};

TEST_F(SceneTreeSelection, ReportsWhatTheUserClicks)
{
    click(row(1));
    ASSERT_EQ(selected.size(), 1U);
    EXPECT_EQ(selected[0], second.get());
}

TEST_F(SceneTreeSelection, ShowingANodeReportsNothing)
{
    view.showNode(second.get());
    EXPECT_EQ(view.currentIndex(), row(1));
    view.showNode(nullptr);
    EXPECT_FALSE(view.currentIndex().isValid());
    EXPECT_TRUE(view.selectionModel()->selectedIndexes().isEmpty());
    EXPECT_EQ(selected.size(), 0U);
}

TEST_F(SceneTreeSelection, RemovingTheSelectedNodeSelectsNothingInItsPlace)
{
    SoRef<SoCube> cube(new SoCube);
    first->addChild(cube.get());
    nextTurn();
    view.expandAll();
    click(view.getModel().index(0, 0, row(0)));
    root->removeChild(0);
    nextTurn();
    ASSERT_EQ(selected.size(), 2U);
    EXPECT_EQ(selected[1], nullptr);
    EXPECT_FALSE(view.currentIndex().isValid());
}

TEST_F(SceneTreeSelection, AnotherPlaceOfTheSameNodeStaysSelected)
{
    first->addChild(second.get());
    nextTurn();
    view.expandAll();
    click(view.getModel().index(0, 0, row(0)));
    const QModelIndex clicked = view.currentIndex();
    view.showNode(second.get());
    EXPECT_EQ(view.currentIndex(), clicked);
}

TEST_F(SceneTreeSelection, AnotherSceneDropsTheSelection)
{
    click(row(1));
    view.setScene(second.get());
    ASSERT_EQ(selected.size(), 2U);
    EXPECT_EQ(selected[1], nullptr);
}

} // namespace
