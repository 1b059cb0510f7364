// SPDX-License-Identifier: MIT
#include "panels/SceneTreeView.h"

#include "panels/SceneTreeModel.h"

#include <xsg/actions/SoPath.h>

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>
#include <vector>

namespace scopix
{

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

void SceneTreeView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    header()->resizeSection(SceneTreeModel::NameColumn, viewport()->width() * 62 / 100);
}

} // namespace scopix
