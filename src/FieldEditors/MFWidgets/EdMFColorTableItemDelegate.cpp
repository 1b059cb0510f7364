// SPDX-License-Identifier: MIT
#include "EdMFColorTableItemDelegate.h"

#include "EdColor.h"
#include "EdMFieldWidget.h"

#include <scopix/editing/SpxText.h>

#include <QPainter>

void EdMFColorTableItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                       const QModelIndex& index) const
{
    if (index.column() != 0) {
        EdMFieldTableItemDelegate::paint(painter, option, index);
        return;
    }
    const auto channel = [&](int component) {
        return colorChannel(SpxText::toFloatOr0(owner()->getFieldValue(index.row(), component)));
    };
    painter->save();
    painter->fillRect(option.rect, QColor(channel(0), channel(1), channel(2), 255));
    painter->restore();
}

QWidget* EdMFColorTableItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                                  const QModelIndex& index) const
{
    return index.column() == 0 ? nullptr : EdMFieldTableItemDelegate::createEditor(parent, option, index);
}
