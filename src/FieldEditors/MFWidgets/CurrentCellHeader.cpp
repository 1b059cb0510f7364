// SPDX-License-Identifier: MIT
#include "CurrentCellHeader.h"

#include <QPainter>
#include <QTableView>

namespace
{

constexpr int MarkWidth = 3;

} // namespace

CurrentCellHeader::CurrentCellHeader(Qt::Orientation orientation, QTableView* table)
    : QHeaderView(orientation, table)
    , m_table(table)
{
    setSectionsClickable(true);
    setHighlightSections(true);
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, viewport(),
            qOverload<>(&QWidget::update));
}

void CurrentCellHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, section);
    painter->restore();
    const QModelIndex current = m_table->currentIndex();
    if (orientation() == Qt::Vertical && section == current.row())
        painter->fillRect(QRect(rect.left(), rect.top(), MarkWidth, rect.height()), palette().highlight());
    if (orientation() == Qt::Horizontal && section == current.column())
        painter->fillRect(QRect(rect.left(), rect.top(), rect.width(), MarkWidth), palette().highlight());
}
