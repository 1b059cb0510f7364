// SPDX-License-Identifier: MIT
// The table under keys and mouse.
#include "TableFixture.h"

#include <QScrollBar>

using namespace inspector;

namespace
{

class VectorTable : public ListFixture<SoMFVec3f>
{
protected:
    void openRows(int count)
    {
        field.setNum(count);
        open();
    }
    TableCell current() { return view().selection().current(); }
};

} // namespace

TEST_F(VectorTable, ShowsAllRowsAndTheFirstCellIsCurrent)
{
    openRows(5);
    EXPECT_EQ(view().rows().count(), 5);
    EXPECT_EQ(current(), (TableCell{0, 0}));
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(VectorTable, ArrowsPagesHomeAndEndGoThroughTheCells)
{
    openRows(1000);
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    EXPECT_EQ(current(), (TableCell{1, 1}));
    key(Qt::Key_End);
    EXPECT_EQ(current(), (TableCell{1, 2}));
    key(Qt::Key_Home);
    EXPECT_EQ(current(), (TableCell{1, 0}));
    key(Qt::Key_PageDown);
    EXPECT_EQ(current().row, view().geometry().wholeRows());
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(current(), (TableCell{999, 2}));
    EXPECT_FALSE(view().geometry().cell(current()).isEmpty()) << "it is scrolled to";
    key(Qt::Key_Down);
    EXPECT_EQ(current().row, 999);
    key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(current().row, 0);
    key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(view().selection().cellCount(), 1000);
}

TEST_F(VectorTable, EnterGoesDownAndTabRightAndToTheNextRow)
{
    openRows(2);
    key(Qt::Key_Return);
    EXPECT_EQ(current(), (TableCell{1, 0}));
    key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(current(), (TableCell{0, 0}));
    for (int i = 0; i < 3; ++i)
        key(Qt::Key_Tab);
    EXPECT_EQ(current(), (TableCell{1, 0}));
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(current(), (TableCell{0, 2}));
}

TEST_F(VectorTable, TabLeavesBehindTheLastCellAndControlTabAnywhere)
{
    openRows(2);
    goTo(1, 2);
    key(Qt::Key_Tab);
    EXPECT_FALSE(view().hasFocus());
    EXPECT_NE(QApplication::focusWidget(), nullptr);
    view().setFocus();
    goTo(0, 0);
    QAction rival; // as a window's act
    rival.setShortcut(Qt::CTRL + Qt::Key_Tab);
    view().window()->addAction(&rival);
    QSignalSpy taken(&rival, &QAction::triggered);
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_FALSE(view().hasFocus());
    EXPECT_TRUE(taken.isEmpty());
    view().setFocus();
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "line");
}

TEST_F(VectorTable, TheMouseSelectsCellsRowsColumnsAndAll)
{
    openRows(6);
    QWidget* area = view().viewport();
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, at(1, 0));
    move(at(3, 1));
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, at(3, 1));
    EXPECT_EQ(view().selection().cellCount(), 6);
    QTest::mouseClick(area, Qt::LeftButton, Qt::ControlModifier, at(5, 2));
    EXPECT_EQ(view().selection().cellCount(), 7);
    QTest::mouseClick(area, Qt::LeftButton, Qt::NoModifier, numberAt(2));
    EXPECT_TRUE(view().selection().isOfWholeRows(3));
    QTest::mouseClick(area, Qt::LeftButton, Qt::ShiftModifier, numberAt(4));
    EXPECT_EQ(view().selection().cellCount(), 9);
    QTest::mouseClick(area, Qt::LeftButton, Qt::NoModifier, view().geometry().heading(1).center());
    EXPECT_EQ(view().selection().cellCount(), 6);
    EXPECT_EQ(current().column, 1);
    QTest::mouseClick(area, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    EXPECT_EQ(view().selection().cellCount(), 18);
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(VectorTable, AColumnIsAsWideAsItsEdgeIsDragged)
{
    openRows(2);
    QWidget* area = view().viewport();
    const int before = view().columnWidth(0);
    const QPoint edge(view().geometry().heading(0).right(), 5);
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, edge);
    move(edge + QPoint(40, 0));
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, edge + QPoint(40, 0));
    EXPECT_EQ(view().columnWidth(0), before + 40);
    field.setNum(3);
    TestHost::pump();
    EXPECT_EQ(view().columnWidth(0), before + 40) << "also after a change";
}

TEST_F(VectorTable, TheWheelScrollsAndChangesNothing)
{
    openRows(1000);
    const QPoint place = at(3, 1);
    QWheelEvent event(place, view().viewport()->mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view().viewport(), &event);
    EXPECT_GT(view().geometry().firstRow, 0);
    EXPECT_EQ(current(), (TableCell{0, 0}));
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(VectorTable, AHundredMillionRowsScrollToTheirEnd)
{
    // Rows of no memory: the geometry is all that grows with them.
    TableGeometry geometry;
    geometry.viewport = {300, 400};
    geometry.rowCount = 2'000'000'000;
    geometry.widths = {100, 100};
    geometry.firstRow = geometry.rowCount - geometry.wholeRows();
    const TableCell last{geometry.rowCount - 1, 1};
    EXPECT_FALSE(geometry.cell(last).isEmpty());
    EXPECT_EQ(geometry.nearestCell(geometry.cell(last).center()), last);
    EXPECT_EQ(geometry.nearestCell({1000, 100'000}), last);
    EXPECT_EQ(geometry.nearestCell({0, -100'000}).row, geometry.firstRow - 100'020 / 20);
    EXPECT_TRUE(geometry.cell({0, 0}).isEmpty());
    EXPECT_EQ(geometry.placeAt({150, 399}).area, TableGeometry::Area::Cells);
}

TEST_F(VectorTable, AnEmptyListTakesEveryKeyAndClick)
{
    openRows(0);
    for (const Qt::Key k :
         {Qt::Key_Down, Qt::Key_PageUp, Qt::Key_End, Qt::Key_Return, Qt::Key_F2, Qt::Key_Delete, Qt::Key_A})
        key(k);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    EXPECT_EQ(host.undoCount(), 0);
    view().setFocus();
    key(Qt::Key_Insert);
    EXPECT_EQ(field.getNum(), 1);
}
