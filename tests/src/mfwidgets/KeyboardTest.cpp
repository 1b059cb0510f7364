// SPDX-License-Identifier: MIT
// The table by keyboard alone, and what it reports to assistive technology.
#include "EdTablePopupLineEdit.h"
#include "ListEditors.h"
#include "MultiFixture.h"

#include <QApplication>

namespace
{

using Points = MultiFixture<EdMFVec3fWidget, SoMFVec3f>;
using Integers = MultiFixture<EdMFInt32Widget, SoMFInt32>;

QLineEdit* focusedLine()
{
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

// Types into the current cell and, wherever Tab leads, into the next ones.
template <class List>
void typeEachAndTab(List& f, std::initializer_list<const char*> texts)
{
    for (const char* typed : texts) {
        if (!focusedLine())
            f.key(Qt::Key_F2);
        ASSERT_TRUE(focusedLine()) << typed;
        focusedLine()->selectAll();
        QTest::keyClicks(focusedLine(), QLatin1String(typed));
        QTest::keyClick(focusedLine(), Qt::Key_Tab);
        TestHost::pump();
    }
}

} // namespace

TEST(Keyboard, PlusAddsAndMinusAndDeleteDelete)
{
    Integers f("[ 1, 2, 3 ]");
    f.open();
    f.table().setCurrentCell(1, 0);
    f.press('+');
    EXPECT_EQ(f.text(), "[ 1, 2, 0, 3 ]");
    f.press('-');
    EXPECT_EQ(f.text(), "[ 1, 0, 3 ]");
    f.table().setCurrentCell(1, 0);
    f.key(Qt::Key_Delete);
    EXPECT_EQ(f.text(), "[ 1, 3 ]");
}

TEST(Keyboard, ShiftAndArrowsSelectTheBlockThatDeleteTakes)
{
    Integers f("[ 0, 1, 2, 3, 4, 5 ]");
    f.open();
    f.table().setCurrentCell(4, 0);
    f.sendKey(QEvent::KeyPress, Qt::Key_Shift, {});
    f.sendKey(QEvent::KeyPress, Qt::Key_Up, Qt::ShiftModifier);
    f.sendKey(QEvent::KeyPress, Qt::Key_Up, Qt::ShiftModifier);
    f.sendKey(QEvent::KeyPress, Qt::Key_Delete, Qt::ShiftModifier);
    f.sendKey(QEvent::KeyRelease, Qt::Key_Shift, {});
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 0, 1, 5 ]");
    EXPECT_EQ(f.host.takeLog(), TestHost::Log{"executeCommand SpxMFDeleteRowsCommand"});
    EXPECT_EQ(f.box().maximum(), 3);
    EXPECT_TRUE(f.table().selectedRanges().isEmpty());
}

TEST(Keyboard, FTwoOrTypingOpensTheCell)
{
    Points f("[ 1 2 3, 4 5 6 ]");
    f.open();
    f.table().setCurrentCell(1, 0);
    f.key(Qt::Key_F2);
    ASSERT_TRUE(focusedLine());
    EXPECT_EQ(focusedLine()->text(), "4");
    QTest::keyClick(focusedLine(), Qt::Key_Escape);
    TestHost::pump();
    f.press('7');
    ASSERT_TRUE(focusedLine());
    QTest::keyClick(focusedLine(), Qt::Key_Return);
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 1 2 3, 7 5 6 ]");
    EXPECT_EQ(QApplication::focusWidget(), &f.table());
}

TEST(Keyboard, TabAppliesAndMovesToTheNextCell)
{
    Points f("[ 1 2 3, 4 5 6 ]");
    f.open();
    f.table().setCurrentCell(0, 2);
    ASSERT_NO_FATAL_FAILURE(typeEachAndTab(f, {"7", "8", "9"}));
    EXPECT_EQ(f.text(), "[ 1 2 7, 8 9 6 ]");
    EXPECT_EQ(f.table().currentRow(), 1);
    EXPECT_EQ(f.table().currentColumn(), 2);
}

TEST(Keyboard, TabLeavesASliderCellForTheNextRow)
{
    Integers f("[ 1, 2, 3 ]");
    f.open();
    f.table().setCurrentCell(0, 0);
    ASSERT_NO_FATAL_FAILURE(typeEachAndTab(f, {"7", "8"}));
    EXPECT_EQ(f.text(), "[ 7, 8, 3 ]");
    EXPECT_EQ(f.table().currentRow(), 2);
}

template <class Kind>
class EveryListEditor : public testing::Test
{
protected:
    MultiFixture<typename Kind::Editor, typename Kind::Field> f;
};
TYPED_TEST_SUITE(EveryListEditor, ListEditors, );

TYPED_TEST(EveryListEditor, NamesEverythingThatCanBeUsed)
{
    this->f.open();
    const QWidget* container = this->f.editor.getWidgetContainer();
    int buttons = 0;
    for (const QPushButton* button : container->findChildren<QPushButton*>()) {
        ++buttons;
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
        EXPECT_TRUE(button->text().isEmpty());
        EXPECT_EQ(button->focusPolicy(), Qt::NoFocus) << "the keyboard stays in the table";
    }
    EXPECT_GE(buttons, 6);
    EXPECT_EQ(this->f.box().accessibleName(), "Quick access to rows");
    EXPECT_EQ(this->f.table().accessibleName(), "Elements");
    for (const auto* line : container->findChildren<EdTablePopupLineEdit*>())
        EXPECT_FALSE(line->accessibleName().isEmpty());
}

TYPED_TEST(EveryListEditor, OpensACellThatHasAName)
{
    this->f.field.setNum(1);
    this->f.open();
    auto& table = this->f.table();
    const int column = table.columnCount() - 1;
    if (!table.isEnabled())
        return; // the table of the matrices only lists them
    table.setCurrentCell(0, column);
    this->f.key(Qt::Key_F2);
    ASSERT_TRUE(QApplication::focusWidget());
    const QString name = table.indexWidget(table.currentIndex())->accessibleName();
    const QString caption =
        table.columnCount() > 1 ? ", " + table.horizontalHeaderItem(column)->text() : QString();
    EXPECT_EQ(name.toStdString(), ("Element 1" + caption).toStdString());
    EXPECT_FALSE(QApplication::focusWidget()->accessibleName().isEmpty());
}
