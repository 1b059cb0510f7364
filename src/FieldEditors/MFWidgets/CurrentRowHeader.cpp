// SPDX-License-Identifier: MIT
#include "CurrentRowHeader.h"

#include <QPainter>
#include <QTableView>

CurrentRowHeader::CurrentRowHeader(QTableView* table)
    : QHeaderView(Qt::Vertical, table)
    , m_table(table)
{
    setSectionsClickable(true);
    setHighlightSections(true);
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, viewport(),
            qOverload<>(&QWidget::update));
}

void CurrentRowHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, section);
    painter->restore();
    if (section == m_table->currentIndex().row())
        painter->fillRect(QRect(rect.left(), rect.top(), 3, rect.height()), palette().highlight());
}
