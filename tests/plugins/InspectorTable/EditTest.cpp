// SPDX-License-Identifier: MIT
// Rows, formulas and fills: each is one step, and undo shows where it acted.
#include "TableFixture.h"

#include <QMenu>

using namespace inspector;

namespace
{

class IntTable : public ListFixture<SoMFInt32>
{
protected:
    using Ints = std::vector<std::int32_t>;

    // Exactly one step, which undo and redo take back and forth.
    void expectStep(const Ints& before, const Ints& after)
    {
        EXPECT_EQ(values(), after);
        ASSERT_EQ(host.undoCount(), 1);
        host.undo();
        TestHost::pump();
        EXPECT_EQ(values(), before);
        host.redo();
        TestHost::pump();
        EXPECT_EQ(values(), after);
    }
};
class VectorEdits : public ListFixture<SoMFVec3f>
{
};
class MaskTable : public ListFixture<SoMFBitMask>
{
};

} // namespace

TEST_F(IntTable, RowsAreInserted)
{
    open({1, 2, 3});
    goTo(1, 0);
    key(Qt::Key_Insert);
    EXPECT_EQ(view().selection().current().row, 1) << "the new row is current";
    expectStep({1, 2, 3}, {1, 0, 2, 3});
}

TEST_F(IntTable, RowsAreAddedBehind)
{
    open({1, 2, 3});
    goTo(2, 0);
    key(Qt::Key_Insert, Qt::ControlModifier);
    expectStep({1, 2, 3}, {1, 2, 3, 0});
}

TEST_F(IntTable, SelectedRowsAreDeletedAtOnce)
{
    open({0, 1, 2, 3, 4, 5});
    TableSelection selection;
    selection.selectRows(1, 2, 1);
    selection.addRows(4, 4, 1);
    view().setSelection(selection);
    key(Qt::Key_Minus, Qt::ControlModifier);
    expectStep({0, 1, 2, 3, 4, 5}, {0, 3, 5});
}

TEST_F(IntTable, AllRowsMayBeDeleted)
{
    open({1, 2});
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Minus, Qt::ControlModifier);
    expectStep({1, 2}, {});
}

TEST_F(IntTable, RowsAreDuplicated)
{
    open({1, 2, 3});
    select(0, 0, 1, 0);
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(view().selection().bands().front().first, 2) << "the copies are selected";
    expectStep({1, 2, 3}, {1, 2, 1, 2, 3});
}

TEST_F(IntTable, RowsMoveByKeys)
{
    open({1, 2, 3, 4});
    select(1, 0, 2, 0);
    key(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(view().selection().bands().front().first, 2) << "they stay selected";
    expectStep({1, 2, 3, 4}, {1, 4, 2, 3});
    select(2, 0, 3, 0);
    key(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(host.undoCount(), 1) << "they are at the end";
}

TEST_F(IntTable, RowsAreDraggedToAnotherPlace)
{
    open({0, 1, 2, 3, 4});
    QWidget* area = view().viewport();
    QTest::mouseClick(area, Qt::LeftButton, Qt::NoModifier, numberAt(3));
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, numberAt(3));
    move(numberAt(1) - QPoint(0, view().geometry().rowHeight / 3));
    EXPECT_EQ(host.undoCount(), 0) << "not before it is dropped";
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, numberAt(1));
    expectStep({0, 1, 2, 3, 4}, {0, 3, 1, 2, 4});
}

TEST_F(IntTable, EscapeGivesUpADrag)
{
    open({0, 1, 2, 3, 4});
    QWidget* area = view().viewport();
    QTest::mouseClick(area, Qt::LeftButton, Qt::NoModifier, numberAt(3));
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, numberAt(3));
    move(numberAt(0));
    key(Qt::Key_Escape);
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, numberAt(0));
    EXPECT_EQ(values(), (Ints{0, 1, 2, 3, 4}));
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(IntTable, RowsThatAreApartMoveTogether)
{
    open({0, 1, 2, 3, 4, 5});
    TableSelection selection;
    selection.selectRows(0, 0, 1);
    selection.addRows(4, 5, 1);
    view().setSelection(selection);
    emit view().rowsDropped(3);
    EXPECT_EQ(view().selection().bands().front().first, 2);
    expectStep({0, 1, 2, 3, 4, 5}, {1, 2, 0, 4, 5, 3});
}

TEST_F(IntTable, RowsDroppedAmongThemselvesStay)
{
    open({0, 1, 2, 3, 4, 5, 6});
    select(1, 0, 3, 0);
    for (const int gap : {1, 2, 3, 4})
        emit view().rowsDropped(gap);
    EXPECT_EQ(values(), (Ints{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(host.undoCount(), 0);
    TableSelection selection;
    selection.selectRows(0, 0, 1);
    selection.addRows(3, 5, 1);
    view().setSelection(selection);
    emit view().rowsDropped(4);
    expectStep({0, 1, 2, 3, 4, 5, 6}, {1, 2, 0, 3, 4, 5, 6});
}

TEST_F(IntTable, TheWholeListIsResetAndIgnored)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    host.edit(editor, &gallery->mfInt32);
    TestHost::pump();
    gallery->mfInt32.setNum(7);
    trigger("Reset to Default");
    EXPECT_EQ(gallery->mfInt32.getNum(), 3);
    EXPECT_TRUE(gallery->mfInt32.isDefault());
    trigger("Ignore This List");
    EXPECT_TRUE(gallery->mfInt32.isIgnored());
    EXPECT_EQ(host.undoCount(), 2);
    host.undo();
    EXPECT_FALSE(gallery->mfInt32.isIgnored());
    host.undo();
    EXPECT_EQ(gallery->mfInt32.getNum(), 7);
}

TEST_F(IntTable, AFormulaChangesEverySelectedCell)
{
    open({1, 2, 3, 4});
    select(1, 0, 3, 0);
    runLine(ListTable::Line::Calculate, "x*10+row");
    expectStep({1, 2, 3, 4}, {1, 21, 32, 43});
}

TEST_F(IntTable, AFormulaThatLeavesTheTypeChangesNothing)
{
    open({1, 2, 3});
    key(Qt::Key_A, Qt::ControlModifier);
    runLine(ListTable::Line::Calculate, "x*1e10");
    EXPECT_EQ(values(), (Ints{1, 2, 3}));
    EXPECT_FALSE(message().isEmpty());
    runLine(ListTable::Line::Calculate, "x*(");
    EXPECT_FALSE(message().isEmpty());
    runLine(ListTable::Line::Calculate, "1/0");
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(IntTable, FillsDownAndContinuesSeries)
{
    open({5, 7, 0, 0});
    key(Qt::Key_A, Qt::ControlModifier);
    trigger("Fill Series");
    EXPECT_EQ(values(), (Ints{5, 7, 9, 11}));
    trigger("Fill Down");
    EXPECT_EQ(values(), (Ints{5, 5, 5, 5}));
    EXPECT_EQ(host.undoCount(), 2);
}

TEST_F(IntTable, DeleteClearsCells)
{
    open({5, 7});
    key(Qt::Key_Delete);
    expectStep({5, 7}, {0, 7});
}

TEST_F(IntTable, UndoShowsWhereItActed)
{
    field.setNum(1000);
    open();
    goTo(700, 0);
    type("5");
    key(Qt::Key_Return);
    goTo(3, 0);
    host.undo();
    TestHost::pump();
    EXPECT_EQ(view().selection().current().row, 700);
    EXPECT_FALSE(view().geometry().cell({700, 0}).isEmpty()) << "it is scrolled to";
}

TEST_F(IntTable, ALongSelectionIsOneShortWrite)
{
    field.setNum(10'000);
    open();
    TableSelection selection;
    for (int row = 0; row < 10'000; row += 2)
        selection.addRows(row, row, 1);
    view().setSelection(selection);
    runLine(ListTable::Line::Calculate, "1");
    int sum = 0;
    for (int row = 0; row < 10'000; ++row)
        sum += field[row] == (row % 2 == 0);
    EXPECT_EQ(sum, 10'000);
    key(Qt::Key_Z);
    host.undo();
    EXPECT_EQ(field[0], 0);
}

TEST_F(VectorEdits, CellsOfAColumnAreNotTheirNeighbours)
{
    open({SbVec3f(1, 2, 3), SbVec3f(4, 5, 6)});
    select(0, 1, 1, 1);
    runLine(ListTable::Line::Calculate, "= x + c1*100");
    EXPECT_EQ(field[0], SbVec3f(1, 102, 3));
    EXPECT_EQ(field[1], SbVec3f(4, 405, 6));
}

TEST_F(VectorEdits, WholeRowsAreDeletedByDelete)
{
    open({SbVec3f(1, 2, 3), SbVec3f(4, 5, 6)});
    key(Qt::Key_Space, Qt::ShiftModifier);
    key(Qt::Key_Delete);
    EXPECT_EQ(field.getNum(), 1);
    EXPECT_EQ(field[0], SbVec3f(4, 5, 6));
}

TEST_F(VectorEdits, EveryActionSurvivesEmptyAndFullLists)
{
    for (const bool isFull : {false, true}) {
        field.setNum(isFull ? 3 : 0);
        open();
        for (QAction* action : table().menu().actions()) {
            if (action->text().contains("CSV"))
                continue; // they ask for a file
            action->trigger();
            TestHost::pump();
        }
        host.release(editor);
    }
}

TEST_F(MaskTable, OneBitIsSwitchedInEverySelectedRow)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    host.edit(editor, &gallery->mfBitMask);
    TestHost::pump();
    view().setFocus();
    key(Qt::Key_A, Qt::ControlModifier);
    QTimer::singleShot(0, [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        menu->setActiveAction(menu->actions()[3]);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(gallery->mfBitMask[0], 1 | 2 | 8);
    EXPECT_EQ(gallery->mfBitMask[1], 8);
    EXPECT_EQ(gallery->mfBitMask[2], 8);
    EXPECT_EQ(host.undoCount(), 1);
}
