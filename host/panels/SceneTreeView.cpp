// SPDX-License-Identifier: MIT
#include "panels/SceneTreeView.h"

#include "panels/SceneTreeModel.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace scopix
{

namespace
{

/// Draws the rows that are marked bold, on a tint of the colour of selections.
class MarkingDelegate : public QStyledItemDelegate
{
public:
    explicit MarkingDelegate(SceneTreeView& view)
        : QStyledItemDelegate(&view)
        , m_view(view)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!m_view.isMarked(m_view.getModel().nodeAt(index)))
            return;
        constexpr int Tint = 70; // of 255: the text stays legible on it
        QColor colour = option->palette.color(QPalette::Highlight);
        colour.setAlpha(Tint);
        option->backgroundBrush = colour;
        option->font.setBold(true);
    }

private:
    const SceneTreeView& m_view;
};

} // namespace

SceneTreeView::SceneTreeView(QWidget* parent)
    : QTreeView(parent)
    , m_model(new SceneTreeModel(this))
{
    setObjectName(QStringLiteral("sceneTree"));
    setModel(m_model);
    setItemDelegate(new MarkingDelegate(*this));
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
    m_expandedBefore.clear();
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

void SceneTreeView::selectNode(const SoNode* node)
{
    const QModelIndex index = m_model->indexOf(node);
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index);
}

SoPath SceneTreeView::getSelectedPath() const
{
    return pathAt(currentIndex());
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
    for (const SoPath& path : m_expandedBefore) {
        const QModelIndex index = m_model->indexOf(path);
        if (index.isValid())
            expand(index);
    }
    m_expandedBefore.clear();
}

template <class Change>
void SceneTreeView::keepSelection(Change change)
{
    const QScopedValueRollback<bool> quiet(m_quiet, true);
    const SoPath selected = getSelectedPath();
    change();
    expand(m_model->index(0, 0));
    const QModelIndex index = m_model->indexOf(selected);
    if (index.isValid())
        setCurrentIndex(index);
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
