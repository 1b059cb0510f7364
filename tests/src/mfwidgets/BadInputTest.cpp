// SPDX-License-Identifier: MIT
// What must do nothing: rows that are not there, empty lists, text that no validator accepts.
#include "EdTablePopupLineEdit.h"
#include "ListEditors.h"
#include "MultiFixture.h"

#include <QApplication>
#include <QPointer>

namespace
{

template <class Kind>
class AnyList : public testing::Test
{
protected:
    MultiFixture<typename Kind::Editor, typename Kind::Field> f;
};

} // namespace

TYPED_TEST_SUITE(AnyList, ListEditors, );

TYPED_TEST(AnyList, RowsThatAreNotThereAreLeftAlone)
{
    auto& f = this->f;
    f.field.setNum(2);
    f.open();
    const std::string before = f.text();
    const float numbers[] = {0.5F, 0.5F, 0.5F};
    for (int row : {-2, -1, 2, 1'000'000}) {
        f.editor.set1Value(row, 0, "1");
        f.editor.setValue(row, numbers);
        f.editor.swapRows(row, 0);
        f.editor.swapRows(1, row);
        f.table().swapRows(row, 0);
        f.table().swapRows(1, row);
        f.table().showTableRow(row);
        f.table().setNumRows(std::min(row, -1));
        if (f.table().isEnabled()) { // each row of the matrices shows the whole field
            EXPECT_EQ(f.editor.getFieldValue(row, 0), "");
        }
    }
    TestHost::pump();
    EXPECT_EQ(f.text(), before);
    EXPECT_EQ(f.table().rowCount(), 2);
    EXPECT_TRUE(f.host.takeLog().empty());
}

TYPED_TEST(AnyList, AnEmptyListTakesNoOperationButAdding)
{
    auto& f = this->f;
    f.open();
    for (const char* button : {"m_deleteButton", "m_upButton", "m_downButton"})
        f.click(button);
    for (Qt::Key key : {Qt::Key_Minus, Qt::Key_Delete, Qt::Key_F2, Qt::Key_5, Qt::Key_Tab})
        f.key(key);
    QTest::keyClick(&f.box(), Qt::Key_Return);
    QTest::mouseDClick(f.table().viewport(), Qt::LeftButton, {}, {5, 5});
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ ]");
    EXPECT_TRUE(f.host.takeLog().empty());
    EXPECT_FALSE(f.table().viewport()->template findChild<QWidget*>());
    f.click("m_addButton");
    EXPECT_EQ(f.field.getNum(), 1);
    EXPECT_EQ(f.box().value(), 1);
    EXPECT_EQ(f.count(), "<p align=\"center\">1 elements</p>");
}

TYPED_TEST(AnyList, AListThatIsLetGoIsNotWritten)
{
    auto& f = this->f;
    f.field.setNum(2);
    f.open();
    f.host.release(f.editor);
    const std::string before = f.text();
    f.editor.set1Value(0, 0, "1");
    f.editor.swapRows(0, 1);
    f.editor.setDefaultFieldValue();
    f.editor.ignoreButtonStateChanged();
    f.editor.applyChanges();
    f.table().addRow();
    f.table().deleteRow();
    f.table().swapUpRow();
    f.table().swapDownRow();
    f.editor.refresh();
    EXPECT_EQ(f.text(), before);
    EXPECT_EQ(f.host.undoCount(), 0);
}

// When a row is deleted, what was typed into its open cell or its popup is dropped.
TYPED_TEST(AnyList, TheRowThatIsBeingTypedMayBeDeleted)
{
    auto& f = this->f;
    f.field.setNum(3);
    f.open();
    auto& table = f.table();
    if (!table.isEnabled())
        return; // no cell of it opens
    table.setCurrentCell(1, table.columnCount() - 1);
    f.key(Qt::Key_F2);
    QPointer<QWidget> open = table.indexWidget(table.currentIndex());
    ASSERT_TRUE(open);
    const std::string before = f.text();
    QTest::keyClicks(QApplication::focusWidget(), "1");
    f.click("m_deleteButton");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(open);
    EXPECT_EQ(f.field.getNum(), 2);
    f.host.undo();
    EXPECT_EQ(f.text(), before);
}

TEST(BadInput, TextThatIsNoNumberYetIsDropped)
{
    MultiFixture<EdMFDoubleWidget, SoMFDouble> f("[ 0.1 ]");
    f.open();
    for (const char* text : {"-", "1e", "", "abc", "."}) {
        QLineEdit* line = f.openLine(0, 0);
        ASSERT_TRUE(line) << text;
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, QLatin1String(text));
        f.table().setFocus(); // Enter does not leave what cannot be read; the focus does
        f.box().setFocus();
        TestHost::pump();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(f.text(), "[ 0.1 ]") << text;
        EXPECT_FALSE(f.table().viewport()->findChild<QLineEdit*>()) << text;
    }
}

TEST(BadInput, LettersInAShortVectorGiveZero)
{
    MultiFixture<EdMFVec2sWidget, SoMFVec2s> f("[ 1 2 ]");
    f.open();
    f.type(f.openLine(0, 1), "abc");
    EXPECT_EQ(f.text(), "[ 1 0 ]");
}

TEST(BadInput, HidesThePopupOfARemovedElement)
{
    MultiFixture<EdMFMatrixWidget, SoMFMatrix> f;
    f.field.setNum(1);
    f.open();
    f.click("m_editButton");
    auto* line = f.editor.getWidgetContainer()->findChild<EdTablePopupLineEdit*>();
    ASSERT_TRUE(line->isVisible());
    f.field.setNum(0);
    TestHost::pump();
    EXPECT_FALSE(line->isVisible());
    line->setText("5"); // as a key that was on its way
    EXPECT_EQ(f.field.getNum(), 0);
}

TEST(BadInput, APopupFollowsItsElementWhenTheListShrinks)
{
    MultiFixture<EdMFMatrixWidget, SoMFMatrix> f;
    f.field.setNum(2);
    SbMatrix first;
    first[0][0] = 3;
    f.field.set1Value(0, first);
    f.open();
    f.box().setValue(2);
    f.click("m_editButton");
    auto* line = f.editor.getWidgetContainer()->findChildren<EdTablePopupLineEdit*>().first();
    ASSERT_EQ(line->text(), "1");
    f.field.setNum(1);
    TestHost::pump();
    EXPECT_EQ(line->text(), "3") << "the access box stands at the first element now";
    EXPECT_EQ(f.field[0], first);
    line->window()->close();
}

TEST(BadInput, AFieldOfAnotherTypeIsNotShown)
{
    MultiFixture<EdMFColorWidget, SoMFColor> f("[ 1 0 0 ]");
    f.open();
    SoMFString other;
    other.setNum(5);
    f.editor.setField(&other);
    f.editor.refresh();
    EXPECT_EQ(f.table().rowCount(), 1);
    f.type(f.openLine(0, 1), "0.5");
    EXPECT_EQ(f.text(), "[ 0.5 0 0 ]");
    EXPECT_EQ(other.getNum(), 5);
    f.editor.setField(&f.field);
}
