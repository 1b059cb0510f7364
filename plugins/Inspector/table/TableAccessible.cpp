// SPDX-License-Identifier: MIT
#include "table/TableAccessible.h"

#include "table/ListTableView.h"

#include <xsg/core/SoMField.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QHash>
#include <QPointer>

#include <scopix/editing/SpxText.h>

#include <limits>

namespace inspector
{

namespace
{

constexpr int MostCells = 4096; // that are kept after a reader asked for them

QString tr(const char* text)
{
    return QCoreApplication::translate("TableAccessible", text);
}

// -1 for the cells at the end of so long a list that their numbers are too large.
int indexOf(TableCell cell, int columns)
{
    const qint64 index = qint64(cell.row) * columns + cell.column;
    return index <= std::numeric_limits<int>::max() ? int(index) : -1;
}

QString nameOf(const SoMField& list)
{
    return SpxText::toQString(list.getName());
}

// One cell, made when somebody asks for it.
class CellInterface : public QAccessibleInterface, public QAccessibleTableCellInterface
{
public:
    CellInterface(ListTableView& view, TableCell cell)
        : m_view(&view)
        , m_cell(cell)
    {
    }

    bool isValid() const override { return m_view && m_view->rows().isThere(m_cell.row); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_view ? m_view->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Cell; }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        switch (kind) {
        case QAccessible::Name:
            return name();
        case QAccessible::Value:
            return value();
        default:
            return {};
        }
    }
    // An assistant writes as the user types.
    void setText(QAccessible::Text kind, const QString& text) override
    {
        if (kind != QAccessible::Value || !isValid())
            return;
        m_view->goTo(m_cell);
        m_view->openCell(text);
        m_view->endTyping();
    }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect rect = m_view->geometry().cell(m_cell);
        return rect.isEmpty() ? QRect() : QRect(m_view->viewport()->mapToGlobal(rect.topLeft()), rect.size());
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.focusable = state.selectable = state.editable = true;
        state.selected = isSelected();
        state.focused = m_view->hasFocus() && m_view->selection().current() == m_cell;
        state.offscreen = m_view->geometry().cell(m_cell).isEmpty();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                       : nullptr;
    }

    bool isSelected() const override { return m_view && m_view->selection().contains(m_cell); }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_cell.column; }
    int rowIndex() const override { return m_cell.row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    QString value() const { return m_view->rows().text(m_cell.row, m_cell.column); }
    QString name() const
    {
        const TableRows& rows = m_view->rows();
        return tr("%1, row %2, %3: %4")
            .arg(nameOf(*rows.list()))
            .arg(rows.elementOf(m_cell.row))
            .arg(rows.longHeading(m_cell.column), value());
    }

    const QPointer<ListTableView> m_view;
    const TableCell m_cell;
};

class TableInterface : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit TableInterface(ListTableView& view)
        : QAccessibleWidget(&view, QAccessible::Table)
        , m_view(view)
    {
    }
    ~TableInterface() override { forgetCells(); }

    QString text(QAccessible::Text kind) const override
    {
        const SoMField* list = m_view.rows().list();
        if (kind == QAccessible::Name && !list)
            return tr("A list as a table");
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        return tr("%1, a list of %2 values, type %3")
            .arg(nameOf(*list))
            .arg(list->getNum())
            .arg(SpxText::toQString(list->getTypeId().getName()));
    }
    int childCount() const override
    {
        const qint64 cells = qint64(rowCount()) * columnCount();
        return int(std::min<qint64>(cells, std::numeric_limits<int>::max()));
    }
    QAccessibleInterface* child(int index) const override
    {
        return columnCount() ? cellAt(index / columnCount(), index % columnCount()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto* cell = dynamic_cast<const CellInterface*>(child);
        return cell ? indexOf({cell->rowIndex(), cell->columnIndex()}, columnCount()) : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const TableGeometry::Place place =
            m_view.geometry().placeAt(m_view.viewport()->mapFromGlobal({x, y}));
        return place.area == TableGeometry::Area::Cells ? cellAt(place.cell.row, place.cell.column) : nullptr;
    }
    QAccessibleInterface* focusChild() const override
    {
        const TableCell current = m_view.selection().current();
        return m_view.hasFocus() && current.isValid() ? cellAt(current.row, current.column) : nullptr;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override
    {
        if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
            return nullptr;
        const qint64 key = qint64(row) * TableSelection::MostColumns + column;
        if (const QAccessible::Id known = m_cells.value(key))
            return QAccessible::accessibleInterface(known);
        if (m_cells.size() >= MostCells)
            forgetCells();
        auto* cell = new CellInterface(m_view, {row, column});
        m_cells.insert(key, QAccessible::registerAccessibleInterface(cell));
        return cell;
    }
    int selectedCellCount() const override
    {
        return int(std::min<qint64>(m_view.selection().cellCount(), std::numeric_limits<int>::max()));
    }
    // At most as many as are kept.
    QList<QAccessibleInterface*> selectedCells() const override
    {
        QList<QAccessibleInterface*> cells;
        for (const RowBand& band : m_view.selection().bands()) {
            for (int row = band.first; row <= band.last && cells.size() < MostCells / 2; ++row) {
                for (int column = 0; column < columnCount(); ++column) {
                    if (band.has(column))
                        cells.append(cellAt(row, column));
                }
            }
        }
        return cells;
    }
    QString columnDescription(int column) const override
    {
        return column >= 0 && column < columnCount() ? m_view.rows().longHeading(column) : QString();
    }
    QString rowDescription(int row) const override
    {
        return m_view.rows().isThere(row) ? tr("row %1").arg(m_view.rows().elementOf(row)) : QString();
    }
    int selectedColumnCount() const override { return selectedColumns().size(); }
    int selectedRowCount() const override { return selectedRows().size(); }
    int columnCount() const override { return m_view.rows().list() ? m_view.rows().columnCount() : 0; }
    int rowCount() const override { return m_view.rows().count(); }
    QList<int> selectedColumns() const override
    {
        QList<int> columns;
        const std::vector<RowBand> bands = m_view.selection().bands();
        for (int column = 0; column < columnCount(); ++column) {
            qint64 rows = 0;
            for (const RowBand& band : bands)
                rows += band.has(column) ? band.rowCount() : 0;
            if (rows == rowCount())
                columns.append(column);
        }
        return columns;
    }
    QList<int> selectedRows() const override
    {
        QList<int> rows;
        if (!m_view.selection().isOfWholeRows(columnCount()))
            return rows;
        for (const RowBand& band : m_view.selection().bands()) {
            for (int row = band.first; row <= band.last && rows.size() < MostCells; ++row)
                rows.append(row);
        }
        return rows;
    }
    bool isColumnSelected(int column) const override { return selectedColumns().contains(column); }
    bool isRowSelected(int row) const override
    {
        for (int column = 0; column < columnCount(); ++column) {
            if (!m_view.selection().contains({row, column}))
                return false;
        }
        return true;
    }
    bool selectRow(int row) override
    {
        TableSelection selection;
        selection.selectRows(row, row, columnCount());
        m_view.setSelection(selection);
        return true;
    }
    bool selectColumn(int column) override
    {
        TableSelection selection;
        selection.selectRange({0, column, rowCount() - 1, column}, {0, column});
        m_view.setSelection(selection);
        return true;
    }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override { forgetCells(); }

private:
    void forgetCells() const
    {
        for (const QAccessible::Id id : qAsConst(m_cells))
            QAccessible::deleteAccessibleInterface(id);
        m_cells.clear();
    }

    ListTableView& m_view;
    mutable QHash<qint64, QAccessible::Id> m_cells;
};

QAccessibleInterface* factory(const QString& /*className*/, QObject* object)
{
    auto* view = qobject_cast<ListTableView*>(object);
    return view ? new TableInterface(*view) : nullptr;
}

int s_users = 0;

} // namespace

void TableAccessible::install()
{
    if (s_users++ == 0)
        QAccessible::installFactory(factory);
}

void TableAccessible::uninstall()
{
    if (--s_users == 0)
        QAccessible::removeFactory(factory);
}

void TableAccessible::currentChanged(ListTableView& view)
{
    const TableCell current = view.selection().current();
    if (!QAccessible::isActive() || !view.hasFocus() || !current.isValid())
        return;
    QAccessibleEvent event(&view, QAccessible::Focus);
    event.setChild(indexOf(current, view.rows().columnCount()));
    QAccessible::updateAccessibility(&event);
}

} // namespace inspector
