// SPDX-License-Identifier: MIT
#include "panels/SceneTreeView.h"

#include "panels/NodeFigures.h"
#include "panels/SceneTreeModel.h"
#include "panels/TreeColumnWidths.h"
#include "panels/TreeRowDelegate.h"
#include "structure/SceneStates.h"

#include <xsg/actions/SoPath.h>
#include <xsg/errors/SoError.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <vector>

namespace scopix
{

namespace
{

// Rows that are unfolded by one key: a scene may share its groups so often that all would be millions.
constexpr std::size_t MostUnfolded = 50000;
constexpr int AllLevels = -1;
constexpr int LeastColumnLetters = 8;

// How many levels below the node have no more rows than that together.
int countLevels(SoNode* node)
{
    std::vector<SoNode*> level{node};
    std::size_t rows = 0;
    for (int depth = 0; !level.empty(); ++depth) {
        std::vector<SoNode*> below;
        for (SoNode* each : level) {
            const SoGroup* group = each->asGroup();
            if (!group)
                continue;
            rows += group->getChildren().size();
            if (rows > MostUnfolded)
                return depth;
            below.insert(below.end(), group->getChildren().begin(), group->getChildren().end());
        }
        level.swap(below);
    }
    return AllLevels;
}

} // namespace

SceneTreeView::SceneTreeView(QWidget* parent)
    : QTreeView(parent)
    , m_model(new SceneTreeModel(this))
    , m_rows(new TreeRowDelegate(*this))
{
    setObjectName(QStringLiteral("sceneTree"));
    setModel(m_model);
    setItemDelegate(m_rows);
    setUniformRowHeights(true);
    setAlternatingRowColors(false);
    setSelectionMode(ExtendedSelection);
    setIndentation(16);
    setExpandsOnDoubleClick(true);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    connect(m_model, &SceneTreeModel::nameEntered, this,
            [this](const QModelIndex& index, const QString& name) { emit nameEntered(pathAt(index), name); });
    connect(m_rows, &TreeRowDelegate::eyeClicked, this,
            [this](const QModelIndex& index) { emit eyeClicked(pathAt(index)); });
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(header()->fontMetrics().averageCharWidth() * LeastColumnLetters);
    header()->setResizeContentsPrecision(0); // the rows in sight
    header()->setTextElideMode(Qt::ElideRight);
    setTextElideMode(Qt::ElideMiddle); // names differ at their ends
    header()->setSectionsMovable(false);
    for (int column = SceneTreeModel::TypeColumn + 1; column < SceneTreeModel::ColumnCount; ++column)
        setColumnHidden(column, true);
    header()->setSectionsClickable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_widths = new TreeColumnWidths(*this);
    connect(header(), &QHeaderView::sectionClicked, this, &SceneTreeView::sortClicked);
    connect(&m_model->getFigures(), &NodeFigures::changed, this, &SceneTreeView::figuresChanged);
}

void SceneTreeView::setScene(SoNode* root)
{
    if (currentIndex().isValid() || selectionModel()->hasSelection())
        dropSelection();
    m_expandedBefore.clear();
    m_model->setRoot(root);
    expand(m_model->index(0, 0));
}

void SceneTreeView::showNode(const SoNode* node)
{
    const QModelIndexList rows = selectedRows();
    if (rows.size() == 1 && m_model->nodeAt(rows.first()) == node)
        return;
    const QModelIndex index = m_model->indexOf(node);
    selectRows(index.isValid() ? QModelIndexList{index} : QModelIndexList());
}

void SceneTreeView::showPaths(const QList<SoPath>& paths)
{
    QModelIndexList rows;
    for (const SoPath& path : paths) {
        const QModelIndex index = m_model->indexOf(path);
        if (index.isValid())
            rows.append(index);
    }
    if (rows != selectedRows())
        selectRows(rows);
}

// Without the key that is held down meanwhile.
void SceneTreeView::selectOnly(const QModelIndex& index)
{
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void SceneTreeView::selectRows(const QModelIndexList& rows)
{
    const QScopedValueRollback<bool> quiet(m_quiet, true);
    m_order.clear();
    if (rows.isEmpty())
        return dropSelection();
    QItemSelection selection;
    for (const QModelIndex& row : rows)
        selection.append(QItemSelectionRange(row, row.siblingAtColumn(m_model->columnCount() - 1)));
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(rows.last(), QItemSelectionModel::NoUpdate);
    std::copy(rows.begin(), rows.end(), std::back_inserter(m_order));
    scrollTo(rows.last());
}

QModelIndexList SceneTreeView::selectedRows() const
{
    QModelIndexList rows;
    std::copy_if(m_order.begin(), m_order.end(), std::back_inserter(rows),
                 [](const QModelIndex& row) { return row.isValid(); });
    return rows;
}

void SceneTreeView::selectPath(const SoPath& path)
{
    const QModelIndex index = m_model->indexOf(path);
    if (!index.isValid())
        return dropSelection();
    selectOnly(index);
    scrollTo(index);
}

void SceneTreeView::selectNode(const SoNode* node)
{
    const QModelIndex index = m_model->indexOf(node);
    if (!index.isValid())
        return;
    selectOnly(index);
    scrollTo(index);
}

SoPath SceneTreeView::getSelectedPath() const
{
    const QModelIndexList rows = selectedRows();
    return rows.isEmpty() ? SoPath() : pathAt(rows.last());
}

QList<SoPath> SceneTreeView::getSelectedPaths() const
{
    QList<SoPath> paths;
    for (const QModelIndex& row : selectedRows())
        paths.append(pathAt(row));
    return paths;
}

SoPath SceneTreeView::pathAt(QModelIndex index)
{
    std::vector<SoNode*> upwards;
    for (; index.isValid(); index = index.parent())
        upwards.push_back(static_cast<const SceneTreeModel*>(index.model())->nodeAt(index));
    SoPath path;
    std::for_each(upwards.rbegin(), upwards.rend(), [&path](SoNode* node) { path.append(node); });
    return path;
}

void SceneTreeView::setStates(const SceneStates* states)
{
    m_states = states;
    connect(states, &SceneStates::changed, viewport(), qOverload<>(&QWidget::update));
}

bool SceneTreeView::isOutOfSight(const QModelIndex& index) const
{
    if (!m_states || m_states->getHiding().isEmpty())
        return false;
    const SoHiding& hiding = m_states->getHiding();
    bool isIsolated = !hiding.isIsolating();
    for (QModelIndex at = index; at.isValid(); at = at.parent()) {
        const SoNode* node = m_model->nodeAt(at);
        if (hiding.isHidden(node))
            return true;
        isIsolated = isIsolated || hiding.isIsolated(node);
    }
    return !isIsolated;
}

void SceneTreeView::editName()
{
    const QModelIndex index = currentIndex().siblingAtColumn(SceneTreeModel::NameColumn);
    if (!index.isValid())
        return;
    scrollTo(index);
    edit(index);
}

void SceneTreeView::unfoldTo(const SoNode* node)
{
    for (QModelIndex at = m_model->indexOf(node).parent(); at.isValid(); at = at.parent())
        expand(at);
}

void SceneTreeView::reveal(const SoNode* node)
{
    const QModelIndex index = m_model->indexOf(node);
    if (index.isValid())
        scrollTo(index);
}

void SceneTreeView::showOnly(SceneTreeModel::NodeSet nodes)
{
    if (m_model->isShowingAll())
        m_expandedBefore = expandedPaths();
    keepSelection([&] { m_model->showOnly(std::move(nodes)); });
}

void SceneTreeView::showAll()
{
    if (m_model->isShowingAll())
        return;
    keepSelection([this] { m_model->showAll(); });
    expandPaths(std::exchange(m_expandedBefore, {}));
}

void SceneTreeView::expandPaths(const std::vector<SoPath>& paths)
{
    for (const SoPath& path : paths) {
        const QModelIndex index = m_model->indexOf(path);
        if (index.isValid())
            expand(index);
    }
}

template <class Change>
void SceneTreeView::keepSelection(Change change)
{
    const QScopedValueRollback<bool> quiet(m_quiet, true);
    const QList<SoPath> selected = getSelectedPaths();
    change();
    expand(m_model->index(0, 0));
    showPaths(selected);
}

std::vector<SoPath> SceneTreeView::expandedPaths() const
{
    std::vector<SoPath> paths;
    std::vector<QModelIndex> pending{m_model->index(0, 0)};
    while (!pending.empty()) {
        const QModelIndex at = pending.back();
        pending.pop_back();
        if (!at.isValid() || !isExpanded(at))
            continue;
        paths.push_back(pathAt(at));
        for (int row = 0; row < m_model->rowCount(at); ++row)
            pending.push_back(m_model->index(row, 0, at));
    }
    return paths;
}

void SceneTreeView::dropSelection()
{
    clearSelection();
    selectionModel()->clearCurrentIndex();
}

void SceneTreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    if (m_quiet)
        return;
    followOrder(selected);
    const QModelIndexList rows = selectedRows();
    emit nodeSelected(rows.isEmpty() ? nullptr : m_model->nodeAt(rows.last()));
}

// The row that the user acted on is the last.
void SceneTreeView::followOrder(const QItemSelection& selected)
{
    const auto isOut = [this](const QModelIndex& row) { return !selectionModel()->isSelected(row); };
    m_order.erase(std::remove_if(m_order.begin(), m_order.end(), isOut), m_order.end());
    for (const QItemSelectionRange& range : selected) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            m_order.append(m_model->index(row, SceneTreeModel::NameColumn, range.parent()));
    }
    const int current = m_order.indexOf(currentIndex().siblingAtColumn(SceneTreeModel::NameColumn));
    if (current >= 0)
        m_order.move(current, m_order.size() - 1);
}

void SceneTreeView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    const auto isRemoved = [&](QModelIndex at) {
        while (at.isValid() && (at.parent() != parent || at.row() < first || at.row() > last))
            at = at.parent();
        return at.isValid();
    };
    // No neighbour becomes current in place of a removed row: it must not be edited by accident.
    if (isRemoved(currentIndex()))
        selectionModel()->clearCurrentIndex();
    QItemSelection removed;
    for (const QModelIndex& row : selectedRows()) {
        if (isRemoved(row))
            removed.select(row, row);
    }
    if (!removed.isEmpty())
        selectionModel()->select(removed, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    QTreeView::rowsAboutToBeRemoved(parent, first, last);
}

void SceneTreeView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Asterisk && currentIndex().isValid())
        unfoldAll(currentIndex());
    else
        QTreeView::keyPressEvent(event);
}

void SceneTreeView::unfoldAll(const QModelIndex& index)
{
    const int levels = countLevels(m_model->nodeAt(index));
    if (levels == AllLevels)
        return expandRecursively(index);
    expandRecursively(index, std::max(0, levels - 1));
    SoError::post(tr("The tree was unfolded by %1 levels only, as all of them would have more than %L2 rows.")
                      .arg(std::max(1, levels))
                      .arg(MostUnfolded)
                      .toUtf8()
                      .constData());
}

void SceneTreeView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    m_widths->fit();
}

int SceneTreeView::wantedWidth(int column) const
{
    return std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
}

void SceneTreeView::setColumnShown(int column, bool on)
{
    m_widths->fitAfter([&] { setColumnHidden(column, !on); });
}

template <class Change>
void SceneTreeView::listAgain(Change change)
{
    const std::vector<SoPath> expanded = expandedPaths();
    keepSelection(change);
    expandPaths(expanded);
}

void SceneTreeView::sortRows(int column, Qt::SortOrder order)
{
    header()->setSortIndicatorShown(column >= 0);
    header()->setSortIndicator(column, order);
    listAgain([&] { m_model->sort(column, order); });
}

// Upwards, downwards, and as the scene has it.
void SceneTreeView::sortClicked(int column)
{
    const bool isSame = m_model->isSorted() && m_sorted == column;
    const bool isDone = isSame && m_sortOrder == Qt::DescendingOrder;
    m_sorted = isDone ? -1 : column;
    m_sortOrder = isSame ? Qt::DescendingOrder : Qt::AscendingOrder;
    sortRows(m_sorted, m_sortOrder);
}

void SceneTreeView::figuresChanged()
{
    const int column = m_model->isSorted() ? header()->sortIndicatorSection() : -1;
    if (column == SceneTreeModel::TrianglesColumn || column == SceneTreeModel::MemoryColumn)
        sortAgain();
    viewport()->update();
}

void SceneTreeView::sortAgain()
{
    listAgain([this] { m_model->sort(header()->sortIndicatorSection(), header()->sortIndicatorOrder()); });
}

void SceneTreeView::setMoreColumns(std::vector<SceneTreeModel::MoreColumn> columns)
{
    if (m_model->isSorted() && header()->sortIndicatorSection() >= SceneTreeModel::ColumnCount)
        sortRows(-1, Qt::AscendingOrder);
    m_widths->fitAfter([&] { keepSelection([&] { m_model->setMoreColumns(std::move(columns)); }); });
}

void SceneTreeView::updateMoreColumns()
{
    if (m_model->isSorted() && header()->sortIndicatorSection() >= SceneTreeModel::ColumnCount)
        sortAgain();
    viewport()->update();
}

} // namespace scopix
