// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QMenu;

namespace scopix
{

class SceneTreeView;
class UserNotifier;

/// The menu of what the tree shows beside names, which is kept for the next session, and of how its rows are
/// sorted. GUI thread only.
class TreeColumns : public QObject
{
    Q_OBJECT

public:
    /// Fills `menu`, which owns it, and opens it over the tree's header too; the others must outlive it.
    TreeColumns(QMenu& menu, SceneTreeView& tree, UserNotifier& notifier);

private:
    void addColumn(int column);
    void addOrder(const QString& text, int column, Qt::SortOrder order);
    void keep();

    QMenu& m_menu;
    SceneTreeView& m_tree;
    int m_orders = 0; // so far in the menu
    UserNotifier& m_notifier;
};

} // namespace scopix
