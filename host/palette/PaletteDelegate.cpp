// SPDX-License-Identifier: MIT
#include "palette/PaletteDelegate.h"

#include "palette/PaletteModel.h"

#include <QApplication>
#include <QPainter>

namespace scopix
{

namespace
{

constexpr int Margin = 6;

QColor mixed(const QColor& a, const QColor& b)
{
    return QColor((3 * a.red() + b.red()) / 4, (3 * a.green() + b.green()) / 4,
                  (3 * a.blue() + b.blue()) / 4);
}

} // namespace

void PaletteDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle& style = *(row.widget ? row.widget->style() : QApplication::style());
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const bool isSelected = row.state & QStyle::State_Selected;
    const QPalette::ColorGroup group =
        row.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
    const QColor color = row.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor ground = row.palette.color(group, isSelected ? QPalette::Highlight : QPalette::Base);
    QRect space = row.rect.adjusted(Margin, 0, -Margin, 0);
    painter->setPen(mixed(color, ground));
    const auto right = Qt::AlignVCenter | QStyle::visualAlignment(row.direction, Qt::AlignRight);
    const auto left = Qt::AlignVCenter | QStyle::visualAlignment(row.direction, Qt::AlignLeft);
    const QString key = index.data(PaletteModel::KeyRole).toString();
    painter->drawText(space, int(right), key);
    const int keyWidth = key.isEmpty() ? 0 : row.fontMetrics.horizontalAdvance(key) + 2 * Margin;
    const bool isMirrored = row.direction == Qt::RightToLeft;
    space.adjust(isMirrored ? keyWidth : 0, 0, isMirrored ? 0 : -keyWidth, 0);

    const QString text = row.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, space.width());
    painter->setPen(color);
    painter->drawText(space, int(left), text);
    const int textWidth = row.fontMetrics.horizontalAdvance(text) + 2 * Margin;
    space.adjust(isMirrored ? 0 : textWidth, 0, isMirrored ? -textWidth : 0, 0);
    painter->setPen(mixed(color, ground));
    painter->drawText(space, int(left),
                      row.fontMetrics.elidedText(index.data(PaletteModel::PlaceRole).toString(),
                                                 Qt::ElideRight, std::max(0, space.width())));
}

QSize PaletteDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {0, size.height() + Margin};
}

} // namespace scopix
