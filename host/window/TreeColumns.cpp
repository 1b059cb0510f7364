// SPDX-License-Identifier: MIT
#include "window/TreeColumns.h"

#include "panels/SceneTreeView.h"
#include "panels/TreeColumnWidths.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "support/CatchExceptions.h"
#include "support/UserNotifier.h"

#include <scopix/SpxTreeColumns.h>

#include <QHeaderView>
#include <QMenu>

#include <utility>

namespace scopix
{

namespace
{

constexpr int UntilKeptMs = 500; // as a column may still be dragged

QString settingsKey()
{
    return QStringLiteral("treeColumns");
}

QString widthsKey()
{
    return QStringLiteral("treeColumnWidths");
}

QString moreKey()
{
    return QStringLiteral("moreTreeColumns");
}

// A plug-in that fails knows nothing of the node.
SceneTreeModel::MoreColumn columnOf(const SpxTreeColumnProvider& provider, int column)
{
    const auto value = [&provider, column](const SoNode& node) {
        QVariant known;
        static_cast<void>(catchExceptions([&] { known = provider.getColumnValue(column, node); }));
        return known;
    };
    return {provider.getColumnKey(column), provider.getColumnCaption(column), value};
}

} // namespace

TreeColumns::TreeColumns(QMenu& menu, SceneTreeView& tree, UserNotifier& notifier, QString window)
    : QObject(&menu)
    , m_menu(menu)
    , m_tree(tree)
    , m_notifier(notifier)
    , m_window(std::move(window))
{
    for (int column = SceneTreeModel::TypeColumn; column < SceneTreeModel::ColumnCount; ++column)
        addColumn(column);
    m_endOfColumns = menu.addSeparator();
    addOrder(tr("In the Scene’s &Order"), -1, Qt::AscendingOrder);
    addOrder(tr("Sorted by &Name"), SceneTreeModel::NameColumn, Qt::AscendingOrder);
    addOrder(tr("Most T&riangles First"), SceneTreeModel::TrianglesColumn, Qt::DescendingOrder);
    addOrder(tr("Most Me&mory First"), SceneTreeModel::MemoryColumn, Qt::DescendingOrder);
    addOrder(tr("Most Pla&ces First"), SceneTreeModel::PlacesColumn, Qt::DescendingOrder);
    QHeaderView* header = m_tree.header();
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this, header](const QPoint& place) { m_menu.popup(header->mapToGlobal(place)); });
    followWidths();
}

TreeColumns::~TreeColumns()
{
    if (m_widthsChosen.isActive())
        keepWidths();
}

void TreeColumns::followWidths()
{
    TreeColumnWidths& widths = m_tree.getColumnWidths();
    widths.setChosen(kept(widthsKey()).toMap());
    m_widthsChosen.setSingleShot(true);
    m_widthsChosen.setInterval(UntilKeptMs);
    connect(&m_widthsChosen, &QTimer::timeout, this, &TreeColumns::keepWidths);
    connect(&widths, &TreeColumnWidths::chosen, this, [this, &widths] {
        m_widths = widths.getChosen();
        m_widthsChosen.start();
    });
}

void TreeColumns::keepWidths()
{
    store(widthsKey(), m_widths);
}

void TreeColumns::addColumn(int column)
{
    const QVariant before = kept(settingsKey());
    const QStringList shown = before.isValid() ? before.toStringList() : QStringList("type");
    QAction* action = m_menu.addAction(m_tree.getModel().headerData(column, Qt::Horizontal).toString());
    action->setShortcut(QStringLiteral("Ctrl+T, %1").arg(column));
    action->setCheckable(true);
    action->setChecked(shown.contains(m_tree.getModel().columnKey(column)));
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
            shown << m_tree.getModel().columnKey(column);
    }
    store(settingsKey(), shown);
}

void TreeColumns::setProviders(const QList<SpxTreeColumnProvider*>& providers)
{
    qDeleteAll(m_more);
    m_more.clear();
    std::vector<SceneTreeModel::MoreColumn> columns;
    std::vector<bool> shownAtFirst;
    const QString failure = catchExceptions([&] {
        for (const SpxTreeColumnProvider* provider : providers) {
            for (int i = 0; i < provider->getNumColumns(); ++i) {
                columns.push_back(columnOf(*provider, i));
                shownAtFirst.push_back(provider->isColumnShownAtFirst(i));
            }
        }
    });
    if (!failure.isEmpty())
        m_notifier.error(tr("A plug-in failed when it was to tell its columns of the tree: %1").arg(failure));
    columns.resize(shownAtFirst.size());
    m_tree.setMoreColumns(std::move(columns));
    for (std::size_t i = 0; i < shownAtFirst.size(); ++i)
        addMoreColumn(SceneTreeModel::ColumnCount + static_cast<int>(i), shownAtFirst[i]);
}

void TreeColumns::addMoreColumn(int column, bool isShown)
{
    const QString key = m_tree.getModel().columnKey(column);
    auto* action = new QAction(m_tree.getModel().headerData(column, Qt::Horizontal).toString(), &m_menu);
    action->setCheckable(true);
    action->setChecked(kept(moreKey()).toMap().value(key, isShown).toBool());
    m_menu.insertAction(m_endOfColumns, action);
    m_more.append(action);
    m_tree.setColumnShown(column, action->isChecked());
    connect(action, &QAction::toggled, this, [this, column, key](bool on) {
        m_tree.setColumnShown(column, on);
        keepMore(key, on);
    });
}

void TreeColumns::keepMore(const QString& key, bool isShown)
{
    QVariantMap all = kept(moreKey()).toMap();
    all[key] = isShown;
    store(moreKey(), all);
}

QVariant TreeColumns::kept(const QString& key) const
{
    const SettingsFile settings(UserSettings::windowFile());
    const QVariant own = settings.value(m_window + key);
    return own.isValid() ? own : settings.value(key);
}

void TreeColumns::store(const QString& key, const QVariant& value)
{
    const QString problem = SettingsFile(UserSettings::windowFile()).setValue(m_window + key, value);
    if (!problem.isEmpty())
        m_notifier.error(problem);
}

} // namespace scopix
