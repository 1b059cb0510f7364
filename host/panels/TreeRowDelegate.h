// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

class SoNode;

namespace scopix
{

class SceneTreeView;

/// Draws the rows of the scene's tree: before the node's icon an eye, which a click closes and opens; a lock
/// behind the names of nodes that are locked; what is marked bold, on a tint of the colour of selections.
class TreeRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TreeRowDelegate(SceneTreeView& view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    /// Where the eye of a row is, in the coordinates of the view's contents.
    QRect eyeAt(const QModelIndex& index) const;

signals:
    void eyeClicked(const QModelIndex& index);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    QRect iconsIn(const QStyleOptionViewItem& option) const;

    SceneTreeView& m_view;
};

} // namespace scopix
