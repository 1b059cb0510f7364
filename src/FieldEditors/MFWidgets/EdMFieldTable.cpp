// SPDX-License-Identifier: MIT
#include "EdMFieldTable.h"

#include "AccessButtonPrivate.h"
#include "CurrentRowHeader.h"
#include "EdFieldEdits.h"
#include "EdMFieldTableItemDelegate.h"
#include "EdMFieldWidget.h"
#include "ProportionalColumns.h"
#include "SpxMFAddRowsCommand.h"
#include "SpxMFDeleteRowsCommand.h"
#include "SpxMFSwapRowsCommand.h"

#include <xsg/core/SoMField.h>

#include <QKeyEvent>
#include <QLineEdit>

#include <cstdio>

EdMFieldTable::EdMFieldTable(EdMFieldWidget* owner, QWidget* parent, const char* name)
    : QTableWidget(parent)
    , m_owner(owner)
{
    setObjectName(QString::fromLatin1(name ? name : "EdMFieldTable"));
    initClass();
}

void EdMFieldTable::initClass()
{
    installDelegate(new EdMFieldTableItemDelegate(m_owner, this));
    setVerticalHeader(new CurrentRowHeader(this));
    m_columns = new ProportionalColumns(this);
    // Always there, so that the columns do not jump when a row too many comes.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(QAbstractItemView::NoSelection);
    setCurrentCell(0, 0);
}

void EdMFieldTable::updateGeometries()
{
    QTableWidget::updateGeometries();
    if (m_columns)
        m_columns->fit();
}

void EdMFieldTable::installDelegate(EdMFieldTableItemDelegate* delegate)
{
    delete m_delegate;
    m_delegate = delegate;
    setItemDelegate(delegate);
}

void EdMFieldTable::setCellType(MFTableTypeCell type)
{
    m_delegate->setCellType(type);
}

void EdMFieldTable::setIntEditorRange(int minimum, int maximum)
{
    m_delegate->setIntEditorRange(minimum, maximum);
}

void EdMFieldTable::setDoubleEditorRange(double minimum, double maximum)
{
    m_delegate->setDoubleEditorRange(minimum, maximum);
}

void EdMFieldTable::setBoundedValue(bool bounded)
{
    m_delegate->setBoundedValue(bounded);
}

int EdMFieldTable::rowsOfField() const
{
    const SoMField* field = m_owner->editedField();
    return field ? field->getNum() : 0;
}

void EdMFieldTable::putItem(int row, int column, Qt::ItemFlags flags)
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        return;
    auto* item = new QTableWidgetItem;
    item->setFlags(flags);
    setItem(row, column, item);
    m_items.append(model()->index(row, column));
}

void EdMFieldTable::putItem(int row, int column)
{
    putItem(row, column, QTableWidgetItem().flags());
}

void EdMFieldTable::clearItems()
{
    for (const QPersistentModelIndex& index : qAsConst(m_items)) {
        if (index.isValid())
            delete takeItem(index.row(), index.column());
    }
    m_items.clear();
}

void EdMFieldTable::setNumRows(int row)
{
    if (row < 0)
        return;
    m_owner->accessBox()->setSilentRange(row != 0 ? 1 : 0, row);
    setRowCount(row);
}

void EdMFieldTable::addRow()
{
    SoMField* field = m_owner->editedField();
    if (!field)
        return;
    const int row = currentRow();
    if (row >= field->getNum())
        return;
    const int added = row + 1;
    clearItems();
    insertRow(added);
    for (int column = 0; column < columnCount(); ++column)
        putItem(added, column);
    AccessButtonPrivate* box = m_owner->accessBox();
    box->setSilentRange(1, box->maximum() + 1);
    SpxFieldEdit::record(std::make_unique<SpxMFAddRowsCommand>(field, added, 1));
    // The new row comes after the current one, which stays current (decisions.md: added-row).
    if (added < 1) {
        setCurrentCell(added, 0);
        emit currentCellChanged(added, 0, 0, 0);
    } else {
        setCurrentCell(row, 0);
        emit currentCellChanged(row, 0, added, 0);
    }
}

void EdMFieldTable::deleteRow()
{
    if (!m_multiSelection) {
        deleteRows(currentRow(), 1);
        return;
    }
    // Only the first block is removed, whatever else is selected.
    const QList<QTableWidgetSelectionRange> ranges = selectedRanges();
    if (!ranges.isEmpty())
        deleteRows(ranges.first().topRow(), ranges.first().rowCount());
}

void EdMFieldTable::deleteRows(int first, int count)
{
    SoMField* field = m_owner->editedField();
    if (!field || first < 0 || count < 1 || first + count > rowCount() || first + count > field->getNum())
        return;
    AccessButtonPrivate* box = m_owner->accessBox();
    const int left = box->maximum() - count;
    box->setSilentRange(std::min(box->minimum(), left), left);
    SpxFieldEdit::record(std::make_unique<SpxMFDeleteRowsCommand>(field, first, count));
    if (rowCount() == count)
        box->setSilentRange(0, left);
    model()->removeRows(first, count);
}

void EdMFieldTable::swapUpRow()
{
    // The row of the access box, not the table's current one (decisions.md: moved-row).
    const int row = m_owner->accessBox()->value() - 1;
    std::fprintf(stderr, "EdMFieldTable::swapUpRow() %d\n", row);
    if (row < 1 || row >= rowCount())
        return;
    swapRows(row, row - 1);
    setCurrentCell(row - 1, 0);
    m_owner->accessBox()->setNewValue(row - 1);
}

void EdMFieldTable::swapDownRow()
{
    const int row = m_owner->accessBox()->value() - 1;
    std::fprintf(stderr, "EdMFieldTable::swapDownRow() %d\n", row);
    if (row < 0 || row >= rowCount() - 1)
        return;
    swapRows(row, row + 1);
    setCurrentCell(row + 1, 0);
    m_owner->accessBox()->setNewValue(row + 1);
}

void EdMFieldTable::swapRows(int row1, int row2)
{
    SoMField* field = m_owner->editedField();
    const int rows = rowsOfField();
    if (row1 < 0 || row2 < 0 || row1 >= rows || row2 >= rows)
        return;
    SpxFieldEdit::record(std::make_unique<SpxMFSwapRowsCommand>(field, row1, row2));
}

void EdMFieldTable::showTableRow(int row)
{
    // The access box counts from 1 and passes its number unchanged (decisions.md: access-box-number).
    if (row < 0 || row >= rowCount())
        return;
    setCurrentCell(row, 0);
    scrollTo(model()->index(row, 0));
}

void EdMFieldTable::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        addRow();
        break;
    case Qt::Key_Minus:
    case Qt::Key_Delete:
        deleteRow();
        break;
    case Qt::Key_Shift:
        setSelectionMode(QAbstractItemView::ContiguousSelection);
        m_multiSelection = true;
        break;
    default:
        QTableWidget::keyPressEvent(event);
    }
    event->accept();
}

void EdMFieldTable::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Shift)
        leaveMultiSelection();
    else
        QTableWidget::keyReleaseEvent(event);
    event->accept();
}

void EdMFieldTable::focusOutEvent(QFocusEvent* event)
{
    leaveMultiSelection();
    QTableWidget::focusOutEvent(event);
}

void EdMFieldTable::leaveMultiSelection()
{
    clearSelection();
    setSelectionMode(QAbstractItemView::NoSelection);
    m_multiSelection = false;
}

QWidget* EdMFieldTable::openEditor() const
{
    return state() == EditingState ? indexWidget(currentIndex()) : nullptr;
}

bool EdMFieldTable::hasTypedCell() const
{
    const auto* edit = qobject_cast<QLineEdit*>(openEditor());
    return edit && edit->isModified();
}

void EdMFieldTable::commitOpenEditor()
{
    if (QWidget* editor = openEditor())
        commitData(editor);
}

void EdMFieldTable::dropOpenEditor()
{
    if (QWidget* editor = openEditor())
        QTableWidget::closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

bool EdMFieldTable::keepsOpen(const QWidget* editor) const
{
    return editor->inherits("EdSlider") &&
           (editor->rect().contains(editor->mapFromGlobal(QCursor::pos())) || editor->hasFocus());
}

void EdMFieldTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    // A slider that is being dragged stays; Enter, Escape and Tab come with a hint and close it.
    if (hint == QAbstractItemDelegate::NoHint && editor && keepsOpen(editor))
        return;
    QTableWidget::closeEditor(editor, hint);
}

void EdMFieldTable::editorDestroyed(QObject* editor)
{
    // In its last moments an editor is a plain QObject, which no longer inherits anything.
    if (editor && editor->inherits("EdSlider") && keepsOpen(static_cast<QWidget*>(editor)))
        return;
    QTableWidget::editorDestroyed(editor);
}
