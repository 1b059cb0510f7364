// SPDX-License-Identifier: MIT
// Rows: adding, deleting and moving them, with keys and buttons, and undoing it.
#include "EdMFColorWidget.h"
#include "EdMFFloatWidget.h"
#include "EdMFStringWidget.h"
#include "EdMFVec3fWidget.h"
#include "MultiFixture.h"

#include <QSignalSpy>

namespace
{

using Floats = MultiFixture<EdMFFloatWidget, SoMFFloat>;
using Log = TestHost::Log;

} // namespace

TEST(Rows, AnEmptyFieldShowsNoneAndTheFirstRowBecomesCurrent)
{
    Floats f;
    f.open();
    EXPECT_EQ(f.count(), "<p align=\"center\">0 elements</p>");
    EXPECT_EQ(f.table().rowCount(), 0);
    EXPECT_EQ(f.box().minimum(), 0);
    EXPECT_EQ(f.box().maximum(), 0);

    f.press('+');
    EXPECT_EQ(f.text(), "[ 0 ]");
    EXPECT_EQ(f.table().currentRow(), 0);
    EXPECT_EQ(f.box().minimum(), 1);
    EXPECT_EQ(f.box().maximum(), 1);
    EXPECT_EQ(f.count(), "<p align=\"center\">1 elements</p>");
    EXPECT_EQ(f.host.takeLog(), Log{"executeCommand SpxMFAddRowsCommand"});
}

TEST(Rows, ANewRowComesAfterTheCurrentOneWhichStaysCurrent)
{
    Floats f("[ 1, 2, 3 ]");
    f.open();
    f.table().setCurrentCell(1, 0);
    QSignalSpy moved(&f.table(), &QTableWidget::currentCellChanged);
    f.click("m_addButton");
    EXPECT_EQ(f.text(), "[ 1, 2, 0, 3 ]");
    EXPECT_EQ(f.table().currentRow(), 1);
    ASSERT_FALSE(moved.isEmpty());
    EXPECT_EQ(moved.last(), (QList<QVariant>{1, 0, 2, 0}));
    EXPECT_EQ(f.box().maximum(), 4);
    f.host.undo();
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 1, 2, 3 ]");
    EXPECT_EQ(f.table().rowCount(), 3);
    EXPECT_EQ(f.box().maximum(), 3);
    f.host.redo();
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 1, 2, 0, 3 ]");
    EXPECT_EQ(f.count(), "<p align=\"center\">4 elements</p>");
}

TEST(Rows, DeletingTheLastRowLeavesTheBoxAtZero)
{
    Floats f("[ 7.5 ]");
    f.open();
    f.table().setCurrentCell(0, 0);
    f.press('-');
    EXPECT_EQ(f.text(), "[ ]");
    EXPECT_EQ(f.table().rowCount(), 0);
    EXPECT_EQ(f.box().minimum(), 0);
    EXPECT_EQ(f.box().maximum(), 0);
    EXPECT_EQ(f.host.takeLog(), Log{"executeCommand SpxMFDeleteRowsCommand"});
    f.host.undo();
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 7.5 ]");
    EXPECT_EQ(f.box().maximum(), 1);
}

TEST(Rows, WithoutACurrentRowNothingIsDeleted)
{
    Floats f("[ 1, 2 ]");
    f.open();
    f.table().setCurrentItem(nullptr);
    f.key(Qt::Key_Delete);
    EXPECT_EQ(f.text(), "[ 1, 2 ]");
    EXPECT_TRUE(f.host.takeLog().empty());
}

TEST(Rows, OneCommandDeletesABlockSelectedWithShiftAndKeepsASecondBlock)
{
    Floats f("[ 0, 1, 2, 3, 4, 5, 6, 7, 8 ]");
    f.open();
    f.table().setCurrentCell(2, 0);
    QTest::keyPress(&f.table(), Qt::Key_Shift);
    f.table().setRangeSelected(QTableWidgetSelectionRange(2, 0, 4, 0), true);
    f.table().setRangeSelected(QTableWidgetSelectionRange(0, 0, 0, 0), true);
    QTest::keyClick(&f.table(), Qt::Key_Delete, Qt::ShiftModifier);
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 0, 1, 5, 6, 7, 8 ]");
    EXPECT_EQ(f.host.takeLog(), Log{"executeCommand SpxMFDeleteRowsCommand"});
    f.host.undo();
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 0, 1, 2, 3, 4, 5, 6, 7, 8 ]");
}

TEST(Rows, ShiftWithNothingSelectedDeletesNothing)
{
    Floats f("[ 1, 2 ]");
    f.open();
    f.table().setCurrentCell(1, 0);
    f.table().clearSelection();
    QTest::keyPress(&f.table(), Qt::Key_Shift);
    QTest::keyClick(&f.table(), Qt::Key_Delete, Qt::ShiftModifier);
    QTest::keyRelease(&f.table(), Qt::Key_Shift);
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 1, 2 ]");
}

TEST(Rows, ReleasingShiftOrLosingFocusEndsTheSelection)
{
    Floats f("[ 1, 2, 3 ]");
    f.open();
    EXPECT_EQ(f.table().selectionMode(), QAbstractItemView::NoSelection);
    QTest::keyPress(&f.table(), Qt::Key_Shift);
    EXPECT_EQ(f.table().selectionMode(), QAbstractItemView::ContiguousSelection);
    f.table().setRangeSelected(QTableWidgetSelectionRange(0, 0, 1, 0), true);
    QTest::keyRelease(&f.table(), Qt::Key_Shift);
    EXPECT_TRUE(f.table().selectedRanges().isEmpty());
    EXPECT_EQ(f.table().selectionMode(), QAbstractItemView::NoSelection);

    f.table().setCurrentCell(2, 0);
    QTest::keyPress(&f.table(), Qt::Key_Shift);
    f.table().setRangeSelected(QTableWidgetSelectionRange(0, 0, 1, 0), true);
    f.box().setFocus();
    f.table().setFocus();
    f.table().setCurrentCell(2, 0);
    f.key(Qt::Key_Delete);
    EXPECT_EQ(f.text(), "[ 1, 2 ]");
}

TEST(Rows, MovesActOnTheRowOfTheAccessBoxAndTraceIt)
{
    Floats f("[ 1, 2, 3 ]");
    f.open();
    f.box().setValue(3);
    f.table().setCurrentCell(0, 0);
    testing::internal::CaptureStderr();
    f.click("m_upButton");
    EXPECT_NE(testing::internal::GetCapturedStderr().find("EdMFieldTable::swapUpRow() 2\n"),
              std::string::npos);
    EXPECT_EQ(f.text(), "[ 1, 3, 2 ]");
    EXPECT_EQ(f.table().currentRow(), 1);
    EXPECT_EQ(f.box().value(), 2);
    testing::internal::CaptureStderr();
    f.click("m_downButton");
    EXPECT_NE(testing::internal::GetCapturedStderr().find("EdMFieldTable::swapDownRow() 1\n"),
              std::string::npos);
    EXPECT_EQ(f.text(), "[ 1, 2, 3 ]");
    EXPECT_EQ(f.table().currentRow(), 2);
    EXPECT_EQ(f.host.takeLog(),
              (Log{"executeCommand SpxMFSwapRowsCommand", "executeCommand SpxMFSwapRowsCommand"}));
    f.host.undo();
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 1, 3, 2 ]");
}

TEST(Rows, TheFirstDoesNotMoveUpNorTheLastDown)
{
    Floats f("[ 1, 2 ]");
    f.open();
    f.box().setValue(1);
    f.click("m_upButton");
    f.box().setValue(2);
    f.click("m_downButton");
    EXPECT_EQ(f.text(), "[ 1, 2 ]");
    EXPECT_TRUE(f.host.takeLog().empty());
}

TEST(Rows, AMoveThatCannotBeIsTracedAllTheSame)
{
    Floats f;
    f.open();
    testing::internal::CaptureStderr();
    f.click("m_upButton");
    f.click("m_downButton");
    const std::string trace = testing::internal::GetCapturedStderr();
    EXPECT_NE(trace.find("EdMFieldTable::swapUpRow() -1\n"), std::string::npos);
    EXPECT_NE(trace.find("EdMFieldTable::swapDownRow() -1\n"), std::string::npos);
    EXPECT_TRUE(f.host.takeLog().empty());
}

TEST(Rows, EveryKeyIsTakenByTheTable)
{
    Floats f("[ 1, 2 ]");
    f.open();
    for (int key : {int(Qt::Key_F7), int(Qt::Key_Shift), int(Qt::Key_Home), int(Qt::Key_Minus)}) {
        for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, {});
            event.ignore();
            QApplication::sendEvent(&f.table(), &event);
            EXPECT_TRUE(event.isAccepted()) << key << ' ' << type;
        }
    }
}

TEST(Rows, TheAccessBoxPassesItsNumberUnchanged)
{
    Floats f("[ 1, 2, 3, 4 ]");
    f.open();
    f.box().setFocus();
    QTest::keyClick(&f.box(), Qt::Key_Up);
    EXPECT_EQ(f.box().value(), 2);
    EXPECT_EQ(f.table().currentRow(), 2) << "counted from 1, it shows the row after";
}

TEST(Rows, EnterInTheAccessBoxShowsTheRowAgain)
{
    Floats f;
    f.field.setNum(100);
    f.open();
    f.editor.getWidgetContainer()->resize(400, 200);
    TestHost::pump();
    f.box().setValue(80);
    f.table().setCurrentCell(0, 0);
    ASSERT_TRUE(f.table().visualRect(f.table().model()->index(80, 0)).top() > f.table().viewport()->height());
    QSignalSpy told(&f.box(), qOverload<int>(&QSpinBox::valueChanged));
    QTest::keyClick(&f.box(), Qt::Key_Return);
    EXPECT_EQ(f.table().currentRow(), 80);
    EXPECT_TRUE(f.table().viewport()->rect().contains(f.table().visualRect(f.table().currentIndex())));
    QTest::keyClick(&f.box(), Qt::Key_Enter);
    ASSERT_EQ(told.size(), 2);
    EXPECT_EQ(told[1], QList<QVariant>{80});
}

TEST(Rows, AFieldThatShrinksElsewhereTakesTheOpenCellAlong)
{
    MultiFixture<EdMFStringWidget, SoMFString> f("[ \"a\", \"b\", \"c\" ]");
    f.open();
    QPointer<QLineEdit> line = f.openLine(2, 0);
    ASSERT_TRUE(line);
    QTest::keyClicks(line, "typed");
    f.field.setNum(1);
    TestHost::pump();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(line);
    EXPECT_EQ(f.text(), "[ \"a\" ]");
    EXPECT_EQ(f.table().rowCount(), 1);
}

TEST(Rows, AppliesTypedTextOnceWhenTheFieldIsReleased)
{
    MultiFixture<EdMFStringWidget, SoMFString> f("[ \"a\", \"b\" ]");
    f.open();
    QLineEdit* line = f.openLine(1, 0);
    ASSERT_TRUE(line);
    line->selectAll();
    QTest::keyClicks(line, "typed");
    f.host.release(f.editor);
    EXPECT_EQ(f.text(), "[ \"a\", \"typed\" ]");
    EXPECT_EQ(f.host.undoCount(), 1);
}

TEST(Rows, AnotherTypeOfFieldKeepsTheOneBefore)
{
    Floats f("[ 1 ]");
    f.open();
    SoMFString other;
    f.editor.setField(&other);
    EXPECT_EQ(f.editor.editedField(), &f.field);
    f.editor.setField(&f.field);
}

TEST(Rows, SettingToDefaultAndIgnoringAreUndone)
{
    Floats f("[ 1, 2 ]");
    f.open();
    QTest::mouseClick(&f.button("m_ignoreButton"), Qt::LeftButton);
    TestHost::pump();
    EXPECT_TRUE(f.field.isIgnored());
    EXPECT_EQ(f.host.takeLog(), Log{"executeCommand SpxFieldIgnoredCommand"});
    f.host.undo();
    TestHost::pump();
    EXPECT_FALSE(f.field.isIgnored());
    EXPECT_FALSE(f.button("m_ignoreButton").isChecked());
    // A field that stands alone has no default to go back to.
    f.click("m_defaultButton");
    EXPECT_EQ(f.text(), "[ 1, 2 ]");
}

TEST(Rows, TheCaptionIsGivenOnce)
{
    Floats f;
    f.open();
    f.editor.setFieldName("another");
    EXPECT_EQ(f.editor.getWidgetContainer()->findChild<QLabel*>("m_label")->text(),
              "<p align=\"center\">MFFloat</p>");
}

TEST(Rows, WithoutTheRefreshFlagNothingFollowsTheField)
{
    Floats f("[ 1 ]");
    f.open();
    f.editor.setRefresh(false);
    f.field.setNum(3);
    f.field.setIgnored(true);
    TestHost::pump();
    EXPECT_EQ(f.table().rowCount(), 1);
    EXPECT_EQ(f.count(), "<p align=\"center\">1 elements</p>");
    EXPECT_FALSE(f.button("m_ignoreButton").isChecked());
    f.editor.setRefresh(true);
    f.editor.refresh();
    EXPECT_EQ(f.table().rowCount(), 3);
}

TEST(Rows, AMillionElementsAreNotWalked)
{
    Floats f;
    f.field.setNum(1'000'000);
    f.open();
    EXPECT_EQ(f.table().rowCount(), 1'000'000);
    f.table().setCurrentCell(500'000, 0);
    f.press('+');
    f.field.set1Value(999'999, 4.F);
    TestHost::pump();
    EXPECT_EQ(f.table().rowCount(), 1'000'001);
    EXPECT_EQ(f.editor.getFieldValue(999'999, 0), "4");
}
