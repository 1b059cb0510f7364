// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace scopix
{

/// A row of the palette: the text, behind it its place, and the key at the end of the row.
class PaletteDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace scopix
