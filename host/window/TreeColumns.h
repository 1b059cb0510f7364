// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QTimer>
#include <QVariantMap>

class QAction;
class QMenu;
class SpxTreeColumnProvider;

namespace scopix
{

class SceneTreeView;
class UserNotifier;

/// The menu of what the tree shows beside names, which is kept for the next session, and of how its rows are
/// sorted. Each window has columns of its own, and begins with those of the main one. GUI thread only.
class TreeColumns : public QObject
{
    Q_OBJECT

public:
    /// Fills `menu`, which owns it, and opens it over the tree's header too; the others must outlive it.
    /// `window` is what the settings call the window; empty for the main one.
    TreeColumns(QMenu& menu, SceneTreeView& tree, UserNotifier& notifier, QString window);
    ~TreeColumns() override;

    /// Whose columns come behind the tree's own, in place of those given before.
    void setProviders(const QList<SpxTreeColumnProvider*>& providers);

private:
    void addColumn(int column);
    void addMoreColumn(int column, bool isShown);
    void addOrder(const QString& text, int column, Qt::SortOrder order);
    void keep();
    void keepMore(const QString& key, bool isShown);
    QVariant kept(const QString& key) const;
    void store(const QString& key, const QVariant& value);
    void followWidths();
    void keepWidths();

    QMenu& m_menu;
    SceneTreeView& m_tree;
    int m_orders = 0; // so far in the menu
    UserNotifier& m_notifier;
    const QString m_window;
    QAction* m_endOfColumns = nullptr;
    QList<QAction*> m_more;
    QVariantMap m_widths;  // that the user chose; the tree may go first
    QTimer m_widthsChosen; // runs until they are kept
};

} // namespace scopix
