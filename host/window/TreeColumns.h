// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QMenu;
class SpxTreeColumnProvider;

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

    /// Whose columns come behind the tree's own, in place of those given before.
    void setProviders(const QList<SpxTreeColumnProvider*>& providers);

private:
    void addColumn(int column);
    void addMoreColumn(int column, bool isShown);
    void addOrder(const QString& text, int column, Qt::SortOrder order);
    void keep();
    void keepMore(const QString& key, bool isShown);
    void store(const QString& key, const QVariant& value);

    QMenu& m_menu;
    SceneTreeView& m_tree;
    int m_orders = 0; // so far in the menu
    UserNotifier& m_notifier;
    QAction* m_endOfColumns = nullptr;
    QList<QAction*> m_more;
};

} // namespace scopix
