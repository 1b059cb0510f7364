// SPDX-License-Identifier: MIT
#include "TreeParts.h"
#include "panels/NodeFigures.h"
#include "panels/TreeColumnWidths.h"
#include "text/NodeText.h"

#include <support/Waiting.h>

#include <scopix/SpxTreeColumns.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <QDockWidget>
#include <QHeaderView>
#include <QMouseEvent>

#include <stdexcept>

namespace
{

constexpr const char* Street = R"(
Separator "Street" {
    Separator "House" {
        Material "Paint" @paint {}
        Cube "Wall" {}
        Cube "Roof" {}
    }
    Separator "Lamp" {
        @paint
        Cube "Bulb" {}
    }
    Switch "Garage" { Cube "Car" {} }
    Points "Corners" { points: [ 0 0 0, 1 0 0, 0 1 0, 1 1 0, 2 1 0, 2 2 0, 3 3 3, 4 4 4 ] }
}
)";

class TreeColumnsShown : public TreeWindow
{
protected:
    TreeColumnsShown()
    {
        show(Street);
        tree.expandAll();
        for (int column = 0; column < SceneTreeModel::ColumnCount; ++column)
            tree.setColumnShown(column, true);
    }
    QString textOf(const char* name, int column) const
    {
        return row(name).siblingAtColumn(column).data().toString();
    }
    bool waitForFigures()
    {
        textOf("Street", SceneTreeModel::TrianglesColumn);
        return waitFor(
            [this] { return textOf("Street", SceneTreeModel::TrianglesColumn) != QStringLiteral("…"); });
    }
    QStringList rowsOf(const char* name) const
    {
        QStringList names;
        const QModelIndex parent = row(name);
        for (int i = 0; i < tree.getModel().rowCount(parent); ++i)
            names << tree.getModel().index(i, 0, parent).data().toString();
        return names;
    }
};

// The user drags the boundary behind this column.
void dragBoundary(SceneTreeView& tree, int column, int by)
{
    QHeaderView& header = *tree.header();
    const QPoint start(header.sectionViewportPosition(column) + header.sectionSize(column) - 1,
                       header.height() / 2);
    QTest::mouseMove(header.viewport(), start);
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, start);
    const QPoint end = start + QPoint(by, 0);
    QMouseEvent move(QEvent::MouseMove, end, header.viewport()->mapToGlobal(end), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(header.viewport(), &move);
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, end);
}

TEST_F(TreeWindow, GivesTheTypeNoMoreThanItNeeds)
{
    show(Street);
    window.resizeDocks({window.findChild<QDockWidget*>("sceneDock")}, {700}, Qt::Horizontal);
    settle();
    ASSERT_GT(tree.width(), 600);
    EXPECT_LT(tree.columnWidth(SceneTreeModel::TypeColumn), 200);
    window.resizeDocks({window.findChild<QDockWidget*>("sceneDock")}, {10}, Qt::Horizontal);
    settle();
    EXPECT_LT(tree.width(), 300);
    EXPECT_GT(tree.columnWidth(SceneTreeModel::NameColumn),
              2 * tree.columnWidth(SceneTreeModel::TypeColumn) - 20);
    EXPECT_EQ(tree.textElideMode(), Qt::ElideMiddle);
}

TEST_F(TreeWindow, KeepsTheProportionThatTheUserGaveTheColumns)
{
    show(Street);
    settle();
    EXPECT_TRUE(tree.getColumnWidths().getChosen().isEmpty());
    const int before = tree.columnWidth(SceneTreeModel::NameColumn);
    dragBoundary(tree, SceneTreeModel::NameColumn, -60);
    ASSERT_EQ(tree.columnWidth(SceneTreeModel::NameColumn), before - 60);
    const double share = double(before - 60) / tree.viewport()->width();
    window.resizeDocks({window.findChild<QDockWidget*>("sceneDock")}, {600}, Qt::Horizontal);
    settle();
    ASSERT_GT(tree.width(), 500);
    EXPECT_NEAR(double(tree.columnWidth(SceneTreeModel::NameColumn)) / tree.viewport()->width(), share, 0.02);
    tree.setColumnShown(SceneTreeModel::TrianglesColumn, true);
    tree.setColumnShown(SceneTreeModel::MemoryColumn, true);
    EXPECT_EQ(tree.getColumnWidths().getChosen().size(), 1) << "nobody has dragged these";
    dragBoundary(tree, SceneTreeModel::TrianglesColumn, 30);
    const int chosen = tree.columnWidth(SceneTreeModel::TrianglesColumn);
    window.resizeDocks({window.findChild<QDockWidget*>("sceneDock")}, {700}, Qt::Horizontal);
    settle();
    EXPECT_EQ(tree.columnWidth(SceneTreeModel::TrianglesColumn), chosen);
}

TEST_F(TreeColumnsShown, CountTriangles)
{
    ASSERT_TRUE(waitForFigures());
    for (const char* name : {"House", "Lamp", "Garage", "Car", "Paint"})
        textOf(name, SceneTreeModel::TrianglesColumn);
    ASSERT_TRUE(waitFor([this] { return !tree.getModel().getFigures().isCounting(); }));
    EXPECT_EQ(textOf("Street", SceneTreeModel::TrianglesColumn), "36");
    EXPECT_EQ(textOf("House", SceneTreeModel::TrianglesColumn), "24");
    EXPECT_EQ(textOf("Lamp", SceneTreeModel::TrianglesColumn), "12");
    EXPECT_EQ(textOf("Garage", SceneTreeModel::TrianglesColumn), "0");
    EXPECT_EQ(textOf("Paint", SceneTreeModel::TrianglesColumn), "0");
    EXPECT_FALSE(textOf("Car", SceneTreeModel::MemoryColumn).startsWith("0"));
}

TEST_F(TreeColumnsShown, FollowTheScene)
{
    ASSERT_TRUE(waitForFigures());
    click("Lamp");
    key(Qt::Key_Delete);
    EXPECT_TRUE(waitFor([this] { return textOf("Street", SceneTreeModel::TrianglesColumn) == "24"; }));
}

TEST_F(TreeColumnsShown, CountPlaces)
{
    EXPECT_EQ(textOf("Paint", SceneTreeModel::PlacesColumn), "2");
    EXPECT_EQ(textOf("Wall", SceneTreeModel::PlacesColumn), "1");
    EXPECT_EQ(textOf("Street", SceneTreeModel::PlacesColumn), "1");
}

TEST_F(TreeColumnsShown, SortAndComeBack)
{
    const QStringList asItIs{"House", "Lamp", "Garage", "Corners"};
    const QStringList byName{"Corners", "Garage", "House", "Lamp"};
    click("Bulb");
    QHeaderView* header = tree.header();
    const QPoint caption(header->sectionViewportPosition(0) + 20, header->height() / 2);
    const auto clickCaption = [&] { QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, caption); };
    clickCaption();
    EXPECT_EQ(rowsOf("Street"), byName);
    EXPECT_EQ(selectedNames(), QStringList("Bulb"));
    EXPECT_TRUE(tree.isExpanded(row("House")));
    clickCaption();
    EXPECT_EQ(rowsOf("Street"), QStringList(byName.rbegin(), byName.rend()));
    clickCaption();
    EXPECT_EQ(rowsOf("Street"), asItIs);
}

TEST_F(TreeColumnsShown, SortByWhatIsCountedOnceItIs)
{
    tree.sortRows(SceneTreeModel::TrianglesColumn, Qt::DescendingOrder);
    EXPECT_TRUE(waitFor([this] { return rowsOf("Street").mid(0, 2) == QStringList({"House", "Lamp"}); }));
    tree.sortRows(SceneTreeModel::TrianglesColumn, Qt::AscendingOrder);
    EXPECT_TRUE(waitFor([this] { return rowsOf("Street").mid(2) == QStringList({"Lamp", "House"}); }));
    click("Wall");
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_TRUE(waitFor([this] { return rowsOf("House").size() == 4; }));
}

TEST_F(TreeColumnsShown, AreChosenInTheMenuAndKept)
{
    QAction* triangles = nullptr;
    for (QAction* each : window.findChildren<QAction*>()) {
        if (each->text() == "Triangles")
            triangles = each;
    }
    ASSERT_TRUE(triangles);
    for (const int column : {SceneTreeModel::MemoryColumn, SceneTreeModel::PlacesColumn})
        tree.setColumnShown(column, false);
    tree.setColumnShown(SceneTreeModel::TrianglesColumn, false);
    triangles->setChecked(true);
    EXPECT_TRUE(tree.isColumnShown(SceneTreeModel::TrianglesColumn));
    HostServices otherServices;
    MainWindow other(otherServices, notifier);
    EXPECT_TRUE(other.getTree().isColumnShown(SceneTreeModel::TrianglesColumn));
    EXPECT_FALSE(other.getTree().isColumnShown(SceneTreeModel::MemoryColumn));
    triangles->setChecked(false);
}

namespace
{

// How long the names of nodes are, of all but cubes; and half of that.
class NameLengths : public SpxTreeColumnProvider
{
public:
    int getNumColumns() const override { return 2; }
    QString getColumnKey(int column) const override { return QStringLiteral("names.%1").arg(column); }
    QString getColumnCaption(int column) const override { return column == 0 ? "Length" : "Half"; }
    bool isColumnShownAtFirst(int column) const override { return column == 0; }
    QVariant getColumnValue(int column, const SoNode& node) const override
    {
        if (fails)
            throw std::runtime_error("no lengths");
        const int length = node.getName().getLength() * factor;
        return node.isOfType(SoShape::getClassTypeId()) ? QVariant()
               : column == 0                            ? QVariant(length)
                                                        : QVariant(length / 2.0);
    }
    int factor = 1;
    bool fails = false;
};

} // namespace

TEST_F(TreeColumnsShown, ProvidersAddTheirs)
{
    NameLengths lengths;
    click("Lamp");
    window.setTreeColumns({&lengths});
    constexpr int Length = SceneTreeModel::ColumnCount;
    EXPECT_EQ(tree.getModel().headerData(Length, Qt::Horizontal).toString(), "Length");
    EXPECT_EQ(textOf("House", Length), "5");
    EXPECT_EQ(textOf("House", Length + 1), QLocale().toString(2.5, 'f', 3));
    EXPECT_EQ(textOf("Wall", Length), "");
    EXPECT_TRUE(tree.isColumnShown(Length));
    EXPECT_FALSE(tree.isColumnShown(Length + 1));
    EXPECT_EQ(selectedNames(), QStringList("Lamp(Paint Bulb)"));
    tree.sortRows(Length, Qt::DescendingOrder);
    EXPECT_EQ(rowsOf("Street"), QStringList({"Corners", "Garage", "House", "Lamp"}));
    lengths.factor = -1;
    window.updateTreeColumns();
    EXPECT_EQ(rowsOf("Street"), QStringList({"Lamp", "House", "Garage", "Corners"}));
    lengths.fails = true;
    EXPECT_EQ(textOf("House", Length), "");
    window.setTreeColumns({});
    EXPECT_EQ(tree.getModel().columnCount(), SceneTreeModel::ColumnCount);
    EXPECT_EQ(rowsOf("Street"), QStringList({"House", "Lamp", "Garage", "Corners"}));
    EXPECT_EQ(selectedNames(), QStringList("Lamp(Paint Bulb)"));
}

TEST_F(TreeColumnsShown, ProvidersColumnsAreKeptAsTheUserWantsThem)
{
    NameLengths lengths;
    constexpr int Length = SceneTreeModel::ColumnCount;
    const auto toggle = [this](const char* caption) {
        for (QAction* each : window.findChildren<QAction*>()) {
            if (each->text() == caption)
                each->toggle();
        }
    };
    for (int time = 0; time < 2; ++time) { // there and back
        const bool isFirst = time == 0;
        window.setTreeColumns({&lengths});
        EXPECT_EQ(tree.isColumnShown(Length), isFirst);
        toggle("Length");
        toggle("Half");
        window.setTreeColumns({});
        HostServices otherServices;
        MainWindow other(otherServices, notifier);
        other.setTreeColumns({&lengths});
        EXPECT_EQ(other.getTree().isColumnShown(Length), !isFirst);
        EXPECT_EQ(other.getTree().isColumnShown(Length + 1), isFirst);
    }
}

TEST(NodeNames, AreToldAsPeopleReadThem)
{
    const SoRef<SoNode> node(static_cast<SoNode*>(SoType::fromName("Material").createInstance()));
    const auto told = [&](const char* name) {
        node->setName(name);
        return nodeText(*node);
    };
    EXPECT_EQ(told("*0"), "Material");
    EXPECT_EQ(told("*17"), "Material");
    EXPECT_EQ(told("*paint"), "*paint");
    EXPECT_EQ(told("body/body"), "body");
    EXPECT_EQ(told("a/b/a/b"), "a/b");
    EXPECT_EQ(told("body/bodies"), "body/bodies");
    EXPECT_EQ(told("/"), "/");
    EXPECT_EQ(told("Sea"), "Sea");
}

// --- Locks

class Locks : public TreeWindow
{
protected:
    Locks()
    {
        show(Street);
        tree.expandAll();
        before = text();
        click("House");
        key(Qt::Key_L, Qt::ControlModifier);
    }
    std::string before;
};

TEST_F(Locks, RefuseEditsOfStructureInASentence)
{
    click("Wall");
    for (const int act : {Qt::Key_Delete, Qt::Key_D, Qt::Key_G}) {
        told.clear();
        key(act, act == Qt::Key_Delete ? Qt::NoModifier : Qt::ControlModifier);
        ASSERT_FALSE(told.isEmpty());
        EXPECT_TRUE(told.last().contains("locked")) << told.last().toStdString();
    }
    click("House");
    key(Qt::Key_Delete);
    EXPECT_EQ(text(), before);
    EXPECT_EQ(services.undoStack().count(), 0);
    key(Qt::Key_L, Qt::ControlModifier);
    key(Qt::Key_Delete);
    EXPECT_NE(text(), before);
}

TEST_F(Locks, GiveBackWhatAnyEditorWrites)
{
    click("Wall");
    SoField* width = services.selectedNode()->getField("width");
    ASSERT_TRUE(width);
    const auto write = [&](const char* value) {
        const UserInput::Scope scope(services.history().input(), UserInput::Scope::User);
        width->set(value);
    };
    told.clear();
    write("7");
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(width->isDefault());
    EXPECT_EQ(services.undoStack().count(), 0);
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0],
              QStringLiteral("“Wall” stands in “House”, which is locked, and cannot be edited before "
                             "that is unlocked."));
    click("Bulb");
    width = services.selectedNode()->getField("width");
    write("7");
    EXPECT_NE(text(), before);
    EXPECT_EQ(services.undoStack().count(), 1);
}

} // namespace
