// SPDX-License-Identifier: MIT
#pragma once

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

    /// An empty item in the cell; cells without one are drawn and edited all the same.
    void putItem(int row, int column, Qt::ItemFlags flags);
    void putItem(int row, int column);

    /// Whether a cell is open whose text was changed.
    bool hasTypedCell() const;
    void commitOpenEditor();
    void dropOpenEditor();

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
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void updateGeometries() override;

    /// For a table that brings a delegate of its own; the one before is deleted.
    void installDelegate(EdMFieldTableItemDelegate* delegate);

private:
    int rowsOfField() const;
    void clearItems();
    void deleteRows(int first, int count);
    void leaveMultiSelection();
    QWidget* openEditor() const;
    bool keepsOpen(const QWidget* editor) const;

    EdMFieldWidget* m_owner;
    EdMFieldTableItemDelegate* m_delegate = nullptr;
    ProportionalColumns* m_columns = nullptr;
    bool m_multiSelection = false;
    /// The few cells that hold an item: clearing them must not cost the table's size.
    QList<QPersistentModelIndex> m_items;
};
