// SPDX-License-Identifier: MIT
// What a screen reader finds.
#include "TableFixture.h"

#include <QAccessible>

using namespace inspector;

namespace
{

class AccessibleTable : public ListFixture<SoMFVec3f>
{
protected:
    QAccessibleInterface* reader() { return QAccessible::queryAccessibleInterface(&view()); }
};

} // namespace

TEST_F(AccessibleTable, EveryCellHasANameInReadingOrder)
{
    open({SbVec3f(1, 2, 3), SbVec3f(4, 5.5F, 6)});
    ASSERT_NE(reader(), nullptr);
    EXPECT_EQ(reader()->role(), QAccessible::Table);
    EXPECT_TRUE(reader()->text(QAccessible::Name).contains("2"));
    ASSERT_EQ(reader()->childCount(), 6);
    QStringList names;
    for (int i = 0; i < 6; ++i) {
        QAccessibleInterface* cell = reader()->child(i);
        ASSERT_NE(cell, nullptr);
        EXPECT_EQ(cell->parent(), reader());
        EXPECT_EQ(reader()->indexOfChild(cell), i);
        EXPECT_FALSE(cell->text(QAccessible::Name).isEmpty());
        names.append(cell->text(QAccessible::Name));
    }
    names.removeDuplicates();
    EXPECT_EQ(names.size(), 6);
    EXPECT_EQ(reader()->child(4)->text(QAccessible::Value), "5.5");
    EXPECT_TRUE(reader()->child(4)->text(QAccessible::Name).contains("row 1, y: 5.5"));
}

TEST_F(AccessibleTable, EveryPartOfTheEditorHasAName)
{
    open({SbVec3f(1, 2, 3)});
    for (QWidget* widget : table().findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible() || widget->inherits("QMenu") ||
            widget == view().viewport())
            continue;
        QAccessibleInterface* part = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(part, nullptr);
        EXPECT_FALSE(part->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
    }
}

TEST_F(AccessibleTable, TheFocusChainReachesEveryPartAndTheTable)
{
    open({SbVec3f(1, 2, 3)});
    QSet<QWidget*> wanted;
    for (QWidget* widget : table().findChildren<QWidget*>()) {
        if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled())
            wanted.insert(widget);
    }
    EXPECT_GE(wanted.size(), 7);
    for (int steps = 2 * wanted.size(); steps > 0; --steps) {
        wanted.remove(QApplication::focusWidget());
        key(Qt::Key_Tab, QApplication::focusWidget() == &view() ? Qt::ControlModifier : Qt::NoModifier);
    }
    EXPECT_TRUE(wanted.isEmpty()) << (*wanted.begin())->metaObject()->className();
}

TEST_F(AccessibleTable, CellsAreMadeWhenAskedForAndNotKeptForEver)
{
    field.setNum(1'000'000);
    open();
    QAccessibleInterface* table = reader();
    EXPECT_EQ(table->childCount(), 3'000'000);
    EXPECT_NE(table->child(2'999'999), nullptr);
    for (int i = 0; i < 20'000; ++i)
        ASSERT_NE(table->child(i * 3), nullptr);
    EXPECT_EQ(table->child(3'000'000), nullptr);
    EXPECT_EQ(table->child(-1), nullptr);
}

TEST_F(AccessibleTable, SelectsAndEditsForAnAssistant)
{
    open({SbVec3f(1, 2, 3), SbVec3f(4, 5, 6)});
    QAccessibleTableInterface* cells = reader()->tableInterface();
    ASSERT_NE(cells, nullptr);
    EXPECT_EQ(cells->rowCount(), 2);
    EXPECT_EQ(cells->columnCount(), 3);
    EXPECT_EQ(cells->columnDescription(1), "y");
    EXPECT_TRUE(cells->selectRow(1));
    EXPECT_TRUE(cells->isRowSelected(1));
    EXPECT_EQ(cells->selectedCellCount(), 3);
    EXPECT_EQ(cells->selectedCells().size(), 3);
    EXPECT_EQ(host.undoCount(), 0);
    cells->cellAt(0, 1)->setText(QAccessible::Value, "8");
    EXPECT_EQ(field[0], SbVec3f(1, 8, 3));
    EXPECT_EQ(host.undoCount(), 1);
}

TEST_F(AccessibleTable, CellsOutliveTheirRows)
{
    open({SbVec3f(1, 2, 3), SbVec3f(4, 5, 6)});
    QAccessibleInterface* cell = reader()->tableInterface()->cellAt(1, 0);
    field.setNum(1);
    TestHost::pump();
    EXPECT_FALSE(cell->isValid());
    EXPECT_EQ(cell->text(QAccessible::Name), QString());
    EXPECT_TRUE(cell->rect().isEmpty());
    EXPECT_TRUE(cell->state().invalid);
}
