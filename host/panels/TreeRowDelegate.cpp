// SPDX-License-Identifier: MIT
#include "panels/TreeRowDelegate.h"

#include "panels/SceneTreeView.h"
#include "structure/SceneStates.h"
#include "theme/SvgIcon.h"

#include <QMouseEvent>
#include <QPainter>

namespace scopix
{

namespace
{

constexpr int Icon = 16;
constexpr int Gap = 4;

QRect eyeIn(const QRect& icons)
{
    return {icons.left(), icons.center().y() - Icon / 2 + 1, Icon, Icon};
}

QRect nodeIconIn(const QRect& icons)
{
    return eyeIn(icons).translated(Icon + Gap, 0);
}

// Before the place of the lock.
QRect dotIn(const QRect& row, const QRect& icons)
{
    return {row.right() - 2 * Icon - Gap, eyeIn(icons).top(), Icon, Icon};
}

QString eyeIcon(bool isHidden, bool isByOther)
{
    return isHidden    ? QStringLiteral("eye-closed")
           : isByOther ? QStringLiteral("eye-dimmed")
                       : QStringLiteral("eye-open");
}

} // namespace

TreeRowDelegate::TreeRowDelegate(SceneTreeView& view)
    : QStyledItemDelegate(&view)
    , m_view(view)
{
}

void TreeRowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() == SceneTreeModel::NameColumn) {
        // The icons are painted beside the style, which knows one only.
        option->icon = QIcon();
        option->decorationSize = QSize(2 * Icon + Gap, Icon);
    }
    if (index.column() == SceneTreeModel::TypeColumn)
        option->textElideMode = Qt::ElideRight; // types are told apart by how they begin
    const SoNode* node = m_view.getModel().nodeAt(index);
    if (m_view.isOutOfSight(index))
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::PlaceholderText));
    if (!m_view.isMarked(node))
        return;
    constexpr int Tint = 70; // of 255: the text stays legible on it
    QColor colour = option->palette.color(QPalette::Highlight);
    colour.setAlpha(Tint);
    option->backgroundBrush = colour;
    option->font.setBold(true);
}

QRect TreeRowDelegate::iconsIn(const QStyleOptionViewItem& option) const
{
    return m_view.style()->subElementRect(QStyle::SE_ItemViewItemDecoration, &option, &m_view);
}

QRect TreeRowDelegate::eyeAt(const QModelIndex& index) const
{
    QStyleOptionViewItem option = m_view.rowOptions();
    option.rect = m_view.visualRect(index);
    initStyleOption(&option, index);
    return eyeIn(iconsIn(option));
}

void TreeRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    SoNode* node = m_view.getModel().nodeAt(index);
    if (index.column() != SceneTreeModel::NameColumn || !node)
        return;
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QRect icons = iconsIn(row);
    const QIcon::Mode mode = row.state & QStyle::State_Selected ? QIcon::Selected : QIcon::Normal;
    index.data(Qt::DecorationRole).value<QIcon>().paint(painter, nodeIconIn(icons), Qt::AlignCenter, mode);
    if (m_view.isChanged(node))
        svgIcon(QStringLiteral("field-changed"), &m_view)
            .paint(painter, dotIn(row.rect, icons), Qt::AlignCenter, mode);
    const SceneStates* states = m_view.getStates();
    if (!states)
        return;
    if (SceneStates::canBeHidden(*node))
        svgIcon(eyeIcon(states->isHidden(node), m_view.isOutOfSight(index)), &m_view)
            .paint(painter, eyeIn(icons), Qt::AlignCenter, mode);
    if (states->isLocked(node))
        svgIcon(QStringLiteral("lock"), &m_view)
            .paint(painter, QRect(row.rect.right() - Icon, eyeIn(icons).top(), Icon, Icon), Qt::AlignCenter,
                   mode);
}

bool TreeRowDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                  const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const auto* mouse = isPress ? static_cast<const QMouseEvent*>(event) : nullptr;
    if (!mouse || mouse->button() != Qt::LeftButton || index.column() != SceneTreeModel::NameColumn)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    if (!eyeIn(iconsIn(row)).contains(mouse->pos()))
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    emit eyeClicked(index);
    return true;
}

} // namespace scopix
