// SPDX-License-Identifier: MIT
#include "panels/SceneTreeView.h"

#include "panels/SceneTreeModel.h"

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
{
    setObjectName(QStringLiteral("sceneTree"));
    setModel(m_model);
    setUniformRowHeights(true);
    setAlternatingRowColors(false);
    setSelectionMode(SingleSelection);
    setIndentation(16);
    setExpandsOnDoubleClick(true);
    setFrameShape(NoFrame);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(60);
    header()->setSectionsMovable(false);
}

void SceneTreeView::setScene(SoNode* root)
{
    if (currentIndex().isValid())
        dropSelection();
    m_model->setRoot(root);
    expand(m_model->index(0, 0));
}

void SceneTreeView::showNode(const SoNode* node)
{
    if (m_model->nodeAt(currentIndex()) == node)
        return;
    const QScopedValueRollback<bool> quiet(m_quiet, true);
    const QModelIndex index = m_model->indexOf(node);
    setCurrentIndex(index);
    if (index.isValid())
        scrollTo(index);
    else
        clearSelection();
}

void SceneTreeView::selectPath(const SoPath& path)
{
    const QModelIndex index = m_model->indexOf(path);
    if (!index.isValid())
        return dropSelection();
    setCurrentIndex(index);
    scrollTo(index);
}

SoPath SceneTreeView::getSelectedPath() const
{
    std::vector<SoNode*> upwards;
    for (QModelIndex at = currentIndex(); at.isValid(); at = at.parent())
        upwards.push_back(m_model->nodeAt(at));
    SoPath path;
    std::for_each(upwards.rbegin(), upwards.rend(), [&path](SoNode* node) { path.append(node); });
    return path;
}

void SceneTreeView::dropSelection()
{
    clearSelection();
    selectionModel()->clearCurrentIndex();
}

void SceneTreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    if (!m_quiet)
        emit nodeSelected(selected.isEmpty() ? nullptr : m_model->nodeAt(selected.indexes().first()));
}

void SceneTreeView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    // No neighbour is selected in place of a removed row: it must not be edited by accident.
    for (QModelIndex at = currentIndex(); at.isValid(); at = at.parent()) {
        if (at.parent() == parent && at.row() >= first && at.row() <= last) {
            dropSelection();
            break;
        }
    }
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
    header()->resizeSection(SceneTreeModel::NameColumn, viewport()->width() * 62 / 100);
}

} // namespace scopix
