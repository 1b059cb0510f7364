// SPDX-License-Identifier: MIT
// How nodes are dragged in the tree, and out of it and into it.
#include "panels/BranchMimeData.h"
#include "panels/SceneTreeView.h"

#include <QCoreApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>

namespace scopix
{

namespace
{

// Of this window or of another tree: text or branches, but no file, which the window opens.
bool isForTree(const QMimeData& data)
{
    return data.hasText() && !data.hasUrls();
}

} // namespace

QMimeData* SceneTreeView::makeDragData() const
{
    const QList<SoPath> paths = topmost(getSelectedPaths(), m_model->getRoot());
    return paths.isEmpty() ? nullptr : new BranchMimeData(paths, m_makeText);
}

void SceneTreeView::startDrag(Qt::DropActions actions)
{
    QMimeData* data = makeDragData();
    if (!data)
        return;
    auto* drag = new QDrag(this);
    drag->setMimeData(data);
    drag->exec(actions, Qt::MoveAction);
}

void SceneTreeView::dragEnterEvent(QDragEnterEvent* event)
{
    if (isForTree(*event->mimeData()))
        QTreeView::dragEnterEvent(event);
    else
        passOn(event);
}

void SceneTreeView::dragMoveEvent(QDragMoveEvent* event)
{
    if (!isForTree(*event->mimeData()))
        return event->accept();
    QTreeView::dragMoveEvent(event);
}

void SceneTreeView::passOn(QEvent* event)
{
    QCoreApplication::sendEvent(window(), event);
}

void SceneTreeView::dropEvent(QDropEvent* event)
{
    if (!isForTree(*event->mimeData()))
        return passOn(event);
    const QModelIndex at = indexAt(event->pos()).siblingAtColumn(SceneTreeModel::NameColumn);
    const bool isOwn = qobject_cast<const BranchMimeData*>(event->mimeData()) != nullptr;
    // What comes from elsewhere stays there.
    event->setDropAction(isOwn ? event->proposedAction() : Qt::CopyAction);
    event->accept();
    const DropPlace place = placeFor(at);
    stopAutoScroll();
    setState(NoState);
    viewport()->update();
    emit dropped(*event->mimeData(), pathAt(place.group), place.index, event->dropAction());
}

// Between rows: among the children of the group above; else into what it is dropped on.
SceneTreeView::DropPlace SceneTreeView::placeFor(const QModelIndex& at) const
{
    const QModelIndex root = m_model->index(0, 0);
    const DropIndicatorPosition where = at.isValid() ? dropIndicatorPosition() : OnViewport;
    if (where == OnViewport)
        return {root, -1};
    if (where == OnItem || at == root)
        return {at, -1};
    if (where == BelowItem && isExpanded(at) && m_model->rowCount(at) > 0 && !m_model->isSorted())
        return {at, 0};
    if (m_model->isSorted())
        return {at.parent(), -1}; // between rows is no place among the children then
    const SoGroup* group = m_model->nodeAt(at.parent())->asGroup();
    const int place = group ? group->findChild(m_model->nodeAt(at)) : -1;
    return {at.parent(), place < 0 ? -1 : where == AboveItem ? place : place + 1};
}

} // namespace scopix
