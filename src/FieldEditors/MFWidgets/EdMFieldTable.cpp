// SPDX-License-Identifier: MIT
#include "EdMFieldTable.h"

#include "AccessButtonPrivate.h"
#include "CurrentCellHeader.h"
#include "EdFieldEdits.h"
#include "EdMFieldTableItemDelegate.h"
#include "EdMFieldWidget.h"
#include "EdSlider.h"
#include "ProportionalColumns.h"
#include "SpxMFAddRowsCommand.h"
#include "SpxMFDeleteRowsCommand.h"
#include "SpxMFSwapRowsCommand.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoMField.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

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
    setVerticalHeader(new CurrentCellHeader(Qt::Vertical, this));
    setHorizontalHeader(new CurrentCellHeader(Qt::Horizontal, this));
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
    finishOpenEditor();
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
    // What is typed for a deleted element is dropped with it.
    if (openEditor() && m_editedIndex.row() >= first && m_editedIndex.row() < first + count)
        dropOpenEditor();
    finishOpenEditor();
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
    finishOpenEditor();
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
    finishOpenEditor();
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

// A shortcut of the window on Ctrl and Tab gives way, also while a cell is edited, whose events come here.
bool EdMFieldTable::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QTableWidget::event(event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
        event->accept();
    return QTableWidget::event(event);
}

void EdMFieldTable::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copyCell();
        event->accept();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (event->modifiers() & Qt::ControlModifier)
            leaveByTab(event->key() == Qt::Key_Tab);
        else
            QTableWidget::keyPressEvent(event);
        break;
    case Qt::Key_Plus:
        addRow();
        break;
    case Qt::Key_Minus:
    case Qt::Key_Delete:
        deleteRow();
        break;
    case Qt::Key_Shift:
        enterMultiSelection();
        break;
    default:
        QTableWidget::keyPressEvent(event);
    }
    event->accept();
}

void EdMFieldTable::copyCell()
{
    if (currentIndex().isValid())
        QApplication::clipboard()->setText(textOf(currentIndex()));
}

QString EdMFieldTable::textOf(const QModelIndex& index) const
{
    return m_delegate->textOf(index);
}

// Tab walks through the cells and leaves the table after the last one, back before the first.
bool EdMFieldTable::focusNextPrevChild(bool next)
{
    if (!isLastCell(next))
        return QTableWidget::focusNextPrevChild(next);
    if (!openEditor())
        return leaveByTab(next);
    finishOpenEditor();
    setFocus();
    return true;
}

bool EdMFieldTable::leaveByTab(bool next)
{
    // The view's own would go on to the next cell.
    return QAbstractScrollArea::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
}

bool EdMFieldTable::isLastCell(bool next) const
{
    if (rowCount() == 0)
        return true;
    if (!next)
        return currentRow() <= 0 && currentColumn() <= 0;
    return currentRow() == rowCount() - 1 && currentColumn() == columnCount() - 1;
}

void EdMFieldTable::mousePressEvent(QMouseEvent* event)
{
    // Shift may have been pressed while another input had the focus.
    m_pressedWithShift = event->modifiers() & Qt::ShiftModifier;
    if (m_pressedWithShift)
        enterMultiSelection();
    QTableWidget::mousePressEvent(event);
}

void EdMFieldTable::enterMultiSelection()
{
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    m_multiSelection = true;
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
    return m_editedIndex.isValid() ? indexWidget(m_editedIndex) : nullptr;
}

bool EdMFieldTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isOpen = QTableWidget::edit(index, trigger, event);
    if (isOpen && state() == EditingState && indexWidget(index)) {
        m_editedIndex = index;
        m_editedCount = rowsOfField();
        m_editedTexts = textsAround(index.row());
    }
    return isOpen;
}

bool EdMFieldTable::hasTypedCell() const
{
    const QWidget* editor = openEditor();
    return editor && EdMFieldTableItemDelegate::isTyped(editor);
}

void EdMFieldTable::commitOpenEditor()
{
    if (QWidget* editor = openEditor())
        commitData(editor);
}

void EdMFieldTable::finishOpenEditor()
{
    commitOpenEditor();
    if (QWidget* editor = openEditor())
        closeEditor(editor, QAbstractItemDelegate::SubmitModelCache);
}

void EdMFieldTable::dropOpenEditor()
{
    if (QWidget* editor = openEditor())
        closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

void EdMFieldTable::followField()
{
    QWidget* editor = openEditor();
    if (!editor)
        return;
    const int count = rowsOfField();
    const QStringList texts = textsAround(m_editedIndex.row());
    if (!EdMFieldTableItemDelegate::isTyped(editor))
        m_delegate->setEditorData(editor, m_editedIndex);
    else if (count != m_editedCount && texts != m_editedTexts)
        dropOpenEditor();
    m_editedCount = count;
    m_editedTexts = texts;
}

// Rows inserted or removed above a row leave another element there, with another neighbour or value. The row
// below counts only where there was one: a list may grow at its end.
QStringList EdMFieldTable::textsAround(int row) const
{
    QStringList texts;
    for (int i = row - 1; i <= row + 1; ++i) {
        SbString text;
        if (m_owner->hasRow(i))
            m_owner->editedField()->get1(i, text);
        texts.append(SpxText::toQString(text));
    }
    if (row + 1 >= m_editedCount)
        texts.removeLast();
    return texts;
}

void EdMFieldTable::forgetRows()
{
    dropOpenEditor();
    if (m_owner->accessBox())
        setNumRows(0);
}

void EdMFieldTable::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    if (openEditor() && m_editedIndex.row() >= start && m_editedIndex.row() <= end)
        dropOpenEditor();
    QTableWidget::rowsAboutToBeRemoved(parent, start, end);
}

bool EdMFieldTable::keepsOpen(const QWidget* editor) const
{
    return editor->inherits("EdSlider") &&
           (editor->rect().contains(editor->mapFromGlobal(QCursor::pos())) || editor->hasFocus());
}

void EdMFieldTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    // Enter asks for it later, when the editor may have been deleted.
    if (editor && !viewport()->children().contains(editor))
        return;
    // A slider that is being dragged stays; Enter, Escape and Tab come with a hint and close it.
    if (hint == QAbstractItemDelegate::NoHint && editor && keepsOpen(editor))
        return;
    if (auto* slider = qobject_cast<EdSlider*>(editor)) {
        if (hint == QAbstractItemDelegate::RevertModelCache)
            slider->dropTyping();
        takeFocusFrom(slider);
    }
    const bool isNext = hint == QAbstractItemDelegate::EditNextItem;
    if ((isNext || hint == QAbstractItemDelegate::EditPreviousItem) && isLastCell(isNext))
        hint = QAbstractItemDelegate::SubmitModelCache; // the next Tab leaves the table
    QTableWidget::closeEditor(editor, hint);
}

// An input that is hidden while it has the focus passes it on as Tab does, which moves the current cell.
void EdMFieldTable::takeFocusFrom(const QWidget* editor)
{
    const QWidget* focused = QApplication::focusWidget();
    if (focused && editor->isAncestorOf(focused))
        setFocus();
}

void EdMFieldTable::editorDestroyed(QObject* editor)
{
    // In its last moments an editor is a plain QObject, which no longer inherits anything.
    if (editor && editor->inherits("EdSlider") && keepsOpen(static_cast<QWidget*>(editor)))
        return;
    QTableWidget::editorDestroyed(editor);
}
