// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFieldTableItemDelegate.h"

/// Column 0 is the swatch; the columns after it show the components, so every component is one column further
/// on.
class EdMFColorTableItemDelegate : public EdMFieldTableItemDelegate
{
    Q_OBJECT

public:
    using EdMFieldTableItemDelegate::EdMFieldTableItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    QString textOf(const QModelIndex& index) const override;

protected:
    int componentOf(int column) const override { return column - 1; }
};
