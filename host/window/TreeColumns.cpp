// SPDX-License-Identifier: MIT
#include "window/TreeColumns.h"

#include "panels/SceneTreeView.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "support/UserNotifier.h"

#include <QHeaderView>
#include <QMenu>

namespace scopix
{

namespace
{

QString settingsKey()
{
    return QStringLiteral("treeColumns");
}

} // namespace

TreeColumns::TreeColumns(QMenu& menu, SceneTreeView& tree, UserNotifier& notifier)
    : QObject(&menu)
    , m_menu(menu)
    , m_tree(tree)
    , m_notifier(notifier)
{
    for (int column = SceneTreeModel::TypeColumn; column < SceneTreeModel::ColumnCount; ++column)
        addColumn(column);
    menu.addSeparator();
    addOrder(tr("In the Scene’s &Order"), -1, Qt::AscendingOrder);
    addOrder(tr("Sorted by &Name"), SceneTreeModel::NameColumn, Qt::AscendingOrder);
    addOrder(tr("Most T&riangles First"), SceneTreeModel::TrianglesColumn, Qt::DescendingOrder);
    addOrder(tr("Most Me&mory First"), SceneTreeModel::MemoryColumn, Qt::DescendingOrder);
    addOrder(tr("Most Pla&ces First"), SceneTreeModel::PlacesColumn, Qt::DescendingOrder);
    QHeaderView* header = m_tree.header();
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this, header](const QPoint& place) { m_menu.popup(header->mapToGlobal(place)); });
}

void TreeColumns::addColumn(int column)
{
    const QVariant kept = SettingsFile(UserSettings::windowFile()).value(settingsKey());
    const QStringList shown = kept.isValid() ? kept.toStringList() : QStringList("type");
    QAction* action = m_menu.addAction(m_tree.getModel().headerData(column, Qt::Horizontal).toString());
    action->setShortcut(QStringLiteral("Ctrl+T, %1").arg(column));
    action->setCheckable(true);
    action->setChecked(shown.contains(SceneTreeModel::columnKey(column)));
    m_tree.setColumnShown(column, action->isChecked());
    connect(action, &QAction::toggled, this, [this, column](bool on) {
        m_tree.setColumnShown(column, on);
        keep();
    });
}

void TreeColumns::addOrder(const QString& text, int column, Qt::SortOrder order)
{
    QAction* action = m_menu.addAction(text, this, [this, column, order] { m_tree.sortRows(column, order); });
    // The columns have the digits before.
    action->setShortcut(QStringLiteral("Ctrl+T, %1").arg(SceneTreeModel::ColumnCount + m_orders++));
}

void TreeColumns::keep()
{
    QStringList shown;
    for (int column = SceneTreeModel::TypeColumn; column < SceneTreeModel::ColumnCount; ++column) {
        if (m_tree.isColumnShown(column))
            shown << SceneTreeModel::columnKey(column);
    }
    const QString problem = SettingsFile(UserSettings::windowFile()).setValue(settingsKey(), shown);
    if (!problem.isEmpty())
        m_notifier.error(problem);
}

} // namespace scopix
