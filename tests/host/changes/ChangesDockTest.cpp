// SPDX-License-Identifier: MIT
// What the dock of changes shows, and what can be done in it.
#include "ChangeParts.h"

namespace
{

constexpr auto Scene = R"(Separator "top" {
    Material "paint" { transparency: 0.25 }
    Separator "left" { Cube "box" {} Cube {} Cube {} }
    Separator "right" { Sphere "ball" {} }
}
)";

class ChangesDock : public ChangesWindow
{
protected:
    ChangesDock()
    {
        show(Scene);
        first = text();
        settle();
    }
    void setWidth(float value)
    {
        edit(box().width, [&] { box().width.setValue(value); });
    }
    SoCube& box() { return named<SoCube>("box"); }
    QAction& entry(const QString& text)
    {
        for (QAction* action : panel.getMenu().actions()) {
            if (action->text() == text)
                return *action;
        }
        throw std::runtime_error(text.toStdString());
    }

    std::string first;
};

} // namespace

TEST_F(ChangesDock, ListsWhatTheUserEditsAndNothingElse)
{
    EXPECT_TRUE(rows().isEmpty());
    box().height.setValue(7); // an animation, or the application
    EXPECT_TRUE(rows().isEmpty());
    setWidth(3);
    setWidth(4);
    EXPECT_EQ(rows(), QStringList("/left/box.width: 2 → 4"));
    services.undoStack().undo();
    EXPECT_EQ(rows(), QStringList("/left/box.width: 2 → 3"));
    services.undoStack().undo();
    EXPECT_TRUE(rows().isEmpty());
    services.undoStack().redo();
    EXPECT_EQ(rows(), QStringList("/left/box.width: 2 → 3"));
    EXPECT_EQ(window.statusBar()->findChild<QToolButton*>("changesCount")->text(), "1 change");
    EXPECT_TRUE(changes.getEdits().isChanged(&box()));
}

TEST_F(ChangesDock, ShowsWhereItIsHoweverNarrow)
{
    setWidth(3);
    QDockWidget* dock = window.findChild<QDockWidget*>("changesDock");
    const QHeaderView& header = *list.header();
    for (const int width : {800, 10}) {
        window.resizeDocks({dock}, {width}, Qt::Horizontal);
        settle();
        EXPECT_GE(header.sectionSize(ChangesModel::PathColumn),
                  list.fontMetrics().horizontalAdvance("/left/box.width"));
    }
    EXPECT_LT(list.width(), 400);
    window.resizeDocks({dock}, {800}, Qt::Horizontal);
    settle();
    EXPECT_EQ(header.length(), list.viewport()->width());
}

TEST_F(ChangesDock, SaysWhereAnEditedValueWasWrittenSince)
{
    setWidth(3);
    box().width.setValue(9);
    EXPECT_EQ(rows(), QStringList("/left/box.width: 2 → 9"));
    const QModelIndex row = rowWith("/left/box.width", ChangesModel::AfterColumn);
    EXPECT_TRUE(row.data(Qt::ToolTipRole).toString().contains("something else")) << "it is marked";
    EXPECT_TRUE(row.data(Qt::FontRole).value<QFont>().italic());
}

TEST_F(ChangesDock, ShowsWhatBecameOfTheStructure)
{
    click("box");
    key(Qt::Key_Delete);
    EXPECT_EQ(rows(), QStringList("/left/box: box → removed"));
    services.undoStack().undo();
    EXPECT_TRUE(rows().isEmpty());
    click("box");
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(rows(), QStringList("/left: box, Cube → Cube, box"));
    services.undoStack().undo();
    click("ball");
    key(Qt::Key_D, Qt::ControlModifier);
    ASSERT_EQ(rows().size(), 1);
    EXPECT_TRUE(rows().front().endsWith("→ added")) << rows().front().toStdString();
    services.undoStack().undo();
    SoPath path;
    path.append(window.getScene());
    editing.rename(path, "above");
    EXPECT_EQ(rows(), QStringList("/: “top” → “above”"));
    services.undoStack().undo();
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_EQ(text(), first);
}

TEST_F(ChangesDock, RevertsWhatIsTickedAsOneStep)
{
    setWidth(3);
    edit(box().depth, [&] { box().depth.setValue(5); });
    edit(named<SoMaterial>("paint").transparency,
         [&] { named<SoMaterial>("paint").transparency.setValue(0.5F); });
    const int steps = services.undoStack().index();
    tick("/left/box.width");
    tick("/paint.transparency");
    press("changesRevert");
    EXPECT_EQ(rows(), QStringList("/left/box.depth: 2 → 5"));
    EXPECT_EQ(services.undoStack().index(), steps + 1);
    EXPECT_TRUE(box().width.isDefault());
    services.undoStack().undo();
    EXPECT_EQ(rows().size(), 3);
    EXPECT_FLOAT_EQ(box().width.getValue(), 3);
}

TEST_F(ChangesDock, BothValuesCanBeEdited)
{
    setWidth(3);
    typeInto(rowWith("/left/box.width", ChangesModel::AfterColumn), "6");
    EXPECT_FLOAT_EQ(box().width.getValue(), 6);
    EXPECT_EQ(rows(), QStringList("/left/box.width: 2 → 6"));
    typeInto(rowWith("/left/box.width", ChangesModel::BeforeColumn), "2.5");
    EXPECT_EQ(rows(), QStringList("/left/box.width: 2.5 → 6"));
    const int steps = services.undoStack().count();
    typeInto(rowWith("/left/box.width", ChangesModel::AfterColumn), "wide");
    EXPECT_TRUE(told.last().contains("no value of a SFFloat")) << told.last().toStdString();
    EXPECT_EQ(services.undoStack().count(), steps);
    clickRow(rowWith("/left/box.width"));
    keyInList(Qt::Key_Delete);
    EXPECT_FLOAT_EQ(box().width.getValue(), 2.5F);
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ChangesDock, ShowsTheValuesBeforeOfWhatIsTickedOrOfAll)
{
    setWidth(3);
    edit(box().depth, [&] { box().depth.setValue(5); });
    const QStringList before = rows();
    press("changesBefore");
    EXPECT_FLOAT_EQ(box().width.getValue(), 2);
    EXPECT_FLOAT_EQ(box().depth.getValue(), 2);
    EXPECT_TRUE(button("changesBefore").isChecked());
    EXPECT_EQ(rows(), before) << "it still tells what differs";
    press("changesBefore");
    EXPECT_FLOAT_EQ(box().width.getValue(), 3);
    tick("/left/box.depth");
    press("changesBefore");
    EXPECT_FLOAT_EQ(box().width.getValue(), 3);
    EXPECT_FLOAT_EQ(box().depth.getValue(), 2);
    keyInList(Qt::Key_Delete); // is refused meanwhile
    press("changesBefore");
    EXPECT_FLOAT_EQ(box().depth.getValue(), 5);
    EXPECT_EQ(rows(), before);
}

TEST_F(ChangesDock, IsSinceOpeningAndNotSinceSaving)
{
    setWidth(3);
    services.undoStack().setClean();
    EXPECT_EQ(rows(), QStringList("/left/box.width: 2 → 3"));
    press("changesBefore");
    EXPECT_FLOAT_EQ(box().width.getValue(), 2);
    press("changesBefore");
    entry("&Start Again from Here").trigger();
    EXPECT_TRUE(rows().isEmpty());
    setWidth(4);
    EXPECT_EQ(rows(), QStringList("/left/box.width: 3 → 4"));
    show(Scene);
    EXPECT_TRUE(rows().isEmpty()) << "another scene";
}

TEST_F(ChangesDock, FiltersSortsAndSelects)
{
    edit(named<SoMaterial>("paint").transparency,
         [&] { named<SoMaterial>("paint").transparency.setValue(0.5F); });
    setWidth(3);
    auto& line = *panel.findChild<QLineEdit*>("changesFilter");
    QTest::keyClicks(&line, "WIDTH left");
    EXPECT_EQ(rows(), QStringList("/left/box.width: 2 → 3"));
    line.clear();
    list.sortByColumn(ChangesModel::PathColumn, Qt::DescendingOrder);
    EXPECT_TRUE(rows().front().startsWith("/left/box")) << "as in the scene, from its end";
    list.sortByColumn(ChangesModel::PathColumn, Qt::AscendingOrder);
    EXPECT_TRUE(rows().front().startsWith("/paint"));
    clickRow(rowWith("/left/box.width"));
    EXPECT_EQ(services.selectedField(), &box().width);
    EXPECT_EQ(services.selectedNode(), &box());
}

TEST_F(ChangesDock, KeepsNothingOfWhatIsGoneAndGivesMemoryBack)
{
    const std::size_t empty = changes.getEdits().bytes();
    for (int i = 0; i < 40; ++i)
        setWidth(3.0F + static_cast<float>(i));
    const std::size_t one = changes.getEdits().bytes();
    EXPECT_LT(one, empty + 2000) << "one change, however often it was made";
    services.undoStack().setIndex(0);
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_EQ(changes.getEdits().bytes(), empty);
    setWidth(3);
    const SoRef<SoNode> kept(window.getScene());
    window.setScene(new SoSeparator, "other");
    EXPECT_TRUE(rows().isEmpty());
}
