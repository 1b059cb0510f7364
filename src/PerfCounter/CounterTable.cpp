// SPDX-License-Identifier: MIT
#include "CounterTable.h"

#include "CounterText.h"

#include <xsg/counters/SoPerfCounter.h>

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include <algorithm>

namespace counterTable
{
namespace
{

constexpr int WidestColumn = 400;

class BeginningDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override
    {
        return QStyledItemDelegate::displayText(beginningOf(value.toString()), locale);
    }
};

void setRow(QTableWidget& table, int row, const SoPerfCounter& counter)
{
    const QString texts[] = {
        SpxText::toQString(counter.getName()),     counter.isCustom() ? QStringLiteral("c") : QString(),
        SpxText::toQString(counter.getTypeText()), SpxText::toQString(counter.getStringLevel()),
        beginningOf(counter.getModule()),          beginningOf(counter.getDescription())};
    int column = 0;
    for (const QString& text : texts)
        table.setItem(row, column++, new QTableWidgetItem(text));
}

} // namespace

void fill(QTableWidget& table, const std::vector<const SoPerfCounter*>& counters)
{
    table.setRowCount(0);
    table.setRowCount(int(counters.size()));
    int row = 0;
    for (const SoPerfCounter* counter : counters)
        setRow(table, row++, *counter);
    table.sortItems(0, Qt::AscendingOrder);
    fitColumns(table);
}

void setText(QTableWidget& table, int row, int column, const QString& text)
{
    if (QTableWidgetItem* item = table.item(row, column))
        item->setText(text);
    else
        table.setItem(row, column, new QTableWidgetItem(text));
}

void fitColumns(QTableWidget& table)
{
    const int columns = table.columnCount() - int(table.horizontalHeader()->stretchLastSection());
    for (int column = 0; column < columns; ++column) {
        table.resizeColumnToContents(column);
        table.setColumnWidth(column, std::min(table.columnWidth(column), WidestColumn));
    }
}

QStringList selectedNames(const QTableWidget& table)
{
    QStringList names;
    for (const QModelIndex& index : table.selectionModel()->selectedRows())
        names.append(table.item(index.row(), 0)->text());
    return names;
}

void showBeginnings(QAbstractItemView& view)
{
    view.setItemDelegate(new BeginningDelegate(&view));
}

} // namespace counterTable
