// SPDX-License-Identifier: MIT
#include "EdTableAccessible.h"

#include "EdMFieldTable.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

namespace
{

// A cell, or a header where row or column is -1.
class Cell : public QAccessibleInterface, public QAccessibleTableCellInterface
{
public:
    Cell(EdMFieldTable* table, int row, int column)
        : m_table(table)
        , m_row(row)
        , m_column(column)
    {
    }

    bool isValid() const override
    {
        return m_table && m_row < m_table->rowCount() && m_column < m_table->columnCount();
    }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                       : nullptr;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Value))
            return {};
        if (isHeader())
            return headerText();
        return m_table->textOf(index());
    }
    QRect rect() const override
    {
        if (!isValid() || isHeader())
            return {};
        const QRect place = m_table->visualRect(index());
        return {m_table->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override
    {
        if (m_row < 0)
            return QAccessible::ColumnHeader;
        return m_column < 0 ? QAccessible::RowHeader : QAccessible::Cell;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid || isHeader())
            return state;
        state.focusable = true;
        state.focused = m_table->currentIndex() == index();
        state.selected = isSelected();
        return state;
    }

    bool isSelected() const override
    {
        return isValid() && !isHeader() && m_table->selectionModel()->isSelected(index());
    }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return header(-1, m_column); }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return header(m_row, -1); }
    int columnIndex() const override { return m_column; }
    int rowIndex() const override { return m_row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return QAccessible::queryAccessibleInterface(m_table); }

private:
    bool isHeader() const { return m_row < 0 || m_column < 0; }
    QModelIndex index() const { return m_table->model()->index(m_row, m_column); }
    QString headerText() const
    {
        if (m_row < 0 && m_column < 0)
            return {};
        const bool isColumn = m_row < 0;
        return m_table->model()
            ->headerData(isColumn ? m_column : m_row, isColumn ? Qt::Horizontal : Qt::Vertical)
            .toString();
    }
    QList<QAccessibleInterface*> header(int row, int column) const;

    QPointer<EdMFieldTable> m_table;
    int m_row;
    int m_column;
};

// Its children are numbered as in Qt's own tables, since Qt's events name them by number: row by row, the
// headers first.
class Table : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit Table(EdMFieldTable* table)
        : QAccessibleWidget(table, QAccessible::Table)
    {
    }
    ~Table() override
    {
        for (QAccessible::Id id : qAsConst(m_cells))
            QAccessible::deleteAccessibleInterface(id);
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    int childCount() const override { return (rowCount() + 1) * stride(); }
    QAccessibleInterface* child(int index) const override
    {
        return index < 0 ? nullptr : cell(index / stride() - 1, index % stride() - 1);
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        auto* inside = const_cast<QAccessibleInterface*>(child)->tableCellInterface();
        return inside ? numberOf(inside->rowIndex(), inside->columnIndex()) : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const QModelIndex index = table()->indexAt(table()->viewport()->mapFromGlobal({x, y}));
        return index.isValid() ? cell(index.row(), index.column()) : nullptr;
    }
    QAccessibleInterface* focusChild() const override
    {
        const QModelIndex index = table()->currentIndex();
        return index.isValid() ? cell(index.row(), index.column()) : nullptr;
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override
    {
        return row < 0 || column < 0 ? nullptr : cell(row, column);
    }
    QString columnDescription(int column) const override { return header(column, Qt::Horizontal); }
    QString rowDescription(int row) const override { return header(row, Qt::Vertical); }
    int columnCount() const override { return table()->columnCount(); }
    int rowCount() const override { return table()->rowCount(); }
    int selectedCellCount() const override { return selected().size(); }
    QList<QAccessibleInterface*> selectedCells() const override
    {
        QList<QAccessibleInterface*> cells;
        for (const QModelIndex& index : selected())
            cells.append(cell(index.row(), index.column()));
        return cells;
    }
    int selectedColumnCount() const override { return selectedColumns().size(); }
    int selectedRowCount() const override { return selectedRows().size(); }
    QList<int> selectedColumns() const override
    {
        QList<int> columns;
        for (const QModelIndex& index : table()->selectionModel()->selectedColumns())
            columns.append(index.column());
        return columns;
    }
    QList<int> selectedRows() const override
    {
        QList<int> rows;
        for (const QModelIndex& index : table()->selectionModel()->selectedRows())
            rows.append(index.row());
        return rows;
    }
    bool isColumnSelected(int column) const override
    {
        return table()->selectionModel()->isColumnSelected(column, {});
    }
    bool isRowSelected(int row) const override { return table()->selectionModel()->isRowSelected(row, {}); }
    // Rows are selected while Shift is held, and no other way.
    bool selectRow(int /*row*/) override { return false; }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    // Cells are known by row and column alone.
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

    QAccessibleInterface* cell(int row, int column) const
    {
        if (row >= rowCount() || column >= columnCount())
            return nullptr;
        const int number = numberOf(row, column);
        auto known = m_cells.constFind(number);
        if (known == m_cells.constEnd())
            known = m_cells.insert(number,
                                   QAccessible::registerAccessibleInterface(new Cell(table(), row, column)));
        return QAccessible::accessibleInterface(*known);
    }

private:
    EdMFieldTable* table() const { return static_cast<EdMFieldTable*>(widget()); }
    int stride() const { return columnCount() + 1; }
    int numberOf(int row, int column) const { return (row + 1) * stride() + column + 1; }
    QString header(int section, Qt::Orientation orientation) const
    {
        return table()->model()->headerData(section, orientation).toString();
    }
    QModelIndexList selected() const { return table()->selectionModel()->selectedIndexes(); }

    mutable QHash<int, QAccessible::Id> m_cells;
};

QList<QAccessibleInterface*> Cell::header(int row, int column) const
{
    auto* all = static_cast<Table*>(table());
    QAccessibleInterface* found = all && !isHeader() ? all->cell(row, column) : nullptr;
    return found ? QList<QAccessibleInterface*>{found} : QList<QAccessibleInterface*>();
}

QAccessibleInterface* makeTable(const QString& className, QObject* object)
{
    if (className != QLatin1String("EdMFieldTable"))
        return nullptr;
    auto* table = qobject_cast<EdMFieldTable*>(object);
    return table ? new Table(table) : nullptr;
}

int& tableCount()
{
    static int count = 0;
    return count;
}

} // namespace

EdTableAccessibility::EdTableAccessibility()
{
    if (tableCount()++ == 0)
        QAccessible::installFactory(makeTable);
}

EdTableAccessibility::~EdTableAccessibility()
{
    if (--tableCount() == 0)
        QAccessible::removeFactory(makeTable);
}
