// SPDX-License-Identifier: MIT
#pragma once

#include "EdTableAccessible.h"

#include <QPersistentModelIndex>
#include <QTableWidget>

class ProportionalColumns;
class EdMFieldTableItemDelegate;
class EdMFieldWidget;

/// The table of a multi-value editor: one element per row, one component per column. It holds no values: the
/// delegate draws each visible cell from the editor's text for it, so its cost follows what is visible. Row
/// operations become undoable commands. GUI thread only.
class EdMFieldTable : public QTableWidget
{
    Q_OBJECT

public:
    /// What a column holds; picks the validator or the slider of its cells. The numbers are part of the
    /// interface.
    enum MFTableTypeCell {
        CELL_NONE = 0,
        CELL_SHORT = 1,
        CELL_USHORT = 2,
        CELL_INT = 3,
        CELL_UINT = 4,
        CELL_INT32 = 5,
        CELL_UINT32 = 6,
        CELL_FLOAT = 7,
        CELL_DOUBLE = 8
    };

    EdMFieldTable(EdMFieldWidget* owner, QWidget* parent, const char* name);

    void initClass();
    void setCellType(MFTableTypeCell type);
    void setIntEditorRange(int minimum, int maximum);
    void setDoubleEditorRange(double minimum, double maximum);
    void setBoundedValue(bool bounded);

    EdMFieldWidget* owner() const { return m_owner; }

    /// The text of a cell, for assistive tools and the clipboard.
    QString textOf(const QModelIndex& index) const;

    /// An empty item in the cell; cells without one are drawn and edited all the same.
    void putItem(int row, int column, Qt::ItemFlags flags);
    void putItem(int row, int column);

    /// Whether a cell is open whose text was changed.
    bool hasTypedCell() const;
    void commitOpenEditor();
    /// Applies what is typed and closes the cell: what a button is about to do comes after it.
    void finishOpenEditor();
    void dropOpenEditor();
    /// Gives the focus to what comes after the table, or before it.
    bool leaveByTab(bool next);
    /// After a change of the field: an untouched cell shows the new value, a typed one stays, unless its
    /// element is in another row now.
    void followField();
    /// Another field comes: no row of it was chosen yet, and no cell is open.
    void forgetRows();

public slots:
    void setNumRows(int row);
    void swapUpRow();
    void swapDownRow();
    virtual void deleteRow();
    virtual void addRow();
    void showTableRow(int row);
    virtual void swapRows(int row1, int row2);
    void editorDestroyed(QObject* editor) override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;
    void updateGeometries() override;

    /// For a table that brings a delegate of its own; the one before is deleted.
    void installDelegate(EdMFieldTableItemDelegate* delegate);
    /// Whether the mouse was pressed last to extend the selection.
    bool isPressedWithShift() const { return m_pressedWithShift; }

private:
    int rowsOfField() const;
    void clearItems();
    void deleteRows(int first, int count);
    void enterMultiSelection();
    void leaveMultiSelection();
    void copyCell();
    bool isLastCell(bool next) const;
    QWidget* openEditor() const;
    bool keepsOpen(const QWidget* editor) const;
    void takeFocusFrom(const QWidget* editor);
    QStringList textsAround(int row) const;

    EdTableAccessibility m_accessibility;
    EdMFieldWidget* m_owner;
    EdMFieldTableItemDelegate* m_delegate = nullptr;
    ProportionalColumns* m_columns = nullptr;
    bool m_multiSelection = false;
    bool m_pressedWithShift = false;
    QPersistentModelIndex m_editedIndex; // of the cell that was opened last
    int m_editedCount = 0;               // of elements, and the texts around the cell, when last looked at
    QStringList m_editedTexts;
    /// The few cells that hold an item: clearing them must not cost the table's size.
    QList<QPersistentModelIndex> m_items;
};
